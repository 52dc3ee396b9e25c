#include "support/VirtualTime.h"

#include <algorithm>
#include <cstdlib>

namespace lumo::test {

void VirtualTime::advance(Duration by) {
    const Duration end = m_now + by;
    while (runNext(end)) {
    }
    m_now = std::max(m_now, end);
}

void VirtualTime::settle() {
    const auto isOneShot = [](const auto& event) { return !event.second.isRepeating; };
    while (!m_ioTasks.empty() || std::ranges::any_of(m_mainEvents, isOneShot)) runNext(Duration::max());
}

bool VirtualTime::runNext(Duration until) {
    const bool hasMain = !m_mainEvents.empty() && m_mainEvents.begin()->first.first <= until;
    const bool hasIo = !m_ioBusy && !m_ioTasks.empty() && m_ioTasks.front().first.first <= until;
    if (hasIo && (!hasMain || m_ioTasks.front().first < m_mainEvents.begin()->first)) {
        runFirstIoTask();
    } else if (hasMain) {
        runFirstMainEvent();
    }
    return hasMain || hasIo;
}

void VirtualTime::runFirstMainEvent() {
    const auto event = m_mainEvents.extract(m_mainEvents.begin());
    m_now = std::max(m_now, event.key().first);
    event.mapped().task();
}

void VirtualTime::runFirstIoTask() {
    const auto [when, task] = std::move(m_ioTasks.front());
    m_ioTasks.pop_front();
    m_now = std::max(m_now, when.first);
    m_ioBusy = true;
    task();
    m_ioBusy = false;
}

void VirtualTime::schedule(Duration delay, Task task, bool isRepeating) {
    m_mainEvents.emplace(When{m_now + delay, m_posted++}, MainEvent{std::move(task), isRepeating});
}

void VirtualTime::Main::postAfter(Duration delay, Task task) { m_time.schedule(delay, std::move(task), false); }

std::unique_ptr<Registration> VirtualTime::Main::repeatEvery(Duration interval, Task task) {
    struct Repetition final : Registration {
        std::shared_ptr<Task> task;
    };
    auto repetition = std::make_unique<Repetition>();
    repetition->task = std::make_shared<Task>(std::move(task));
    repeat(interval, repetition->task);
    return repetition;
}

void VirtualTime::Main::repeat(Duration interval, const std::weak_ptr<Task>& task) {
    m_time.schedule(
        interval,
        [this, interval, task] {
            const auto alive = task.lock();
            if (!alive) return;
            (*alive)();
            repeat(interval, task);
        },
        true);
}

std::unique_ptr<Registration> VirtualTime::Main::whenReadable(int, Task) {
    std::abort();  // there are no descriptors in virtual time
}

void VirtualTime::Io::post(Task task) {
    if (!m_stopping) m_time.m_ioTasks.emplace_back(When{m_time.m_now, m_time.m_posted++}, std::move(task));
}

void VirtualTime::Io::pause(Duration duration) {
    if (m_stopping) return;
    const Duration end = m_time.m_now + duration;
    while (!m_stopping && !m_time.m_mainEvents.empty() && m_time.m_mainEvents.begin()->first.first <= end) {
        m_time.runFirstMainEvent();
    }
    if (!m_stopping) m_time.m_now = std::max(m_time.m_now, end);
}

void VirtualTime::Io::stop() {
    m_stopping = true;
    m_time.m_ioTasks.clear();
}

}  // namespace lumo::test
