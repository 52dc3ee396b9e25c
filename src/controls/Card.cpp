#include "controls/Card.h"

#include <QPainter>
#include <algorithm>

#include "controls/Panel.h"
#include "controls/Section.h"
#include "controls/Theme.h"

namespace lumo {

Card::Card(Section* section, QWidget* parent) : QWidget(parent), m_section(section) { m_section->setParent(this); }

void Card::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
}

void Card::resizeEvent(QResizeEvent*) {
    constexpr int kPadding = theme::kCardPadding;
    // In the smallest window a section may reach into the padding at the foot.
    const int room = std::max(height() - 2 * kPadding, m_section->minimumHeight());
    m_section->setGeometry(kPadding, kPadding, width() - 2 * kPadding, room);
}

}  // namespace lumo
