// The keyboard's row of the window: the picture, the layers, the selection presets and what is selected.
#pragma once

#include <QWidget>
#include <vector>

#include "controls/ButtonRows.h"
#include "keyboard/KeyboardCanvas.h"

namespace lumo {

class FocusGroup;
class InfoBox;
class LayerPill;
class Section;

/// Main thread. Owns no state: the three objects, which outlive it, hold all that it shows.
class KeyboardView final : public QWidget {
    Q_OBJECT

public:
    /// How far the picture's shadow reaches out to the left of the case.
    static constexpr int kShadow = 5;

    KeyboardView(VexaProtocol& link, UIState& state, KeyboardModel& keyboard, MainQueue main,
                 KeyboardCanvas::Clock clock, QWidget* parent);

    /// The picture's, or what the texts beside it need.
    [[nodiscard]] int heightWithin(int width) const;

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] int panelHeight(int width) const;
    [[nodiscard]] bool isInfoBelow(int width) const;
    void addLayers();
    void addPresets();
    void refresh();

    KeyboardModel& m_keyboard;
    KeyboardActions m_actions;
    KeyboardCanvas* m_canvas;
    Section* m_layerSection;
    FocusGroup* m_layerGroup;
    std::vector<LayerPill*> m_layers;
    ButtonRows m_layerRows;
    Section* m_presetSection;
    FocusGroup* m_presetGroup;
    ButtonRows m_presetRows;
    InfoBox* m_info;
    CoalescedRefresh m_refresh;
    Subscription m_keyboardChanges;
};

}  // namespace lumo
