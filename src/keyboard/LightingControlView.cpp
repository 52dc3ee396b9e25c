#include "keyboard/LightingControlView.h"

#include "app/UIState.h"
#include "controls/Card.h"
#include "controls/CardRows.h"
#include "controls/Section.h"
#include "controls/ShownColor.h"
#include "controls/Theme.h"
#include "device/VexaProtocol.h"
#include "keyboard/EffectList.h"
#include "keyboard/KeyboardModel.h"
#include "keyboard/LevelsCard.h"
#include "keyboard/PaletteCard.h"

namespace lumo {
namespace {

Card* makeEffectCard(EffectList* effects, QWidget* parent) {
    auto* const section = new Section("LIGHTING EFFECT", nullptr);
    section->setContent(effects);
    return new Card(section, parent);
}

}  // namespace

LightingControlView::LightingControlView(VexaProtocol& link, UIState& state, KeyboardModel& keyboard, MainQueue main,
                                         QWidget* parent)
    : QWidget(parent),
      m_link(link),
      m_state(state),
      m_keyboard(keyboard),
      m_actions(link, state, keyboard),
      m_effects(new EffectList(effectCatalog, nullptr)),
      m_effectCard(makeEffectCard(m_effects, this)),
      m_levels(new LevelsCard(main, this)),
      m_palette(new PaletteCard(this)),
      m_refresh(main, [this] { refresh(); }),
      m_linkChanges(link.observe([this] { m_refresh.request(); })),
      m_stateChanges(state.observe([this] { m_refresh.request(); })),
      m_keyboardChanges(keyboard.observe([this] { m_refresh.request(); })) {
    connectControls();
    refresh();
}

void LightingControlView::connectControls() {
    connect(m_effects, &EffectList::chosen, this, [this](std::int64_t number) { m_actions.chooseEffect(number); });
    connect(m_levels, &LevelsCard::brightnessChanged, this,
            [this](double level) { m_state.brightnessLevel.set(level); });
    connect(m_levels, &LevelsCard::speedChanged, this, [this](double level) { m_state.speedLevel.set(level); });
    connect(m_levels, &LevelsCard::levelEdited, this, [this] { m_actions.updateDeviceLighting(); });
    connect(m_levels, &LevelsCard::colorPicked, this, [this](const Color& color) { m_actions.pickColor(color); });
    connect(m_palette, &PaletteCard::presetPicked, this,
            [this](std::int64_t index) { m_actions.pickPresetColor(index); });
    connect(m_palette, &PaletteCard::paintSelected, this, [this] { m_actions.paintSelected(); });
    connect(m_palette, &PaletteCard::fillAll, this, [this] { m_actions.fillAll(); });
    connect(m_palette, &PaletteCard::applyRainbow, this, [this] { m_actions.applyRainbow(); });
}

void LightingControlView::refresh() {
    const Color& color = m_state.selectedColor.get();
    m_effects->setSelected(m_link.activeModeId.get());
    m_effects->setChosenColor(shownColor(color));
    m_levels->setBrightness(m_state.brightnessLevel.get());
    m_levels->setSpeed(m_state.speedLevel.get());
    m_levels->setColor(color);
    m_palette->setChosenColor(color);
    m_palette->setSelectedKeys(m_keyboard.selectedKeyIds.get().size());
}

void LightingControlView::resizeEvent(QResizeEvent*) {
    const auto column = [](double share, int least, QWidget& card, int leastHeight) {
        return CardColumn{{share, static_cast<double>(theme::widened(least))},
                          [leastHeight](int) { return leastHeight; },
                          [&card](const QRect& place) { card.setGeometry(place); }};
    };
    placeCards(*this, theme::kShortestPage,
               std::array{column(1.7, 396, *m_effectCard, m_effectCard->leastHeight()),
                          column(1.0, 200, *m_levels, LevelsCard::leastHeight()),
                          column(1.0, 236, *m_palette, PaletteCard::leastHeight())});
}

}  // namespace lumo
