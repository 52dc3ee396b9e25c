// Owns one open file descriptor.
#pragma once

#include <unistd.h>

#include <utility>

namespace lumo {

/// Closes on the thread that destroys it. A hidraw descriptor is therefore destroyed on the I/O queue only.
class FileDescriptor final {
public:
    FileDescriptor() = default;
    explicit FileDescriptor(int fd) : m_fd(fd) {}
    FileDescriptor(const FileDescriptor&) = delete;
    FileDescriptor& operator=(const FileDescriptor&) = delete;
    FileDescriptor(FileDescriptor&& other) noexcept : m_fd(std::exchange(other.m_fd, kNone)) {}
    FileDescriptor& operator=(FileDescriptor&& other) noexcept {
        std::swap(m_fd, other.m_fd);
        return *this;
    }
    ~FileDescriptor() {
        if (isOpen()) ::close(m_fd);  // not again after EINTR: Linux has let go of it all the same
    }

    [[nodiscard]] bool isOpen() const { return m_fd >= 0; }
    [[nodiscard]] int get() const { return m_fd; }
    /// From now on the caller owns it.
    [[nodiscard]] int release() { return std::exchange(m_fd, kNone); }

private:
    static constexpr int kNone = -1;
    int m_fd = kNone;
};

}  // namespace lumo
