#include "controls/Lettering.h"

#include <QFontMetricsF>
#include <QPainterPath>
#include <cmath>

namespace lumo {
namespace {

// Qt's fonts come in whole pixels only: a size between two is a large font, scaled down.
constexpr double kFractionScale = 0.1;

bool isWhole(double size) { return size == std::floor(size); }

theme::TextStyle scaledUp(theme::TextStyle style, double scale) {
    style.sizePx = std::round(style.sizePx / scale);
    return style;
}

/// Letters that stand on a whole row of pixels are sharp at their feet.
QPointF onWholePixel(const QPainter& painter, QPointF baseline) {
    const QTransform toPixels = painter.deviceTransform();
    QPointF pixel = toPixels.map(baseline);
    pixel.setY(std::round(pixel.y()));
    return toPixels.inverted().map(pixel);
}

void drawLetters(QPainter& painter, const QPointF& baseline, const QString& text) {
#ifdef Q_OS_MACOS
    painter.drawText(baseline, text);
#else
    // FreeType thickens the stems of fonts like Inter: as glyphs on a dark ground, regular would look semibold.
    QPainterPath outlines;
    outlines.addText(baseline, painter.font(), text);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.fillPath(outlines, painter.pen().brush());
#endif
}

/// With the painter at the feet of the first letter, in the font's own size.
template <typename Draw>
void atBaseline(QPainter& painter, const QRectF& rect, const QFont& font, double scale, Draw draw) {
    const QFontMetricsF metrics(font);
    const double height = (metrics.ascent() + metrics.descent()) * scale;
    const double baseline = rect.center().y() - height / 2.0 + metrics.ascent() * scale;
    painter.save();
    painter.setFont(font);
    painter.translate(onWholePixel(painter, QPointF(rect.left(), baseline)));
    painter.scale(scale, scale);
    draw();
    painter.restore();
}

}  // namespace

Lettering::Lettering(const theme::TextStyle& style)
    : m_scale(isWhole(style.sizePx) ? 1.0 : kFractionScale), m_isTabular(style.isTabular) {
    m_font = theme::font(scaledUp(style, m_scale));
}

double Lettering::advanceOf(QChar letter) const {
    return QFontMetricsF(m_font).horizontalAdvance(letter.isDigit() ? QChar('0') : letter);
}

double Lettering::widthOf(const QString& text) const {
    if (!m_isTabular) return QFontMetricsF(m_font).horizontalAdvance(typeset(text)) * m_scale;
    double width = 0.0;
    for (const QChar letter : text) width += advanceOf(letter);
    return width * m_scale;
}

QString Lettering::elided(const QString& text, double width) const {
    if (m_isTabular && widthOf(text) <= width) return text;
    return QFontMetricsF(m_font).elidedText(typeset(text), Qt::ElideRight, width / m_scale);
}

void Lettering::paint(QPainter& painter, const QRectF& rect, const QString& text) const {
    atBaseline(painter, rect, m_font, m_scale, [&] {
        if (!m_isTabular) return drawLetters(painter, {}, typeset(text));
        double x = 0.0;
        for (const QChar letter : text) {
            const double spare = advanceOf(letter) - QFontMetricsF(m_font).horizontalAdvance(letter);
            drawLetters(painter, {x + spare / 2.0, 0.0}, letter);
            x += advanceOf(letter);
        }
    });
}

QPainterPath Lettering::outlines(const QString& text) const {
    QPainterPath path;
    path.addText({}, m_font, typeset(text));
    return QTransform::fromScale(m_scale, m_scale).map(path);
}

QString typeset(const QString& text) {
    constexpr QChar kZeroWidthNonJoiner(0x200C);
    QString set = text;
    return set.replace("0x", QString("0") + kZeroWidthNonJoiner + 'x');
}

void paintTextLine(QPainter& painter, const QRectF& rect, const QString& text) {
    atBaseline(painter, rect, painter.font(), 1.0, [&] { drawLetters(painter, {}, typeset(text)); });
}

}  // namespace lumo
