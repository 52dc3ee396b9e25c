// Any list of steps becomes a macro image.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <span>
#include <vector>

#include "device/VexaProtocol.h"

namespace {

constexpr std::size_t kStepSize = 10;  // key code, direction, delay as it lies in memory

lumo::MacroEvent stepFrom(std::span<const std::uint8_t> bytes) {
    lumo::MacroEvent step{{}, bytes[0], (bytes[1] & 1) != 0, 0};
    std::memcpy(&step.delayMs, &bytes[2], sizeof step.delayMs);
    return step;
}

void expect(bool isSo) {
    if (!isSo) std::abort();
}

/// Where the record of that step, which begins at `at`, ends.
std::size_t checkRecord(const lumo::MacroImage& image, std::size_t at, const lumo::MacroEvent& step) {
    const bool isLong = step.delayMs > 127;
    const std::size_t end = at + (isLong ? 6 : 2);
    expect(end <= image.size());
    expect((image[at] & 0x80) == (step.isDown ? 0x80 : 0));
    expect((image[at] & 0x7F) >= 3);
    expect(image[at + 1] == step.keyCode);
    if (isLong) expect(image[at + 2] == 0 && image[at + 3] == 3);
    return end;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::vector<lumo::MacroEvent> steps;
    for (std::size_t at = 0; at + kStepSize <= size; at += kStepSize) steps.push_back(stepFrom({data + at, kStepSize}));
    const lumo::MacroImage image = lumo::VexaProtocol::compileMacro(steps);
    static_assert(sizeof image == 128);
    expect(image[0] == 0 && image[1] == 1);
    std::size_t at = 2;
    for (const lumo::MacroEvent& step : steps) {
        if (at > 123) break;
        at = checkRecord(image, at, step);
    }
    for (; at < image.size(); ++at) expect(image[at] == 0);
    return 0;
}
