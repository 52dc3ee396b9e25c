// Plugs, faults, commands, state changes and quitting in random order, with a real I/O thread. ThreadSanitizer looks
// on; beyond that, all that is published is written on the main thread, and a keyboard that is well again works again.
#include <array>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <thread>

#include "races/Deeds.h"
#include "support/SeededRun.h"

namespace lumo::test {
namespace {

using Clock = std::chrono::steady_clock;
using namespace std::chrono_literals;

struct Counts {
    std::array<unsigned long, 4> deeds{};  // by their kind
    unsigned long quits = 0;
    unsigned long recoveries = 0;
    unsigned long transfers = 0;
};

[[noreturn]] void fail(const char* what, const std::string& instead = {}) {
    std::fprintf(stderr, "FAILED: %s%s\n", what, instead.c_str());
    std::fflush(nullptr);
    std::_Exit(EXIT_FAILURE);
}

/// One launch of the program, from its first turn to its end.
class Launch final {
public:
    Launch(Chance& chance, Counts& counts)
        : m_platform(chance.seed()),
          m_chance(chance),
          m_counts(counts),
          m_onLink(m_objects.vexaProtocol().observe([this] { expectMainThread(); })),
          m_onKeyboard(m_objects.keyboardModel().observe([this] { expectMainThread(); })),
          m_onMusic(m_objects.audioVisualizerEngine().observe([this] { expectMainThread(); })) {}

    void play() {
        for (int left = m_chance.between(1, 120); left > 0; --left) {
            const Deed& deed = m_chance.of(allDeeds());
            deed.act({m_platform, m_objects, m_chance});
            ++m_counts.deeds.at(static_cast<std::size_t>(deed.kind));
            if (m_chance.oneIn(3)) turnFor(Duration{m_chance.between(0, 2000)});
        }
    }

    /// In the middle of whatever is under way; the loop may turn once more before the process would end.
    void quit() {
        m_objects.stopDeviceTraffic();
        if (m_chance.oneIn(2)) m_platform.loop.runReady();
        m_chance.of(allDeeds()).act({m_platform, m_objects, m_chance});
        m_objects.finishDeviceTraffic();
        m_counts.transfers += m_platform.firmware.transfers();  // its thread is gone
        ++m_counts.quits;
    }

    void expectRecovery() {
        m_objects.audioVisualizerEngine().stop();
        m_platform.hid().unplugAll();
        waitForIoThread();
        m_platform.onIoThread([this] { m_platform.firmware.clearFaults(); });
        m_platform.hid().plugKeyboard();
        VexaProtocol& link = m_objects.vexaProtocol();
        waitUntil([&] { return link.isConnected.get() && link.isAuthenticated.get(); }, "no handshake");
        link.setLightingMode(5);
        waitForIoThread();
        if (link.statusMessage.get() != "Applied: Raindrops") fail("the status is ", link.statusMessage.get());
        if (!link.isConnected.get()) fail("not connected after a lighting command");
        ++m_counts.recoveries;
    }

private:
    void expectMainThread() const {
        if (std::this_thread::get_id() != m_mainThread) fail("published from another thread");
    }

    void turnFor(Duration time) {
        (void)m_platform.loop.runUntil([] { return false; }, time);
    }

    template <typename Condition>
    void waitUntil(Condition condition, const char* otherwise) {
        if (!m_platform.loop.runUntil(condition, 60s)) fail(otherwise);
    }

    /// Until all that was given to the I/O thread before is done and what came of it has been published.
    void waitForIoThread() {
        bool isDone = false;
        m_platform.loop.post([&] {  // behind what is posted already, which may bring more for the I/O thread
            m_platform.onIoThread([&] { m_platform.loop.post([&] { isDone = true; }); });
        });
        waitUntil([&] { return isDone; }, "the I/O thread does not come through");
    }

    const std::thread::id m_mainThread = std::this_thread::get_id();
    RacingPlatform m_platform;
    SharedObjects m_objects{m_platform};
    Chance& m_chance;
    Counts& m_counts;
    Subscription m_onLink;
    Subscription m_onKeyboard;
    Subscription m_onMusic;
};

Counts race(const SeededRun& run) {
    Counts counts;
    Chance chance(run.seed);
    const auto end = Clock::now() + run.length;
    do {
        Launch launch(chance, counts);
        launch.play();
        if (chance.oneIn(2)) launch.expectRecovery();
        launch.quit();
    } while (Clock::now() < end);
    return counts;
}

}  // namespace
}  // namespace lumo::test

int main(int argc, char** argv) {
    using namespace lumo::test;
    const Counts counts = race(readSeededRun({argv, static_cast<std::size_t>(argc)}));
    std::printf(
        "%lu launches and quits, %lu recoveries, %lu pluggings, %lu faults, %lu commands, %lu state changes, "
        "%lu transfers\n",
        counts.quits, counts.recoveries, counts.deeds[0], counts.deeds[1], counts.deeds[2], counts.deeds[3],
        counts.transfers);
    return counts.recoveries > 0 ? EXIT_SUCCESS : EXIT_FAILURE;  // a run too short to have looked has shown nothing
}
