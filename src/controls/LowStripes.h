// The parts in which something is painted again with every frame.
#pragma once

#include <QRegion>
#include <vector>

namespace lumo {

/// The region in rectangles that are lower than what Qt shares out among threads: waking those costs more than the
/// painting. A painter that clips to one of them also takes Qt's shortest ways, which no region does.
[[nodiscard]] std::vector<QRect> lowStripes(const QRegion& region);

}  // namespace lumo
