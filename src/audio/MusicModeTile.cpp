#include "audio/MusicModeTile.h"

#include <QPainter>

#include "controls/Lettering.h"
#include "controls/Panel.h"
#include "controls/PlainText.h"
#include "controls/PushButton.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kPadding = 12;
constexpr PressColors kFill{theme::kTile, theme::kTileHover, theme::kTilePressed};
constexpr PressColors kLine{theme::kTileLine, theme::kTileLineHover, theme::kTileLine};
constexpr PressColors kName{theme::kTextRow, theme::white(100), theme::kTextRowPressed};

Lettering lettering(bool isSelected) { return Lettering(isSelected ? theme::kRowSelectedStyle : theme::kRowStyle); }

}  // namespace

MusicModeTile::MusicModeTile(const MusicMode& mode, QWidget* parent)
    : PushControl(plainText(mode.name), QAccessible::ListItem, parent), m_id(mode.id) {}

RingShape MusicModeTile::ringShape() const { return ringAround(rect(), theme::kRowRadius); }

QRectF MusicModeTile::nameRect() const { return QRectF(rect()).adjusted(kPadding, 0, -kPadding, 0); }

bool MusicModeTile::isElided() const { return lettering(isSelected()).widthOf(text()) > nameRect().width(); }

QString MusicModeTile::toolTipText() const { return isElided() ? text() : QString(); }

void MusicModeTile::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, rect(), theme::kRowRadius, mix(kFill.at(hover(), press()), theme::kAccentSoft, selection()),
               mix(kLine.at(hover(), press()), theme::kSelectedLine, selection()));
    painter.setPen(mix(kName.at(hover(), press()), theme::kTextRowSelected, selection()));
    const Lettering letters = lettering(isSelected());
    letters.paint(painter, nameRect(), letters.elided(text(), nameRect().width()));
}

}  // namespace lumo
