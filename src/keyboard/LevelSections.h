// The levels of the lighting, 0 to 4.
#pragma once

#include "foundation/RunLoop.h"

class QWidget;

namespace lumo {

class SliderSection;

/// "BRIGHTNESS" in per cent and "SPEED" by level. Levels are truncated to whole ones. Main thread.
[[nodiscard]] SliderSection* makeBrightnessSection(MainQueue main, QWidget* parent);
[[nodiscard]] SliderSection* makeSpeedSection(MainQueue main, QWidget* parent);

}  // namespace lumo
