#include "keyboard/KeyboardView.h"

#include <algorithm>

#include "controls/FocusGroup.h"
#include "controls/InfoBox.h"
#include "controls/Section.h"
#include "controls/Theme.h"
#include "keyboard/KeyboardModel.h"
#include "keyboard/LayerPill.h"
#include "keyboard/PresetPill.h"
#include "keyboard/SelectionText.h"

namespace lumo {
namespace {

constexpr int kPictureHeight = 248;
constexpr int kCaseWidth = 641;
constexpr int kPanelX = 662;
constexpr int kPanelTop = 13;  // level with the case, as is the foot
constexpr int kPanelFoot = 12;
constexpr int kHeadingGap = 7;
constexpr int kLayersToPresets = 14;
constexpr int kPresetsToInfo = 12;
constexpr int kGap = 4;
constexpr int kRowGap = 6;
constexpr int kPresetsAcross = 3;  // in the first of two rows
constexpr double kFirstLayerShare = 1.4;

int layersTop() { return theme::kLayerLabelStyle.linePx() + kHeadingGap; }

int presetsTop() { return theme::kPresetLabelStyle.linePx() + kHeadingGap; }

}  // namespace

KeyboardView::KeyboardView(VexaProtocol& link, UIState& state, KeyboardModel& keyboard, MainQueue main,
                           KeyboardCanvas::Clock clock, QWidget* parent)
    : QWidget(parent),
      m_keyboard(keyboard),
      m_actions(link, state, keyboard),
      m_canvas(new KeyboardCanvas(link, state, keyboard, main, std::move(clock), this)),
      m_layerSection(new Section("LAYER:", theme::kLayerLabelStyle, this)),
      m_layerGroup(new FocusGroup({}, m_layerSection)),
      m_layerRows({theme::grown(30), kGap, kRowGap, {kKeyLayers.size()}}),
      m_presetSection(new Section("Select:", theme::kPresetLabelStyle, this)),
      m_presetGroup(new FocusGroup({.across = 1, .down = kPresetsAcross}, m_presetSection)),
      m_presetRows({theme::grown(28), kGap, kRowGap, {kPresetsAcross, kSelectionPresets.size() - kPresetsAcross}}),
      m_info(new InfoBox(this)),
      m_refresh(main, [this] { refresh(); }),
      m_keyboardChanges(keyboard.observe([this] { m_refresh.request(); })) {
    addLayers();
    addPresets();
    refresh();
}

void KeyboardView::addLayers() {
    for (const KeyLayer& layer : kKeyLayers) {
        auto* const pill = new LayerPill(layer, m_layerSection);
        connect(pill, &QAbstractButton::clicked, this, [this, pill] { m_actions.chooseLayer(pill->number()); });
        m_layerGroup->add(*pill);
        m_layerRows.add(*pill, m_layers.empty() ? kFirstLayerShare : 1.0);
        m_layers.push_back(pill);
    }
}

void KeyboardView::addPresets() {
    for (const std::string_view name : kSelectionPresets) {
        auto* const pill = new PresetPill(name, m_presetSection);
        connect(pill, &QAbstractButton::clicked, this, [this, name] { m_actions.choosePreset(name); });
        m_presetGroup->add(*pill);
        m_presetRows.add(*pill);
    }
}

void KeyboardView::refresh() {
    for (LayerPill* const pill : m_layers) pill->setSelected(pill->number() == m_keyboard.activeLayer.get());
    m_layerGroup->placeTabStop();
    m_info->setText(selectionText(m_keyboard.keys.get(), m_keyboard.selectedKeyIds.get()));
}

/// All beside the keyboard but the information.
int KeyboardView::panelHeight(int width) const {
    const int room = width - kPanelX;
    return layersTop() + m_layerRows.heightWithin(room) + kLayersToPresets + presetsTop() +
           m_presetRows.heightWithin(room);
}

/// The information stands below the keyboard where large letters would make the panel much higher than it.
bool KeyboardView::isInfoBelow(int width) const {
    const int beside = kPanelTop + panelHeight(width) + kPresetsToInfo + InfoBox::boxHeight();
    return beside > kPictureHeight + InfoBox::lowBoxHeight();
}

int KeyboardView::heightWithin(int width) const {
    const int panel = kPanelTop + panelHeight(width);
    if (isInfoBelow(width)) return std::max(kPictureHeight + InfoBox::lowBoxHeight(), panel) + kPanelFoot;
    return std::max(kPictureHeight, panel + kPresetsToInfo + InfoBox::boxHeight() + kPanelFoot);
}

void KeyboardView::resizeEvent(QResizeEvent*) {
    const int room = width() - kPanelX;
    m_canvas->move(0, 0);
    m_layerSection->setGeometry(kPanelX, kPanelTop, room, layersTop() + m_layerRows.heightWithin(room));
    m_layerRows.place(room, layersTop());
    const int presetsY = m_layerSection->geometry().bottom() + 1 + kLayersToPresets;
    m_presetSection->setGeometry(kPanelX, presetsY, room, presetsTop() + m_presetRows.heightWithin(room));
    m_presetRows.place(room, presetsTop());
    m_presetGroup->setSteps({.across = 1, .down = static_cast<int>(m_presetRows.acrossWithin(room))});
    if (isInfoBelow(width())) return m_info->setGeometry(kShadow, kPictureHeight, kCaseWidth, InfoBox::lowBoxHeight());
    m_info->setGeometry(kPanelX, m_presetSection->geometry().bottom() + 1 + kPresetsToInfo, room, InfoBox::boxHeight());
}

}  // namespace lumo
