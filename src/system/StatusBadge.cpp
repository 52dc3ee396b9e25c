#include "system/StatusBadge.h"

#include <QPainter>

#include "controls/Panel.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kPadding = 7;

int badgeHeight() { return theme::kBadgeStyle.linePx(); }

}  // namespace

StatusBadge::StatusBadge(QWidget* parent)
    : QWidget(parent),
      m_granted(new TextLine(theme::kBadgeStyle, theme::kTextOk, this)),
      m_missing(new TextLine(theme::kBadgeStyle, theme::kTextWarn, this)) {
    m_granted->setText("Granted");
    m_missing->setText("Not Granted");
    m_granted->hide();
}

TextLine& StatusBadge::shown() const { return m_isGranted ? *m_granted : *m_missing; }

void StatusBadge::setGranted(bool isGranted) {
    if (isGranted == m_isGranted) return;
    m_isGranted = isGranted;
    m_granted->setVisible(isGranted);
    m_missing->setVisible(!isGranted);
    update();
}

QSize StatusBadge::sizeHint() const { return {shown().sizeHint().width() + 2 * kPadding, badgeHeight()}; }

void StatusBadge::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), badgeHeight() / 2.0, m_isGranted ? theme::kOkFill : theme::kWarnFill, Qt::transparent);
}

void StatusBadge::resizeEvent(QResizeEvent*) {
    for (TextLine* const line : {m_granted, m_missing}) line->setGeometry(rect().adjusted(kPadding, 0, -kPadding, 0));
}

}  // namespace lumo
