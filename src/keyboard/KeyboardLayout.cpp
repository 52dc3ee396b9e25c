#include "keyboard/KeyboardLayout.h"

#include <algorithm>
#include <array>
#include <iterator>
#include <string_view>

namespace lumo {
namespace {

struct LayoutRow {
    int kid;
    std::string_view label;
    std::string_view fnLabel;
    std::uint8_t hidCode;
    int ledIndex;
    int matrixPos;
    int bank;
    int bankOffset;
    int x;
    int y;
    int width;
    int height;
};

// The places are the drawing's own measurements: rows and steps differ by a point or two, and stay so.
constexpr auto kLayout = std::to_array<LayoutRow>({
    // kid label fnLabel hidCode led matrix bank offset x y width height
    {1, "Esc", "~", 0x1B, 0, 1, 1, 3, 19, 29, 34, 34},
    {2, "1", "F1", 0x31, 5, 7, 1, 21, 56, 29, 34, 34},
    {3, "2", "F2", 0x32, 10, 13, 1, 39, 95, 29, 34, 34},
    {4, "3", "F3", 0x33, 15, 19, 1, 57, 134, 30, 34, 34},
    {5, "4", "F4", 0x34, 19, 25, 1, 75, 173, 30, 34, 34},
    {6, "5", "F5", 0x35, 23, 31, 1, 93, 212, 30, 34, 34},
    {7, "6", "F6", 0x36, 28, 37, 1, 111, 250, 30, 34, 34},
    {8, "7", "F7", 0x37, 32, 43, 1, 129, 289, 30, 34, 34},
    {9, "8", "F8", 0x38, 36, 49, 1, 147, 328, 30, 34, 34},
    {10, "9", "F9", 0x39, 41, 55, 1, 165, 367, 30, 34, 34},
    {11, "0", "F10", 0x30, 46, 61, 1, 183, 406, 30, 34, 34},
    {12, "-", "F11", 0xBD, 51, 67, 2, 9, 445, 30, 34, 34},
    {13, "=", "F12", 0xBB, 54, 73, 2, 27, 484, 30, 34, 34},
    {14, "Backspace", "", 0x08, 56, 79, 2, 45, 521, 30, 73, 34},
    {15, "Delete", "", 0x2E, 63, 92, 2, 84, 598, 69, 34, 34},
    {16, "Tab", "", 0x09, 1, 2, 1, 6, 20, 69, 52, 34},
    {17, "Q", "", 0x51, 6, 8, 1, 24, 77, 69, 34, 34},
    {18, "W", "", 0x57, 11, 14, 1, 42, 115, 69, 34, 34},
    {19, "E", "", 0x45, 16, 20, 1, 60, 154, 69, 34, 34},
    {20, "R", "", 0x52, 20, 26, 1, 78, 192, 69, 34, 34},
    {21, "T", "", 0x54, 24, 32, 1, 96, 231, 69, 34, 34},
    {22, "Y", "", 0x59, 29, 38, 1, 114, 270, 69, 34, 34},
    {23, "U", "", 0x55, 33, 44, 1, 132, 309, 69, 34, 34},
    {24, "I", "", 0x49, 37, 50, 1, 150, 348, 69, 34, 34},
    {25, "O", "", 0x4F, 42, 56, 1, 168, 386, 69, 34, 34},
    {26, "P", "", 0x50, 47, 62, 1, 186, 425, 69, 34, 34},
    {27, "[", "", 0xDB, 52, 68, 2, 12, 463, 69, 34, 34},
    {28, "]", "", 0xDD, 55, 74, 2, 30, 502, 69, 34, 34},
    {29, "\\", "", 0xDC, 57, 80, 2, 48, 540, 69, 54, 34},
    {30, "PgUp", "", 0x21, 64, 93, 2, 87, 598, 106, 34, 34},
    {31, "CapsLock", "", 0x14, 2, 3, 1, 9, 20, 107, 63, 34},
    {32, "A", "", 0x41, 7, 9, 1, 27, 87, 107, 34, 34},
    {33, "S", "", 0x53, 12, 15, 1, 45, 126, 107, 34, 34},
    {34, "D", "", 0x44, 17, 21, 1, 63, 165, 107, 34, 34},
    {35, "F", "", 0x46, 21, 27, 1, 81, 203, 107, 34, 34},
    {36, "G", "", 0x47, 25, 33, 1, 99, 242, 107, 34, 34},
    {37, "H", "", 0x48, 30, 39, 1, 117, 280, 107, 34, 34},
    {38, "J", "", 0x4A, 34, 45, 1, 135, 318, 107, 34, 34},
    {39, "K", "", 0x4B, 38, 51, 1, 153, 358, 107, 34, 34},
    {40, "L", "", 0x4C, 43, 57, 1, 171, 396, 107, 34, 34},
    {41, ";", "", 0xBA, 48, 63, 1, 189, 435, 107, 34, 34},
    {42, "'", "", 0xDE, 53, 69, 2, 15, 473, 107, 34, 34},
    {43, "Enter", "", 0x0D, 58, 81, 2, 51, 513, 107, 80, 34},
    {44, "PgDn", "", 0x22, 65, 94, 2, 90, 598, 145, 34, 34},
    {45, "LShift", "", 0xA0, 3, 4, 1, 12, 20, 146, 80, 34},
    {46, "Z", "", 0x5A, 8, 10, 1, 30, 106, 146, 34, 34},
    {47, "X", "", 0x58, 13, 16, 1, 48, 145, 146, 34, 34},
    {48, "C", "", 0x43, 18, 22, 1, 66, 183, 146, 34, 34},
    {49, "V", "", 0x56, 22, 28, 1, 84, 221, 146, 34, 34},
    {50, "B", "", 0x42, 26, 34, 1, 102, 260, 146, 34, 34},
    {51, "N", "", 0x4E, 31, 40, 1, 120, 299, 146, 34, 34},
    {52, "M", "", 0x4D, 35, 46, 1, 138, 338, 146, 34, 34},
    {53, ",", "", 0xBC, 39, 52, 1, 156, 375, 146, 34, 34},
    {54, ".", "", 0xBE, 44, 58, 1, 174, 415, 146, 34, 34},
    {55, "/", "", 0xBF, 49, 64, 2, 0, 454, 146, 34, 34},
    {56, "RShift", "", 0xA1, 59, 82, 2, 54, 491, 146, 65, 34},
    {57, "Up", "", 0x26, 61, 88, 2, 72, 559, 145, 34, 34},
    {58, "LCtrl", "", 0xA2, 4, 5, 1, 15, 20, 185, 41, 34},
    {59, "LWin", "", 0x5B, 9, 11, 1, 33, 69, 185, 41, 34},
    {60, "LAlt", "", 0xA4, 14, 17, 1, 51, 117, 185, 41, 34},
    {61, "Space", "", 0x20, 27, 35, 1, 105, 166, 186, 232, 34},
    {62, "RAlt", "", 0xA5, 40, 53, 1, 159, 406, 185, 34, 34},
    {63, "FN", "", 0xFA, 45, 59, 1, 177, 444, 185, 34, 34},
    {64, "Left", "", 0x25, 60, 83, 2, 57, 523, 184, 34, 34},
    {65, "Down", "", 0x28, 62, 89, 2, 75, 560, 184, 34, 34},
    {66, "Right", "", 0x27, 66, 95, 2, 93, 598, 184, 34, 34},
    {67, "RCtrl", "", 0xA3, 50, 65, 2, 3, 482, 185, 34, 34},
});

constexpr std::int64_t kBankSize = 192;  // bytes: the controller's table of 3 bytes a matrix place, in two halves

constexpr bool bankFollowsFromMatrix(const LayoutRow& row) {
    const std::int64_t place = 3 * row.matrixPos;
    return place < kBankSize ? row.bank == 1 && row.bankOffset == place
                             : row.bank == 2 && row.bankOffset == place - kBankSize;
}

constexpr bool everyLedOnce() {
    for (int led = 0; led < static_cast<int>(kLayout.size()); ++led) {
        if (std::ranges::count(kLayout, led, &LayoutRow::ledIndex) != 1) return false;
    }
    return true;
}

static_assert(kLayout.size() == 67);
static_assert(std::ranges::all_of(kLayout, bankFollowsFromMatrix));
static_assert(everyLedOnce());

KeyCap keyCapOf(const LayoutRow& row) {
    return {.id = "K" + std::to_string(row.kid),
            .kid = row.kid,
            .label = std::string(row.label),
            .fnLabel = std::string(row.fnLabel),
            .hidCode = row.hidCode,
            .ledIndex = row.ledIndex,
            .matrixPos = row.matrixPos,
            .bank = row.bank,
            .bankOffset = row.bankOffset,
            .x = static_cast<double>(row.x),
            .y = static_cast<double>(row.y),
            .width = static_cast<double>(row.width),
            .height = static_cast<double>(row.height),
            .customColor = kDefaultColor,
            .remapCode = std::nullopt,
            .remapBytes = std::nullopt,
            .remapLabel = std::nullopt};
}

}  // namespace

std::vector<KeyCap> defaultLayout() {
    std::vector<KeyCap> keys;
    keys.reserve(kLayout.size());
    std::ranges::transform(kLayout, std::back_inserter(keys), keyCapOf);
    return keys;
}

}  // namespace lumo
