#include "FirmwareModel.h"

#include <algorithm>

namespace lumo::vk {
namespace {

constexpr std::size_t kCommandAt = 1;
constexpr std::size_t kBankSelectorAt = 2;
constexpr std::uint8_t kReadBit = 0x80;  // a read command is its write command with the top bit set

enum Command : std::uint8_t {
    writeKeyTable = 0x03,
    writeParameters = 0x04,
    writeLedPlanes = 0x06,
    writeColourBank = 0x09,
    writeColours = 0x0A,
    handshake = 0x82,
    readKeyTable = 0x83,
    readParameters = 0x84,
    readColours = 0x8A,
};

Block filledBlock(std::array<std::uint8_t, 8> header, unsigned step) {
    Block block{};
    for (std::size_t i = 0; i < block.size(); ++i) block[i] = static_cast<std::uint8_t>(1 + (i * step) % 251);
    std::ranges::copy(header, block.begin());
    return block;
}

std::uint8_t commandOf(std::span<const std::uint8_t> report) {
    return report.size() > kCommandAt ? report[kCommandAt] : std::uint8_t{0};
}

void storeBlock(Block& block, const Bytes& report) {
    std::ranges::copy(std::span(report).first(std::min(report.size(), block.size())), block.begin());
    block[kCommandAt] = static_cast<std::uint8_t>(block[kCommandAt] | kReadBit);
}

}  // namespace

FirmwareModel::FirmwareModel()
    : m_parameters(filledBlock({0x06, 0x84, 0x00, 0x00, 0x01, 0x00, 0x80, 0x00}, 7)),
      m_colours(filledBlock({0x06, 0x8A, 0x00, 0x00, 0x01, 0x00, 0xE3, 0x01}, 11)),
      m_keyTable(filledBlock({0x06, 0x83, 0x00, 0x00, 0x01, 0x00, 0xF8, 0x01}, 13)) {}

Outcome FirmwareModel::setFeature(std::span<const std::uint8_t> bytes) {
    ++m_transfers;
    const Bytes report(bytes.begin(), bytes.end());
    if (m_recordsWrites) m_writes.push_back(report);
    if (const Fault* fault = faultFor(Direction::set, commandOf(report))) {
        switch (fault->kind) {
            case FaultKind::hang:
                return Outcome::hung;
            case FaultKind::vanish:
                return Outcome::vanished;
            default:
                return Outcome::refused;
        }
    }
    store(report);
    return Outcome::answered;
}

void FirmwareModel::store(const Bytes& report) {
    const std::uint8_t command = commandOf(report);
    if (command & kReadBit) m_pendingRead = command;
    switch (command) {
        case writeKeyTable:
            storeBlock(m_keyTable, report);
            break;
        case writeParameters:
            storeBlock(m_parameters, report);
            break;
        case writeColours:
            storeBlock(m_colours, report);
            break;
        case writeLedPlanes:
            m_ledPlanes = report;
            break;
        case writeColourBank:
            if (report.size() > kBankSelectorAt) m_banks[report[kBankSelectorAt]] = report;
            break;
        default:
            break;
    }
}

Bytes FirmwareModel::answerTo(std::uint8_t readCommand) const {
    const auto whole = [](const Block& block) { return Bytes(block.begin(), block.end()); };
    switch (readCommand) {
        case readKeyTable:
            return whole(m_keyTable);
        case readParameters:
            return whole(m_parameters);
        case readColours:
            return whole(m_colours);
        default:
            break;
    }
    Bytes answer(kReportSize, 0);
    answer[0] = 0x06;
    answer[kCommandAt] = readCommand;
    return answer;
}

FirmwareModel::Answer FirmwareModel::getFeature(std::size_t length) {
    ++m_transfers;
    Answer answer{Outcome::answered, answerTo(m_pendingRead)};
    if (const Fault* fault = faultFor(Direction::get, m_pendingRead)) {
        switch (fault->kind) {
            case FaultKind::refuse:
                return {Outcome::refused, {}};
            case FaultKind::hang:
                return {Outcome::hung, {}};
            case FaultKind::vanish:
                return {Outcome::vanished, {}};
            case FaultKind::answerNothing:
                answer.bytes.clear();
                break;
            case FaultKind::answerWrong:
                answer.bytes[kCommandAt] ^= 0x7F;
                break;
            case FaultKind::answerShort:
            case FaultKind::answerLong:
                answer.bytes.resize(fault->length, 0xEE);
                break;
        }
    }
    if (answer.bytes.size() > length) answer.bytes.resize(length);
    return answer;
}

void FirmwareModel::addFault(const Fault& fault) { m_faults.push_back({fault, 0}); }

void FirmwareModel::clearFaults() { m_faults.clear(); }

const Fault* FirmwareModel::faultFor(Direction direction, std::uint8_t command) {
    for (ActiveFault& active : m_faults) {
        const Fault& fault = active.fault;
        if (fault.direction != direction || (fault.command && *fault.command != command)) continue;
        const unsigned nth = active.matched++;
        if (nth >= fault.skip && (!fault.times || nth - fault.skip < *fault.times)) return &fault;
    }
    return nullptr;
}

const Bytes& FirmwareModel::colourBank(std::uint8_t selector) const {
    static const Bytes none;
    const auto found = m_banks.find(selector);
    return found == m_banks.end() ? none : found->second;
}

Bytes FirmwareModel::lastWrite(std::uint8_t command) const {
    const auto isThat = [command](const Bytes& report) { return commandOf(report) == command; };
    const auto found = std::find_if(m_writes.rbegin(), m_writes.rend(), isThat);
    return found == m_writes.rend() ? Bytes{} : *found;
}

}  // namespace lumo::vk
