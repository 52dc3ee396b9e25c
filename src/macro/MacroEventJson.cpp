#include "macro/MacroEventJson.h"

#include <utility>

namespace lumo {
namespace {

using Json = nlohmann::ordered_json;
using Reason = DecodingError::Reason;

constexpr auto kId = "id";
constexpr auto kKeyCode = "keyCode";
constexpr auto kIsDown = "isDown";
constexpr auto kDelayMs = "delayMs";

std::string sentence(Reason reason, const std::string& key) {
    switch (reason) {
        case Reason::notAnObject:
            return "a macro step must be an object";
        case Reason::missingKey:
            return "\"" + key + "\" is missing";
        case Reason::wrongType:
            return "\"" + key + "\" has the wrong type";
        case Reason::outOfRange:
            return "\"" + key + "\" is out of range";
        case Reason::malformedUuid:
            return "\"" + key + "\" is no UUID";
    }
    return {};
}

const Json& valueAt(const Json& json, const char* key) {
    const auto found = json.find(key);
    if (found == json.end()) throw DecodingError(Reason::missingKey, key);
    return *found;
}

Uuid uuidAt(const Json& json, const char* key) {
    const Json& value = valueAt(json, key);
    if (!value.is_string()) throw DecodingError(Reason::wrongType, key);
    const auto uuid = Uuid::fromText(value.get_ref<const std::string&>());
    if (!uuid) throw DecodingError(Reason::malformedUuid, key);
    return *uuid;
}

bool booleanAt(const Json& json, const char* key) {
    const Json& value = valueAt(json, key);
    if (!value.is_boolean()) throw DecodingError(Reason::wrongType, key);
    return value.get<bool>();
}

/// An integer that not even 64 bits hold comes out of the parser as a floating-point number.
bool isBeyondEveryInteger(const Json& value) {
    constexpr double kTwoTo63 = 9223372036854775808.0;
    return value.is_number_float() && (value.get<double>() >= kTwoTo63 || value.get<double>() <= -kTwoTo63);
}

template <typename Integer>
Integer integerAt(const Json& json, const char* key) {
    const Json& value = valueAt(json, key);
    if (isBeyondEveryInteger(value)) throw DecodingError(Reason::outOfRange, key);
    if (!value.is_number_integer()) throw DecodingError(Reason::wrongType, key);
    const bool fits = value.is_number_unsigned() ? std::in_range<Integer>(value.get<std::uint64_t>())
                                                 : std::in_range<Integer>(value.get<std::int64_t>());
    if (!fits) throw DecodingError(Reason::outOfRange, key);
    return value.get<Integer>();
}

}  // namespace

DecodingError::DecodingError(Reason reason, const std::string& key)
    : std::runtime_error(sentence(reason, key)), m_reason(reason), m_key(key) {}

Json encode(const MacroEvent& event) {
    return {{kId, event.id.text()}, {kKeyCode, event.keyCode}, {kIsDown, event.isDown}, {kDelayMs, event.delayMs}};
}

MacroEvent decodeMacroEvent(const Json& json) {
    if (!json.is_object()) throw DecodingError(Reason::notAnObject, {});
    // In the order of the keys: braces are evaluated from left to right.
    return {uuidAt(json, kId), integerAt<std::uint8_t>(json, kKeyCode), booleanAt(json, kIsDown),
            integerAt<std::int64_t>(json, kDelayMs)};
}

}  // namespace lumo
