// Where things stand on the macro page.
#include <gmock/gmock.h>

#include <QScrollBar>

#include "app/PageArea.h"
#include "controls/PushButton.h"
#include "controls/ScrollBar.h"
#include "controls/TextLine.h"
#include "gui/MacroFixture.h"
#include "macro/BytecodeCard.h"
#include "macro/LoopModesCard.h"
#include "macro/ProfilesCard.h"
#include "macro/TimelineCard.h"

namespace lumo {
namespace {

class MacroLayout : public test::MacroFixture {
protected:
    QRect namedRect(const QString& name) { return rectOf(control(name)); }

    /// From where to where something is written in it.
    static std::pair<int, int> inkedRows(QWidget& widget) {
        const QImage picture = widget.grab().toImage();
        std::pair<int, int> rows(-1, -1);
        for (int y = 2; y < picture.height() - 2; ++y) {
            for (int x = 4; x < picture.width() - 4; ++x) {
                if (picture.pixelColor(x, y).lightness() < 0x50) continue;
                if (rows.first < 0) rows.first = y;
                rows.second = y;
            }
        }
        return rows;
    }
};

TEST_F(MacroLayout, TheUsualWindowHasThreeColumns) {
    showMacros({960, 760});
    EXPECT_EQ(rectOf(only<ProfilesCard>()), QRect(16, 340, 188, 380));
    EXPECT_EQ(rectOf(only<TimelineCard>()), QRect(216, 340, 364, 380));
    EXPECT_EQ(rectOf(only<LoopModesCard>()), QRect(592, 340, 352, 122));
    EXPECT_EQ(rectOf(only<BytecodeCard>()), QRect(592, 474, 352, 246));
}

TEST_F(MacroLayout, TheSmallestWindowHasThemCloser) {
    showMacros({900, 680});
    EXPECT_EQ(rectOf(only<ProfilesCard>()), QRect(16, 340, 168, 300));
    EXPECT_EQ(rectOf(only<TimelineCard>()), QRect(196, 340, 324, 300));
    EXPECT_EQ(rectOf(only<LoopModesCard>()), QRect(532, 340, 352, 111));
    EXPECT_EQ(rectOf(only<BytecodeCard>()), QRect(532, 463, 352, 177));
}

TEST_F(MacroLayout, ALargeWindowGivesTheTimelineAllThatIsLeft) {
    showMacros({1360, 860});
    EXPECT_EQ(rectOf(only<ProfilesCard>()), QRect(160, 340, 188, 480));
    EXPECT_EQ(rectOf(only<TimelineCard>()), QRect(360, 340, 476, 480));
    EXPECT_EQ(rectOf(only<LoopModesCard>()), QRect(848, 340, 352, 122));
    EXPECT_EQ(rectOf(only<BytecodeCard>()), QRect(848, 474, 352, 346));
}

TEST_F(MacroLayout, AWindowThatIsResizedIsLaidOutAnew) {
    showMacros({960, 760});
    view->resize(900, 680);
    QTest::qWait(0);
    EXPECT_EQ(rectOf(only<TimelineCard>()), QRect(196, 340, 324, 300));
    EXPECT_EQ(rectOf(bytecode()), QRect(544, 503, 328, 127));
    view->resize(960, 760);
    QTest::qWait(0);
    EXPECT_EQ(rectOf(bytecode()), QRect(604, 520, 328, 188));
}

TEST_F(MacroLayout, TheProfilesHaveRowsOf32PointsAndButtonsAtTheFoot) {
    showMacros();
    EXPECT_EQ(namedRect("Rapid WASD"), QRect(28, 376, 164, 32));
    EXPECT_EQ(namedRect("Super Jump"), QRect(28, 410, 164, 32));
    EXPECT_EQ(namedRect("Rapid Fire"), QRect(28, 444, 164, 32));
    EXPECT_EQ(namedRect("Add macro"), QRect(28, 680, 28, 28));
    EXPECT_EQ(namedRect("Delete"), QRect(64, 680, 128, 28));
}

TEST_F(MacroLayout, TheTimelineHasItsButtonsAboveItsRows) {
    showMacros();
    EXPECT_EQ(namedRect("Record Action").topLeft(), QPoint(228, 376));
    EXPECT_EQ(namedRect("Record Action").height(), 28);
    EXPECT_EQ(namedRect("Insert Step").topLeft(), QPoint(namedRect("Record Action").right() + 9, 376));
    EXPECT_EQ(rectOf(timeline()).topLeft(), QPoint(224, 421));
    EXPECT_EQ(rectOf(timeline()).width(), 348);
    EXPECT_EQ(timeline().rowRect(0), QRect(0, 0, 348, 34));
    EXPECT_EQ(timeline().rowRect(5), QRect(0, 175, 348, 34));
}

TEST_F(MacroLayout, InsertStepMovesWithTheLengthOfTheRecordButton) {
    showMacros();
    click("Record Action");
    EXPECT_EQ(namedRect("Insert Step").left(), namedRect("Stop Recording").right() + 9);
}

TEST_F(MacroLayout, ARowHasItsPartsInTheirPlaces) {
    showMacros();
    EXPECT_EQ(partRect(2, StepPart::number), QRect(234, 491, 24, 34));
    EXPECT_EQ(partRect(2, StepPart::direction), QRect(284, 491, 76, 34));
    EXPECT_EQ(partRect(2, StepPart::code).left(), 360);
    EXPECT_NEAR(partRect(2, StepPart::code).center().y(), 508, 1);
    EXPECT_EQ(partRect(2, StepPart::remove), QRect(544, 496, 24, 24));
    EXPECT_NEAR(partRect(2, StepPart::unit).right() + 1, 534, 1);
    EXPECT_NEAR(partRect(2, StepPart::delay).right() + 1, partRect(2, StepPart::unit).left() - 3, 2);
}

TEST_F(MacroLayout, SixStepsNeedNoScrollBarInTheSmallestWindow) {
    showMacros({900, 680});
    EXPECT_EQ(rectOf(timeline()), QRect(204, 421, 308, 211));
    for (const ScrollBar* const bar : view->findChildren<ScrollBar*>()) EXPECT_FALSE(bar->isVisible());
    setSteps(7);
    int visible = 0;
    for (const ScrollBar* const bar : view->findChildren<ScrollBar*>()) {
        if (!bar->isVisible()) continue;
        ++visible;
        EXPECT_EQ(rectOf(*bar), QRect(512, 421, 6, 211));
    }
    EXPECT_EQ(visible, 1);
}

TEST_F(MacroLayout, TheRadiosStandOneBelowTheOther) {
    showMacros();
    EXPECT_EQ(namedRect("Cycle times (3)").topLeft(), QPoint(604, 374));
    EXPECT_EQ(namedRect("Until key released").topLeft(), QPoint(604, 400));
    EXPECT_EQ(namedRect("Until key pressed").topLeft(), QPoint(604, 426));
    EXPECT_EQ(namedRect("Until key pressed").height(), 26);
    view->resize(900, 680);
    QTest::qWait(0);
    EXPECT_EQ(namedRect("Cycle times (3)").topLeft(), QPoint(544, 371));
    EXPECT_EQ(namedRect("Until key pressed").topLeft(), QPoint(544, 419));
    EXPECT_EQ(namedRect("Until key pressed").height(), 24);
}

TEST_F(MacroLayout, RecompileStandsInTheHeadingsRow) {
    showMacros();
    EXPECT_EQ(namedRect("Recompile Bytecode").right() + 1, 932);
    EXPECT_EQ(namedRect("Recompile Bytecode").top(), 486);
    EXPECT_EQ(namedRect("Recompile Bytecode").height(), 24);
    EXPECT_EQ(rectOf(bytecode()), QRect(604, 520, 328, 188));
}

TEST_F(MacroLayout, TheLinesOfTheByteCodeFitTheirBoxAndStandInItsMiddle) {
    for (const auto& [size, pitch] : {std::pair(QSize(960, 760), 17), std::pair(QSize(900, 680), 14)}) {
        showMacros(size);
        click("Recompile Bytecode");
        const auto [first, last] = inkedRows(bytecode());
        EXPECT_NEAR(last - first, 7 * pitch + 7, 2) << pitch;
        EXPECT_NEAR(first + last, bytecode().height() - 1, 4) << pitch;
    }
}

TEST_F(MacroLayout, NoTextIsElidedInTheSmallestWindow) {
    showMacros({900, 680});
    for (const TextLine* const line : only<MacroEditorView>().findChildren<TextLine*>()) {
        EXPECT_FALSE(line->isElided()) << line->text().toStdString();
    }
    click("Record Action");
    for (const PushButton* const button : only<MacroEditorView>().findChildren<PushButton*>()) {
        EXPECT_LE(button->widthWith(6), button->width()) << button->text().toStdString();
    }
    EXPECT_LE(namedRect("Insert Step").right(), rectOf(only<TimelineCard>()).right() - 12);
}

TEST_F(MacroLayout, ManyMacrosScrollByThemselvesAndTheNewOneIsSeen) {
    showMacros({900, 680});
    for (int i = 4; i <= 20; ++i) click("Add macro");
    const QRect last = namedRect("Macro 20");
    EXPECT_LE(last.bottom(), namedRect("Delete").top() - 8);
    EXPECT_EQ(control("Macro 20").visibleRegion().boundingRect().height(), 32);
    EXPECT_TRUE(control("Rapid WASD").visibleRegion().isEmpty());
    EXPECT_EQ(only<PageArea>().verticalScrollBar()->maximum(), 0);
}

}  // namespace
}  // namespace lumo
