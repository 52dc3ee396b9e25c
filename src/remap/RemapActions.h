// What the controls of the remap page do, apart from how they look.
#pragma once

#include <cstdint>
#include <string_view>

#include "device/KeyTableReports.h"

namespace lumo {

class KeyboardModel;
class UIState;
class VexaProtocol;

/// Main thread. Holds nothing of its own; the three objects outlive it. Every operation publishes its own status at
/// once, whatever becomes of what it sends: the link's own texts follow as its exchanges end.
class RemapActions final {
public:
    RemapActions(VexaProtocol& link, UIState& state, KeyboardModel& keyboard)
        : m_link(link), m_state(state), m_keyboard(keyboard) {}

    void chooseCategory(std::string_view key);

    /// Binds the first selected key. Without a selection it only asks for one; when no key has a selected id, nothing
    /// happens. `dword` is not used.
    void assignAction(std::string_view name, const KeyCode& bytes, std::uint32_t dword);

    /// Sends every bound key again.
    void saveKeyMatrix();

    /// Unbinds every key and gives it back its factory code.
    void resetToDefaults();

private:
    VexaProtocol& m_link;
    UIState& m_state;
    KeyboardModel& m_keyboard;
};

}  // namespace lumo
