#include "platform/NativeBundle.h"

#import <Foundation/Foundation.h>

#include "platform/macos/NsText.h"

namespace lumo {
namespace {

/// Outside a bundle the system takes the folder of the executable for one.
class MainBundle final : public Bundle {
   public:
    [[nodiscard]] std::optional<std::string> pathForResource(std::string_view name) const override {
        if (name.empty()) return std::nullopt;  // to NSBundle that would be the first file it finds
        @autoreleasepool {
            NSString* resource = nsText(name);
            if (!resource) return std::nullopt;
            return utf8Of([NSBundle.mainBundle pathForResource:resource ofType:nil]);
        }
    }

    [[nodiscard]] std::optional<std::string> resourceDirectory() const override {
        @autoreleasepool {
            return utf8Of(NSBundle.mainBundle.resourcePath);
        }
    }
};

}  // namespace

std::unique_ptr<Bundle> makeNativeBundle() { return std::make_unique<MainBundle>(); }

}  // namespace lumo
