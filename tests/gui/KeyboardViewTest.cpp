// The on-screen keyboard under the pointer and under the keys.
#include <gmock/gmock.h>

#include <QApplication>
#include <QTest>
#include <QWindow>

#include "controls/InfoBox.h"
#include "controls/PushControl.h"
#include "controls/TextBlock.h"
#include "gui/WindowFixture.h"
#include "keyboard/KeyboardCanvas.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

constexpr QPoint kEsc{36, 46};
constexpr QPoint kQ{94, 86};
constexpr QPoint kW{132, 86};
constexpr QPoint kSpace{282, 203};
constexpr QPoint kCornerBlock{620, 45};

class OnScreenKeyboard : public test::WindowFixture {
protected:
    void SetUp() override { showActive(); }

    KeyboardCanvas& canvas() { return only<KeyboardCanvas>(); }
    void click(QPoint place, Qt::KeyboardModifiers modifiers = {}) {
        QTest::mouseClick(&canvas(), Qt::LeftButton, modifiers, place);
        time.settle();
    }
    void movePointer(QPoint place) {
        QTest::mouseMove(view->windowHandle(), rectOf(canvas()).topLeft() + place);
        QApplication::processEvents();
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
        QTest::keyClick(&canvas(), key, modifiers);
        time.settle();
    }
    void choose(const QString& name) {
        QTest::mouseClick(&control(name), Qt::LeftButton);
        time.settle();
    }
    QString info() { return only<InfoBox>().findChild<TextBlock*>()->text(); }
    const std::set<std::string>& selection() { return keyboard().selectedKeyIds.get(); }
    std::string currentKey() { return canvas().keys()[canvas().currentKey()].label; }
};

TEST_F(OnScreenKeyboard, AClickSelectsTheKeyBelowThePointer) {
    click(kQ);
    EXPECT_THAT(selection(), ElementsAre("K17"));
    EXPECT_EQ(info(), "Selected: Q 0x51 • LED Index: 6");
    click(kEsc);
    EXPECT_THAT(selection(), ElementsAre("K1"));
    EXPECT_EQ(info(), "Selected: Esc 0x1B • LED Index: 0");
}

TEST_F(OnScreenKeyboard, ShiftControlAndMetaAddAndRemove) {
    click(kQ);
    click(kW, Qt::ShiftModifier);
    click(kEsc, Qt::ControlModifier);
    EXPECT_THAT(selection(), UnorderedElementsAre("K1", "K17", "K18"));
    EXPECT_EQ(info(), "3 of 67 keys selected");
    click(kQ, Qt::MetaModifier);
    EXPECT_THAT(selection(), UnorderedElementsAre("K1", "K18"));
    click(kSpace, Qt::AltModifier);
    EXPECT_THAT(selection(), ElementsAre("K61"));
}

TEST_F(OnScreenKeyboard, InThePerKeyEffectAClickPaintsAtOnce) {
    connect();
    link().activeModeId.set(21);
    state().selectedColor.set(Color{0.0, 1.0, 0.0});
    click(kQ);
    EXPECT_EQ(keyboard().keys.get()[16].customColor, (Color{0.0, 1.0, 0.0}));
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
    EXPECT_THAT(selection(), ElementsAre("K17"));
}

TEST_F(OnScreenKeyboard, InOtherEffectsAClickOnlySelects) {
    connect();
    state().selectedColor.set(Color{0.0, 1.0, 0.0});
    click(kQ);
    EXPECT_EQ(keyboard().keys.get()[16].customColor, kDefaultColor);
    EXPECT_THAT(commandsSent(), IsEmpty());
}

TEST_F(OnScreenKeyboard, ThePlaceWithoutAKeyTakesNoClick) {
    click(kCornerBlock);
    EXPECT_THAT(selection(), IsEmpty());
    movePointer(kCornerBlock);
    EXPECT_EQ(state().hoveredKeyId.get(), std::nullopt);
}

TEST_F(OnScreenKeyboard, AReleaseElsewhereIsNoClick) {
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, kQ);
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, kW);
    QTest::mouseClick(&canvas(), Qt::RightButton, {}, kQ);
    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(OnScreenKeyboard, AKeyHeldWhileTheFocusGoesElsewhereIsNotClicked) {
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, kQ);
    control("WASD").setFocus(Qt::OtherFocusReason);
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, kQ);
    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(OnScreenKeyboard, ThePointerIsFollowedFromKeyToKey) {
    movePointer(kQ);
    EXPECT_EQ(state().hoveredKeyId.get(), "K17");
    movePointer(kW);
    EXPECT_EQ(state().hoveredKeyId.get(), "K18");
    movePointer({kW.x(), -30});  // up to the navigation
    EXPECT_EQ(state().hoveredKeyId.get(), std::nullopt);
}

