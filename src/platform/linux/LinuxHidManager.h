// Finds HID interfaces through libudev: those present in sysfs, and those whose coming and going udev tells of.
// Main thread only. Main queue and I/O queue outlive it, the I/O queue also every device it handed out.
#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

#include "foundation/RunLoop.h"
#include "platform/Hid.h"
#include "platform/linux/HidrawDevice.h"
#include "platform/linux/UdevRef.h"

namespace lumo {

/// Not destroyed from inside one of its callbacks.
class LinuxHidManager final : public HidManager {
public:
    /// `print` is called on the I/O queue, see HidrawDevice.
    LinuxHidManager(MainQueue main, IoQueue io, std::function<void(std::string_view)> print);

    void setDeviceMatching(std::vector<HidMatch> matches) override;
    void onMatched(Callback callback) override;
    void onRemoved(Callback callback) override;

    /// False when there is no udev monitor to be had; may be called again then. Interfaces present already that
    /// `devices` has not listed by then are announced in the next turn.
    [[nodiscard]] bool open() override;
    [[nodiscard]] std::vector<std::shared_ptr<HidDevice>> devices() override;

private:
    using Found = std::vector<HidrawInterface>;
    struct Alive {};

    [[nodiscard]] UdevMonitorRef makeMonitor() const;
    void receiveEvents();
    void handleEvent(udev_device* device);
    void reconcile();
    void arrive(HidrawInterface found);
    void leave(const std::string& syspath);
    void leaveVanished();
    [[nodiscard]] Found enumerate() const;
    [[nodiscard]] bool isUdevRunning() const;
    [[nodiscard]] std::shared_ptr<HidrawDevice> remember(HidrawInterface found);
    [[nodiscard]] bool isOfInterest(const HidMatch& ids) const;

    const MainQueue m_main;
    const IoQueue m_io;
    const std::function<void(std::string_view)> m_print;
    std::vector<HidMatch> m_matches;
    Callback m_onMatched;
    Callback m_onRemoved;
    UdevRef m_udev;
    UdevMonitorRef m_monitor;
    // Listed or announced, and not removed since. At "remove" sysfs knows nothing about the device any more.
    std::map<std::string, std::shared_ptr<HidrawDevice>> m_known;
    std::shared_ptr<Alive> m_alive = std::make_shared<Alive>();  // a turn still posted when this goes finds nobody
    std::unique_ptr<Registration> m_watch;                       // ends before the monitor whose descriptor it watches
};

/// Main thread. See LinuxHidManager for who outlives whom.
[[nodiscard]] std::unique_ptr<HidManager> makeLinuxHidManager(MainQueue main, IoQueue io,
                                                              std::function<void(std::string_view)> print);

}  // namespace lumo
