// The commands of the settings page.
#include <algorithm>
#include <chrono>
#include <string>

#include "device/ParameterBlock.h"
#include "device/ParameterReports.h"
#include "device/VexaProtocol.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;

constexpr std::int64_t kMsOfLevel = 10;
constexpr std::int64_t kHighestLevel = 4;

}  // namespace

void VexaProtocol::setDebounce(std::int64_t ms) {
    const auto level = static_cast<std::uint8_t>(std::clamp<std::int64_t>(ms / kMsOfLevel, 0, kHighestLevel));
    m_io.run.post([this, level] {
        const Exchange exchange(m_io, m_device.get());
        const auto write = debounceWrite(exchange.queryAccepted(kParameterBlockRead, 20ms), level);
        if (!write) return;
        postStatus(exchange.sendReport(*write) ? "Debounce set to " + std::to_string(level * kMsOfLevel) + "ms"
                                               : "Debounce write failed");
    });
}

void VexaProtocol::factoryReset() {
    postStatus("Device restored to factory defaults.");  // before the I/O queue knows of it: its texts come after
    setLightingMode(4, 2, 4, kDefaultColorBytes);
    setDebounce(10);
}

}  // namespace lumo
