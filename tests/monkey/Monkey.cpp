#include "monkey/Monkey.h"

#include <QApplication>
#include <QMainWindow>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>
#include <algorithm>

#include "InProcessHidManager.h"
#include "app/UIState.h"
#include "controls/PushControl.h"
#include "keyboard/KeyboardModel.h"
#include "support/RandomFault.h"

namespace lumo::test {
namespace {

constexpr QSize kSmallest{900, 680};
constexpr QSize kLargest{1500, 1150};
constexpr QSize kFirst{960, 760};
constexpr int kLongestDrag = 300;

constexpr Qt::Key kKeys[] = {
    Qt::Key_Tab,       Qt::Key_Tab,  Qt::Key_Tab,   Qt::Key_Backtab, Qt::Key_Left,     Qt::Key_Right,
    Qt::Key_Up,        Qt::Key_Down, Qt::Key_Space, Qt::Key_Space,   Qt::Key_Return,   Qt::Key_Enter,
    Qt::Key_Escape,    Qt::Key_Home, Qt::Key_End,   Qt::Key_PageUp,  Qt::Key_PageDown, Qt::Key_Delete,
    Qt::Key_Backspace, Qt::Key_A,    Qt::Key_C,     Qt::Key_5,       Qt::Key_F1,       Qt::Key_Menu,
};
constexpr Qt::KeyboardModifier kModifiers[] = {Qt::NoModifier, Qt::NoModifier, Qt::NoModifier, Qt::ShiftModifier,
                                               Qt::ControlModifier};
constexpr Qt::MouseButton kButtons[] = {Qt::LeftButton, Qt::LeftButton,  Qt::LeftButton,
                                        Qt::LeftButton, Qt::RightButton, Qt::MiddleButton};

bool endsProgram(const QWidget* widget) {
    const auto* const control = qobject_cast<const PushControl*>(widget);
    return control && control->text() == "Relaunch App";
}

}  // namespace

void Monkey::act() {
    ++m_acts;
    if (QWidget* const menu = QApplication::activePopupWidget()) return leaveMenu(*menu);
    using Act = void (Monkey::*)();
    // The more often one stands here, the more often it comes.
    constexpr Act kActs[] = {
        &Monkey::point, &Monkey::point,      &Monkey::click,  &Monkey::click,         &Monkey::click,
        &Monkey::click, &Monkey::click,      &Monkey::click,  &Monkey::doubleClick,   &Monkey::drag,
        &Monkey::drag,  &Monkey::turnWheel,  &Monkey::type,   &Monkey::type,          &Monkey::type,
        &Monkey::type,  &Monkey::changePage, &Monkey::resize, &Monkey::breakKeyboard, &Monkey::replugKeyboard,
    };
    (this->*m_chance.of(kActs))();
}

void Monkey::comeHome() {
    UIState& state = UIState::shared();
    m_window.resize(kFirst);
    state.currentTab.set(NavTab::lighting);
    state.macroList.set({});
    state.macroEvents.set({});
    state.selectedMacroIndex.set(0);
    state.compiledMacroHex.set("");
    KeyboardModel::shared().selectedKeyIds.set({});  // each ring is a picture
}

QSize Monkey::room() const {
    // While the system has still to grant a new size, widget and window are of two minds.
    return m_window.size().boundedTo(m_window.windowHandle()->size());
}

QPoint Monkey::somewhere() {
    return {m_chance.between(0, room().width() - 1), m_chance.between(0, room().height() - 1)};
}

bool Monkey::mayPress(QPoint at) const { return !endsProgram(m_window.childAt(at)); }

void Monkey::point() { QTest::mouseMove(m_window.windowHandle(), somewhere()); }

void Monkey::click() {
    const QPoint at = somewhere();
    if (!mayPress(at)) return;
    QTest::mouseMove(m_window.windowHandle(), at);
    QTest::mouseClick(m_window.windowHandle(), m_chance.of(kButtons), m_chance.of(kModifiers), at);
}

void Monkey::doubleClick() {
    const QPoint at = somewhere();
    if (mayPress(at)) QTest::mouseDClick(m_window.windowHandle(), Qt::LeftButton, {}, at);
}

void Monkey::drag() {
    QWindow* const window = m_window.windowHandle();
    QPoint at = somewhere();
    if (!mayPress(at)) return;
    QTest::mousePress(window, Qt::LeftButton, {}, at);
    for (int steps = m_chance.between(1, 12); steps > 0; --steps) {
        at += {m_chance.between(-kLongestDrag, kLongestDrag) / 4, m_chance.between(-kLongestDrag, kLongestDrag) / 4};
        at = {std::clamp(at.x(), 0, room().width() - 1), std::clamp(at.y(), 0, room().height() - 1)};
        QTest::mouseMove(window, at);
    }
    QTest::mouseRelease(window, Qt::LeftButton, {}, at);
}

void Monkey::turnWheel() {
    const QPoint at = somewhere();
    const QPoint turn(0, m_chance.between(-5, 5) * QWheelEvent::DefaultDeltasPerStep);
    QWheelEvent event(at, m_window.mapToGlobal(at), {}, turn, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QApplication::sendEvent(m_window.windowHandle(), &event);
}

void Monkey::type() {
    const Qt::Key key = m_chance.of(kKeys);
    const bool presses = key == Qt::Key_Space || key == Qt::Key_Return || key == Qt::Key_Enter;
    if (presses && endsProgram(QApplication::focusWidget())) return;
    QTest::keyClick(m_window.windowHandle(), key, m_chance.of(kModifiers));
}

void Monkey::resize() {
    m_window.resize(m_chance.between(kSmallest.width(), kLargest.width()),
                    m_chance.between(kSmallest.height(), kLargest.height()));
}

void Monkey::changePage() { UIState::shared().currentTab.set(m_chance.of(kAllTabs)); }

void Monkey::breakKeyboard() {
    m_platform.hid().ioQueue().run.post([&firmware = m_platform.firmware(), fault = randomFault(m_chance)] {
        firmware.clearFaults();
        firmware.addFault(fault);
    });
}

void Monkey::replugKeyboard() {
    m_platform.hid().unplugAll();
    if (!m_chance.oneIn(4)) m_platform.hid().plugKeyboard();
}

void Monkey::leaveMenu(QWidget& menu) { QTest::keyClick(&menu, Qt::Key_Escape); }

}  // namespace lumo::test
