// What the settings page says about the keyboard. Fixed: nothing of it is read from the device.
#pragma once

#include <array>
#include <string_view>

namespace lumo {

struct DeviceSpec {
    std::string_view label;
    std::string_view value;
};

inline constexpr auto kDeviceSpecs = std::to_array<DeviceSpec>({
    {"Device Model", "Vexa Lumo 65 Mechanical Keyboard"},
    {"OEM Solution ID", "BYCOMBO4"},
    {"Architecture", "SinoWealth / BY-Tech K916"},
    {"Firmware Revision", "v24 (0x18)"},
    {"Wired USB Descriptor", "VID: 0x258A | PID: 0x010C"},
    {"Wireless 2.4G Descriptor", "VID: 0x3554 | PID: 0xFA09"},
    {"Total Physical Keys", "68 Keys (65% ANSI)"},
    {"Dual-Bank RGB Matrices", "Bank 1: 0xBC (0-63) | Bank 2: 0xC0 (64-100)"},
    {"Audio Reactive Endpoint", "hMusic (UsagePage 0xFF00, 382 Bytes)"},
    {"macOS Driver Subsystem", "IOKit.hid / IOHIDManager native"},
});
static_assert(kDeviceSpecs.size() == 10);

}  // namespace lumo
