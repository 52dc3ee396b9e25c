// The cards of a page: side by side as designed, or in rows one below the other where large letters need more room.
#pragma once

#include <QRect>
#include <functional>
#include <span>

#include "controls/Columns.h"

class QWidget;

namespace lumo {

struct CardColumn {
    Column column;                              // among those in the same row; the least is that of the design
    std::function<int(int width)> leastHeight;  // at that width
    std::function<void(const QRect& place)> place;
};

/// Main thread. Places them in the page, from `top` to its foot, and makes it at least as high as they need, or as
/// `shortest`.
void placeCards(QWidget& page, int shortest, std::span<const CardColumn> cards, int top = 0);

}  // namespace lumo
