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
constexpr int kSlidersTop = 21;  // from the heading's top
constexpr int kGap = 32;
constexpr int kNarrowGap = 24;
constexpr int kNarrow = 900;
constexpr int kButtonTop = 33;
constexpr int kButtonHeight = 28;
constexpr int kButtonPadding = 12;
constexpr QColor kLabelColor{0xE2, 0xE2, 0xE6};

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

void HardwareTuningCard::resizeEvent(QResizeEvent*) {
    m_section->setGeometry(kSidePadding - kRoom, kPadding, width() - 2 * (kSidePadding - kRoom), height() - kPadding);
    const int inner = width() - 2 * kSidePadding;
    const int gap = width() < kNarrow ? kNarrowGap : kGap;
    const int buttonWidth = m_restore->widthWith(kButtonPadding);
    const auto sliders = divide(inner - buttonWidth - gap, gap, std::array{Column{}, Column{}});
    const auto place = [](SliderSection& section, const Extent& extent) {
        section.setGeometry(extent.begin, kSlidersTop, extent.length + 2 * kRoom, SliderSection::kHeight);
    };
    place(*m_sleep, sliders[0]);
    place(*m_debounce, sliders[1]);
    m_restore->setGeometry(kRoom + inner - buttonWidth, kButtonTop, buttonWidth, kButtonHeight);
}

}  // namespace lumo
