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
    static constexpr int kHeight = 83;

    HardwareTuningCard(MainQueue main, QWidget* parent);

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
    Section* m_section;
    SliderSection* m_sleep;
    SliderSection* m_debounce;
    PushButton* m_restore;
};

}  // namespace lumo
