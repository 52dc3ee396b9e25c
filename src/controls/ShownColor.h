// Colours of the models as Qt paints them.
#pragma once

#include <QColor>

#include "foundation/Color.h"

namespace lumo {

[[nodiscard]] inline QColor shownColor(const Color& color) {
    const ColorBytes bytes = toBytes(color);
    return {bytes.r, bytes.g, bytes.b};
}

}  // namespace lumo
