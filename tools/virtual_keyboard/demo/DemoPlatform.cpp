#include "demo/DemoPlatform.h"

#include "InProcessHidManager.h"
#include "system/PermissionManager.h"

namespace lumo::vk {

void DemoPlatform::setLaunchedBefore() { m_preferences.setBool(true, PermissionManager::kHasLaunchedKey); }

std::unique_ptr<HidManager> DemoPlatform::makeHidManager(IoQueue io) {
    auto manager = std::make_unique<InProcessHidManager>(mainQueue(), io, m_firmware, m_log);
    manager->plugKeyboard();
    m_hid = manager.get();
    return manager;
}

}  // namespace lumo::vk
