#include "keyboard/LightingEngine.h"

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>

namespace lumo {
namespace {

constexpr double kWidth = 650.0;  // the drawing, points
constexpr double kHeight = 247.0;
constexpr double kCentreX = 325.0;
constexpr double kCentreY = 123.0;
constexpr double kPi = 3.141592653589793;
constexpr double kTwoPi = 6.283185307179586;
constexpr double kRoughTwoPi = 6.28;  // what some effects use for the full circle

struct Moment {
    const KeyCap& key;
    Color base;
    double glow = 0.0;  // of a key at full strength
    double time = 0.0;  // runs faster with the speed

    [[nodiscard]] double dx() const { return key.x - kCentreX; }
    [[nodiscard]] double dy() const { return key.y - kCentreY; }
    [[nodiscard]] double angle() const { return std::atan2(dy(), dx()); }
    [[nodiscard]] double distance() const { return std::sqrt(dx() * dx() + dy() * dy()); }
    [[nodiscard]] double turn() const { return (angle() + kPi) / kTwoPi; }
};

double kidTimes(const KeyCap& key, std::int64_t factor) {
    std::int64_t product = 0;
    if (__builtin_mul_overflow(key.kid, factor, &product)) {
        std::fputs("A key number is too large to be multiplied.\n", stderr);
        std::abort();
    }
    return static_cast<double>(product);
}

double wrap(double value) {
    const double fraction = value - std::trunc(value);
    return fraction < 0.0 ? fraction + 1.0 : fraction;
}

/// From 0 to 1 and back.
double wave(double phase) { return (std::sin(phase) + 1.0) * 0.5; }

Color hue(double turns, double saturation) { return Color::fromHsb(wrap(turns), saturation, 1.0); }

KeyLight breathing(const Moment& at) { return {at.base, at.glow * (wave(at.time * 2.5) * 0.75 + 0.15)}; }

KeyLight raindrops(const Moment& at) {
    const double strength = std::sin(at.time * 3.0 + kidTimes(at.key, 37));
    const double glow = strength > 0.65 ? (strength - 0.65) / 0.35 : 0.08;
    return {hue(kidTimes(at.key, 13) / 68.0, 0.8), at.glow * glow};
}

KeyLight stars(const Moment& at) { return {at.base, at.glow * wave(at.time * 4.0 + kidTimes(at.key, 19))}; }

KeyLight ripples(const Moment& at) {
    return {at.base, at.glow * std::max(wave(at.distance() * 0.05 - at.time * 4.0), 0.12)};
}

KeyLight passingWave(const Moment& at) {
    return {at.base, at.glow * std::max(wave(at.key.x / kWidth * kRoughTwoPi - at.time * 3.0), 0.15)};
}

KeyLight sineWave(const Moment& at) {
    return {at.base, at.glow * std::max(wave(at.time * 3.0 + at.key.x * 0.03), 0.2)};
}

KeyLight scanning(const Moment& at) {
    const double line = wave(2.0 * at.time) * kWidth;
    const double away = std::abs(at.key.x - line) / 80.0;
    return {at.base, at.glow * std::max(1.0 - away, 0.1)};
}

KeyLight windmill(const Moment& at) {
    return {at.base, at.glow * std::max(wave(at.time * 5.0 + at.angle() * 4.0), 0.1)};
}

KeyLight blossoming(const Moment& at) {
    const double distance = at.distance();
    return {hue(at.time * 0.2 + distance / 350.0, 0.9), at.glow * std::max(wave(distance * 0.08 - at.time * 3.5), 0.2)};
}

KeyLight storm(const Moment& at) {
    return {at.base, at.glow * std::max(wave(at.turn() * kRoughTwoPi - at.time * 4.0), 0.15)};
}

KeyLight light(const Moment& at, std::int64_t mode) {
    switch (mode) {
        case 0:
        case 20:
            return {Color{}, 0.0};
        case 2:
            return breathing(at);
        case 3:
            return {hue(at.time * 0.25, 0.95), at.glow * 0.85};
        case 4:
            return {hue(at.key.x / kWidth - at.time * 0.35, 0.95), at.glow * 0.9};
        case 5:
            return raindrops(at);
        case 6:
            return {hue(at.time * 0.3 + at.turn(), 0.95), at.glow * 0.85};
        case 7:
            return ripples(at);
        case 8:
            return stars(at);
        case 9:
        case 10:
        case 11:
            return passingWave(at);
        case 12:
            return {at.base, at.glow * 0.45};
        case 13:
            return sineWave(at);
        case 14:
            return scanning(at);
        case 15:
            return windmill(at);
        case 16:
            return {hue(at.time * 0.4 + at.key.y / kHeight, 0.9), at.glow * 0.85};
        case 17:
            return blossoming(at);
        case 18:
            return storm(at);
        case 21:
            return {at.key.customColor.value_or(at.base), at.glow * 0.9};
        default:
            return {at.base, at.glow * 0.8};
    }
}

}  // namespace

KeyLight LightingEngine::color(const KeyCap& key, std::int64_t mode, double time, ColorBytes baseColor,
                               double brightnessLevel, double speedLevel, std::span<const double>) {
    const double glow = std::max(brightnessLevel * 0.25, 0.1);
    return light({key, Color::fromBytes(baseColor), glow, time * (speedLevel * 0.5 + 0.5)}, mode);
}

}  // namespace lumo
