#include "foundation/Color.h"

#include <algorithm>
#include <cmath>

namespace lumo {
namespace {

constexpr Color kConversionFailed{0.34, 0.03, 0.83, 1.0};

std::uint8_t toByte(double component) { return static_cast<std::uint8_t>(std::clamp(component * 255.0, 0.0, 255.0)); }

bool isConvertible(const Color& color) {
    return !std::isnan(color.red) && !std::isnan(color.green) && !std::isnan(color.blue);
}

/// In sixths of the circle, from the greatest component; `range` is its distance to the least and not 0.
double hueInSixths(double red, double green, double blue, double range) {
    const double greatest = std::max({red, green, blue});
    if (greatest == red) return (green - blue) / range + (green < blue ? 6.0 : 0.0);
    if (greatest == green) return (blue - red) / range + 2.0;
    return (red - green) / range + 4.0;
}

}  // namespace

Color Color::fromHsb(double hue, double saturation, double brightness) {
    const double sector = (hue - std::floor(hue)) * 6.0;
    const double fraction = sector - std::floor(sector);
    const double low = brightness * (1.0 - saturation);
    const double falling = brightness * (1.0 - saturation * fraction);
    const double rising = brightness * (1.0 - saturation * (1.0 - fraction));
    switch (static_cast<int>(sector)) {
        case 0:
        case 6:  // a hue so little below 0 that it is rounded to the full circle
            return {brightness, rising, low};
        case 1:
            return {falling, brightness, low};
        case 2:
            return {low, brightness, rising};
        case 3:
            return {low, falling, brightness};
        case 4:
            return {rising, low, brightness};
        default:
            return {brightness, low, falling};
    }
}

Hsb toHsb(const Color& color) {
    const Color& known = isConvertible(color) ? color : kConversionFailed;
    const double red = std::clamp(known.red, 0.0, 1.0);
    const double green = std::clamp(known.green, 0.0, 1.0);
    const double blue = std::clamp(known.blue, 0.0, 1.0);
    const double brightness = std::max({red, green, blue});
    const double range = brightness - std::min({red, green, blue});
    if (range == 0.0) return {0.0, 0.0, brightness};
    return {hueInSixths(red, green, blue, range) / 6.0, range / brightness, brightness};
}

ColorBytes toBytes(const std::optional<Color>& color) {
    const Color& known = color && isConvertible(*color) ? *color : kConversionFailed;
    return {toByte(known.red), toByte(known.green), toByte(known.blue)};
}

}  // namespace lumo
