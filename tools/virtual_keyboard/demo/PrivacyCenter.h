// A privacy centre that grants what it is asked for, after the moment that a user would take.
#pragma once

#include <set>
#include <string>
#include <string_view>

#include "platform/Privacy.h"

namespace lumo {

class RunLoop;

}  // namespace lumo

namespace lumo::vk {

/// Main thread; outlives what is pending on the loop. Nothing is granted at first.
class PrivacyCenter final : public Privacy {
public:
    explicit PrivacyCenter(RunLoop& run) : m_run(run) {}

    AudioAuthorization audioAuthorization() override;
    void requestAudioAccess(std::function<void(bool)> answered) override;
    bool preflightListenEventAccess() override { return isGranted("Privacy_ListenEvent"); }
    void requestListenEventAccess() override {}  // leads to the pane, which opens anyway
    bool isProcessTrusted() override { return isGranted("Privacy_Accessibility"); }
    bool isProcessTrustedWithPrompt() override { return isProcessTrusted(); }

    /// The pane comes up, and the user finds the switch in it.
    void openPane(std::string_view link);

private:
    [[nodiscard]] bool isGranted(std::string_view pane) const { return m_granted.contains(pane); }

    RunLoop& m_run;
    std::set<std::string, std::less<>> m_granted;  // panes whose switch is on
};

}  // namespace lumo::vk
