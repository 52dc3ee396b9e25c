// One JSON line per transfer: {"us": …, "dir": "set"|"get", "ok": …, "len": …, "hex": "06 82 …"}
#pragma once

#include <chrono>
#include <fstream>
#include <span>
#include <string>

#include "FirmwareModel.h"

namespace lumo::vk {

/// Written by whoever answers the transfers, from one thread at a time; each line is flushed.
class ReportLog final {
public:
    ReportLog() = default;  // keeps nothing
    /// Throws std::system_error when the file cannot be created.
    explicit ReportLog(const std::string& path);

    /// `ok` is what the host learns: accepted or refused; `bytes` what went over the wire.
    void write(Direction direction, bool ok, std::span<const std::uint8_t> bytes);

private:
    std::ofstream m_file;
    std::chrono::steady_clock::time_point m_start = std::chrono::steady_clock::now();
};

}  // namespace lumo::vk
