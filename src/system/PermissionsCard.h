// The card with the grants of the operating system.
#pragma once

#include <QWidget>

namespace lumo {

class PermissionManager;
class PermissionRow;
class PushButton;
class Section;
class TccNotice;
class TextLine;

/// Main thread. The manager outlives it.
class PermissionsCard final : public QWidget {
    Q_OBJECT

public:
    PermissionsCard(PermissionManager& permissions, QWidget* parent);

    /// Shows the grants as the manager has them.
    void refresh();

    /// What it needs at least.
    [[nodiscard]] int leastHeightWithin(int width) const;

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeFoot(int top);

    PermissionManager& m_permissions;
    Section* m_section;
    PushButton* m_refresh;
    PermissionRow* m_microphone;
    PermissionRow* m_keys;
    TccNotice* m_notice;
    TextLine* m_line;
    PushButton* m_relaunch;
    int m_lineY = 0;  // between the rows
};

}  // namespace lumo
