// A rhythm without a microphone: waves that travel over the bands.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

namespace lumo {

inline constexpr std::size_t kBandCount = 16;
using BandLevels = std::array<double, kBandCount>;  // the lowest band first

/// A value.
class RhythmGenerator final {
public:
    /// One step on; each level is 0.05 to 1.
    [[nodiscard]] BandLevels next();

private:
    double m_phase = 0.0;
};

/// Each level in 255ths, truncated. A level is 0 to 1.
[[nodiscard]] std::array<std::uint8_t, kBandCount> toBytes(const BandLevels& levels);

}  // namespace lumo
