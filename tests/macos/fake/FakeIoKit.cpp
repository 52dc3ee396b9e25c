#include "FakeIoKit.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <utility>

#include "FakeCoreFoundation.h"

namespace lumo::fakemac {
namespace {

FakeIoKit* g_system = nullptr;

[[noreturn]] void stop(const char* reason) {
    std::fprintf(stderr, "IOKit: %s\n", reason);
    std::abort();
}

class Device final : public Object {
public:
    explicit Device(std::shared_ptr<Interface> shown) : Object(kDeviceType), interface(std::move(shown)) {}
    [[nodiscard]] bool equals(const Object& other) const override {
        const auto* device = dynamic_cast<const Device*>(&other);
        return device && device->interface == interface;
    }
    const std::shared_ptr<Interface> interface;
};

class Manager final : public Object {
public:
    Manager() : Object(kManagerType) {}
    ~Manager() override;
};

}  // namespace

struct Access {  // what the C functions may do
    static FakeIoKit& called(const char* name) {
        if (std::this_thread::get_id() != g_system->m_mainThread) stop("the manager was called off the main thread");
        if (g_system->m_insideRemoval) stop("the manager was called from inside its own removal callback");
        g_system->calls.emplace_back(name);
        return *g_system;
    }
    static FakeIoKit::Registered& onMatching(FakeIoKit& system) { return system.m_onMatching; }
    static FakeIoKit::Registered& onRemoval(FakeIoKit& system) { return system.m_onRemoval; }
    static bool& scheduled(FakeIoKit& system) { return system.m_scheduled; }
    static CFSetRef copyDevices(FakeIoKit& system) {
        std::vector<const void*> values;
        for (const auto& [interface, device] : system.m_present) {
            if (system.matches(*interface)) values.push_back(system.showsTwins ? system.show(interface) : device);
        }
        if (values.empty()) return nullptr;
        auto* set = new Collection(kSetType, values, true);
        for (const void* value : values) {
            if (system.showsTwins) CFRelease(value);
        }
        return referenceTo<CFSetRef>(set);
    }
};

namespace {
Manager::~Manager() {
    if (Access::scheduled(*g_system)) stop("a manager was destroyed while a run loop still knows it");
}
}  // namespace

Interface::~Interface() {
    for (const auto& [key, value] : properties) CFRelease(value);
}

FakeIoKit::FakeIoKit() { g_system = this; }

FakeIoKit::~FakeIoKit() {
    m_events.clear();
    while (!m_present.empty()) forget(m_present.back().first);
    g_system = nullptr;
}

std::shared_ptr<Interface> FakeIoKit::plug(int vendorId, int productId) {
    auto interface = std::make_shared<Interface>();
    interface->vendorId = vendorId;
    interface->productId = productId;
    m_present.emplace_back(interface, show(interface));
    m_events.push_back({true, interface});
    return interface;
}

void FakeIoKit::unplug(const std::shared_ptr<Interface>& interface) { m_events.push_back({false, interface}); }

void FakeIoKit::turn() {
    if (!m_scheduled) return;
    for (const Event& event : std::exchange(m_events, {})) deliver(event);
}

void FakeIoKit::callBackWithoutContext(bool matching_, const std::shared_ptr<Interface>& interface) {
    (matching_ ? m_onMatching : m_onRemoval).function(nullptr, 0, nullptr, show(interface));
}

IOHIDDeviceRef FakeIoKit::show(const std::shared_ptr<Interface>& interface) {
    return referenceTo<IOHIDDeviceRef>(new Device(interface));
}

void FakeIoKit::deliver(const Event& event) {
    const auto found =
        std::find_if(m_present.begin(), m_present.end(), [&](const auto& one) { return one.first == event.interface; });
    if (found == m_present.end()) return;
    const Registered callback = event.arrival ? m_onMatching : m_onRemoval;
    const IOHIDDeviceRef device = showsTwins ? show(event.interface) : found->second;
    m_insideRemoval = !event.arrival;
    if (callback.function && matches(*event.interface)) callback.function(callback.context, 0, nullptr, device);
    m_insideRemoval = false;
    if (showsTwins) CFRelease(device);
    if (!event.arrival) forget(event.interface);  // only after its callback has returned
}

void FakeIoKit::forget(const std::shared_ptr<Interface>& interface) {
    std::erase_if(m_present, [&](const auto& one) {
        if (one.first != interface) return false;
        CFRelease(one.second);
        return true;
    });
}

bool FakeIoKit::matches(const Interface& interface) const {
    return std::any_of(matching.begin(), matching.end(), [&](const auto& wanted) {
        return std::all_of(wanted.begin(), wanted.end(), [&](const auto& entry) {
            return (entry.first == "VendorID" && entry.second == interface.vendorId) ||
                   (entry.first == "ProductID" && entry.second == interface.productId);
        });
    });
}

}  // namespace lumo::fakemac

