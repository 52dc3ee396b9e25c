// What the controls of the lighting page do, apart from how they look.
#pragma once

#include <cstdint>

#include "foundation/Color.h"

namespace lumo {

class KeyboardModel;
class UIState;
class VexaProtocol;

/// Main thread. Holds nothing of its own; the three objects outlive it.
class LightingActions final {
public:
    LightingActions(VexaProtocol& link, UIState& state, KeyboardModel& keyboard)
        : m_link(link), m_state(state), m_keyboard(keyboard) {}

    /// An effect's row was chosen. The per-key effect, and effect 18 with it, upload the keys' own colours.
    void chooseEffect(std::int64_t number);

    /// Sends the active effect with the levels and the colour the user has chosen; the static effect also shows
    /// that colour on every key.
    void updateDeviceLighting();

    /// A colour was chosen. In the per-key effects it paints the selected keys, or all when none is selected; in the
    /// others it is sent with the effect.
    void pickColor(const Color& color);

    /// The same with a colour of the palette; an index outside it does nothing.
    void pickPresetColor(std::int64_t index);

    /// These three upload the keys' colours, whatever the effect. Filling leaves every key selected.
    void paintSelected();
    void fillAll();
    void applyRainbow();

private:
    VexaProtocol& m_link;
    UIState& m_state;
    KeyboardModel& m_keyboard;
};

}  // namespace lumo
