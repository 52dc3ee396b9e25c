#include "macro/MacroEditorView.h"

#include <algorithm>

#include "app/UIState.h"
#include "controls/CardRows.h"
#include "controls/PlainText.h"
#include "controls/Theme.h"
#include "macro/BytecodeCard.h"
#include "macro/LoopModesCard.h"
#include "macro/ProfilesCard.h"
#include "macro/TimelineCard.h"

namespace lumo {
namespace {

constexpr int kGap = theme::kCardGap;
constexpr int kBytecodeWidth = 352;  // what 51 letters need
constexpr int kProfilesWidth = 188;
constexpr int kLeastProfilesWidth = 168;
constexpr int kNarrowPage = 868;
constexpr int kLeastTimeline = 324;
constexpr int kTimelineLines = 6;

/// On a narrow page the profiles give way first, a third of what is missing.
int profilesWidthOn(int pageWidth) {
    return theme::widened(
        std::clamp(kLeastProfilesWidth + (pageWidth - kNarrowPage) / 3, kLeastProfilesWidth, kProfilesWidth));
}

QStringList namesOf(const std::vector<MacroItem>& macros) {
    QStringList names;
    for (const MacroItem& macro : macros) names += plainText(macro.name);
    return names;
}

}  // namespace

MacroEditorView::MacroEditorView(VexaProtocol& link, UIState& state, MainQueue main, QWidget* parent)
    : QWidget(parent),
      m_state(state),
      m_actions(link, state),
      m_profiles(new ProfilesCard(namesOf(state.macroList.get()), this)),
      m_timeline(new TimelineCard(this)),
      m_loop(new LoopModesCard(this)),
      m_bytecode(new BytecodeCard(this)),
      m_refresh(main, [this] { refresh(); }),
      m_stateChanges(state.observe([this] { m_refresh.request(); })) {
    connectControls();
    refresh();
}

void MacroEditorView::connectControls() {
    connect(m_profiles, &ProfilesCard::chosen, this, [this](std::int64_t index) { m_actions.selectMacro(index); });
    connect(m_profiles, &ProfilesCard::added, this, [this] { m_actions.addNewMacro(); });
    connect(m_profiles, &ProfilesCard::deleted, this, [this] { m_actions.deleteMacro(); });
    connect(m_timeline, &TimelineCard::recordToggled, this, [this] { m_actions.toggleRecording(); });
    connect(m_timeline, &TimelineCard::stepInserted, this, [this] { m_actions.addKeyStep(); });
    connect(m_timeline, &TimelineCard::stepDeleted, this, [this](std::int64_t index) { m_actions.deleteStep(index); });
    connect(m_loop, &LoopModesCard::chosen, this, [this](std::int64_t mode) { m_actions.chooseLoopMode(mode); });
    connect(m_bytecode, &BytecodeCard::recompiled, this, [this] { m_actions.compileBytecode(); });
}

void MacroEditorView::refresh() {
    m_profiles->setMacros(namesOf(m_state.macroList.get()), m_state.selectedMacroIndex.get());
    m_timeline->setMacroName(m_state.macroName.get());
    m_timeline->setRecording(m_state.isRecording.get());
    m_timeline->setSteps(m_state.macroEvents.get());
    m_loop->setLoopCount(m_state.macroLoopCount.get());
    m_loop->setMode(m_state.macroLoopMode.get());
    m_bytecode->setBytecode(m_state.compiledMacroHex.get());
}

void MacroEditorView::resizeEvent(QResizeEvent*) {
    const auto least = [](int width) { return static_cast<double>(theme::widened(width)); };
    const auto list = [](int) { return theme::grown(theme::kShortestPage, kTimelineLines); };
    const CardColumn profiles{{0.0, static_cast<double>(profilesWidthOn(width()))}, list, [this](const QRect& place) {
                                  m_profiles->setGeometry(place);
                              }};
    const CardColumn timeline{
        {1.0, least(kLeastTimeline)}, list, [this](const QRect& place) { m_timeline->setGeometry(place); }};
    const CardColumn result{{0.0, least(kBytecodeWidth)},
                            [](int) { return LoopModesCard::heightOn(true) + kGap + BytecodeCard::leastHeight(); },
                            [this](const QRect& place) { placeResult(place); }};
    placeCards(*this, theme::kShortestPage, std::array{profiles, timeline, result});
}

void MacroEditorView::placeResult(const QRect& place) {
    const bool isShort = theme::isShort(place.height());
    const int loopHeight = LoopModesCard::heightOn(isShort);
    m_loop->setGeometry(place.left(), place.top(), place.width(), loopHeight);
    m_bytecode->setShort(isShort);
    m_bytecode->setGeometry(place.adjusted(0, loopHeight + kGap, 0, 0));
}

}  // namespace lumo
