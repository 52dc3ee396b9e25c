// The small card that says a permission is missing, and leads to the settings.
#pragma once

#include <QGraphicsOpacityEffect>
#include <QWidget>

#include "controls/Accessible.h"
#include "controls/Appearance.h"

namespace lumo {

class DropShadow;
class IconButton;
class PermissionManager;
class PushButton;
class PushControl;
class UIState;

/// Main thread. Hidden at first; the objects outlive it. It stays until it is closed or set not shown: neither the text
/// nor the button that lead to the settings take it away.
class PermissionToast final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    PermissionToast(PermissionManager& permissions, UIState& state, QWidget* parent);

    void setShown(bool isShown);
    /// The most that it may be wide.
    void setRoom(int room);
    /// The lower right corner, once it has risen.
    void setCorner(QPoint corner);
    /// Makes its controls the last that the Tab key comes to.
    void comeLastInTabOrder();
    /// How much of it is there, 0 to 1; what makes room for it follows.
    [[nodiscard]] double share() const { return m_coming.share(); }
    /// Neither coming nor going.
    [[nodiscard]] bool isResting() const { return m_coming.isResting(); }

    QAccessibleInterface* makeAccessible() override;

signals:
    void shareChanged();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void followAppearance();
    void place();

    PushControl* m_text;
    PushButton* m_fix;
    IconButton* m_close;
    QGraphicsOpacityEffect* m_opacity;  // while it comes and goes
    DropShadow* m_shadow;
    QPoint m_corner;
    Appearance m_coming;
};

}  // namespace lumo
