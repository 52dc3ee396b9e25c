// The brightness that follows the music.
#include <algorithm>
#include <chrono>
#include <numeric>

#include "device/ParameterBlock.h"
#include "device/ParameterReports.h"
#include "device/VexaProtocol.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;

std::uint8_t loudnessLevel(std::span<const std::uint8_t> bands) {
    constexpr std::uint64_t kMeanOfLevel = 50;
    const auto sum = std::accumulate(bands.begin(), bands.end(), std::uint64_t{0});
    const std::uint64_t mean = bands.empty() ? 0 : sum / bands.size();
    return static_cast<std::uint8_t>(std::clamp<std::uint64_t>(mean / kMeanOfLevel, 1, 4));
}

}  // namespace

void VexaProtocol::streamAudioVisualizerFrame(std::span<const std::uint8_t> frequencyBands) {
    const std::uint8_t level = loudnessLevel(frequencyBands);
    if (level == brightness.get()) return;
    brightness.set(level);
    m_io.run.post([this, level] {
        const Exchange exchange(m_io, m_device.get());
        const auto write = brightnessWrite(exchange.queryAccepted(kParameterBlockRead, 10ms), level);
        if (write) (void)exchange.sendReport(*write);  // the next change of the music tries again
    });
}

}  // namespace lumo
