// The card with the levels and the colour wheel.
#pragma once

#include <QWidget>

#include "foundation/Color.h"
#include "foundation/RunLoop.h"

namespace lumo {

class ColorWheel;
class Section;
class SliderSection;

/// Main thread.
class LevelsCard final : public QWidget {
    Q_OBJECT

public:
    static int leastHeight();
    LevelsCard(MainQueue main, QWidget* parent);

    void setBrightness(double level);
    void setSpeed(double level);
    void setColor(const Color& color);

signals:
    void brightnessChanged(double level);
    void speedChanged(double level);
    /// A use of one of the sliders began, or ended.
    void levelEdited();
    void colorPicked(const lumo::Color& color);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    SliderSection* m_brightness;
    SliderSection* m_speed;
    Section* m_spectrum;
    ColorWheel* m_wheel;
};

}  // namespace lumo
