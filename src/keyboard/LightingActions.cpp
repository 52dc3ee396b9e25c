#include "keyboard/LightingActions.h"

#include "app/UIState.h"
#include "device/VexaProtocol.h"
#include "keyboard/KeyboardModel.h"

namespace lumo {
namespace {

constexpr std::int64_t kStaticModeId = 1;

}  // namespace

void LightingActions::chooseEffect(std::int64_t number) {
    m_link.activeModeId.set(number);
    if (number == kPerKeyModeId || number == kRotatingStormModeId) {
        m_keyboard.syncToDevice();
    } else {
        updateDeviceLighting();
    }
}

void LightingActions::updateDeviceLighting() {
    const Color color = m_state.selectedColor.get();
    if (m_link.activeModeId.get() == kStaticModeId) m_keyboard.showColorOnAll(color);
    m_link.setLightingMode(m_link.activeModeId.get(), static_cast<std::int64_t>(m_state.speedLevel.get()),
                           static_cast<std::int64_t>(m_state.brightnessLevel.get()), toBytes(color));
}

}  // namespace lumo
