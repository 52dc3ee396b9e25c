#include "keyboard/EffectList.h"

#include <QKeyEvent>
#include <algorithm>

#include "keyboard/EffectRow.h"

namespace lumo {
namespace {

constexpr int kLowestRow = 24;
constexpr int kHighestRow = 34;
constexpr int kRowGap = 2;
constexpr int kColumnGap = 8;

}  // namespace

EffectList::EffectList(std::span<const EffectEntry> entries, QWidget* parent) : QWidget(parent) {
    m_rows.reserve(entries.size());
    for (const EffectEntry& entry : entries) addRow(entry);
    setMinimumHeight(rowsInColumn() * (kLowestRow + kRowGap) - kRowGap);
    placeTabStop();
}

void EffectList::addRow(const EffectEntry& entry) {
    auto* const row = new EffectRow(entry, this);
    row->installEventFilter(this);
    connect(row, &QAbstractButton::clicked, this, [this, row] { emit chosen(row->number()); });
    m_rows.push_back(row);
}

void EffectList::setSelected(std::int64_t number) {
    for (EffectRow* const row : m_rows) row->setSelected(row->number() == number);
    placeTabStop();
}

void EffectList::setChosenColor(const QColor& color) {
    for (EffectRow* const row : m_rows) row->setChosenColor(color);
}

QAccessibleInterface* EffectList::makeAccessible() { return new QAccessibleWidget(this, QAccessible::List); }

int EffectList::rowsInColumn() const { return static_cast<int>((m_rows.size() + 1) / 2); }

EffectRow* EffectList::focusedRow() const {
    const auto found = std::ranges::find_if(m_rows, [](const EffectRow* row) { return row->hasFocus(); });
    return found == m_rows.end() ? nullptr : *found;
}

void EffectList::placeTabStop() {
    EffectRow* stop = focusedRow();
    if (!stop) {
        const auto selected = std::ranges::find_if(m_rows, &EffectRow::isSelected);
        stop = selected == m_rows.end() ? m_rows.front() : *selected;
    }
    for (EffectRow* const row : m_rows) row->setFocusPolicy(row == stop ? Qt::StrongFocus : Qt::ClickFocus);
}

bool EffectList::eventFilter(QObject* row, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut) placeTabStop();
    return QWidget::eventFilter(row, event);
}

void EffectList::keyPressEvent(QKeyEvent* event) {
    const auto focused = std::ranges::find(m_rows, focusedRow());
    if (focused == m_rows.end()) return event->ignore();
    const int index = static_cast<int>(focused - m_rows.begin());
    switch (event->key()) {
        case Qt::Key_Up:
            return moveFocus(index - 1);
        case Qt::Key_Down:
            return moveFocus(index + 1);
        case Qt::Key_Left:
            return moveFocus(index - rowsInColumn());
        case Qt::Key_Right:
            return moveFocus(index + rowsInColumn());
        case Qt::Key_Home:
            return moveFocus(0);
        case Qt::Key_End:
            return moveFocus(static_cast<int>(m_rows.size()) - 1);
        default:
            event->ignore();
    }
}

void EffectList::moveFocus(int index) {
    if (index < 0 || index >= static_cast<int>(m_rows.size())) return;
    m_rows[static_cast<std::size_t>(index)]->setFocus(Qt::TabFocusReason);
}

void EffectList::resizeEvent(QResizeEvent*) {
    const int count = rowsInColumn();
    const int rowHeight = std::clamp((height() + kRowGap) / count - kRowGap, kLowestRow, kHighestRow);
    const int rowWidth = (width() - kColumnGap) / 2;
    int index = 0;
    for (EffectRow* const row : m_rows) {
        const int x = index < count ? 0 : width() - rowWidth;
        row->setGeometry(x, index % count * (rowHeight + kRowGap), rowWidth, rowHeight);
        ++index;
    }
}

}  // namespace lumo
