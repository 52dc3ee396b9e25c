// Whatever a keyboard answers, the report that is made of it has its length and our bytes in their places, and the
// keyboard's own in all others.
#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <set>
#include <span>
#include <vector>

#include "device/KeyTableReports.h"
#include "device/LightingReports.h"
#include "device/ParameterReports.h"

namespace {

using Bytes = std::span<const std::uint8_t>;
using Places = std::set<std::size_t>;

constexpr std::size_t kLongest = 520;

void expect(bool isSo) {
    if (!isSo) std::abort();
}

/// Outside of those places `written` is `answer`, filled up with zeros.
void expectKept(Bytes written, Bytes answer, const Places& ours) {
    for (std::size_t at = 0; at < written.size(); ++at) {
        if (!ours.contains(at)) expect(written[at] == (at < answer.size() ? answer[at] : 0));
    }
}

void expectMarks(Bytes written, std::size_t at) { expect(written[at] == 0x5A && written[at + 1] == 0xA5); }

void checkSetting(Bytes answer, std::uint8_t level, std::size_t at,
                  std::optional<lumo::Report> (*make)(Bytes answer, std::uint8_t level)) {
    const auto written = make(answer, level);
    expect(written.has_value() == (answer.size() >= 135));
    if (!written) return;
    expect((*written)[at] == level && (*written)[1] == 0x04);
    expectMarks(*written, 134);
    expectKept(*written, answer, {1, at, 134, 135});
}

void checkParameters(Bytes answer, std::uint8_t effect) {
    const lumo::Report written = lumo::parameterBlockWrite(answer, {effect, 3, 2, true});
    Places ours{1, 18, 19, 20, 21, 134, 135};
    if (effect <= 32) ours.insert({66U + 2U * effect, 67U + 2U * effect});
    const bool isFallback = answer.size() < 135;
    const std::vector<std::uint8_t> fallback{0x06, 0, 0, 0, 0x01, 0, 0x80};
    expect(written[1] == 0x04 && written[18] == effect && written[19] == 3 && written[20] == 2 && written[21] == 1);
    expectMarks(written, 134);
    expectKept(written, isFallback ? Bytes(fallback) : answer, ours);
}

void checkColors(Bytes answer) {
    const lumo::Report written = lumo::colorBlockWrite(answer, {87, 8, 212});
    Places ours{1, 6, 7, 8, 491, 492, 514, 515};
    for (std::size_t record = 0; record < 21; ++record) {
        const std::size_t at = 9 + 21 * record;
        ours.insert({at, at + 1, at + 2});
        expect(written[at] == 87 && written[at + 1] == 8 && written[at + 2] == 212);
    }
    expect(written[1] == 0x0A && written[6] == 0 && written[7] == 2 && written[8] == 0);
    expectMarks(written, 491);
    expectMarks(written, 514);
    const std::vector<std::uint8_t> fallback{0x06, 0, 0, 0, 0x01};
    expectKept(written, answer.size() < 516 ? Bytes(fallback) : answer, ours);
}

void checkTable(Bytes answer, std::int64_t place) {
    expect(lumo::isKeyTable(answer) == (answer.size() >= 512 && answer[1] == 0x83));
    if (!lumo::isKeyTable(answer)) return;
    const auto written = lumo::keyTableWith(answer, place, {1, 2, 3, 4});
    const bool isInside = place >= 0 && place < 4096 && 11 + 4 * static_cast<std::size_t>(place) < answer.size();
    expect(written.has_value() == isInside);
    if (!written) return;
    const std::size_t at = 8 + 4 * static_cast<std::size_t>(place);
    expect(written->size() == answer.size());
    for (std::uint8_t i = 0; i < 4; ++i) expect((*written)[at + i] == i + 1);
    expect((*written)[1] == 0x03 && (*written)[6] == 0x00 && (*written)[7] == 0x02);
    expectKept(*written, answer, {1, 6, 7, at, at + 1, at + 2, at + 3});
}

}  // namespace

/// The first byte is the setting, the second the place; the rest is the answer.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size < 2) return 0;
    const Bytes answer(data + 2, std::min(size - 2, kLongest));
    checkSetting(answer, data[0], 10, lumo::debounceWrite);
    checkSetting(answer, data[0], 20, lumo::brightnessWrite);
    checkParameters(answer, data[0]);
    checkColors(answer);
    checkTable(answer, std::int64_t{data[1]} - 64);
    return 0;
}
