// What the device link needs of the operating system's HID layer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace lumo {

/// USB vendor and product id of a device whose HID interfaces, all of them, are of interest.
struct HidMatch {
    std::uint16_t vendorId = 0;
    std::uint16_t productId = 0;
    bool operator==(const HidMatch&) const = default;
};

/// One HID interface of one plugged device. A manager hands out one object an interface, so that two
/// references mean the same interface exactly when they point to the same object. The object stays valid
/// after the device is gone: reports then fail.
class HidDevice {
public:
    HidDevice() = default;
    HidDevice(const HidDevice&) = delete;
    HidDevice& operator=(const HidDevice&) = delete;
    virtual ~HidDevice() = default;

    /// Length in bytes of the largest feature report, the report id byte included where the interface uses
    /// report ids; absent when the system does not tell. Main thread, never blocks.
    [[nodiscard]] virtual std::optional<std::int64_t> maxFeatureReportSize() const = 0;

    /// Product name as the device tells it, also an empty one; absent when there is none. Untrusted text,
    /// UTF-8 where the device keeps to it. Main thread, never blocks.
    [[nodiscard]] virtual std::optional<std::string> product() const = 0;

    /// I/O queue; blocks. Sends the bytes as they are as one feature report (the first byte is the report id
    /// again). True exactly when the system accepted all of it.
    [[nodiscard]] virtual bool setFeatureReport(std::uint8_t reportId, std::span<const std::uint8_t> bytes) = 0;

    /// I/O queue; blocks. Reads one feature report into `buffer`, whose byte 0 already holds the report id.
    /// Returns the count of bytes that the system reports as received, absent on any failure.
    [[nodiscard]] virtual std::optional<std::size_t> getFeatureReport(std::uint8_t reportId,
                                                                      std::span<std::uint8_t> buffer) = 0;
};

/// Finds HID interfaces and tells of their coming and going. Main thread only.
class HidManager {
public:
    using Callback = std::function<void(const std::shared_ptr<HidDevice>&)>;

    HidManager() = default;
    HidManager(const HidManager&) = delete;
    HidManager& operator=(const HidManager&) = delete;
    virtual ~HidManager() = default;

    /// The devices of interest, before `open`. Usage page and usage are never consulted.
    virtual void setDeviceMatching(std::vector<HidMatch> matches) = 0;

    /// Called on the main thread, in a turn of its loop, never from inside another call of the manager.
    /// An interface that `devices` has listed is not announced a second time.
    virtual void onMatched(Callback callback) = 0;
    virtual void onRemoved(Callback callback) = 0;

    /// Starts watching. False when the system refuses; the callbacks stay registered and later arrivals are
    /// announced as far as the system tells of them.
    [[nodiscard]] virtual bool open() = 0;

    /// The matching interfaces present now, in the system's order.
    [[nodiscard]] virtual std::vector<std::shared_ptr<HidDevice>> devices() = 0;
};

}  // namespace lumo
