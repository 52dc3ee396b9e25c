// Buttons that share a width: in rows as designed, and in more of them where their texts need it.
#pragma once

#include <vector>

#include "controls/Columns.h"

namespace lumo {

class PushButton;

/// Main thread. The buttons, which somebody else owns, outlive it.
class ButtonRows final {
public:
    struct Measures {
        int buttonHeight = 0;
        int gap = 0;  // between neighbours
        int rowGap = 0;
        std::vector<std::size_t> rows;  // how many buttons stand in each
    };
    explicit ButtonRows(Measures measures);

    /// `share`: of the row's width.
    void add(PushButton& button, double share = 1.0);

    [[nodiscard]] int heightWithin(int width) const;
    /// From the parent's left edge.
    void place(int width, int top) const;
    /// How many stand in the first row.
    [[nodiscard]] std::size_t acrossWithin(int width) const { return rowsWithin(width).front(); }

private:
    [[nodiscard]] std::vector<Column> columns() const;
    [[nodiscard]] std::vector<std::size_t> rowsWithin(int width) const;

    Measures m_measures;
    std::vector<PushButton*> m_buttons;
    std::vector<double> m_shares;
};

}  // namespace lumo
