// The layout, row by row as it was measured on the keyboard.
#include "keyboard/KeyboardLayout.h"

#include <gtest/gtest.h>

#include <set>

namespace lumo {
namespace {

struct Row {
    const char* id;
    const char* label;
    const char* fnLabel;
    int hidCode, led, matrix, bank, offset, x, y, width, height;
};

const Row kRows[] = {
    {"K1", "Esc", "~", 0x1B, 0, 1, 1, 3, 19, 29, 34, 34},
    {"K2", "1", "F1", 0x31, 5, 7, 1, 21, 56, 29, 34, 34},
    {"K3", "2", "F2", 0x32, 10, 13, 1, 39, 95, 29, 34, 34},
    {"K4", "3", "F3", 0x33, 15, 19, 1, 57, 134, 30, 34, 34},
    {"K5", "4", "F4", 0x34, 19, 25, 1, 75, 173, 30, 34, 34},
    {"K6", "5", "F5", 0x35, 23, 31, 1, 93, 212, 30, 34, 34},
    {"K7", "6", "F6", 0x36, 28, 37, 1, 111, 250, 30, 34, 34},
    {"K8", "7", "F7", 0x37, 32, 43, 1, 129, 289, 30, 34, 34},
    {"K9", "8", "F8", 0x38, 36, 49, 1, 147, 328, 30, 34, 34},
    {"K10", "9", "F9", 0x39, 41, 55, 1, 165, 367, 30, 34, 34},
    {"K11", "0", "F10", 0x30, 46, 61, 1, 183, 406, 30, 34, 34},
    {"K12", "-", "F11", 0xBD, 51, 67, 2, 9, 445, 30, 34, 34},
    {"K13", "=", "F12", 0xBB, 54, 73, 2, 27, 484, 30, 34, 34},
    {"K14", "Backspace", "", 0x08, 56, 79, 2, 45, 521, 30, 73, 34},
    {"K15", "Delete", "", 0x2E, 63, 92, 2, 84, 598, 69, 34, 34},
    {"K16", "Tab", "", 0x09, 1, 2, 1, 6, 20, 69, 52, 34},
    {"K17", "Q", "", 0x51, 6, 8, 1, 24, 77, 69, 34, 34},
    {"K18", "W", "", 0x57, 11, 14, 1, 42, 115, 69, 34, 34},
    {"K19", "E", "", 0x45, 16, 20, 1, 60, 154, 69, 34, 34},
    {"K20", "R", "", 0x52, 20, 26, 1, 78, 192, 69, 34, 34},
    {"K21", "T", "", 0x54, 24, 32, 1, 96, 231, 69, 34, 34},
    {"K22", "Y", "", 0x59, 29, 38, 1, 114, 270, 69, 34, 34},
    {"K23", "U", "", 0x55, 33, 44, 1, 132, 309, 69, 34, 34},
    {"K24", "I", "", 0x49, 37, 50, 1, 150, 348, 69, 34, 34},
    {"K25", "O", "", 0x4F, 42, 56, 1, 168, 386, 69, 34, 34},
    {"K26", "P", "", 0x50, 47, 62, 1, 186, 425, 69, 34, 34},
    {"K27", "[", "", 0xDB, 52, 68, 2, 12, 463, 69, 34, 34},
    {"K28", "]", "", 0xDD, 55, 74, 2, 30, 502, 69, 34, 34},
    {"K29", "\\", "", 0xDC, 57, 80, 2, 48, 540, 69, 54, 34},
    {"K30", "PgUp", "", 0x21, 64, 93, 2, 87, 598, 106, 34, 34},
    {"K31", "CapsLock", "", 0x14, 2, 3, 1, 9, 20, 107, 63, 34},
    {"K32", "A", "", 0x41, 7, 9, 1, 27, 87, 107, 34, 34},
    {"K33", "S", "", 0x53, 12, 15, 1, 45, 126, 107, 34, 34},
    {"K34", "D", "", 0x44, 17, 21, 1, 63, 165, 107, 34, 34},
    {"K35", "F", "", 0x46, 21, 27, 1, 81, 203, 107, 34, 34},
    {"K36", "G", "", 0x47, 25, 33, 1, 99, 242, 107, 34, 34},
    {"K37", "H", "", 0x48, 30, 39, 1, 117, 280, 107, 34, 34},
    {"K38", "J", "", 0x4A, 34, 45, 1, 135, 318, 107, 34, 34},
    {"K39", "K", "", 0x4B, 38, 51, 1, 153, 358, 107, 34, 34},
    {"K40", "L", "", 0x4C, 43, 57, 1, 171, 396, 107, 34, 34},
    {"K41", ";", "", 0xBA, 48, 63, 1, 189, 435, 107, 34, 34},
    {"K42", "'", "", 0xDE, 53, 69, 2, 15, 473, 107, 34, 34},
    {"K43", "Enter", "", 0x0D, 58, 81, 2, 51, 513, 107, 80, 34},
    {"K44", "PgDn", "", 0x22, 65, 94, 2, 90, 598, 145, 34, 34},
    {"K45", "LShift", "", 0xA0, 3, 4, 1, 12, 20, 146, 80, 34},
    {"K46", "Z", "", 0x5A, 8, 10, 1, 30, 106, 146, 34, 34},
    {"K47", "X", "", 0x58, 13, 16, 1, 48, 145, 146, 34, 34},
    {"K48", "C", "", 0x43, 18, 22, 1, 66, 183, 146, 34, 34},
    {"K49", "V", "", 0x56, 22, 28, 1, 84, 221, 146, 34, 34},
    {"K50", "B", "", 0x42, 26, 34, 1, 102, 260, 146, 34, 34},
    {"K51", "N", "", 0x4E, 31, 40, 1, 120, 299, 146, 34, 34},
    {"K52", "M", "", 0x4D, 35, 46, 1, 138, 338, 146, 34, 34},
    {"K53", ",", "", 0xBC, 39, 52, 1, 156, 375, 146, 34, 34},
    {"K54", ".", "", 0xBE, 44, 58, 1, 174, 415, 146, 34, 34},
    {"K55", "/", "", 0xBF, 49, 64, 2, 0, 454, 146, 34, 34},
    {"K56", "RShift", "", 0xA1, 59, 82, 2, 54, 491, 146, 65, 34},
    {"K57", "Up", "", 0x26, 61, 88, 2, 72, 559, 145, 34, 34},
    {"K58", "LCtrl", "", 0xA2, 4, 5, 1, 15, 20, 185, 41, 34},
    {"K59", "LWin", "", 0x5B, 9, 11, 1, 33, 69, 185, 41, 34},
    {"K60", "LAlt", "", 0xA4, 14, 17, 1, 51, 117, 185, 41, 34},
    {"K61", "Space", "", 0x20, 27, 35, 1, 105, 166, 186, 232, 34},
    {"K62", "RAlt", "", 0xA5, 40, 53, 1, 159, 406, 185, 34, 34},
    {"K63", "FN", "", 0xFA, 45, 59, 1, 177, 444, 185, 34, 34},
    {"K64", "Left", "", 0x25, 60, 83, 2, 57, 523, 184, 34, 34},
    {"K65", "Down", "", 0x28, 62, 89, 2, 75, 560, 184, 34, 34},
    {"K66", "Right", "", 0x27, 66, 95, 2, 93, 598, 184, 34, 34},
    {"K67", "RCtrl", "", 0xA3, 50, 65, 2, 3, 482, 185, 34, 34},
};

TEST(KeyboardLayout, IsTheMeasuredTable) {
    const auto keys = defaultLayout();
    ASSERT_EQ(keys.size(), 67U);
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const KeyCap& key = keys[i];
        const Row& row = kRows[i];
        EXPECT_EQ(key.id, row.id);
        EXPECT_EQ(key.kid, static_cast<std::int64_t>(i + 1));
        EXPECT_EQ(key.label, row.label) << row.id;
        EXPECT_EQ(key.fnLabel, row.fnLabel) << row.id;
        EXPECT_EQ(key.hidCode, row.hidCode) << row.id;
        EXPECT_EQ(key.ledIndex, row.led) << row.id;
        EXPECT_EQ(key.matrixPos, row.matrix) << row.id;
        EXPECT_EQ(key.bank, row.bank) << row.id;
        EXPECT_EQ(key.bankOffset, row.offset) << row.id;
        EXPECT_EQ(key.x, row.x) << row.id;
        EXPECT_EQ(key.y, row.y) << row.id;
        EXPECT_EQ(key.width, row.width) << row.id;
        EXPECT_EQ(key.height, row.height) << row.id;
    }
}

TEST(KeyboardLayout, EveryKeyStartsWithTheDefaultColorAndNoRemap) {
    for (const KeyCap& key : defaultLayout()) {
        EXPECT_EQ(key.customColor, kDefaultColor) << key.id;
        EXPECT_EQ(toBytes(key.customColor), (ColorBytes{87, 8, 212})) << key.id;
        EXPECT_FALSE(key.remapCode) << key.id;
        EXPECT_FALSE(key.remapBytes) << key.id;
        EXPECT_FALSE(key.remapLabel) << key.id;
    }
}

TEST(KeyboardLayout, BanksFollowFromTheMatrixPlace) {
    for (const KeyCap& key : defaultLayout()) {
        const auto place = 3 * key.matrixPos;
        EXPECT_EQ(key.bank, place < 192 ? 1 : 2) << key.id;
        EXPECT_EQ(key.bankOffset, place < 192 ? place : place - 192) << key.id;
    }
}

TEST(KeyboardLayout, RightControlAndSlashBeginTheSecondBank) {
    const auto keys = defaultLayout();
    EXPECT_EQ(keys[66].label, "RCtrl");
    EXPECT_EQ(keys[66].bank, 2);
    EXPECT_EQ(keys[66].bankOffset, 3);
    EXPECT_EQ(keys[54].label, "/");
    EXPECT_EQ(keys[54].bank, 2);
    EXPECT_EQ(keys[54].bankOffset, 0);
}

TEST(KeyboardLayout, EveryLedNumberOccursOnce) {
    std::set<std::int64_t> leds;
    for (const KeyCap& key : defaultLayout()) leds.insert(key.ledIndex);
    EXPECT_EQ(leds.size(), 67U);
    EXPECT_EQ(*leds.begin(), 0);
    EXPECT_EQ(*leds.rbegin(), 66);
}

TEST(KeyboardLayout, MatrixPlacesWithoutAKeyStayEmpty) {
    std::set<std::int64_t> empty{6,  12, 18, 23, 24, 29, 30, 36, 41, 42, 47, 48, 54, 60,
                                 66, 70, 71, 72, 75, 76, 77, 78, 84, 85, 86, 87, 90, 91};
    std::set<std::int64_t> unused;
    for (std::int64_t place = 1; place <= 95; ++place) unused.insert(place);
    for (const KeyCap& key : defaultLayout()) unused.erase(key.matrixPos);
    EXPECT_EQ(unused, empty);
}

TEST(KeyboardLayout, NothingLiesAtTheRightEndOfTheTopRow) {
    const double x = 615.0;  // the middle of the right-hand column, level with Backspace
    const double y = 47.0;
    for (const KeyCap& key : defaultLayout()) {
        const bool hit = x >= key.x && x < key.x + key.width && y >= key.y && y < key.y + key.height;
        EXPECT_FALSE(hit) << key.id;
    }
}

TEST(KeyCap, EqualityAndHashLookAtTheIdAlone) {
    auto keys = defaultLayout();
    KeyCap other = keys[0];
    other.customColor = Color{1, 1, 1};
    other.label = "Escape";
    EXPECT_EQ(other, keys[0]);
    EXPECT_EQ(std::hash<KeyCap>{}(other), std::hash<KeyCap>{}(keys[0]));
    EXPECT_NE(keys[0], keys[1]);
}

}  // namespace
}  // namespace lumo
