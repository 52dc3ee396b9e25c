// The firmware model with every feature transfer written to the report log.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>

#include "FirmwareModel.h"
#include "ReportLog.h"

namespace lumo::vk {

/// One thread. A transfer is in the log before its caller can answer the host, so that pauses measured
/// between two lines are never shorter than the host made them.
class LoggedFirmware final {
public:
    LoggedFirmware() = default;
    /// Throws std::system_error when the log cannot be created.
    explicit LoggedFirmware(const std::string& logPath) : m_log(logPath) {}

    /// Feature report 6 as it arrived, report id first.
    [[nodiscard]] Outcome set(std::span<const std::uint8_t> bytes);
    /// `length`: what the host asks for at most.
    [[nodiscard]] FirmwareModel::Answer get(std::size_t length);

    /// Feature reports that went to the wrong interface or under the wrong id: refused, and in the log, so that a
    /// program that sends them is found out.
    [[nodiscard]] Outcome refuseSet(std::span<const std::uint8_t> bytes);
    [[nodiscard]] FirmwareModel::Answer refuseGet();

    [[nodiscard]] FirmwareModel& model() { return m_model; }

private:
    FirmwareModel m_model;
    ReportLog m_log;
};

}  // namespace lumo::vk
