// The grants that the operating system keeps: who may hear the microphone and the keys.
#pragma once

#include <functional>

namespace lumo {

/// The system's own numbers. Treat one that is not named here as refused.
enum class AudioAuthorization : int { notDetermined = 0, restricted = 1, denied = 2, authorized = 3 };

/// Main thread, where nothing else is said. Only the requests show anything to the user.
class Privacy {
public:
    Privacy() = default;
    Privacy(const Privacy&) = delete;
    Privacy& operator=(const Privacy&) = delete;
    virtual ~Privacy() = default;

    [[nodiscard]] virtual AudioAuthorization audioAuthorization() = 0;

    /// Asks the user where the question is still open. `answered` is called once, on any thread.
    virtual void requestAudioAccess(std::function<void(bool isGranted)> answered) = 0;

    /// Whether keyboard events can be listened to.
    [[nodiscard]] virtual bool preflightListenEventAccess() = 0;

    /// May show the system's question; does not wait for the answer.
    virtual void requestListenEventAccess() = 0;

    /// Whether the process is trusted for accessibility.
    [[nodiscard]] virtual bool isProcessTrusted() = 0;

    /// The same, and may show the system's question; does not wait for the answer.
    [[nodiscard]] virtual bool isProcessTrustedWithPrompt() = 0;
};

}  // namespace lumo
