#include "usbip/UsbDevice.h"

#include "daemon/ReportDescriptors.h"

namespace lumo::vk {
namespace {

using Answer = FirmwareModel::Answer;

enum StandardRequest : std::uint8_t {
    getStatus = 0,
    clearFeature = 1,
    setFeature = 3,
    getDescriptor = 6,
    getConfiguration = 8,
    setConfiguration = 9,
    getInterface = 10,
    setInterface = 11,
};
enum HidRequest : std::uint8_t { getReport = 1, setReportRequest = 9, setIdle = 10, setProtocol = 11 };

constexpr std::uint8_t kTypeMask = 0x60;
constexpr std::uint8_t kClassType = 0x20;
constexpr std::uint16_t kOutputReport = 2;
constexpr std::uint16_t kFeatureReport = 3;

Answer accepted(Bytes bytes = {}) { return {Outcome::answered, std::move(bytes)}; }
Answer stalled() { return {Outcome::refused, {}}; }

bool isConfigurationReport(const UsbSetup& setup) {
    return setup.index == kConfigurationInterface && setup.value == (kFeatureReport << 8 | kConfigurationReportId);
}

}  // namespace

Answer UsbDevice::control(const UsbSetup& setup, std::span<const std::uint8_t> data) {
    if (setup.request == setConfiguration && (setup.requestType & kTypeMask) == 0) {
        m_configuration = static_cast<std::uint8_t>(setup.value);
    }
    Answer answer = (setup.requestType & kTypeMask) == kClassType ? hidClass(setup, data) : standard(setup);
    if (answer.bytes.size() > setup.length) answer.bytes.resize(setup.length);
    return answer;
}

Answer UsbDevice::standard(const UsbSetup& setup) const {
    if ((setup.requestType & kTypeMask) != 0) return stalled();
    switch (setup.request) {
        case getDescriptor: {
            auto descriptor = m_descriptors.find(setup.value, setup.index);
            return descriptor ? accepted(*std::move(descriptor)) : stalled();
        }
        case getStatus:
            return accepted({0, 0});
        case getConfiguration:
            return accepted({m_configuration});
        case getInterface:
            return accepted({0});
        case clearFeature:
        case setFeature:  // remote wake-up is asked for and never used
        case setConfiguration:
        case setInterface:
            return accepted();
        default:
            return stalled();
    }
}

Answer UsbDevice::hidClass(const UsbSetup& setup, std::span<const std::uint8_t> data) {
    switch (setup.request) {
        case setIdle:
        case setProtocol:
            return accepted();
        case setReportRequest:
            return setReport(setup, data);
        case getReport:
            return isConfigurationReport(setup) ? m_firmware.get(setup.length) : m_firmware.refuseGet();
        default:
            return stalled();
    }
}

Answer UsbDevice::setReport(const UsbSetup& setup, std::span<const std::uint8_t> data) {
    if (setup.index == kTypingInterface && setup.value >> 8 == kOutputReport) return accepted();  // the LEDs
    return {isConfigurationReport(setup) ? m_firmware.set(data) : m_firmware.refuseSet(data), {}};
}

}  // namespace lumo::vk
