// The kernel's face inside the test process: sysfs, device nodes and uevents of plugged keyboards (umockdev).
// Main thread of the test only. Every descriptor of a mocked node must be closed before this goes: a request on one
// that is left over never returns.
#pragma once

#include <umockdev.h>

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "linux/FeatureReportPeer.h"
#include "platform/Hid.h"

namespace lumo::test {

/// One HID interface to be plugged. Different hidraw numbers make different interfaces.
struct MockedInterface {
    unsigned hidraw = 0;
    HidMatch ids{0x258A, 0x010C};
    std::vector<std::uint8_t> descriptor;
    std::optional<std::string> product = "Lumo";  // of the USB device, as the device tells it
    std::string hidName = "Vendor Lumo";          // what the kernel makes of it
    bool hasUsbParent = true;
};

/// Feature report 6 of 519 data bytes.
[[nodiscard]] MockedInterface vendorInterface();
/// A boot keyboard: input and output reports without ids, no feature report.
[[nodiscard]] MockedInterface typingInterface();

class MockedKernel final {
public:
    MockedKernel();
    ~MockedKernel();
    MockedKernel(const MockedKernel&) = delete;
    MockedKernel& operator=(const MockedKernel&) = delete;

    /// Makes the interface and tells of it.
    void plug(const MockedInterface& interface);
    void unplug(const MockedInterface& interface);

    /// The two halves of each.
    void appear(const MockedInterface& interface);
    void vanish(const MockedInterface& interface);
    void tell(const MockedInterface& interface, const char* action);

    /// Opening the node is refused, to root as well, until it is allowed again.
    void refuseOpening(const MockedInterface& interface);
    void allowOpening(const MockedInterface& interface);

    [[nodiscard]] std::string sysPath(const MockedInterface& interface) const;

    FeatureReportPeer peer;  // answers the reports of every interface

private:
    struct Unref {
        void operator()(UMockdevTestbed* testbed) const { g_object_unref(testbed); }
    };
    [[nodiscard]] std::string nodeFile(const MockedInterface& interface) const;
    std::unique_ptr<UMockdevTestbed, Unref> m_testbed;
};

}  // namespace lumo::test
