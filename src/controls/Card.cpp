#include "controls/Card.h"

#include <QPainter>
#include <algorithm>

#include "controls/Panel.h"
#include "controls/Section.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kPadding = theme::kCardPadding;
constexpr int kLeastFoot = 6;

}  // namespace

Card::Card(Section* section, QWidget* parent) : QWidget(parent), m_section(section) { m_section->setParent(this); }

int Card::leastHeight() const { return kPadding + m_section->minimumHeight() + kLeastFoot; }

void Card::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
}

void Card::resizeEvent(QResizeEvent*) {
    // In the smallest window a section may reach into the padding at the foot.
    const int room = std::max(height() - 2 * kPadding, m_section->minimumHeight());
    m_section->setGeometry(kPadding, kPadding, width() - 2 * kPadding, room);
}

}  // namespace lumo
