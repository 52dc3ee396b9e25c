// How much larger than designed the letters are, and with them what holds them.
#pragma once

namespace lumo::theme {

inline constexpr double kLargestTextScale = 2.0;

/// What an interface font of so many points asks for, on a screen of so many dots to the inch: 1 for what desktops
/// usually have and for less, and never more than the largest.
[[nodiscard]] double textScaleFor(double points, double dotsPerInch);

/// Main thread. 1 until it is set, once, before the first widget is made.
[[nodiscard]] double textScale();
void setTextScale(double wanted);

/// A designed height of something that holds so many lines of text, with its lines as high as they are.
[[nodiscard]] int grown(int height, int lines = 1);

/// A designed width of something that is as wide as its texts.
[[nodiscard]] int widened(int width);

}  // namespace lumo::theme
