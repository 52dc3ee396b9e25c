#include "device/LightingModes.h"

#include <gtest/gtest.h>

#include "device/VexaProtocol.h"
#include "keyboard/EffectCatalog.h"

namespace lumo {
namespace {

TEST(LightingModes, TheCatalogueIsTheProductsTable) {
    struct Row {
        int id;
        const char* name;
        int hwId;
        const char* flags;  // speed, brightness, colour, per key, stream
    };
    const Row rows[] = {
        {0, "LED OFF", 0x00, "-----"},
        {1, "Fixed_on (Static)", 0x01, "-yy--"},
        {2, "Respire (Breathing)", 0x03, "yyy--"},
        {3, "Rainbow (Cycle)", 0x02, "yy---"},
        {4, "Flash_away (Stream)", 0x13, "yyy--"},
        {5, "Raindrops", 0x0F, "yyy--"},
        {6, "Rainbow_wheel", 0x0D, "yy---"},
        {7, "Ripples_shining", 0x14, "yyy--"},
        {8, "Stars_twinkle", 0x10, "yyy--"},
        {9, "Shadow_disappear", 0x12, "yyy--"},
        {10, "Retro_snake", 0x05, "yy---"},
        {11, "Neon_stream", 0x07, "yy---"},
        {12, "Reaction", 0x11, "yyy--"},
        {13, "Sine_wave", 0x0C, "yyy--"},
        {14, "Retinue scanning", 0x08, "yyy--"},
        {15, "Rotating windmill", 0x1C, "yy---"},
        {16, "Colorful waterfall", 0x1E, "yyy--"},
        {17, "Blossoming", 0x0E, "yyy--"},
        {18, "Rotating storm", 0x1D, "yyy--"},
        {21, "Self-define (Per-Key RGB)", 0x1D, "-yyy-"},
    };
    ASSERT_EQ(VexaProtocol::lightingModes.size(), std::size(rows));
    for (std::size_t i = 0; i < std::size(rows); ++i) {
        const LightingModeInfo& mode = VexaProtocol::lightingModes[i];
        EXPECT_EQ(mode.id, rows[i].id);
        EXPECT_EQ(mode.name, rows[i].name);
        EXPECT_EQ(mode.hwId, rows[i].hwId) << mode.name;
        const std::string flags{mode.supportsSpeed ? 'y' : '-', mode.supportsBrightness ? 'y' : '-',
                                mode.supportsCustomColor ? 'y' : '-', mode.isPerKey ? 'y' : '-',
                                mode.isStreaming ? 'y' : '-'};
        EXPECT_EQ(flags, rows[i].flags) << mode.name;
    }
}

TEST(LightingModes, NineteenAndTwentyAreNotFound) {
    EXPECT_EQ(findLightingMode(19), nullptr);
    EXPECT_EQ(findLightingMode(20), nullptr);
}

TEST(LightingModes, RotatingStormAndThePerKeyEffectShareTheirFirmwareNumber) {
    EXPECT_EQ(findLightingMode(18)->hwId, 0x1D);
    EXPECT_EQ(findLightingMode(21)->hwId, 0x1D);
    EXPECT_NE(*findLightingMode(18), *findLightingMode(21));
}

TEST(LightingModes, EqualityAndHashLookAtEveryField) {
    const LightingModeInfo original = *findLightingMode(5);
    LightingModeInfo changed[] = {original, original, original, original, original, original, original, original};
    changed[0].id = 50;
    changed[1].name = "Rain";
    changed[2].hwId = 50;
    changed[3].supportsSpeed = false;
    changed[4].supportsBrightness = false;
    changed[5].supportsCustomColor = false;
    changed[6].isPerKey = true;
    changed[7].isStreaming = true;
    const std::hash<LightingModeInfo> hash;
    EXPECT_EQ(hash(original), hash(LightingModeInfo(original)));
    for (const auto& mode : changed) {
        EXPECT_NE(mode, original);
        EXPECT_NE(hash(mode), hash(original));
    }
}

TEST(EffectCatalog, EndsWithThePerKeyEffectAndLedOff) {
    ASSERT_EQ(kEffectCatalog.size(), 20U);
    for (int i = 0; i < 18; ++i) EXPECT_EQ(kEffectCatalog[static_cast<std::size_t>(i)].number, i + 1);
    EXPECT_EQ(kEffectCatalog[0].name, "Fixed_on (Static)");
    EXPECT_EQ(kEffectCatalog[18].number, 21);
    EXPECT_EQ(kEffectCatalog[18].name, "Self-define (Per-Key RGB)");
    EXPECT_EQ(kEffectCatalog[19].number, 0);
    EXPECT_EQ(kEffectCatalog[19].name, "LED OFF");
}

TEST(EffectCatalog, NamesAreThoseOfTheCatalogue) {
    for (const EffectEntry& entry : kEffectCatalog) EXPECT_EQ(entry.name, findLightingMode(entry.number)->name);
}

}  // namespace
}  // namespace lumo
