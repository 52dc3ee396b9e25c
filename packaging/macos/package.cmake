# What users of macOS install: a disk image with the bundle in it. Made with cpack, on a Mac only.
if(Qt6_VERSION VERSION_LESS 6.5)
    qt_generate_deploy_app_script(TARGET vexa-lumo-65 FILENAME_VARIABLE lumo_deploy_qt)
else()
    qt_generate_deploy_app_script(TARGET vexa-lumo-65 OUTPUT_SCRIPT lumo_deploy_qt)
endif()
install(TARGETS vexa-lumo-65 BUNDLE DESTINATION .)
install(SCRIPT ${lumo_deploy_qt})
# Last, for Qt's script knows the bundle by its target: in Finder and among the grants in System Settings a program
# goes by the name of its folder.
install(CODE [[
    set(folder "$ENV{DESTDIR}${CMAKE_INSTALL_PREFIX}")
    file(REMOVE_RECURSE "${folder}/Vexa Lumo 65.app")
    file(RENAME "${folder}/vexa-lumo-65.app" "${folder}/Vexa Lumo 65.app")
]])

set(CPACK_GENERATOR DragNDrop)
set(CPACK_PACKAGE_FILE_NAME vexa-lumo-65-${PROJECT_VERSION})
set(CPACK_DMG_VOLUME_NAME "Vexa Lumo 65")
include(CPack)
