// The remap page.
#pragma once

#include <QWidget>
#include <utility>
#include <vector>

#include "foundation/CoalescedRefresh.h"
#include "foundation/Observable.h"
#include "remap/BasicKeys.h"
#include "remap/RemapActions.h"
#include "remap/RemapItem.h"

namespace lumo {

class ActionPage;
class Card;
class CategoryList;
class PushButton;
class TargetPanel;

/// Main thread. Shows what state and keyboard hold, which outlive it as the link does, and holds nothing of its own but
/// the catalogue.
class KeyRemapView final : public QWidget {
    Q_OBJECT

public:
    // In the order in which they are shown.
    const std::vector<RemapItem> mediaActions;
    const std::vector<RemapItem> systemActions;
    const std::vector<RemapItem> mouseActions;
    static constexpr const auto& basicLetters = kBasicLetters;
    static constexpr const auto& basicNumbers = kBasicNumbers;

    KeyRemapView(VexaProtocol& link, UIState& state, KeyboardModel& keyboard, MainQueue main, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int leastActionsHeight(int width) const;
    void placeActions(const QRect& place);
    using Pages = std::vector<std::pair<std::string_view, ActionPage*>>;  // by the key of their category

    [[nodiscard]] Pages makePages();
    void connectControls();
    void refresh();

    UIState& m_state;
    KeyboardModel& m_keyboard;
    RemapActions m_actions;
    CategoryList* m_categories;
    Card* m_categoryCard;
    TargetPanel* m_target;
    Pages m_pages;  // one is seen
    PushButton* m_save;
    PushButton* m_reset;
    CoalescedRefresh m_refresh;
    Subscription m_stateChanges;
    Subscription m_keyboardChanges;
};

}  // namespace lumo
