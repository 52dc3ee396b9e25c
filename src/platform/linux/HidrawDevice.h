// One hidraw interface as a HidDevice.
// Made and marked as gone on the main thread, reports on the I/O queue, dropped on either. The I/O queue outlives it.
#pragma once

#include <atomic>
#include <functional>
#include <string_view>

#include "foundation/RunLoop.h"
#include "platform/Hid.h"
#include "platform/linux/FileDescriptor.h"
#include "platform/linux/HidrawInterface.h"

namespace lumo {

/// Opening any hidraw node, and closing one, waits behind a report on which some other device hangs (up to 5 s).
/// So the node is opened by the first report, on the I/O queue, and the descriptor is closed there as well.
class HidrawDevice final : public HidDevice {
public:
    /// `print` gets, at most once, the text that helps a user who has no rights on the node; it is called on the I/O
    /// queue.
    HidrawDevice(HidrawInterface interface, IoQueue io, std::function<void(std::string_view)> print);
    HidrawDevice(const HidrawDevice&) = delete;
    HidrawDevice& operator=(const HidrawDevice&) = delete;
    ~HidrawDevice() override;

    [[nodiscard]] std::optional<std::int64_t> maxFeatureReportSize() const override;
    [[nodiscard]] std::optional<std::string> product() const override;

    /// False for an empty report and for one of more than 16383 bytes, which the request number cannot express.
    [[nodiscard]] bool setFeatureReport(std::uint8_t reportId, std::span<const std::uint8_t> bytes) override;
    /// Absent for such a buffer.
    [[nodiscard]] std::optional<std::size_t> getFeatureReport(std::uint8_t reportId,
                                                              std::span<std::uint8_t> buffer) override;

    /// Main thread.
    [[nodiscard]] const HidrawInterface& interface() const { return m_interface; }
    /// Any thread: from now on every report fails without reaching for the node, whose number may soon be another's.
    void markGone() { m_gone = true; }

private:
    [[nodiscard]] bool isReady(std::size_t reportSize);
    [[nodiscard]] FileDescriptor openNode();
    void explainMissingRights(int error);

    const HidrawInterface m_interface;
    const IoQueue m_io;
    const std::function<void(std::string_view)> m_print;
    std::atomic<bool> m_gone = false;
    FileDescriptor m_node;     // I/O queue only
    bool m_explained = false;  // I/O queue only
};

}  // namespace lumo
