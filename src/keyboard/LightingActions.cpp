#include "keyboard/LightingActions.h"

#include "app/UIState.h"
#include "device/VexaProtocol.h"
#include "keyboard/KeyboardModel.h"
#include "keyboard/PresetColors.h"

namespace lumo {
namespace {

constexpr std::int64_t kStaticModeId = 1;

}  // namespace

void LightingActions::chooseEffect(std::int64_t number) {
    m_link.activeModeId.set(number);
    if (paintsKeys(number)) {
        m_keyboard.syncToDevice();
    } else {
        updateDeviceLighting();
    }
}

void LightingActions::pickColor(const Color& color) {
    m_state.selectedColor.set(color);
    if (!paintsKeys(m_link.activeModeId.get())) return updateDeviceLighting();
    if (m_keyboard.selectedKeyIds.get().empty()) return m_keyboard.applyColorToAll(color);
    m_keyboard.applyColorToSelection(color);
}

void LightingActions::pickPresetColor(std::int64_t index) {
    if (index < 0 || index >= static_cast<std::int64_t>(kPresetColors.size())) return;
    pickColor(kPresetColors[static_cast<std::size_t>(index)]);
}

void LightingActions::paintSelected() { m_keyboard.applyColorToSelection(m_state.selectedColor.get()); }

void LightingActions::fillAll() {
    m_keyboard.selectPresetGroup("All");
    paintSelected();
}

void LightingActions::applyRainbow() { m_keyboard.applyRainbowPreset(); }

void LightingActions::updateDeviceLighting() {
    const Color color = m_state.selectedColor.get();
    if (m_link.activeModeId.get() == kStaticModeId) m_keyboard.showColorOnAll(color);
    m_link.setLightingMode(m_link.activeModeId.get(), static_cast<std::int64_t>(m_state.speedLevel.get()),
                           static_cast<std::int64_t>(m_state.brightnessLevel.get()), toBytes(color));
}

}  // namespace lumo
