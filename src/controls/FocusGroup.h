// Makes controls that belong together one stop for Tab, with arrow keys inside.
#pragma once

#include <QObject>
#include <vector>

class QKeyEvent;

namespace lumo {

class PushControl;

/// Main thread. The stop is the control that has the focus, else the selected one, else the first. Arrow keys, Home
/// and End move the focus and choose nothing. The controls' common parent owns both; a control that goes
/// before the group is removed first.
class FocusGroup final : public QObject {
    Q_OBJECT

public:
    /// How far the arrows step through the controls in their order; 0 leaves the arrow to others.
    struct Steps {
        int across = 1;
        int down = 0;
    };

    FocusGroup(Steps steps, QWidget* parent);

    void add(PushControl& control);
    void remove(PushControl& control);
    void setSteps(Steps steps) { m_steps = steps; }

    /// To be called when another control is selected.
    void placeTabStop();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    [[nodiscard]] int focusedIndex() const;
    [[nodiscard]] PushControl* tabStop() const;
    bool moveBy(int key);
    bool moveTo(int index);

    Steps m_steps;
    std::vector<PushControl*> m_controls;
};

/// Whether a key is pressed by itself: only then is it one of those that move inside a list.
[[nodiscard]] bool isPlain(const QKeyEvent& event);

}  // namespace lumo
