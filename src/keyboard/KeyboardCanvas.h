// The picture of the keyboard: lives with the effect, and takes clicks and arrow keys.
#pragma once

#include <QWidget>
#include <functional>
#include <optional>
#include <vector>

#include "controls/Accessible.h"
#include "device/PerKeyColors.h"
#include "foundation/CoalescedRefresh.h"
#include "foundation/Observable.h"
#include "keyboard/KeyMotion.h"
#include "keyboard/KeyNavigation.h"
#include "keyboard/KeyboardActions.h"
#include "keyboard/KeyboardPicture.h"
#include "platform/qt/FrameClock.h"

namespace lumo {

/// Main thread. Shows what the three objects hold, which outlive it. One stop for Tab; inside, arrow keys move from key
/// to key and Space selects. A press beside the keys goes to what lies behind.
class KeyboardCanvas final : public QWidget, public AccessibleSource {
    Q_OBJECT

public:
    // NOLINTBEGIN(readability-identifier-naming): the picture's own name
    static constexpr double keyimgWidth = kPictureSize.width();
    static constexpr double keyimgHeight = kPictureSize.height();
    // NOLINTEND(readability-identifier-naming)

    /// Seconds from any origin, for the effects' motion.
    using Clock = std::function<double()>;

    KeyboardCanvas(VexaProtocol& link, UIState& state, KeyboardModel& keyboard, MainQueue main, Clock clock,
                   QWidget* parent);

    [[nodiscard]] const std::vector<KeyCap>& keys() const;
    [[nodiscard]] bool isKeySelected(std::size_t index) const { return m_isSelected[index]; }
    /// The key that arrow keys start from.
    [[nodiscard]] std::size_t currentKey() const { return m_current; }
    /// On the screen.
    [[nodiscard]] QRect keyRect(std::size_t index) const;
    [[nodiscard]] bool showsRing() const { return hasFocus() && m_hasKeyboardFocus; }
    [[nodiscard]] const FrameClock& frames() const { return m_frames; }

    /// As a click of the pointer does.
    void clickKey(std::size_t index, bool multiSelect);
    void setCurrentKey(std::size_t index);

    QAccessibleInterface* makeAccessible() override;

protected:
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void keyReleaseEvent(QKeyEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    using Key = std::optional<std::size_t>;

    [[nodiscard]] Key keyBelow(const QPointF& place) const;
    [[nodiscard]] KeyLook lookOf(std::size_t index, double time) const;
    void refresh();
    void followSelection();
    void followBindings();
    void followHover();
    void composeFrame();
    void setPointed(const Key& key);
    void press(const Key& key);

    VexaProtocol& m_link;
    UIState& m_state;
    KeyboardModel& m_keyboard;
    Clock m_clock;
    KeyboardActions m_actions;
    KeyboardPicture m_picture;
    KeyMotion m_motion;
    std::vector<bool> m_isSelected;                         // by index, kept for the frames
    std::vector<std::optional<std::string>> m_remapLabels;  // by index, part of the names
    std::vector<KeyLook> m_looks;
    Key m_pointed;  // below the pointer
    Key m_pressed;
    std::size_t m_current = 0;
    bool m_hasKeyboardFocus = false;
    FrameClock m_frames;
    CoalescedRefresh m_refresh;
    Subscription m_linkChanges;
    Subscription m_stateChanges;
    Subscription m_keyboardChanges;
};

}  // namespace lumo
