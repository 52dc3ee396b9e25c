// A quirk of painting with Qt on x86.
#pragma once

namespace lumo::pixels {

/// Before loops over pixels. Painting with Qt 6.4 can leave the upper halves of the processor's vector registers in
/// use; as long as they are, code that knows the lower halves only takes twice as long on some processors (seen on Zen
/// 4).
void clearWideRegisters();

}  // namespace lumo::pixels
