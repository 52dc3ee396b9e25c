#include "macro/MacroActions.h"

#include <string>
#include <utility>

#include "app/UIState.h"
#include "device/VexaProtocol.h"
#include "macro/BytecodeText.h"

namespace lumo {
namespace {

constexpr std::uint8_t kSpace = 32;
constexpr std::int64_t kInsertedDelayMs = 25;
constexpr std::uint8_t kDigit1 = 49;
constexpr std::int64_t kNewMacroDelayMs = 20;

void append(std::vector<MacroEvent>& events, std::uint8_t keyCode, std::int64_t delayMs) {
    for (const bool isDown : {true, false}) events.push_back({Uuid::random(), keyCode, isDown, delayMs});
}

template <typename Item>
bool isIndexOf(const std::vector<Item>& items, std::int64_t index) {
    return index >= 0 && index < std::ssize(items);
}

}  // namespace

void MacroActions::selectMacro(std::int64_t index) {
    const std::vector<MacroItem>& macros = m_state.macroList.get();
    if (!isIndexOf(macros, index)) return;
    MacroItem macro = macros[static_cast<std::size_t>(index)];
    m_state.selectedMacroIndex.set(index);
    m_state.macroName.set(std::move(macro.name));
    edit(std::move(macro.events));
}

void MacroActions::addNewMacro() {
    std::vector<MacroItem> macros = m_state.macroList.get();
    const std::int64_t count = std::ssize(macros) + 1;
    MacroItem macro("Macro " + std::to_string(count), {});
    append(macro.events, kDigit1, kNewMacroDelayMs);
    macros.push_back(std::move(macro));
    m_state.macroList.set(std::move(macros));
    selectMacro(count - 1);
}

void MacroActions::deleteMacro() {
    std::vector<MacroItem> macros = m_state.macroList.get();
    const std::int64_t index = m_state.selectedMacroIndex.get();
    if (macros.size() < 2 || !isIndexOf(macros, index)) return;
    macros.erase(macros.begin() + index);
    m_state.macroList.set(std::move(macros));
    selectMacro(0);
}

void MacroActions::addKeyStep() {
    std::vector<MacroEvent> events = m_state.macroEvents.get();
    append(events, kSpace, kInsertedDelayMs);
    edit(std::move(events));
}

void MacroActions::deleteStep(std::int64_t index) {
    if (!isIndexOf(m_state.macroEvents.get(), index)) return;
    std::vector<MacroEvent> events = m_state.macroEvents.get();
    events.erase(events.begin() + index);
    edit(std::move(events));
}

void MacroActions::toggleRecording() {
    const bool isRecording = !m_state.isRecording.get();
    m_state.isRecording.set(isRecording);
    if (isRecording) return m_link.statusMessage.set("Macro recording started...");
    m_link.statusMessage.set("Recording saved to '" + m_state.macroName.get() + "'");
    compileBytecode();
}

void MacroActions::chooseLoopMode(std::int64_t mode) { m_state.macroLoopMode.set(mode); }

void MacroActions::compileBytecode() {
    m_state.compiledMacroHex.set(bytecodeText(VexaProtocol::compileMacro(m_state.macroEvents.get())));
}

void MacroActions::edit(std::vector<MacroEvent> events) {
    m_state.macroEvents.set(std::move(events));
    compileBytecode();
}

}  // namespace lumo
