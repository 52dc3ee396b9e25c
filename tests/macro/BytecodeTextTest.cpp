#include "macro/BytecodeText.h"

#include <gtest/gtest.h>

#include <numeric>

#include "device/VexaProtocol.h"
#include "macro/MacroItem.h"

namespace lumo {
namespace {

TEST(BytecodeText, AnEmptyMacroIsEightLinesOfZerosButOne) {
    EXPECT_EQ(bytecodeText(VexaProtocol::compileMacro({})),
              "00: 00 01 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "10: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "20: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "30: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "40: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "50: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "60: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00\n"
              "70: 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00 00");
}

TEST(BytecodeText, EveryByteStandsInItsPlaceInCapitals) {
    MacroImage image{};
    std::iota(image.begin(), image.end(), std::uint8_t{0x80});
    EXPECT_EQ(bytecodeText(image),
              "00: 80 81 82 83 84 85 86 87 88 89 8A 8B 8C 8D 8E 8F\n"
              "10: 90 91 92 93 94 95 96 97 98 99 9A 9B 9C 9D 9E 9F\n"
              "20: A0 A1 A2 A3 A4 A5 A6 A7 A8 A9 AA AB AC AD AE AF\n"
              "30: B0 B1 B2 B3 B4 B5 B6 B7 B8 B9 BA BB BC BD BE BF\n"
              "40: C0 C1 C2 C3 C4 C5 C6 C7 C8 C9 CA CB CC CD CE CF\n"
              "50: D0 D1 D2 D3 D4 D5 D6 D7 D8 D9 DA DB DC DD DE DF\n"
              "60: E0 E1 E2 E3 E4 E5 E6 E7 E8 E9 EA EB EC ED EE EF\n"
              "70: F0 F1 F2 F3 F4 F5 F6 F7 F8 F9 FA FB FC FD FE FF");
}

TEST(BytecodeText, TheStepsOfTheFirstLaunch) {
    const std::string text = bytecodeText(VexaProtocol::compileMacro(initialEditorSteps()));
    EXPECT_EQ(text.substr(0, 51), "00: 00 01 99 57 19 57 9E 53 1E 53 94 41 14 41 00 00");
}

}  // namespace
}  // namespace lumo
