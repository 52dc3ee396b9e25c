#include "keyboard/KeyShade.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace lumo {
namespace {

constexpr ColorBytes kWhite{255, 255, 255};
constexpr ColorBytes kDarkLegend{0xB0, 0xB1, 0xB8};
constexpr ColorBytes kFnLegend{0x9E, 0x9F, 0xA6};

struct Mixed {
    double red, green, blue;
};

Mixed exact(ColorBytes color) {
    return {static_cast<double>(color.r), static_cast<double>(color.g), static_cast<double>(color.b)};
}

Mixed mix(const Mixed& from, const Mixed& to, double share) {
    return {std::lerp(from.red, to.red, share), std::lerp(from.green, to.green, share),
            std::lerp(from.blue, to.blue, share)};
}

ColorBytes rounded(const Mixed& color) {
    const auto byte = [](double level) { return static_cast<std::uint8_t>(std::lround(level)); };
    return {byte(color.red), byte(color.green), byte(color.blue)};
}

double toLinear(double share) { return share <= 0.04045 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4); }

const std::array<double, 256>& linearLevels() {
    static const auto kLevels = [] {
        std::array<double, 256> levels{};
        for (std::size_t i = 0; i < levels.size(); ++i) levels[i] = toLinear(static_cast<double>(i) / 255.0);
        return levels;
    }();
    return kLevels;
}

}  // namespace

KeyShade shadeOf(const KeyLight& light) {
    const double share = light.glowOpacity > 0.0 ? std::min(light.glowOpacity, 1.0) : 0.0;
    const auto glow = static_cast<std::uint8_t>(std::lround(share * 255.0));
    return glow == 0 ? KeyShade{} : KeyShade{toBytes(light.color), glow};
}

LegendColors legendColors(const KeyShade& shade) {
    const Mixed color = exact(shade.color);
    const Mixed lit = mix(color, exact(kWhite), 0.30 + 0.35 * (1.0 - relativeLuminance(shade.color)));
    const Mixed main = mix(exact(kDarkLegend), lit, std::min(1.0, 1.15 * shade.strength()));
    const Mixed fn = mix(exact(kFnLegend), main, 0.55);
    return {rounded(main), rounded(fn)};
}

pixels::Shares emittedLight(const KeyShade& shade) {
    const Mixed pale = mix(exact(shade.color), exact(kWhite), 0.06);
    const double perLevel = 65535.0 / 255.0 * shade.strength();
    const auto share = [&](double level) { return static_cast<pixels::Share>(level * perLevel); };
    return {share(pale.blue), share(pale.green), share(pale.red), share(255.0)};
}

double relativeLuminance(ColorBytes color) {
    const auto& linear = linearLevels();
    return 0.2126 * linear[color.r] + 0.7152 * linear[color.g] + 0.0722 * linear[color.b];
}

}  // namespace lumo
