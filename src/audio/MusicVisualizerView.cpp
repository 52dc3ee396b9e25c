#include "audio/MusicVisualizerView.h"

#include <array>

#include "app/UIState.h"
#include "audio/AudioVisualizerEngine.h"
#include "audio/EqualizerCard.h"
#include "audio/MicrophoneNotice.h"
#include "audio/MusicLevelsCard.h"
#include "audio/MusicModeList.h"
#include "controls/Card.h"
#include "controls/CardRows.h"
#include "controls/PushControl.h"
#include "controls/Section.h"
#include "controls/Theme.h"
#include "device/VexaProtocol.h"
#include "system/PermissionManager.h"

namespace lumo {
namespace {

constexpr int kLeastEqualizer = 328;
constexpr int kLeastModes = 512;

Card* makeModesCard(MusicModeList* modes, QWidget* parent) {
    auto* const section = new Section("MUSIC EFFECT MODES", nullptr);
    section->setContent(modes);
    return new Card(section, parent);
}

}  // namespace

MusicVisualizerView::MusicVisualizerView(VexaProtocol& link, AudioVisualizerEngine& visualizer, UIState& state,
                                         PermissionManager& permissions, MainQueue main, QWidget* parent)
    : QWidget(parent),
      m_visualizer(visualizer),
      m_state(state),
      m_permissions(permissions),
      m_actions(link, visualizer, state, permissions),
      m_equalizer(new EqualizerCard(this)),
      m_notice(new MicrophoneNotice(this)),
      m_modes(new MusicModeList(nullptr)),
      m_modesCard(makeModesCard(m_modes, this)),
      m_levels(new MusicLevelsCard(main, this)),
      m_refresh(main, [this] { refresh(); }),
      m_equalizerRefresh(main, [this] { refreshEqualizer(); }),
      m_linkChanges(link.observe([this] { m_refresh.request(); })),
      m_visualizerChanges(visualizer.observe([this] { m_equalizerRefresh.request(); })),
      m_stateChanges(state.observe([this] { m_refresh.request(); })),
      m_permissionChanges(permissions.observe([this] { m_refresh.request(); })) {
    connectControls();
    refreshEqualizer();
    refresh();
}

void MusicVisualizerView::connectControls() {
    connect(m_equalizer, &EqualizerCard::toggled, this, [this] { m_actions.toggleStream(); });
    connect(m_notice, &MicrophoneNotice::grantAccess, this, [this] { m_actions.grantAccess(); });
    connect(m_modes, &MusicModeList::chosen, this, [this](std::int64_t id) { m_actions.chooseMode(id); });
    connect(m_levels, &MusicLevelsCard::gainChanged, this, [this](double factor) { m_state.musicGain.set(factor); });
    connect(m_levels, &MusicLevelsCard::smoothnessChanged, this,
            [this](double smoothness) { m_state.musicSmooth.set(smoothness); });
}

void MusicVisualizerView::refreshEqualizer() {
    m_equalizer->setStreaming(m_visualizer.isRunning.get());
    m_equalizer->setLevels(m_visualizer.frequencyLevels.get());
    m_equalizer->setSource(m_visualizer.inputSource.get());
}

void MusicVisualizerView::refresh() {
    m_modes->setSelected(m_state.activeMusicMode.get());
    m_levels->setGain(m_state.musicGain.get());
    m_levels->setSmoothness(m_state.musicSmooth.get());
    showNotice(!m_permissions.isMicrophoneAuthorized.get());
}

void MusicVisualizerView::showNotice(bool isShown) {
    if (isShown == m_showsNotice) return;
    m_showsNotice = isShown;
    if (!isShown) m_notice->button().handFocusTo(m_equalizer->toggle());
    m_notice->setVisible(isShown);
    place();
}

void MusicVisualizerView::resizeEvent(QResizeEvent*) { place(); }

void MusicVisualizerView::place() {
    const auto least = [](int width) { return static_cast<double>(theme::widened(width)); };
    const CardColumn equalizer{{384.0, least(kLeastEqualizer)},
                               [this](int width) { return EqualizerCard::leastHeight() + noticeRoom(width); },
                               [this](const QRect& place) { placeEqualizer(place); }};
    const CardColumn modes{
        {532.0, least(kLeastModes)},
        [this](int) { return m_modesCard->leastHeight() + theme::kCardGap + MusicLevelsCard::cardHeight(); },
        [this](const QRect& place) { placeModes(place); }};
    placeCards(*this, theme::kShortestPage, std::array{equalizer, modes});
}

/// With the gap above it.
int MusicVisualizerView::noticeRoom(int width) const {
    return m_showsNotice ? theme::kCardGap + m_notice->heightWithin(width) : 0;
}

void MusicVisualizerView::placeEqualizer(const QRect& place) {
    const int noticeHeight = m_notice->heightWithin(place.width());
    m_equalizer->place(place.adjusted(0, 0, 0, -noticeRoom(place.width())), theme::isShort(place.height()));
    m_notice->setGeometry(place.left(), place.bottom() + 1 - noticeHeight, place.width(), noticeHeight);
}

void MusicVisualizerView::placeModes(const QRect& place) {
    const int levelsHeight = MusicLevelsCard::cardHeight();
    m_modesCard->setGeometry(place.adjusted(0, 0, 0, -levelsHeight - theme::kCardGap));
    m_levels->setGeometry(place.left(), place.bottom() + 1 - levelsHeight, place.width(), levelsHeight);
}

}  // namespace lumo
