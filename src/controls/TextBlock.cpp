#include "controls/TextBlock.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>

#include "controls/PlainText.h"
#include "controls/TextLine.h"

namespace lumo {

TextBlock::TextBlock(const theme::TextStyle& style, const QColor& color, int mostLines, QWidget* parent)
    : QWidget(parent), m_lettering(style), m_color(color), m_linePx(style.linePx), m_mostLines(mostLines) {}

void TextBlock::setText(std::string_view text) {
    const QString plain = plainText(text);
    if (plain == m_text) return;
    m_text = plain;
    setAccessibleName(m_text);
    breakLines();
    update();
}

QAccessibleInterface* TextBlock::makeAccessible() { return new QAccessibleWidget(this, QAccessible::StaticText); }

bool TextBlock::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    showPlainToolTip(static_cast<QHelpEvent*>(event)->globalPos(), m_isElided ? m_text : QString(), this);
    return true;
}

void TextBlock::breakLines() {
    m_lines.clear();
    m_isElided = false;
    const QString text = typeset(m_text);
    QTextLayout layout(text, m_lettering.font());
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid() && !m_isElided; line = layout.createLine()) {
        line.setLineWidth(width() * m_lettering.unitsPerPoint());
        const bool isLast = m_lines.size() + 1 == m_mostLines;
        const QString rest = text.mid(line.textStart());
        m_isElided = isLast && line.textLength() < rest.size();
        const QString whole = rest.left(line.textLength()).trimmed();
        m_lines += m_isElided ? m_lettering.elided(rest, width()) : whole;
    }
    layout.endLayout();
}

void TextBlock::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(m_color);
    double top = (height() - m_linePx * static_cast<double>(m_lines.size())) / 2.0;
    for (const QString& line : m_lines) {
        m_lettering.paint(painter, QRectF(0.0, top, width(), m_linePx), line);
        top += m_linePx;
    }
}

void TextBlock::resizeEvent(QResizeEvent*) { breakLines(); }

}  // namespace lumo
