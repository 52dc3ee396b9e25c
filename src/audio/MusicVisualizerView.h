// The music page.
#pragma once

#include <QWidget>

#include "audio/MusicActions.h"
#include "audio/MusicModes.h"
#include "foundation/CoalescedRefresh.h"
#include "foundation/Observable.h"

namespace lumo {

class AudioVisualizerEngine;
class Card;
class EqualizerCard;
class MicrophoneNotice;
class MusicLevelsCard;
class MusicModeList;

/// Main thread. Shows what the four objects hold, which outlive it, and holds nothing of its own: the stream goes on
/// without the page.
class MusicVisualizerView final : public QWidget {
    Q_OBJECT

public:
    static constexpr const auto& musicModes = kMusicModes;

    MusicVisualizerView(VexaProtocol& link, AudioVisualizerEngine& visualizer, UIState& state,
                        PermissionManager& permissions, MainQueue main, QWidget* parent);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeEqualizer(const QRect& place);
    void placeModes(const QRect& place);
    [[nodiscard]] int noticeRoom(int width) const;
    void connectControls();
    void refreshEqualizer();
    void refresh();
    void showNotice(bool isShown);
    void place();

    AudioVisualizerEngine& m_visualizer;
    UIState& m_state;
    PermissionManager& m_permissions;
    MusicActions m_actions;
    EqualizerCard* m_equalizer;
    MicrophoneNotice* m_notice;
    MusicModeList* m_modes;
    Card* m_modesCard;
    MusicLevelsCard* m_levels;
    bool m_showsNotice = true;
    CoalescedRefresh m_refresh;
    CoalescedRefresh m_equalizerRefresh;  // apart: levels come thirty times a second
    Subscription m_linkChanges;
    Subscription m_visualizerChanges;
    Subscription m_stateChanges;
    Subscription m_permissionChanges;
};

}  // namespace lumo
