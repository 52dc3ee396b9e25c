#include "keyboard/EffectRow.h"

#include <QFontMetricsF>
#include <QHelpEvent>
#include <QKeyEvent>
#include <cmath>

#include "controls/Panel.h"
#include "controls/PlainText.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kDotSize = 10;
constexpr int kPadding = 9;
constexpr int kNameX = kPadding + kDotSize + 9;

class AccessibleRow final : public AccessibleButton {
public:
    explicit AccessibleRow(EffectRow& row) : AccessibleButton(row, QAccessible::ListItem), m_row(row) {}

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        state.selectable = true;
        state.selected = m_row.isSelected();
        return state;
    }

private:
    EffectRow& m_row;
};

QColor faded(QColor color, double share) {
    color.setAlphaF(color.alphaF() * static_cast<float>(share));
    return color;
}

}  // namespace

EffectRow::EffectRow(const EffectEntry& entry, QWidget* parent)
    : QAbstractButton(parent), m_number(entry.number), m_colors(effectColors(*findLightingMode(entry.number))) {
    setText(plainText(entry.name));
    setAccessibleName(text());
    setFocusPolicy(Qt::ClickFocus);
    setAttribute(Qt::WA_Hover);
    connect(this, &QAbstractButton::pressed, this, [this] { followPointer(0); });
    connect(this, &QAbstractButton::released, this, [this] { followPointer(theme::kPressOutMs); });
}

void EffectRow::setSelected(bool selected) {
    if (selected == m_selected) return;
    m_selected = selected;
    m_selection.to(selected ? 1.0 : 0.0, theme::kSelectMs);
    update();
    QAccessibleEvent event(this, selected ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    QAccessible::updateAccessibility(&event);
}

void EffectRow::setChosenColor(const QColor& color) {
    if (color == m_chosen) return;
    m_chosen = color;
    if (m_colors == EffectColors::chosen) update();
}

QSize EffectRow::sizeHint() const {
    const double name = QFontMetricsF(theme::font(theme::kRowSelectedStyle)).horizontalAdvance(text());
    return {kNameX + static_cast<int>(std::ceil(name)) + kPadding, height()};
}

QAccessibleInterface* EffectRow::makeAccessible() { return new AccessibleRow(*this); }

bool EffectRow::event(QEvent* event) {
    switch (event->type()) {
        case QEvent::HoverEnter:
            followPointer(theme::kHoverInMs);
            break;
        case QEvent::HoverLeave:
            followPointer(theme::kHoverOutMs);
            break;
        case QEvent::ToolTip:
            showElidedName(static_cast<QHelpEvent*>(event)->globalPos());
            return true;
        default:
            break;
    }
    return QAbstractButton::event(event);
}

void EffectRow::focusInEvent(QFocusEvent* event) {
    m_showsRing = lumo::showsFocusRing(event->reason(), m_showsRing);
    QAbstractButton::focusInEvent(event);
}

void EffectRow::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            if (!event->isAutoRepeat()) click();
            return;
        case Qt::Key_Space:
            return QAbstractButton::keyPressEvent(event);
        default:
            event->ignore();
    }
}

void EffectRow::mousePressEvent(QMouseEvent* event) {
    m_showsRing = false;  // the focus may have been here before the mouse was
    QAbstractButton::mousePressEvent(event);
}

void EffectRow::followPointer(int durationMs) {
    if (isDown()) return m_overlay.to(theme::kRowPressed.alphaF(), durationMs);
    m_overlay.to(underMouse() ? theme::kRowHover.alphaF() : 0.0, durationMs);
}

QFont EffectRow::nameFont() const { return theme::font(m_selected ? theme::kRowSelectedStyle : theme::kRowStyle); }

QRectF EffectRow::nameRect() const { return QRectF(rect()).adjusted(kNameX, 0, -kPadding, 0); }

QString EffectRow::shownName() const {
    return QFontMetricsF(nameFont()).elidedText(text(), Qt::ElideRight, nameRect().width());
}

void EffectRow::showElidedName(QPoint globalPosition) {
    showPlainToolTip(globalPosition, shownName() == text() ? QString() : text(), this);
}

void EffectRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSurface(painter);
    const QRectF dot(kPadding, (height() - kDotSize) / 2.0, kDotSize, kDotSize);
    paintEffectDot(painter, dot, m_colors, m_chosen);
    paintName(painter);
    if (showsRing()) paintFocusRing(painter, rect(), theme::kRowRadius);
}

void EffectRow::paintSurface(QPainter& painter) const {
    const double share = m_selection.value();
    paintPanel(painter, rect(), theme::kRowRadius, faded(theme::kAccentSoft, share),
               faded(theme::kSelectedLine, share));
    QColor overlay = Qt::white;
    overlay.setAlphaF(static_cast<float>(m_overlay.value()));
    paintPanel(painter, rect(), theme::kRowRadius, overlay, Qt::transparent);
}

void EffectRow::paintName(QPainter& painter) const {
    const QColor atRest = isDown() ? theme::kTextRowPressed : theme::kTextRow;
    painter.setPen(m_selected ? theme::kTextRowSelected : atRest);
    painter.setFont(nameFont());
    paintTextLine(painter, nameRect(), shownName());
}

}  // namespace lumo
