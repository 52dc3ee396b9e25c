// The lighting page.
#pragma once

#include <QWidget>

#include "foundation/CoalescedRefresh.h"
#include "foundation/Observable.h"
#include "keyboard/EffectCatalog.h"
#include "keyboard/LightingActions.h"

namespace lumo {

class Card;
class EffectList;
class LevelsCard;
class PaletteCard;

/// Main thread. Shows what the three objects hold, which outlive it, and holds nothing of its own.
class LightingControlView final : public QWidget {
    Q_OBJECT

public:
    static constexpr const auto& effectCatalog = kEffectCatalog;

    LightingControlView(VexaProtocol& link, UIState& state, KeyboardModel& keyboard, MainQueue main, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void connectControls();
    void refresh();

    VexaProtocol& m_link;
    UIState& m_state;
    KeyboardModel& m_keyboard;
    LightingActions m_actions;
    EffectList* m_effects;
    Card* m_effectCard;
    LevelsCard* m_levels;
    PaletteCard* m_palette;
    CoalescedRefresh m_refresh;
    Subscription m_linkChanges;
    Subscription m_stateChanges;
    Subscription m_keyboardChanges;
};

}  // namespace lumo
