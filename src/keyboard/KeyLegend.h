// The letters on a key of the on-screen keyboard.
#pragma once

#include <QPainterPath>
#include <QRectF>
#include <QString>

#include "keyboard/KeyCap.h"

namespace lumo {

/// Outlines in points, at their place in the picture: as glyphs they would stand on whole pixels.
struct KeyLegend {
    QPainterPath main;
    QPainterPath fn;  // for the Fn layer; mostly empty
};

/// By how many points the middle of the main legend stands above the middle of the face.
[[nodiscard]] double legendRise(const KeyCap& key, const QRectF& face);

/// `face` is the cap's upper side.
[[nodiscard]] KeyLegend legendOf(const KeyCap& key, const QRectF& face);

}  // namespace lumo
