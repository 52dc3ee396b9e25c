# The keyboard before a real kernel: as /dev/uhid devices and as a USB device through vhci_hcd.
add_library(lumo_kernel_keyboards STATIC
    daemon/ControlLoop.cpp
    daemon/Daemon.cpp
    daemon/DaemonOptions.cpp
    daemon/LoggedFirmware.cpp
    uhid/UhidInterface.cpp
    uhid/UhidKeyboard.cpp
    usbip/UsbDescriptors.cpp
    usbip/UsbDevice.cpp
    usbip/UsbipConnection.cpp
    usbip/UsbipKeyboard.cpp
    usbip/UsbipWire.cpp
    usbip/VhciPort.cpp
)
target_link_libraries(lumo_kernel_keyboards PUBLIC lumo_virtual_keyboard PRIVATE lumo_options)

add_executable(lumo-uhid-keyboard uhid/main.cpp)
target_link_libraries(lumo-uhid-keyboard PRIVATE lumo_kernel_keyboards lumo_options)

add_executable(lumo-usbip-keyboard usbip/main.cpp)
target_link_libraries(lumo-usbip-keyboard PRIVATE lumo_kernel_keyboards lumo_options)
