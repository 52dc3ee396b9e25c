#include "keyboard/EffectList.h"

#include <algorithm>
#include <array>

#include "controls/Columns.h"
#include "controls/Theme.h"
#include "keyboard/EffectRow.h"

namespace lumo {
namespace {

constexpr int kRowGap = 2;
constexpr int kColumnGap = 8;

int lowestRow() { return theme::grown(24); }

int highestRow() { return theme::grown(34); }

}  // namespace

EffectList::EffectList(std::span<const EffectEntry> entries, QWidget* parent)
    : QWidget(parent), m_group(new FocusGroup({}, this)) {
    m_rows.reserve(entries.size());
    for (const EffectEntry& entry : entries) addRow(entry);
    m_group->setSteps({.across = rowsInColumn(), .down = 1});
    setMinimumHeight(rowsInColumn() * (lowestRow() + kRowGap) - kRowGap);
}

void EffectList::addRow(const EffectEntry& entry) {
    auto* const row = new EffectRow(entry, this);
    connect(row, &QAbstractButton::clicked, this, [this, row] { emit chosen(row->number()); });
    m_group->add(*row);
    m_rows.push_back(row);
}

void EffectList::setSelected(std::int64_t number) {
    for (EffectRow* const row : m_rows) row->setSelected(row->number() == number);
    m_group->placeTabStop();
}

void EffectList::setChosenColor(const QColor& color) {
    for (EffectRow* const row : m_rows) row->setChosenColor(color);
}

QAccessibleInterface* EffectList::makeAccessible() { return new QAccessibleWidget(this, QAccessible::List); }

int EffectList::rowsInColumn() const { return static_cast<int>((m_rows.size() + 1) / 2); }

double EffectList::widest(int column) const {
    double widest = 0.0;
    for (int i = column * rowsInColumn(); i < static_cast<int>(m_rows.size()) && i < (column + 1) * rowsInColumn();
         ++i) {
        widest = std::max<double>(widest, m_rows[static_cast<std::size_t>(i)]->sizeHint().width());
    }
    return widest;
}

void EffectList::resizeEvent(QResizeEvent*) {
    const int count = rowsInColumn();
    const int rowHeight = std::clamp((height() + kRowGap) / count - kRowGap, lowestRow(), highestRow());
    const auto columns = divide(width(), kColumnGap, std::array{Column{1.0, widest(0)}, Column{1.0, widest(1)}});
    int index = 0;
    for (EffectRow* const row : m_rows) {
        const Extent& column = columns.at(static_cast<std::size_t>(index / count));
        row->setGeometry(column.begin, index % count * (rowHeight + kRowGap), column.length, rowHeight);
        ++index;
    }
}

}  // namespace lumo
