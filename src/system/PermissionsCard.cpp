#include "system/PermissionsCard.h"

#include <QPainter>
#include <algorithm>

#include "controls/Panel.h"
#include "controls/PushButton.h"
#include "controls/Section.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"
#include "system/PermissionManager.h"
#include "system/PermissionRow.h"
#include "system/TccNotice.h"

namespace lumo {
namespace {

constexpr int kPadding = 8;
constexpr int kSidePadding = 14;
constexpr int kRefreshPadding = 7;
constexpr int kRelaunchPadding = 10;
constexpr double kSymbolSize = 14.0;
constexpr int kMostRoomAboveRows = 13;
constexpr int kRowsToNotice = 5;
constexpr int kNoticeToFoot = 8;

int buttonHeight() { return theme::kPermissionsHeadingStyle.linePx(); }

int rowsHeight() { return 2 * PermissionRow::rowHeight() + 1; }  // and the line between them

int innerWidth(int width) { return width - 2 * kSidePadding; }

PermissionRow* makeMicrophoneRow(PermissionManager& permissions, QWidget* parent) {
    return new PermissionRow(
        "mic.fill", "Microphone Access",
        "Required for Mode 17 Real-Time Audio Equalizer to sample system frequency bands.",
        permissions.isMicrophoneAuthorized.get(), [&permissions] { permissions.requestMicrophoneAccess(); },
        [&permissions] { permissions.openSystemSettings(PermissionType::microphone); }, parent);
}

PermissionRow* makeKeysRow(PermissionManager& permissions, QWidget* parent) {
    return new PermissionRow(
        "keyboard.fill", "Accessibility & Input Monitoring",
        "Required for Macro Studio to capture keystrokes and timing across macOS apps.",
        permissions.isInputMonitoringAuthorized.get(), [&permissions] { permissions.requestInputMonitoringAccess(); },
        [&permissions] { permissions.openSystemSettings(PermissionType::inputMonitoring); }, parent);
}

}  // namespace

PermissionsCard::PermissionsCard(PermissionManager& permissions, QWidget* parent)
    : QWidget(parent),
      m_permissions(permissions),
      m_section(new Section("MACOS SYSTEM PERMISSIONS & INTEGRATION", theme::kPermissionsHeadingStyle, this)),
      m_refresh(new PushButton("Refresh Status", look::kSmallQuiet, m_section)),
      m_microphone(makeMicrophoneRow(permissions, m_section)),
      m_keys(makeKeysRow(permissions, m_section)),
      m_notice(new TccNotice(m_section)),
      m_line(new TextLine(theme::kFineStyle, QColor(0xB9, 0xB9, 0xBE), m_section)),
      m_relaunch(new PushButton("Relaunch App", look::kSmallPrimary, m_section)) {
    m_line->setText("If you recently updated permissions in System Settings:");
    m_refresh->setSymbol("arrow.clockwise", kSymbolSize);
    m_relaunch->setSymbol("arrow.triangle.2.circlepath", kSymbolSize);
    connect(m_refresh, &QAbstractButton::clicked, this, [this] { m_permissions.checkPermissions(); });
    connect(m_relaunch, &QAbstractButton::clicked, this, [this] { m_permissions.relaunchApp(); });
}

void PermissionsCard::refresh() {
    m_microphone->setAuthorized(m_permissions.isMicrophoneAuthorized.get());
    m_keys->setAuthorized(m_permissions.isInputMonitoringAuthorized.get());
}

int PermissionsCard::leastHeightWithin(int width) const {
    return kPadding + buttonHeight() + rowsHeight() + kRowsToNotice + m_notice->heightWithin(innerWidth(width)) +
           kNoticeToFoot + buttonHeight() + kPadding;
}

void PermissionsCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
    painter.fillRect(kSidePadding, m_lineY, innerWidth(width()), 1, theme::kRowLine);
}

void PermissionsCard::resizeEvent(QResizeEvent*) {
    m_section->setGeometry(rect().adjusted(kSidePadding, kPadding, -kSidePadding, 0));
    const int inner = m_section->width();
    const int refreshWidth = m_refresh->widthWith(kRefreshPadding);
    m_refresh->setGeometry(inner - refreshWidth, 0, refreshWidth, buttonHeight());
    const int spare = height() - leastHeightWithin(width()) - 2;
    int top = buttonHeight() + std::clamp(spare, 0, kMostRoomAboveRows);
    m_microphone->setGeometry(0, top, inner, PermissionRow::rowHeight());
    top += PermissionRow::rowHeight();
    m_lineY = kPadding + top;
    ++top;
    m_keys->setGeometry(0, top, inner, PermissionRow::rowHeight());
    placeFoot(top + PermissionRow::rowHeight() + kRowsToNotice);
}

void PermissionsCard::placeFoot(int top) {
    const int inner = m_section->width();
    const int noticeHeight = m_notice->heightWithin(inner);
    m_notice->setGeometry(0, top, inner, noticeHeight);
    const int footTop = top + noticeHeight + kNoticeToFoot;
    const int relaunchWidth = m_relaunch->widthWith(kRelaunchPadding);
    m_relaunch->setGeometry(inner - relaunchWidth, footTop, relaunchWidth, buttonHeight());
    m_line->setGeometry(0, footTop, inner - relaunchWidth - kRelaunchPadding, buttonHeight());
}

}  // namespace lumo
