// Windows of sizes that nobody designed: some window managers do not ask for the smallest one.
#include <gmock/gmock.h>

#include "gui/WindowFixture.h"

namespace lumo {
namespace {

std::vector<QString>* messages = nullptr;  // what Qt says, while a test listens

class AnySize : public test::WindowFixture {
protected:
    AnySize() {
        messages = &m_messages;
        m_before = qInstallMessageHandler(
            [](QtMsgType, const QMessageLogContext&, const QString& text) { messages->push_back(text); });
    }
    ~AnySize() override {
        qInstallMessageHandler(m_before);
        EXPECT_THAT(m_messages, testing::IsEmpty());
    }

private:
    std::vector<QString> m_messages;
    QtMessageHandler m_before = nullptr;
};

class AnyPage : public AnySize, public testing::WithParamInterface<NavTab> {};
INSTANTIATE_TEST_SUITE_P(Of, AnyPage, testing::ValuesIn(kAllTabs));

TEST_P(AnyPage, IsPaintedWithoutAWord) {
    state().currentTab.set(GetParam());
    keyboard().selectPresetGroup("WASD");
    show();
    for (const QSize size : {QSize(1, 1), QSize(0, 0), QSize(40, 700), QSize(960, 40), QSize(60, 460), QSize(500, 450),
                             QSize(700, 520), QSize(300, 8000), QSize(8000, 300), QSize(960, 760)}) {
        view->resize(size);
        EXPECT_EQ(view->grab().size(), size);
    }
}

}  // namespace
}  // namespace lumo
