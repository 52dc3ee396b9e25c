#include "foundation/SerialQueue.h"

#include <utility>

namespace lumo {

SerialQueue::SerialQueue(Task onThreadStart)
    : m_thread([this, onThreadStart = std::move(onThreadStart)] {
          if (onThreadStart) onThreadStart();
          runTasks();
      }) {}

SerialQueue::~SerialQueue() { SerialQueue::finish(); }

void SerialQueue::post(Task task) {
    {
        const std::lock_guard lock(m_mutex);
        if (m_stopping) return;
        m_tasks.push_back(std::move(task));
    }
    m_changed.notify_all();
}

void SerialQueue::pause(Duration duration) {
    std::unique_lock lock(m_mutex);
    m_changed.wait_for(lock, duration, [this] { return m_stopping; });
}

bool SerialQueue::isStopping() const {
    const std::lock_guard lock(m_mutex);
    return m_stopping;
}

void SerialQueue::stop() {
    std::deque<Task> dropped;  // destroyed outside the lock: a task may own something that posts when it goes
    {
        const std::lock_guard lock(m_mutex);
        m_stopping = true;
        dropped.swap(m_tasks);
    }
    m_changed.notify_all();
}

void SerialQueue::finish() {
    SerialQueue::stop();
    if (m_thread.joinable()) m_thread.join();
}

void SerialQueue::runTasks() {
    for (;;) {
        Task task;
        {
            std::unique_lock lock(m_mutex);
            m_changed.wait(lock, [this] { return m_stopping || !m_tasks.empty(); });
            if (m_stopping) return;
            task = std::move(m_tasks.front());
            m_tasks.pop_front();
        }
        task();
    }
}

}  // namespace lumo
