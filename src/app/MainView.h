// The window's content: header, navigation, keyboard, page and status bar, and the prompts over them.
#pragma once

#include <QWidget>
#include <optional>

#include "app/NavTab.h"
#include "controls/LatePopup.h"
#include "foundation/CoalescedRefresh.h"
#include "foundation/Observable.h"

class QAction;

namespace lumo {

class HeaderBar;
class KeyboardView;
class NavigationBar;
class PageArea;
class PermissionManager;
class PermissionToast;
class StatusBar;
class UIState;
class VexaProtocol;

/// Main thread. Asks for the shared objects, which outlive it. Laid out for 900 x 680 points and up.
class MainView final : public QWidget {
    Q_OBJECT

public:
    /// `quit` becomes the one item of the menu behind the header's hexagon, and outlives this view; null where the
    /// system itself shows the program's menu.
    explicit MainView(QAction* quit, QWidget* parent = nullptr);

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    void makeShortcut(NavTab tab);
    void switchProfile(std::int64_t number);
    void showTab(NavTab tab);
    void showPermissions();
    void placePage();
    void refresh();

    VexaProtocol& m_link;
    UIState& m_state;
    PermissionManager& m_permissions;
    HeaderBar* m_header;
    NavigationBar* m_navigation;
    KeyboardView* m_keyboard;
    PageArea* m_page;
    StatusBar* m_status;
    PermissionToast* m_toast;
    LatePopup m_welcome;
    LatePopup m_recheck;
    std::optional<NavTab> m_shownTab;
    CoalescedRefresh m_refresh;
    CoalescedRefresh m_permissionRefresh;  // apart: grants are looked at every two seconds
    Subscription m_linkChanges;
    Subscription m_stateChanges;
    Subscription m_permissionChanges;
};

}  // namespace lumo
