// What a lighting command costs beyond its fixed pauses, and how long the window's event loop ever stands still while
// the keyboard hangs. Over the in-process keyboard, on real threads.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QEventLoop>
#include <algorithm>
#include <chrono>
#include <iterator>
#include <string>
#include <vector>

#include "InProcessHidManager.h"
#include "app/AppDelegate.h"
#include "app/SharedObjects.h"
#include "controls/Theme.h"
#include "demo/DemoPlatform.h"
#include "faults/FaultCase.h"
#include "probe/MachineGaps.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;
using test::Clock;

double secondsSince(Clock::time_point start) { return std::chrono::duration<double>(Clock::now() - start).count(); }

double secondsOf(const test::Gaps& gaps) { return static_cast<double>(gaps.longestUs()) / 1e6; }

constexpr Duration kUntilPainted = 500ms;

/// The program without its window, connected.
class RunningLink {
public:
    RunningLink() { runUntilStatus("Connected & Authenticated"); }

    RunLoop& loop() { return m_platform.mainQueue().run; }
    VexaProtocol& link() { return m_objects.vexaProtocol(); }

    void addFault(std::string_view fault) {
        m_platform.hid().ioQueue().run.post(
            [this, fault = vk::parseFault(fault).value()] { m_platform.firmware().addFault(fault); });
    }

    void plugAgain() {
        m_platform.hid().unplugAll();
        m_platform.hid().plugKeyboard();
    }

    void runUntilStatus(const std::string& text) {
        const Subscription changes = link().observe([this, text] {
            loop().post([this, text] {
                if (link().statusMessage.get() == text) m_turns.quit();
            });
        });
        if (link().statusMessage.get() != text) m_turns.exec();
    }

    /// Turns the event loop for that long, and watches its turns.
    test::Gaps turn(Duration during) {
        test::Gaps gaps;
        const auto probe = loop().repeatEvery(1ms, [&gaps] { gaps.tick(); });
        loop().postAfter(during, [this] { m_turns.quit(); });
        m_turns.exec();
        return gaps;
    }

private:
    vk::DemoPlatform m_platform{vk::ReportLog()};
    SharedObjects m_objects{m_platform};
    QEventLoop m_turns;
};

/// As it stands on the screen, painted and connected.
class RunningProgram final : public RunningLink {
public:
    RunningProgram() {
        m_delegate.applicationDidFinishLaunching();
        turn(kUntilPainted);
    }

private:
    AppDelegate m_delegate;
};

void lightingCommand(benchmark::State& state) {
    constexpr double kPausesMs = 60.0;  // three of 20
    RunningLink program;
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

/// One for each transfer of each command.
const std::vector<test::FaultCase>& hangs() {
    static const std::vector<test::FaultCase> cases = [] {
        std::vector<test::FaultCase> found;
        std::ranges::copy_if(test::allFaultCases(), std::back_inserter(found),
                             [](const test::FaultCase& one) { return one.fault.kind == "hang"; });
        return found;
    }();
    return cases;
}

/// A command that hangs at one of its transfers, with others queued behind it; for the handshake the keyboard is
/// plugged in again. What the machine itself stands still meanwhile stands beside it.
void gapWhileHanging(benchmark::State& state) {
    const test::FaultCase& hang = hangs().at(static_cast<std::size_t>(state.range(0)));
    for ([[maybe_unused]] auto turn : state) {
        RunningProgram program;
        program.addFault(hang.faultLine());
        program.loop().post([&] {
            if (hang.command) {
                hang.command->act(SharedObjects::current());
            } else {
                program.plugAgain();
            }
            for (auto left = state.range(1); left > 0; --left) program.link().setLightingMode(5);
        });
        test::MachineGaps machine(1ms);
        state.SetIterationTime(secondsOf(program.turn(1s)));
        state.counters["machine_ms"] = 1e3 * secondsOf(machine.take());
    }
    state.SetLabel(hang.name());
}
BENCHMARK(gapWhileHanging)
    ->ArgNames({"", "queued"})
    ->ArgsProduct({benchmark::CreateDenseRange(0, static_cast<int>(hangs().size()) - 1, 1), {0, 200}})
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
