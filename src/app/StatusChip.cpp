#include "app/StatusChip.h"

#include <QPainter>

#include "controls/Panel.h"
#include "controls/StateDot.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kPadding = 8;
constexpr int kDotSize = 6;
constexpr int kLabelX = kPadding + kDotSize + 6;

int chipHeight() { return theme::grown(18); }

}  // namespace

StatusChip::StatusChip(std::string_view label, QWidget* parent)
    : QWidget(parent), m_dot(new StateDot(this)), m_label(new TextLine(theme::kFineStyle, theme::kTextFixed, this)) {
    m_label->setText(label);
    m_dot->setGeometry(kPadding, (chipHeight() - kDotSize) / 2, kDotSize, kDotSize);
    const QSize text = m_label->sizeHint();
    m_label->setGeometry(kLabelX, (chipHeight() - text.height()) / 2, text.width(), text.height());
}

void StatusChip::setGranted(bool isGranted) { m_dot->setGranted(isGranted); }

bool StatusChip::isGranted() const { return m_dot->isGranted(); }

QSize StatusChip::sizeHint() const { return {kLabelX + m_label->width() + kPadding, chipHeight()}; }

void StatusChip::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), chipHeight() / 2.0, theme::kChip, Qt::transparent);
}

}  // namespace lumo
