#include "platform/linux/UdevRule.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <fstream>
#include <iterator>
#include <regex>
#include <set>
#include <string>

namespace lumo {
namespace {

using Texts = std::set<std::string>;

std::string textOf(const char* path) {
    std::ifstream file(path);
    return {std::istreambuf_iterator<char>(file), {}};
}

std::string installedFile() { return textOf(LUMO_RULE_FILE); }

std::string upper(std::string text) {
    std::transform(text.begin(), text.end(), text.begin(), [](unsigned char c) { return std::toupper(c); });
    return text;
}

/// "VENDOR:PRODUCT" of every match of a pattern with these two groups.
Texts idsIn(const std::string& text, const std::regex& pattern) {
    Texts ids;
    for (std::sregex_iterator at(text.begin(), text.end(), pattern); at != std::sregex_iterator(); ++at)
        ids.insert(upper((*at)[1].str() + ":" + (*at)[2].str()));
    return ids;
}

Texts conditionsOf(const std::string& line) {
    const std::regex comma(", *");
    return {std::sregex_token_iterator(line.begin(), line.end(), comma, -1), {}};
}

TEST(UdevRule, IsOneLine) { EXPECT_EQ(kUdevRule.find('\n'), std::string_view::npos); }

TEST(UdevRule, StandsInTheReadmeWordForWord) {
    EXPECT_NE(textOf(LUMO_README_FILE).find("\n" + std::string(kUdevRule) + "\n"), std::string::npos);
}

TEST(UdevRule, LiesInAFileThatComesBeforeTheRuleThatGrantsAccess) {
    const std::string_view name = kUdevRuleFile.substr(kUdevRuleFile.rfind('/') + 1);
    EXPECT_LT(name, "73");
}

TEST(UdevRule, NamesTheKeyboardAndItsReceiverAsTheInstalledFileDoes) {
    const Texts both{"258A:010C", "3554:FA09"};
    EXPECT_EQ(idsIn(std::string(kUdevRule), std::regex("/0003:(\\w{4}):(\\w{4})\\.\\*")), both);
    const std::regex inFile("\nENV\\{ID_VENDOR_ID\\}==\"(\\w{4})\", ENV\\{ID_MODEL_ID\\}==\"(\\w{4})\"");
    EXPECT_EQ(idsIn(installedFile(), inFile), both);
}

TEST(UdevRule, OpensOnlyWhatCannotType) {
    const Texts conditions = conditionsOf(std::string(kUdevRule));
    for (const char* const one : {"ATTRS{bInterfaceProtocol}==\"00\"", "TEST!=\"device/input\"", "TAG+=\"uaccess\""})
        EXPECT_TRUE(conditions.contains(one)) << one;
}

TEST(InstalledUdevRule, OpensOnlyTheInterfaceThatIsFoundToTakeTheConfiguration) {
    const std::string file = installedFile();
    const std::regex grant("\n([^#\n]*TAG\\+=\"uaccess\"[^\n]*)");
    const Texts wanted{"ENV{VEXA_LUMO_65_INTERFACE}==\"configuration\"", "TEST!=\"device/input\"", "TAG+=\"uaccess\""};
    std::sregex_iterator found(file.begin(), file.end(), grant);
    ASSERT_NE(found, std::sregex_iterator());
    EXPECT_EQ(conditionsOf((*found)[1]), wanted);
    EXPECT_EQ(++found, std::sregex_iterator());  // nothing else grants anything
}

TEST(InstalledUdevRule, AsksTheInstalledProgramByItsNameAlone) {  // udev then looks where the package puts it
    EXPECT_NE(installedFile().find("\nIMPORT{program}=\"vexa-lumo-65-interface $sys$devpath\"\n"), std::string::npos);
}

}  // namespace
}  // namespace lumo
