// A level of the lighting from 0 to 4: its heading, its value and its slider.
#pragma once

#include <cstdint>
#include <functional>

#include "controls/Section.h"
#include "foundation/RunLoop.h"

namespace lumo {

class Slider;
class TextLine;

/// Main thread.
class LevelSection final : public Section {
    Q_OBJECT

public:
    static constexpr int kHeight = 44;
    static constexpr int kRoom = 6;  // beside its texts and its track, for a knob at an end of the track
    static constexpr double kHighestLevel = 4.0;

    /// What the value reads: a text, and a small unit beside it that may be empty.
    struct ValueText {
        std::string text;
        std::string unit;
    };
    using TextOf = std::function<ValueText(double level)>;

    LevelSection(std::string_view heading, TextOf textOf, MainQueue main, QWidget* parent);

    void setLevel(double level);

signals:
    void levelChanged(double level);
    /// A use of the slider began, or ended.
    void edited();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeValue();

    TextOf m_textOf;
    TextLine* m_value;
    TextLine* m_unit;
    Slider* m_slider;
};

/// "BRIGHTNESS" in per cent and "SPEED" by level. Levels are truncated to whole ones.
[[nodiscard]] LevelSection* makeBrightnessSection(MainQueue main, QWidget* parent);
[[nodiscard]] LevelSection* makeSpeedSection(MainQueue main, QWidget* parent);

}  // namespace lumo
