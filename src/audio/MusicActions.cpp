#include "audio/MusicActions.h"

#include <algorithm>
#include <string>

#include "app/UIState.h"
#include "audio/AudioVisualizerEngine.h"
#include "audio/MusicModes.h"
#include "device/VexaProtocol.h"
#include "system/PermissionManager.h"

namespace lumo {
namespace {

constexpr std::int64_t kMusicModeId = 17;

std::string nameOf(std::int64_t id) {
    const auto* const mode = std::ranges::find(kMusicModes, id, &MusicMode::id);
    return std::string(mode == kMusicModes.end() ? "Mode 17" : mode->name);
}

}  // namespace

void MusicActions::toggleStream() {
    if (m_engine.isRunning.get()) return m_engine.stop();
    if (m_permissions.isMicrophoneAuthorized.get()) return m_engine.start();
    m_permissions.requestMicrophoneAccess([&engine = m_engine](bool isGranted) {
        if (isGranted) engine.start();
    });
}

void MusicActions::grantAccess() { m_permissions.requestMicrophoneAccess(); }

void MusicActions::chooseMode(std::int64_t id) {
    m_state.activeMusicMode.set(id);
    m_link.activeModeId.set(kMusicModeId);
    m_engine.start();
    m_link.statusMessage.set("Music reactive mode: " + nameOf(id));
}

}  // namespace lumo
