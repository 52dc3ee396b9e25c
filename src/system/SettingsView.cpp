#include "system/SettingsView.h"

#include <algorithm>
#include <array>

#include "app/UIState.h"
#include "controls/CardRows.h"
#include "controls/Theme.h"
#include "device/VexaProtocol.h"
#include "system/DeviceSheet.h"
#include "system/HardwareTuningCard.h"
#include "system/PermissionManager.h"
#include "system/PermissionsCard.h"

namespace lumo {
namespace {

constexpr int kShortest = 380;
constexpr int kLeastSheet = 404;
constexpr int kLeastPermissions = 430;

}  // namespace

SettingsView::SettingsView(VexaProtocol& link, UIState& state, PermissionManager& permissions, MainQueue main,
                           QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_actions(link, state),
      m_tuning(new HardwareTuningCard(main, this)),
      m_sheet(new DeviceSheet(this)),
      m_permissions(new PermissionsCard(permissions, this)),
      m_refresh(main, [this] { refresh(); }),
      m_linkChanges(link.observe([this] { m_refresh.request(); })),
      m_stateChanges(state.observe([this] { m_refresh.request(); })),
      m_permissionChanges(permissions.observe([this] { m_refresh.request(); })) {
    connectControls();
    refresh();
}

void SettingsView::connectControls() {
    connect(m_tuning, &HardwareTuningCard::sleepMinutesChanged, this,
            [this](double minutes) { m_state.sleepMinutes.set(minutes); });
    connect(m_tuning, &HardwareTuningCard::debounceMsChanged, this, [this](double ms) { m_state.debounceMs.set(ms); });
    connect(m_tuning, &HardwareTuningCard::debounceEdited, this, [this] { m_actions.editDebounce(); });
    connect(m_tuning, &HardwareTuningCard::restoreFactorySettings, this,
            [this] { m_actions.restoreFactorySettings(); });
}

void SettingsView::refresh() {
    m_tuning->setSleepMinutes(m_state.sleepMinutes.get());
    m_tuning->setDebounceMs(m_state.debounceMs.get());
    m_permissions->refresh();
}

void SettingsView::resizeEvent(QResizeEvent*) {
    const int tuningHeight = m_tuning->heightWithin(width());
    m_tuning->setGeometry(0, 0, width(), tuningHeight);
    const auto least = [](int width) { return static_cast<double>(theme::widened(width)); };
    const CardColumn sheet{{420.0, least(kLeastSheet)},
                           [this](int) { return m_sheet->leastHeight(); },
                           [this](const QRect& place) { m_sheet->setGeometry(place); }};
    const CardColumn permissions{{496.0, least(kLeastPermissions)},
                                 [this](int width) { return m_permissions->leastHeightWithin(width); },
                                 [this](const QRect& place) { m_permissions->setGeometry(place); }};
    placeCards(*this, kShortest, std::array{sheet, permissions}, tuningHeight + theme::kCardGap);
}

}  // namespace lumo
