#include "app/MainView.h"

#include <QMouseEvent>
#include <QPainter>
#include <QShortcut>
#include <QWindow>
#include <algorithm>
#include <chrono>

#include "app/HeaderBar.h"
#include "app/NavigationBar.h"
#include "app/PageArea.h"
#include "app/SharedObjects.h"
#include "app/StatusBar.h"
#include "audio/MusicVisualizerView.h"
#include "controls/Columns.h"
#include "controls/FocusRing.h"
#include "controls/Theme.h"
#include "foundation/ReferenceDate.h"
#include "keyboard/KeyboardView.h"
#include "keyboard/LightingControlView.h"
#include "macro/MacroEditorView.h"
#include "remap/KeyRemapView.h"
#include "system/PermissionManager.h"
#include "system/PermissionToast.h"
#include "system/RecheckPopup.h"
#include "system/SettingsView.h"
#include "system/WelcomePopup.h"

namespace lumo {
namespace {

constexpr int kWidestColumn = 1040;
constexpr int kHeaderToNavigation = 8;
constexpr int kNavigationToKeyboard = 3;
constexpr int kPageToStatus = 12;

MainQueue mainQueue() { return SharedObjects::current().mainQueue(); }

double frameTime() { return secondsSinceReferenceDate(std::chrono::system_clock::now()); }

/// Where what stands below the header begins and ends.
Extent contentColumn(const QWidget& view) {
    const int width = std::min(view.width() - 2 * theme::kWindowMargin, theme::widened(kWidestColumn));
    return {(view.width() - width) / 2, width};
}

QWidget* makePage(NavTab tab) {
    VexaProtocol& link = VexaProtocol::shared();
    UIState& state = UIState::shared();
    KeyboardModel& keyboard = KeyboardModel::shared();
    switch (tab) {
        case NavTab::keyAssign:
            return new KeyRemapView(link, state, keyboard, mainQueue(), nullptr);
        case NavTab::lighting:
            return new LightingControlView(link, state, keyboard, mainQueue(), nullptr);
        case NavTab::macro:
            return new MacroEditorView(link, state, mainQueue(), nullptr);
        case NavTab::music:
            return new MusicVisualizerView(link, AudioVisualizerEngine::shared(), state, PermissionManager::shared(),
                                           mainQueue(), nullptr);
        case NavTab::settings:
            break;
    }
    return new SettingsView(link, state, PermissionManager::shared(), mainQueue(), nullptr);
}

}  // namespace

MainView::MainView(QAction* quit, QWidget* parent)
    : QWidget(parent),
      m_link(VexaProtocol::shared()),
      m_state(UIState::shared()),
      m_permissions(PermissionManager::shared()),
      m_header(new HeaderBar(quit, this)),
      m_navigation(new NavigationBar(m_state.currentTab.get(), this)),
      m_keyboard(new KeyboardView(m_link, m_state, KeyboardModel::shared(), mainQueue(), frameTime, this)),
      m_page(new PageArea(this)),
      m_status(new StatusBar(this)),
      m_toast(new PermissionToast(m_permissions, m_state, this)),
      m_welcome([this] { return makeWelcomePopup(m_permissions, m_state, this); }),
      m_recheck([this] { return makeRecheckPopup(m_permissions, m_state, this); }),
      m_refresh(mainQueue(), [this] { refresh(); }),
      m_permissionRefresh(mainQueue(), [this] { showPermissions(); }),
      m_linkChanges(m_link.observe([this] { m_refresh.request(); })),
      m_stateChanges(m_state.observe([this] { m_refresh.request(); })),
      m_permissionChanges(m_permissions.observe([this] { m_permissionRefresh.request(); })) {
    setAttribute(Qt::WA_OpaquePaintEvent);
    for (const NavTab tab : kAllTabs) makeShortcut(tab);
    new FocusRing(*this);
    connect(m_header, &HeaderBar::profileChosen, this, &MainView::switchProfile);
    connect(m_navigation, &NavigationBar::chosen, this, [this](NavTab tab) { m_state.currentTab.set(tab); });
    connect(m_toast, &PermissionToast::shareChanged, this, &MainView::placePage);
    refresh();
    // A turn later, behind the first check of the grants: the prompts that it takes away again never come up.
    m_permissionRefresh.request();
}

/// Control and the page's number; Qt's name for Command on macOS. A popup keeps all keys to itself.
void MainView::makeShortcut(NavTab tab) {
    const QKeySequence keys(static_cast<int>(Qt::CTRL) | (Qt::Key_0 + static_cast<int>(rawValue(tab))));
    connect(new QShortcut(keys, this), &QShortcut::activated, this, [this, tab] {
        if (!m_welcome.isShown() && !m_recheck.isShown()) m_state.currentTab.set(tab);
    });
}

void MainView::switchProfile(std::int64_t number) {
    m_state.activeProfile.set(number);
    m_link.statusMessage.set("Switched to Profile " + std::to_string(number));
}

void MainView::refresh() {
    m_header->setActiveProfile(m_state.activeProfile.get());
    m_header->setConnection(m_link.isConnected.get(), m_link.connectionType.get());
    m_navigation->setSelected(m_state.currentTab.get());
    showTab(m_state.currentTab.get());
    m_status->setMessage(m_link.statusMessage.get());
}

void MainView::showPermissions() {
    m_status->setGrants(m_permissions.isMicrophoneAuthorized.get(), m_permissions.isInputMonitoringAuthorized.get());
    m_toast->setShown(m_permissions.showPermissionToast.get());
    m_welcome.setShown(m_permissions.showFirstLaunchPopup.get());
    m_recheck.setShown(m_permissions.showRecheckPopup.get());
}

void MainView::showTab(NavTab tab) {
    if (tab == m_shownTab) return;
    m_shownTab = tab;
    m_page->setPage(makePage(tab));
    m_toast->comeLastInTabOrder();  // the new page's controls came last
}

// It shows no focus. Qt would paint all of it anew, also when another window takes the keyboard or gives it back.
void MainView::focusInEvent(QFocusEvent*) {}

void MainView::focusOutEvent(QFocusEvent*) {}

void MainView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    if (QWindow* const handle = window()->windowHandle()) handle->startSystemMove();
}

