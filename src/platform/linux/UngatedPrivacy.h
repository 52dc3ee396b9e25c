// Linux asks no user whether a program may hear the microphone or the keys: all that is asked for is granted.
#pragma once

#include "platform/Privacy.h"

namespace lumo {

class UngatedPrivacy final : public Privacy {
public:
    AudioAuthorization audioAuthorization() override { return AudioAuthorization::authorized; }
    void requestAudioAccess(std::function<void(bool)> answered) override { answered(true); }
    bool preflightListenEventAccess() override { return true; }
    void requestListenEventAccess() override {}
    bool isProcessTrusted() override { return true; }
    bool isProcessTrustedWithPrompt() override { return true; }
};

}  // namespace lumo
