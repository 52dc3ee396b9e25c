// One feature report of the keyboard, and fields at fixed places in it.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>
#include <utility>

namespace lumo {

/// Every report is this long on the wire, report id byte included (docs/protocol.md, Framing).
inline constexpr std::size_t kReportSize = 520;
inline constexpr std::uint8_t kReportId = 0x06;
/// The two bytes that close a block, in this order.
inline constexpr std::uint8_t kMarker1 = 0x5A;
inline constexpr std::uint8_t kMarker2 = 0xA5;
using Report = std::array<std::uint8_t, kReportSize>;

/// Ends the process with a line on the console: only a bug in the caller can hand out such a value.
[[noreturn]] void reportValueOutOfRange(const char* what, std::int64_t value);

/// A level or number as its byte. Outside 0 to 255 is fatal.
[[nodiscard]] constexpr std::uint8_t asByte(const char* what, std::int64_t value) {
    if (value < 0 || value > 0xFF) reportValueOutOfRange(what, value);
    return static_cast<std::uint8_t>(value);
}

/// `count` bytes at `offset`, counted from the report id byte as on the wire.
template <std::size_t offset, std::size_t count = 1>
struct Field {
    static constexpr std::size_t kFirst = offset;
    static constexpr std::size_t kEnd = offset + count;
};

/// True when no two fields share a byte and all lie inside `size` bytes.
template <std::size_t size, typename... Fields>
consteval bool disjointWithin() {
    constexpr std::array<std::pair<std::size_t, std::size_t>, sizeof...(Fields)> places{
        std::pair{Fields::kFirst, Fields::kEnd}...};
    for (std::size_t i = 0; i < places.size(); ++i) {
        if (places[i].second > size) return false;
        for (std::size_t k = 0; k < i; ++k) {
            if (places[i].first < places[k].second && places[k].first < places[i].second) return false;
        }
    }
    return true;
}

/// A report that starts from known bytes (often what the keyboard answered) and is patched field by field:
/// bytes nobody sets go out as they came.
class ReportPatch final {
public:
    explicit ReportPatch(const Report& start) : m_report(start) {}

    template <typename F, typename... Bytes>
    ReportPatch& set(Bytes... bytes) {
        static_assert(sizeof...(Bytes) == F::kEnd - F::kFirst, "a field takes exactly its bytes");
        static_assert(F::kEnd <= kReportSize);
        std::size_t at = F::kFirst;
        ((m_report[at++] = static_cast<std::uint8_t>(bytes)), ...);
        return *this;
    }

    /// For tables inside a report. `at + bytes.size()` must not pass the report's end.
    ReportPatch& setAt(std::size_t at, std::span<const std::uint8_t> bytes);

    [[nodiscard]] const Report& report() const { return m_report; }

private:
    Report m_report;
};

/// A zeroed report that begins with the given bytes.
template <typename... Bytes>
[[nodiscard]] constexpr Report reportBeginningWith(Bytes... bytes) {
    static_assert(sizeof...(Bytes) <= kReportSize);
    return Report{static_cast<std::uint8_t>(bytes)...};
}

/// An answer as a whole report: padded with zeros where it is shorter.
[[nodiscard]] Report paddedReport(std::span<const std::uint8_t> answer);

}  // namespace lumo
