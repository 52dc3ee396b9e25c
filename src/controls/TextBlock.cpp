#include "controls/TextBlock.h"

#include <QHelpEvent>
#include <QPainter>
#include <QTextLayout>

#include "controls/PlainText.h"
#include "controls/TextLine.h"

namespace lumo {

TextBlock::TextBlock(const theme::TextStyle& style, const QColor& color, int mostLines, QWidget* parent)
    : QWidget(parent), m_lettering(style), m_color(color), m_linePx(style.linePx()), m_mostLines(mostLines) {}

void TextBlock::setText(std::string_view text) {
    const QString plain = plainText(text);
    if (plain == m_text) return;
    m_text = plain;
    setAccessibleName(m_text);
    m_shown.reset();
    update();
}

QAccessibleInterface* TextBlock::makeAccessible() { return new QAccessibleWidget(this, QAccessible::StaticText); }

bool TextBlock::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return QWidget::event(event);
    showPlainToolTip(static_cast<QHelpEvent*>(event)->globalPos(), shown().isElided ? m_text : QString(), this);
    return true;
}

void TextBlock::centreLines() {
    m_isCentred = true;
    update();
}

int TextBlock::heightWithin(int width) const { return m_linePx * static_cast<int>(broken(width).lines.size()); }

TextBlock::Broken TextBlock::broken(int width) const {
    Broken result;
    const QString text = typeset(m_text);
    QTextLayout layout(text, m_lettering.font());
    layout.setFormats(m_lettering.formats(text));
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid() && !result.isElided; line = layout.createLine()) {
        line.setLineWidth(width * m_lettering.unitsPerPoint());
        const bool isLast = result.lines.size() + 1 == m_mostLines;
        const QString rest = text.mid(line.textStart());
        result.isElided = isLast && line.textLength() < rest.size();
        const QString whole = rest.left(line.textLength()).trimmed();
        result.lines += result.isElided ? m_lettering.elided(rest, width) : whole;
    }
    layout.endLayout();
    return result;
}

const TextBlock::Broken& TextBlock::shown() const {
    if (!m_shown) m_shown = broken(width());
    return *m_shown;
}

void TextBlock::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setPen(m_color);
    const QStringList& lines = shown().lines;
    double top = (height() - m_linePx * static_cast<double>(lines.size())) / 2.0;
    for (const QString& line : lines) {
        const double left = m_isCentred ? (width() - m_lettering.widthOf(line)) / 2.0 : 0.0;
        m_lettering.paint(painter, QRectF(left, top, width() - left, m_linePx), line);
        top += m_linePx;
    }
}

void TextBlock::resizeEvent(QResizeEvent*) { m_shown.reset(); }

}  // namespace lumo
