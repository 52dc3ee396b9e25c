// A serial queue on a thread of its own.
#pragma once

#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>

#include "foundation/RunLoop.h"

namespace lumo {

/// Created, finished and destroyed on one thread. Destroying it finishes it.
class SerialQueue final : public BlockingExecutor {
public:
    /// `onThreadStart` runs first on the new thread: the place to name it and to set its quality of service.
    explicit SerialQueue(Task onThreadStart = {});
    SerialQueue(const SerialQueue&) = delete;
    SerialQueue& operator=(const SerialQueue&) = delete;
    ~SerialQueue() override;

    void post(Task task) override;
    void pause(Duration duration) override;
    [[nodiscard]] bool isStopping() const override;

    void stop() override;
    void finish() override;

private:
    void runTasks();

    mutable std::mutex m_mutex;
    std::condition_variable m_changed;
    std::deque<Task> m_tasks;
    bool m_stopping = false;
    std::thread m_thread;
};

}  // namespace lumo
