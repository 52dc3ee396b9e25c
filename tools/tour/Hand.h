// A user's hand: it knows the window by what can be read there, and moves the pointer and the keys.
#pragma once

#include <QPoint>
#include <QRect>
#include <QString>
#include <QStringList>

class QAccessibleInterface;
class QWidget;

namespace lumo::tour {

/// Main thread. Events take the window system's way. A name that nothing in the window has is a mistake of the tour
/// and ends the process with a sentence.
class Hand final {
public:
    explicit Hand(QWidget& window) : m_window(window) {}

    /// The pointer moves to the middle of what has that name.
    void moveTo(const QString& name);
    void click(const QString& name);
    /// Presses there, moves in small steps by `by` points, lets go.
    void drag(const QString& name, QPoint from, QPoint by);
    void key(int key);

    /// Everything that stands in the window as text.
    [[nodiscard]] QStringList texts() const;
    [[nodiscard]] bool reads(const QString& text) const { return texts().contains(text); }
    /// How many things of that name are shown, texts not counted.
    [[nodiscard]] int count(const QString& name) const;
    /// The name of what has the keyboard.
    [[nodiscard]] QString focused() const;
    /// In the window's coordinates, scrolled into view.
    [[nodiscard]] QRect place(const QString& name) const;

private:
    QWidget& m_window;
};

}  // namespace lumo::tour
