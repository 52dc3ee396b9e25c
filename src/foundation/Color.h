// Colours as the interface mixes them and as the keyboard takes them.
#pragma once

#include <cstdint>
#include <optional>

namespace lumo {

/// What goes over the wire: one byte each, 0 to 255, sRGB.
struct ColorBytes {
    std::uint8_t r = 0;
    std::uint8_t g = 0;
    std::uint8_t b = 0;
    bool operator==(const ColorBytes&) const = default;
};

/// An sRGB colour. Components and opacity nominally lie in 0 to 1; nothing clamps them until they become bytes.
struct Color {
    double red = 0.0;
    double green = 0.0;
    double blue = 0.0;
    double opacity = 1.0;
    bool operator==(const Color&) const = default;

    [[nodiscard]] static constexpr Color fromBytes(ColorBytes bytes) {
        return {bytes.r / 255.0, bytes.g / 255.0, bytes.b / 255.0, 1.0};
    }
    /// Hue as a fraction of the full circle, saturation and brightness 0 to 1.
    [[nodiscard]] static Color fromHsb(double hue, double saturation, double brightness);
};

/// Hue as a fraction of the full circle, below 1; saturation and brightness 0 to 1.
struct Hsb {
    double hue = 0.0;
    double saturation = 0.0;
    double brightness = 0.0;
};

/// The way back from `Color::fromHsb`. Grey has the hue 0, black the saturation 0. Components are clamped to 0 to 1;
/// a colour that is not a number counts as for `toBytes`.
[[nodiscard]] Hsb toHsb(const Color& color);

/// The colour everything starts with, which is also the interface's accent.
inline constexpr ColorBytes kDefaultColorBytes{87, 8, 212};
inline constexpr Color kDefaultColor{0.3411764705882353, 0.03137254901960784, 0.8313725490196079, 1.0};

/// Each component times 255, clamped to 0 to 255, truncated towards zero. A colour that is absent or not a number
/// cannot be converted and counts as (0.34, 0.03, 0.83), which gives the bytes (86, 7, 211).
[[nodiscard]] ColorBytes toBytes(const std::optional<Color>& color);

}  // namespace lumo
