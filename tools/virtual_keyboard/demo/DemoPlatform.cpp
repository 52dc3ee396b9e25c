#include "demo/DemoPlatform.h"

#include "InProcessHidManager.h"

namespace lumo::vk {

std::unique_ptr<HidManager> DemoPlatform::makeHidManager(IoQueue io) {
    auto manager = std::make_unique<InProcessHidManager>(mainQueue(), io, m_firmware, m_log);
    manager->plugKeyboard();
    return manager;
}

}  // namespace lumo::vk
