// Whether the user has let the program hear the microphone and the keys, and which of the prompts about it are shown.
#pragma once

#include <functional>
#include <memory>
#include <string_view>

#include "foundation/Observable.h"
#include "foundation/RunLoop.h"

namespace lumo {

class Desktop;
class Preferences;
class Privacy;

/// Selects a pane of the system's privacy settings.
enum class PermissionType { microphone, inputMonitoring, accessibility };

/// Main thread. The grants are sampled where they are asked for; every published value is written from the main queue,
/// in a turn of its own. Only construction raises a prompt.
class PermissionManager final : public ObservableObject, public std::enable_shared_from_this<PermissionManager> {
    struct Key {
        explicit Key() = default;
    };

public:
    /// The preference that is true once the program has been launched before.
    static constexpr std::string_view kHasLaunchedKey = "VexaLumoHasLaunchedBefore";

    /// The one instance of the running program.
    static PermissionManager& shared();

    /// Raises the prompts of this launch, checks the grants and keeps checking them: every 2 s, and at 0, 0.3 and
    /// 1.0 s after the program came to the front. Everything handed in outlives the manager.
    [[nodiscard]] static std::shared_ptr<PermissionManager> make(MainQueue main, Privacy& privacy, Desktop& desktop,
                                                                 Preferences& preferences);

    PermissionManager(Key key, MainQueue main, Privacy& privacy, Desktop& desktop, Preferences& preferences);

    Published<bool> isMicrophoneAuthorized{*this, false};
    Published<bool> isInputMonitoringAuthorized{*this, false};  // by either of the two grants that allow it
    Published<bool> isAccessibilityAuthorized{*this, false};
    Published<bool> showFirstLaunchPopup{*this, false};
    Published<bool> showRecheckPopup{*this, false};
    Published<bool> showPermissionToast{*this, false};

    /// Samples the grants now, and publishes them in a later turn of the main queue. Once both features are allowed,
    /// that turn also lowers every prompt.
    void checkPermissions();

    /// The welcome is over, for this launch and every later one.
    void completeFirstLaunch();
    void dismissRecheckPopup() { showRecheckPopup.set(false); }
    void dismissToast() { showPermissionToast.set(false); }

    using MicrophoneAnswer = std::function<void(bool isGranted)>;

    /// Asks the user, or leads to the settings where the answer was no. `answered` may be empty.
    void requestMicrophoneAccess(MicrophoneAnswer answered = {});
    void requestInputMonitoringAccess();

    /// The microphone first, and the keys once that is settled.
    void requestAllInitialPermissions();

    void openSystemSettings(PermissionType type);

    /// Some grants take effect only in a new process. This one ends, also when no other could be started.
    void relaunchApp();

private:
    struct Grants;

    void launch();
    void setupLifecycleObserver();
    void startPolling();
    void publish(const Grants& grants);
    void lowerPrompts();
    void postMicrophoneAnswer(bool isGranted, MicrophoneAnswer answered);  // any thread
    void checkAfter(Duration delay);

    MainQueue m_main;
    Privacy& m_privacy;
    Desktop& m_desktop;
    Preferences& m_preferences;
    std::unique_ptr<Registration> m_lifecycleObserver;
    std::unique_ptr<Registration> m_pollTimer;
};

}  // namespace lumo
