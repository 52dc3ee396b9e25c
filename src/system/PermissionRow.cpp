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

constexpr QRect kIconField{0, 14, 30, 30};
constexpr double kIconRadius = 8.0;
constexpr int kSymbolSize = 18;
constexpr int kTextX = 40;
constexpr int kTitleToBadge = 8;
constexpr int kMostLines = 2;
constexpr int kButtonTop = 17;
constexpr int kLowButtonTop = 25;  // beside the subtitle alone
constexpr int kButtonHeight = 24;
constexpr int kButtonPadding = 10;
constexpr int kButtonGap = 6;
constexpr int kTextToButton = 10;
constexpr double kGearSize = 16.0;
constexpr QColor kSubtitleColor{0xAC, 0xAC, 0xB2};

}  // namespace

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
    paintPanel(painter, kIconField, kIconRadius, m_isAuthorized ? theme::kOkFill : theme::kWarnFill, Qt::transparent);
    QRectF frame(0.0, 0.0, kSymbolSize, kSymbolSize);
    frame.moveCenter(QRectF(kIconField).center());
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
    const int buttonTop = makesWay ? kLowButtonTop : kButtonTop;
    m_gear->setGeometry(gearX, buttonTop, IconButton::kSmallSize, IconButton::kSmallSize);
    m_request->setGeometry(requestX, buttonTop, requestWidth, kButtonHeight);
    const int subtitleHeight = m_subtitle->heightWithin(textWidth);
    const int top = (height() - m_title->sizeHint().height() - subtitleHeight) / 2;
    placeHeading(top, makesWay ? width() - kTextX : textWidth);
    m_subtitle->setGeometry(kTextX, m_title->geometry().bottom() + 1, textWidth, subtitleHeight);
}

void PermissionRow::placeHeading(int top, int width) {
    const QSize title = m_title->sizeHint();
    const QSize badge = m_badge->sizeHint();
    const int titleWidth = std::min(title.width(), width - kTitleToBadge - badge.width());
    m_title->setGeometry(kTextX, top, titleWidth, title.height());
    m_badge->setGeometry({{kTextX + titleWidth + kTitleToBadge, top}, badge});
}

}  // namespace lumo
