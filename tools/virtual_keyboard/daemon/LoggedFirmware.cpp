#include "daemon/LoggedFirmware.h"

namespace lumo::vk {

Outcome LoggedFirmware::set(std::span<const std::uint8_t> bytes) {
    const Outcome outcome = m_model.setFeature(bytes);
    m_log.write(Direction::set, outcome == Outcome::answered, bytes);
    return outcome;
}

FirmwareModel::Answer LoggedFirmware::get(std::size_t length) {
    FirmwareModel::Answer answer = m_model.getFeature(length);
    m_log.write(Direction::get, answer.outcome == Outcome::answered, answer.bytes);
    return answer;
}

Outcome LoggedFirmware::refuseSet(std::span<const std::uint8_t> bytes) {
    m_log.write(Direction::set, false, bytes);
    return Outcome::refused;
}

FirmwareModel::Answer LoggedFirmware::refuseGet() {
    m_log.write(Direction::get, false, {});
    return {Outcome::refused, {}};
}

}  // namespace lumo::vk
