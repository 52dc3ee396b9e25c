# Every source file with code for macOS. Whoever writes such code adds a line here; macos.list fails until then.
file(GLOB lumo_apple_layer CONFIGURE_DEPENDS
    ${PROJECT_SOURCE_DIR}/src/platform/macos/*.cpp
    ${PROJECT_SOURCE_DIR}/src/platform/macos/*.mm
)
set(lumo_apple_sources
    ${lumo_apple_layer}
    ${PROJECT_SOURCE_DIR}/src/app/HeaderBar.cpp
    ${PROJECT_SOURCE_DIR}/src/controls/ColorWheel.cpp
    ${PROJECT_SOURCE_DIR}/src/controls/Lettering.cpp
    ${PROJECT_SOURCE_DIR}/src/controls/TextScale.cpp
    ${PROJECT_SOURCE_DIR}/src/controls/Theme.cpp
    ${PROJECT_SOURCE_DIR}/src/keyboard/KeyboardCanvas.cpp
    ${PROJECT_SOURCE_DIR}/src/platform/qt/NativePlatform.cpp
    ${PROJECT_SOURCE_DIR}/src/platform/qt/WindowSystemMac.cpp
)
# clang 14's own libc++ has no algorithms of std::ranges. Apple's clang 15 has them, so files that use them are not
# held against the older one.
set(lumo_apple_sources_not_for_libcxx ${PROJECT_SOURCE_DIR}/src/keyboard/KeyboardCanvas.cpp)
