#include "keyboard/EffectRow.h"

#include <QFontMetricsF>
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

}  // namespace

EffectRow::EffectRow(const EffectEntry& entry, QWidget* parent)
    : PushControl(plainText(entry.name), QAccessible::ListItem, parent),
      m_number(entry.number),
      m_colors(effectColors(*findLightingMode(entry.number))) {}

void EffectRow::setChosenColor(const QColor& color) {
    if (color == m_chosen) return;
    m_chosen = color;
    if (m_colors == EffectColors::chosen) update();
}

QSize EffectRow::sizeHint() const {
    const double name = QFontMetricsF(theme::font(theme::kRowSelectedStyle)).horizontalAdvance(text());
    return {kNameX + static_cast<int>(std::ceil(name)) + kPadding, height()};
}

RingShape EffectRow::ringShape() const { return {rect(), theme::kRowRadius}; }

QString EffectRow::toolTipText() const { return shownName() == text() ? QString() : text(); }

QFont EffectRow::nameFont() const { return theme::font(isSelected() ? theme::kRowSelectedStyle : theme::kRowStyle); }

QRectF EffectRow::nameRect() const { return QRectF(rect()).adjusted(kNameX, 0, -kPadding, 0); }

QString EffectRow::shownName() const {
    return QFontMetricsF(nameFont()).elidedText(text(), Qt::ElideRight, nameRect().width());
}

void EffectRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSurface(painter);
    const QRectF dot(kPadding, (height() - kDotSize) / 2.0, kDotSize, kDotSize);
    paintEffectDot(painter, dot, m_colors, m_chosen);
    paintName(painter);
}

void EffectRow::paintSurface(QPainter& painter) const {
    paintPanel(painter, rect(), theme::kRowRadius, faded(theme::kAccentSoft, selection()),
               faded(theme::kSelectedLine, selection()));
    const QColor overlay = mix(faded(theme::kRowHover, hover()), theme::kRowPressed, press());
    paintPanel(painter, rect(), theme::kRowRadius, overlay, Qt::transparent);
}

void EffectRow::paintName(QPainter& painter) const {
    const QColor atRest = isDown() ? theme::kTextRowPressed : theme::kTextRow;
    painter.setPen(isSelected() ? theme::kTextRowSelected : atRest);
    painter.setFont(nameFont());
    paintTextLine(painter, nameRect(), shownName());
}

}  // namespace lumo
