find_package(PkgConfig REQUIRED)
# Global: every program that links lumo_platform, whichever its folder, links libudev with it.
pkg_check_modules(LUMO_UDEV REQUIRED IMPORTED_TARGET GLOBAL libudev)
target_sources(lumo_platform PRIVATE
    platform/linux/FeatureReportSize.cpp
    platform/linux/FreedMemory.cpp
    platform/linux/HidrawDevice.cpp
    platform/linux/HidrawInterface.cpp
    platform/linux/IoThread.cpp
    platform/linux/LinuxHidManager.cpp
    platform/linux/NativeBundle.cpp
    platform/linux/NativeHid.cpp
    platform/linux/NativePrivacy.cpp
    platform/linux/PrefixBundle.cpp
    platform/linux/ReportDescriptor.cpp
    platform/linux/Sysfs.cpp
)
target_link_libraries(lumo_platform PRIVATE PkgConfig::LUMO_UDEV)
