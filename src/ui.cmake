# What Qt draws: the shared controls, the pages and the window's content.
add_library(lumo_ui STATIC
    app/AppDelegate.cpp
    app/AssetManager.cpp
    app/BrandButton.cpp
    app/ConnectionDot.cpp
    app/HeaderBar.cpp
    app/ImageFile.cpp
    app/LoadedImage.cpp
    app/MainView.cpp
    app/NaviPillButton.cpp
    app/NavigationBar.cpp
    app/PageArea.cpp
    app/PageVeil.cpp
    app/ProfileBar.cpp
    app/Program.cpp
    app/StatusBar.cpp
    app/StatusChip.cpp
    audio/Equalizer.cpp
    audio/EqualizerBars.cpp
    audio/EqualizerCard.cpp
    audio/MicrophoneNotice.cpp
    audio/MusicLevelsCard.cpp
    audio/MusicModeList.cpp
    audio/MusicModeTile.cpp
    audio/MusicVisualizerView.cpp
    audio/StreamToggle.cpp
    controls/Accessible.cpp
    controls/Appearance.cpp
    controls/BrandMark.cpp
    controls/ButtonRows.cpp
    controls/Card.cpp
    controls/CardRows.cpp
    controls/ColorWheel.cpp
    controls/ColorWheelInput.cpp
    controls/Columns.cpp
    controls/DropShadow.cpp
    controls/Fade.cpp
    controls/FocusGroup.cpp
    controls/FocusRing.cpp
    controls/HeadedCard.cpp
    controls/IconButton.cpp
    controls/InfoBox.cpp
    controls/LeavingFocus.cpp
    controls/Lettering.cpp
    controls/ListRow.cpp
    controls/LowStripes.cpp
    controls/Motion.cpp
    controls/PacedColor.cpp
    controls/Panel.cpp
    controls/Picture.cpp
    controls/PlainText.cpp
    controls/Popup.cpp
    controls/PopupMenu.cpp
    controls/PushButton.cpp
    controls/PushControl.cpp
    controls/ScrollBar.cpp
    controls/ScrollBox.cpp
    controls/ScrollHint.cpp
    controls/Section.cpp
    controls/Slider.cpp
    controls/SliderInput.cpp
    controls/SliderLooks.cpp
    controls/SliderSection.cpp
    controls/SoftShadow.cpp
    controls/StateDot.cpp
    controls/Symbol.cpp
    controls/SymbolCache.cpp
    controls/TextBlock.cpp
    controls/TextLine.cpp
    controls/TextScale.cpp
    controls/TextShape.cpp
    controls/Theme.cpp
    controls/WheelDisc.cpp
    keyboard/AccessibleKeyboard.cpp
    keyboard/CapLoops.cpp
    keyboard/ColorSwatch.cpp
    keyboard/DeviceGrid.cpp
    keyboard/DrawnCap.cpp
    keyboard/EffectDot.cpp
    keyboard/EffectList.cpp
    keyboard/EffectRow.cpp
    keyboard/GlowField.cpp
    keyboard/GlowPass.cpp
    keyboard/GlowWeights.cpp
    keyboard/KeyLegend.cpp
    keyboard/KeyMiniature.cpp
    keyboard/KeyMotion.cpp
    keyboard/KeyRing.cpp
    keyboard/KeyShade.cpp
    keyboard/KeyboardCanvas.cpp
    keyboard/KeyboardCase.cpp
    keyboard/KeyboardPicture.cpp
    keyboard/KeyboardView.cpp
    keyboard/KeycapRecipe.cpp
    keyboard/KeycapSprite.cpp
    keyboard/LegendMask.cpp
    keyboard/LevelSections.cpp
    keyboard/LevelsCard.cpp
    keyboard/LightLoops.cpp
    keyboard/LightingControlView.cpp
    keyboard/PaletteCard.cpp
    keyboard/PictureLayers.cpp
    keyboard/WideRegisters.cpp
    macro/AccessibleSteps.cpp
    macro/BytecodeCard.cpp
    macro/BytecodeView.cpp
    macro/LoopModesCard.cpp
    macro/LoopRadio.cpp
    macro/MacroEditorView.cpp
    macro/ProfileList.cpp
    macro/ProfilesCard.cpp
    macro/StepList.cpp
    macro/StepRow.cpp
    macro/TimelineCard.cpp
    macro/TimelineHeading.cpp
    platform/qt/FrameClock.cpp
    platform/qt/NativePlatform.cpp
    platform/qt/QtRunLoop.cpp
    platform/qt/OneInstance$<IF:$<BOOL:${APPLE}>,Mac,Xdg>.cpp
    platform/qt/WindowSystem$<IF:$<BOOL:${APPLE}>,Mac,Xdg>.cpp
    platform/qt/WindowUpdates.cpp
    remap/ActionGrid.cpp
    remap/ActionPage.cpp
    remap/CategoryList.cpp
    remap/KeyRemapView.cpp
    remap/RemapCard.cpp
    remap/TargetPanel.cpp
    system/DeviceSheet.cpp
    system/HardwareTuningCard.cpp
    system/PermissionExplainerRow.cpp
    system/PermissionRow.cpp
    system/PermissionToast.cpp
    system/PermissionsCard.cpp
    system/PromptCard.cpp
    system/RecheckPopup.cpp
    system/SettingsView.cpp
    system/SpecRow.cpp
    system/StatusBadge.cpp
    system/TccNotice.cpp
    system/ToastText.cpp
    system/WelcomePopup.cpp
)
set_target_properties(lumo_ui PROPERTIES AUTOMOC ON)
qt_add_resources(lumo_ui symbols PREFIX /symbols BASE controls/symbols FILES
    controls/symbols/arrow.clockwise.svg
    controls/symbols/arrow.down.circle.fill.svg
    controls/symbols/arrow.down.doc.fill.svg
    controls/symbols/arrow.triangle.2.circlepath.svg
    controls/symbols/arrow.up.circle.svg
    controls/symbols/circle.grid.2x2.svg
    controls/symbols/cpu.svg
    controls/symbols/exclamationmark.shield.fill.svg
    controls/symbols/exclamationmark.triangle.fill.svg
    controls/symbols/gearshape.svg
    controls/symbols/hexagon.fill.svg
    controls/symbols/keyboard.fill.svg
    controls/symbols/keyboard.svg
    controls/symbols/mic.fill.svg
    controls/symbols/mic.slash.fill.svg
    controls/symbols/paintbrush.fill.svg
    controls/symbols/plus.svg
    controls/symbols/rainbow.svg
    controls/symbols/sun.max.svg
    controls/symbols/trash.svg
    controls/symbols/waveform.svg
    controls/symbols/xmark.svg
)
# -O2 of g++ 12 makes no vectors of loops whose length it does not know; without any, a frame would last too long.
set_source_files_properties(keyboard/CapLoops.cpp keyboard/LightLoops.cpp PROPERTIES
    COMPILE_OPTIONS -O3 SKIP_PRECOMPILE_HEADERS ON)
