#include "audio/MusicVisualizerView.h"

#include <array>

#include "app/UIState.h"
#include "audio/AudioVisualizerEngine.h"
#include "audio/EqualizerCard.h"
#include "audio/MicrophoneNotice.h"
#include "audio/MusicLevelsCard.h"
#include "audio/MusicModeList.h"
#include "controls/Card.h"
#include "controls/Columns.h"
#include "controls/PushControl.h"
#include "controls/Section.h"
#include "controls/Theme.h"
#include "device/VexaProtocol.h"
#include "system/PermissionManager.h"

namespace lumo {
namespace {

constexpr std::array<Column, 2> kColumns{Column{384.0}, Column{532.0, 512.0}};

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
    setMinimumHeight(theme::kShortestPage);
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
    const auto columns = divide(width(), theme::kCardGap, kColumns);
    const auto [left, leftWidth] = columns[0];
    const auto [right, rightWidth] = columns[1];
    const int noticeHeight = m_notice->heightWithin(leftWidth);
    const int equalizerHeight = height() - (m_showsNotice ? noticeHeight + theme::kCardGap : 0);
    m_equalizer->place({left, 0, leftWidth, equalizerHeight}, theme::isShort(height()));
    m_notice->setGeometry(left, height() - noticeHeight, leftWidth, noticeHeight);
    const int levelsTop = height() - MusicLevelsCard::kHeight;
    m_modesCard->setGeometry(right, 0, rightWidth, levelsTop - theme::kCardGap);
    m_levels->setGeometry(right, levelsTop, rightWidth, MusicLevelsCard::kHeight);
}

}  // namespace lumo
