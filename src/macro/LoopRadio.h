// One of several ways in which a macro is repeated.
#pragma once

#include <functional>

#include "controls/Lettering.h"
#include "controls/PushControl.h"

namespace lumo {

/// Main thread. Which one is selected is set from outside; `action` runs at every click.
class LoopRadio final : public PushControl {
    Q_OBJECT

public:
    LoopRadio(const QString& title, std::function<void()> action, QWidget* parent);

    void setTitle(const QString& title);

    /// What dot and title take.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] RingShape ringShape() const override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QRectF dotRect() const;
    void paintDot(QPainter& painter) const;

    Lettering m_lettering;
};

}  // namespace lumo
