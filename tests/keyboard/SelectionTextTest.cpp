#include "keyboard/SelectionText.h"

#include <gtest/gtest.h>

#include "keyboard/KeyboardLayout.h"

namespace lumo {
namespace {

std::string textFor(const std::set<std::string>& ids) { return selectionText(defaultLayout(), ids); }

TEST(SelectionText, WithoutASelectionItAsksForOne) {
    EXPECT_EQ(textFor({}), "Click any key on the keyboard to customize lighting or remap function.");
}

TEST(SelectionText, OneKeyIsNamedWithItsCodeAndLed) {
    EXPECT_EQ(textFor({"K1"}), "Selected: Esc 0x1B • LED Index: 0");
    EXPECT_EQ(textFor({"K31"}), "Selected: CapsLock 0x14 • LED Index: 2");
    EXPECT_EQ(textFor({"K14"}), "Selected: Backspace 0x08 • LED Index: 56");
    EXPECT_EQ(textFor({"K63"}), "Selected: FN 0xFA • LED Index: 45");
}

TEST(SelectionText, SeveralKeysAreCounted) {
    EXPECT_EQ(textFor({"K18", "K32", "K33", "K34"}), "4 of 67 keys selected");
    EXPECT_EQ(textFor({"K2", "K3"}), "2 of 67 keys selected");
}

TEST(SelectionText, TheCountIsAlwaysOf67) { EXPECT_EQ(selectionText({}, {"K2", "K3"}), "2 of 67 keys selected"); }

TEST(SelectionText, AnIdThatNoKeyHasIsCountedAllTheSame) { EXPECT_EQ(textFor({"K99"}), "1 of 67 keys selected"); }

}  // namespace
}  // namespace lumo
