#include "remap/CategoryList.h"

#include "controls/Theme.h"
#include "remap/CategoryTab.h"

namespace lumo {
namespace {

constexpr int kGap = 2;

int tabHeight() { return theme::grown(32); }

}  // namespace

CategoryList::CategoryList(QWidget* parent) : QWidget(parent), m_group(new FocusGroup({.across = 0, .down = 1}, this)) {
    for (const RemapCategory& category : kRemapCategories) {
        auto* const tab = new CategoryTab(category, this);
        connect(tab, &QAbstractButton::clicked, this, [this, tab] { emit chosen(tab->key()); });
        m_group->add(*tab);
        m_tabs.push_back(tab);
    }
    setMinimumHeight(static_cast<int>(m_tabs.size()) * (tabHeight() + kGap) - kGap);
}

void CategoryList::setSelected(std::string_view key) {
    for (CategoryTab* const tab : m_tabs) tab->setSelected(tab->key() == key);
    m_group->placeTabStop();
}

QAccessibleInterface* CategoryList::makeAccessible() { return new QAccessibleWidget(this, QAccessible::PageTabList); }

void CategoryList::resizeEvent(QResizeEvent*) {
    int y = 0;
    for (CategoryTab* const tab : m_tabs) {
        tab->setGeometry(0, y, width(), tabHeight());
        y += tabHeight() + kGap;
    }
}

}  // namespace lumo