# What nearly every file sees, read once. clang-tidy builds without it, so that every file still names what it needs.
target_precompile_headers(lumo_ui PRIVATE <QAbstractButton> <QAccessible> <QPainter> <chrono> <functional> <memory>
    <optional> <string> <vector>)
target_include_directories(lumo_ui PUBLIC ${CMAKE_CURRENT_SOURCE_DIR})
target_link_libraries(lumo_ui PUBLIC lumo_core lumo_platform Qt6::Widgets PRIVATE lumo_options Qt6::Svg)
if(NOT APPLE)
    find_package(Qt6 6.4 REQUIRED COMPONENTS DBus)
    target_sources(lumo_ui PRIVATE platform/qt/MotionPreference.cpp platform/qt/RunningInstance.cpp
        platform/qt/SessionBus.cpp platform/qt/XdgDesktop.cpp platform/qt/XdgPreferences.cpp)
    target_link_libraries(lumo_ui PRIVATE Qt6::DBus)
endif()

add_executable(vexa-lumo-65 app/main.cpp)
target_link_libraries(vexa-lumo-65 PRIVATE lumo_ui lumo_options)
if(APPLE)
    include(${PROJECT_SOURCE_DIR}/packaging/macos/bundle.cmake)
else()
    install(TARGETS vexa-lumo-65 DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT program)
    install(DIRECTORY ${PROJECT_SOURCE_DIR}/vexa_lumo_macos/assets/ DESTINATION ${CMAKE_INSTALL_DATADIR}/vexa-lumo-65
        COMPONENT artwork PATTERN svg EXCLUDE)
endif()
