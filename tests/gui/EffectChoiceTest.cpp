// Choosing an effect with the mouse or the keyboard, down to the keyboard's registers.
#include <gmock/gmock.h>

#include <QTest>

#include "controls/TextLine.h"
#include "gui/WindowFixture.h"
#include "keyboard/EffectRow.h"

namespace lumo {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class EffectChoice : public test::WindowFixture {
protected:
    void SetUp() override { showActive(); }

    void click(const QString& name) {
        QTest::mouseClick(&row(name), Qt::LeftButton);
        time.settle();
    }
    void press(const QString& name, Qt::Key key) {
        row(name).setFocus(Qt::TabFocusReason);
        QTest::keyClick(&row(name), key);
        time.settle();
    }
    void expectRaindrops() {
        EXPECT_EQ(firmware.parameterBlock().at(18), 0x0F);
        EXPECT_THAT(selectedNames(), ElementsAre("Raindrops"));
        EXPECT_EQ(statusLine().text(), "Applied: Raindrops");
    }
};

TEST_F(EffectChoice, TheListHoldsTheTwentyEffectsInItsOwnOrder) {
    std::vector<QString> names;
    for (const EffectRow* const row : rows()) names.push_back(row->text());
    EXPECT_THAT(names, ElementsAre("Fixed_on (Static)", "Respire (Breathing)", "Rainbow (Cycle)", "Flash_away (Stream)",
                                   "Raindrops", "Rainbow_wheel", "Ripples_shining", "Stars_twinkle", "Shadow_disappear",
                                   "Retro_snake", "Neon_stream", "Reaction", "Sine_wave", "Retinue scanning",
                                   "Rotating windmill", "Colorful waterfall", "Blossoming", "Rotating storm",
                                   "Self-define (Per-Key RGB)", "LED OFF"));
}

TEST_F(EffectChoice, AtFirstTheActiveEffectIsSelected) {
    EXPECT_THAT(selectedNames(), ElementsAre("Flash_away (Stream)"));
}

TEST_F(EffectChoice, AClickSendsTheEffectAndSelectsItsRow) {
    connect();
    click("Raindrops");
    expectRaindrops();
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04));
}

TEST_F(EffectChoice, AClickSendsTheLevelsAndTheColorOfTheInterface) {
    connect();
    state().speedLevel.set(1.0);
    state().brightnessLevel.set(3.0);
    state().selectedColor.set(Color{1.0, 0.0, 0.5});
    click("Raindrops");
    EXPECT_EQ(firmware.parameterBlock().at(19), 1);
    EXPECT_EQ(firmware.parameterBlock().at(20), 3);
    EXPECT_EQ(firmware.colourBlock().at(9), 255);
    EXPECT_EQ(firmware.colourBlock().at(10), 0);
    EXPECT_EQ(firmware.colourBlock().at(11), 127);
}

TEST_F(EffectChoice, SpaceSendsTheFocusedEffect) {
    connect();
    press("Raindrops", Qt::Key_Space);
    expectRaindrops();
}

TEST_F(EffectChoice, ReturnSendsTheFocusedEffect) {
    connect();
    press("Raindrops", Qt::Key_Return);
    expectRaindrops();
}

TEST_F(EffectChoice, AReturnKeyHeldDownSendsOnce) {
    connect();
    QKeyEvent held(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "\r", true);
    QApplication::sendEvent(&row("Raindrops"), &held);
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(EffectChoice, ASelectedEffectIsSentAgain) {
    connect();
    click("Flash_away (Stream)");
    EXPECT_THAT(commandsSent(), ElementsAre(0x8A, 0x0A, 0x84, 0x04));
    EXPECT_EQ(statusLine().text(), "Applied: Flash_away (Stream)");
}

TEST_F(EffectChoice, RotatingStormUploadsTheKeysAndEndsWithThePerKeyEffectSelected) {
    connect();
    click("Rotating storm");
    EXPECT_THAT(commandsSent(), ElementsAre(0x09, 0x09, 0x06, 0x84, 0x04));
    EXPECT_THAT(selectedNames(), ElementsAre("Self-define (Per-Key RGB)"));
}

TEST_F(EffectChoice, TheRightButtonChoosesNothing) {
    connect();
    QTest::mouseClick(&row("Raindrops"), Qt::RightButton);
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
    EXPECT_THAT(selectedNames(), ElementsAre("Flash_away (Stream)"));
}

TEST_F(EffectChoice, APressThatIsDraggedOffItsRowChoosesNothing) {
    connect();
    EffectRow& raindrops = row("Raindrops");
    QTest::mousePress(&raindrops, Qt::LeftButton);
    QTest::mouseMove(&raindrops, QPoint(5, 200));
    QTest::mouseRelease(&raindrops, Qt::LeftButton, {}, QPoint(5, 200));
    time.settle();
    EXPECT_THAT(firmware.writes(), IsEmpty());
}

TEST_F(EffectChoice, WithoutAKeyboardTheEffectIsPreviewed) {
    click("LED OFF");
    EXPECT_THAT(selectedNames(), ElementsAre("LED OFF"));
    EXPECT_EQ(statusLine().text(), "Previewing LED OFF (Simulated)");
}

TEST_F(EffectChoice, ARefusedCommandIsToldAndTheRowStaysSelected) {
    connect();
    fault("set 04 refuse");
    click("Raindrops");
    EXPECT_THAT(selectedNames(), ElementsAre("Raindrops"));
    EXPECT_EQ(statusLine().text(), "Hardware command failed");
}

TEST_F(EffectChoice, AnEffectThatIsNotInTheListSelectsNoRow) {
    link().activeModeId.set(19);
    time.settle();
    EXPECT_THAT(selectedNames(), IsEmpty());
}

}  // namespace
}  // namespace lumo
