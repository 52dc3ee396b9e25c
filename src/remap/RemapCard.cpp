#include "remap/RemapCard.h"

#include <QPainter>

#include "app/AssetManager.h"
#include "controls/Panel.h"
#include "controls/Picture.h"
#include "controls/PlainText.h"
#include "controls/PushButton.h"
#include "controls/Symbol.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kIconSize = 32.0;
constexpr double kIconGap = 8.0;
constexpr double kLeastPadding = 6.0;
constexpr QColor kSymbolColor{0xE4, 0xE4, 0xE8};
constexpr PressColors kFill{theme::kTile, theme::kTileHover, theme::kTilePressed};
constexpr PressColors kLine{theme::kTileLine, theme::kTileLineHover, theme::kTileLine};
constexpr PressColors kName{theme::kTextTile, theme::white(100), theme::kTextRowPressed};

double contentHeight() { return kIconSize + kIconGap + theme::kTileStyle.linePx(); }

}  // namespace

RemapCard::RemapCard(const RemapItem& item, QWidget* parent)
    : PushControl(plainText(item.name), QAccessible::PushButton, parent),
      m_icon("fun55x55/" + item.iconFile),
      m_lettering(theme::kTileStyle) {}

RingShape RemapCard::ringShape() const { return ringAround(rect(), theme::kBoxRadius); }

QString RemapCard::shownName() const { return m_lettering.elided(text(), width() - 2.0 * kLeastPadding); }

QSize RemapCard::sizeHint() const {
    return {static_cast<int>(std::ceil(m_lettering.widthOf(text()) + 2.0 * kLeastPadding)), height()};
}

bool RemapCard::isElided() const { return shownName() != typeset(text()); }

QString RemapCard::toolTipText() const { return isElided() ? text() : QString(); }

void RemapCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSurface(painter);
    const double top = (height() - contentHeight()) / 2.0;
    paintIcon(painter, {(width() - kIconSize) / 2.0, top, kIconSize, kIconSize});
    paintName(painter, top + kIconSize + kIconGap);
}

void RemapCard::paintSurface(QPainter& painter) const {
    paintPanel(painter, rect(), theme::kBoxRadius, mix(kFill.at(hover(), press()), theme::kAccentSoft, selection()),
               mix(kLine.at(hover(), press()), theme::kSelectedLine, selection()));
}

void RemapCard::paintIcon(QPainter& painter, const QRectF& frame) const {
    const QImage picture = AssetManager::shared().image(m_icon);
    if (picture.isNull()) return paintSymbol(painter, frame, "circle.grid.2x2", kSymbolColor);
    paintPicture(painter, frame, picture);
}

void RemapCard::paintName(QPainter& painter, double top) const {
    painter.setPen(mix(kName.at(hover(), press()), theme::kTextRowSelected, selection()));
    const QString name = shownName();
    const double left = (width() - m_lettering.widthOf(name)) / 2.0;
    m_lettering.paint(painter, QRectF(left, top, width() - left, theme::kTileStyle.linePx()), name);
}

}  // namespace lumo
