#include "controls/Symbol.h"

#include <QFile>
#include <QSvgRenderer>

#include "controls/SymbolCache.h"
#include "platform/qt/WindowSystem.h"

namespace lumo {
namespace {

QImage drawOurs(const QString& name, QSize pixels) {
    const QString path = ":/symbols/" + name + ".svg";
    if (!QFile::exists(path)) return {};  // Qt would say so on the console, at every frame
    QImage shape(pixels, QImage::Format_ARGB32_Premultiplied);
    shape.fill(Qt::transparent);
    QPainter drawing(&shape);
    QSvgRenderer(path).render(&drawing);
    return shape;
}

QImage drawShape(const QString& name, QSize pixels) {
    const QImage system = window_system::systemSymbol(name, pixels);
    return system.isNull() ? drawOurs(name, pixels) : system;
}

SymbolCache& sharedCache() {
    static SymbolCache cache(drawShape);
    return cache;
}

}  // namespace

void paintSymbol(QPainter& painter, const QRectF& rect, const QString& name, const QColor& tint) {
    const QSize pixels = (rect.size() * painter.device()->devicePixelRatioF()).toSize();
    const QImage symbol = sharedCache().tinted(name, pixels, tint);
    if (symbol.isNull()) return;
    const bool wasSmooth = painter.testRenderHint(QPainter::SmoothPixmapTransform);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(rect, symbol);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, wasSmooth);
}

}  // namespace lumo
