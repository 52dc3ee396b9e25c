// The on-screen keyboard as assistive technology sees it: one element, its keys as children.
#pragma once

#include <QAccessibleWidget>
#include <cstddef>
#include <vector>

namespace lumo {

class KeyboardCanvas;

/// Main thread; goes with the canvas.
class AccessibleKeyboard final : public QAccessibleWidget {
public:
    explicit AccessibleKeyboard(KeyboardCanvas& canvas);
    AccessibleKeyboard(const AccessibleKeyboard&) = delete;
    AccessibleKeyboard& operator=(const AccessibleKeyboard&) = delete;
    ~AccessibleKeyboard() override;

    [[nodiscard]] int childCount() const override { return static_cast<int>(m_keys.size()); }
    [[nodiscard]] QAccessibleInterface* child(int index) const override;
    [[nodiscard]] QAccessibleInterface* childAt(int x, int y) const override;
    [[nodiscard]] QAccessibleInterface* focusChild() const override;
    [[nodiscard]] int indexOfChild(const QAccessibleInterface* wanted) const override;

private:
    KeyboardCanvas& m_canvas;
    std::vector<QAccessible::Id> m_keys;
};

/// That key is called something else now.
void tellOfName(KeyboardCanvas& canvas, std::size_t index);

/// The selection, or the focus, came to that key or left it.
void tellOfSelection(KeyboardCanvas& canvas, std::size_t index);
void tellOfFocus(KeyboardCanvas& canvas, std::size_t index);

}  // namespace lumo
