#include "controls/TextLine.h"

#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <cmath>

#include "controls/PlainText.h"

namespace lumo {
TextLine::TextLine(const theme::TextStyle& style, const QColor& color, QWidget* parent)
    : QWidget(parent), m_lettering(style), m_color(color), m_linePx(style.linePx()) {}

bool TextLine::setText(std::string_view text) {
    const QString plain = plainText(text);
    if (plain == m_text) return false;
    m_text = plain;
    setAccessibleName(m_text);
    m_shown.reset();
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
    m_lettering.paint(painter, rect(), shown());
}

void TextLine::resizeEvent(QResizeEvent*) { m_shown.reset(); }

const QString& TextLine::shown() const {
    if (!m_shown) m_shown = elided(width());
    return *m_shown;
}

QString TextLine::elided(int width) const { return m_lettering.elided(m_text, width); }

int TextLine::widthOf(const QString& text) const { return static_cast<int>(std::ceil(m_lettering.widthOf(text))); }

void showPlainToolTip(QPoint globalPosition, const QString& text, QWidget* widget) {
    if (text.isEmpty()) return QToolTip::hideText();
    QToolTip::showText(globalPosition, "<span>" + text.toHtmlEscaped() + "</span>", widget);
}

}  // namespace lumo
