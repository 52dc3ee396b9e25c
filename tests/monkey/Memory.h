// What this process holds of memory, and what it has lost.
#pragma once

#include <malloc.h>
#include <unistd.h>

#include <fstream>

#ifdef __SANITIZE_ADDRESS__
#include <sanitizer/lsan_interface.h>
#endif

namespace lumo::test {

/// In bytes, as the system counts them: what lies in memory now, without what the allocator keeps for later.
[[nodiscard]] inline double residentMemory() {
    ::malloc_trim(0);
    std::ifstream file("/proc/self/statm");
    double allPages = 0;
    double residentPages = 0;
    file >> allPages >> residentPages;
    return residentPages * static_cast<double>(::sysconf(_SC_PAGESIZE));
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
