// Both queues and every pause on one clock: no threads, no sleeps, and the order of events is exact.
#pragma once

#include <cstdint>
#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <utility>

#include "foundation/RunLoop.h"

namespace lumo::test {

/// A task of the I/O queue that pauses lets the main queue's events of that time run meanwhile, as a second thread
/// would. Since there is none, an advance that ends inside a pause ends when that task does: to look at the middle of
/// an exchange, post the look with `at`.
class VirtualTime final {
public:
    VirtualTime() : m_main(*this), m_io(*this) {}

    [[nodiscard]] MainQueue mainQueue() { return {m_main}; }
    [[nodiscard]] IoQueue ioQueue() { return {m_io}; }
    [[nodiscard]] Duration now() const { return m_now; }

    /// Runs everything that is due until `by` from now; what is due at the same time runs in posting order.
    void advance(Duration by);

    /// Runs until only repeating timers are left.
    void settle();

    /// Runs the task on the main queue `after` from now.
    void at(Duration after, Task task) { m_main.postAfter(after, std::move(task)); }

    [[nodiscard]] std::size_t pendingIoTasks() const { return m_ioTasks.size(); }

private:
    class Main final : public RunLoop {
    public:
        explicit Main(VirtualTime& time) : m_time(time) {}
        void post(Task task) override { postAfter(Duration{0}, std::move(task)); }
        void postAfter(Duration delay, Task task) override;
        std::unique_ptr<Registration> repeatEvery(Duration interval, Task task) override;
        std::unique_ptr<Registration> whenReadable(int descriptor, Task task) override;

    private:
        void repeat(Duration interval, const std::weak_ptr<Task>& task);
        VirtualTime& m_time;
    };
    class Io final : public BlockingExecutor {
    public:
        explicit Io(VirtualTime& time) : m_time(time) {}
        void post(Task task) override;
        void pause(Duration duration) override;
        bool isStopping() const override { return m_stopping; }
        void stop() override;
        void finish() override { stop(); }

    private:
        VirtualTime& m_time;
        bool m_stopping = false;
    };
    using When = std::pair<Duration, std::uint64_t>;  // time, then posting order
    struct MainEvent {
        Task task;
        bool isRepeating = false;
    };

    bool runNext(Duration until);
    void runFirstMainEvent();
    void runFirstIoTask();
    void schedule(Duration delay, Task task, bool isRepeating);

    Duration m_now{0};
    std::uint64_t m_posted = 0;
    std::map<When, MainEvent> m_mainEvents;
    std::deque<std::pair<When, Task>> m_ioTasks;
    bool m_ioBusy = false;
    Main m_main;
    Io m_io;
};

}  // namespace lumo::test
