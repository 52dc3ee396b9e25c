// The hexagon in the header: where the window system has no menu bar for us, it opens the program's menu.
#pragma once

#include <QAbstractButton>

#include "controls/Accessible.h"
#include "controls/BrandMark.h"
#include "controls/Fade.h"
#include "controls/FocusRing.h"

class QMenu;

namespace lumo {

/// Main thread. A click opens the menu below the mark; so do Return and the arrow down.
class BrandButton final : public QAbstractButton, public AccessibleSource, public RingWearer {
    Q_OBJECT

public:
    static constexpr int kMarkSize = 20;
    static constexpr int kRoom = 4;  // around the mark

    /// `quit` is the menu's one item and outlives this button.
    BrandButton(QAction& quit, QWidget* parent);

    [[nodiscard]] QMenu* menu() const { return m_menu; }

    [[nodiscard]] QSize sizeHint() const override;
    QAccessibleInterface* makeAccessible() override;
    [[nodiscard]] std::optional<RingShape> ring() const override;

protected:
    bool event(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void openMenu();
    [[nodiscard]] QColor fill() const;

    QMenu* m_menu;
    BrandMark m_mark;
    Fade m_hover{*this};
    bool m_showsRing = false;
};

}  // namespace lumo
