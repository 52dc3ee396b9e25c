#include "remap/ActionPage.h"

#include <algorithm>

#include "controls/PlainText.h"
#include "controls/PushButton.h"
#include "controls/Section.h"
#include "controls/Theme.h"
#include "remap/ActionGrid.h"
#include "remap/RemapCard.h"

namespace lumo {
namespace {

constexpr int kBlockGap = 12;

int headingRoom() { return Section::headingHeight() + theme::kHeadingToContent; }

}  // namespace

ActionPage::ActionPage(const Measures& measures, QWidget* parent) : QWidget(parent), m_measures(measures) {}

ActionGrid* ActionPage::makeGrid() {
    auto* const grid = new ActionGrid(m_measures.across, m_measures.gap, this);
    connect(grid, &ActionGrid::chosen, this, &ActionPage::chosen);
    return grid;
}

void ActionPage::addCards(std::span<const RemapItem> items) {
    ActionGrid* const grid = makeGrid();
    for (const RemapItem& item : items) {
        grid->add(*new RemapCard(item, grid), {item.name, item.codeBytes, item.dword});
    }
    m_blocks.push_back({grid, nullptr});
}

void ActionPage::addFunctionKeys() {
    ActionGrid* const grid = makeGrid();
    for (std::int64_t number = 1; number <= kFunctionKeyCount; ++number) {
        addButton(*grid, functionKeyName(number), functionKeyUsage(number));
    }
    m_blocks.push_back({grid, nullptr});
}

void ActionPage::addKeys(std::string_view heading, std::span<const BasicKey> keys) {
    ActionGrid* const grid = makeGrid();
    for (const BasicKey& key : keys) addButton(*grid, key.text, key.usage);
    auto* const section = new Section(heading, this);
    section->setContent(grid);
    m_blocks.push_back({grid, section});
}

void ActionPage::addButton(ActionGrid& grid, std::string_view name, std::uint8_t usage) {
    auto* const button = new PushButton(plainText(name), look::kAction, &grid);
    grid.add(*button, {std::string(name), codeOfUsage(usage), usage});
}

void ActionPage::setBound(const std::optional<std::vector<std::uint8_t>>& code) {
    for (const Block& block : m_blocks) block.grid->setBound(code);
}

int ActionPage::rowsWithin(int width) const {
    int rows = 0;
    for (const Block& block : m_blocks) rows += block.grid->rowsWithin(width);
    return std::max(rows, m_measures.leastRows);
}

/// All but the rows with the gap below each.
int ActionPage::fixedHeight() const {
    int fixed = kBlockGap * (static_cast<int>(m_blocks.size()) - 1);
    for (const Block& block : m_blocks) fixed += (block.section ? headingRoom() : 0) - m_measures.gap;
    return fixed;
}

int ActionPage::leastHeightWithin(int width) const {
    return fixedHeight() + rowsWithin(width) * (theme::grown(m_measures.lowestRow) + m_measures.gap);
}

int ActionPage::rowHeight() const {
    return std::clamp((height() - fixedHeight()) / rowsWithin(width()) - m_measures.gap,
                      theme::grown(m_measures.lowestRow), theme::grown(m_measures.highestRow));
}

void ActionPage::resizeEvent(QResizeEvent*) {
    const int step = rowHeight() + m_measures.gap;
    int y = 0;
    for (const auto& [grid, section] : m_blocks) {
        const int gridHeight = grid->rowsWithin(width()) * step - m_measures.gap;
        const int blockHeight = gridHeight + (section ? headingRoom() : 0);
        QWidget* const block = section ? static_cast<QWidget*>(section) : grid;
        block->setGeometry(0, y, width(), blockHeight);
        y += blockHeight + kBlockGap;
    }
}

}  // namespace lumo
