// What the bundle tells the system about itself.
#include <gtest/gtest.h>

#include <QFile>
#include <QXmlStreamReader>
#include <map>
#include <string>

#include "foundation/Identity.h"

namespace lumo::test {
namespace {

class InfoPlist : public testing::Test {
protected:
    void SetUp() override {
        QFile file(LUMO_BUNDLE "/Contents/Info.plist");
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        QXmlStreamReader xml(&file);
        ASSERT_TRUE(xml.readNextStartElement() && xml.name() == QLatin1String("plist"));
        ASSERT_TRUE(xml.readNextStartElement() && xml.name() == QLatin1String("dict"));
        while (xml.readNextStartElement()) readEntry(xml);
        ASSERT_FALSE(xml.hasError()) << xml.errorString().toStdString();
    }

    /// A text as it is, anything else by the name of its element.
    void readEntry(QXmlStreamReader& xml) {
        ASSERT_EQ(xml.name(), QLatin1String("key"));
        const std::string key = xml.readElementText().toStdString();
        ASSERT_TRUE(xml.readNextStartElement());
        const std::string kind = xml.name().toString().toStdString();
        const std::string text = xml.readElementText().toStdString();
        ASSERT_TRUE(entries.emplace(key, kind == "string" ? text : '<' + kind + '>').second) << key;
    }

    std::map<std::string, std::string> entries;
};

TEST_F(InfoPlist, TellsTheSystemAllThatItAsks) {
    const std::map<std::string, std::string> expected{
        {"CFBundleDevelopmentRegion", "en"},
        {"CFBundleExecutable", "vexa-lumo-65"},
        {"CFBundleIconFile", "vexa-lumo-65.icns"},
        {"CFBundleIdentifier", "com.vexalumo.lumo65"},
        {"CFBundleInfoDictionaryVersion", "6.0"},
        {"CFBundleName", "Vexa Lumo 65"},
        {"CFBundlePackageType", "APPL"},
        {"CFBundleShortVersionString", LUMO_VERSION},
        {"CFBundleVersion", LUMO_VERSION},
        {"LSApplicationCategoryType", "public.app-category.utilities"},
        {"LSMinimumSystemVersion", "12.0"},
        {"NSHighResolutionCapable", "<true>"},
        {"NSMicrophoneUsageDescription",
         "Asked for by the music page. Nothing is recorded: its rhythm comes from the program itself."},
        {"NSPrincipalClass", "NSApplication"},
    };
    EXPECT_EQ(entries, expected);
}

TEST_F(InfoPlist, GoesByTheNamesThatTheProgramGoesBy) {
    EXPECT_EQ(entries["CFBundleIdentifier"], kIdentifier);
    EXPECT_EQ(entries["CFBundleExecutable"], kProgramName);
}

}  // namespace
}  // namespace lumo::test
