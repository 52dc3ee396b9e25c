// What is painted when, and what is not.
#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>
#include <cstdlib>
#include <set>

#include "app/StatusBar.h"
#include "controls/TextLine.h"
#include "gui/WindowFixture.h"
#include "keyboard/EffectRow.h"

namespace lumo {
namespace {

/// Notes every widget that is painted while it lives.
class PaintWatch final : public QObject {
public:
    PaintWatch() { qApp->installEventFilter(this); }

    [[nodiscard]] const std::set<QObject*>& painted() const { return m_painted; }
    [[nodiscard]] bool hasSeen(QWidget& widget) const { return m_painted.contains(&widget); }
    void forget() { m_painted.clear(); }

protected:
    bool eventFilter(QObject* object, QEvent* event) override {
        if (event->type() == QEvent::Paint && object->isWidgetType()) m_painted.insert(object);
        return false;
    }

private:
    std::set<QObject*> m_painted;
};

class Refresh : public test::WindowFixture {
protected:
    void SetUp() override {
        link().activeModeId.set(1);  // the keyboard's picture stands still
        show();
        paintStatus();
    }

    /// Changes the message and waits for its paint: whatever was to be painted before is painted with it.
    void paintStatus() {
        watch.forget();
        m_message += 'x';
        link().statusMessage.set(m_message);
        time.settle();
        ASSERT_TRUE(QTest::qWaitFor([this] { return watch.hasSeen(statusLine()); }, 30000));
    }
    /// The message's line and what shines through behind it.
    std::set<QObject*> statusAlone() { return {&statusLine(), &only<StatusBar>(), view.get()}; }

    PaintWatch watch;

private:
    std::string m_message;
};

TEST_F(Refresh, AMessageIsPaintedAndNothingElse) {
    paintStatus();
    EXPECT_EQ(watch.painted(), statusAlone());
}

TEST_F(Refresh, AnnouncementsThatChangeNothingPaintNothing) {
    for (int i = 0; i < 5; ++i) {
        link().activeModeId.set(link().activeModeId.get());
        link().isConnected.set(false);
        link().connectionType.set("Simulated / Disconnected");
        state().selectedColor.set(state().selectedColor.get());
        state().speedLevel.set(state().speedLevel.get());
        keyboard().activeLayer.set(0);
        time.settle();
    }
    paintStatus();
    EXPECT_EQ(watch.painted(), statusAlone());
}

TEST_F(Refresh, OnTheRemapPageAnnouncementsThatChangeNothingPaintNothing) {
    state().currentTab.set(NavTab::keyAssign);
    keyboard().selectPresetGroup("WASD");
    keyboard().bindKey("K18", {0x02, 0x00, 0x00, 0xE2}, "Mute");
    ASSERT_TRUE(QTest::qWaitFor(
        [this] {
            paintStatus();
            return watch.painted() == statusAlone();
        },
        30000));
    for (int i = 0; i < 5; ++i) {
        state().remapCategory.set("Multimedia");
        keyboard().keys.set(keyboard().keys.get());
        keyboard().selectPresetGroup("WASD");
        time.settle();
    }
    paintStatus();
    EXPECT_EQ(watch.painted(), statusAlone());
}

TEST_F(Refresh, AColorRepaintsOnlyTheRowsThatShowIt) {
    watch.forget();
    state().selectedColor.set(Color{1.0, 0.0, 0.0});
    time.settle();
    ASSERT_TRUE(QTest::qWaitFor([this] { return watch.hasSeen(row("Raindrops")); }, 30000));
    EXPECT_TRUE(watch.hasSeen(row("Fixed_on (Static)")));
    EXPECT_FALSE(watch.hasSeen(row("Rainbow (Cycle)")));
    EXPECT_FALSE(watch.hasSeen(row("LED OFF")));
}

TEST_F(Refresh, AnEffectRepaintsOnlyTheRowsThatChange) {
    watch.forget();
    for (const std::int64_t number : {8, 9, 5}) link().activeModeId.set(number);
    time.settle();
    ASSERT_TRUE(QTest::qWaitFor([this] { return watch.hasSeen(row("Raindrops")); }, 30000));
    EXPECT_TRUE(watch.hasSeen(row("Fixed_on (Static)")));
    EXPECT_FALSE(watch.hasSeen(row("Stars_twinkle")));
    EXPECT_FALSE(watch.hasSeen(row("Shadow_disappear")));
    EXPECT_FALSE(watch.hasSeen(statusLine()));
}

TEST_F(Refresh, TheSelectionFadesInUntilItsOutlineHasItsFullColor) {
    const auto outline = [this] {
        const QPoint onUpperEdge = rectOf(row("Raindrops")).topLeft() + QPoint(100, 0);
        return view->grab().toImage().pixelColor(onUpperEdge);
    };
    link().activeModeId.set(5);
    time.settle();
    const QColor full(0x63, 0x45, 0xB0);
    const auto isFull = [&] {
        const QColor now = outline();
        return std::abs(now.red() - full.red()) <= 2 && std::abs(now.green() - full.green()) <= 2 &&
               std::abs(now.blue() - full.blue()) <= 2;
    };
    EXPECT_FALSE(isFull());
    EXPECT_TRUE(QTest::qWaitFor(isFull, 30000)) << outline().name().toStdString();
}

class MacroRefresh : public Refresh {
protected:
    void SetUp() override {
        state().currentTab.set(NavTab::macro);
        Refresh::SetUp();
    }
};

TEST_F(MacroRefresh, AnnouncementsThatChangeNothingPaintNothing) {
    state().macroName.set(state().macroName.get());
    state().macroList.set(state().macroList.get());
    state().macroEvents.set(state().macroEvents.get());
    state().isRecording.set(false);
    state().macroLoopMode.set(0);
    state().compiledMacroHex.set("");
    paintStatus();
    EXPECT_EQ(watch.painted(), statusAlone());
}

TEST_F(Refresh, AViewThatIsGoneIsNotRefreshed) {
    link().statusMessage.set("one");
    view.reset();
    time.settle();
    link().statusMessage.set("two");
    time.settle();
    EXPECT_EQ(link().statusMessage.get(), "two");
}

}  // namespace
}  // namespace lumo
