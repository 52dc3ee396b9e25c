// Quits the whole program while its keyboard hangs for ever in the exchange whose number is given, counted from 0:
// the handshake's two, then the six of a lighting command. It ends with 0 as the program does. Had quitting to wait
// for the keyboard, it would never end.
#include <QApplication>
#include <cstdlib>
#include <semaphore>

#include "app/Program.h"
#include "device/VexaProtocol.h"
#include "platform/qt/NativePlatform.h"
#include "support/FakedPlatform.h"
#include "support/OneDeviceManager.h"

namespace lumo {
namespace {

/// Answers as the keyboard does, until the exchange that never returns.
class HangingDevice final : public HidDevice {
public:
    HangingDevice(MainQueue main, int hangsAt) : m_main(main), m_hangsAt(hangsAt) {}

    std::optional<std::int64_t> maxFeatureReportSize() const override { return 520; }
    std::optional<std::string> product() const override { return "Vexa Lumo 65"; }
    bool setFeatureReport(std::uint8_t, std::span<const std::uint8_t> bytes) override {
        hangWhenItIsTime();
        m_command = bytes[1];
        return true;
    }
    std::optional<std::size_t> getFeatureReport(std::uint8_t, std::span<std::uint8_t> buffer) override {
        hangWhenItIsTime();
        buffer[1] = m_command;
        return buffer.size();
    }

private:
    void hangWhenItIsTime() {
        if (m_exchanges++ != m_hangsAt) return;
        m_main.run.post([] { QCoreApplication::quit(); });  // as the user would, while the report is under way
        for (;;) m_never.acquire();
    }

    MainQueue m_main;
    const int m_hangsAt;
    int m_exchanges = 0;
    std::uint8_t m_command = 0;
    std::binary_semaphore m_never{0};
};

class HangingPlatform final : public test::FakedPlatform {
public:
    explicit HangingPlatform(int hangsAt) : m_hangsAt(hangsAt) {}
    MainQueue mainQueue() override { return m_native.mainQueue(); }
    std::unique_ptr<BlockingExecutor> makeIoQueue(std::string_view label) override {
        return m_native.makeIoQueue(label);
    }
    std::unique_ptr<HidManager> makeHidManager(IoQueue) override {
        return std::make_unique<test::OneDeviceManager>(std::make_shared<HangingDevice>(mainQueue(), m_hangsAt));
    }
    void print(std::string_view) override {}

private:
    NativePlatform m_native;
    const int m_hangsAt;
};

}  // namespace
}  // namespace lumo

int main(int argc, char** argv) {
    if (!qEnvironmentVariableIsSet("DISPLAY")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    lumo::HangingPlatform platform(argc > 1 ? std::atoi(argv[1]) : 0);
    platform.mainQueue().run.postAfter(std::chrono::milliseconds{1},  // once the window has made the link
                                       [] { lumo::VexaProtocol::shared().setLightingMode(5); });
    lumo::runProgram(application, platform);
}
