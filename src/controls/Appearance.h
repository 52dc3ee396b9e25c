// How a prompt comes and goes: fading, and rising a little as it comes.
#pragma once

#include <QVariantAnimation>
#include <functional>

namespace lumo {

/// Main thread. Gone at first. Where motion is reduced it only fades, and shortly.
class Appearance final {
public:
    /// Comes in `comingMs`. `moved` runs at every step, also the last one.
    Appearance(int comingMs, std::function<void()> moved);

    /// Runs from where it stands.
    void setShown(bool isShown);

    [[nodiscard]] bool isShown() const { return m_isShown; }
    /// From 0, gone, to 1, all there.
    [[nodiscard]] double share() const { return m_share; }
    /// Neither coming nor going.
    [[nodiscard]] bool isResting() const { return m_share == end(); }
    [[nodiscard]] bool isGone() const { return !m_isShown && m_share == 0.0; }
    /// How far below its place it is, in points.
    [[nodiscard]] double drop() const { return m_drop; }

private:
    [[nodiscard]] double end() const { return m_isShown ? 1.0 : 0.0; }
    void setOut();
    void moveOn(double progress);

    int m_comingMs;
    std::function<void()> m_moved;
    bool m_isShown = false;
    double m_share = 0.0;
    double m_drop = 0.0;
    double m_shareBefore = 0.0;  // where the way began
    double m_dropBefore = 0.0;
    QVariantAnimation m_way;  // always from 0 to 1: an animation that has ended answers another end by going there
};

}  // namespace lumo
