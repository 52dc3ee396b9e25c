// This system with a keyboard and a privacy centre inside the process.
#pragma once

#include "FirmwareModel.h"
#include "ReportLog.h"
#include "demo/DemoDesktop.h"
#include "demo/MemoryPreferences.h"
#include "demo/PrivacyCenter.h"
#include "platform/qt/NativePlatform.h"

namespace lumo::vk {

class InProcessHidManager;

/// Its one HID manager has the keyboard on its cable plugged in from the start.
class DemoPlatform final : public Platform {
public:
    explicit DemoPlatform(ReportLog log) : m_log(std::move(log)) {}

    /// As if the program had been launched before. Called before anything asks for the preferences.
    void setLaunchedBefore();

    MainQueue mainQueue() override { return m_native.mainQueue(); }
    std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view label) override {
        return m_native.makeIoQueue(label);
    }
    std::unique_ptr<HidManager> makeHidManager(IoQueue io) override;
    Bundle& bundle() override { return m_native.bundle(); }
    Desktop& desktop() override { return m_desktop; }
    Preferences& preferences() override { return m_preferences; }
    Privacy& privacy() override { return m_privacy; }
    void print(std::string_view line) override { m_native.print(line); }

    /// Belongs to the I/O queue once the manager is made.
    [[nodiscard]] FirmwareModel& firmware() { return m_firmware; }

    /// Once the manager is made, and as long as it.
    [[nodiscard]] InProcessHidManager& hid() { return *m_hid; }

private:
    NativePlatform m_native;
    FirmwareModel m_firmware;
    ReportLog m_log;
    PrivacyCenter m_privacy{m_native.mainQueue().run};
    DemoDesktop m_desktop{m_native.desktop(), m_privacy};
    MemoryPreferences m_preferences;
    InProcessHidManager* m_hid = nullptr;
};

}  // namespace lumo::vk
