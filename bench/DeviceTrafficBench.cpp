// What a lighting command costs beyond its fixed pauses, and how long the window's event loop ever stands still while
// the keyboard hangs. The whole window over the in-process keyboard, on real threads.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEventLoop>
#include <array>
#include <chrono>
#include <string>

#include "app/AppDelegate.h"
#include "app/SharedObjects.h"
#include "controls/Theme.h"
#include "demo/DemoPlatform.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using Clock = std::chrono::steady_clock;

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

/// The program as it stands on the screen; its keyboard may have a fault.
class RunningProgram final {
public:
    explicit RunningProgram(std::string_view fault = {}) {
        if (!fault.empty()) m_platform.firmware().addFault(vk::parseFault(fault).value());
        m_delegate.applicationDidFinishLaunching();
    }

    RunLoop& loop() { return m_platform.mainQueue().run; }
    VexaProtocol& link() { return m_objects.vexaProtocol(); }

    void runUntilStatus(const std::string& text) {
        const Subscription changes = link().observe([this, text] {
            loop().post([this, text] {
                if (link().statusMessage.get() == text) m_turns.quit();
            });
        });
        if (link().statusMessage.get() != text) m_turns.exec();
    }

    /// Turns the event loop for that long; returns the longest time between two of its turns.
    double longestGap(Duration during) {
        double longest = 0.0;
        auto lastTurn = Clock::now();
        const auto probe = loop().repeatEvery(1ms, [&] {
            longest = std::max(longest, secondsSince(lastTurn));
            lastTurn = Clock::now();
        });
        loop().postAfter(during, [this] { m_turns.quit(); });
        m_turns.exec();
        return longest;
    }

private:
    vk::DemoPlatform m_platform{vk::ReportLog()};
    SharedObjects m_objects{m_platform};
    AppDelegate m_delegate;
    QEventLoop m_turns;
};

void lightingCommand(benchmark::State& state) {
    constexpr double kPausesMs = 60.0;  // three of 20
    RunningProgram program;
    program.runUntilStatus("Connected & Authenticated");
    double worst = 0.0;
    for ([[maybe_unused]] auto turn : state) {
        const auto start = Clock::now();
        program.link().setLightingMode(5);
        program.runUntilStatus("Applied: Raindrops");
        const double seconds = secondsSince(start);
        state.SetIterationTime(seconds);
        worst = std::max(worst, seconds * 1e3 - kPausesMs);
        program.link().statusMessage.set("");
    }
    state.counters["worst_over_pauses_ms"] = worst;
}
BENCHMARK(lightingCommand)->UseManualTime()->Iterations(50)->Unit(benchmark::kMillisecond);

/// The exchanges of handshake and lighting command, in their order.
constexpr auto kHangs = std::to_array<std::string_view>({
    "set any hang once",         // handshake query
    "get any hang once",         // its answer
    "set any hang skip 1 once",  // query of the colour block
    "get any hang skip 1 once",  // its answer
    "set any hang skip 2 once",  // colour block
    "set any hang skip 3 once",  // query of the parameter block
    "get any hang skip 2 once",  // its answer
    "set any hang skip 4 once",  // parameter block
});

void gapWhileHanging(benchmark::State& state) {
    const std::string_view fault = kHangs.at(static_cast<std::size_t>(state.range(0)));
    double longest = 0.0;
    for ([[maybe_unused]] auto turn : state) {
        RunningProgram program(fault);
        program.link().setLightingMode(5);
        longest = std::max(longest, program.longestGap(2s));
        state.SetIterationTime(longest);
    }
    state.SetLabel(std::string(fault));
}
BENCHMARK(gapWhileHanging)
    ->DenseRange(0, static_cast<int>(kHangs.size()) - 1)
    ->UseManualTime()
    ->Iterations(1)
    ->Unit(benchmark::kMillisecond);

}  // namespace
}  // namespace lumo

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    lumo::theme::apply(application);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    return 0;
}
