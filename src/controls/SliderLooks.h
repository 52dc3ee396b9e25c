// What a slider looks like.
#pragma once

#include <QPainter>
#include <QRectF>
#include <vector>

namespace lumo {

/// Places in the coordinates of the painter.
struct SliderLooks {
    static constexpr double kTrackHeight = 4.0;
    static constexpr double kKnobRadius = 8.0;
    static constexpr double kHaloRadius = 14.0;  // nothing is painted farther away from the knob's centre

    QRectF track;
    double knobX = 0.0;         // the centre
    std::vector<double> dotXs;  // below the track
    double hover = 0.0;         // 0 to 1
    double press = 0.0;         // 0 to 1
    bool showsRing = false;
};

void paintSlider(QPainter& painter, const SliderLooks& looks);

}  // namespace lumo
