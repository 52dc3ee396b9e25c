#include "platform/NativePrivacy.h"

#include "platform/linux/UngatedPrivacy.h"

namespace lumo {

std::unique_ptr<Privacy> makeNativePrivacy() { return std::make_unique<UngatedPrivacy>(); }

}  // namespace lumo
