#include "controls/BrandMark.h"

#include "controls/Fade.h"
#include "controls/Symbol.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

QRectF scaled(const QRectF& rect, double factor) {
    QRectF result(QPointF(), rect.size() * factor);
    result.moveCenter(rect.center());
    return result;
}

}  // namespace

void BrandMark::paint(QPainter& painter, const QRectF& rect, const QColor& fill) const {
    const QString hexagon = QStringLiteral("hexagon.fill");
    // The violet hardly differs from the header: a lighter rim, about a point wide, keeps its outline.
    paintSymbol(painter, scaled(rect, 1.07), hexagon, mix(fill, theme::kAccentLine, 0.6));
    paintSymbol(painter, scaled(rect, 0.96), hexagon, fill);
}

}  // namespace lumo
