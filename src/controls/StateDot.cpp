#include "controls/StateDot.h"

#include <QPainter>

#include "controls/Theme.h"

namespace lumo {

StateDot::StateDot(QWidget* parent) : QWidget(parent) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    nameState();
}

void StateDot::setGranted(bool isGranted) {
    if (isGranted == m_isGranted) return;
    m_isGranted = isGranted;
    nameState();
    update();
}

void StateDot::nameState() { setAccessibleName(m_isGranted ? "Granted" : "Not Granted"); }

QAccessibleInterface* StateDot::makeAccessible() { return new QAccessibleWidget(this, QAccessible::Graphic); }

void StateDot::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_isGranted ? theme::kOk : theme::kWarn);
    painter.drawEllipse(QRectF(rect()));
}

}  // namespace lumo
