#include "foundation/Uuid.h"

#include <random>

namespace lumo {
namespace {

constexpr std::string_view kShape = "xxxxxxxx-xxxx-xxxx-xxxx-xxxxxxxxxxxx";
constexpr std::string_view kDigits = "0123456789ABCDEF";

std::optional<unsigned> digitValue(char digit) {
    const char capital = digit >= 'a' && digit <= 'f' ? static_cast<char>(digit - 'a' + 'A') : digit;
    const auto value = kDigits.find(capital);
    return value == std::string_view::npos ? std::nullopt : std::optional(static_cast<unsigned>(value));
}

}  // namespace

Uuid Uuid::random() {
    static std::random_device device;
    std::uniform_int_distribution<unsigned> anyByte(0, 0xFF);
    Uuid uuid;
    for (auto& byte : uuid.bytes) byte = static_cast<std::uint8_t>(anyByte(device));
    uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x40);  // version 4: random
    uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80);  // the standard's variant
    return uuid;
}

std::string Uuid::text() const {
    std::string text(kShape);
    std::size_t digit = 0;
    for (char& place : text) {
        if (place == '-') continue;
        const unsigned byte = bytes[digit / 2];
        place = kDigits[digit % 2 == 0 ? byte >> 4 : byte & 0x0F];
        ++digit;
    }
    return text;
}

std::optional<Uuid> Uuid::fromText(std::string_view text) {
    if (text.size() != kShape.size()) return std::nullopt;
    Uuid uuid;
    std::size_t digit = 0;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (kShape[at] == '-') {
            if (text[at] != '-') return std::nullopt;
            continue;
        }
        const auto value = digitValue(text[at]);
        if (!value) return std::nullopt;
        auto& byte = uuid.bytes[digit / 2];
        byte = static_cast<std::uint8_t>(byte * 16U + *value);
        ++digit;
    }
    return uuid;
}

}  // namespace lumo
