#include "app/HeaderBar.h"

#include <QContextMenuEvent>
#include <QMenu>
#include <QPainter>

#include "app/ConnectionDot.h"
#include "app/ProfileBar.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

#ifdef Q_OS_MACOS
constexpr int kMarkX = 84;  // right of the window buttons
#else
constexpr int kMarkX = theme::kWindowMargin;
#endif
constexpr int kTitleX = kMarkX + BrandButton::kMarkSize + 8;
constexpr int kDotToText = 8;
constexpr int kLongestConnection = 220;
constexpr int kGap = 16;  // on both sides of the separator
constexpr int kSeparatorHeight = 20;
constexpr int kDivider = 1;

int rowHeight() { return theme::grown(44); }

int markY() { return (rowHeight() - BrandButton::kMarkSize) / 2; }

void place(QWidget& line, int x, int width) {
    const int height = line.sizeHint().height();
    line.setGeometry(x, (rowHeight() - height) / 2, width, height);
}

}  // namespace

int HeaderBar::barHeight() { return rowHeight() + kDivider; }

HeaderBar::HeaderBar(QAction* quit, QWidget* parent)
    : QWidget(parent),
      m_brand(quit ? new BrandButton(*quit, this) : nullptr),
      m_title(new TextLine(theme::kBrandStyle, theme::kText, this)),
      m_profiles(new ProfileBar(this)),
      m_dot(new ConnectionDot(this)),
      m_connection(new TextLine(theme::kLinkStyle, theme::kTextLink, this)) {
    m_title->setText("VEXA LUMO 65");
    place(*m_title, kTitleX, m_title->sizeHint().width());
    if (m_brand) m_brand->move(kMarkX - BrandButton::kRoom, markY() - BrandButton::kRoom);
    connect(m_profiles, &ProfileBar::chosen, this, &HeaderBar::profileChosen);
}

void HeaderBar::setActiveProfile(std::int64_t number) { m_profiles->setSelected(number); }

void HeaderBar::setConnection(bool isConnected, std::string_view connectionType) {
    m_dot->setConnected(isConnected);
    if (m_connection->setText(connectionType)) placeRightGroup();
}

void HeaderBar::contextMenuEvent(QContextMenuEvent* event) {
    if (!m_brand) return event->ignore();
    m_brand->menu()->popup(event->globalPos());
}

void HeaderBar::placeRightGroup() {
    const int others = m_title->geometry().right() + 1 + kGap + m_profiles->sizeHint().width() + kGap + 1 + kGap +
                       ConnectionDot::kDiameter + kDotToText + theme::kWindowMargin;
    const int room = std::max(0, std::min(theme::widened(kLongestConnection), width() - others));
    const int textWidth = m_connection->widthWithin(room);
    const int textX = width() - theme::kWindowMargin - textWidth;
    place(*m_connection, textX, textWidth);
    const int dotX = textX - kDotToText - ConnectionDot::kDiameter;
    m_dot->move(dotX - ConnectionDot::kGlowReach, (rowHeight() - m_dot->height()) / 2);
    m_separatorX = dotX - kGap - 1;
    place(*m_profiles, m_separatorX - kGap - m_profiles->sizeHint().width(), m_profiles->sizeHint().width());
    update();
}

void HeaderBar::resizeEvent(QResizeEvent*) { placeRightGroup(); }

void HeaderBar::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.fillRect(0, rowHeight(), width(), 1, theme::kHeaderLine);
    painter.fillRect(m_separatorX, (rowHeight() - kSeparatorHeight) / 2, 1, kSeparatorHeight, theme::kHeaderSeparator);
    if (m_brand) return;
    m_mark.paint(painter, QRectF(kMarkX, markY(), BrandButton::kMarkSize, BrandButton::kMarkSize), theme::kAccent);
}

}  // namespace lumo
