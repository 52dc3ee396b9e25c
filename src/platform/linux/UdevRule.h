// The udev rule that lets the person at the screen, and nobody else, configure the keyboard: what the console tells
// whoever runs the program without having installed the rule file.
#pragma once

#include <string_view>

namespace lumo {

// "uaccess" is evaluated by a rule file with number 73: ours must come earlier.
inline constexpr std::string_view kUdevRuleFile = "/etc/udev/rules.d/70-vexa-lumo-65.rules";

// For whoever has not installed packaging/linux/70-vexa-lumo-65.rules and the program it asks: what can be known
// without reading report descriptors. An interface gets the rights only when nothing about it can type: it does not
// call itself a boot keyboard (protocol 01) or mouse (02), and the kernel made no input device of it. All ATTRS of a
// line have to match on one parent, and the ids sit on another one than class and protocol: so they are taken from the
// path, where the HID device has them.
inline constexpr std::string_view kUdevRule =
    "ACTION!=\"remove\", SUBSYSTEM==\"hidraw\", DEVPATH==\"*/0003:258A:010C.*|*/0003:3554:FA09.*\", "
    "ATTRS{bInterfaceClass}==\"03\", ATTRS{bInterfaceProtocol}==\"00\", TEST!=\"device/input\", TAG+=\"uaccess\"";

}  // namespace lumo
