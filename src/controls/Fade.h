// A number between two states of a control, eased over a few frames and at rest otherwise.
#pragma once

#include <QVariantAnimation>
#include <QWidget>
#include <functional>

namespace lumo {

/// Main thread. Member of the widget that it belongs to. Jumps while nobody sees it, and where motion is reduced.
class Fade final {
public:
    /// Repaints the owner as it moves, or calls `moved` instead.
    explicit Fade(QWidget& owner);
    Fade(QWidget& owner, std::function<void()> moved);

    /// Runs from where it stands to `target`; at once when `durationMs` is 0. Towards where it already goes: nothing.
    void to(double target, int durationMs);
    [[nodiscard]] double value() const { return m_value; }

private:
    void set(double value);

    QWidget& m_owner;
    std::function<void()> m_moved;
    double m_from = 0.0;
    double m_value = 0.0;
    double m_target = 0.0;
    QVariantAnimation m_way;  // from 0 to 1
};

/// The colour a share of the way (0 to 1) from one to the other, opacity included.
[[nodiscard]] QColor mix(const QColor& from, const QColor& to, double share);

/// The colour at a share of its opacity.
[[nodiscard]] QColor faded(QColor color, double share);

}  // namespace lumo
