#include "controls/Symbol.h"

#include <QSvgRenderer>

namespace lumo {

void Symbol::paint(QPainter& painter, const QRectF& rect, const QColor& tint) {
    const QSize pixels = (rect.size() * painter.device()->devicePixelRatioF()).toSize();
    if (m_shape.size() != pixels) drawShape(pixels);
    QImage tinted = m_shape;
    QPainter tinting(&tinted);
    tinting.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tinting.fillRect(tinted.rect(), tint);
    tinting.end();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect, tinted);
}

void Symbol::drawShape(QSize pixels) {
    m_shape = QImage(pixels, QImage::Format_ARGB32_Premultiplied);
    m_shape.fill(Qt::transparent);
    QPainter drawing(&m_shape);
    QSvgRenderer(m_path).render(&drawing);
}

}  // namespace lumo
