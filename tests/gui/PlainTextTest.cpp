#include "controls/PlainText.h"

#include <gtest/gtest.h>

namespace lumo {
namespace {

TEST(PlainText, LeavesOrdinaryTextAsItIs) {
    EXPECT_EQ(plainText("Vexa Lumo 65 <b>&amp;</b>"), QString("Vexa Lumo 65 <b>&amp;</b>"));
    EXPECT_EQ(plainText("Lumière \xE2\x80\x94 \xE9\x8D\xB5"), QString::fromUtf8("Lumière — 鍵"));
    EXPECT_EQ(plainText(""), QString());
}

TEST(PlainText, DropsControlCharacters) {
    using namespace std::string_view_literals;
    EXPECT_EQ(plainText("a\0b\tc\r\nd\x1B[0m\x7F"sv), "abcd[0m");
    EXPECT_EQ(plainText("a\xC2\x85"
                        "b"),
              "ab");  // the next-line control of the upper half
}

TEST(PlainText, DropsLineAndParagraphSeparators) { EXPECT_EQ(plainText("a\xE2\x80\xA8\xE2\x80\xA9z"), "az"); }

TEST(PlainText, DropsWhatTurnsTheDirectionOfWriting) {
    EXPECT_EQ(plainText("\xE2\x80\xAE\xE2\x80\xAB\xE2\x81\xA6\xE2\x80\x8F"
                        "txt.exe"),
              "txt.exe");
}

TEST(PlainText, KeepsTheJoinersThatShapeLetters) { EXPECT_EQ(plainText("\xE2\x80\x8C\xE2\x80\x8D").size(), 2); }

TEST(PlainText, ReplacesBytesThatAreNoUtf8) { EXPECT_EQ(plainText("a\xFFz"), "a\xEF\xBF\xBDz"); }

TEST(PlainText, CutsTextThatHasNoEnd) {
    EXPECT_EQ(plainText(std::string(1024, 'x')), QString(1024, 'x'));
    EXPECT_EQ(plainText(std::string(1025, 'x')), QString(1024, 'x') + QChar(0x2026));
}

}  // namespace
}  // namespace lumo