using namespace lumo::fakemac;

extern "C" {

CFRunLoopRef CFRunLoopGetMain(void) {
    static int mainLoop = 0;
    return reinterpret_cast<CFRunLoopRef>(&mainLoop);
}

IOHIDManagerRef IOHIDManagerCreate(CFAllocatorRef, IOOptionBits options) {
    FakeIoKit& system = Access::called("Create");
    system.options.push_back(options);
    return system.canCreate ? referenceTo<IOHIDManagerRef>(new Manager) : nullptr;
}

IOReturn IOHIDManagerOpen(IOHIDManagerRef manager, IOOptionBits options) {
    static_cast<void>(objectAs<Manager>(manager));
    FakeIoKit& system = Access::called("Open");
    system.options.push_back(options);
    return system.openResult;
}

CFSetRef IOHIDManagerCopyDevices(IOHIDManagerRef manager) {
    static_cast<void>(objectAs<Manager>(manager));
    return Access::copyDevices(Access::called("CopyDevices"));
}

void IOHIDManagerSetDeviceMatchingMultiple(IOHIDManagerRef manager, CFArrayRef multiple) {
    static_cast<void>(objectAs<Manager>(manager));
    FakeIoKit& system = Access::called("SetDeviceMatchingMultiple");
    for (const void* dictionary : objectAs<Collection>(multiple).values) {
        const auto& contents = objectAs<Collection>(dictionary).values;
        auto& wanted = system.matching.emplace_back();
        for (std::size_t i = 0; i < contents.size(); i += 2) {
            wanted[objectAs<String>(contents[i]).text] =
                std::get<std::int64_t>(objectAs<Number>(contents[i + 1]).value);
        }
    }
}

void IOHIDManagerRegisterDeviceMatchingCallback(IOHIDManagerRef manager, IOHIDDeviceCallback callback, void* context) {
    static_cast<void>(objectAs<Manager>(manager));
    Access::onMatching(Access::called("RegisterDeviceMatchingCallback")) = {callback, context};
}

void IOHIDManagerRegisterDeviceRemovalCallback(IOHIDManagerRef manager, IOHIDDeviceCallback callback, void* context) {
    static_cast<void>(objectAs<Manager>(manager));
    Access::onRemoval(Access::called("RegisterDeviceRemovalCallback")) = {callback, context};
}

void IOHIDManagerScheduleWithRunLoop(IOHIDManagerRef manager, CFRunLoopRef runLoop, CFStringRef mode) {
    static_cast<void>(objectAs<Manager>(manager));
    FakeIoKit& system = Access::called("ScheduleWithRunLoop");
    if (runLoop != CFRunLoopGetMain()) stop("scheduled on another run loop than the main one");
    if (std::exchange(Access::scheduled(system), true)) stop("a manager was scheduled twice");
    ++system.schedules;
    system.scheduledMode = objectAs<String>(mode).text;
}

void IOHIDManagerUnscheduleFromRunLoop(IOHIDManagerRef manager, CFRunLoopRef, CFStringRef mode) {
    static_cast<void>(objectAs<Manager>(manager));
    FakeIoKit& system = Access::called("UnscheduleFromRunLoop");
    if (system.scheduledMode != objectAs<String>(mode).text) stop("unscheduled from another mode");
    if (!std::exchange(Access::scheduled(system), false)) stop("a manager was unscheduled that was not scheduled");
}

CFTypeRef IOHIDDeviceGetProperty(IOHIDDeviceRef device, CFStringRef key) {
    const auto& properties = objectAs<Device>(device).interface->properties;
    const auto found = properties.find(objectAs<String>(key).text);
    return found == properties.end() ? nullptr : found->second;
}

IOReturn IOHIDDeviceSetReport(IOHIDDeviceRef device, IOHIDReportType type, CFIndex reportID, const uint8_t* report,
                              CFIndex reportLength) {
    Interface& interface = *objectAs<Device>(device).interface;
    interface.written.push_back({type, reportID, {report, report + reportLength}});
    return interface.writeResult;
}

IOReturn IOHIDDeviceGetReport(IOHIDDeviceRef device, IOHIDReportType type, CFIndex reportID, uint8_t* report,
                              CFIndex* reportLength) {
    Interface& interface = *objectAs<Device>(device).interface;
    interface.read.push_back({type, reportID, *reportLength, *report});
    if (interface.readResult != 0) return interface.readResult;
    const auto room = static_cast<std::size_t>(*reportLength);
    std::copy_n(interface.answer.begin(), std::min(room, interface.answer.size()), report);
    *reportLength = static_cast<CFIndex>(interface.answer.size());
    return interface.readResult;
}

}  // extern "C"
