// An IOKit HID manager of our own for the tests: interfaces are plugged and unplugged, and a manager hears of it
// when the run loop turns. Main thread, but for the reports.
// It stops the process where IOKit asserts, deadlocks or leaves memory behind: a manager scheduled twice, called
// off the main thread or from inside its own removal callback, or destroyed while a run loop still knows it.
#pragma once

#include <IOKit/hid/IOHIDManager.h>

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <thread>
#include <vector>

namespace lumo::fakemac {

/// What was asked of one interface, and what it answers.
struct Interface {
    ~Interface();

    int vendorId = 0;
    int productId = 0;
    std::map<std::string, CFTypeRef> properties;  // owned

    struct Report {
        IOHIDReportType type;
        CFIndex id;
        std::vector<std::uint8_t> bytes;
    };
    std::vector<Report> written;
    IOReturn writeResult = 0;

    struct Read {
        IOHIDReportType type;
        CFIndex id;
        CFIndex length;
        std::uint8_t firstByte;
    };
    std::vector<Read> read;
    IOReturn readResult = 0;
    std::vector<std::uint8_t> answer;
};

class FakeIoKit final {
public:
    /// The one the C functions talk to; there is one at a time.
    FakeIoKit();
    FakeIoKit(const FakeIoKit&) = delete;
    FakeIoKit& operator=(const FakeIoKit&) = delete;
    ~FakeIoKit();

    /// A new interface of a plugged device; heard of in the next turn by managers that match it.
    std::shared_ptr<Interface> plug(int vendorId, int productId);
    void unplug(const std::shared_ptr<Interface>& interface);

    /// One turn of the main CoreFoundation run loop.
    void turn();

    /// Calls the registered matching (or removal) callback of the manager without its context.
    void callBackWithoutContext(bool matching, const std::shared_ptr<Interface>& interface);

    bool canCreate = true;
    IOReturn openResult = 0;
    /// Each callback and each set then shows an interface through an object of its own; CFEqual finds them equal.
    bool showsTwins = false;
    /// Dictionaries as they were handed over, each as key and number.
    std::vector<std::map<std::string, std::int64_t>> matching;
    std::vector<std::string> calls;  // of the manager, in order
    std::vector<IOOptionBits> options;
    int schedules = 0;
    std::string scheduledMode;

private:
    friend struct Access;
    struct Event {
        bool arrival;
        std::shared_ptr<Interface> interface;
    };
    [[nodiscard]] IOHIDDeviceRef show(const std::shared_ptr<Interface>& interface);
    void deliver(const Event& event);
    void forget(const std::shared_ptr<Interface>& interface);
    [[nodiscard]] bool matches(const Interface& interface) const;

    struct Registered {
        IOHIDDeviceCallback function = nullptr;
        void* context = nullptr;
    };
    Registered m_onMatching;
    Registered m_onRemoval;
    const std::thread::id m_mainThread = std::this_thread::get_id();
    bool m_scheduled = false;
    bool m_insideRemoval = false;
    std::vector<Event> m_events;
    std::vector<std::pair<std::shared_ptr<Interface>, IOHIDDeviceRef>> m_present;
};

}  // namespace lumo::fakemac
