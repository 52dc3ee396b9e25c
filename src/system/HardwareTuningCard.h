// The card with the settings of the hardware.
#pragma once

#include <QWidget>

#include "foundation/RunLoop.h"

namespace lumo {

class PushButton;
class Section;
class SliderSection;

/// Main thread.
class HardwareTuningCard final : public QWidget {
    Q_OBJECT

public:
    HardwareTuningCard(MainQueue main, QWidget* parent);

    /// What it needs: where heading and value of its sliders would not fit side by side, these get a line each.
    [[nodiscard]] int heightWithin(int width) const;

    void setSleepMinutes(double minutes);
    /// Also a value between the slider's steps, until it is moved.
    void setDebounceMs(double ms);

signals:
    void sleepMinutesChanged(double minutes);
    void debounceMsChanged(double ms);
    /// A use of the debounce slider began, or ended.
    void debounceEdited();
    void restoreFactorySettings();

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] bool isStackedWithin(int width) const;
    Section* m_section;
    SliderSection* m_sleep;
    SliderSection* m_debounce;
    PushButton* m_restore;
};

}  // namespace lumo
