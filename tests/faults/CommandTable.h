// Every command as the transfers it is made of, and what its protocol says of each that goes wrong.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "FirmwareModel.h"
#include "app/SharedObjects.h"

namespace lumo::test {

/// One transfer. `endsWith` absent: whatever comes of it, the exchange goes on. Otherwise a bad one ends the exchange
/// with that text, an empty one without a word.
struct TransferPlan {
    vk::Direction direction = vk::Direction::set;
    std::uint8_t command = 0;  // byte 1 of the set; of a get, byte 1 of the set before it
    int pauseMs = 0;           // from its end to the next transfer
    std::optional<std::string_view> endsWith = std::nullopt;
    std::size_t leastLength = 0;   // of a get: a shorter answer is a bad one
    bool mustNameCommand = false;  // of a get: so is one whose byte 1 is another
};

/// What runs as one task of the I/O queue.
struct ExchangePlan {
    std::vector<TransferPlan> transfers;
    std::string done;      // published at its good end; empty: nothing
    std::string previews;  // published without a keyboard; empty: nothing
};

struct Command {
    std::string name;
    std::function<void(SharedObjects& objects)> act;  // main thread
    std::vector<std::string> atOnce;                  // published before anything is sent
    std::vector<ExchangePlan> exchanges;
    /// True when the objects publish what this command leaves behind, whether or not the keyboard took it.
    std::function<bool(SharedObjects& objects)> isPublished;
};

/// The handshake, which plugging a keyboard in sets off.
[[nodiscard]] const ExchangePlan& handshakePlan();

/// All others. Each is meant for a program that has just connected.
[[nodiscard]] const std::vector<Command>& commandTable();

[[nodiscard]] std::size_t transferCount(const Command& command);

}  // namespace lumo::test
