#include "controls/TextScale.h"

#include <QtGlobal>
#include <algorithm>
#include <cmath>

namespace lumo::theme {
namespace {

#ifdef Q_OS_MACOS
constexpr double kUsualPoints = 13.0;
constexpr double kUsualDotsPerInch = 72.0;
#else
constexpr double kUsualPoints = 11.0;  // the largest that a desktop has by itself; others have 9 or 10
constexpr double kUsualDotsPerInch = 96.0;
#endif
constexpr int kUsualLine = 16;

double scale = 1.0;

int scaled(int length) { return static_cast<int>(std::lround(length * scale)); }

}  // namespace

double textScaleFor(double points, double dotsPerInch) {
    // Where all text is made larger, the dots say so, and a font that is small by itself takes nothing of it away.
    const double larger = std::max(points / kUsualPoints, 1.0) * dotsPerInch / kUsualDotsPerInch;
    return std::clamp(larger, 1.0, kLargestTextScale);
}

double textScale() { return scale; }

void setTextScale(double wanted) { scale = wanted; }

int grown(int height, int lines) { return height + lines * (scaled(kUsualLine) - kUsualLine); }

int widened(int width) { return scaled(width); }

}  // namespace lumo::theme
