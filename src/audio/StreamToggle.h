// The button that starts and stops the stream, and says which of the two it is.
#pragma once

#include "controls/PushControl.h"

namespace lumo {

/// Main thread.
class StreamToggle final : public PushControl {
    Q_OBJECT

public:
    explicit StreamToggle(QWidget* parent);

    void setStreaming(bool isStreaming);

protected:
    [[nodiscard]] RingShape ringShape() const override;
    [[nodiscard]] QString toolTipText() const override;
    void paintEvent(QPaintEvent* event) override;

private:
    void paintLabel(QPainter& painter) const;
    [[nodiscard]] QString shownText() const;
};

}  // namespace lumo
