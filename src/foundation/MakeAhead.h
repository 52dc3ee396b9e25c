// Makes on another thread, ahead of time, what will be asked for soon.
#pragma once

#include <future>
#include <memory>
#include <system_error>
#include <thread>
#include <type_traits>
#include <utility>

namespace lumo {

/// Who makes what was asked for last. Main thread.
struct LastMaker {
    LastMaker() = default;
    LastMaker(const LastMaker&) = delete;
    LastMaker& operator=(const LastMaker&) = delete;
    ~LastMaker() { finish(); }
    static LastMaker& shared() {
        static LastMaker maker;
        return maker;
    }
    void finish() {
        if (thread.joinable()) thread.join();
    }

    std::thread thread;
    std::shared_future<void> isDone;  // comes before the thread is gone, which takes its time
};

/// Waits until nothing is being made any more, and the threads have gone with all that they kept. Main thread.
inline void finishMakingAhead() { LastMaker::shared().finish(); }

/// Begins once everything that was asked for before is made: several threads at work would take the processors from the
/// main one, which the user waits for. Each has a thread of its own all the same, and no queue that would stay: what a
/// thread draws letters with is much, and goes with it. Where none can be had, it is made when somebody wants the
/// result. Main thread. Destroying the result does not wait for it; whoever goes with something that is read meanwhile
/// calls finishMakingAhead().
template <typename Make>
[[nodiscard]] std::future<std::invoke_result_t<Make>> makeAhead(Make make) {
    LastMaker& last = LastMaker::shared();
    std::packaged_task<std::invoke_result_t<Make>()> task(make);
    std::promise<void> done;
    auto result = task.get_future();
    auto isDone = done.get_future().share();
    const auto before = std::make_shared<std::thread>(std::move(last.thread));
    try {
        last.thread =
            std::thread([task = std::move(task), done = std::move(done), wait = last.isDone, before]() mutable {
                if (wait.valid()) wait.wait();
                task();
                done.set_value();
                if (before->joinable()) before->join();
            });
    } catch (const std::system_error&) {
        last.thread = std::move(*before);
        return std::async(std::launch::deferred, std::move(make));
    }
    last.isDone = std::move(isDone);
    return result;
}

}  // namespace lumo
