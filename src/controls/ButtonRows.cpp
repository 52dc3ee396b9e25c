#include "controls/ButtonRows.h"

#include <span>

#include "controls/PushButton.h"

namespace lumo {
ButtonRows::ButtonRows(Measures measures) : m_measures(std::move(measures)) {}

void ButtonRows::add(PushButton& button, double share) {
    m_buttons.push_back(&button);
    m_shares.push_back(share);
}

std::vector<Column> ButtonRows::columns() const {
    std::vector<Column> columns;
    for (std::size_t i = 0; i < m_buttons.size(); ++i) {
        columns.push_back({m_shares[i], static_cast<double>(m_buttons[i]->sizeHint().width())});
    }
    return columns;
}

std::vector<std::size_t> ButtonRows::rowsWithin(int width) const {
    return rowsOf(width, m_measures.gap, columns(), m_measures.rows);
}

int ButtonRows::heightWithin(int width) const {
    const auto rows = static_cast<int>(rowsWithin(width).size());
    return rows * (m_measures.buttonHeight + m_measures.rowGap) - m_measures.rowGap;
}

void ButtonRows::place(int width, int top) const {
    const std::vector<Column> all = columns();
    std::size_t first = 0;
    for (const std::size_t count : rowsWithin(width)) {
        const auto row = divide(width, m_measures.gap, std::span(all).subspan(first, count));
        for (std::size_t i = 0; i < count; ++i) {
            m_buttons[first + i]->setGeometry(row[i].begin, top, row[i].length, m_measures.buttonHeight);
        }
        first += count;
        top += m_measures.buttonHeight + m_measures.rowGap;
    }
}

}  // namespace lumo
