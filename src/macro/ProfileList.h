// The names of the macros, one below the other, one of them selected.
#pragma once

#include <QStringList>
#include <cstdint>
#include <vector>

#include "controls/Accessible.h"
#include "controls/ScrollBox.h"

namespace lumo {

class FocusGroup;
class ListRow;

/// Main thread. The selected row comes into view when it is another one.
class ProfileList final : public ScrollBox {
    Q_OBJECT

public:
    /// With at least one name, now and later.
    ProfileList(const QStringList& names, QWidget* parent);

    void setNames(const QStringList& names);
    void setSelected(std::int64_t index);

signals:
    void chosen(std::int64_t index);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void addRow(const QString& name);
    void dropLastRow();
    void placeRows();

    QWidget* m_rowsParent;
    FocusGroup* m_group;
    std::vector<ListRow*> m_rows;
    std::int64_t m_selected = -1;
};

}  // namespace lumo
