#include "controls/Columns.h"

#include <algorithm>
#include <cmath>

namespace lumo {
namespace {

constexpr double kUndecided = -1.0;

struct Rest {
    double room = 0.0;
    double shares = 0.0;
    [[nodiscard]] double widthOf(const Column& column) const { return room * column.share / shares; }
};

/// What the columns without a width yet have to divide among them.
Rest restOf(std::span<const Column> columns, const std::vector<double>& widths, double room) {
    Rest rest{room, 0.0};
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (widths[i] == kUndecided) {
            rest.shares += columns[i].share;
        } else {
            rest.room -= widths[i];
        }
    }
    return rest;
}

/// Gives the columns that would get too little their least; true when there was another one.
bool giveLeast(std::span<const Column> columns, std::vector<double>& widths, const Rest& rest) {
    bool isAnother = false;
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (widths[i] != kUndecided || rest.widthOf(columns[i]) >= columns[i].least) continue;
        widths[i] = columns[i].least;
        isAnother = true;
    }
    return isAnother;
}

std::vector<double> widthsOf(std::span<const Column> columns, double room) {
    std::vector<double> widths(columns.size(), kUndecided);
    while (giveLeast(columns, widths, restOf(columns, widths, room))) continue;
    const Rest rest = restOf(columns, widths, room);
    for (std::size_t i = 0; i < columns.size(); ++i) {
        if (widths[i] == kUndecided) widths[i] = rest.widthOf(columns[i]);
    }
    return widths;
}

using Rows = std::vector<std::size_t>;

double leastOf(int gap, std::span<const Column> row) {
    double least = -gap;
    for (const Column& column : row) least += column.least + gap;
    return least;
}

/// What the row takes that needs most. A column that has a row for itself takes what there is.
double widestRow(int width, int gap, std::span<const Column> columns, const Rows& rows) {
    double widest = 0.0;
    for (const std::size_t count : rows) {
        const double least = leastOf(gap, columns.first(count));
        widest = std::max(widest, count == 1 ? std::min<double>(least, width) : least);
        columns = columns.subspan(count);
    }
    return widest;
}

/// Each bit of `breaks` stands between two columns.
Rows brokenAt(unsigned breaks, std::size_t columns) {
    Rows rows{1};
    for (std::size_t i = 1; i < columns; ++i) {
        if ((breaks >> (i - 1) & 1U) != 0) rows.push_back(0);
        ++rows.back();
    }
    return rows;
}

}  // namespace

bool fitsInOneRow(int width, int gap, std::span<const Column> columns) { return leastOf(gap, columns) <= width; }

std::vector<std::size_t> rowsOf(int width, int gap, std::span<const Column> columns, const Rows& wanted) {
    if (widestRow(width, gap, columns, wanted) <= width) return wanted;
    const unsigned ways = 1U << (columns.size() - 1);
    Rows best(columns.size(), 1);
    for (unsigned breaks = 0; breaks < ways; ++breaks) {
        const Rows rows = brokenAt(breaks, columns.size());
        const double widest = widestRow(width, gap, columns, rows);
        if (widest > width || rows.size() > best.size()) continue;
        if (rows.size() < best.size() || widest < widestRow(width, gap, columns, best)) best = rows;
    }
    return best;
}

std::vector<Extent> divide(int width, int gap, std::span<const Column> columns) {
    const double room = width - gap * (static_cast<double>(columns.size()) - 1.0);
    std::vector<Extent> extents;
    double begin = 0.0;
    for (const double columnWidth : widthsOf(columns, room)) {
        const int left = static_cast<int>(std::lround(begin));
        extents.push_back({left, static_cast<int>(std::lround(begin + columnWidth)) - left});
        begin += columnWidth + gap;
    }
    return extents;
}

}  // namespace lumo
