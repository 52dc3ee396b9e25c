#include "platform/NativePrivacy.h"

#import <AVFoundation/AVFoundation.h>

#include <utility>

#include "platform/macos/EventAccess.h"

namespace lumo {
namespace {

constexpr bool means(AudioAuthorization ours, AVAuthorizationStatus systems) {
    return static_cast<AVAuthorizationStatus>(ours) == systems;
}
static_assert(means(AudioAuthorization::notDetermined, AVAuthorizationStatusNotDetermined));
static_assert(means(AudioAuthorization::restricted, AVAuthorizationStatusRestricted));
static_assert(means(AudioAuthorization::denied, AVAuthorizationStatusDenied));
static_assert(means(AudioAuthorization::authorized, AVAuthorizationStatusAuthorized));

class MacPrivacy final : public Privacy {
   public:
    AudioAuthorization audioAuthorization() override {
        return static_cast<AudioAuthorization>([AVCaptureDevice authorizationStatusForMediaType:AVMediaTypeAudio]);
    }

    void requestAudioAccess(std::function<void(bool isGranted)> answered) override {
        [AVCaptureDevice requestAccessForMediaType:AVMediaTypeAudio
                                 completionHandler:^(BOOL isGranted) {
                                   answered(isGranted);
                                 }];
    }

    bool preflightListenEventAccess() override { return event_access::preflight(); }
    void requestListenEventAccess() override { event_access::request(); }
    bool isProcessTrusted() override { return event_access::isTrusted(); }
    bool isProcessTrustedWithPrompt() override { return event_access::isTrustedWithPrompt(); }
};

}  // namespace

std::unique_ptr<Privacy> makeNativePrivacy() { return std::make_unique<MacPrivacy>(); }

}  // namespace lumo
