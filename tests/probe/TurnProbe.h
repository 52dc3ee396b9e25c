// Watches the main loop of a program that knows nothing of it.
#pragma once

#include <QFile>
#include <QTimer>
#include <optional>

#include "probe/MachineGaps.h"

namespace lumo::test {

/// Lives on the main thread. Each half second one line, in microseconds: monotonic time, turns of the main loop (a
/// number), the longest time between two of them, the longest time that the machine itself stood still.
class TurnProbe final : public QObject {
public:
    /// Without a file that can be written it says so on the console, and measures nothing.
    explicit TurnProbe(const QString& path);

private:
    void turn();
    void write();

    QFile m_file;
    QTimer m_timer;
    Gaps m_turns;
    Clock::time_point m_written = Clock::now();
    std::optional<MachineGaps> m_machine;
};

}  // namespace lumo::test
