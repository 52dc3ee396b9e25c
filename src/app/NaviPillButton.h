// The button of one page.
#pragma once

#include <functional>

#include "app/NavTab.h"
#include "controls/Lettering.h"
#include "controls/PushControl.h"

namespace lumo {

/// Main thread. Looks its picture up by itself; without the artwork it draws the page's symbol.
class NaviPillButton final : public PushControl {
    Q_OBJECT

public:
    NaviPillButton(NavTab tab, bool isSelected, std::function<void()> action, QWidget* parent);

    [[nodiscard]] NavTab tab() const { return m_tab; }
    /// The least that the whole title takes, with the icon or without it.
    [[nodiscard]] int leastWidth(bool hasIcon) const;
    /// From the start it has one.
    void setHasIcon(bool hasIcon);

protected:
    [[nodiscard]] RingShape ringShape() const override;
    [[nodiscard]] QString toolTipText() const override;
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] double iconRoom() const { return iconRoom(m_hasIcon); }
    [[nodiscard]] static double iconRoom(bool hasIcon);
    [[nodiscard]] QString shownTitle() const;
    void paintSurface(QPainter& painter) const;
    void paintIcon(QPainter& painter, const QRectF& frame) const;

    NavTab m_tab;
    Lettering m_lettering;
    bool m_hasIcon = true;
};

}  // namespace lumo
