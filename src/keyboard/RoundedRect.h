// How much of a pixel a rounded rectangle covers.
#pragma once

#include <algorithm>
#include <cmath>

namespace lumo {

/// Lengths in one unit of the caller's choice. Values; any thread.
struct RoundedRect {
    float left, top, right, bottom, radius;

    [[nodiscard]] constexpr RoundedRect inset(float by) const {
        return {left + by, top + by, right - by, bottom - by, radius - by};
    }

    /// Of the square pixel around that point: exact along straight edges, and within a few hundredths at the corners.
    [[nodiscard]] float coverage(float x, float y, float pixelsPerUnit) const {
        const float outX = std::max(left - x, x - right) + radius;
        const float outY = std::max(top - y, y - bottom) + radius;
        const bool isAtCorner = outX > 0.0F && outY > 0.0F;
        const float away = isAtCorner ? std::sqrt(outX * outX + outY * outY) : std::max(outX, outY);
        return std::clamp(0.5F - (away - radius) * pixelsPerUnit, 0.0F, 1.0F);
    }
};

}  // namespace lumo
