#include "ReportLog.h"

#include <cerrno>
#include <nlohmann/json.hpp>
#include <system_error>

#include "Hex.h"

namespace lumo::vk {

ReportLog::ReportLog(const std::string& path) : m_file(path, std::ios::trunc) {
    if (!m_file) throw std::system_error(errno, std::generic_category(), path);
}

void ReportLog::write(Direction direction, bool ok, std::span<const std::uint8_t> bytes) {
    if (!m_file.is_open()) return;
    const auto since = std::chrono::steady_clock::now() - m_start;
    nlohmann::ordered_json line;
    line["us"] = std::chrono::duration_cast<std::chrono::microseconds>(since).count();
    line["dir"] = direction == Direction::set ? "set" : "get";
    line["ok"] = ok;
    line["len"] = bytes.size();
    line["hex"] = hexOf(bytes, " ");
    m_file << line.dump() << std::endl;  // flushed: a reader follows the file while the keyboard is in use
}

}  // namespace lumo::vk
