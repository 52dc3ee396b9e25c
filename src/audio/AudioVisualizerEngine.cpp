#include "audio/AudioVisualizerEngine.h"

#include <chrono>

#include "device/VexaProtocol.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;

constexpr Duration kInterval = 33ms;
constexpr double kRestingLevel = 0.1;

}  // namespace

BandLevels AudioVisualizerEngine::restingLevels() {
    BandLevels levels{};
    levels.fill(kRestingLevel);
    return levels;
}

void AudioVisualizerEngine::start() {
    if (isRunning.get()) return;
    isRunning.set(true);
    m_timer = m_main.run.repeatEvery(kInterval, [this] { tick(); });
}

void AudioVisualizerEngine::stop() {
    isRunning.set(false);
    m_timer.reset();
    frequencyLevels.set(restingLevels());
}

void AudioVisualizerEngine::tick() {
    const BandLevels levels = m_rhythm.next();
    m_main.run.post([this, run = std::weak_ptr(m_timer), levels] {
        if (!run.expired()) frequencyLevels.set(levels);
    });
    m_link.streamAudioVisualizerFrame(toBytes(levels));
}

}  // namespace lumo
