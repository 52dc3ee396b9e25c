#include "macro/ProfileList.h"

#include <algorithm>

#include "controls/FocusGroup.h"
#include "controls/ListRow.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kBarToEdge = 2;
constexpr int kRowGap = 2;
constexpr ListRow::Looks kRowLooks{
    .nameX = 10, .padding = 10, .style = theme::kLargeRowStyle, .selectedStyle = theme::kLargeRowSelectedStyle};

int rowHeight() { return theme::grown(32); }

class RowsParent final : public QWidget, public AccessibleSource {
public:
    QAccessibleInterface* makeAccessible() override { return new QAccessibleWidget(this, QAccessible::List); }
};

}  // namespace

ProfileList::ProfileList(const QStringList& names, QWidget* parent)
    : ScrollBox({.barToEdge = kBarToEdge}, parent),
      m_rowsParent(new RowsParent),
      m_group(new FocusGroup({0, 1}, m_rowsParent)) {
    setWidget(m_rowsParent);
    m_rowsParent->setAutoFillBackground(false);
    setNames(names);
}

void ProfileList::setNames(const QStringList& names) {
    const auto count = static_cast<std::size_t>(names.size());
    while (m_rows.size() > count) dropLastRow();
    for (std::size_t i = 0; i < m_rows.size(); ++i) m_rows[i]->setName(names[static_cast<qsizetype>(i)]);
    while (m_rows.size() < count) addRow(names[static_cast<qsizetype>(m_rows.size())]);
    m_rowsParent->setMinimumHeight(std::max(0, static_cast<int>(count) * (rowHeight() + kRowGap) - kRowGap));
}

void ProfileList::addRow(const QString& name) {
    auto* const row = new ListRow(name, QAccessible::ListItem, kRowLooks, m_rowsParent);
    const auto index = static_cast<std::int64_t>(m_rows.size());
    connect(row, &QAbstractButton::clicked, this, [this, index] { emit chosen(index); });
    if (!m_rows.empty()) setTabOrder(m_rows.back(), row);  // it was made after all that follows
    m_group->add(*row);
    m_rows.push_back(row);
    placeRows();
    row->show();
}

void ProfileList::dropLastRow() {
    ListRow* const row = m_rows.back();
    m_rows.pop_back();
    m_group->remove(*row);
    if (!m_rows.empty()) row->handFocusTo(*m_rows.back());
    row->hide();
    row->deleteLater();
}

void ProfileList::setSelected(std::int64_t index) {
    for (std::size_t i = 0; i < m_rows.size(); ++i) m_rows[i]->setSelected(static_cast<std::int64_t>(i) == index);
    m_group->placeTabStop();
    if (index == m_selected) return;
    m_selected = index;
    if (index < 0 || index >= std::ssize(m_rows)) return;
    const ListRow& row = *m_rows[static_cast<std::size_t>(index)];
    bringIntoView(row, row.rect());
}

void ProfileList::resizeEvent(QResizeEvent* event) {
    ScrollBox::resizeEvent(event);
    placeRows();
}

void ProfileList::placeRows() {
    int y = 0;
    for (ListRow* const row : m_rows) {
        row->setGeometry(0, y, viewport()->width(), rowHeight());
        y += rowHeight() + kRowGap;
    }
}

}  // namespace lumo
