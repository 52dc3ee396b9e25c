// A question above everything else in the window: a card over the dimmed view, and no way past it.
#pragma once

#include <QGraphicsOpacityEffect>
#include <QPointer>
#include <QWidget>

#include "controls/Accessible.h"
#include "controls/Appearance.h"
#include "controls/SoftShadow.h"

namespace lumo {

class PushControl;

/// Main thread. Lies over its whole parent, hidden at first. While it is shown it takes every press and the keyboard:
/// Tab goes round its two buttons, Escape presses the second. The focus goes back to where it came from.
class Popup final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    /// `heading` is what assistive technology calls it. Owns the card, which holds the buttons and has its size.
    /// `ground` is the part of the card that lets nothing through once it is all there: behind it nothing is painted
    /// then. The parent keeps the popup as large as itself.
    Popup(const QString& heading, QWidget* card, QWidget& ground, PushControl& first, PushControl& second,
          QWidget* parent);

    void setShown(bool isShown);
    [[nodiscard]] bool isShown() const { return m_coming.isShown(); }
    /// Neither coming nor going.
    [[nodiscard]] bool isResting() const { return m_dimming.isResting() && m_coming.isResting(); }

    QAccessibleInterface* makeAccessible() override;

protected:
    bool event(QEvent* event) override;
    bool focusNextPrevChild(bool isNext) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void takeFocus();
    void giveFocusBack();
    void followAppearance();
    [[nodiscard]] QPoint cardCorner() const;

    QWidget* m_card;
    QWidget& m_ground;
    PushControl& m_first;
    PushControl& m_second;
    QGraphicsOpacityEffect* m_opacity;  // of the card, while it comes and goes
    QPointer<QWidget> m_focusBefore;
    SoftShadow m_shadow;
    Appearance m_dimming;
    Appearance m_coming;
};

}  // namespace lumo
