// A number between two states of a control, eased over a few frames and at rest otherwise.
#pragma once

#include <QVariantAnimation>
#include <QWidget>

namespace lumo {

/// Main thread. Member of the widget that it repaints. Jumps while nobody sees it, and where the desktop has
/// animations switched off.
class Fade final {
public:
    explicit Fade(QWidget& owner, double initial = 0.0);

    /// Runs from where it stands to `target`; at once when `durationMs` is 0. Towards where it already goes: nothing.
    void to(double target, int durationMs);
    [[nodiscard]] double value() const { return m_value; }

private:
    void set(double value);

    QWidget& m_owner;
    double m_from;
    double m_value;
    double m_target;
    QVariantAnimation m_way;  // from 0 to 1
};

/// The colour a share of the way (0 to 1) from one to the other, opacity included.
[[nodiscard]] QColor mix(const QColor& from, const QColor& to, double share);

}  // namespace lumo
