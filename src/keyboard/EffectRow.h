// One effect in the list.
#pragma once

#include <QAbstractButton>
#include <cstdint>

#include "controls/Accessible.h"
#include "controls/Fade.h"
#include "keyboard/EffectCatalog.h"
#include "keyboard/EffectDot.h"

namespace lumo {

/// Main thread. `clicked` comes from the mouse, Space, Return or assistive technology; being selected is set from
/// outside and never by a click. Arrow keys are left to the list.
class EffectRow final : public QAbstractButton, public AccessibleSource {
    Q_OBJECT

public:
    EffectRow(const EffectEntry& entry, QWidget* parent);

    void setSelected(bool selected);
    [[nodiscard]] bool isSelected() const { return m_selected; }
    /// The user's colour, which only some effects show.
    void setChosenColor(const QColor& color);
    [[nodiscard]] std::int64_t number() const { return m_number; }
    [[nodiscard]] bool showsRing() const { return hasFocus() && m_showsRing; }

    /// The least width at which the name is not elided.
    [[nodiscard]] QSize sizeHint() const override;
    QAccessibleInterface* makeAccessible() override;

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void followPointer(int durationMs);
    [[nodiscard]] QFont nameFont() const;
    [[nodiscard]] QRectF nameRect() const;
    [[nodiscard]] QString shownName() const;
    void paintSurface(QPainter& painter) const;
    void paintName(QPainter& painter) const;
    void showElidedName(QPoint globalPosition);

    std::int64_t m_number;
    EffectColors m_colors;
    QColor m_chosen;
    Fade m_overlay{*this};  // opacity of the hover and press surface
    Fade m_selection{*this};
    bool m_selected = false;
    bool m_showsRing = false;
};

}  // namespace lumo
