// Files that the code under test finds by their names; gone with the process that made them.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <span>
#include <string>
#include <string_view>
#include <system_error>

namespace lumo::fuzz {

inline void expect(bool isSo) {
    if (!isSo) std::abort();
}

/// A folder of this process alone, in memory where the system offers that: a file that has to be on a disk before the
/// next input comes makes thirty inputs a second.
class TemporaryFolder final {
public:
    TemporaryFolder() {
        const std::filesystem::path memory = "/dev/shm";
        const bool hasMemory = std::filesystem::is_directory(memory);
        std::string pattern = (hasMemory ? memory : std::filesystem::temp_directory_path()) / "lumo-fuzz-XXXXXX";
        expect(::mkdtemp(pattern.data()) != nullptr);
        m_path = pattern;
    }
    TemporaryFolder(const TemporaryFolder&) = delete;
    TemporaryFolder& operator=(const TemporaryFolder&) = delete;
    ~TemporaryFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(m_path, ignored);
    }

    [[nodiscard]] const std::string& path() const { return m_path; }
    [[nodiscard]] std::string file(const std::string& name) const { return m_path + '/' + name; }

    /// Returns where it lies.
    std::string write(const std::string& name, std::span<const char> bytes) const {
        const std::string path = file(name);
        std::FILE* const out = std::fopen(path.c_str(), "wb");
        expect(out != nullptr);
        expect(std::fwrite(bytes.data(), 1, bytes.size(), out) == bytes.size());
        expect(std::fclose(out) == 0);
        return path;
    }

private:
    std::string m_path;
};

/// The fuzzer's bytes as text.
[[nodiscard]] inline std::string_view textOf(const std::uint8_t* data, std::size_t size) {
    return {reinterpret_cast<const char*>(data), size};
}

}  // namespace lumo::fuzz
