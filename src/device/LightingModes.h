// The keyboard's lighting effects: the number the interface knows them by and the number the firmware does.
#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string_view>
#include <type_traits>

namespace lumo {

struct LightingModeInfo {
    std::int64_t id = 0;    // effect number throughout the interface
    std::string_view name;  // display name; the spelling is the product's
    std::int64_t hwId = 0;  // the firmware's effect number, one byte on the wire
    bool supportsSpeed = false;
    bool supportsBrightness = false;
    bool supportsCustomColor = false;
    bool isPerKey = false;     // shows the per-key colours of the keyboard model
    bool isStreaming = false;  // fed by a host stream
    bool operator==(const LightingModeInfo&) const = default;
};

inline constexpr std::int64_t kPerKeyModeId = 21;
inline constexpr std::int64_t kRotatingStormModeId = 18;  // shares its firmware number with the per-key effect

/// The effects in which the pages upload the keys' own colours instead of a mode.
[[nodiscard]] constexpr bool paintsKeys(std::int64_t modeId) {
    return modeId == kPerKeyModeId || modeId == kRotatingStormModeId;
}

/// The whole catalogue. 19 and 20 do not exist.
inline constexpr auto kLightingModes = std::to_array<LightingModeInfo>({
    // id  name                          hwId   speed  bright color  perKey stream
    {0, "LED OFF", 0x00, false, false, false, false, false},
    {1, "Fixed_on (Static)", 0x01, false, true, true, false, false},
    {2, "Respire (Breathing)", 0x03, true, true, true, false, false},
    {3, "Rainbow (Cycle)", 0x02, true, true, false, false, false},
    {4, "Flash_away (Stream)", 0x13, true, true, true, false, false},
    {5, "Raindrops", 0x0F, true, true, true, false, false},
    {6, "Rainbow_wheel", 0x0D, true, true, false, false, false},
    {7, "Ripples_shining", 0x14, true, true, true, false, false},
    {8, "Stars_twinkle", 0x10, true, true, true, false, false},
    {9, "Shadow_disappear", 0x12, true, true, true, false, false},
    {10, "Retro_snake", 0x05, true, true, false, false, false},
    {11, "Neon_stream", 0x07, true, true, false, false, false},
    {12, "Reaction", 0x11, true, true, true, false, false},
    {13, "Sine_wave", 0x0C, true, true, true, false, false},
    {14, "Retinue scanning", 0x08, true, true, true, false, false},
    {15, "Rotating windmill", 0x1C, true, true, false, false, false},
    {16, "Colorful waterfall", 0x1E, true, true, true, false, false},
    {17, "Blossoming", 0x0E, true, true, true, false, false},
    {18, "Rotating storm", 0x1D, true, true, true, false, false},
    {21, "Self-define (Per-Key RGB)", 0x1D, false, true, true, true, false},
});

/// First catalogue entry with that effect number, or none.
[[nodiscard]] constexpr const LightingModeInfo* findLightingMode(std::int64_t id) {
    const auto* const found = std::ranges::find(kLightingModes, id, &LightingModeInfo::id);
    return found == kLightingModes.end() ? nullptr : found;
}

namespace detail {
constexpr bool modeIdsAreUnique() {
    return std::ranges::all_of(kLightingModes, [](const LightingModeInfo& mode) {
        return std::ranges::count(kLightingModes, mode.id, &LightingModeInfo::id) == 1;
    });
}
constexpr bool firmwareNumbersFitAByte() {
    return std::ranges::all_of(
        kLightingModes, [](std::int64_t hwId) { return hwId >= 0 && hwId <= 0xFF; }, &LightingModeInfo::hwId);
}
}  // namespace detail
static_assert(kLightingModes.size() == 20);
static_assert(detail::modeIdsAreUnique());
static_assert(detail::firmwareNumbersFitAByte());

}  // namespace lumo

template <>
struct std::hash<lumo::LightingModeInfo> {
    std::size_t operator()(const lumo::LightingModeInfo& mode) const noexcept {
        std::size_t seed = 0;
        const auto combine = [&seed](const auto& field) {
            seed ^= std::hash<std::remove_cvref_t<decltype(field)>>{}(field) + 0x9e3779b97f4a7c15U + (seed << 6U) +
                    (seed >> 2U);
        };
        combine(mode.id);
        combine(mode.name);
        combine(mode.hwId);
        combine(mode.supportsSpeed);
        combine(mode.supportsBrightness);
        combine(mode.supportsCustomColor);
        combine(mode.isPerKey);
        combine(mode.isStreaming);
        return seed;
    }
};
