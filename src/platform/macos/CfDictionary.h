// CoreFoundation dictionaries, as the C interfaces of the system take them.
#pragma once

#include <CoreFoundation/CoreFoundation.h>

#include <array>

#include "platform/macos/CfRef.h"

namespace lumo {

/// Keeps a count on every key and value. Any thread.
template <std::size_t Count>
[[nodiscard]] CfRef<CFDictionaryRef> makeDictionary(std::array<const void*, Count> keys,
                                                    std::array<const void*, Count> values) {
    return CfRef<CFDictionaryRef>::adopt(CFDictionaryCreate(kCFAllocatorDefault, keys.data(), values.data(), Count,
                                                            &kCFTypeDictionaryKeyCallBacks,
                                                            &kCFTypeDictionaryValueCallBacks));
}

}  // namespace lumo
