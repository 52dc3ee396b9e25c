// What this process holds of memory, and what it has lost.
#pragma once

#include <malloc.h>
#include <unistd.h>

#include <fstream>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace lumo::test {

/// In bytes, as the system counts them: what lies in memory now and is nobody else's, without what the allocator keeps
/// for later. Shared are files, of which more is read the longer a program runs, and the window's picture: Qt keeps
/// that up to twice as large as the window, depending on how large it once was.
[[nodiscard]] inline double privateMemory() {
    ::malloc_trim(0);
    std::ifstream file("/proc/self/statm");
    double allPages = 0;
    double residentPages = 0;
    double sharedPages = 0;
    file >> allPages >> residentPages >> sharedPages;
    return (residentPages - sharedPages) * static_cast<double>(::sysconf(_SC_PAGESIZE));
}

#ifdef __SANITIZE_ADDRESS__
// The sanitizer keeps for a while what was given back, so that figures say nothing; it finds what is lost instead.
inline constexpr bool kMemoryIsMeaningful = false;
[[nodiscard]] inline bool hasLostMemory() { return __lsan_do_recoverable_leak_check() != 0; }
#else
inline constexpr bool kMemoryIsMeaningful = true;
[[nodiscard]] inline bool hasLostMemory() { return false; }
#endif

}  // namespace lumo::test
