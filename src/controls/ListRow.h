// One row of a list from which one is chosen: a name, and perhaps a mark before it.
#pragma once

#include "controls/Lettering.h"
#include "controls/PushControl.h"
#include "controls/Theme.h"

namespace lumo {

/// Main thread. The name is elided on the right where it does not fit, and then told as hover help.
class ListRow : public PushControl {
    Q_OBJECT

public:
    struct Looks {
        int nameX = 0;    // where the name begins
        int padding = 9;  // on the right of it
        theme::TextStyle style = theme::kRowStyle;
        theme::TextStyle selectedStyle = theme::kRowSelectedStyle;
    };
    ListRow(const QString& name, QAccessible::Role role, const Looks& looks, QWidget* parent);

    /// For a name that changes.
    void setName(const QString& name);

    /// The least width at which the name is not elided.
    [[nodiscard]] QSize sizeHint() const final;

protected:
    /// What stands before the name.
    virtual void paintMark(QPainter&) const {}

    [[nodiscard]] RingShape ringShape() const final;
    [[nodiscard]] QString toolTipText() const final;
    void paintEvent(QPaintEvent* event) final;

private:
    [[nodiscard]] const Lettering& lettering() const { return isSelected() ? m_selectedLettering : m_lettering; }
    [[nodiscard]] QRectF nameRect() const;
    [[nodiscard]] QString shownName() const;
    void paintSurface(QPainter& painter) const;
    void paintName(QPainter& painter) const;

    int m_nameX;
    int m_padding;
    Lettering m_lettering;
    Lettering m_selectedLettering;
};

}  // namespace lumo
