#include "system/SettingsView.h"

#include <algorithm>
#include <array>

#include "app/UIState.h"
#include "controls/Columns.h"
#include "controls/Theme.h"
#include "device/VexaProtocol.h"
#include "system/DeviceSheet.h"
#include "system/HardwareTuningCard.h"
#include "system/PermissionManager.h"
#include "system/PermissionsCard.h"

namespace lumo {
namespace {

constexpr int kShortest = 380;
constexpr int kCardsTop = HardwareTuningCard::kHeight + theme::kCardGap;
constexpr std::array<Column, 2> kColumns{Column{420.0, 404.0}, Column{496.0}};

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
    setMinimumHeight(kShortest);
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
    m_tuning->setGeometry(0, 0, width(), HardwareTuningCard::kHeight);
    const auto columns = divide(width(), theme::kCardGap, kColumns);
    // Another interface font may need more lines than ours.
    setMinimumHeight(std::max(kShortest, kCardsTop + m_permissions->leastHeightWithin(columns[1].length)));
    const int cardHeight = height() - kCardsTop;
    m_sheet->setGeometry(columns[0].begin, kCardsTop, columns[0].length, cardHeight);
    m_permissions->setGeometry(columns[1].begin, kCardsTop, columns[1].length, cardHeight);
}

}  // namespace lumo
