#include "keyboard/EffectRow.h"

#include "controls/PlainText.h"

namespace lumo {
namespace {

constexpr int kDotSize = 10;
constexpr int kDotX = 9;
constexpr int kNameX = kDotX + kDotSize + 9;

}  // namespace

EffectRow::EffectRow(const EffectEntry& entry, QWidget* parent)
    : ListRow(plainText(entry.name), QAccessible::ListItem, {.nameX = kNameX}, parent),
      m_number(entry.number),
      m_colors(effectColors(*findLightingMode(entry.number))) {}

void EffectRow::setChosenColor(const QColor& color) {
    if (color == m_chosen) return;
    m_chosen = color;
    if (m_colors == EffectColors::chosen) update();
}

void EffectRow::paintMark(QPainter& painter) const {
    const QRectF dot(kDotX, (height() - kDotSize) / 2.0, kDotSize, kDotSize);
    paintEffectDot(painter, dot, m_colors, m_chosen);
}

}  // namespace lumo
