// The actions with a picture that a key can be bound to. docs/protocol.md, "Key codes".
#pragma once

#include <array>
#include <cstdint>
#include <span>
#include <string_view>
#include <vector>

#include "remap/RemapItem.h"

namespace lumo {

struct RemapAction {
    std::string_view name;
    std::string_view iconFile;
    KeyCode codeBytes{};
    std::uint32_t dword = 0;
};

inline constexpr auto kMediaActions = std::to_array<RemapAction>({
    {"Play / Pause", "media_play.png", {0x02, 0x00, 0x00, 0xCD}, 0x020000CD},
    {"Mute", "media_mute.png", {0x02, 0x00, 0x00, 0xE2}, 0x020000E2},
    {"Volume +", "media_volinc.png", {0x02, 0x00, 0x00, 0xE9}, 0x020000E9},
    {"Volume -", "media_voldec.png", {0x02, 0x00, 0x00, 0xEA}, 0x020000EA},
    {"Next Track", "media_next.png", {0x02, 0x00, 0x00, 0xB5}, 0x020000B5},
    {"Prev Track", "media_prev.png", {0x02, 0x00, 0x00, 0xB6}, 0x020000B6},
    {"Stop", "media_stop.png", {0x02, 0x00, 0x00, 0xB7}, 0x020000B7},
    {"Calculator", "media_cal.png", {0x02, 0x00, 0x01, 0x92}, 0x02000192},
    {"My Computer", "media_computer.png", {0x02, 0x00, 0x01, 0x94}, 0x02000194},
    {"Web Browser", "media_home.png", {0x02, 0x00, 0x02, 0x23}, 0x02000223},
});

// A shortcut has its key in byte 2, other than a single key, which stands in byte 3. Some pictures serve twice.
inline constexpr auto kSystemActions = std::to_array<RemapAction>({
    {"Ctrl + C (Copy)", "adv_save.png", {0x00, 0x01, 0x06, 0x00}, 0x00010600},
    {"Ctrl + V (Paste)", "adv_task.png", {0x00, 0x01, 0x19, 0x00}, 0x00011900},
    {"Ctrl + X (Cut)", "adv_closewindow.png", {0x00, 0x01, 0x1B, 0x00}, 0x00011B00},
    {"Ctrl + Z (Undo)", "adv_undo.png", {0x00, 0x01, 0x1D, 0x00}, 0x00011D00},
    {"Ctrl + S (Save)", "adv_save.png", {0x00, 0x01, 0x16, 0x00}, 0x00011600},
    {"Ctrl + A (Select All)", "adv_desktop.png", {0x00, 0x01, 0x04, 0x00}, 0x00010400},
    {"Show Desktop (Win+D)", "adv_desktop.png", {0x00, 0x08, 0x07, 0x00}, 0x00080700},
    {"Disable Key", "adv_disable.png", {0x00, 0x00, 0x00, 0x00}, 0x00000000},
});

inline constexpr auto kMouseActions = std::to_array<RemapAction>({
    {"Left Click", "ms_left.png", {0x01, 0x01, 0x01, 0x00}, 0x01010100},
    {"Right Click", "ms_right.png", {0x01, 0x02, 0x01, 0x00}, 0x01020100},
    {"Middle Click", "ms_mid.png", {0x01, 0x03, 0x01, 0x00}, 0x01030100},
    {"Forward", "ms_forward.png", {0x01, 0x05, 0x01, 0x00}, 0x01050100},
    {"Backward", "ms_backward.png", {0x01, 0x04, 0x01, 0x00}, 0x01040100},
});

/// In the same order, each with an id of its own.
[[nodiscard]] std::vector<RemapItem> remapItems(std::span<const RemapAction> actions);

}  // namespace lumo
