// What pointer and buttons of the on-screen keyboard do, apart from how they look.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace lumo {

class KeyboardModel;
class UIState;
class VexaProtocol;

struct KeyLayer {
    std::string_view name;
    std::int64_t number = 0;
};
inline constexpr std::array<KeyLayer, 4> kKeyLayers{{{"Default", 0}, {"FN1", 1}, {"FN2", 2}, {"Tap", 3}}};

inline constexpr std::string_view kClearPreset = "Clear";
inline constexpr std::array<std::string_view, 5> kSelectionPresets{"WASD", "Arrows", "Numbers", "All", kClearPreset};

/// Main thread. Holds nothing of its own; the three objects outlive it.
class KeyboardActions final {
public:
    KeyboardActions(VexaProtocol& link, UIState& state, KeyboardModel& keyboard)
        : m_link(link), m_state(state), m_keyboard(keyboard) {}

    void pointerEntered(const std::string& keyId);
    void pointerLeft();

    /// Selects the key; in the per-key effect, and in effect 18 with it, also paints it with the chosen colour.
    void click(const std::string& keyId, bool multiSelect);

    /// Changes nothing but the layer that is shown as chosen.
    void chooseLayer(std::int64_t number);

    /// One of kSelectionPresets.
    void choosePreset(std::string_view name);

private:
    VexaProtocol& m_link;
    UIState& m_state;
    KeyboardModel& m_keyboard;
};

}  // namespace lumo
