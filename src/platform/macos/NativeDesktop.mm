#include "platform/NativeDesktop.h"

#import <AppKit/AppKit.h>

#include "platform/macos/NsText.h"

namespace lumo {
namespace {

/// As long as it lives, the centre keeps the block and all that the block holds.
class Observation final : public Registration {
   public:
    explicit Observation(id<NSObject> observer) : m_observer(observer) {}
    Observation(const Observation&) = delete;
    Observation& operator=(const Observation&) = delete;
    ~Observation() override { [NSNotificationCenter.defaultCenter removeObserver:m_observer]; }

   private:
    const id<NSObject> m_observer;
};

class MacDesktop final : public Desktop {
   public:
    void openLink(std::string_view link) override {
        @autoreleasepool {
            NSString* text = nsText(link);
            NSURL* url = text ? [NSURL URLWithString:text] : nil;
            if (url) [NSWorkspace.sharedWorkspace openURL:url];
        }
    }

    void openThisApplication(Task completed) override {
        @autoreleasepool {
            [NSWorkspace.sharedWorkspace openApplicationAtURL:NSBundle.mainBundle.bundleURL
                                                configuration:[NSWorkspaceOpenConfiguration configuration]
                                            completionHandler:^(NSRunningApplication*, NSError*) {
                                              completed();
                                            }];
        }
    }

    void terminate() override { [NSApp terminate:nil]; }

    std::unique_ptr<Registration> whenBecameActive(Task task) override {
        return std::make_unique<Observation>([NSNotificationCenter.defaultCenter
            addObserverForName:NSApplicationDidBecomeActiveNotification
                        object:nil
                         queue:NSOperationQueue.mainQueue
                    usingBlock:^(NSNotification*) {
                      task();
                    }]);
    }
};

}  // namespace

std::unique_ptr<Desktop> makeNativeDesktop() { return std::make_unique<MacDesktop>(); }

}  // namespace lumo
