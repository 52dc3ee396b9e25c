// The lighting commands of the link: read both configuration blocks, patch them, write them back.
#include <chrono>
#include <string>
#include <utility>

#include "device/LightingReports.h"
#include "device/ParameterBlock.h"
#include "device/VexaProtocol.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;

constexpr Duration kReportPause = 20ms;  // the firmware needs it between two reports
constexpr std::int64_t kBurstModeId = 16;

std::string modeName(std::int64_t modeId, const LightingModeInfo* mode) {
    return mode ? std::string(mode->name) : "Mode " + std::to_string(modeId);
}

bool showsPerKeyColors(std::int64_t modeId, const LightingModeInfo* mode) {
    return modeId == kPerKeyModeId || (modeId == kRotatingStormModeId && mode && mode->isPerKey);
}

/// True when the parameter block took the settings: it alone decides whether the command succeeded.
bool writeBlocks(const Exchange& exchange, const LightingSettings& settings, ColorBytes color) {
    (void)exchange.sendReport(colorBlockWrite(exchange.query(kColorBlockRead, kReportPause), color));
    exchange.pause(kReportPause);
    return exchange.sendReport(parameterBlockWrite(exchange.query(kParameterBlockRead, kReportPause), settings));
}

}  // namespace

void VexaProtocol::setLightingMode(std::int64_t modeId, std::optional<std::int64_t> speedLevel,
                                   std::optional<std::int64_t> brightnessLevel, std::optional<ColorBytes> color) {
    activeModeId.set(modeId);
    speed.set(speedLevel.value_or(speed.get()));
    brightness.set(brightnessLevel.value_or(brightness.get()));
    primaryColor.set(color.value_or(primaryColor.get()));

    const LightingModeInfo* const mode = findLightingMode(modeId);
    if (showsPerKeyColors(modeId, mode)) {
        m_main.run.post([this] { m_perKeyColors().syncToDevice(); });
        return;
    }
    const LightingSettings settings{mode ? mode->hwId : modeId, speed.get(), brightness.get(),
                                    mode && mode->supportsCustomColor};
    m_io.run.post([this, settings, rgb = primaryColor.get(), name = modeName(modeId, mode)] {
        const Exchange exchange(m_io, m_device.get());
        if (!exchange.hasDevice()) return postStatus("Previewing " + name + " (Simulated)");
        postStatus(writeBlocks(exchange, settings, rgb) ? "Applied: " + name : "Hardware command failed");
    });
}

void VexaProtocol::triggerBurstMode(ColorBytes color, std::int64_t speedLevel, std::int64_t brightnessLevel) {
    postStatus("Burst Mode Triggered");  // before the I/O queue knows of it: its text comes after this one
    setLightingMode(kBurstModeId, speedLevel, brightnessLevel, color);
}

}  // namespace lumo
