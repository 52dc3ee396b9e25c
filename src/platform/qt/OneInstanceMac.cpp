// The system starts an application once, and brings it to the front after that.
#include "platform/qt/OneInstance.h"

namespace lumo::one_instance {

bool claim() { return true; }

void whenStartedAgain(std::function<void()>) {}

void letGo() {}

}  // namespace lumo::one_instance
