#include "app/NaviPillButton.h"

#include <QLinearGradient>
#include <QPainter>
#include <cmath>

#include "app/AssetManager.h"
#include "controls/Panel.h"
#include "controls/PlainText.h"
#include "controls/Symbol.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr double kIconSize = 20.0;
constexpr double kSymbolSize = 14.0;
constexpr double kIconGap = 8.0;
constexpr double kLeastPadding = 4.0;
constexpr double kRadius = 8.0;
constexpr double kRingReach = 2.0;  // the ring stays inside the track, which is 3 points wider
constexpr QColor kSymbolColor{0xB5, 0xB5, 0xBB};
constexpr QColor kSelectedTop{0x55, 0x10, 0xC6};
constexpr QColor kSelectedBottom{0x3D, 0x0B, 0x93};

QRectF centred(const QRectF& frame, double size) {
    QRectF square(0.0, 0.0, size, size);
    square.moveCenter(frame.center());
    return square;
}

}  // namespace

NaviPillButton::NaviPillButton(NavTab tab, bool isSelected, std::function<void()> action, QWidget* parent)
    : PushControl(plainText(labelOf(tab).title), QAccessible::PageTab, parent),
      m_tab(tab),
      m_lettering(theme::kNavStyle) {
    setSelected(isSelected);
    connect(this, &QAbstractButton::clicked, this, std::move(action));
}

RingShape NaviPillButton::ringShape() const {
    const QRectF outer = QRectF(rect()).adjusted(-kRingReach, -kRingReach, kRingReach, kRingReach);
    return {outer, kRadius + kRingReach};
}

double NaviPillButton::iconRoom(bool hasIcon) { return hasIcon ? kIconSize + kIconGap : 0.0; }

int NaviPillButton::leastWidth(bool hasIcon) const {
    return static_cast<int>(std::ceil(iconRoom(hasIcon) + m_lettering.widthOf(text()) + 2.0 * kLeastPadding));
}

void NaviPillButton::setHasIcon(bool hasIcon) {
    m_hasIcon = hasIcon;
    update();
}

QString NaviPillButton::shownTitle() const {
    return m_lettering.elided(text(), width() - iconRoom() - 2.0 * kLeastPadding);
}

QString NaviPillButton::toolTipText() const { return shownTitle() == text() ? QString() : text(); }

void NaviPillButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintSurface(painter);
    const QString title = shownTitle();
    const double left = (width() - iconRoom() - m_lettering.widthOf(title)) / 2.0;
    const QRectF all = rect();
    if (m_hasIcon) paintIcon(painter, QRectF(left, all.center().y() - kIconSize / 2.0, kIconSize, kIconSize));
    painter.setPen(mix(theme::kTextNav, Qt::white, selection()));
    m_lettering.paint(painter, all.adjusted(left + iconRoom(), 0, 0, 0), title);
}

void NaviPillButton::paintSurface(QPainter& painter) const {
    const QColor overlay = mix(faded(theme::kRowHover, hover()), theme::kRowPressed, press());
    paintPanel(painter, rect(), kRadius, overlay, Qt::transparent);
    if (selection() == 0.0) return;
    QLinearGradient fill(0.0, 0.0, 0.0, height());
    fill.setColorAt(0.0, faded(kSelectedTop, selection()));
    fill.setColorAt(1.0, faded(kSelectedBottom, selection()));
    paintPanel(painter, rect(), kRadius, fill, faded(theme::kAccentLine, 0.6 * selection()));
}

void NaviPillButton::paintIcon(QPainter& painter, const QRectF& frame) const {
    const NavTabLabel& label = labelOf(m_tab);
    const QImage picture = AssetManager::shared().image(isSelected() ? label.iconActive : label.iconNormal);
    if (picture.isNull()) {
        return paintSymbol(painter, centred(frame, kSymbolSize), plainText(label.fallbackSymbol),
                           isSelected() ? kSymbolColor : Qt::white);
    }
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(frame, picture);
}

}  // namespace lumo
