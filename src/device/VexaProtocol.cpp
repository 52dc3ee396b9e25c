#include "device/VexaProtocol.h"

#include <chrono>
#include <utility>

#include "device/ConfigurationInterface.h"

namespace lumo {
namespace {

using namespace std::chrono_literals;

constexpr std::array<std::uint8_t, 7> kHandshakeQuery{0x06, 0x82, 0x01, 0x00, 0x01, 0x00, 0x06};
constexpr std::uint8_t kHandshakeAnswer = 0x82;
constexpr std::size_t kHandshakeAnswerSize = 8;

}  // namespace

VexaProtocol::VexaProtocol(MainQueue main, IoQueue io, HidManager& manager, std::function<PerKeyColors&()> perKeyColors,
                           Print print)
    : m_main(main), m_io(io), m_manager(manager), m_perKeyColors(std::move(perKeyColors)), m_print(std::move(print)) {
    m_manager.setDeviceMatching({{wiredVID, wiredPID}, {wirelessVID, wirelessPID}});
    m_manager.onMatched([this](const auto& device) { deviceMatched(device); });
    m_manager.onRemoved([this](const auto& device) { deviceRemoved(device); });
    if (m_manager.open()) checkConnectedDevices();
}

void VexaProtocol::checkConnectedDevices() {
    for (const auto& device : m_manager.devices()) deviceMatched(device);
}

void VexaProtocol::deviceMatched(const std::shared_ptr<HidDevice>& device) {
    if (!isConfigurationInterface(device->maxFeatureReportSize())) return;
    m_device.replace(device);
    m_main.run.post([this, device] {
        isConnected.set(true);
        connectionType.set(device->product().value_or("Vexa Lumo 65") + " (Connected)");
        statusMessage.set("Device detected. Performing authentication handshake...");
    });
    m_io.run.post([this] {
        const bool verified = performHandshake();
        m_main.run.post([this, verified] {
            isAuthenticated.set(verified);
            statusMessage.set(verified ? "Connected & Authenticated" : "Connected (Simulation Fallback)");
        });
    });
}

void VexaProtocol::deviceRemoved(const std::shared_ptr<HidDevice>& device) {
    if (m_device.get() != device) return;
    m_device.replace(nullptr);
    m_main.run.post([this] {
        isConnected.set(false);
        isAuthenticated.set(false);
        connectionType.set("Simulated / Disconnected");
        statusMessage.set("Keyboard disconnected. Running in preview mode.");
    });
}

bool VexaProtocol::performHandshake() {
    const Exchange exchange(m_io, m_device.get());
    if (!exchange.hasDevice()) return true;
    if (!exchange.sendReport(kHandshakeQuery)) {
        m_print("[VexaProtocol] Handshake query failed");
        return false;
    }
    exchange.pause(30ms);
    const auto answer = exchange.recvReport();
    if (answer.size() < kHandshakeAnswerSize || answer[1] != kHandshakeAnswer) return false;
    m_print("[VexaProtocol] Handshake verified with hardware!");
    return true;
}

void VexaProtocol::postStatus(std::string text) {
    m_main.run.post([this, text = std::move(text)] { statusMessage.set(text); });
}

}  // namespace lumo