TEST_F(OnScreenKeyboard, APressedKeyLosesTheOutlineOfTheOneBelowThePointer) {
    link().activeModeId.set(0);
    time.settle();
    const auto edge = [this] { return qRed(canvas().grab().toImage().pixel(94, 69)); };  // the upper one of Q
    const int dark = edge();
    movePointer(kQ);
    time.settle();
    EXPECT_TRUE(QTest::qWaitFor([&] { return edge() > dark + 80; }));
    QTest::mousePress(&canvas(), Qt::LeftButton, {}, kQ);
    EXPECT_TRUE(QTest::qWaitFor([&] { return edge() == dark; }));
    QTest::mouseRelease(&canvas(), Qt::LeftButton, {}, kQ);
}

TEST_F(OnScreenKeyboard, ClearEmptiesTheSelection) {
    choose("All");
    EXPECT_EQ(info(), "67 of 67 keys selected");
    choose("Clear");
    EXPECT_THAT(selection(), IsEmpty());
    EXPECT_EQ(info(), "Click any key on the keyboard to customize lighting or remap function.");
}

TEST_F(OnScreenKeyboard, PresetsSelectTheirKeys) {
    choose("WASD");
    EXPECT_THAT(selection(), UnorderedElementsAre("K18", "K32", "K33", "K34"));
    EXPECT_EQ(info(), "4 of 67 keys selected");
    choose("Arrows");
    EXPECT_THAT(selection(), UnorderedElementsAre("K57", "K64", "K65", "K66"));
    choose("Numbers");
    EXPECT_EQ(info(), "12 of 67 keys selected");
}

TEST_F(OnScreenKeyboard, TapHighlightsItsPillAndChangesNothingElse) {
    connect();
    const std::string status = link().statusMessage.get();
    EXPECT_TRUE(control("Default").isSelected());
    choose("Tap");
    EXPECT_TRUE(control("Tap").isSelected());
    EXPECT_FALSE(control("Default").isSelected());
    EXPECT_EQ(keyboard().activeLayer.get(), 3);
    EXPECT_THAT(commandsSent(), IsEmpty());
    EXPECT_EQ(link().statusMessage.get(), status);
    EXPECT_THAT(selection(), IsEmpty());
}

TEST_F(OnScreenKeyboard, ALayersNameIsBrightBelowThePointerAndDimWhilePressed) {
    PushControl& pill = control("FN1");
    const auto brightest = [&pill] {
        const QImage image = pill.grab().toImage();
        int most = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) most = std::max(most, qRed(image.pixel(x, y)));
        }
        return most;
    };
    EXPECT_EQ(brightest(), 0xD8);
    QTest::mouseMove(view->windowHandle(), rectOf(pill).center());
    EXPECT_TRUE(QTest::qWaitFor([&] { return brightest() == 0xFF; }));
    QTest::mousePress(view->windowHandle(), Qt::LeftButton, {}, rectOf(pill).center());
    EXPECT_TRUE(QTest::qWaitFor([&] { return brightest() == 0xC4; }));
    QTest::mouseRelease(view->windowHandle(), Qt::LeftButton, {}, rectOf(pill).center());
}

TEST_F(OnScreenKeyboard, ArrowsMoveFromKeyToKeyAndSpaceSelects) {
    canvas().setFocus(Qt::TabFocusReason);
    EXPECT_EQ(currentKey(), "Esc");
    press(Qt::Key_Down);
    press(Qt::Key_Right);
    EXPECT_EQ(currentKey(), "Q");
    EXPECT_THAT(selection(), IsEmpty());
    press(Qt::Key_Space);
    EXPECT_THAT(selection(), ElementsAre("K17"));
    press(Qt::Key_Right);
    press(Qt::Key_Space, Qt::ShiftModifier);
    EXPECT_THAT(selection(), UnorderedElementsAre("K17", "K18"));
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_THAT(selection(), ElementsAre("K17"));
}

TEST_F(OnScreenKeyboard, ArrowsStopAtTheEdge) {
    canvas().setFocus(Qt::TabFocusReason);
    press(Qt::Key_Left);
    press(Qt::Key_Up);
    EXPECT_EQ(currentKey(), "Esc");
}

TEST_F(OnScreenKeyboard, SpacePaintsInThePerKeyEffectAsAClickDoes) {
    connect();
    link().activeModeId.set(21);
    canvas().setFocus(Qt::TabFocusReason);
    press(Qt::Key_Space);
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
}

TEST_F(OnScreenKeyboard, AClickMovesTheCurrentKeyAndShowsNoRing) {
    click(kW);
    EXPECT_EQ(currentKey(), "W");
    EXPECT_FALSE(canvas().showsRing());
    press(Qt::Key_Right);
    EXPECT_EQ(currentKey(), "E");
    EXPECT_TRUE(canvas().showsRing());
}

TEST_F(OnScreenKeyboard, AskForFramesOnlyWhileTheEffectMoves) {
    EXPECT_TRUE(canvas().frames().isRunning());
    for (const std::int64_t still : {0, 1, 12, 19, 20, 21, -1, 22}) {
        link().activeModeId.set(still);
        time.settle();
        EXPECT_FALSE(canvas().frames().isRunning()) << still;
    }
    link().activeModeId.set(6);
    time.settle();
    EXPECT_TRUE(canvas().frames().isRunning());
}

}  // namespace
}  // namespace lumo
