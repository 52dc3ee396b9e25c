// What the process does with memory that it needs no more.
#pragma once

namespace lumo {

/// Called first of all: from now on large pieces go back to the system when they are let go. Elsewhere they may stay
/// with the process, and the pictures of a start are many.
void giveBackFreedMemory();

}  // namespace lumo
