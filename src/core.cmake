add_library(lumo_core STATIC
    app/AssetPaths.cpp
    app/SharedObjects.cpp
    device/Exchange.cpp
    device/KeyTableCommands.cpp
    device/KeyTableReports.cpp
    device/LightingCommands.cpp
    device/LightingReports.cpp
    device/MacroCompiler.cpp
    device/PerKeyCommands.cpp
    device/PerKeyReports.cpp
    device/Report.cpp
    device/VexaProtocol.cpp
    foundation/Color.cpp
    foundation/FrameDeadlines.cpp
    foundation/Observable.cpp
    foundation/SerialQueue.cpp
    foundation/Uuid.cpp
    keyboard/KeyNavigation.cpp
    keyboard/KeyboardActions.cpp
    keyboard/KeyboardLayout.cpp
    keyboard/KeyboardModel.cpp
    keyboard/LightingActions.cpp
    keyboard/LightingEngine.cpp
    keyboard/SelectionText.cpp
    macro/BytecodeText.cpp
    macro/MacroActions.cpp
    macro/MacroItem.cpp
    remap/FactoryCode.cpp
    remap/RemapActions.cpp
    remap/RemapCatalog.cpp
    remap/TargetText.cpp
    system/PermissionManager.cpp
)
target_include_directories(lumo_core PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(lumo_core PUBLIC Threads::Threads PRIVATE lumo_options)
