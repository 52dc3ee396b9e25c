#include "keyboard/KeyNavigation.h"

#include <algorithm>
#include <cmath>
#include <tuple>

namespace lumo {
namespace {

/// One side of a key: its begin and its length along the axis.
struct Stretch {
    double begin = 0.0;
    double length = 0.0;

    [[nodiscard]] double centre() const { return begin + length / 2.0; }
    /// 0 inside.
    [[nodiscard]] double distanceTo(double place) const {
        return std::max({begin - place, place - (begin + length), 0.0});
    }
};

struct Axes {
    Stretch along;  // the way the focus moves
    Stretch across;
};

bool isHorizontal(Direction direction) { return direction == Direction::left || direction == Direction::right; }

Axes axesOf(const KeyCap& key, Direction direction) {
    const Stretch horizontal{key.x, key.width};
    const Stretch vertical{key.y, key.height};
    return isHorizontal(direction) ? Axes{horizontal, vertical} : Axes{vertical, horizontal};
}

/// How good a step from one key to the other is, best first; none when it does not lead there.
std::optional<std::tuple<double, double, double>> costOfStep(const KeyCap& from, const KeyCap& to,
                                                             Direction direction) {
    const Axes here = axesOf(from, direction);
    const Axes there = axesOf(to, direction);
    const bool isBackwards = direction == Direction::left || direction == Direction::up;
    const double ahead = (there.along.centre() - here.along.centre()) * (isBackwards ? -1.0 : 1.0);
    if (ahead < here.along.length / 2.0) return std::nullopt;  // the same row or column, give or take its unevenness
    const double aside = there.across.distanceTo(here.across.centre());
    if (isHorizontal(direction)) {
        if (aside > 0.0) return std::nullopt;
        return std::tuple{ahead, 0.0, 0.0};
    }
    const double rows = std::round(ahead / here.along.length);
    return std::tuple{rows, aside, std::abs(there.across.centre() - here.across.centre())};
}

}  // namespace

std::optional<std::size_t> neighbour(std::span<const KeyCap> keys, std::size_t of, Direction direction) {
    std::optional<std::size_t> best;
    std::optional<std::tuple<double, double, double>> lowest;
    for (std::size_t i = 0; i < keys.size(); ++i) {
        const auto cost = costOfStep(keys[of], keys[i], direction);
        if (!cost || (lowest && *lowest <= *cost)) continue;
        lowest = cost;
        best = i;
    }
    return best;
}

std::optional<std::size_t> keyAt(std::span<const KeyCap> keys, double x, double y) {
    const auto found = std::ranges::find_if(keys, [x, y](const KeyCap& key) {
        return x >= key.x && x < key.x + key.width && y >= key.y && y < key.y + key.height;
    });
    if (found == keys.end()) return std::nullopt;
    return static_cast<std::size_t>(found - keys.begin());
}

}  // namespace lumo
