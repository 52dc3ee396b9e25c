// What the controls of the settings page that reach the keyboard do, apart from how they look.
#pragma once

namespace lumo {

class UIState;
class VexaProtocol;

/// Main thread. Holds nothing of its own; both objects outlive it.
class SettingsActions final {
public:
    SettingsActions(VexaProtocol& link, UIState& state) : m_link(link), m_state(state) {}

    /// A use of the debounce slider began, or ended: sends its value, truncated to whole milliseconds.
    void editDebounce();

    /// At once, and leaves what the user has chosen in the interface as it is.
    void restoreFactorySettings();

private:
    VexaProtocol& m_link;
    UIState& m_state;
};

}  // namespace lumo
