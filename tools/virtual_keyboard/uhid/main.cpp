// lumo-uhid-keyboard: the keyboard as a HID device of this machine's kernel (needs /dev/uhid).
#include "daemon/Daemon.h"
#include "uhid/UhidKeyboard.h"

int main(int argc, char** argv) {
    using namespace lumo::vk;
    return runDaemon(argc, argv, [](const DaemonOptions& options, LoggedFirmware& firmware) {
        return std::make_unique<UhidKeyboard>(options, firmware);
    });
}
