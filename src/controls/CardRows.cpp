#include "controls/CardRows.h"

#include <QWidget>
#include <algorithm>
#include <numeric>
#include <vector>

#include "controls/Theme.h"

namespace lumo {
namespace {

struct Row {
    std::span<const CardColumn> cards;
    std::vector<Extent> extents;

    [[nodiscard]] int leastHeight() const {
        int least = 0;
        for (std::size_t i = 0; i < cards.size(); ++i) {
            least = std::max(least, cards[i].leastHeight(extents[i].length));
        }
        return least;
    }
};

std::vector<Row> rowsWithin(int width, std::span<const CardColumn> cards) {
    std::vector<Column> columns;
    for (const CardColumn& card : cards) columns.push_back(card.column);
    std::vector<Row> rows;
    for (const std::size_t count : rowsOf(width, theme::kCardGap, columns, {cards.size()})) {
        const std::size_t first = columns.size() - cards.size();
        const std::span row = std::span(columns).subspan(first, count);
        const bool isAlone = count == 1;
        rows.push_back(
            {cards.first(count), isAlone ? std::vector{Extent{0, width}} : divide(width, theme::kCardGap, row)});
        cards = cards.subspan(count);
    }
    return rows;
}

}  // namespace

void placeCards(QWidget& page, int shortest, std::span<const CardColumn> cards, int top) {
    const std::vector<Row> rows = rowsWithin(page.width(), cards);
    std::vector<Column> heights;
    int needed = top - theme::kCardGap;
    for (const Row& row : rows) {
        const int least = row.leastHeight();
        heights.push_back({static_cast<double>(least), static_cast<double>(least)});
        needed += least + theme::kCardGap;
    }
    page.setMinimumHeight(std::max(shortest, needed));
    const std::vector<Extent> places = divide(page.height() - top, theme::kCardGap, heights);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        for (std::size_t j = 0; j < rows[i].cards.size(); ++j) {
            const Extent& across = rows[i].extents[j];
            rows[i].cards[j].place({across.begin, top + places[i].begin, across.length, places[i].length});
        }
    }
}

}  // namespace lumo
