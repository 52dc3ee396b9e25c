// The remap page's controls, used with the mouse.
#include <gmock/gmock.h>

#include "gui/RemapFixture.h"

namespace lumo {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using Bytes = std::vector<std::uint8_t>;

constexpr auto kPrompt = "Select a switch on the keyboard above, then click an action below to bind.";

class RemapPage : public test::RemapFixture {
protected:
    void SetUp() override {
        openPage();
        connect();
    }
    /// What is seen beside the five categories and the two buttons at the foot.
    std::vector<QString> shownActions() {
        const auto all = shownControls();
        return {all.begin() + 5, all.end() - 2};
    }
};

TEST_F(RemapPage, BeginsWithTheMediaActionsAndNoTarget) {
    EXPECT_THAT(shownControls(),
                ElementsAre("Multimedia", "Mouse", "Shortcuts", "Function (F1-F12)", "Letters & Numbers",
                            "Play / Pause", "Mute", "Volume +", "Volume -", "Next Track", "Prev Track", "Stop",
                            "Calculator", "My Computer", "Web Browser", "Save Key Matrix", "Reset to Defaults"));
    EXPECT_THAT(selectedControls(), ElementsAre("Multimedia"));
    EXPECT_THAT(panelTexts(), ElementsAre(kPrompt));
}

TEST_F(RemapPage, ACategoryShowsItsActions) {
    click("Mouse");
    EXPECT_EQ(state().remapCategory.get(), "Mouse");
    EXPECT_THAT(selectedControls(), ElementsAre("Mouse"));
    EXPECT_THAT(shownActions(), ElementsAre("Left Click", "Right Click", "Middle Click", "Forward", "Backward"));
    click("Shortcuts");
    EXPECT_EQ(state().remapCategory.get(), "Shortcuts");
    EXPECT_THAT(shownActions(),
                ElementsAre("Ctrl + C (Copy)", "Ctrl + V (Paste)", "Ctrl + X (Cut)", "Ctrl + Z (Undo)",
                            "Ctrl + S (Save)", "Ctrl + A (Select All)", "Show Desktop (Win+D)", "Disable Key"));
    click("Function (F1-F12)");
    EXPECT_EQ(state().remapCategory.get(), "Function");
    EXPECT_THAT(shownActions(), ElementsAre("F1", "F2", "F3", "F4", "F5", "F6", "F7", "F8", "F9", "F10", "F11", "F12"));
    click("Letters & Numbers");
    EXPECT_EQ(state().remapCategory.get(), "Letters");
    const auto keys = shownActions();
    ASSERT_EQ(keys.size(), 36U);
    EXPECT_EQ(keys.front(), "A");
    EXPECT_EQ(keys.at(25), "Z");
    EXPECT_EQ(keys.at(26), "1");
    EXPECT_EQ(keys.back(), "0");
    EXPECT_THAT(commandsSent(), IsEmpty());
}

TEST_F(RemapPage, ACardBindsTheSelectedKey) {
    clickKey("CapsLock");
    EXPECT_THAT(panelTexts(), ElementsAre("TARGET SWITCH: ", "CapsLock (Matrix Pos 3)", "Default Mapping"));
    click("Mute");
    EXPECT_EQ(codeInKeyboard(3), Bytes({0x02, 0x00, 0x00, 0xE2}));
    EXPECT_EQ(key("CapsLock").remapLabel, "Mute");
    EXPECT_THAT(panelTexts(), ElementsAre("TARGET SWITCH: ", "CapsLock (Matrix Pos 3)", "Current: Mute"));
    EXPECT_EQ(statusLine().text(), "Key position 3 programmed");
}

TEST_F(RemapPage, WithoutAKeyboardThePagesTextStays) {
    hid.unplugAll();
    time.settle();
    clickKey("CapsLock");
    click("Mute");
    EXPECT_EQ(statusLine().text(), "Assigned switch 'CapsLock' -> Mute");
    EXPECT_EQ(key("CapsLock").remapLabel, "Mute");
}

TEST_F(RemapPage, WithoutASelectionACardAsksForOne) {
    click("Mute");
    EXPECT_EQ(statusLine().text(), "Please select a switch on the keyboard first.");
    EXPECT_THAT(commandsSent(), IsEmpty());
    EXPECT_THAT(selectedControls(), ElementsAre("Multimedia"));
}

TEST_F(RemapPage, AFunctionKeyBindsItsUsage) {
    clickKey("A");
    click("Function (F1-F12)");
    click("F5");
    EXPECT_EQ(codeInKeyboard(9), Bytes({0x00, 0x00, 0x00, 0x3E}));
    EXPECT_EQ(key("A").remapLabel, "F5");
    click("F12");
    EXPECT_EQ(codeInKeyboard(9), Bytes({0x00, 0x00, 0x00, 0x45}));
}

TEST_F(RemapPage, ALetterAndADigitBindTheirUsages) {
    clickKey("A");
    click("Letters & Numbers");
    click("Z");
    EXPECT_EQ(codeInKeyboard(9), Bytes({0x00, 0x00, 0x00, 0x1D}));
    EXPECT_EQ(key("A").remapLabel, "Z");
    click("0");
    EXPECT_EQ(codeInKeyboard(9), Bytes({0x00, 0x00, 0x00, 0x27}));
    EXPECT_EQ(key("A").remapLabel, "0");
}

TEST_F(RemapPage, AMouseButtonAndAShortcutBindTheirCodes) {
    clickKey("PgUp");
    click("Mouse");
    click("Forward");
    EXPECT_EQ(codeInKeyboard(93), Bytes({0x01, 0x05, 0x01, 0x00}));
    click("Shortcuts");
    click("Ctrl + A (Select All)");
    EXPECT_EQ(codeInKeyboard(93), Bytes({0x00, 0x01, 0x04, 0x00}));
}

TEST_F(RemapPage, ADisabledKeySaysSo) {
    clickKey("Q");
    click("Shortcuts");
    click("Disable Key");
    EXPECT_EQ(codeInKeyboard(8), Bytes({0x00, 0x00, 0x00, 0x00}));
    EXPECT_EQ(panelTexts().back(), "Current: Disable Key");
    EXPECT_THAT(selectedControls(), ElementsAre("Shortcuts", "Disable Key"));
}

TEST_F(RemapPage, TheTargetIsTheFirstSelectedKeyInTheLayoutAndItIsTheOneThatIsBound) {
    clickKey("9");
    clickKey("2", Qt::ShiftModifier);
    EXPECT_EQ(panelTexts().at(1), "2 (Matrix Pos 13)");
    click("Stop");
    EXPECT_EQ(key("2").remapLabel, "Stop");
    EXPECT_EQ(key("9").remapLabel, std::nullopt);
    EXPECT_EQ(panelTexts().back(), "Current: Stop");
}

TEST_F(RemapPage, ACodeWithoutANameIsShownByItsBytes) {
    auto keys = keyboard().keys.get();
    keys.front().remapBytes = Bytes{0x02, 0x00, 0x00, 0xE2};
    keyboard().keys.set(keys);
    clickKey("Esc");
    EXPECT_EQ(panelTexts().back(), "Current: [0x02, 0x00, 0x00, 0xE2]");
    EXPECT_THAT(selectedControls(), ElementsAre("Multimedia", "Mute"));
}

TEST_F(RemapPage, TheActionOfTheTargetIsMarkedWhereverItIs) {
    clickKey("A");
    click("Mute");
    EXPECT_THAT(selectedControls(), ElementsAre("Multimedia", "Mute"));
    click("Volume +");
    EXPECT_THAT(selectedControls(), ElementsAre("Multimedia", "Volume +"));
    click("Mouse");
    EXPECT_THAT(selectedControls(), ElementsAre("Mouse"));
    click("Multimedia");
    clickKey("S");
    EXPECT_THAT(selectedControls(), ElementsAre("Multimedia"));
    clickKey("A");
    EXPECT_THAT(selectedControls(), ElementsAre("Multimedia", "Volume +"));
}

TEST_F(RemapPage, SavingSendsTheBoundKeysAgain) {
    clickKey("A");
    click("Mute");
    clickKey("S");
    click("Stop");
    firmware.forgetWrites();
    recordStatuses();
    click("Save Key Matrix");
    EXPECT_THAT(statuses(), ElementsAre("2 key assignments saved to keyboard memory.", "Key position 9 programmed",
                                        "Key position 15 programmed"));
    EXPECT_THAT(commandsSent(), ElementsAre(0x03, 0x03));
}

TEST_F(RemapPage, ResettingShowsTheDefaultMappingAgain) {
    clickKey("A");
    click("Mute");
    recordStatuses();
    click("Reset to Defaults");
    ASSERT_FALSE(statuses().empty());
    EXPECT_EQ(statuses().front(), "All 67 switches restored to factory default mappings.");
    EXPECT_EQ(panelTexts().back(), "Default Mapping");
    EXPECT_THAT(selectedControls(), ElementsAre("Multimedia"));
    EXPECT_EQ(codeInKeyboard(9), Bytes({0x00, 0x00, 0x00, 0x41}));
    firmware.forgetWrites();
    click("Save Key Matrix");
    EXPECT_THAT(commandsSent(), IsEmpty());
    EXPECT_EQ(statusLine().text(), "0 key assignments saved to keyboard memory.");
}

TEST_F(RemapPage, LeavingThePageAndReturningLosesNothing) {
    clickKey("A");
    click("Shortcuts");
    click("Disable Key");
    click("Lighting Effect");
    click("Key Assignment");
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_THAT(selectedControls(), ElementsAre("Shortcuts", "Disable Key"));
    EXPECT_EQ(panelTexts().back(), "Current: Disable Key");
}

TEST_F(RemapPage, ACategoryOfAnotherNameShowsNoActions) {
    state().remapCategory.set("Nonsense");
    time.settle();
    EXPECT_THAT(selectedControls(), IsEmpty());
    EXPECT_THAT(shownActions(), IsEmpty());
}

TEST_F(RemapPage, HoldsTheCatalogueInTheOrderInWhichItIsShown) {
    const auto& page = only<KeyRemapView>();
    EXPECT_EQ(page.mediaActions.size(), 10U);
    EXPECT_EQ(page.systemActions.size(), 8U);
    EXPECT_EQ(page.mouseActions.size(), 5U);
    EXPECT_EQ(KeyRemapView::basicLetters.size(), 26U);
    EXPECT_EQ(KeyRemapView::basicNumbers.size(), 10U);
    EXPECT_EQ(page.mouseActions.at(3).name, "Forward");
}

}  // namespace
}  // namespace lumo
