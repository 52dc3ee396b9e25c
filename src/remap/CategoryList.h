// The categories of actions, one of them selected.
#pragma once

#include <QWidget>
#include <string_view>
#include <vector>

#include "controls/Accessible.h"
#include "controls/FocusGroup.h"

namespace lumo {

class CategoryTab;

/// Main thread.
class CategoryList final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    explicit CategoryList(QWidget* parent);

    /// Marks the tab of that key and no other; a key that no tab has marks none.
    void setSelected(std::string_view key);

    QAccessibleInterface* makeAccessible() override;

signals:
    void chosen(std::string_view key);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    FocusGroup* m_group;
    std::vector<CategoryTab*> m_tabs;
};

}  // namespace lumo
