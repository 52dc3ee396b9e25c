// The macro page.
#pragma once

#include <QWidget>

#include "foundation/CoalescedRefresh.h"
#include "foundation/Observable.h"
#include "macro/MacroActions.h"

namespace lumo {

class BytecodeCard;
class LoopModesCard;
class ProfilesCard;
class TimelineCard;

/// Main thread. Shows what the state holds and works on it; state and link outlive the page.
class MacroEditorView final : public QWidget {
    Q_OBJECT

public:
    MacroEditorView(VexaProtocol& link, UIState& state, MainQueue main, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeResult(const QRect& place);
    void connectControls();
    void refresh();

    UIState& m_state;
    MacroActions m_actions;
    ProfilesCard* m_profiles;
    TimelineCard* m_timeline;
    LoopModesCard* m_loop;
    BytecodeCard* m_bytecode;
    CoalescedRefresh m_refresh;
    Subscription m_stateChanges;
};

}  // namespace lumo
