// The upload of every key's own colour.
#include <chrono>
#include <string>
#include <utility>

#include "device/LightingReports.h"
#include "device/ParameterBlock.h"
#include "device/PerKeyReports.h"
#include "device/VexaProtocol.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;

void writeColorTables(const Exchange& exchange, const PerKeyColors& keys, const LedColors& colors) {
    // A refused table goes unnoticed: the parameter block alone decides whether the upload succeeded.
    const auto places = keys.colorPlaces();
    (void)exchange.sendReport(colorBankWrite(ColorBank::first, places, colors));
    exchange.pause(50ms);
    (void)exchange.sendReport(colorBankWrite(ColorBank::second, places, colors));
    exchange.pause(50ms);
    (void)exchange.sendReport(ledPlanesWrite(colors));
    exchange.pause(30ms);
}

}  // namespace

void VexaProtocol::setPerKeyRGB(LedColors colors) {
    activeModeId.set(kPerKeyModeId);
    const PerKeyColors& keys = m_perKeyColors();
    m_io.run.post([this, &keys, colors = std::move(colors)] {
        const Exchange exchange(m_io, m_device.get());
        const std::string count = " (" + std::to_string(colors.size()) + " keys)";
        if (!exchange.hasDevice()) return postStatus("Previewed Custom Per-Key RGB Matrix" + count);
        writeColorTables(exchange, keys, colors);
        const auto parameters = exchange.query(kParameterBlockRead, 20ms);
        // Speed and brightness as published by now: a command given while this upload ran may have changed them.
        const LightingSettings settings{kPerKeyHardwareId, speed.snapshot(), brightness.snapshot(), true};
        const bool synchronized = exchange.sendReport(parameterBlockWrite(parameters, settings));
        postStatus(synchronized ? "Custom Per-Key RGB Synchronized" + count : "Per-Key RGB sync failed");
    });
}

}  // namespace lumo
