#include "controls/ListRow.h"

#include <cmath>

#include "controls/Panel.h"

namespace lumo {

ListRow::ListRow(const QString& name, QAccessible::Role role, const Looks& looks, QWidget* parent)
    : PushControl(name, role, parent),
      m_nameX(looks.nameX),
      m_padding(looks.padding),
      m_lettering(looks.style),
      m_selectedLettering(looks.selectedStyle) {}

void ListRow::setName(const QString& name) { rename(name); }

QSize ListRow::sizeHint() const {
    return {m_nameX + static_cast<int>(std::ceil(m_selectedLettering.widthOf(text()))) + m_padding, height()};
}

RingShape ListRow::ringShape() const { return {rect(), theme::kRowRadius}; }

QString ListRow::toolTipText() const { return shownName() == typeset(text()) ? QString() : text(); }

QRectF ListRow::nameRect() const { return QRectF(rect()).adjusted(m_nameX, 0, -m_padding, 0); }

QString ListRow::shownName() const { return lettering().elided(text(), nameRect().width()); }

void ListRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSurface(painter);
    paintMark(painter);
    paintName(painter);
}

void ListRow::paintSurface(QPainter& painter) const {
    paintPanel(painter, rect(), theme::kRowRadius, faded(theme::kAccentSoft, selection()),
               faded(theme::kSelectedLine, selection()));
    const QColor overlay = mix(faded(theme::kRowHover, hover()), theme::kRowPressed, press());
    paintPanel(painter, rect(), theme::kRowRadius, overlay, Qt::transparent);
}

void ListRow::paintName(QPainter& painter) const {
    const QColor atRest = isDown() ? theme::kTextRowPressed : theme::kTextRow;
    painter.setPen(isSelected() ? theme::kTextRowSelected : atRest);
    lettering().paint(painter, nameRect(), shownName());
}

}  // namespace lumo
