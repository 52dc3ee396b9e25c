# Where the files of a Linux desktop go, below the prefix.
set(lumo_linux ${CMAKE_CURRENT_LIST_DIR})
set(lumo_doc ${CMAKE_INSTALL_DATADIR}/doc)

# udev looks for rules and for the programs they name below /usr/lib, whatever the architecture.
install(TARGETS vexa-lumo-65-interface DESTINATION lib/udev COMPONENT udev)
install(FILES ${lumo_linux}/70-vexa-lumo-65.rules DESTINATION lib/udev/rules.d COMPONENT udev)

install(FILES ${lumo_linux}/com.vexalumo.lumo65.desktop DESTINATION ${CMAKE_INSTALL_DATADIR}/applications
    COMPONENT program)
install(FILES ${lumo_linux}/com.vexalumo.lumo65.metainfo.xml DESTINATION ${CMAKE_INSTALL_DATADIR}/metainfo
    COMPONENT program)

set(lumo_icons ${CMAKE_INSTALL_DATADIR}/icons/hicolor)
foreach(size 16 32 48 64 128 256 512)
    install(FILES ${lumo_linux}/icons/${size}.png DESTINATION ${lumo_icons}/${size}x${size}/apps
        COMPONENT program RENAME com.vexalumo.lumo65.png)
endforeach()
install(FILES ${PROJECT_SOURCE_DIR}/vexa_lumo_macos/assets/svg/appicon.svg DESTINATION ${lumo_icons}/scalable/apps
    COMPONENT program RENAME com.vexalumo.lumo65.svg)

# Manual pages and change logs are kept compressed; without a name and a time in them they come out the same each time.
function(lumo_install_compressed file name destination component)
    set(compressed ${CMAKE_CURRENT_BINARY_DIR}/documents/${component}/${name}.gz)
    add_custom_command(OUTPUT ${compressed} DEPENDS ${file} VERBATIM
        COMMAND ${CMAKE_COMMAND} -E make_directory ${CMAKE_CURRENT_BINARY_DIR}/documents/${component}
        COMMAND sh -c "gzip -9n <\"$1\" >\"$2\"" compress ${file} ${compressed})
    add_custom_target(lumo_${component}_${name} ALL DEPENDS ${compressed})
    install(FILES ${compressed} DESTINATION ${destination} COMPONENT ${component})
endfunction()

function(lumo_install_manual name component)
    lumo_install_compressed(${lumo_linux}/man/${name}.1 ${name}.1 ${CMAKE_INSTALL_MANDIR}/man1 ${component})
endfunction()

lumo_install_manual(vexa-lumo-65 program)
foreach(tool vexa-lumo-65-demo vexa-lumo-65-tour lumo-uhid-keyboard lumo-usbip-keyboard)
    lumo_install_manual(${tool} developer)
    install(TARGETS ${tool} DESTINATION ${CMAKE_INSTALL_BINDIR} COMPONENT developer)
endforeach()
foreach(package IN ITEMS "vexa-lumo-65 program" "vexa-lumo-65-tools developer")
    separate_arguments(package)
    list(POP_FRONT package name component)
    lumo_install_compressed(${lumo_linux}/changelog changelog ${lumo_doc}/${name} ${component})
    install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION ${lumo_doc}/${name} COMPONENT ${component} RENAME copyright)
endforeach()
