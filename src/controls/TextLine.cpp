#include "controls/TextLine.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QPainter>
#include <QPainterPath>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "controls/PlainText.h"

namespace lumo {
namespace {

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

}  // namespace

TextLine::TextLine(const theme::TextStyle& style, const QColor& color, QWidget* parent)
    : QWidget(parent), m_color(color), m_linePx(style.linePx) {
    setFont(theme::font(style));
}

bool TextLine::setText(std::string_view text) {
    const QString plain = plainText(text);
    if (plain == m_text) return false;
    m_text = plain;
    setAccessibleName(m_text);
    m_shown = elided(width());
    update();
    return true;
}

QSize TextLine::sizeHint() const { return {widthOf(m_text), m_linePx}; }

int TextLine::widthWithin(int limit) const {
    const int whole = sizeHint().width();
    // Elided text does not fit into exactly its own width: it would lose another letter there.
    return whole <= limit ? whole : std::min(limit, widthOf(elided(limit)) + 1);
}

QAccessibleInterface* TextLine::makeAccessible() { return new QAccessibleWidget(this, QAccessible::StaticText); }

bool TextLine::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    showPlainToolTip(static_cast<QHelpEvent*>(event)->globalPos(), isElided() ? m_text : QString(), this);
    return true;
}

void TextLine::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(m_color);
    paintTextLine(painter, rect(), m_shown);
}

void TextLine::resizeEvent(QResizeEvent*) { m_shown = elided(width()); }

QString TextLine::elided(int width) const { return QFontMetricsF(font()).elidedText(m_text, Qt::ElideRight, width); }

int TextLine::widthOf(const QString& text) const {
    return static_cast<int>(std::ceil(QFontMetricsF(font()).horizontalAdvance(text)));
}

void paintTextLine(QPainter& painter, const QRectF& rect, const QString& text) {
    const QFontMetricsF metrics(painter.font());
    const double top = rect.center().y() - (metrics.ascent() + metrics.descent()) / 2.0;
    drawLetters(painter, onWholePixel(painter, QPointF(rect.left(), top + metrics.ascent())), text);
}

void showPlainToolTip(QPoint globalPosition, const QString& text, QWidget* widget) {
    if (text.isEmpty()) return QToolTip::hideText();
    QToolTip::showText(globalPosition, "<span>" + text.toHtmlEscaped() + "</span>", widget);
}

}  // namespace lumo
