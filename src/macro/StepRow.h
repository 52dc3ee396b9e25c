// One step of a macro as a row of the timeline: its parts, where they stand, and how they are painted.
#pragma once

#include <QPainter>
#include <QString>
#include <array>
#include <cstddef>

#include "controls/Lettering.h"
#include "macro/MacroEvent.h"

namespace lumo {

enum class StepPart : std::uint8_t { number, direction, code, delay, unit, remove };
inline constexpr std::array kStepParts{StepPart::number, StepPart::direction, StepPart::code,
                                       StepPart::delay,  StepPart::unit,      StepPart::remove};

/// What the part reads, or, for the button that removes the step, is called. Steps are numbered from 1.
[[nodiscard]] QString stepText(StepPart part, std::size_t index, const MacroEvent& step);

/// Shares of the way from rest, 0 to 1.
struct StepGlow {
    double row = 0.0;
    double removeHover = 0.0;
    double removePress = 0.0;
};

/// Main thread. Places count from the row's upper left corner.
class StepRow final {
public:
    static int rowHeight();
    static constexpr int kGap = 1;
    static constexpr double kRemoveRadius = 6.0;

    StepRow();

    /// The row's width, and how many steps there are: their numbers all find room.
    void layOut(int width, std::size_t count);

    [[nodiscard]] QRectF place(StepPart part, const MacroEvent& step) const;
    [[nodiscard]] bool isDelayElided(const MacroEvent& step) const;

    void paint(QPainter& painter, std::size_t index, const MacroEvent& step, const StepGlow& glow) const;

private:
    [[nodiscard]] double iconX() const;
    [[nodiscard]] double codeX() const;
    [[nodiscard]] double delayRoom() const;
    [[nodiscard]] QString shownDelay(const MacroEvent& step) const;
    void paintRemove(QPainter& painter, const QRectF& frame, const StepGlow& glow) const;
    void paintDirection(QPainter& painter, const MacroEvent& step) const;

    Lettering m_number;
    Lettering m_unit;
    Lettering m_direction;
    Lettering m_code;
    Lettering m_delay;
    double m_width = 0.0;
    double m_numberWidth = 0.0;
};

}  // namespace lumo
