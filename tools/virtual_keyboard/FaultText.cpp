// The one-line form in which a laboratory asks the keyboard to misbehave.
#include <charconv>
#include <sstream>
#include <string>

#include "FirmwareModel.h"

namespace lumo::vk {
namespace {

template <typename Number>
std::optional<Number> parseNumber(std::string_view text, int base) {
    Number value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value, base);
    if (text.empty() || error != std::errc{} || end != text.data() + text.size()) return std::nullopt;
    return value;
}

std::optional<FaultKind> parseKind(std::string_view word, Direction direction) {
    if (word == "refuse") return FaultKind::refuse;
    if (word == "hang") return FaultKind::hang;
    if (word == "vanish") return FaultKind::vanish;
    if (direction == Direction::set) return std::nullopt;  // only a get has an answer to spoil
    if (word == "short") return FaultKind::answerShort;
    if (word == "long") return FaultKind::answerLong;
    if (word == "wrong") return FaultKind::answerWrong;
    if (word == "nothing") return FaultKind::answerNothing;
    return std::nullopt;
}

bool parseExtras(std::istringstream& words, Fault& fault) {
    std::string word;
    while (words >> word) {
        if (word == "once") {
            fault.times = 1;
        } else if (word == "skip" && words >> word) {
            const auto skip = parseNumber<unsigned>(word, 10);
            if (!skip) return false;
            fault.skip = *skip;
        } else {
            return false;
        }
    }
    return true;
}

}  // namespace

std::optional<Fault> parseFault(std::string_view text) {
    std::istringstream words{std::string(text)};
    std::string direction;
    std::string command;
    std::string kind;
    if (!(words >> direction >> command >> kind)) return std::nullopt;
    if (direction != "set" && direction != "get") return std::nullopt;

    Fault fault;
    fault.direction = direction == "set" ? Direction::set : Direction::get;
    if (command != "any") {
        fault.command = parseNumber<std::uint8_t>(command, 16);
        if (!fault.command) return std::nullopt;
    }
    const auto parsedKind = parseKind(kind, fault.direction);
    if (!parsedKind) return std::nullopt;
    fault.kind = *parsedKind;

    if (fault.kind == FaultKind::answerShort || fault.kind == FaultKind::answerLong) {
        std::string length;
        if (!(words >> length)) return std::nullopt;
        const auto bytes = parseNumber<std::size_t>(length, 10);
        if (!bytes || *bytes > 4096) return std::nullopt;
        fault.length = *bytes;
    }
    if (!parseExtras(words, fault)) return std::nullopt;
    return fault;
}

}  // namespace lumo::vk
