// The preview's colours and glows, to the last bit. The figures were worked out from the formulas by another program.
#include "keyboard/LightingEngine.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <ostream>
#include <string>

#include "keyboard/KeyOverlayView.h"
#include "keyboard/KeyboardLayout.h"

namespace lumo {
namespace {

constexpr Color kBase{87 / 255.0, 8 / 255.0, 212 / 255.0};
constexpr Color kBlack{};

const KeyCap& keyOf(const std::string& id) {
    static const std::vector<KeyCap> keys = defaultLayout();
    return *std::ranges::find(keys, id, &KeyCap::id);
}

KeyLight lightOf(const std::string& id, std::int64_t mode, double time = 0.0, double brightness = 4.0,
                 double speed = 1.0) {
    return LightingEngine::color(keyOf(id), mode, time, kDefaultColorBytes, brightness, speed);
}

struct Moment {
    std::int64_t mode;
    const char* id;
    double time;
    double brightness;
    double speed;
    Color color;
    double glow;
};

std::ostream& operator<<(std::ostream& out, const Moment& at) {
    return out << "effect " << at.mode << ", key " << at.id << ", time " << at.time;
}

constexpr Moment kMoments[] = {
    // clang-format off
    {2, "K1", 0.0, 4.0, 1.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.525},
    {2, "K36", 12.5, 3.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.46302978492144886},
    {2, "K61", 785000000.25, 4.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.2614637713766238},
    {2, "K15", 785000000.25, 1.0, 0.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.10717061690590993},
    {3, "K1", 0.0, 4.0, 1.0, {1.0, 0.050000000000000044, 0.050000000000000044}, 0.85},
    {3, "K36", 12.5, 3.0, 2.0, {0.16875000000000007, 0.050000000000000044, 1.0}, 0.6375},
    {3, "K61", 785000000.25, 4.0, 2.0, {1.0, 0.5843750000000001, 0.050000000000000044}, 0.85},
    {3, "K15", 785000000.25, 1.0, 0.0, {1.0, 0.22812500000000002, 0.050000000000000044}, 0.2125},
    {4, "K1", 0.0, 4.0, 1.0, {1.0, 0.21661538461538465, 0.050000000000000044}, 0.9},
    {4, "K36", 12.5, 3.0, 2.0, {0.8659038461538457, 0.050000000000000044, 1.0}, 0.675},
    {4, "K61", 785000000.25, 4.0, 2.0, {1.0, 0.75756756067276, 0.050000000000000044}, 0.9},
    {4, "K15", 785000000.25, 1.0, 0.0, {1.0, 0.050000000000000044, 0.7553750067949295}, 0.225},
    {5, "K1", 0.0, 4.0, 1.0, {0.8823529411764707, 1.0, 0.19999999999999996}, 0.08},
    {5, "K36", 12.5, 3.0, 2.0, {1.0, 0.19999999999999996, 0.7647058823529391}, 0.06},
    {5, "K61", 785000000.25, 4.0, 2.0, {0.19999999999999996, 0.2235294117647043, 1.0}, 0.08},
    {5, "K15", 785000000.25, 1.0, 0.0, {1.0, 0.19999999999999996, 0.8352941176470587}, 0.02},
    {6, "K1", 0.0, 4.0, 1.0, {1.0, 0.3203764961769754, 0.050000000000000044}, 0.85},
    {6, "K36", 12.5, 3.0, 2.0, {0.050000000000000044, 0.11474046724884779, 1.0}, 0.6375},
    {6, "K61", 785000000.25, 4.0, 2.0, {1.0, 0.3490159690380097, 0.050000000000000044}, 0.85},
    {6, "K15", 785000000.25, 1.0, 0.0, {0.050000000000000044, 0.9634059920907021, 1.0}, 0.2125},
    {7, "K1", 0.0, 4.0, 1.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.3533576884149351},
    {7, "K36", 12.5, 3.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.09},
    {7, "K61", 785000000.25, 4.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.9211926997265298},
    {7, "K15", 785000000.25, 1.0, 0.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.14011819394278144},
    {8, "K1", 0.0, 4.0, 1.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.5749386048314762},
    {8, "K36", 12.5, 3.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.01734955174108027},
    {8, "K61", 785000000.25, 4.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.07427442831190201},
    {8, "K15", 785000000.25, 1.0, 0.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.19396354871308902},
    {9, "K1", 0.0, 4.0, 1.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.59126999539308},
    {9, "K36", 12.5, 3.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.5563728423581591},
    {9, "K61", 785000000.25, 4.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.19582140265510156},
    {9, "K15", 785000000.25, 1.0, 0.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.216580115829206},
    {10, "K1", 0.0, 4.0, 1.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.59126999539308},
    {10, "K36", 12.5, 3.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.5563728423581591},
    {10, "K61", 785000000.25, 4.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.19582140265510156},
    {10, "K15", 785000000.25, 1.0, 0.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.216580115829206},
    {11, "K1", 0.0, 4.0, 1.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.59126999539308},
    {11, "K36", 12.5, 3.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.5563728423581591},
    {11, "K61", 785000000.25, 4.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.19582140265510156},
    {11, "K15", 785000000.25, 1.0, 0.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.216580115829206},
    {13, "K1", 0.0, 4.0, 1.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.7698160243669846},
    {13, "K36", 12.5, 3.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.6102566426890202},
    {13, "K61", 785000000.25, 4.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.6730255046377779},
    {13, "K15", 785000000.25, 1.0, 0.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.19485092597266257},
    {14, "K1", 0.0, 4.0, 1.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.1},
    {14, "K36", 12.5, 3.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.5745432176423462},
    {14, "K61", 785000000.25, 4.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.1},
    {14, "K15", 785000000.25, 1.0, 0.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.15052066117351864},
    {15, "K1", 0.0, 4.0, 1.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.9645844854931582},
    {15, "K36", 12.5, 3.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.47283984557695535},
    {15, "K61", 785000000.25, 4.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.4630100375197914},
    {15, "K15", 785000000.25, 1.0, 0.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.025},
    {16, "K1", 0.0, 4.0, 1.0, {1.0, 0.7340080971659919, 0.09999999999999998}, 0.85},
    {16, "K36", 12.5, 3.0, 2.0, {1.0, 0.09999999999999998, 0.46072874493926896}, 0.6375},
    {16, "K61", 785000000.25, 4.0, 2.0, {1.0, 0.09999999999999998, 0.6236030340194703}, 0.85},
    {16, "K15", 785000000.25, 1.0, 0.0, {0.12149795889854431, 1.0, 0.09999999999999998}, 0.2125},
    {17, "K1", 0.0, 4.0, 1.0, {1.0, 0.09999999999999998, 0.5611217335702386}, 0.729228047605637},
    {17, "K36", 12.5, 3.0, 2.0, {1.0, 0.09999999999999998, 0.14585214310145844}, 0.15000000000000002},
    {17, "K61", 785000000.25, 4.0, 2.0, {0.09999999999999998, 0.6563082814216614, 1.0}, 0.2},
    {17, "K15", 785000000.25, 1.0, 0.0, {0.9286082059144973, 0.09999999999999998, 1.0}, 0.19772814666371152},
    {18, "K1", 0.0, 4.0, 1.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.646751173663708},
    {18, "K36", 12.5, 3.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.5831871640807946},
    {18, "K61", 785000000.25, 4.0, 2.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.15},
    {18, "K15", 785000000.25, 1.0, 0.0, {0.3411764705882353, 0.03137254901960784, 0.8313725490196079}, 0.0375},
    // clang-format on
};

class MovingEffect : public testing::TestWithParam<Moment> {};

TEST_P(MovingEffect, IsWhatItsFormulaSaysToTheLastBit) {
    const Moment& at = GetParam();
    const KeyLight light = lightOf(at.id, at.mode, at.time, at.brightness, at.speed);
    EXPECT_EQ(light.color.red, at.color.red);
    EXPECT_EQ(light.color.green, at.color.green);
    EXPECT_EQ(light.color.blue, at.color.blue);
    EXPECT_EQ(light.color.opacity, 1.0);
    EXPECT_EQ(light.glowOpacity, at.glow);
}

INSTANTIATE_TEST_SUITE_P(Preview, MovingEffect, testing::ValuesIn(kMoments));

TEST(LightingEngine, OffIsBlackWithoutGlowWhateverTheBrightness) {
    for (const std::int64_t mode : {0, 20}) {
        for (const double brightness : {0.0, 2.0, 4.0}) {
            EXPECT_EQ(lightOf("K1", mode, 1.0, brightness), (KeyLight{kBlack, 0.0}));
        }
    }
}

TEST(LightingEngine, StaticAndUnknownEffectsShowTheBaseColorAtFourFifths) {
    for (const std::int64_t mode : {1, 19, 22, -1, 1000}) {
        EXPECT_EQ(lightOf("K36", mode), (KeyLight{kBase, 0.8})) << mode;
    }
}

TEST(LightingEngine, ReactionWaitsAtLessThanHalf) { EXPECT_EQ(lightOf("K36", 12), (KeyLight{kBase, 0.45})); }

TEST(LightingEngine, TheLowestBrightnessStillGlowsAtATenth) {
    EXPECT_EQ(lightOf("K1", 1, 0.0, 0.0).glowOpacity, 0.1 * 0.8);
    EXPECT_EQ(lightOf("K1", 1, 0.0, 1.0).glowOpacity, 0.25 * 0.8);
}

TEST(LightingEngine, SpeedOneRunsAtTheRealRateAndSpeedZeroAtHalfOfIt) {
    EXPECT_EQ(lightOf("K1", 3, 0.5, 4.0, 1.0), lightOf("K1", 3, 1.0, 4.0, 0.0));
    EXPECT_EQ(lightOf("K1", 3, 1.0, 4.0, 1.0).color, Color::fromHsb(0.25, 0.95, 1.0));
}

TEST(LightingEngine, RaindropsAreFaintUpToTheirThresholdAndFullAtTheCrest) {
    const auto& key = keyOf("K1");
    const auto glowAt = [&key](double phase) {
        return LightingEngine::color(key, 5, (phase - 37.0) / 3.0, {}, 4.0, 1.0).glowOpacity;
    };
    EXPECT_EQ(glowAt(0.7), 0.08);  // sine 0.644
    EXPECT_GT(glowAt(0.72), 0.0);  // sine 0.659
    EXPECT_LT(glowAt(0.72), 0.08);
    EXPECT_DOUBLE_EQ(glowAt(1.5707963267948966), 1.0);
}

TEST(LightingEngine, TheScanLeavesKeysFurtherThan80PointsAtATenth) {
    // At time 0 the line stands in the middle, at 325 points.
    EXPECT_EQ(lightOf("K36", 14).glowOpacity, 0.1);                                 // x = 242
    EXPECT_EQ(lightOf("K37", 14).glowOpacity, 1.0 - 45.0 / 80.0);                   // x = 280
    EXPECT_EQ(lightOf("K38", 14, 0.0, 2.0).glowOpacity, 0.5 * (1.0 - 7.0 / 80.0));  // x = 318
}

TEST(LightingEngine, ThePerKeyEffectShowsEachKeysOwnColor) {
    KeyCap key = keyOf("K1");
    key.customColor = Color{0.1, 0.2, 0.3};
    EXPECT_EQ(LightingEngine::color(key, 21, 5.0, kDefaultColorBytes, 4.0, 2.0), (KeyLight{{0.1, 0.2, 0.3}, 0.9}));
    key.customColor = std::nullopt;
    EXPECT_EQ(LightingEngine::color(key, 21, 5.0, kDefaultColorBytes, 4.0, 2.0), (KeyLight{kBase, 0.9}));
}

TEST(LightingEngine, FrequencyLevelsChangeNothing) {
    const double levels[] = {0.1, 0.9};
    for (std::int64_t mode = -1; mode <= 22; ++mode) {
        EXPECT_EQ(LightingEngine::color(keyOf("K5"), mode, 3.25, {1, 2, 3}, 4.0, 2.0, levels),
                  LightingEngine::color(keyOf("K5"), mode, 3.25, {1, 2, 3}, 4.0, 2.0))
            << mode;
    }
}

TEST(LightingEngine, ExactlyTheEffectsThatMoveAreSaidToMove) {
    for (std::int64_t mode = -1; mode <= 22; ++mode) {
        bool hasMoved = false;
        for (int step = 0; step < 40; ++step) {
            hasMoved = hasMoved || lightOf("K20", mode, 0.1 * step) != lightOf("K20", mode, 0.1 * step + 0.05);
        }
        EXPECT_EQ(LightingEngine::isMoving(mode), hasMoved) << mode;
    }
}

TEST(LightingEngineDeathTest, AKeyNumberThatCannotBeMultipliedEndsTheProcess) {
    KeyCap key = keyOf("K1");
    key.kid = std::numeric_limits<std::int64_t>::max();
    EXPECT_DEATH((void)LightingEngine::color(key, 5, 0.0, {}, 4.0, 2.0), "too large");
    EXPECT_DEATH((void)LightingEngine::color(key, 8, 0.0, {}, 4.0, 2.0), "too large");
}

TEST(KeyOverlayView, ShowsWhatTheEngineSaysForWhatItHolds) {
    const KeyOverlayView view{keyOf("K20"), true, false, 17, 785000000.25, {10, 20, 30}, 3.0, 4.0};
    EXPECT_EQ(view.lighting(), LightingEngine::color(keyOf("K20"), 17, 785000000.25, {10, 20, 30}, 3.0, 4.0));
}

}  // namespace
}  // namespace lumo
