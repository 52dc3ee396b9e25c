// What one tick of the audio engine costs: the levels, their publication and the decision whether the keyboard hears
// of them. The thirty of a second may not be felt.
#include <benchmark/benchmark.h>

#include <deque>
#include <utility>

#include "app/SharedObjects.h"
#include "demo/DemoPlatform.h"

namespace lumo {
namespace {

/// Runs a repeated task whenever it is told to, and what was posted meanwhile.
class Metronome final : public RunLoop {
public:
    void post(Task task) override { m_posted.push_back(std::move(task)); }
    void postAfter(Duration, Task task) override { post(std::move(task)); }
    std::unique_ptr<Registration> repeatEvery(Duration, Task task) override {
        m_repeated = std::move(task);
        return std::make_unique<Registration>();
    }
    std::unique_ptr<Registration> whenReadable(int, Task) override { return nullptr; }

    void beat() {
        m_repeated();
        for (; !m_posted.empty(); m_posted.pop_front()) m_posted.front()();
    }

private:
    Task m_repeated;
    std::deque<Task> m_posted;
};

void engineTick(benchmark::State& state) {
    vk::DemoPlatform platform{vk::ReportLog()};
    SharedObjects objects(platform);
    Metronome metronome;
    AudioVisualizerEngine engine({metronome}, objects.vexaProtocol());
    engine.start();
    for ([[maybe_unused]] auto turn : state) metronome.beat();
    if (engine.frequencyLevels.get().front() == 0.1) state.SkipWithError("nothing was published");
}
BENCHMARK(engineTick);

}  // namespace
}  // namespace lumo
