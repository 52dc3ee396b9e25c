// Letters, digits and function keys, and the codes they make.
#include "remap/BasicKeys.h"

#include <gmock/gmock.h>

#include <limits>

#include "remap/RemapCatalog.h"
#include "remap/RemapCategory.h"

namespace lumo {
namespace {

using testing::ElementsAre;

KeyCode codeOf(const auto& keys, std::string_view text) {
    return codeOfUsage(std::ranges::find(keys, text, &BasicKey::text)->usage);
}

TEST(BasicKeys, TheLettersStandInAlphabeticalOrder) {
    std::string letters;
    for (const BasicKey& key : kBasicLetters) letters += key.text;
    EXPECT_EQ(letters, "ABCDEFGHIJKLMNOPQRSTUVWXYZ");
    EXPECT_THAT(codeOf(kBasicLetters, "A"), ElementsAre(0x00, 0x00, 0x00, 0x04));
    EXPECT_THAT(codeOf(kBasicLetters, "M"), ElementsAre(0x00, 0x00, 0x00, 0x10));
    EXPECT_THAT(codeOf(kBasicLetters, "Z"), ElementsAre(0x00, 0x00, 0x00, 0x1D));
}

TEST(BasicKeys, TheDigitsEndWithZero) {
    std::string digits;
    for (const BasicKey& key : kBasicNumbers) digits += key.text;
    EXPECT_EQ(digits, "1234567890");
    EXPECT_THAT(codeOf(kBasicNumbers, "1"), ElementsAre(0x00, 0x00, 0x00, 0x1E));
    EXPECT_THAT(codeOf(kBasicNumbers, "9"), ElementsAre(0x00, 0x00, 0x00, 0x26));
    EXPECT_THAT(codeOf(kBasicNumbers, "0"), ElementsAre(0x00, 0x00, 0x00, 0x27));
}

TEST(BasicKeys, TheFunctionKeysAreF1ToF12) {
    EXPECT_EQ(kFunctionKeyCount, 12);
    EXPECT_EQ(functionKeyName(1), "F1");
    EXPECT_EQ(functionKeyName(12), "F12");
    EXPECT_THAT(codeOfUsage(functionKeyUsage(1)), ElementsAre(0x00, 0x00, 0x00, 0x3A));
    EXPECT_THAT(codeOfUsage(functionKeyUsage(5)), ElementsAre(0x00, 0x00, 0x00, 0x3E));
    EXPECT_THAT(codeOfUsage(functionKeyUsage(12)), ElementsAre(0x00, 0x00, 0x00, 0x45));
}

TEST(BasicKeysDeathTest, AFunctionKeyWhoseUsageIsNoByteEndsTheProcess) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EQ(functionKeyUsage(198), 0xFF);
    EXPECT_DEATH((void)functionKeyUsage(199), "does not fit a byte");
    EXPECT_DEATH((void)functionKeyUsage(-58), "does not fit a byte");
}

TEST(BasicKeys, ALetterIsNotItsShortcut) {
    const auto* const selectAll = std::ranges::find(kSystemActions, "Ctrl + A (Select All)", &RemapAction::name);
    EXPECT_THAT(selectAll->codeBytes, ElementsAre(0x00, 0x01, 0x04, 0x00));
    EXPECT_THAT(codeOf(kBasicLetters, "A"), ElementsAre(0x00, 0x00, 0x00, 0x04));
}

TEST(RemapCategories, AreListedInTheOrderOfTheTabs) {
    std::vector<std::pair<std::string, std::string>> all;
    for (const auto& [key, title] : kRemapCategories) all.emplace_back(key, title);
    EXPECT_THAT(all, ElementsAre(std::pair("Multimedia", "Multimedia"), std::pair("Mouse", "Mouse"),
                                 std::pair("Shortcuts", "Shortcuts"), std::pair("Function", "Function (F1-F12)"),
                                 std::pair("Letters", "Letters & Numbers")));
}

}  // namespace
}  // namespace lumo
