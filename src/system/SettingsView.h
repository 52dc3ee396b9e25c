// The settings page.
#pragma once

#include <QWidget>

#include "foundation/CoalescedRefresh.h"
#include "foundation/Observable.h"
#include "system/SettingsActions.h"

namespace lumo {

class DeviceSheet;
class HardwareTuningCard;
class PermissionManager;
class PermissionsCard;

/// Main thread. Shows what the three objects hold, which outlive it, and holds nothing of its own.
class SettingsView final : public QWidget {
    Q_OBJECT

public:
    SettingsView(VexaProtocol& link, UIState& state, PermissionManager& permissions, MainQueue main, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void connectControls();
    void refresh();

    UIState& m_state;
    SettingsActions m_actions;
    HardwareTuningCard* m_tuning;
    DeviceSheet* m_sheet;
    PermissionsCard* m_permissions;
    CoalescedRefresh m_refresh;
    Subscription m_linkChanges;
    Subscription m_stateChanges;
    Subscription m_permissionChanges;
};

}  // namespace lumo
