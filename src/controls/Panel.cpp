#include "controls/Panel.h"

#include "controls/Theme.h"

namespace lumo {

void paintPanel(QPainter& painter, const QRectF& rect, double radius, const QBrush& fill, const QColor& line) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(fill);
    painter.drawRoundedRect(rect, radius, radius);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(line, 1.0));
    painter.drawRoundedRect(rect.adjusted(0.5, 0.5, -0.5, -0.5), radius - 0.5, radius - 0.5);
}

void paintCard(QPainter& painter, const QRectF& rect) {
    paintPanel(painter, rect, theme::kCardRadius, theme::kCard, theme::kCardLine);
}

void paintFocusRing(QPainter& painter, const QRectF& rect, double outerRadius) {
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(theme::kFocus, 2.0));
    painter.drawRoundedRect(rect.adjusted(1.0, 1.0, -1.0, -1.0), outerRadius - 1.0, outerRadius - 1.0);
}

bool showsFocusRing(Qt::FocusReason reason, bool before) {
    switch (reason) {
        case Qt::MouseFocusReason:
            return false;
        case Qt::ActiveWindowFocusReason:
        case Qt::PopupFocusReason:
            return before;
        default:
            return true;
    }
}

}  // namespace lumo
