#include "platform/linux/Sysfs.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <algorithm>
#include <cerrno>

#include "platform/linux/FileDescriptor.h"

namespace lumo {

std::optional<std::string> readSysfsFile(const std::string& path, std::size_t limit) {
    const FileDescriptor file(::open(path.c_str(), O_RDONLY | O_CLOEXEC));
    if (!file.isOpen()) return std::nullopt;
    std::string bytes(limit, '\0');
    std::size_t filled = 0;
    while (filled < limit) {
        const ssize_t count = ::read(file.get(), bytes.data() + filled, limit - filled);
        if (count < 0 && errno == EINTR) continue;
        if (count < 0) return std::nullopt;
        if (count == 0) break;
        filled += static_cast<std::size_t>(count);
    }
    bytes.resize(filled);
    return bytes;
}

std::optional<std::string> ueventValue(std::string_view uevent, std::string_view key) {
    while (!uevent.empty()) {
        const std::string_view line = uevent.substr(0, uevent.find('\n'));
        if (line.size() > key.size() && line.starts_with(key) && line[key.size()] == '=')
            return std::string(line.substr(key.size() + 1));
        uevent.remove_prefix(std::min(uevent.size(), line.size() + 1));
    }
    return std::nullopt;
}

std::optional<SysfsIdentity> sysfsIdentity(const std::string& path) {
    struct statx found {};
    if (::statx(AT_FDCWD, path.c_str(), 0, STATX_INO | STATX_BTIME, &found) != 0) return std::nullopt;
    return SysfsIdentity{found.stx_ino, found.stx_btime.tv_sec, found.stx_btime.tv_nsec};
}

}  // namespace lumo
