// The objects that live as long as the process, made on first use from one platform.
#pragma once

#include <memory>

#include "app/UIState.h"
#include "audio/AudioVisualizerEngine.h"
#include "device/VexaProtocol.h"
#include "keyboard/KeyboardModel.h"
#include "platform/Platform.h"
#include "system/PermissionManager.h"

namespace lumo {

class AssetManager;

/// Main thread. The entry point installs one over the native platform and never releases it; a test installs a
/// fresh one over fakes and drops it at its end. The platform outlives it.
class SharedObjects final {
public:
    explicit SharedObjects(Platform& platform);
    ~SharedObjects();
    SharedObjects(const SharedObjects&) = delete;
    SharedObjects& operator=(const SharedObjects&) = delete;

    /// The installed one. Asking for it while there is none ends the process.
    static SharedObjects& current();

    [[nodiscard]] MainQueue mainQueue() { return m_platform.mainQueue(); }
    [[nodiscard]] Bundle& bundle() { return m_platform.bundle(); }
    [[nodiscard]] VexaProtocol& vexaProtocol();
    [[nodiscard]] UIState& uiState();
    [[nodiscard]] KeyboardModel& keyboardModel();
    [[nodiscard]] PermissionManager& permissionManager();
    [[nodiscard]] AudioVisualizerEngine& audioVisualizerEngine();

    /// A place for the one that AssetManager::shared() makes. It is only named here, since it holds Qt images, which
    /// the models must not see; whoever fills the place also brings the way to delete it.
    [[nodiscard]] std::shared_ptr<AssetManager>& assetManager() { return m_assetManager; }

    /// For quitting: the report under way is the last one. Returns at once, also when the keyboard hangs.
    void stopDeviceTraffic();

    /// Waits for the report under way as well. A program that quits must not: its keyboard may hang.
    void finishDeviceTraffic();

private:
    Platform& m_platform;
    // In the order of their dependence: what stands below uses what stands above, and goes first.
    std::unique_ptr<BlockingExecutor> m_ioQueue;
    std::unique_ptr<HidManager> m_hidManager;
    std::unique_ptr<VexaProtocol> m_vexaProtocol;
    std::unique_ptr<UIState> m_uiState;
    std::unique_ptr<KeyboardModel> m_keyboardModel;
    std::shared_ptr<PermissionManager> m_permissionManager;
    std::unique_ptr<AudioVisualizerEngine> m_audioVisualizerEngine;
    std::shared_ptr<AssetManager> m_assetManager;
};

}  // namespace lumo
