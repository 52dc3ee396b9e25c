#include "support/PollLoop.h"

#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <cstdint>
#include <system_error>
#include <utility>

namespace lumo::test {

/// What keeps a repetition or a watch going is this one strong reference.
class PollLoop::Hold final : public Registration {
public:
    explicit Hold(std::shared_ptr<void> held) : m_held(std::move(held)) {}

private:
    std::shared_ptr<void> m_held;
};

PollLoop::PollLoop() : m_wake(::eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK)) {
    if (m_wake < 0) throw std::system_error(errno, std::generic_category(), "eventfd");
}

PollLoop::~PollLoop() { ::close(m_wake); }

void PollLoop::post(Task task) {
    {
        const std::lock_guard lock(m_mutex);
        m_posted.push_back(std::move(task));
    }
    const std::uint64_t one = 1;
    // Fails only when the counter is full, and then the loop is awake anyway.
    [[maybe_unused]] const ssize_t written = ::write(m_wake, &one, sizeof one);
}

void PollLoop::postAfter(Duration delay, Task task) { m_timers.emplace(Clock::now() + delay, std::move(task)); }

std::unique_ptr<Registration> PollLoop::repeatEvery(Duration interval, Task task) {
    auto shared = std::make_shared<Task>(std::move(task));
    repeat(interval, shared);
    return std::make_unique<Hold>(std::move(shared));
}

void PollLoop::repeat(Duration interval, const std::weak_ptr<Task>& task) {
    postAfter(interval, [this, interval, task] {
        if (const auto alive = task.lock()) {
            repeat(interval, task);
            (*alive)();
        }
    });
}

std::unique_ptr<Registration> PollLoop::whenReadable(int descriptor, Task task) {
    auto watch = std::make_shared<Watch>(Watch{descriptor, std::move(task)});
    m_watches.push_back(watch);
    return std::make_unique<Hold>(std::move(watch));
}

bool PollLoop::runUntil(const std::function<bool()>& done, Duration limit) {
    const auto latest = Clock::now() + limit;
    while (!done()) {
        if (Clock::now() >= latest) return false;
        runTurn(latest);
    }
    return true;
}

void PollLoop::runReady() { runTurn(Clock::now()); }

void PollLoop::runTurn(Clock::time_point latest) {
    const auto readable = waitForReadable(latest);
    runPosted();
    runDueTimers();
    for (const auto& watch : readable) {
        if (const auto alive = watch.lock()) alive->task();
    }
}

void PollLoop::runPosted() {
    std::deque<Task> tasks;
    {
        const std::lock_guard lock(m_mutex);
        tasks.swap(m_posted);
    }
    for (const Task& task : tasks) task();
}

void PollLoop::runDueTimers() {
    const auto now = Clock::now();
    while (!m_timers.empty() && m_timers.begin()->first <= now) m_timers.extract(m_timers.begin()).mapped()();
}

std::vector<std::weak_ptr<PollLoop::Watch>> PollLoop::waitForReadable(Clock::time_point latest) {
    std::erase_if(m_watches, [](const auto& watch) { return watch.expired(); });
    const std::vector<std::weak_ptr<Watch>> watches = m_watches;
    std::vector<pollfd> polled{{m_wake, POLLIN, 0}};
    for (const auto& watch : watches) polled.push_back({watch.lock()->descriptor, POLLIN, 0});

    const auto until = m_timers.empty() ? latest : std::min(latest, m_timers.begin()->first);
    const auto wait = std::max(Clock::duration::zero(), until - Clock::now());
    const auto waitMs = std::chrono::ceil<std::chrono::milliseconds>(wait).count();
    if (::poll(polled.data(), polled.size(), static_cast<int>(waitMs)) <= 0) return {};

    std::uint64_t wakes = 0;
    if (polled[0].revents != 0) [[maybe_unused]]
        const ssize_t count = ::read(m_wake, &wakes, sizeof wakes);
    std::vector<std::weak_ptr<Watch>> readable;
    for (std::size_t i = 0; i < watches.size(); ++i) {
        if (polled[i + 1].revents != 0) readable.push_back(watches[i]);
    }
    return readable;
}

}  // namespace lumo::test
