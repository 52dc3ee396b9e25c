// The card with the palette and the tools that paint keys.
#pragma once

#include <QWidget>
#include <cstdint>
#include <vector>

#include "foundation/Color.h"

namespace lumo {

class ColorSwatch;
class FocusGroup;
class PushButton;
class Section;
class TextBlock;

/// Main thread.
class PaletteCard final : public QWidget {
    Q_OBJECT

public:
    static int leastHeight();
    explicit PaletteCard(QWidget* parent);

    /// Marks the swatch of that colour, if there is one.
    void setChosenColor(const Color& color);
    void setSelectedKeys(std::size_t count);

signals:
    void presetPicked(std::int64_t index);
    void paintSelected();
    void fillAll();
    void applyRainbow();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] std::vector<ColorSwatch*> makeSwatches();
    void placeSwatches();
    void placeTools();

    Section* m_palette;
    FocusGroup* m_group;
    std::vector<ColorSwatch*> m_swatches;
    TextBlock* m_tip;
    PushButton* m_paint;
    PushButton* m_fill;
    PushButton* m_rainbow;
    int m_lineY = 0;
};

}  // namespace lumo
