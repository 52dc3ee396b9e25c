// One effect in the list.
#pragma once

#include <cstdint>

#include "controls/ListRow.h"
#include "keyboard/EffectCatalog.h"
#include "keyboard/EffectDot.h"

namespace lumo {

/// Main thread.
class EffectRow final : public ListRow {
    Q_OBJECT

public:
    EffectRow(const EffectEntry& entry, QWidget* parent);

    /// The user's colour, which only some effects show.
    void setChosenColor(const QColor& color);
    [[nodiscard]] std::int64_t number() const { return m_number; }

protected:
    void paintMark(QPainter& painter) const override;

private:
    std::int64_t m_number;
    EffectColors m_colors;
    QColor m_chosen;
};

}  // namespace lumo
