# lumo_platform on macOS; included by platform.cmake only there.
set(lumo_macos ${CMAKE_CURRENT_LIST_DIR})
set(lumo_objective_c
    ${lumo_macos}/Activation.mm
    ${lumo_macos}/MainMenu.mm
    ${lumo_macos}/NativeBundle.mm
    ${lumo_macos}/NativeDesktop.mm
    ${lumo_macos}/NativePreferences.mm
    ${lumo_macos}/NativePrivacy.mm
    ${lumo_macos}/ReducedMotion.mm
    ${lumo_macos}/SystemSymbol.mm
    ${lumo_macos}/WindowChrome.mm
)
target_sources(lumo_platform PRIVATE
    ${lumo_macos}/EventAccess.cpp
    ${lumo_macos}/FreedMemory.cpp
    ${lumo_macos}/IoKitHidDevice.cpp
    ${lumo_macos}/IoKitHidManager.cpp
    ${lumo_macos}/IoThread.cpp
    ${lumo_macos}/NativeHid.cpp
    ${lumo_objective_c}
)
set_source_files_properties(${lumo_objective_c} PROPERTIES COMPILE_OPTIONS -fobjc-arc)
target_link_libraries(lumo_platform PUBLIC
    "-framework AVFoundation" "-framework AppKit" "-framework ApplicationServices" "-framework CoreFoundation"
    "-framework CoreGraphics" "-framework Foundation" "-framework IOKit" objc)
