#include "gui/WindowFixture.h"

#include <QTest>

#include "app/HeaderBar.h"
#include "app/StatusBar.h"
#include "controls/TextLine.h"
#include "keyboard/EffectRow.h"

namespace lumo::test {

void WindowFixture::setPermissions() {
    platform.grants.audio = AudioAuthorization::authorized;
    platform.grants.canListen = true;
    platform.kept.values["VexaLumoHasLaunchedBefore"] = true;
    (void)objects.permissionManager();
    time.advance(Duration{0});  // the first check
}

void WindowFixture::show(QSize size) {
    setPermissions();
    view = std::make_unique<MainView>(&quit);
    view->resize(size);
    view->show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(view.get()));
}

void WindowFixture::showActive() {
    show();
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
}

void WindowFixture::leaveFor(const std::function<void()>& something) {
    QWidget other;
    other.show();
    other.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&other));
    something();
    view->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(view.get()));
}

std::vector<EffectRow*> WindowFixture::rows() const {
    const auto found = view->findChildren<EffectRow*>();
    return {found.begin(), found.end()};
}

EffectRow& WindowFixture::row(const QString& name) const { return dynamic_cast<EffectRow&>(control(name)); }

PushControl& WindowFixture::control(const QString& name) const {
    const auto all = view->findChildren<PushControl*>();
    const auto found = std::ranges::find_if(all, [&name](const PushControl* each) { return each->text() == name; });
    if (found == all.end()) throw std::invalid_argument("no control " + name.toStdString());
    return **found;
}

std::vector<QString> WindowFixture::selectedNames() const {
    std::vector<QString> names;
    for (const EffectRow* const row : rows()) {
        if (row->isSelected()) names.push_back(row->text());
    }
    return names;
}

TextLine& WindowFixture::statusLine() const { return *only<StatusBar>().findChild<TextLine*>(); }

TextLine& WindowFixture::connectionLine() const { return *only<HeaderBar>().findChildren<TextLine*>().back(); }

}  // namespace lumo::test
