#include "system/SettingsActions.h"

#include "app/UIState.h"
#include "device/VexaProtocol.h"

namespace lumo {

void SettingsActions::editDebounce() { m_link.setDebounce(static_cast<std::int64_t>(m_state.debounceMs.get())); }

void SettingsActions::restoreFactorySettings() { m_link.factoryReset(); }

}  // namespace lumo
