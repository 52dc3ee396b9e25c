#include "system/PermissionManager.h"

#include <chrono>

#include "platform/Desktop.h"
#include "platform/Preferences.h"
#include "platform/Privacy.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;

constexpr Duration kPollInterval = 2s;
// The system reports a grant made in its settings a little after the user has come back from there.
constexpr Duration kFirstLook = 300ms;
constexpr Duration kSecondLook = 1s;
constexpr Duration kAfterRequest = 400ms;

std::string_view linkTo(PermissionType type) {
    switch (type) {
        case PermissionType::microphone:
            return "x-apple.systempreferences:com.apple.preference.security?Privacy_Microphone";
        case PermissionType::inputMonitoring:
            return "x-apple.systempreferences:com.apple.preference.security?Privacy_ListenEvent";
        case PermissionType::accessibility:
            return "x-apple.systempreferences:com.apple.preference.security?Privacy_Accessibility";
    }
    return {};
}

}  // namespace

struct PermissionManager::Grants {
    bool microphone = false;
    bool listen = false;
    bool trusted = false;

    [[nodiscard]] bool allowsKeys() const { return listen || trusted; }
};

std::shared_ptr<PermissionManager> PermissionManager::make(MainQueue main, Privacy& privacy, Desktop& desktop,
                                                           Preferences& preferences) {
    auto manager = std::make_shared<PermissionManager>(Key{}, main, privacy, desktop, preferences);
    manager->launch();
    manager->setupLifecycleObserver();
    manager->startPolling();
    return manager;
}

PermissionManager::PermissionManager(Key, MainQueue main, Privacy& privacy, Desktop& desktop, Preferences& preferences)
    : m_main(main), m_privacy(privacy), m_desktop(desktop), m_preferences(preferences) {}

void PermissionManager::launch() {
    if (!m_preferences.boolForKey(kHasLaunchedKey)) {
        showFirstLaunchPopup.set(true);
        return checkPermissions();
    }
    checkPermissions();
    // That check publishes in a later turn, so both prompts come up here and it takes them away again.
    if (!isMicrophoneAuthorized.get() || !isInputMonitoringAuthorized.get()) {
        showRecheckPopup.set(true);
        showPermissionToast.set(true);
    }
}

void PermissionManager::setupLifecycleObserver() {
    m_lifecycleObserver = m_desktop.whenBecameActive([weak = weak_from_this()] {
        const auto self = weak.lock();
        if (!self) return;
        self->checkPermissions();
        self->checkAfter(kFirstLook);
        self->checkAfter(kSecondLook);
    });
}

void PermissionManager::startPolling() {
    m_pollTimer = m_main.run.repeatEvery(kPollInterval, [weak = weak_from_this()] {
        if (const auto self = weak.lock()) self->checkPermissions();
    });
}

void PermissionManager::checkAfter(Duration delay) {
    m_main.run.postAfter(delay, [weak = weak_from_this()] {
        if (const auto self = weak.lock()) self->checkPermissions();
    });
}

void PermissionManager::checkPermissions() {
    const Grants grants{m_privacy.audioAuthorization() == AudioAuthorization::authorized,
                        m_privacy.preflightListenEventAccess(), m_privacy.isProcessTrusted()};
    m_main.run.post([self = shared_from_this(), grants] { self->publish(grants); });
}

void PermissionManager::publish(const Grants& grants) {
    isMicrophoneAuthorized.set(grants.microphone);
    isInputMonitoringAuthorized.set(grants.allowsKeys());
    isAccessibilityAuthorized.set(grants.trusted);
    if (grants.microphone && grants.allowsKeys()) lowerPrompts();
}

void PermissionManager::lowerPrompts() {
    showPermissionToast.set(false);
    showRecheckPopup.set(false);
    if (showFirstLaunchPopup.get()) completeFirstLaunch();
}

void PermissionManager::completeFirstLaunch() {
    m_preferences.setBool(true, kHasLaunchedKey);
    showFirstLaunchPopup.set(false);
}

void PermissionManager::requestMicrophoneAccess(MicrophoneAnswer answered) {
    switch (m_privacy.audioAuthorization()) {
        case AudioAuthorization::authorized:
            return postMicrophoneAnswer(true, std::move(answered));
        case AudioAuthorization::notDetermined:
            return m_privacy.requestAudioAccess(
                [self = shared_from_this(), answered = std::move(answered)](bool isGranted) {
                    self->postMicrophoneAnswer(isGranted, answered);
                });
        default:
            openSystemSettings(PermissionType::microphone);
            if (answered) answered(false);
    }
}

void PermissionManager::postMicrophoneAnswer(bool isGranted, MicrophoneAnswer answered) {
    m_main.run.post([self = shared_from_this(), answered = std::move(answered), isGranted] {
        self->isMicrophoneAuthorized.set(isGranted);
        self->checkPermissions();
        if (answered) answered(isGranted);
    });
}

void PermissionManager::requestInputMonitoringAccess() {
    m_privacy.requestListenEventAccess();
    if (!m_privacy.isProcessTrustedWithPrompt() && !m_privacy.preflightListenEventAccess()) {
        openSystemSettings(PermissionType::inputMonitoring);
    }
    checkAfter(kAfterRequest);
}

void PermissionManager::requestAllInitialPermissions() {
    requestMicrophoneAccess([self = shared_from_this()](bool) { self->requestInputMonitoringAccess(); });
}

void PermissionManager::openSystemSettings(PermissionType type) { m_desktop.openLink(linkTo(type)); }

void PermissionManager::relaunchApp() {
    m_desktop.openThisApplication([main = m_main, &desktop = m_desktop] {
        main.run.post([&desktop] { desktop.terminate(); });  // the answer may come on another thread
    });
}

}  // namespace lumo
