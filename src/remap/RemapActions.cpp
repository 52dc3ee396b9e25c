#include "remap/RemapActions.h"

#include <string>
#include <vector>

#include "app/UIState.h"
#include "device/VexaProtocol.h"
#include "keyboard/KeyboardModel.h"
#include "remap/FactoryCode.h"

namespace lumo {
namespace {

std::vector<std::uint8_t> toVector(const KeyCode& code) { return {code.begin(), code.end()}; }

}  // namespace

void RemapActions::chooseCategory(std::string_view key) { m_state.remapCategory.set(std::string(key)); }

void RemapActions::assignAction(std::string_view name, const KeyCode& bytes, std::uint32_t /*dword*/) {
    if (m_keyboard.selectedKeyIds.get().empty()) {
        return m_link.statusMessage.set("Please select a switch on the keyboard first.");
    }
    const KeyCap* const target = m_keyboard.firstSelectedKey();
    if (!target) return;
    const KeyCap key = *target;  // the next line makes the keys anew
    m_keyboard.bindKey(key.id, toVector(bytes), std::string(name));
    m_link.setKeyRemap(key.matrixPos, toVector(bytes));
    m_link.statusMessage.set("Assigned switch '" + key.label + "' -> " + std::string(name));
}

void RemapActions::saveKeyMatrix() {
    std::size_t count = 0;
    for (const KeyCap& key : m_keyboard.keys.get()) {
        if (!key.remapBytes) continue;
        m_link.setKeyRemap(key.matrixPos, *key.remapBytes);
        ++count;
    }
    m_link.statusMessage.set(std::to_string(count) + " key assignments saved to keyboard memory.");
}

void RemapActions::resetToDefaults() {
    m_keyboard.unbindKeys();
    for (const KeyCap& key : m_keyboard.keys.get()) m_link.setKeyRemap(key.matrixPos, toVector(factoryCode(key)));
    m_link.statusMessage.set("All 67 switches restored to factory default mappings.");
}

}  // namespace lumo
