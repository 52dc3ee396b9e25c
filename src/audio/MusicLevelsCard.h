// The card with gain and smoothness.
#pragma once

#include <QWidget>

#include "foundation/RunLoop.h"

namespace lumo {

class SliderSection;

/// Main thread.
class MusicLevelsCard final : public QWidget {
    Q_OBJECT

public:
    static int cardHeight();

    MusicLevelsCard(MainQueue main, QWidget* parent);

    void setGain(double factor);
    void setSmoothness(double smoothness);

signals:
    void gainChanged(double factor);
    void smoothnessChanged(double smoothness);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    SliderSection* m_gain;
    SliderSection* m_smoothness;
};

}  // namespace lumo
