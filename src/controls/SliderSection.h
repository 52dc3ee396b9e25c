// A value with its heading, its text and its slider.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "controls/Section.h"
#include "controls/SliderRange.h"
#include "foundation/RunLoop.h"

namespace lumo {

class Slider;
class TextLine;

/// Main thread.
class SliderSection final : public Section {
    Q_OBJECT

public:
    static int sectionHeight();
    static constexpr int kRoom = 6;  // beside its texts and its track, for a knob at an end of the track

    /// What the value reads: a text, and a small unit beside it that may be empty.
    struct ValueText {
        std::string text;
        std::string unit;
    };
    struct Subject {
        std::string_view heading;
        SliderRange range;
        std::function<ValueText(double value)> textOf;
        bool hasStepDots = true;
        theme::TextStyle style = theme::kSectionStyle;
        QColor color = theme::kTextSection;
    };

    SliderSection(Subject subject, MainQueue main, QWidget* parent);

    void setValue(double value);
    /// In which heading and value, as it reads now, stand side by side.
    [[nodiscard]] int leastWidth() const;

signals:
    void valueChanged(double value);
    /// A use of the slider began, or ended.
    void edited();

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    void placeValue();

    std::function<ValueText(double value)> m_textOf;
    TextLine* m_value;
    TextLine* m_unit;
    Slider* m_slider;
};

}  // namespace lumo
