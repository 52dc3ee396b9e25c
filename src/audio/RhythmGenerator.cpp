#include "audio/RhythmGenerator.h"

#include <algorithm>
#include <cmath>

namespace lumo {
namespace {

constexpr double kPhaseStep = 0.12;
constexpr std::size_t kBassBands = 4;
constexpr double kBassLift = 1.35;
constexpr double kLowest = 0.05;
constexpr double kHighest = 1.0;

double levelOf(std::size_t band, double phase) {
    const auto x = static_cast<double>(band);
    const double wave = std::sin(phase * 1.5 + x * 0.4);
    const double counterWave = std::cos(phase * 0.8 + x * -0.2);
    const double ripple = std::sin(phase * 3.0 + x * 1.2) * 0.3;
    const double level = (ripple + (wave * 0.4 + counterWave * 0.4) + 1.0) * 0.5;
    return std::clamp(band < kBassBands ? level * kBassLift : level, kLowest, kHighest);
}

}  // namespace

BandLevels RhythmGenerator::next() {
    m_phase += kPhaseStep;
    BandLevels levels{};
    for (std::size_t band = 0; band < kBandCount; ++band) levels[band] = levelOf(band, m_phase);
    return levels;
}

std::array<std::uint8_t, kBandCount> toBytes(const BandLevels& levels) {
    constexpr double kFullScale = 255.0;
    std::array<std::uint8_t, kBandCount> bytes{};
    std::ranges::transform(levels, bytes.begin(),
                           [](double level) { return static_cast<std::uint8_t>(level * kFullScale); });
    return bytes;
}

}  // namespace lumo
