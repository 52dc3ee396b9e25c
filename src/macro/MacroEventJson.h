// One step of a macro as JSON: {"id": …, "keyCode": …, "isDown": …, "delayMs": …}, the keys in this order.
#pragma once

#include <cstdint>
#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>

#include "macro/MacroEvent.h"

namespace lumo {

/// Why a step could not be read, and at which key.
class DecodingError final : public std::runtime_error {
public:
    enum class Reason : std::uint8_t { notAnObject, missingKey, wrongType, outOfRange, malformedUuid };

    DecodingError(Reason reason, const std::string& key);

    [[nodiscard]] Reason reason() const { return m_reason; }
    /// Empty where there is no object to have a key.
    [[nodiscard]] const std::string& key() const { return m_key; }

private:
    Reason m_reason;
    std::string m_key;
};

[[nodiscard]] nlohmann::ordered_json encode(const MacroEvent& event);

/// Needs all four keys and takes no notice of others. Throws DecodingError for the first key that will not do.
[[nodiscard]] MacroEvent decodeMacroEvent(const nlohmann::ordered_json& json);

}  // namespace lumo
