// The effects in two columns, one of them selected.
#pragma once

#include <QWidget>
#include <cstdint>
#include <span>
#include <vector>

#include "controls/Accessible.h"
#include "keyboard/EffectCatalog.h"

namespace lumo {

class EffectRow;

/// Main thread. One stop for Tab: the row that has the focus, else the selected one. Arrow keys, Home and End move
/// the focus among the rows and choose nothing.
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
    bool eventFilter(QObject* row, QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void addRow(const EffectEntry& entry);
    [[nodiscard]] int rowsInColumn() const;
    [[nodiscard]] EffectRow* focusedRow() const;
    void moveFocus(int index);
    void placeTabStop();

    std::vector<EffectRow*> m_rows;
};

}  // namespace lumo
