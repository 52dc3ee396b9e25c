#include "app/SharedObjects.h"

#include <cstdio>
#include <cstdlib>

#include "foundation/Identity.h"

namespace lumo {
namespace {

SharedObjects* installed = nullptr;

}  // namespace

SharedObjects::SharedObjects(Platform& platform) : m_platform(platform) { installed = this; }

SharedObjects::~SharedObjects() {
    finishDeviceTraffic();  // a task under way still uses the objects
    installed = nullptr;
}

void SharedObjects::stopDeviceTraffic() {
    if (m_ioQueue) m_ioQueue->stop();
}

SharedObjects& SharedObjects::current() {
    if (!installed) {
        std::fputs("The shared objects were asked for before the entry point made them.\n", stderr);
        std::abort();
    }
    return *installed;
}

void SharedObjects::finishDeviceTraffic() {
    if (m_ioQueue) m_ioQueue->finish();
}

VexaProtocol& SharedObjects::vexaProtocol() {
    if (!m_vexaProtocol) {
        m_ioQueue = m_platform.makeIoQueue(kIoQueueLabel);
        const IoQueue io{*m_ioQueue};
        m_hidManager = m_platform.makeHidManager(io);
        m_vexaProtocol = std::make_unique<VexaProtocol>(
            m_platform.mainQueue(), io, *m_hidManager, [this]() -> PerKeyColors& { return keyboardModel(); },
            [this](std::string_view line) { m_platform.print(line); });
    }
    return *m_vexaProtocol;
}

UIState& SharedObjects::uiState() {
    if (!m_uiState) m_uiState = std::make_unique<UIState>();
    return *m_uiState;
}

KeyboardModel& SharedObjects::keyboardModel() {
    if (!m_keyboardModel) m_keyboardModel = std::make_unique<KeyboardModel>(vexaProtocol());
    return *m_keyboardModel;
}

PermissionManager& SharedObjects::permissionManager() {
    if (!m_permissionManager) {
        m_permissionManager = PermissionManager::make(m_platform.mainQueue(), m_platform.privacy(),
                                                      m_platform.desktop(), m_platform.preferences());
    }
    return *m_permissionManager;
}

AudioVisualizerEngine& SharedObjects::audioVisualizerEngine() {
    if (!m_audioVisualizerEngine) {
        m_audioVisualizerEngine = std::make_unique<AudioVisualizerEngine>(m_platform.mainQueue(), vexaProtocol());
    }
    return *m_audioVisualizerEngine;
}

VexaProtocol& VexaProtocol::shared() { return SharedObjects::current().vexaProtocol(); }
UIState& UIState::shared() { return SharedObjects::current().uiState(); }
KeyboardModel& KeyboardModel::shared() { return SharedObjects::current().keyboardModel(); }
PermissionManager& PermissionManager::shared() { return SharedObjects::current().permissionManager(); }
AudioVisualizerEngine& AudioVisualizerEngine::shared() { return SharedObjects::current().audioVisualizerEngine(); }

}  // namespace lumo
