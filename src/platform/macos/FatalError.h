// The end of the process, for what only a bug can bring about.
#pragma once

#include <cstdio>
#include <cstdlib>

namespace lumo {

/// Any thread. The line is written to the standard error stream without any allocation.
[[noreturn]] inline void fatalError(const char* line) {
    std::fputs("vexa-lumo-65: ", stderr);
    std::fputs(line, stderr);
    std::fputs("\n", stderr);
    std::abort();
}

}  // namespace lumo
