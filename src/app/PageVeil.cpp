#include "app/PageVeil.h"

#include <QPainter>

#include "controls/Fade.h"
#include "controls/Motion.h"
#include "controls/Theme.h"

namespace lumo {

PageVeil::PageVeil(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
    m_thickness.setStartValue(1.0);
    m_thickness.setEndValue(0.0);
    m_thickness.setEasingCurve(QEasingCurve::OutQuad);
    connect(&m_thickness, &QVariantAnimation::valueChanged, this, [this] { update(); });
    connect(&m_thickness, &QVariantAnimation::finished, this, &QWidget::hide);
}

void PageVeil::lift() {
    m_thickness.stop();
    m_thickness.setDuration(motionIsReduced() ? theme::kReducedMs : theme::kPageMs);
    setGeometry(parentWidget()->rect());
    raise();
    show();
    m_thickness.start();
}

void PageVeil::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(rect(), faded(theme::kWindow, m_thickness.currentValue().toDouble()));
}

}  // namespace lumo
