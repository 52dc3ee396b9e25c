// Colours that let something through. Values.
#pragma once

#include <QColor>

namespace lumo {

[[nodiscard]] inline QColor withOpacity(QColor color, double opacity) {
    color.setAlphaF(static_cast<float>(opacity));
    return color;
}

}  // namespace lumo
