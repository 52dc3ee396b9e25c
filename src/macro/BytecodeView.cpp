#include "macro/BytecodeView.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

#include "controls/Panel.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kRadius = theme::kSwatchRadius;

bool isSpace(QChar letter) { return letter == ' ' || letter == '\n'; }

/// Bytes other than zero are what the macro says; places and zeros are not.
QColor colorAtRest(const QString& word) {
    return word.endsWith(':') || word == "00" ? theme::kTextHexZero : theme::kAccentPale;
}

QColor colorSelected(const QString&) { return theme::kTextRowSelected; }

}  // namespace

BytecodeView::BytecodeView(QWidget* parent)
    : QWidget(parent),
      m_lettering(theme::kHexStyle),
      m_letterWidth(m_lettering.widthOf("0")),
      m_lineHeight(theme::kHexStyle.linePx()) {
    setFocusPolicy(Qt::NoFocus);
    setCursor(Qt::IBeamCursor);
}

void BytecodeView::setBytecode(const QString& text) {
    if (text == m_text) return;
    m_text = text;
    m_lines = text.split('\n');
    m_selection = {};
    setAccessibleName(text);
    setFocusPolicy(text.isEmpty() ? Qt::NoFocus : Qt::StrongFocus);  // there is something to read
    update();
}

void BytecodeView::setLineHeight(int height) {
    m_lineHeight = height;
    update();
}

QString BytecodeView::selectedText() const {
    return m_text.mid(m_selection.begin(), m_selection.end() - m_selection.begin());
}

std::optional<RingShape> BytecodeView::ring() const {
    if (!hasFocus() || !m_hasKeyboardFocus) return std::nullopt;
    return ringAround(rect(), kRadius);
}

QAccessibleInterface* BytecodeView::makeAccessible() { return new QAccessibleWidget(this, QAccessible::StaticText); }

int BytecodeView::lineLength() const { return static_cast<int>(m_lines.value(0).size()) + 1; }

QPointF BytecodeView::textOrigin() const {
    const double textWidth = m_letterWidth * (lineLength() - 1);
    const double textHeight = m_lineHeight * static_cast<double>(m_lines.size());
    return {(width() - textWidth) / 2.0, std::floor((height() - textHeight) / 2.0)};
}

int BytecodeView::positionAt(const QPointF& place) const {
    const QPointF inText = place - textOrigin();
    const int lastLine = static_cast<int>(m_lines.size()) - 1;
    const int line = std::clamp(static_cast<int>(std::floor(inText.y() / m_lineHeight)), 0, lastLine);
    const int column = std::clamp(static_cast<int>(std::lround(inText.x() / m_letterWidth)), 0, lineLength() - 1);
    return line * lineLength() + column;
}

void BytecodeView::select(int anchor, int head) {
    const Span selection{anchor, std::clamp(head, 0, static_cast<int>(m_text.size()))};
    if (selection == m_selection) return;
    m_selection = selection;
    update();
}

void BytecodeView::copy() const {
    if (!selectedText().isEmpty()) QGuiApplication::clipboard()->setText(selectedText());
}

void BytecodeView::focusInEvent(QFocusEvent* event) {
    m_hasKeyboardFocus = showsFocusRing(event->reason(), m_hasKeyboardFocus);
    QWidget::focusInEvent(event);
}

void BytecodeView::keyPressEvent(QKeyEvent* event) {
    const auto [anchor, head] = m_selection;
    if (event->matches(QKeySequence::Copy)) return copy();
    if (event->matches(QKeySequence::SelectAll)) return select(0, static_cast<int>(m_text.size()));
    if (event->matches(QKeySequence::SelectNextChar)) return select(anchor, head + 1);
    if (event->matches(QKeySequence::SelectPreviousChar)) return select(anchor, head - 1);
    if (event->matches(QKeySequence::SelectNextLine)) return select(anchor, head + lineLength());
    if (event->matches(QKeySequence::SelectPreviousLine)) return select(anchor, head - lineLength());
    event->ignore();
}

void BytecodeView::mousePressEvent(QMouseEvent* event) {
    m_hasKeyboardFocus = false;
    if (event->button() != Qt::LeftButton || m_text.isEmpty()) return event->ignore();
    const int at = positionAt(event->position());
    select(event->modifiers() & Qt::ShiftModifier ? m_selection.anchor : at, at);
}

void BytecodeView::mouseMoveEvent(QMouseEvent* event) {
    if (m_text.isEmpty() || !(event->buttons() & Qt::LeftButton)) return event->ignore();
    select(m_selection.anchor, positionAt(event->position()));
}

void BytecodeView::mouseReleaseEvent(QMouseEvent*) {
    QClipboard& clipboard = *QGuiApplication::clipboard();
    if (clipboard.supportsSelection() && !selectedText().isEmpty()) {
        clipboard.setText(selectedText(), QClipboard::Selection);
    }
}

void BytecodeView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (m_text.isEmpty()) return event->ignore();
    const auto at = m_text.begin() + positionAt(event->position());
    const auto end = std::find_if(at, m_text.end(), isSpace);
    const auto begin = std::find_if(std::make_reverse_iterator(at), m_text.rend(), isSpace).base();
    select(static_cast<int>(begin - m_text.begin()), static_cast<int>(end - m_text.begin()));
}

void BytecodeView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), kRadius, theme::kInset, theme::kRowLine);
    for (int line = 0; line < m_lines.size(); ++line) {
        paintLine(painter, line, colorAtRest);
        paintSelection(painter, line);
    }
}

void BytecodeView::paintLine(QPainter& painter, int line, Coloring colorOf) const {
    const QPointF corner = textOrigin() + QPointF(0.0, line * m_lineHeight);
    int column = 0;
    for (const QString& word : m_lines[line].split(' ')) {
        painter.setPen(colorOf(word));
        m_lettering.paint(painter, QRectF(corner + QPointF(column * m_letterWidth, 0.0), QSizeF(width(), m_lineHeight)),
                          word);
        column += static_cast<int>(word.size()) + 1;
    }
}

/// Over the line as it is painted at rest: a selection may begin and end inside a byte.
void BytecodeView::paintSelection(QPainter& painter, int line) const {
    const int lineBegin = line * lineLength();
    const int begin = std::clamp(m_selection.begin() - lineBegin, 0, lineLength() - 1);
    const int end = std::clamp(m_selection.end() - lineBegin, 0, lineLength() - 1);
    if (begin == end) return;
    const QPointF corner = textOrigin() + QPointF(begin * m_letterWidth, line * m_lineHeight);
    const QRectF area(corner, QSizeF((end - begin) * m_letterWidth, m_lineHeight));
    painter.save();
    painter.setClipRect(area);
    painter.fillRect(area, theme::kAccent);
    paintLine(painter, line, colorSelected);
    painter.restore();
}

}  // namespace lumo
