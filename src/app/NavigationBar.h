// The row of buttons that choose the page.
#pragma once

#include <QWidget>
#include <vector>

#include "app/NavTab.h"
#include "controls/Accessible.h"
#include "controls/Columns.h"

namespace lumo {

class FocusGroup;
class NaviPillButton;

/// Main thread.
class NavigationBar final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    static int barHeight();

    NavigationBar(NavTab selected, QWidget* parent);

    void setSelected(NavTab tab);

    QAccessibleInterface* makeAccessible() override;

signals:
    void chosen(lumo::NavTab tab);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    /// Pills as wide as each other, unless a title needs more.
    [[nodiscard]] std::vector<Column> columns(bool haveIcons) const;

    std::vector<NaviPillButton*> m_pills;
    FocusGroup* m_group;
};

}  // namespace lumo
