#include "platform/FreedMemory.h"

#include <malloc.h>

namespace lumo {

void giveBackFreedMemory() {
    // As at the start; the C library would raise it with each piece that is freed.
    constexpr int kLargePiece = 128 * 1024;
    mallopt(M_MMAP_THRESHOLD, kLargePiece);
    mallopt(M_TRIM_THRESHOLD, kLargePiece);
    mallopt(M_ARENA_MAX, 1);  // what one thread lets go of, the others may take
}

}  // namespace lumo
