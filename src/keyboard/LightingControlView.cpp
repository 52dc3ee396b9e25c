#include "keyboard/LightingControlView.h"

#include "app/UIState.h"
#include "controls/Card.h"
#include "controls/Columns.h"
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

constexpr std::array<Column, 3> kColumns{Column{1.7, 396.0}, Column{1.0, 200.0}, Column{1.0, 236.0}};

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
    setMinimumHeight(theme::kShortestPage);
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
    const auto columns = divide(width(), theme::kCardGap, kColumns);
    m_effectCard->setGeometry(columns[0].begin, 0, columns[0].length, height());
    m_levels->setGeometry(columns[1].begin, 0, columns[1].length, height());
    m_palette->setGeometry(columns[2].begin, 0, columns[2].length, height());
}

}  // namespace lumo
