#include "controls/HeadedCard.h"

#include <QPainter>

#include "controls/Panel.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {

HeadedCard::HeadedCard(QWidget* heading, QWidget* parent) : QWidget(parent), m_heading(heading) {
    m_heading->setParent(this);
}

QAccessibleInterface* HeadedCard::makeAccessible() { return new AccessibleGroup(*this, *m_heading); }

void HeadedCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
}

QWidget* makeHeading(std::string_view text) {
    auto* const heading = new TextLine(theme::kSectionStyle, theme::kTextSection, nullptr);
    heading->setText(text);
    return heading;
}

}  // namespace lumo
