#include "InProcessHidManager.h"

#include <algorithm>
#include <chrono>

namespace lumo::vk {
namespace {

using namespace std::chrono_literals;

constexpr Duration kSystemGivesUpAfter = 5s;  // as Linux does with a device that never answers
constexpr HidMatch kWired{0x258A, 0x010C};

}  // namespace

InterfaceFacts configurationInterface() { return {kWired, std::int64_t{kReportSize}, "Vexa Lumo 65"}; }

InterfaceFacts typingInterface() { return {kWired, std::nullopt, "Vexa Lumo 65"}; }

bool InProcessDevice::survives(Outcome outcome) {
    if (outcome == Outcome::hung) m_manager.ioQueue().run.pause(kSystemGivesUpAfter);
    if (outcome == Outcome::vanished) {
        setGone();  // nothing answers from now on, though the system tells of it only later
        m_manager.vanish();
    }
    return outcome == Outcome::answered;
}

bool InProcessDevice::setFeatureReport(std::uint8_t, std::span<const std::uint8_t> bytes) {
    if (m_isGone) return false;
    const bool accepted = survives(m_manager.firmware().setFeature(bytes));
    m_manager.log().write(Direction::set, accepted, bytes);
    return accepted;
}

std::optional<std::size_t> InProcessDevice::getFeatureReport(std::uint8_t, std::span<std::uint8_t> buffer) {
    if (m_isGone) return std::nullopt;
    const auto answer = m_manager.firmware().getFeature(buffer.size());
    const bool answered = survives(answer.outcome);
    m_manager.log().write(Direction::get, answered, answer.bytes);
    if (!answered) return std::nullopt;
    std::ranges::copy(answer.bytes, buffer.begin());
    return answer.bytes.size();
}

bool InProcessHidManager::open() {
    m_isOpen = true;  // even refused, the system goes on to tell of later arrivals
    return m_opens;
}

bool InProcessHidManager::matches(const InProcessDevice& device) const {
    return std::ranges::find(m_matches, device.id()) != m_matches.end();
}

std::vector<std::shared_ptr<HidDevice>> InProcessHidManager::devices() {
    std::vector<std::shared_ptr<HidDevice>> present;
    std::ranges::copy_if(m_devices, std::back_inserter(present),
                         [this](const auto& device) { return matches(*device); });
    return present;
}

std::shared_ptr<InProcessDevice> InProcessHidManager::plug(InterfaceFacts facts) {
    auto device = std::make_shared<InProcessDevice>(*this, std::move(facts));
    m_devices.push_back(device);
    if (m_isOpen && matches(*device)) {
        m_main.run.post([this, device] {
            if (m_matched) m_matched(device);
        });
    }
    return device;
}

void InProcessHidManager::plugKeyboard() {
    plug(typingInterface());
    plug(configurationInterface());
}

void InProcessHidManager::unplug(const std::shared_ptr<InProcessDevice>& device) {
    if (std::erase(m_devices, device) == 0) return;
    device->setGone();
    m_main.run.post([this, device] {
        if (m_removed) m_removed(device);
    });
}

void InProcessHidManager::unplugAll() {
    const auto all = m_devices;
    for (const auto& device : all) unplug(device);
}

void InProcessHidManager::vanish() {
    m_main.run.post([this] { unplugAll(); });
}

}  // namespace lumo::vk
