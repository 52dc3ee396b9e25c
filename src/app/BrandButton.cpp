#include "app/BrandButton.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>

#include "controls/Panel.h"
#include "controls/PopupMenu.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

/// Holds the menu as its child: a closed one hangs nowhere else, and its item could not be found.
class AccessibleBrand final : public AccessibleButton {
public:
    explicit AccessibleBrand(BrandButton& button)
        : AccessibleButton(button, QAccessible::ButtonMenu), m_menu(*button.menu()) {}

    [[nodiscard]] int childCount() const override { return 1; }
    [[nodiscard]] QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(&m_menu) : nullptr;
    }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* child) const override {
        return child && child->object() == &m_menu ? 0 : -1;
    }

    [[nodiscard]] QAccessible::State state() const override {
        QAccessible::State state = AccessibleButton::state();
        state.hasPopup = true;
        return state;
    }

private:
    QMenu& m_menu;
};

}  // namespace

BrandButton::BrandButton(QAction& quit, QWidget* parent) : QAbstractButton(parent), m_menu(makePopupMenu(this)) {
    m_menu->addAction(&quit);
    connect(this, &QAbstractButton::clicked, this, &BrandButton::openMenu);
    setAccessibleName("Vexa Lumo 65 menu");
    setFocusPolicy(Qt::TabFocus);
    setAttribute(Qt::WA_Hover);
    resize(sizeHint());
}

QSize BrandButton::sizeHint() const { return {kMarkSize + 2 * kRoom, kMarkSize + 2 * kRoom}; }

QAccessibleInterface* BrandButton::makeAccessible() { return new AccessibleBrand(*this); }

bool BrandButton::event(QEvent* event) {
    if (event->type() == QEvent::HoverEnter) m_hover.to(1.0, theme::kHoverInMs);
    if (event->type() == QEvent::HoverLeave) m_hover.to(0.0, theme::kHoverOutMs);
    return QAbstractButton::event(event);
}

void BrandButton::focusInEvent(QFocusEvent* event) {
    m_showsRing = showsFocusRing(event->reason(), m_showsRing);
    QAbstractButton::focusInEvent(event);
}

std::optional<RingShape> BrandButton::ring() const {
    if (!hasFocus() || !m_showsRing) return std::nullopt;
    return RingShape{rect(), theme::kSmallRadius + 3.0};
}

void BrandButton::keyPressEvent(QKeyEvent* event) {
    switch (event->key()) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
        case Qt::Key_Down:
            return click();
        case Qt::Key_Space:
            return QAbstractButton::keyPressEvent(event);
        default:
            event->ignore();
    }
}

void BrandButton::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    m_mark.paint(painter, QRectF(kRoom, kRoom, kMarkSize, kMarkSize), fill());
}

void BrandButton::openMenu() {
    m_menu->setActiveAction(m_menu->actions().constFirst());
    m_menu->popup(mapToGlobal(QPoint(kRoom, height())));
}

QColor BrandButton::fill() const {
    return isDown() ? theme::kAccentPressed : mix(theme::kAccent, theme::kAccentHover, m_hover.value());
}

}  // namespace lumo
