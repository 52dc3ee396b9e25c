// Reads attributes of sysfs as the bytes they are.
// libudev's own reader ends at the first NUL byte and drops every newline at the end, which report descriptors and
// names told by a device do not survive.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace lumo {

/// The file's bytes, at most `limit` of them; absent when it cannot be read. Any thread.
[[nodiscard]] std::optional<std::string> readSysfsFile(const std::string& path, std::size_t limit);

/// The value of the first line `KEY=value` of a `uevent` file; absent when there is no such line.
[[nodiscard]] std::optional<std::string> ueventValue(std::string_view uevent, std::string_view key);

/// Tells two devices apart that followed each other under the same path. Absent when there is nothing at the path.
struct SysfsIdentity {
    std::uint64_t inode = 0;
    std::int64_t bornSeconds = 0;  // zero where the file system keeps no birth time; sysfs reuses no inode soon
    std::uint32_t bornNanoseconds = 0;
    bool operator==(const SysfsIdentity&) const = default;
};
[[nodiscard]] std::optional<SysfsIdentity> sysfsIdentity(const std::string& path);

}  // namespace lumo
