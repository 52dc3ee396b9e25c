#include "controls/SliderSection.h"

#include <utility>

#include "controls/PlainText.h"
#include "controls/Slider.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kHeadingToValue = 6;
static_assert(SliderSection::kRoom == Slider::kSideRoom);

}  // namespace

SliderSection::SliderSection(Subject subject, MainQueue main, QWidget* parent)
    : Section(subject.heading, subject.style, subject.color, parent, kRoom),
      m_textOf(std::move(subject.textOf)),
      m_value(new TextLine(theme::kValueStyle, theme::kText, this)),
      m_unit(new TextLine(theme::kUnitStyle, theme::kTextMinor, this)),
      m_slider(new Slider(subject.range, main, this)) {
    m_slider->setAccessibleName(plainText(subject.heading));
    m_slider->setStepDots(subject.hasStepDots);
    connect(m_slider, &Slider::valueChanged, this, &SliderSection::valueChanged);
    connect(m_slider, &Slider::editingChanged, this, &SliderSection::edited);
}

int SliderSection::sectionHeight() { return theme::grown(44); }

void SliderSection::setValue(double value) {
    m_slider->setValue(value);
    const ValueText shown = m_textOf(value);
    m_unit->setText(shown.unit);
    m_unit->setVisible(!shown.unit.empty());
    if (m_value->setText(shown.text)) placeValue();
}

int SliderSection::leastWidth() const {
    return kRoom + headingWidth() + kHeadingToValue + m_value->sizeHint().width() + m_unit->sizeHint().width() + kRoom;
}

void SliderSection::resizeEvent(QResizeEvent* event) {
    Section::resizeEvent(event);
    m_slider->placeHitArea(QRect(kRoom, theme::grown(20), width() - 2 * kRoom, Slider::kHitHeight));
    placeValue();
}

void SliderSection::placeValue() {
    const int unitWidth = m_unit->sizeHint().width();
    const int valueWidth = m_value->sizeHint().width();
    const int unitX = width() - kRoom - unitWidth;
    m_unit->setGeometry(unitX, 0, unitWidth, headingHeight());
    placeHeading(unitX - valueWidth - kHeadingToValue - kRoom);
    m_value->setGeometry(unitX - valueWidth, 0, valueWidth, headingHeight());
}

}  // namespace lumo
