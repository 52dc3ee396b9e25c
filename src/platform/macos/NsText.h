// Texts on their way to and from Foundation. For Objective-C++ only. Any thread.
#pragma once

#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

namespace lumo {

/// nil for bytes that are no UTF-8.
[[nodiscard]] inline NSString* _Nullable nsText(std::string_view utf8) {
    return [[NSString alloc] initWithBytes:utf8.data() length:utf8.size() encoding:NSUTF8StringEncoding];
}

/// Absent for nil, and for a text that UTF-8 cannot say.
[[nodiscard]] inline std::optional<std::string> utf8Of(NSString* _Nullable text) {
    const char* const bytes = text.UTF8String;
    if (!bytes) return std::nullopt;
    return std::string(bytes);
}

}  // namespace lumo