void MainView::paintEvent(QPaintEvent* event) {
    QPainter painter(this);
    painter.fillRect(event->rect(), theme::kWindow);
}

void MainView::showEvent(QShowEvent*) {
    // A window without a focus of its own begins on its first control, which would show no ring for it.
    if (!window()->focusWidget()) setFocus();
}

void MainView::resizeEvent(QResizeEvent*) {
    const auto [left, room] = contentColumn(*this);
    const int statusTop = height() - StatusBar::barHeight();
    m_header->setGeometry(0, 0, width(), HeaderBar::barHeight());
    m_navigation->setGeometry(left, HeaderBar::barHeight() + kHeaderToNavigation, room, NavigationBar::barHeight());
    const int keyboardTop = m_navigation->geometry().bottom() + 1 + kNavigationToKeyboard;
    const int keyboardWidth = room + KeyboardView::kShadow;
    m_keyboard->setGeometry(left - KeyboardView::kShadow, keyboardTop, keyboardWidth,
                            m_keyboard->heightWithin(keyboardWidth));
    m_status->setGeometry(0, statusTop, width(), StatusBar::barHeight());
    m_toast->setRoom(room);
    m_toast->setCorner({width() - theme::kWindowMargin, statusTop - kPageToStatus});
    placePage();
    for (LatePopup* const popup : {&m_welcome, &m_recheck}) popup->setGeometry(rect());
}

void MainView::placePage() {
    // The page makes room for the toast, so that this never covers a control.
    const int below = kPageToStatus + qRound(m_toast->share() * (m_toast->height() + kPageToStatus));
    const auto [left, room] = contentColumn(*this);
    const int top = m_keyboard->geometry().bottom() + 1;
    m_page->place({left, top, room, height() - StatusBar::barHeight() - below - top}, width());
}

}  // namespace lumo
