// One action with its picture above its name.
#pragma once

#include <string>

#include "controls/Lettering.h"
#include "controls/PushControl.h"
#include "remap/RemapItem.h"

namespace lumo {

/// Main thread.
class RemapCard final : public PushControl {
    Q_OBJECT

public:
    RemapCard(const RemapItem& item, QWidget* parent);

    [[nodiscard]] bool isElided() const;
    /// The least that its name takes; the height is as it is.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] RingShape ringShape() const override;
    [[nodiscard]] QString toolTipText() const override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QString shownName() const;
    void paintSurface(QPainter& painter) const;
    void paintIcon(QPainter& painter, const QRectF& frame) const;
    void paintName(QPainter& painter, double top) const;

    std::string m_icon;  // as the asset lookup knows it
    Lettering m_lettering;
};

}  // namespace lumo
