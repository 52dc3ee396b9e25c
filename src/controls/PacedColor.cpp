#include "controls/PacedColor.h"

#include <utility>

namespace lumo {

PacedColor::PacedColor(MainQueue main, Duration pace, Report report)
    : m_main(main), m_pace(pace), m_report(std::move(report)) {}

void PacedColor::offer(const Color& color) {
    m_waiting.reset();
    if (toBytes(color) == toBytes(m_known)) return;
    if (m_pause) {
        m_waiting = color;
        return;
    }
    begin(color);
}

void PacedColor::begin(const Color& color) {
    m_pause = m_main.run.repeatEvery(m_pace, [this] { tick(); });
    send(color);
}

void PacedColor::finish() {
    m_pause.reset();
    if (const auto last = std::exchange(m_waiting, {})) send(*last);
}

void PacedColor::tick() {
    if (const auto latest = std::exchange(m_waiting, {})) return send(*latest);
    m_pause.reset();
}

void PacedColor::send(const Color& color) {
    m_known = color;
    m_report(color);
}

}  // namespace lumo
