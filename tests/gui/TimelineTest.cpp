// The rows of the timeline: how they look, scroll and follow pointer and keys.
#include <gmock/gmock.h>

#include <QApplication>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QWheelEvent>

#include "controls/FocusRing.h"
#include "controls/ScrollBox.h"
#include "gui/CurrentFolder.h"
#include "gui/MacroFixture.h"
#include "macro/TimelineCard.h"

namespace lumo {
namespace {

using testing::SizeIs;

class Timeline : public test::MacroFixture {
protected:
    QScrollBar& bar() { return *only<TimelineCard>().findChild<ScrollBox*>()->verticalScrollBar(); }
    bool isInView(std::size_t step) {
        return timeline().visibleRegion().boundingRect().contains(timeline().rowRect(step));
    }
    void press(Qt::Key key) {
        QTest::keyClick(&timeline(), key);
        settle();
    }
    void enter() { timeline().setFocus(Qt::TabFocusReason); }
    /// As the window shows it, on the card.
    QColor colorAt(QPoint place) {
        const QPoint inWindow = rectOf(timeline()).topLeft() + place;
        return view->grab(QRect(inWindow, QSize(1, 1))).toImage().pixelColor(0, 0);
    }
    void moveTo(QPoint place) {
        QTest::mouseMove(view->windowHandle(), rectOf(timeline()).topLeft() + place);
        QTest::qWait(0);
    }
};

TEST_F(Timeline, TenThousandStepsMakeNoWidgetsAndScrollToTheLast) {
    showMacros();
    const auto widgets = view->findChildren<QWidget*>().size();
    setSteps(10'000);
    EXPECT_EQ(view->findChildren<QWidget*>().size(), widgets);
    EXPECT_EQ(timeline().height(), 350'000);
    EXPECT_TRUE(isInView(0));
    bar().setValue(bar().maximum());
    EXPECT_TRUE(isInView(9'999));
    EXPECT_GE(partRect(9'999, StepPart::number).width(), Lettering(theme::kStepNumberStyle).widthOf("10000") + 8);
}

TEST_F(Timeline, TheWheelScrollsTheRows) {
    showMacros();
    setSteps(100);
    const QPointF place(100, 100);
    QWheelEvent down(place, timeline().mapToGlobal(place), {0, -60}, {0, -120}, Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QApplication::sendEvent(timeline().parentWidget(), &down);
    EXPECT_GT(bar().value(), 0);
}

TEST_F(Timeline, StepsThatAreInsertedComeIntoView) {
    showMacros();
    setSteps(50);
    click("Insert Step");
    EXPECT_TRUE(isInView(51));
}

TEST_F(Timeline, ADeletedStepMovesNothing) {
    showMacros();
    setSteps(50);
    bar().setValue(350);
    clickRemove(12);
    EXPECT_THAT(timeline().steps(), SizeIs(49));
    EXPECT_EQ(bar().value(), 350);
}

TEST_F(Timeline, NorDoesTheFirstStepWhenItIsDeleted) {
    showMacros();
    setSteps(50);
    bar().setValue(10);
    clickRemove(0);
    EXPECT_THAT(timeline().steps(), SizeIs(49));
    EXPECT_EQ(bar().value(), 10);
}

TEST_F(Timeline, AnotherMacroIsShownFromItsFirstStep) {
    showMacros();
    setSteps(50);
    bar().setValue(bar().maximum());
    auto macros = state().macroList.get();
    macros[1].events = std::vector<MacroEvent>(40);
    for (MacroEvent& event : macros[1].events) event.id = Uuid::random();
    state().macroList.set(macros);
    timeline().setCurrentStep(45);
    click("Super Jump");
    EXPECT_EQ(bar().value(), 0);
    EXPECT_EQ(timeline().currentStep(), 0U);
}

TEST_F(Timeline, OneStopForTabWithArrowsInside) {
    state().currentTab.set(NavTab::macro);
    showActive();
    setSteps(50);
    enter();
    EXPECT_EQ(timeline().currentStep(), 0U);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    EXPECT_EQ(timeline().currentStep(), 2U);
    press(Qt::Key_Up);
    EXPECT_EQ(timeline().currentStep(), 1U);
    press(Qt::Key_End);
    EXPECT_EQ(timeline().currentStep(), 49U);
    EXPECT_TRUE(isInView(49));
    press(Qt::Key_Down);
    EXPECT_EQ(timeline().currentStep(), 49U);
    press(Qt::Key_PageUp);
    EXPECT_EQ(timeline().currentStep(), 41U);
    press(Qt::Key_Home);
    EXPECT_EQ(timeline().currentStep(), 0U);
    EXPECT_TRUE(isInView(0));
    press(Qt::Key_Up);
    EXPECT_EQ(timeline().currentStep(), 0U);
    press(Qt::Key_PageDown);
    EXPECT_EQ(timeline().currentStep(), 8U);
    EXPECT_THAT(timeline().steps(), SizeIs(50));
}

TEST_F(Timeline, SpaceAndReturnDeleteTheStepTheKeyboardIsAt) {
    showMacrosActive();
    enter();
    press(Qt::Key_Down);
    press(Qt::Key_Space);
    EXPECT_THAT(timeline().steps(), SizeIs(5));
    EXPECT_EQ(timeline().steps()[1].keyCode, 83);
    EXPECT_EQ(timeline().currentStep(), 1U);
    press(Qt::Key_End);
    press(Qt::Key_Return);
    EXPECT_THAT(timeline().steps(), SizeIs(4));
    EXPECT_EQ(timeline().currentStep(), 3U);
}

TEST_F(Timeline, KeysWithModifiersDeleteNothingAndMoveNothing) {
    showMacrosActive();
    enter();
    for (const auto modifier : {Qt::ControlModifier, Qt::AltModifier, Qt::MetaModifier, Qt::ShiftModifier}) {
        for (const auto key : {Qt::Key_Down, Qt::Key_End, Qt::Key_Space, Qt::Key_Return}) {
            QTest::keyClick(&timeline(), key, modifier);
        }
    }
    settle();
    EXPECT_THAT(timeline().steps(), SizeIs(6));
    EXPECT_EQ(timeline().currentStep(), 0U);
    QTest::keyClick(&timeline(), Qt::Key_Enter, Qt::KeypadModifier);
    settle();
    EXPECT_THAT(timeline().steps(), SizeIs(5));
}

TEST_F(Timeline, APressBesideTheButtonsLeavesTheFocusWhereItIs) {
    showMacrosActive();
    control("Insert Step").setFocus(Qt::TabFocusReason);
    QTest::mouseClick(&timeline(), Qt::LeftButton, {}, timeline().rowRect(2).center());
    EXPECT_TRUE(control("Insert Step").hasFocus());
}

TEST_F(Timeline, APressedTrashTakesTheFocusAndTheArrowsShowTheRing) {
    showMacrosActive();
    clickRemove(2);
    EXPECT_TRUE(timeline().hasFocus());
    EXPECT_FALSE(timeline().showsRing());
    QTest::keyClick(&timeline(), Qt::Key_A);
    EXPECT_FALSE(timeline().showsRing());
    press(Qt::Key_Down);
    EXPECT_TRUE(timeline().showsRing());
    EXPECT_EQ(timeline().currentStep(), 3U);
}

TEST_F(Timeline, WhenTheMouseTakesTheLastStepAwayNoRingComesUp) {
    showMacrosActive();
    for (int i = 0; i < 6; ++i) clickRemove(0);
    EXPECT_TRUE(control("Insert Step").hasFocus());
    EXPECT_FALSE(control("Insert Step").showsRing());
}

TEST_F(Timeline, WithoutStepsItIsNoStop) {
    showMacrosActive();
    enter();
    for (int i = 0; i < 6; ++i) press(Qt::Key_Space);
    EXPECT_THAT(timeline().steps(), SizeIs(0));
    EXPECT_TRUE(control("Insert Step").hasFocus());
    EXPECT_TRUE(control("Insert Step").showsRing());
    QTest::keyClick(&control("Insert Step"), Qt::Key_Tab);
    EXPECT_TRUE(control("Cycle times (3)").hasFocus());
}

TEST_F(Timeline, TheFocusDoesNotComeBackToItWhenItHasLostItsStepsMeanwhile) {
    showMacrosActive();
    enter();
    leaveFor([this] { setSteps(0); });
    EXPECT_TRUE(control("Insert Step").hasFocus());
}

TEST_F(Timeline, TheRingStandsAroundTheButtonOfTheStepAndScrollsWithIt) {
    showMacrosActive();
    setSteps(50);
    enter();
    press(Qt::Key_Down);
    const auto ringIsAround = [this](std::size_t step) {
        return QTest::qWaitFor([this, step] {
            return only<FocusRing>().isVisible() &&
                   rectOf(only<FocusRing>()) == partRect(step, StepPart::remove).adjusted(-4, -4, 4, 4);
        });
    };
    EXPECT_TRUE(ringIsAround(1));
    bar().setValue(20);
    EXPECT_TRUE(ringIsAround(1));
    timeline().setCurrentStep(3);
    EXPECT_TRUE(ringIsAround(3));
    QTest::mousePress(&timeline(), Qt::LeftButton, {}, removeButton(3));
    EXPECT_TRUE(QTest::qWaitFor([this] { return !only<FocusRing>().isVisible(); }));
    QTest::mouseRelease(&timeline(), Qt::LeftButton, {}, removeButton(3));
}

TEST_F(Timeline, TheRowBelowThePointerLightsUpAndItsTrashTurnsRed) {
    showMacros();
    EXPECT_EQ(colorAt({120, 5}), QColor(33, 33, 35));
    const QPoint inRow = timeline().rowRect(2).topLeft() + QPoint(230, 17);
    moveTo(inRow);
    ASSERT_TRUE(QTest::qWaitFor([&] { return colorAt(inRow) == QColor(44, 44, 46); }))
        << colorAt(inRow).name().toStdString();
    const QPoint besideTrash = timeline().partRect(2, StepPart::remove).topLeft() + QPoint(12, 2);
    moveTo(removeButton(2));
    ASSERT_TRUE(QTest::qWaitFor([&] { return colorAt(besideTrash) == QColor(70, 52, 52); }))
        << colorAt(besideTrash).name().toStdString();
    moveTo({100, 300});
    EXPECT_TRUE(QTest::qWaitFor([&] { return colorAt(inRow) == QColor(33, 33, 35); }));
}

TEST_F(Timeline, APressedTrashComesUpWhileThePointerIsElsewhere) {
    showMacros();
    const QPoint besideTrash = timeline().partRect(2, StepPart::remove).topLeft() + QPoint(12, 2);
    const QColor atRest = colorAt(besideTrash);
    QTest::mousePress(&timeline(), Qt::LeftButton, {}, removeButton(2));
    EXPECT_NE(colorAt(besideTrash), atRest);
    QTest::mouseMove(&timeline(), removeButton(4));
    EXPECT_TRUE(QTest::qWaitFor([&] { return colorAt(besideTrash) == atRest; }));
    QTest::mouseMove(&timeline(), removeButton(2));
    EXPECT_NE(colorAt(besideTrash), atRest);
    QTest::mouseRelease(&timeline(), Qt::LeftButton, {}, removeButton(2));
    settle();
    EXPECT_THAT(timeline().steps(), SizeIs(5));
}

TEST_F(Timeline, OnlyTheButtonThatPressedTheTrashDeletes) {
    showMacros();
    QTest::mousePress(&timeline(), Qt::LeftButton, {}, removeButton(2));
    QTest::mouseClick(&timeline(), Qt::RightButton, {}, removeButton(2));
    settle();
    EXPECT_THAT(timeline().steps(), SizeIs(6));
    QTest::mouseRelease(&timeline(), Qt::LeftButton, {}, removeButton(2));
    settle();
    EXPECT_THAT(timeline().steps(), SizeIs(5));
}

TEST_F(Timeline, PressAndReleaseAreToldApartByColorToo) {
    showMacros();
    const QPoint down = timeline().partRect(0, StepPart::direction).topLeft();
    const auto mostColored = [this](QPoint corner) {
        const QImage picture = timeline().grab(QRect(corner, QSize(76, 34))).toImage();
        int most = 0;
        for (int y = 0; y < 34; ++y) {
            for (int x = 0; x < 76; ++x) {
                const QColor pixel = picture.pixelColor(x, y);
                if (pixel.alpha() == 255) most = std::max(most, pixel.blue() - pixel.green());
            }
        }
        return most;
    };
    EXPECT_GT(mostColored(down), 40);                                                   // #D9CCFF
    EXPECT_LT(mostColored(timeline().partRect(1, StepPart::direction).topLeft()), 10);  // #B0B0B6
}

TEST_F(Timeline, ADelayThatFindsNoRoomIsCutAndStaysOutOfTheChip) {
    showMacros({900, 680});
    std::vector<MacroEvent> steps(2);
    steps[0].delayMs = std::numeric_limits<std::int64_t>::min();
    steps[1].delayMs = 1000;
    state().macroEvents.set(steps);
    settle();
    EXPECT_GE(partRect(0, StepPart::delay).left(), partRect(0, StepPart::code).right() + 8 + 15 + 6 - 1);
    EXPECT_EQ(stepText(StepPart::delay, 0, steps[0]), "-9223372036854775808");
    StepRow row;
    row.layOut(308, 2);
    EXPECT_TRUE(row.isDelayElided(steps[0]));
    EXPECT_FALSE(row.isDelayElided(steps[1]));
}

TEST_F(Timeline, APartReadsAsItShould) {
    const MacroEvent step{{}, 0x0A, true, -5};
    EXPECT_EQ(stepText(StepPart::number, 0, step), "1");
    EXPECT_EQ(stepText(StepPart::number, 9'999, step), "10000");
    EXPECT_EQ(stepText(StepPart::direction, 0, step), "KEY DOWN");
    EXPECT_EQ(stepText(StepPart::direction, 0, {{}, 0, false, 0}), "KEY UP");
    EXPECT_EQ(stepText(StepPart::code, 0, step), "0x0A");
    EXPECT_EQ(stepText(StepPart::code, 0, {{}, 240, false, 0}), "0xF0");
    EXPECT_EQ(stepText(StepPart::delay, 0, step), "-5");
    EXPECT_EQ(stepText(StepPart::unit, 0, step), "ms");
    EXPECT_EQ(stepText(StepPart::remove, 2, step), "Delete step 3");
}

class TimelineWithoutArtwork : public test::LinkFixture {
protected:
    QTemporaryDir empty;
    test::CurrentFolder here{empty.path()};

    /// How many pixels of the place where the icon stands are painted.
    static int paintedIconPixels(bool isDown) {
        StepRow row;
        row.layOut(348, 1);
        QImage picture(348, StepRow::rowHeight(), QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        row.paint(painter, 0, {{}, 87, isDown, 25}, {});
        painter.end();
        int painted = 0;
        for (int y = 0; y < StepRow::rowHeight(); ++y) {
            for (int x = 34; x < 52; ++x) painted += picture.pixelColor(x, y).alpha() > 100 ? 1 : 0;
        }
        return painted;
    }
};

TEST_F(TimelineWithoutArtwork, SymbolsStandInForTheDirections) {
    EXPECT_GT(paintedIconPixels(true), paintedIconPixels(false));  // a filled disc, and a ring
    EXPECT_GT(paintedIconPixels(false), 30);
}

}  // namespace
}  // namespace lumo
