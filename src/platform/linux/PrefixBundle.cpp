#include "platform/linux/PrefixBundle.h"

#include <system_error>

#include "foundation/Identity.h"

namespace lumo {

PrefixBundle::PrefixBundle(const std::filesystem::path& executable) {
    const std::filesystem::path folder = executable.parent_path();
    if (folder.filename() != "bin") return;
    const std::filesystem::path directory = folder.parent_path() / "share" / kProgramName;
    std::error_code ignored;
    if (std::filesystem::is_directory(directory, ignored)) m_directory = directory.string();
}

std::optional<std::string> PrefixBundle::pathForResource(std::string_view name) const {
    if (!m_directory || name.empty()) return std::nullopt;
    std::string path = *m_directory + '/' + std::string(name);
    std::error_code ignored;
    if (!std::filesystem::is_regular_file(path, ignored)) return std::nullopt;
    return path;
}

}  // namespace lumo
