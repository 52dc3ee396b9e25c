#include "keyboard/LevelSections.h"

#include <cstdint>

#include "controls/SliderSection.h"

namespace lumo {
namespace {

constexpr SliderRange kRange{0.0, 4.0, 1.0};

SliderSection::ValueText brightnessText(double level) {
    constexpr std::int64_t kPercentOfLevel = 25;
    return {std::to_string(static_cast<std::int64_t>(level * kPercentOfLevel)), "%"};
}

SliderSection::ValueText speedText(double level) {
    return {"Level " + std::to_string(static_cast<std::int64_t>(level)), ""};
}

}  // namespace

SliderSection* makeBrightnessSection(MainQueue main, QWidget* parent) {
    return new SliderSection({"BRIGHTNESS", kRange, brightnessText}, main, parent);
}

SliderSection* makeSpeedSection(MainQueue main, QWidget* parent) {
    return new SliderSection({"SPEED", kRange, speedText}, main, parent);
}

}  // namespace lumo
