#include "remap/ActionGrid.h"

#include <algorithm>
#include <utility>

#include "controls/Columns.h"
#include "controls/PushControl.h"

namespace lumo {

ActionGrid::ActionGrid(int across, int gap, QWidget* parent)
    : QWidget(parent), m_across(across), m_gap(gap), m_group(new FocusGroup({.across = 1, .down = across}, this)) {}

void ActionGrid::add(PushControl& control, Binding binding) {
    const std::size_t index = m_actions.size();
    connect(&control, &QAbstractButton::clicked, this, [this, index] { emit chosen(m_actions[index].binding); });
    m_group->add(control);
    m_actions.push_back({&control, std::move(binding)});
}

void ActionGrid::setBound(const std::optional<std::vector<std::uint8_t>>& code) {
    for (const auto& [control, binding] : m_actions) {
        control->setSelected(code && std::ranges::equal(*code, binding.bytes));
    }
    m_group->placeTabStop();
}

int ActionGrid::acrossWithin(int width) const {
    int widest = 0;
    for (const Action& action : m_actions) widest = std::max(widest, action.control->sizeHint().width());
    return std::clamp((width + m_gap) / (widest + m_gap), 1, m_across);
}

int ActionGrid::rowsWithin(int width) const {
    const int across = acrossWithin(width);
    return (static_cast<int>(m_actions.size()) + across - 1) / across;
}

void ActionGrid::resizeEvent(QResizeEvent*) {
    const int across = acrossWithin(width());
    m_group->setSteps({.across = 1, .down = across});
    const std::vector<Column> columns(static_cast<std::size_t>(across));
    const auto extents = divide(width(), m_gap, columns);
    const int rowHeight = (height() + m_gap) / rowsWithin(width()) - m_gap;
    for (int i = 0; i < static_cast<int>(m_actions.size()); ++i) {
        const Extent& column = extents.at(static_cast<std::size_t>(i % across));
        const int y = i / across * (rowHeight + m_gap);
        m_actions.at(static_cast<std::size_t>(i)).control->setGeometry(column.begin, y, column.length, rowHeight);
    }
}

}  // namespace lumo
