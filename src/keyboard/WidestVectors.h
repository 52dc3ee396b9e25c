// Loops in the widest vectors that the processor has.
#pragma once

// Before a function: it is compiled for processors with AVX2 as well, with all that it calls, and the linker takes the
// one that suits when the program starts. Only where that can be had, and not below a sanitizer, which is not ready yet
// when the linker asks.
#if defined(__GNUC__) && !defined(__clang__) && defined(__x86_64__) && defined(__ELF__) && defined(__OPTIMIZE__) && \
    !defined(__SANITIZE_ADDRESS__) && !defined(__SANITIZE_THREAD__)
#define LUMO_WIDEST [[gnu::target_clones("avx2", "default"), gnu::flatten]]
#else
#define LUMO_WIDEST
#endif
