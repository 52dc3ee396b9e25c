#include "device/Report.h"

#include <algorithm>
#include <cassert>
#include <cstdio>
#include <cstdlib>

namespace lumo {

void reportValueOutOfRange(const char* what, std::int64_t value) {
    std::fprintf(stderr, "[VexaProtocol] %s does not fit a byte: %lld\n", what, static_cast<long long>(value));
    std::abort();
}

ReportPatch& ReportPatch::setAt(std::size_t at, std::span<const std::uint8_t> bytes) {
    assert(at + bytes.size() <= m_report.size());
    std::ranges::copy(bytes, m_report.begin() + static_cast<std::ptrdiff_t>(at));
    return *this;
}

Report paddedReport(std::span<const std::uint8_t> answer) {
    Report report{};
    std::ranges::copy_n(answer.begin(), static_cast<std::ptrdiff_t>(std::min(answer.size(), report.size())),
                        report.begin());
    return report;
}

}  // namespace lumo
