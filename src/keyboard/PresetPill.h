// The button that selects one group of keys.
#pragma once

#include "controls/PlainText.h"
#include "controls/PushButton.h"

namespace lumo {

/// Main thread.
class PresetPill final : public PushButton {
public:
    PresetPill(std::string_view name, QWidget* parent) : PushButton(plainText(name), look::kPlain, parent) {}
};

}  // namespace lumo
