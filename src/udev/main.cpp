// Asked by the udev rule which interface of the keyboard a hidraw device is. Runs as root before the node is handed
// out, so it does nothing but read one file and print one line.
#include <cstdio>

#include "udev/InterfaceProperty.h"

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fputs("Usage: vexa-lumo-65-interface /sys/…/hidrawN\n", stderr);
        return 2;
    }
    return std::puts(lumo::interfaceProperty(argv[1]).c_str()) < 0 ? 1 : 0;
}
