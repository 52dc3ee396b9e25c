// The desktop as it is, but for the privacy panes, which a simulated centre opens.
#pragma once

#include <utility>

#include "demo/PrivacyCenter.h"
#include "platform/Desktop.h"

namespace lumo::vk {

/// Main thread; both outlive it.
class DemoDesktop final : public Desktop {
public:
    DemoDesktop(Desktop& native, PrivacyCenter& privacy) : m_native(native), m_privacy(privacy) {}

    void openLink(std::string_view link) override { m_privacy.openPane(link); }
    void openThisApplication(Task completed) override { m_native.openThisApplication(std::move(completed)); }
    void terminate() override { m_native.terminate(); }
    std::unique_ptr<Registration> whenBecameActive(Task task) override {
        return m_native.whenBecameActive(std::move(task));
    }

private:
    Desktop& m_native;
    PrivacyCenter& m_privacy;
};

}  // namespace lumo::vk
