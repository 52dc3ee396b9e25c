# The program as a bundle: its description, its icon, and the artwork where the program looks for it there.
set(lumo_bundle ${CMAKE_CURRENT_LIST_DIR})
cmake_path(SET lumo_bundle_artwork NORMALIZE ${lumo_bundle}/../../vexa_lumo_macos/assets)
set_target_properties(vexa-lumo-65 PROPERTIES
    MACOSX_BUNDLE ON
    MACOSX_BUNDLE_INFO_PLIST ${lumo_bundle}/Info.plist.in
    MACOSX_BUNDLE_BUNDLE_NAME "Vexa Lumo 65"
    MACOSX_BUNDLE_GUI_IDENTIFIER com.vexalumo.lumo65
    MACOSX_BUNDLE_ICON_FILE vexa-lumo-65.icns
    MACOSX_BUNDLE_SHORT_VERSION_STRING ${PROJECT_VERSION}
    MACOSX_BUNDLE_BUNDLE_VERSION ${PROJECT_VERSION}
)

function(lumo_bundle_resource file folder)
    target_sources(vexa-lumo-65 PRIVATE ${file})
    set_source_files_properties(${file} PROPERTIES MACOSX_PACKAGE_LOCATION ${folder})
endfunction()

lumo_bundle_resource(${lumo_bundle}/vexa-lumo-65.icns Resources)
file(GLOB_RECURSE lumo_bundle_pictures CONFIGURE_DEPENDS ${lumo_bundle_artwork}/*.png)
foreach(picture ${lumo_bundle_pictures})
    cmake_path(RELATIVE_PATH picture BASE_DIRECTORY ${lumo_bundle_artwork} OUTPUT_VARIABLE place)
    cmake_path(GET place PARENT_PATH folder)
    lumo_bundle_resource(${picture} Resources/${folder})
endforeach()
