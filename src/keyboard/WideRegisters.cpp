#include "keyboard/WideRegisters.h"

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace lumo::pixels {

#ifdef __x86_64__
namespace {

__attribute__((target("avx"))) void zeroUpperHalves() { _mm256_zeroupper(); }

}  // namespace

void clearWideRegisters() {
    if (__builtin_cpu_supports("avx")) zeroUpperHalves();
}
#else
void clearWideRegisters() {}
#endif

}  // namespace lumo::pixels
