// The button of one layer.
#pragma once

#include "controls/PlainText.h"
#include "controls/PushButton.h"
#include "keyboard/KeyboardActions.h"

namespace lumo {

/// Main thread.
class LayerPill final : public PushButton {
public:
    LayerPill(const KeyLayer& layer, QWidget* parent)
        : PushButton(plainText(layer.name), look::kLayer, parent, QAccessible::RadioButton), m_number(layer.number) {}

    [[nodiscard]] std::int64_t number() const { return m_number; }

private:
    std::int64_t m_number;
};

}  // namespace lumo
