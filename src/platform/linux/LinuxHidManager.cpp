#include "platform/linux/LinuxHidManager.h"

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <set>
#include <utility>

namespace lumo {
namespace {

constexpr const char* kSubsystem = "hidraw";

/// The kernel takes a device out of sysfs before it tells of that.
bool isPresent(const std::string& syspath) {
    std::error_code ignored;
    return std::filesystem::exists(syspath, ignored);
}

}  // namespace

LinuxHidManager::LinuxHidManager(MainQueue main, IoQueue io, std::function<void(std::string_view)> print)
    : m_main(main), m_io(io), m_print(std::move(print)), m_udev(udev_new()) {}

void LinuxHidManager::setDeviceMatching(std::vector<HidMatch> matches) { m_matches = std::move(matches); }

void LinuxHidManager::onMatched(Callback callback) { m_onMatched = std::move(callback); }

void LinuxHidManager::onRemoved(Callback callback) { m_onRemoved = std::move(callback); }

bool LinuxHidManager::open() {
    if (m_watch) return true;
    m_monitor = makeMonitor();
    if (!m_monitor) return false;
    m_watch = m_main.run.whenReadable(udev_monitor_get_fd(m_monitor.get()), [this] { receiveEvents(); });
    // Only now that the monitor listens: whatever is plugged from here on is either found or told of, or both.
    m_main.run.post([this, alive = std::weak_ptr(m_alive)] {
        if (!alive.expired()) reconcile();
    });
    return true;
}

std::vector<std::shared_ptr<HidDevice>> LinuxHidManager::devices() {
    std::vector<std::shared_ptr<HidDevice>> present;
    for (HidrawInterface& found : enumerate()) {
        const auto known = m_known.find(found.syspath);
        if (known == m_known.end()) {
            present.push_back(remember(std::move(found)));
        } else if (known->second->interface().identity == found.identity) {
            present.push_back(known->second);
        }  // else plugged anew: both events are on their way, and its turn to be known comes with them
    }
    return present;
}

UdevMonitorRef LinuxHidManager::makeMonitor() const {
    if (!m_udev) return nullptr;
    // Group "udev", not "kernel": the kernel tells of a node before its rights are set.
    UdevMonitorRef monitor(udev_monitor_new_from_netlink(m_udev.get(), "udev"));
    if (!monitor) return nullptr;
    if (udev_monitor_filter_add_match_subsystem_devtype(monitor.get(), kSubsystem, nullptr) < 0) return nullptr;
    if (udev_monitor_enable_receiving(monitor.get()) < 0) return nullptr;
    return monitor;
}

void LinuxHidManager::receiveEvents() {
    for (;;) {
        errno = 0;
        const UdevDeviceRef device(udev_monitor_receive_device(m_monitor.get()));
        if (device) {
            handleEvent(device.get());
        } else if (errno == ENOBUFS) {
            reconcile();  // the socket's queue was full and events are lost
        } else {
            return;
        }
    }
}

void LinuxHidManager::handleEvent(udev_device* device) {
    const char* const action = udev_device_get_action(device);
    const char* const syspath = udev_device_get_syspath(device);
    if (!action || !syspath) return;
    if (std::string_view(action) == "remove") return leave(syspath);
    // Any other action speaks of a device that is there. For a known one it brings no news, unless it stands for a
    // plug whose "remove" was lost.
    if (auto found = readHidrawInterface(device)) arrive(std::move(*found));
}

void LinuxHidManager::reconcile() {
    Found present = enumerate();
    std::set<std::string> gone;
    for (const auto& [syspath, device] : m_known) gone.insert(syspath);
    for (const HidrawInterface& found : present) gone.erase(found.syspath);
    for (const std::string& syspath : gone) leave(syspath);
    for (HidrawInterface& found : present) arrive(std::move(found));
}

void LinuxHidManager::arrive(HidrawInterface found) {
    if (!isOfInterest(found.ids)) return;
    const auto known = m_known.find(found.syspath);
    if (known != m_known.end() && known->second->interface().identity == found.identity) return;
    leave(found.syspath);
    leaveVanished();
    const auto device = remember(std::move(found));
    if (m_onMatched) m_onMatched(device);
}

void LinuxHidManager::leave(const std::string& syspath) {
    const auto known = m_known.find(syspath);
    if (known == m_known.end()) return;
    const std::shared_ptr<HidrawDevice> device = std::move(known->second);
    m_known.erase(known);
    device->markGone();
    if (m_onRemoved) m_onRemoved(device);
}

/// The device manager handles different nodes side by side: of a keyboard that is quickly plugged again, the arrival
/// can be told of before the departure.
void LinuxHidManager::leaveVanished() {
    std::vector<std::string> vanished;
    for (const auto& [syspath, device] : m_known) {
        if (!isPresent(syspath)) vanished.push_back(syspath);
    }
    for (const std::string& syspath : vanished) leave(syspath);
}

LinuxHidManager::Found LinuxHidManager::enumerate() const {
    Found found;
    const bool udevRuns = isUdevRunning();
    const UdevEnumerateRef list(m_udev ? udev_enumerate_new(m_udev.get()) : nullptr);
    if (!list || udev_enumerate_add_match_subsystem(list.get(), kSubsystem) < 0) return found;
    if (udev_enumerate_scan_devices(list.get()) < 0) return found;
    for (auto* entry = udev_enumerate_get_list_entry(list.get()); entry; entry = udev_list_entry_get_next(entry)) {
        const UdevDeviceRef device(udev_device_new_from_syspath(m_udev.get(), udev_list_entry_get_name(entry)));
        if (!device) continue;
        // Its rights are not set yet. It is announced when they are; where no udev runs, nobody ever would.
        if (udevRuns && udev_device_get_is_initialized(device.get()) == 0) continue;
        auto interface = readHidrawInterface(device.get());
        if (interface && isOfInterest(interface->ids)) found.push_back(std::move(*interface));
    }
    return found;
}

bool LinuxHidManager::isUdevRunning() const {
    const UdevQueueRef queue(m_udev ? udev_queue_new(m_udev.get()) : nullptr);
    return queue && udev_queue_get_udev_is_active(queue.get()) != 0;
}

std::shared_ptr<HidrawDevice> LinuxHidManager::remember(HidrawInterface found) {
    const std::string syspath = found.syspath;
    const auto device = std::make_shared<HidrawDevice>(std::move(found), m_io, m_print);
    m_known[syspath] = device;
    return device;
}

bool LinuxHidManager::isOfInterest(const HidMatch& ids) const {
    return std::find(m_matches.begin(), m_matches.end(), ids) != m_matches.end();
}

std::unique_ptr<HidManager> makeLinuxHidManager(MainQueue main, IoQueue io,
                                                std::function<void(std::string_view)> print) {
    return std::make_unique<LinuxHidManager>(main, io, std::move(print));
}

}  // namespace lumo
