// The system's own symbol images, as pixels that any toolkit can take over.
#pragma once

#include <cstddef>
#include <string>

namespace lumo {

/// Cleared pixels of 32 bits, premultiplied, alpha in the highest byte of each little-endian word.
struct SymbolPixels {
    unsigned char* bytes = nullptr;
    std::size_t width = 0;
    std::size_t height = 0;
    std::size_t bytesPerLine = 0;
};

/// Main thread. Centred and as large as fits, in black. False when the system has no symbol of that name; the pixels
/// are then as they were.
[[nodiscard]] bool drawSystemSymbol(const std::string& name, const SymbolPixels& target);

}  // namespace lumo
