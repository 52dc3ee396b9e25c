// The keyboard inside this process: a HID manager whose devices are answered by the firmware model.
#pragma once

#include <atomic>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "FirmwareModel.h"
#include "ReportLog.h"
#include "foundation/RunLoop.h"
#include "platform/Hid.h"

namespace lumo::vk {

/// What an interface tells the system about itself.
struct InterfaceFacts {
    HidMatch id;
    std::optional<std::int64_t> maxFeatureReportSize;
    std::optional<std::string> product;
};

/// The two interfaces of the keyboard on its cable.
[[nodiscard]] InterfaceFacts configurationInterface();
[[nodiscard]] InterfaceFacts typingInterface();

class InProcessHidManager;

/// Reports are exchanged on the I/O queue, all else on the main thread.
class InProcessDevice final : public HidDevice {
public:
    InProcessDevice(InProcessHidManager& manager, InterfaceFacts facts)
        : m_manager(manager), m_facts(std::move(facts)) {}

    std::optional<std::int64_t> maxFeatureReportSize() const override { return m_facts.maxFeatureReportSize; }
    std::optional<std::string> product() const override { return m_facts.product; }
    bool setFeatureReport(std::uint8_t reportId, std::span<const std::uint8_t> bytes) override;
    std::optional<std::size_t> getFeatureReport(std::uint8_t reportId, std::span<std::uint8_t> buffer) override;

    [[nodiscard]] const HidMatch& id() const { return m_facts.id; }
    void setGone() { m_isGone = true; }

private:
    /// True when the exchange was answered; a hang lasts as long as the system would wait.
    [[nodiscard]] bool survives(Outcome outcome);

    InProcessHidManager& m_manager;
    InterfaceFacts m_facts;
    std::atomic<bool> m_isGone = false;
};

/// The firmware model belongs to the I/O queue once a device is plugged in. The queues, the model and the log outlive
/// the manager, and the manager its devices' last report.
class InProcessHidManager final : public HidManager {
public:
    InProcessHidManager(MainQueue main, IoQueue io, FirmwareModel& firmware, ReportLog& log)
        : m_main(main), m_io(io), m_firmware(firmware), m_log(log) {}

    void setDeviceMatching(std::vector<HidMatch> matches) override { m_matches = std::move(matches); }
    void onMatched(Callback callback) override { m_matched = std::move(callback); }
    void onRemoved(Callback callback) override { m_removed = std::move(callback); }
    bool open() override;
    std::vector<std::shared_ptr<HidDevice>> devices() override;

    /// Plugs an interface in: listed when the manager is not yet open, announced in the next turn otherwise.
    std::shared_ptr<InProcessDevice> plug(InterfaceFacts facts);
    /// Plugs the whole keyboard in, both interfaces.
    void plugKeyboard();
    void unplug(const std::shared_ptr<InProcessDevice>& device);
    void unplugAll();

    /// Makes the system refuse to open the manager.
    void refuseToOpen() { m_opens = false; }
    [[nodiscard]] const std::vector<HidMatch>& matches() const { return m_matches; }

    [[nodiscard]] FirmwareModel& firmware() { return m_firmware; }
    [[nodiscard]] ReportLog& log() { return m_log; }
    [[nodiscard]] IoQueue ioQueue() { return m_io; }

    /// Any thread: the device has left the bus.
    void vanish();

private:
    [[nodiscard]] bool matches(const InProcessDevice& device) const;

    MainQueue m_main;
    IoQueue m_io;
    FirmwareModel& m_firmware;
    ReportLog& m_log;
    std::vector<HidMatch> m_matches;
    Callback m_matched;
    Callback m_removed;
    bool m_opens = true;
    bool m_isOpen = false;
    std::vector<std::shared_ptr<InProcessDevice>> m_devices;
};

}  // namespace lumo::vk
