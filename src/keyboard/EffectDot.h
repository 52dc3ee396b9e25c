// The small sign in front of an effect's name: where its colours come from.
#pragma once

#include <QColor>
#include <QPainter>
#include <QRectF>
#include <cstdint>

#include "device/LightingModes.h"

namespace lumo {

enum class EffectColors : std::uint8_t { chosen, own, perKey, none };

[[nodiscard]] constexpr EffectColors effectColors(const LightingModeInfo& mode) {
    if (mode.id == 0) return EffectColors::none;
    if (mode.isPerKey) return EffectColors::perKey;
    return mode.supportsCustomColor ? EffectColors::chosen : EffectColors::own;
}

/// Paints into a square of 10 points. `chosen` is the user's colour, seen only where the effect takes it.
void paintEffectDot(QPainter& painter, const QRectF& rect, EffectColors colors, const QColor& chosen);

}  // namespace lumo
