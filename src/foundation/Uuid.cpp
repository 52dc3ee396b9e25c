#include "foundation/Uuid.h"

#include <random>

namespace lumo {

Uuid Uuid::random() {
    static std::random_device device;
    std::uniform_int_distribution<unsigned> anyByte(0, 0xFF);
    Uuid uuid;
    for (auto& byte : uuid.bytes) byte = static_cast<std::uint8_t>(anyByte(device));
    uuid.bytes[6] = static_cast<std::uint8_t>((uuid.bytes[6] & 0x0F) | 0x40);  // version 4: random
    uuid.bytes[8] = static_cast<std::uint8_t>((uuid.bytes[8] & 0x3F) | 0x80);  // the standard's variant
    return uuid;
}

}  // namespace lumo
