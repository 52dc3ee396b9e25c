// lumo-usbip-keyboard: the keyboard as a USB device of this machine's kernel (needs vhci_hcd, and root to attach).
#include "daemon/Daemon.h"
#include "usbip/UsbipKeyboard.h"

int main(int argc, char** argv) {
    using namespace lumo::vk;
    return runDaemon(argc, argv, [](const DaemonOptions& options, LoggedFirmware& firmware) {
        return std::make_unique<UsbipKeyboard>(options, firmware);
    });
}
