// The modes of the music effect, as the music page lists them.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

namespace lumo {

struct MusicMode {
    std::int64_t id = 0;
    std::string_view name;
};

inline constexpr auto kMusicModes = std::to_array<MusicMode>({
    {1, "Audio dance - soft"},
    {2, "Dazzling - rock"},
    {3, "Clouds rise and snow fly - routine"},
    {4, "Light Field Change - voice"},
    {5, "The gurgling stream - regular"},
    {6, "Blooming - passion"},
    {7, "Pearl falling jade plate - rock"},
    {8, "Clouds follow the moon - passion"},
    {9, "Mountains and Flowing Waters - regular"},
    {10, "Raining like silk - regular"},
});
static_assert(kMusicModes.size() == 10);

}  // namespace lumo
