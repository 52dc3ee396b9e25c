// Clicks, drags, turns the wheel, types, resizes, changes the page and breaks the keyboard, at random.
#pragma once

#include <QPoint>
#include <QSize>
#include <cstdint>

#include "demo/DemoPlatform.h"
#include "support/Chance.h"

class QMainWindow;
class QWidget;

namespace lumo::test {

/// Main thread. Events take the window system's way. What ends the program is left out: Quit, Relaunch, closing.
class Monkey final {
public:
    Monkey(QMainWindow& window, vk::DemoPlatform& platform, std::uint64_t seed)
        : m_window(window), m_platform(platform), m_chance(seed) {}

    /// One act; what follows from it happens in later turns of the event loop.
    void act();

    /// Takes out of the lists what has come into them, and goes back to the first page and the first size, so that
    /// nothing is left of the past.
    void comeHome();

    [[nodiscard]] unsigned long acts() const { return m_acts; }

private:
    void point();
    void click();
    void doubleClick();
    void drag();
    void turnWheel();
    void type();
    void resize();
    void changePage();
    void breakKeyboard();
    void replugKeyboard();
    /// The program has one menu, and all that it holds is Quit.
    static void leaveMenu(QWidget& menu);

    [[nodiscard]] QSize room() const;
    [[nodiscard]] QPoint somewhere();
    /// False where a press would end the program.
    [[nodiscard]] bool mayPress(QPoint at) const;

    QMainWindow& m_window;
    vk::DemoPlatform& m_platform;
    Chance m_chance;
    unsigned long m_acts = 0;
};

}  // namespace lumo::test
