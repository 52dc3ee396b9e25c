#include "keyboard/KeyboardActions.h"

#include "app/UIState.h"
#include "device/VexaProtocol.h"
#include "keyboard/KeyboardModel.h"

namespace lumo {

void KeyboardActions::pointerEntered(const std::string& keyId) { m_state.hoveredKeyId.set(keyId); }

void KeyboardActions::pointerLeft() { m_state.hoveredKeyId.set(std::nullopt); }

void KeyboardActions::click(const std::string& keyId, bool multiSelect) {
    m_keyboard.selectKey(keyId, multiSelect);
    if (paintsKeys(m_link.activeModeId.get())) m_keyboard.paintKey(keyId, m_state.selectedColor.get());
}

void KeyboardActions::chooseLayer(std::int64_t number) { m_keyboard.activeLayer.set(number); }

void KeyboardActions::choosePreset(std::string_view name) {
    if (name == kClearPreset) return m_keyboard.selectedKeyIds.set({});
    m_keyboard.selectPresetGroup(name);
}

}  // namespace lumo
