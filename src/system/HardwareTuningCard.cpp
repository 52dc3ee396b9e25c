#include "system/HardwareTuningCard.h"

#include <QPainter>
#include <array>
#include <cstdint>

#include "controls/Columns.h"
#include "controls/Panel.h"
#include "controls/PushButton.h"
#include "controls/SliderSection.h"
#include "controls/Theme.h"

namespace lumo {
namespace {

constexpr int kRoom = SliderSection::kRoom;
constexpr int kPadding = 10;
constexpr int kSidePadding = 14;
constexpr int kHeadingToSliders = 5;
constexpr int kFoot = 8;
constexpr int kStackGap = 10;  // between lines
constexpr int kGap = 32;
constexpr int kNarrowGap = 24;
constexpr int kNarrow = 900;
constexpr int kButtonFoot = 4;  // above the foot of a slider's section
constexpr int kButtonPadding = 12;
constexpr QColor kLabelColor{0xE2, 0xE2, 0xE6};

int slidersTop() { return Section::headingHeight() + kHeadingToSliders; }

int buttonHeight() { return theme::grown(28); }

int gapWithin(int width) { return width < kNarrow ? kNarrowGap : kGap; }

SliderSection::ValueText wholeNumber(double value, const char* unit) {
    return {std::to_string(static_cast<std::int64_t>(value)) + unit, ""};
}

SliderSection* makeSlider(std::string_view label, const SliderRange& range, const char* unit, bool hasStepDots,
                          MainQueue main, QWidget* parent) {
    const auto textOf = [unit](double value) { return wholeNumber(value, unit); };
    return new SliderSection({label, range, textOf, hasStepDots, theme::kTuningLabelStyle, kLabelColor}, main, parent);
}

}  // namespace

HardwareTuningCard::HardwareTuningCard(MainQueue main, QWidget* parent)
    : QWidget(parent),
      m_section(new Section("HARDWARE TUNING", this, kRoom)),
      m_sleep(makeSlider("Wireless Idle Sleep Timeout", {1.0, 60.0, 1.0}, " min", false, main, m_section)),
      m_debounce(makeSlider("Switch Debounce Time", {0.0, 40.0, 10.0}, " ms", true, main, m_section)),
      m_restore(new PushButton("Restore Factory Settings", look::kDanger, m_section)) {
    connect(m_sleep, &SliderSection::valueChanged, this, &HardwareTuningCard::sleepMinutesChanged);
    connect(m_debounce, &SliderSection::valueChanged, this, &HardwareTuningCard::debounceMsChanged);
    connect(m_debounce, &SliderSection::edited, this, &HardwareTuningCard::debounceEdited);
    connect(m_restore, &QAbstractButton::clicked, this, &HardwareTuningCard::restoreFactorySettings);
}

void HardwareTuningCard::setSleepMinutes(double minutes) { m_sleep->setValue(minutes); }

void HardwareTuningCard::setDebounceMs(double ms) { m_debounce->setValue(ms); }

void HardwareTuningCard::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    paintCard(painter, rect());
}

bool HardwareTuningCard::isStackedWithin(int width) const {
    const int least = std::max(m_sleep->leastWidth(), m_debounce->leastWidth()) - 2 * kRoom;
    const int room = width - 2 * kSidePadding - m_restore->widthWith(kButtonPadding) - 2 * gapWithin(width);
    return 2 * least > room;
}

int HardwareTuningCard::heightWithin(int width) const {
    const int below =
        isStackedWithin(width) ? kStackGap + SliderSection::sectionHeight() + kStackGap + buttonHeight() : 0;
    return kPadding + slidersTop() + SliderSection::sectionHeight() + below + kFoot;
}

void HardwareTuningCard::resizeEvent(QResizeEvent*) {
    m_section->setGeometry(kSidePadding - kRoom, kPadding, width() - 2 * (kSidePadding - kRoom), height() - kPadding);
    const int inner = width() - 2 * kSidePadding;
    const int buttonWidth = m_restore->widthWith(kButtonPadding);
    const int sliderHeight = SliderSection::sectionHeight();
    const auto place = [sliderHeight](SliderSection& section, const Extent& extent, int top) {
        section.setGeometry(extent.begin, top, extent.length + 2 * kRoom, sliderHeight);
    };
    int buttonTop = slidersTop() + sliderHeight - kButtonFoot - buttonHeight();
    if (isStackedWithin(width())) {
        const int second = slidersTop() + sliderHeight + kStackGap;
        place(*m_sleep, {0, inner}, slidersTop());
        place(*m_debounce, {0, inner}, second);
        buttonTop = second + sliderHeight + kStackGap - kButtonFoot;
    } else {
        const int gap = gapWithin(width());
        const auto sliders = divide(inner - buttonWidth - gap, gap, std::array{Column{}, Column{}});
        place(*m_sleep, sliders[0], slidersTop());
        place(*m_debounce, sliders[1], slidersTop());
    }
    m_restore->setGeometry(kRoom + inner - buttonWidth, buttonTop, buttonWidth, buttonHeight());
}

}  // namespace lumo
