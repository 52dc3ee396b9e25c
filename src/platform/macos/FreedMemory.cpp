#include "platform/FreedMemory.h"

namespace lumo {

void giveBackFreedMemory() {}  // the system does

}  // namespace lumo
