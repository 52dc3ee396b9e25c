// What the keyboard does with feature reports, its registers and its misbehaviours. One model serves the
// in-process keyboard, the /dev/uhid daemon and the USB/IP device.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

namespace lumo::vk {

inline constexpr std::size_t kReportSize = 520;  // report id byte included
using Bytes = std::vector<std::uint8_t>;
using Block = std::array<std::uint8_t, kReportSize>;

/// How an exchange ends on the wire.
enum class Outcome {
    answered,  // a set was accepted, or a get has bytes (an empty answer included)
    refused,   // stall
    hung,      // no reply at all, until the host gives up
    vanished,  // the device leaves the bus now
};

enum class Direction { set, get };

enum class FaultKind { refuse, answerShort, answerLong, answerWrong, answerNothing, hang, vanish };

/// One misbehaviour: applies to exchanges of that direction whose command byte matches.
struct Fault {
    FaultKind kind = FaultKind::refuse;
    Direction direction = Direction::set;
    std::optional<std::uint8_t> command;  // byte 1 of the set; for a get, byte 1 of the read it answers; absent: any
    std::size_t length = 0;               // bytes of a short or long answer
    std::optional<unsigned> times;        // absent: for ever
    unsigned skip = 0;                    // matching exchanges that pass unharmed first
};

/// Reads "set 0a refuse", "get 84 short 7", "get any nothing once", "set 04 hang", "get 82 vanish skip 1 once" …
/// Grammar: DIRECTION COMMAND KIND [LENGTH] [skip N] [once]; COMMAND is two hexadecimal digits or "any"; LENGTH
/// belongs to "short" and "long". Absent when the text is none of these.
[[nodiscard]] std::optional<Fault> parseFault(std::string_view text);

/// Not thread-safe; its owner calls it from one thread at a time.
class FirmwareModel final {
public:
    /// Registers start with bytes that are all different from zero and from each other's neighbours, so that
    /// a byte lost on the way is seen.
    FirmwareModel();

    struct Answer {
        Outcome outcome = Outcome::answered;
        Bytes bytes;
    };

    /// A SET_REPORT of feature report 6 with the bytes as they arrived, report id first.
    [[nodiscard]] Outcome setFeature(std::span<const std::uint8_t> bytes);

    /// A GET_REPORT of feature report 6; `length` is what the host asks for.
    [[nodiscard]] Answer getFeature(std::size_t length);

    void addFault(const Fault& fault);
    void clearFaults();

    /// Registers, whole reports as a read would return them (byte 1 is the read command).
    [[nodiscard]] Block& parameterBlock() { return m_parameters; }
    [[nodiscard]] Block& colourBlock() { return m_colours; }
    [[nodiscard]] Block& keyTable() { return m_keyTable; }
    /// What was last written to a colour bank (selector 0xBC or 0xC0) and to the LED planes; empty before.
    [[nodiscard]] const Bytes& colourBank(std::uint8_t selector) const;
    [[nodiscard]] const Bytes& ledPlanes() const { return m_ledPlanes; }

    /// From now on. Nobody looks at what a demo's keyboard was sent, which may run for days.
    void recordWrites() { m_recordsWrites = true; }
    /// Every set that arrived while they are recorded, refused ones included, oldest first.
    [[nodiscard]] const std::vector<Bytes>& writes() const { return m_writes; }
    /// The newest set with that command byte; empty when there was none.
    [[nodiscard]] Bytes lastWrite(std::uint8_t command) const;
    void forgetWrites() { m_writes.clear(); }

    /// How many sets and gets have arrived, whatever came of them.
    [[nodiscard]] std::size_t transfers() const { return m_transfers; }

private:
    struct ActiveFault {
        Fault fault;
        unsigned matched = 0;
    };
    [[nodiscard]] const Fault* faultFor(Direction direction, std::uint8_t command);
    void store(const Bytes& report);
    [[nodiscard]] Bytes answerTo(std::uint8_t readCommand) const;

    Block m_parameters{};
    Block m_colours{};
    Block m_keyTable{};
    std::map<std::uint8_t, Bytes> m_banks;
    Bytes m_ledPlanes;
    bool m_recordsWrites = false;
    std::vector<Bytes> m_writes;
    std::vector<ActiveFault> m_faults;
    std::uint8_t m_pendingRead = 0;
    std::size_t m_transfers = 0;
};

}  // namespace lumo::vk
