// One effect in the list.
#pragma once

#include <cstdint>

#include "controls/PushControl.h"
#include "keyboard/EffectCatalog.h"
#include "keyboard/EffectDot.h"

namespace lumo {

/// Main thread.
class EffectRow final : public PushControl {
    Q_OBJECT

public:
    EffectRow(const EffectEntry& entry, QWidget* parent);

    /// The user's colour, which only some effects show.
    void setChosenColor(const QColor& color);
    [[nodiscard]] std::int64_t number() const { return m_number; }

    /// The least width at which the name is not elided.
    [[nodiscard]] QSize sizeHint() const override;

protected:
    [[nodiscard]] RingShape ringShape() const override;
    [[nodiscard]] QString toolTipText() const override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] QFont nameFont() const;
    [[nodiscard]] QRectF nameRect() const;
    [[nodiscard]] QString shownName() const;
    void paintSurface(QPainter& painter) const;
    void paintName(QPainter& painter) const;

    std::int64_t m_number;
    EffectColors m_colors;
    QColor m_chosen;
};

}  // namespace lumo
