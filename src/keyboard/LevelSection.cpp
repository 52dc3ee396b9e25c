#include "keyboard/LevelSection.h"

#include "controls/PlainText.h"
#include "controls/Slider.h"
#include "controls/TextLine.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kSliderTop = 20;
static_assert(LevelSection::kRoom == Slider::kSideRoom);
constexpr SliderRange kRange{0.0, LevelSection::kHighestLevel, 1.0};

LevelSection::ValueText brightnessText(double level) {
    constexpr std::int64_t kPercentOfLevel = 25;
    return {std::to_string(static_cast<std::int64_t>(level * kPercentOfLevel)), "%"};
}

LevelSection::ValueText speedText(double level) {
    return {"Level " + std::to_string(static_cast<std::int64_t>(level)), ""};
}

}  // namespace

LevelSection::LevelSection(std::string_view heading, TextOf textOf, MainQueue main, QWidget* parent)
    : Section(heading, parent, kRoom),
      m_textOf(std::move(textOf)),
      m_value(new TextLine(theme::kValueStyle, theme::kText, this)),
      m_unit(new TextLine(theme::kUnitStyle, theme::kTextMinor, this)),
      m_slider(new Slider(kRange, main, this)) {
    m_slider->setAccessibleName(plainText(heading));
    connect(m_slider, &Slider::valueChanged, this, &LevelSection::levelChanged);
    connect(m_slider, &Slider::editingChanged, this, &LevelSection::edited);
}

void LevelSection::setLevel(double level) {
    m_slider->setValue(level);
    const ValueText shown = m_textOf(level);
    m_unit->setText(shown.unit);
    m_unit->setVisible(!shown.unit.empty());
    if (m_value->setText(shown.text)) placeValue();
}

void LevelSection::resizeEvent(QResizeEvent* event) {
    Section::resizeEvent(event);
    m_slider->placeHitArea(QRect(kRoom, kSliderTop, width() - 2 * kRoom, Slider::kHitHeight));
    placeValue();
}

void LevelSection::placeValue() {
    const int unitWidth = m_unit->sizeHint().width();
    const int valueWidth = m_value->sizeHint().width();
    const int unitX = width() - kRoom - unitWidth;
    m_unit->setGeometry(unitX, 0, unitWidth, kHeadingHeight);
    m_value->setGeometry(unitX - valueWidth, 0, valueWidth, kHeadingHeight);
}

LevelSection* makeBrightnessSection(MainQueue main, QWidget* parent) {
    return new LevelSection("BRIGHTNESS", brightnessText, main, parent);
}

LevelSection* makeSpeedSection(MainQueue main, QWidget* parent) {
    return new LevelSection("SPEED", speedText, main, parent);
}

}  // namespace lumo
