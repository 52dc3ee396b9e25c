// What the controls of the macro page do, apart from how they look.
#pragma once

#include <cstdint>
#include <vector>

#include "macro/MacroEvent.h"

namespace lumo {

class UIState;
class VexaProtocol;

/// Main thread. Holds nothing of its own; the two objects outlive it. Nothing here reaches the keyboard. An index
/// outside its list does nothing.
class MacroActions final {
public:
    MacroActions(VexaProtocol& link, UIState& state) : m_link(link), m_state(state) {}

    /// Brings the macro into the editor. What was edited there before is lost: it is never written back into the list.
    void selectMacro(std::int64_t index);

    /// Appends a macro that types "1", and selects it.
    void addNewMacro();

    /// Takes the selected macro away and selects the first one. The last macro stays.
    void deleteMacro();

    /// Appends a press and a release of Space to the steps being edited.
    void addKeyStep();
    void deleteStep(std::int64_t index);

    /// No key is listened to: recording is a flag and a line of status.
    void toggleRecording();

    void chooseLoopMode(std::int64_t mode);

    /// Shows the steps being edited as the firmware would keep them.
    void compileBytecode();

private:
    void edit(std::vector<MacroEvent> events);

    VexaProtocol& m_link;
    UIState& m_state;
};

}  // namespace lumo
