// The card with the steps of the macro being edited.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "controls/HeadedCard.h"
#include "macro/MacroEvent.h"

namespace lumo {

class PushButton;
class ScrollBox;
class StepList;
class TimelineHeading;

/// Main thread.
class TimelineCard final : public HeadedCard {
    Q_OBJECT

public:
    explicit TimelineCard(QWidget* parent);

    void setMacroName(std::string_view name);
    void setRecording(bool isRecording);
    void setSteps(const std::vector<MacroEvent>& steps);

signals:
    void recordToggled();
    void stepInserted();
    void stepDeleted(std::int64_t index);

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    explicit TimelineCard(TimelineHeading* heading, QWidget* parent);
    void placeButtons();

    TimelineHeading* m_name;
    PushButton* m_record;
    PushButton* m_insert;
    ScrollBox* m_box;
    StepList* m_steps;
};

}  // namespace lumo
