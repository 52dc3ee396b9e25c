#include "keyboard/KeyboardView.h"

#include "controls/Columns.h"
#include "controls/FocusGroup.h"
#include "controls/InfoBox.h"
#include "controls/Section.h"
#include "keyboard/KeyboardModel.h"
#include "keyboard/LayerPill.h"
#include "keyboard/PresetPill.h"
#include "keyboard/SelectionText.h"

namespace lumo {
namespace {

constexpr int kPanelX = 662;
constexpr int kLayerY = 13;
constexpr int kLayerHeight = 30;
constexpr int kPresetY = 77;
constexpr int kPresetHeight = 28;
constexpr int kPresetsAcross = 3;  // in the first of two rows
constexpr int kControlTop = 20;    // from a heading's top
constexpr int kGap = 4;
constexpr int kRowGap = 6;
constexpr int kInfoY = 171;
constexpr int kInfoHeight = 65;

std::vector<Extent> equalColumns(int width, std::size_t count) {
    const std::vector<Column> columns(count);
    return divide(width, kGap, columns);
}

}  // namespace

KeyboardView::KeyboardView(VexaProtocol& link, UIState& state, KeyboardModel& keyboard, MainQueue main,
                           KeyboardCanvas::Clock clock, QWidget* parent)
    : QWidget(parent),
      m_keyboard(keyboard),
      m_actions(link, state, keyboard),
      m_canvas(new KeyboardCanvas(link, state, keyboard, main, std::move(clock), this)),
      m_layerSection(new Section("LAYER:", theme::kLayerLabelStyle, this)),
      m_layerGroup(new FocusGroup({}, m_layerSection)),
      m_presetSection(new Section("Select:", theme::kPresetLabelStyle, this)),
      m_presetGroup(new FocusGroup({.across = 1, .down = kPresetsAcross}, m_presetSection)),
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
        m_layers.push_back(pill);
    }
}

void KeyboardView::addPresets() {
    for (const std::string_view name : kSelectionPresets) {
        auto* const pill = new PresetPill(name, m_presetSection);
        connect(pill, &QAbstractButton::clicked, this, [this, name] { m_actions.choosePreset(name); });
        m_presetGroup->add(*pill);
        m_presets.push_back(pill);
    }
}

void KeyboardView::refresh() {
    for (LayerPill* const pill : m_layers) pill->setSelected(pill->number() == m_keyboard.activeLayer.get());
    m_layerGroup->placeTabStop();
    m_info->setText(selectionText(m_keyboard.keys.get(), m_keyboard.selectedKeyIds.get()));
}

void KeyboardView::resizeEvent(QResizeEvent*) {
    const int panelWidth = width() - kPanelX;
    m_canvas->move(0, 0);
    placeLayers(panelWidth);
    placePresets(panelWidth);
    m_info->setGeometry(kPanelX, kInfoY, panelWidth, kInfoHeight);
}

void KeyboardView::placeLayers(int panelWidth) {
    m_layerSection->setGeometry(kPanelX, kLayerY, panelWidth, kControlTop + kLayerHeight);
    constexpr std::array<Column, kKeyLayers.size()> kColumns{Column{1.4}, Column{}, Column{}, Column{}};
    const auto columns = divide(panelWidth, kGap, kColumns);
    for (std::size_t i = 0; i < m_layers.size(); ++i) {
        m_layers[i]->setGeometry(columns[i].begin, kControlTop, columns[i].length, kLayerHeight);
    }
}

void KeyboardView::placePresets(int panelWidth) {
    m_presetSection->setGeometry(kPanelX, kPresetY, panelWidth, kControlTop + 2 * kPresetHeight + kRowGap);
    const auto upper = equalColumns(panelWidth, kPresetsAcross);
    const auto lower = equalColumns(panelWidth, m_presets.size() - kPresetsAcross);
    for (std::size_t i = 0; i < m_presets.size(); ++i) {
        const bool isUpper = i < kPresetsAcross;
        const Extent& column = isUpper ? upper[i] : lower[i - kPresetsAcross];
        const int y = kControlTop + (isUpper ? 0 : kPresetHeight + kRowGap);
        m_presets[i]->setGeometry(column.begin, y, column.length, kPresetHeight);
    }
}

}  // namespace lumo
