// The actions of one category.
#pragma once

#include <QWidget>
#include <optional>
#include <span>
#include <vector>

#include "remap/BasicKeys.h"
#include "remap/Binding.h"
#include "remap/RemapItem.h"

namespace lumo {

class ActionGrid;
class Section;

/// Main thread. Grids of controls one below the other, perhaps under headings; their rows are as high as there is room.
class ActionPage final : public QWidget {
    Q_OBJECT

public:
    struct Measures {
        int across = 1;
        int gap = 0;
        int lowestRow = 0;
        int highestRow = 0;
        int leastRows = 1;  // fewer rows are no higher than these would be
    };
    ActionPage(const Measures& measures, QWidget* parent);

    void addCards(std::span<const RemapItem> items);
    void addFunctionKeys();
    void addKeys(std::string_view heading, std::span<const BasicKey> keys);

    /// Its rows as low as they may be.
    [[nodiscard]] int leastHeightWithin(int width) const;

    /// Marks the action of that code.
    void setBound(const std::optional<std::vector<std::uint8_t>>& code);

signals:
    void chosen(const lumo::Binding& binding);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    struct Block {
        ActionGrid* grid;
        Section* section;  // around the grid; null without a heading
    };
    [[nodiscard]] ActionGrid* makeGrid();
    void addButton(ActionGrid& grid, std::string_view name, std::uint8_t usage);
    [[nodiscard]] int rowsWithin(int width) const;
    [[nodiscard]] int fixedHeight() const;
    [[nodiscard]] int rowHeight() const;

    Measures m_measures;
    std::vector<Block> m_blocks;
};

}  // namespace lumo
