// The small light that says whether the keyboard is connected.
#pragma once

#include <QRadialGradient>
#include <QWidget>

#include "controls/Accessible.h"

namespace lumo {

/// Main thread. The dot stands in the middle of the widget, the rest is room for its glow; assistive technology
/// sees the dot alone, named by its state.
class ConnectionDot final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    static constexpr int kDiameter = 8;
    static constexpr int kGlowReach = 12;  // from the dot's edge

    explicit ConnectionDot(QWidget* parent);

    void setConnected(bool connected);
    [[nodiscard]] bool isConnected() const { return m_connected; }
    /// The dot without its glow, in the widget's coordinates.
    [[nodiscard]] QRect dotRect() const;

    QAccessibleInterface* makeAccessible() override;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void applyState();

    bool m_connected = false;
    QRadialGradient m_glow;
};

}  // namespace lumo
