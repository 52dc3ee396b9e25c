#include "probe/TurnProbe.h"

namespace lumo::test {
namespace {

using namespace std::chrono_literals;

constexpr auto kTick = 5ms;
constexpr auto kBetweenLines = 500ms;

}  // namespace

TurnProbe::TurnProbe(const QString& path) : m_file(path) {
    // Unbuffered: the program ends without a word to anybody.
    if (!m_file.open(QIODevice::WriteOnly | QIODevice::Truncate | QIODevice::Unbuffered)) {
        qWarning("The probe of the main loop cannot write to \"%s\".", qPrintable(path));
        return;
    }
    m_timer.setTimerType(Qt::PreciseTimer);
    QObject::connect(&m_timer, &QTimer::timeout, this, &TurnProbe::turn);
    m_timer.start(kTick);
    m_machine.emplace(kTick);
}

void TurnProbe::turn() {
    m_turns.tick();
    if (Clock::now() - m_written >= kBetweenLines) write();
}

void TurnProbe::write() {
    const Gaps turns = m_turns.take();
    const Gaps machine = m_machine->take();
    m_written = Clock::now();
    const auto now = std::chrono::duration_cast<std::chrono::microseconds>(m_written.time_since_epoch()).count();
    m_file.write(QByteArray::number(static_cast<qlonglong>(now)) + ' ' + QByteArray::number(turns.ticks()) + ' ' +
                 QByteArray::number(turns.longestUs()) + ' ' + QByteArray::number(machine.longestUs()) + '\n');
}

}  // namespace lumo::test
