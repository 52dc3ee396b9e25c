#include "device/KeyTableReports.h"

#include <algorithm>
#include <iterator>

namespace lumo {
namespace {

constexpr std::size_t kCommandAt = 1;
constexpr std::size_t kLengthAt = 6;
constexpr std::ptrdiff_t kFirstCode = 8;
constexpr std::ptrdiff_t kCodeSize = 4;
constexpr std::size_t kShortestTable = 512;
constexpr std::uint8_t kReadCommand = 0x83;
constexpr std::uint8_t kWriteCommand = 0x03;
constexpr std::array<std::uint8_t, 2> kWriteLength{0x00, 0x02};  // 512, low byte first

}  // namespace

bool isKeyTable(std::span<const std::uint8_t> answer) {
    return answer.size() >= kShortestTable && answer[kCommandAt] == kReadCommand;
}

std::optional<std::vector<std::uint8_t>> keyTableWith(std::span<const std::uint8_t> table, std::int64_t matrixPos,
                                                      const KeyCode& code) {
    const std::int64_t places = (std::ssize(table) - kFirstCode) / kCodeSize;
    if (matrixPos < 0 || matrixPos >= places) return std::nullopt;
    std::vector<std::uint8_t> changed(table.begin(), table.end());
    std::ranges::copy(code, changed.begin() + kFirstCode + matrixPos * kCodeSize);
    changed[kCommandAt] = kWriteCommand;
    std::ranges::copy(kWriteLength, changed.begin() + kLengthAt);
    return changed;
}

std::vector<std::uint8_t> keyTableWrite(std::vector<std::uint8_t> table) {
    constexpr std::array<std::uint8_t, kFirstCode> kHeader{kReportId, kWriteCommand, 0x00, 0x00,
                                                           0x01,      0x00,          0x00, 0x02};
    table.resize(std::max(table.size(), kReportSize), 0);
    std::ranges::copy(kHeader, table.begin());
    return table;
}

}  // namespace lumo
