#include "keyboard/AccessibleKeyboard.h"

#include "controls/PlainText.h"
#include "keyboard/KeyboardCanvas.h"

namespace lumo {
namespace {

class AccessibleKey final : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleKey(KeyboardCanvas& canvas, std::size_t index) : m_canvas(canvas), m_index(index) {}

    [[nodiscard]] bool isValid() const override { return true; }
    [[nodiscard]] QObject* object() const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(&m_canvas);
    }
    [[nodiscard]] QAccessibleInterface* child(int) const override { return nullptr; }
    [[nodiscard]] QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    [[nodiscard]] int childCount() const override { return 0; }
    [[nodiscard]] int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    [[nodiscard]] QString text(QAccessible::Text kind) const override;
    void setText(QAccessible::Text, const QString&) override {}
    [[nodiscard]] QRect rect() const override { return m_canvas.keyRect(m_index); }
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::PushButton; }
    [[nodiscard]] QAccessible::State state() const override;

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this) : nullptr;
    }
    [[nodiscard]] QStringList actionNames() const override { return {pressAction(), setFocusAction()}; }
    void doAction(const QString& actionName) override;
    [[nodiscard]] QStringList keyBindingsForAction(const QString&) const override { return {}; }

private:
    KeyboardCanvas& m_canvas;
    std::size_t m_index;
};

QString AccessibleKey::text(QAccessible::Text kind) const {
    if (kind != QAccessible::Name) return {};
    const KeyCap& key = m_canvas.keys()[m_index];
    const QString label = plainText(key.label);
    return key.remapLabel ? label + ", bound to " + plainText(*key.remapLabel) : label;
}

QAccessible::State AccessibleKey::state() const {
    QAccessible::State state = QAccessible::queryAccessibleInterface(&m_canvas)->state();
    state.selectable = true;
    state.selected = m_canvas.isKeySelected(m_index);
    state.focusable = true;
    state.focused = m_canvas.hasFocus() && m_canvas.currentKey() == m_index;
    return state;
}

void AccessibleKey::doAction(const QString& actionName) {
    if (actionName == pressAction()) return m_canvas.clickKey(m_index, false);
    if (actionName != setFocusAction()) return;
    m_canvas.setCurrentKey(m_index);
    m_canvas.setFocus(Qt::OtherFocusReason);
}

}  // namespace

AccessibleKeyboard::AccessibleKeyboard(KeyboardCanvas& canvas)
    : QAccessibleWidget(&canvas, QAccessible::Grouping), m_canvas(canvas) {
    for (std::size_t i = 0; i < canvas.keys().size(); ++i) {
        m_keys.push_back(QAccessible::registerAccessibleInterface(new AccessibleKey(canvas, i)));
    }
}

AccessibleKeyboard::~AccessibleKeyboard() {
    for (const QAccessible::Id key : m_keys) QAccessible::deleteAccessibleInterface(key);
}

QAccessibleInterface* AccessibleKeyboard::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    return QAccessible::accessibleInterface(m_keys[static_cast<std::size_t>(index)]);
}

QAccessibleInterface* AccessibleKeyboard::childAt(int x, int y) const {
    const QPointF place = m_canvas.mapFromGlobal(QPointF(x, y));
    const auto key = keyAt(m_canvas.keys(), place.x(), place.y());
    return key ? child(static_cast<int>(*key)) : nullptr;
}

QAccessibleInterface* AccessibleKeyboard::focusChild() const {
    return m_canvas.hasFocus() ? child(static_cast<int>(m_canvas.currentKey())) : nullptr;
}

int AccessibleKeyboard::indexOfChild(const QAccessibleInterface* wanted) const {
    for (int i = 0; i < childCount(); ++i) {
        if (child(i) == wanted) return i;
    }
    return -1;
}

void tellOfName(KeyboardCanvas& canvas, std::size_t index) {
    QAccessibleEvent event(&canvas, QAccessible::NameChanged);
    event.setChild(static_cast<int>(index));
    QAccessible::updateAccessibility(&event);
}

void tellOfSelection(KeyboardCanvas& canvas, std::size_t index) {
    QAccessibleEvent event(&canvas,
                           canvas.isKeySelected(index) ? QAccessible::SelectionAdd : QAccessible::SelectionRemove);
    event.setChild(static_cast<int>(index));
    QAccessible::updateAccessibility(&event);
}

void tellOfFocus(KeyboardCanvas& canvas, std::size_t index) {
    if (!canvas.hasFocus()) return;
    QAccessibleEvent event(&canvas, QAccessible::Focus);
    event.setChild(static_cast<int>(index));
    QAccessible::updateAccessibility(&event);
}

}  // namespace lumo
