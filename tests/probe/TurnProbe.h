// Watches the main loop of a program that knows nothing of it.
#pragma once

#include <QFile>
#include <QTimer>
#include <mutex>
#include <thread>

#include "probe/Gaps.h"

namespace lumo::test {

/// Lives on the main thread. A thread of its own that only sleeps tells how long the machine itself stood still.
///
/// Each half second one line, in microseconds: monotonic time, turns of the main loop (a number), the longest time
/// between two of them, the longest time between two turns of the thread.
class TurnProbe final : public QObject {
public:
    /// Without a file that can be written it says so on the console, and measures nothing.
    explicit TurnProbe(const QString& path);

private:
    void turn();
    void write();
    void watchMachine(const std::stop_token& stop);

    QFile m_file;
    QTimer m_timer;
    Gaps m_turns;
    Clock::time_point m_written = Clock::now();
    std::mutex m_mutex;
    Gaps m_machine;          // under the mutex
    std::jthread m_sleeper;  // last: it uses the two above
};

}  // namespace lumo::test
