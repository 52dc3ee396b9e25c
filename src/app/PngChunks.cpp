#include "app/PngChunks.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace lumo {
namespace {

constexpr std::string_view kSignature = "\x89PNG\r\n\x1A\n";
constexpr std::size_t kHead = 8;  // length, most significant byte first, and name
constexpr std::size_t kChecksum = 4;
constexpr int kMostPictures = 64;  // each is looked over to its end

std::size_t lengthOf(std::string_view chunk) {
    std::size_t length = 0;
    for (const char byte : chunk.substr(0, 4)) length = length << 8 | static_cast<std::uint8_t>(byte);
    return length;
}

/// From behind the signature to the last chunk, or to the end of the file.
bool areChunksThere(std::string_view rest) {
    while (rest.size() >= kHead) {
        const std::size_t length = lengthOf(rest);
        if (length > rest.size() - kHead) return false;
        if (rest.substr(4, 4) == "IEND") return true;
        rest.remove_prefix(std::min(rest.size(), kHead + length + kChecksum));
    }
    return true;
}

}  // namespace

bool claimsMorePngThanThereIs(std::string_view file) {
    int pictures = 0;
    for (auto at = file.find(kSignature); at != std::string_view::npos; at = file.find(kSignature, at + 1)) {
        if (++pictures > kMostPictures || !areChunksThere(file.substr(at + kSignature.size()))) return true;
    }
    return false;
}

}  // namespace lumo
