// A button that shows a symbol and says in words what it does.
#pragma once

#include "controls/PushControl.h"

namespace lumo {

/// Main thread. Without a surface of its own until the pointer is over it.
class IconButton final : public PushControl {
    Q_OBJECT

public:
    static constexpr int kSize = 28;

    /// `name` is what assistive technology reads and hover help shows; the symbol's frame has that many points.
    IconButton(const QString& name, QString symbol, double symbolSize, QWidget* parent);

protected:
    [[nodiscard]] RingShape ringShape() const override;
    [[nodiscard]] QString toolTipText() const override { return text(); }
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_symbol;
    double m_symbolSize;
};

}  // namespace lumo
