// Finds HID interfaces through the IOKit HID manager.
// Main thread only. The run loop of the main queue outlives it. The program keeps its manager open until the
// process ends; destroying one takes it off the run loop.
#pragma once

#include <IOKit/hid/IOHIDManager.h>

#include "foundation/RunLoop.h"
#include "platform/Hid.h"
#include "platform/macos/CfRef.h"

namespace lumo {

class IoKitHidDevice;

/// What IOKit calls back only posts: its removal callbacks run under the manager's own lock, and the main run
/// loop may be spinning inside some call of ours when a callback comes. All bookkeeping happens in the posted
/// turn, so the list of interfaces, what was announced and what `devices` listed can never disagree. Posting
/// keeps the order in which IOKit told.
class IoKitHidManager final : public HidManager {
public:
    explicit IoKitHidManager(MainQueue main);
    ~IoKitHidManager() override;

    void setDeviceMatching(std::vector<HidMatch> matches) override;
    void onMatched(Callback callback) override;
    void onRemoved(Callback callback) override;

    /// May be called again after a refusal.
    [[nodiscard]] bool open() override;
    [[nodiscard]] std::vector<std::shared_ptr<HidDevice>> devices() override;

private:
    using Turn = void (IoKitHidManager::*)(const CfRef<IOHIDDeviceRef>&);
    struct Alive {};

    static void matchedByIoKit(void* context, IOReturn result, void* sender, IOHIDDeviceRef device) noexcept;
    static void removedByIoKit(void* context, IOReturn result, void* sender, IOHIDDeviceRef device) noexcept;
    static void postTurn(void* context, IOHIDDeviceRef device, Turn turn);

    void startWatching();
    void arrived(const CfRef<IOHIDDeviceRef>& device);
    void left(const CfRef<IOHIDDeviceRef>& device);
    [[nodiscard]] std::shared_ptr<IoKitHidDevice> known(IOHIDDeviceRef device) const;
    [[nodiscard]] std::shared_ptr<IoKitHidDevice> remember(const CfRef<IOHIDDeviceRef>& device);

    MainQueue m_main;
    CfRef<IOHIDManagerRef> m_manager;
    Callback m_onMatched;
    Callback m_onRemoved;
    bool m_watching = false;
    std::vector<std::shared_ptr<IoKitHidDevice>> m_known;  // announced or listed, and not removed since
    std::shared_ptr<Alive> m_alive;                        // a turn still posted when this goes finds nobody
};

/// Main thread. See IoKitHidManager for who outlives whom.
[[nodiscard]] std::unique_ptr<HidManager> makeMacHidManager(MainQueue main);

}  // namespace lumo
