#include "platform/NativePreferences.h"

#import <CoreFoundation/CoreFoundation.h>
#import <Foundation/Foundation.h>

#include "platform/macos/NsText.h"

namespace lumo {
namespace {

/// The user's defaults of the bundle, or of the executable's name outside a bundle.
class UserDefaults final : public Preferences {
   public:
    bool boolForKey(std::string_view key) override {
        @autoreleasepool {
            NSString* name = nsText(key);
            return name && [NSUserDefaults.standardUserDefaults boolForKey:name];
        }
    }

    void setBool(bool value, std::string_view key) override {
        @autoreleasepool {
            NSString* name = nsText(key);
            if (!name) return;
            [NSUserDefaults.standardUserDefaults setBool:(value ? YES : NO) forKey:name];
            // At once: quitting ends the process without another turn of the run loop.
            CFPreferencesAppSynchronize(kCFPreferencesCurrentApplication);
        }
    }
};

}  // namespace

std::unique_ptr<Preferences> makeNativePreferences() { return std::make_unique<UserDefaults>(); }

}  // namespace lumo
