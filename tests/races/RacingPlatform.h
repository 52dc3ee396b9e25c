// Two real threads over the in-process keyboard: the main thread's loop is polled, and the I/O thread's pauses are as
// good as nothing, so that more happens at the same time than it ever will with a real keyboard.
#pragma once

#include <algorithm>
#include <memory>
#include <utility>

#include "InProcessHidManager.h"
#include "foundation/SerialQueue.h"
#include "support/Chance.h"
#include "support/FakedPlatform.h"
#include "support/PollLoop.h"

namespace lumo::test {

/// The program's own I/O thread, in a hurry.
class HastyQueue final : public BlockingExecutor {
public:
    explicit HastyQueue(std::uint64_t seed) : m_chance(seed) {}

    void post(Task task) override { m_queue.post(std::move(task)); }
    void pause(Duration duration) override {
        m_queue.pause(std::min(duration, Duration{m_chance.between(0, kLongestPauseUs)}));
    }
    [[nodiscard]] bool isStopping() const override { return m_queue.isStopping(); }
    void stop() override { m_queue.stop(); }
    void finish() override { m_queue.finish(); }

private:
    static constexpr int kLongestPauseUs = 300;

    Chance m_chance;  // the I/O thread's
    SerialQueue m_queue;
};

/// Outlives the SharedObjects made from it, and its loop does not turn once they are gone.
class RacingPlatform final : public FakedPlatform {
public:
    explicit RacingPlatform(std::uint64_t seed) : m_seed(seed) {}

    PollLoop loop;
    vk::FirmwareModel firmware;  // the I/O thread's

    /// Once the link is made, and as long as it.
    [[nodiscard]] vk::InProcessHidManager& hid() { return *m_hid; }
    /// The task runs on the I/O thread, unless the program quits before.
    void onIoThread(Task task) { hid().ioQueue().run.post(std::move(task)); }

    MainQueue mainQueue() override { return {loop}; }
    std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view) override {
        return std::make_unique<HastyQueue>(m_seed);
    }
    std::unique_ptr<HidManager> makeHidManager(IoQueue io) override {
        auto manager = std::make_unique<vk::InProcessHidManager>(mainQueue(), io, firmware, m_log);
        m_hid = manager.get();
        return manager;
    }
    void print(std::string_view) override {}

private:
    const std::uint64_t m_seed;
    vk::ReportLog m_log;
    vk::InProcessHidManager* m_hid = nullptr;
};

}  // namespace lumo::test
