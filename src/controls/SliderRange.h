// The values a slider stands for: from a least to a greatest one in equal steps.
#pragma once

#include <algorithm>
#include <cmath>

namespace lumo {

/// `minimum` < `maximum`, `step` > 0. The steps count from `minimum`; a value from outside may lie between them.
struct SliderRange {
    double minimum = 0.0;
    double maximum = 1.0;
    double step = 1.0;

    [[nodiscard]] int lastStep() const { return static_cast<int>(std::floor(inSteps(maximum) + kSlack)); }
    [[nodiscard]] double valueAt(int index) const { return minimum + std::clamp(index, 0, lastStep()) * step; }

    /// The step nearest to that share of the way from the least to the greatest value.
    [[nodiscard]] double nearest(double share) const {
        return valueAt(static_cast<int>(std::lround(std::clamp(share, 0.0, 1.0) * inSteps(maximum))));
    }
    /// So many steps on from a value; from between two steps, the first leads to the nearer one on that side.
    [[nodiscard]] double onwards(double value, int steps) const {
        const double from = share(value) * inSteps(maximum);
        return valueAt(steps + static_cast<int>(steps > 0 ? std::floor(from + kSlack) : std::ceil(from - kSlack)));
    }
    /// 0 to 1, also for a value outside the range; 0 for what is not a number.
    [[nodiscard]] double share(double value) const {
        const double share = (value - minimum) / (maximum - minimum);
        return share > 0.0 ? std::min(share, 1.0) : 0.0;
    }

private:
    static constexpr double kSlack = 1e-6;  // a tenth is no exact number
    [[nodiscard]] double inSteps(double value) const { return (value - minimum) / step; }
};

}  // namespace lumo
