#include "controls/LowStripes.h"

namespace lumo {
namespace {

constexpr int kHighest = 24;  // points; Qt begins to share out at 96 rows of pixels

}  // namespace

std::vector<QRect> lowStripes(const QRegion& region) {
    std::vector<QRect> stripes;
    for (const QRect& part : region) {
        for (int top = part.top(); top <= part.bottom(); top += kHighest) {
            stripes.push_back(part & QRect(part.left(), top, part.width(), kHighest));
        }
    }
    return stripes;
}

}  // namespace lumo
