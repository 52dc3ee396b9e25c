#include "app/NavigationBar.h"

#include <QPainter>

#include "app/NaviPillButton.h"
#include "controls/Columns.h"
#include "controls/FocusGroup.h"
#include "controls/Panel.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kInset = 3;
constexpr int kGap = 2;
constexpr double kRadius = 11.0;

}  // namespace

NavigationBar::NavigationBar(NavTab selected, QWidget* parent) : QWidget(parent), m_group(new FocusGroup({}, this)) {
    for (const NavTab tab : kAllTabs) {
        auto* const pill = new NaviPillButton(
            tab, tab == selected, [this, tab] { emit chosen(tab); }, this);
        m_group->add(*pill);
        m_pills.push_back(pill);
    }
}

void NavigationBar::setSelected(NavTab tab) {
    for (NaviPillButton* const pill : m_pills) pill->setSelected(pill->tab() == tab);
    m_group->placeTabStop();
}

QAccessibleInterface* NavigationBar::makeAccessible() { return new QAccessibleWidget(this, QAccessible::PageTabList); }

void NavigationBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), kRadius, theme::kInset, theme::kCardLine);
}

void NavigationBar::resizeEvent(QResizeEvent*) {
    const std::vector<Column> columns(m_pills.size());
    const auto extents = divide(width() - 2 * kInset, kGap, columns);
    for (std::size_t i = 0; i < m_pills.size(); ++i) {
        m_pills[i]->setGeometry(kInset + extents[i].begin, kInset, extents[i].length, height() - 2 * kInset);
    }
}

}  // namespace lumo
