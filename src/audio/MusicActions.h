// What the controls of the music page do, apart from how they look.
#pragma once

#include <cstdint>

namespace lumo {

class AudioVisualizerEngine;
class PermissionManager;
class UIState;
class VexaProtocol;

/// Main thread. Holds nothing of its own; the four objects outlive it, and the engine the answer about the microphone.
class MusicActions final {
public:
    MusicActions(VexaProtocol& link, AudioVisualizerEngine& engine, UIState& state, PermissionManager& permissions)
        : m_link(link), m_engine(engine), m_state(state), m_permissions(permissions) {}

    /// Starts the stream once the microphone is allowed, asking for it if need be; or stops it.
    void toggleStream();

    void grantAccess();

    /// Chooses one of kMusicModes. The stream starts whether or not the microphone is allowed; the keyboard hears of
    /// the music alone, not of the mode.
    void chooseMode(std::int64_t id);

private:
    VexaProtocol& m_link;
    AudioVisualizerEngine& m_engine;
    UIState& m_state;
    PermissionManager& m_permissions;
};

}  // namespace lumo
