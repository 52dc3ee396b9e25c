#include "platform/macos/IoKitHidManager.h"

#include <IOKit/IOReturn.h>

#include <algorithm>
#include <utility>

#include "platform/macos/CfDictionary.h"
#include "platform/macos/FatalError.h"
#include "platform/macos/IoKitHidDevice.h"

namespace lumo {
namespace {

constexpr IOOptionBits kNoOptions = 0;  // above all not "seize": typing goes on while the window is open

CfRef<CFNumberRef> makeNumber(std::int32_t value) {
    return CfRef<CFNumberRef>::adopt(CFNumberCreate(kCFAllocatorDefault, kCFNumberSInt32Type, &value));
}

CfRef<CFDictionaryRef> makeDictionaryOf(const HidMatch& match) {
    const auto vendor = makeNumber(match.vendorId);
    const auto product = makeNumber(match.productId);
    return makeDictionary<2>({CFSTR("VendorID"), CFSTR("ProductID")}, {vendor.get(), product.get()});
}

CfRef<CFArrayRef> makeMatching(const std::vector<HidMatch>& matches) {
    std::vector<CfRef<CFDictionaryRef>> dictionaries;
    std::vector<const void*> values;
    for (const HidMatch& match : matches) {
        dictionaries.push_back(makeDictionaryOf(match));
        values.push_back(dictionaries.back().get());
    }
    return CfRef<CFArrayRef>::adopt(
        CFArrayCreate(kCFAllocatorDefault, values.data(), std::ssize(values), &kCFTypeArrayCallBacks));
}

std::vector<const void*> valuesOf(CFSetRef set) {
    std::vector<const void*> values(static_cast<std::size_t>(CFSetGetCount(set)));
    if (!values.empty()) CFSetGetValues(set, values.data());
    return values;
}

}  // namespace

IoKitHidManager::IoKitHidManager(MainQueue main)
    : m_main(main),
      m_manager(CfRef<IOHIDManagerRef>::adopt(IOHIDManagerCreate(kCFAllocatorDefault, kNoOptions))),
      m_alive(std::make_shared<Alive>()) {}

IoKitHidManager::~IoKitHidManager() {
    // The one call that we know from Apple's reference alone and have not compared with published sources. The
    // running program never comes here.
    if (m_watching) IOHIDManagerUnscheduleFromRunLoop(m_manager.get(), CFRunLoopGetMain(), kCFRunLoopDefaultMode);
}

void IoKitHidManager::setDeviceMatching(std::vector<HidMatch> matches) {
    if (m_manager) IOHIDManagerSetDeviceMatchingMultiple(m_manager.get(), makeMatching(matches).get());
}

void IoKitHidManager::onMatched(Callback callback) { m_onMatched = std::move(callback); }

void IoKitHidManager::onRemoved(Callback callback) { m_onRemoved = std::move(callback); }

bool IoKitHidManager::open() {
    if (!m_manager) return false;
    // IOKit asserts when a manager is scheduled twice, and a refused open leaves it scheduled.
    if (!std::exchange(m_watching, true)) startWatching();
    return IOHIDManagerOpen(m_manager.get(), kNoOptions) == kIOReturnSuccess;
}

void IoKitHidManager::startWatching() {
    IOHIDManagerRegisterDeviceMatchingCallback(m_manager.get(), &IoKitHidManager::matchedByIoKit, this);
    IOHIDManagerRegisterDeviceRemovalCallback(m_manager.get(), &IoKitHidManager::removedByIoKit, this);
    IOHIDManagerScheduleWithRunLoop(m_manager.get(), CFRunLoopGetMain(), kCFRunLoopDefaultMode);
}

std::vector<std::shared_ptr<HidDevice>> IoKitHidManager::devices() {
    std::vector<std::shared_ptr<HidDevice>> present;
    if (!m_manager) return present;
    const auto set = CfRef<CFSetRef>::adopt(IOHIDManagerCopyDevices(m_manager.get()));
    if (!set) return present;
    for (const void* value : valuesOf(set.get())) {
        // The set's values are typed const; IOKit's reference type is not.
        const auto device = static_cast<IOHIDDeviceRef>(const_cast<void*>(value));
        const auto before = known(device);
        present.push_back(before ? before : remember(CfRef<IOHIDDeviceRef>::retain(device)));
    }
    return present;
}

void IoKitHidManager::matchedByIoKit(void* context, IOReturn, void*, IOHIDDeviceRef device) noexcept {
    postTurn(context, device, &IoKitHidManager::arrived);
}

void IoKitHidManager::removedByIoKit(void* context, IOReturn, void*, IOHIDDeviceRef device) noexcept {
    postTurn(context, device, &IoKitHidManager::left);
}

void IoKitHidManager::postTurn(void* context, IOHIDDeviceRef device, Turn turn) {
    if (!context) fatalError("the HID manager called back without a context");
    auto* manager = static_cast<IoKitHidManager*>(context);
    manager->m_main.run.post(
        [weak = std::weak_ptr(manager->m_alive), manager, turn, device = CfRef<IOHIDDeviceRef>::retain(device)] {
            if (!weak.expired()) (manager->*turn)(device);
        });
}

void IoKitHidManager::arrived(const CfRef<IOHIDDeviceRef>& device) {
    // After open, IOKit announces also what was plugged in before, which `devices` may have listed meanwhile.
    if (known(device.get())) return;
    const auto interface = remember(device);
    if (m_onMatched) m_onMatched(interface);
}

void IoKitHidManager::left(const CfRef<IOHIDDeviceRef>& device) {
    const auto interface = known(device.get());
    if (!interface) return;
    std::erase(m_known, interface);
    if (m_onRemoved) m_onRemoved(interface);
}

std::shared_ptr<IoKitHidDevice> IoKitHidManager::known(IOHIDDeviceRef device) const {
    const auto isSame = [device](const auto& one) { return one->isSameInterface(device); };
    const auto found = std::find_if(m_known.begin(), m_known.end(), isSame);
    return found == m_known.end() ? nullptr : *found;
}

std::shared_ptr<IoKitHidDevice> IoKitHidManager::remember(const CfRef<IOHIDDeviceRef>& device) {
    return m_known.emplace_back(std::make_shared<IoKitHidDevice>(device));
}

std::unique_ptr<HidManager> makeMacHidManager(MainQueue main) { return std::make_unique<IoKitHidManager>(main); }

}  // namespace lumo
