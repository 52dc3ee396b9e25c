// The smallest real run loop, over poll(), for tests that need true descriptors and true threads.
// Made, run and destroyed on one thread, which is the main thread to the code under test; `post` comes from any.
#pragma once

#include <chrono>
#include <deque>
#include <map>
#include <memory>
#include <mutex>
#include <vector>

#include "foundation/RunLoop.h"

namespace lumo::test {

class PollLoop final : public RunLoop {
public:
    PollLoop();
    ~PollLoop() override;

    void post(Task task) override;
    void postAfter(Duration delay, Task task) override;
    [[nodiscard]] std::unique_ptr<Registration> repeatEvery(Duration interval, Task task) override;
    [[nodiscard]] std::unique_ptr<Registration> whenReadable(int descriptor, Task task) override;

    /// Runs the loop until `done` holds; it is asked between turns. False when `limit` has passed before.
    [[nodiscard]] bool runUntil(const std::function<bool()>& done, Duration limit = std::chrono::seconds(30));

    /// Runs what is posted, due and readable by now, and nothing else.
    void runReady();

private:
    using Clock = std::chrono::steady_clock;
    struct Watch {
        int descriptor;
        Task task;
    };
    class Hold;

    void runTurn(Clock::time_point latest);
    void runPosted();
    void runDueTimers();
    void repeat(Duration interval, const std::weak_ptr<Task>& task);
    [[nodiscard]] std::vector<std::weak_ptr<Watch>> waitForReadable(Clock::time_point latest);

    const int m_wake;  // eventfd
    std::mutex m_mutex;
    std::deque<Task> m_posted;
    std::multimap<Clock::time_point, Task> m_timers;  // equal times keep their order
    std::vector<std::weak_ptr<Watch>> m_watches;
};

}  // namespace lumo::test
