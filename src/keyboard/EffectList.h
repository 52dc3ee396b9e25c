// The effects in two columns, one of them selected.
#pragma once

#include <QWidget>
#include <cstdint>
#include <span>
#include <vector>

#include "controls/Accessible.h"
#include "controls/FocusGroup.h"
#include "keyboard/EffectCatalog.h"

namespace lumo {

class EffectRow;

/// Main thread.
class EffectList final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    /// One row an entry, filled downwards.
    EffectList(std::span<const EffectEntry> entries, QWidget* parent);

    /// Marks the row of that effect and no other; a number that no row has marks none.
    void setSelected(std::int64_t number);
    void setChosenColor(const QColor& color);

    QAccessibleInterface* makeAccessible() override;

signals:
    void chosen(std::int64_t number);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void addRow(const EffectEntry& entry);
    [[nodiscard]] int rowsInColumn() const;
    /// What the names of that column take.
    [[nodiscard]] double widest(int column) const;

    std::vector<EffectRow*> m_rows;
    FocusGroup* m_group;
};

}  // namespace lumo
