// The case around the keys of the on-screen keyboard: its shape, and its drawing where the picture is missing.
#pragma once

#include <QPainterPath>
#include <QRectF>

class QPainter;

namespace lumo {

inline constexpr QRectF kCaseRect{5.0, 13.0, 641.0, 223.0};
inline constexpr QRectF kWellRect{13.0, 23.0, 625.0, 203.0};

/// The case's outline, without its shadow.
[[nodiscard]] QPainterPath casePath();

/// Where the keys stand and their light is seen: the plate without the block in its upper right corner.
[[nodiscard]] QPainterPath wellPath();

/// Case, plate and block without keys. Points; transparent outside.
void paintKeyboardCase(QPainter& painter);

}  // namespace lumo
