# What Qt draws: the shared controls, the pages and the window's content.
add_library(lumo_ui STATIC
    app/AppDelegate.cpp
    app/BrandButton.cpp
    app/ConnectionDot.cpp
    app/HeaderBar.cpp
    app/MainView.cpp
    app/Program.cpp
    app/StatusBar.cpp
    controls/Accessible.cpp
    controls/Card.cpp
    controls/Fade.cpp
    controls/Panel.cpp
    controls/PlainText.cpp
    controls/PopupMenu.cpp
    controls/Symbol.cpp
    controls/TextLine.cpp
    controls/Theme.cpp
    keyboard/EffectDot.cpp
    keyboard/EffectList.cpp
    keyboard/EffectRow.cpp
    keyboard/LightingControlView.cpp
    platform/qt/NativePlatform.cpp
    platform/qt/QtRunLoop.cpp
    platform/qt/WindowSystem$<IF:$<BOOL:${APPLE}>,Mac,Xdg>.cpp
)
set_target_properties(lumo_ui PROPERTIES AUTOMOC ON)
qt_add_resources(lumo_ui symbols PREFIX /symbols BASE controls/symbols FILES controls/symbols/hexagon.fill.svg)
target_include_directories(lumo_ui PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(lumo_ui PUBLIC lumo_core lumo_platform Qt6::Widgets PRIVATE lumo_options Qt6::Svg)

add_executable(vexa-lumo-65 app/main.cpp)
target_link_libraries(vexa-lumo-65 PRIVATE lumo_ui lumo_options)
install(TARGETS vexa-lumo-65 DESTINATION ${CMAKE_INSTALL_BINDIR})
