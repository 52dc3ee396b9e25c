#include "system/PermissionRow.h"

#include <QPainter>
#include <algorithm>
#include <utility>

#include "controls/IconButton.h"
#include "controls/Panel.h"
#include "controls/PushButton.h"
#include "controls/Symbol.h"
#include "controls/TextBlock.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"
#include "system/StatusBadge.h"

namespace lumo {
namespace {

constexpr int kIconSize = 30;
constexpr double kIconRadius = 8.0;
constexpr int kSymbolSize = 18;
constexpr int kTextX = 40;
constexpr int kTitleToBadge = 8;
constexpr int kMostLines = 2;
constexpr int kAboveAndBelow = 15;
constexpr int kButtonPadding = 10;
constexpr int kButtonGap = 6;
constexpr int kTextToButton = 10;
constexpr double kGearSize = 16.0;
constexpr QColor kSubtitleColor{0xAC, 0xAC, 0xB2};

int buttonHeight() { return theme::grown(24); }

int subtitleHeight() { return kMostLines * theme::kFineStyle.linePx(); }

int centred(int height) { return (PermissionRow::rowHeight() - height) / 2; }

/// Beside the subtitle alone.
int lowButtonTop() {
    const int titleHeight = theme::kStrongStyle.linePx();
    return centred(titleHeight + subtitleHeight()) + titleHeight + (subtitleHeight() - buttonHeight()) / 2;
}

QRect iconField() { return {0, centred(kIconSize), kIconSize, kIconSize}; }

}  // namespace

int PermissionRow::rowHeight() { return theme::kStrongStyle.linePx() + subtitleHeight() + kAboveAndBelow; }

PermissionRow::PermissionRow(QString icon, std::string_view title, std::string_view subtitle, bool isAuthorized,
                             const std::function<void()>& onRequest, const std::function<void()>& onOpenSettings,
                             QWidget* parent)
    : QWidget(parent),
      m_icon(std::move(icon)),
      m_title(new TextLine(theme::kStrongStyle, theme::kText, this)),
      m_badge(new StatusBadge(this)),
      m_subtitle(new TextBlock(theme::kFineStyle, kSubtitleColor, kMostLines, this)),
      m_request(new PushButton("Request Access", look::kSmallPrimary, this)),
      m_gear(new IconButton("Open System Settings", "gearshape", kGearSize, this, look::kFilled)) {
    m_title->setText(title);
    m_subtitle->setText(subtitle);
    setAccessibleName(m_title->text());
    connect(m_request, &QAbstractButton::clicked, this, onRequest);
    connect(m_gear, &QAbstractButton::clicked, this, onOpenSettings);
    setAuthorized(isAuthorized);
}

void PermissionRow::setAuthorized(bool isAuthorized) {
    if (isAuthorized == m_isAuthorized) return;
    m_isAuthorized = isAuthorized;
    m_badge->setGranted(isAuthorized);
    if (isAuthorized) m_request->handFocusTo(*m_gear);
    m_request->setVisible(!isAuthorized);
    place();
    update();
}

QAccessibleInterface* PermissionRow::makeAccessible() { return new QAccessibleWidget(this, QAccessible::Grouping); }

void PermissionRow::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintPanel(painter, iconField(), kIconRadius, m_isAuthorized ? theme::kOkFill : theme::kWarnFill, Qt::transparent);
    QRectF frame(0.0, 0.0, kSymbolSize, kSymbolSize);
    frame.moveCenter(QRectF(iconField()).center());
    paintSymbol(painter, frame, m_icon, m_isAuthorized ? theme::kTextOk : theme::kTextWarn);
}

void PermissionRow::resizeEvent(QResizeEvent*) { place(); }

void PermissionRow::place() {
    const int requestWidth = m_isAuthorized ? 0 : m_request->widthWith(kButtonPadding);
    const int gearX = width() - IconButton::kSmallSize;
    const int requestX = m_isAuthorized ? gearX : gearX - kButtonGap - requestWidth;
    const int textWidth = requestX - kTextToButton - kTextX;
    const int headingWidth = m_title->sizeHint().width() + kTitleToBadge + m_badge->sizeHint().width();
    // In a narrow window title and badge may need the whole width: the buttons then make way.
    const bool makesWay = headingWidth > textWidth;
    const int buttonTop = makesWay ? lowButtonTop() : centred(buttonHeight());
    const int gearTop = buttonTop + (buttonHeight() - IconButton::kSmallSize) / 2;
    m_gear->setGeometry(gearX, gearTop, IconButton::kSmallSize, IconButton::kSmallSize);
    m_request->setGeometry(requestX, buttonTop, requestWidth, buttonHeight());
    const int shownSubtitle = m_subtitle->heightWithin(textWidth);
    const int top = (height() - m_title->sizeHint().height() - shownSubtitle) / 2;
    placeHeading(top, makesWay ? width() - kTextX : textWidth);
    m_subtitle->setGeometry(kTextX, m_title->geometry().bottom() + 1, textWidth, shownSubtitle);
}

void PermissionRow::placeHeading(int top, int width) {
    const QSize title = m_title->sizeHint();
    const QSize badge = m_badge->sizeHint();
    const int titleWidth = std::min(title.width(), width - kTitleToBadge - badge.width());
    m_title->setGeometry(kTextX, top, titleWidth, title.height());
    m_badge->setGeometry({{kTextX + titleWidth + kTitleToBadge, top}, badge});
}

}  // namespace lumo
