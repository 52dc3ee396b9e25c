// Reports a colour that changes faster than its listener should hear of it.
#pragma once

#include <functional>
#include <memory>
#include <optional>

#include "foundation/Color.h"
#include "foundation/RunLoop.h"

namespace lumo {

/// Main thread. A change is reported at once, further ones at most once every `pace`, always the latest, so that a slow
/// listener never has more than that to do.
class PacedColor final {
public:
    using Report = std::function<void(const Color&)>;
    PacedColor(MainQueue main, Duration pace, Report report);

    /// What the listener holds by now, whoever told it.
    void setKnown(const Color& color) { m_known = color; }
    [[nodiscard]] const Color& known() const { return m_known; }

    /// Reported at once, also when the listener holds it already.
    void begin(const Color& color);

    /// What gives the same bytes as the listener holds is no change.
    void offer(const Color& color);

    /// Reports what still waits; the next change is reported at once again.
    void finish();

private:
    void send(const Color& color);
    void tick();

    MainQueue m_main;
    Duration m_pace;
    Report m_report;
    Color m_known;
    std::optional<Color> m_waiting;
    std::unique_ptr<Registration> m_pause;
};

}  // namespace lumo
