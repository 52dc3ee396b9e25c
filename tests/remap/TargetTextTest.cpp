#include "remap/TargetText.h"

#include <gtest/gtest.h>

namespace lumo {
namespace {

KeyCap capsLock() {
    KeyCap key;
    key.label = "CapsLock";
    key.matrixPos = 3;
    return key;
}

TEST(TargetText, NamesTheKeyAndItsPlaceInTheMatrix) { EXPECT_EQ(targetName(capsLock()), "CapsLock (Matrix Pos 3)"); }

TEST(TargetText, AKeyThatIsNotBoundHasItsDefaultMapping) {
    EXPECT_EQ(currentMapping(capsLock()), "Default Mapping");
    KeyCap key = capsLock();
    key.remapCode = 0x12;
    EXPECT_EQ(currentMapping(key), "Default Mapping");
}

TEST(TargetText, ABoundKeyShowsTheActionsName) {
    KeyCap key = capsLock();
    key.remapBytes = std::vector<std::uint8_t>{0x02, 0x00, 0x00, 0xE2};
    key.remapLabel = "Mute";
    EXPECT_EQ(currentMapping(key), "Current: Mute");
}

TEST(TargetText, ACodeWithoutANameIsShownByteByByte) {
    KeyCap key = capsLock();
    key.remapBytes = std::vector<std::uint8_t>{0x02, 0x00, 0x01, 0xAF};
    EXPECT_EQ(currentMapping(key), "Current: [0x02, 0x00, 0x01, 0xAF]");
    key.remapBytes = std::vector<std::uint8_t>{};
    EXPECT_EQ(currentMapping(key), "Current: []");
}

TEST(TargetText, WithoutAKeyItAsksForOne) {
    EXPECT_EQ(kTargetHeading, "TARGET SWITCH: ");
    EXPECT_EQ(kTargetPrompt, "Select a switch on the keyboard above, then click an action below to bind.");
}

}  // namespace
}  // namespace lumo
