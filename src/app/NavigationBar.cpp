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

int NavigationBar::barHeight() { return theme::grown(36); }

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

std::vector<Column> NavigationBar::columns(bool haveIcons) const {
    std::vector<Column> columns;
    for (const NaviPillButton* const pill : m_pills) {
        columns.push_back({1.0, static_cast<double>(pill->leastWidth(haveIcons))});
    }
    return columns;
}

void NavigationBar::resizeEvent(QResizeEvent*) {
    const int room = width() - 2 * kInset;
    // Large titles come before icons, and where even they find no room the pills are alike.
    const bool haveIcons = fitsInOneRow(room, kGap, columns(true));
    const bool fits = haveIcons || fitsInOneRow(room, kGap, columns(false));
    const auto extents = divide(room, kGap, fits ? columns(haveIcons) : std::vector<Column>(m_pills.size()));
    for (std::size_t i = 0; i < m_pills.size(); ++i) {
        m_pills[i]->setHasIcon(haveIcons);
        m_pills[i]->setGeometry(kInset + extents[i].begin, kInset, extents[i].length, height() - 2 * kInset);
    }
}

}  // namespace lumo
