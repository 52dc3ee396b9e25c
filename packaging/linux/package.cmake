# What users of Debian install, and what developers do: two packages. cmake --build … --target package makes them.
set(CPACK_GENERATOR DEB)
set(CPACK_PACKAGE_VERSION ${PROJECT_VERSION})
set(CPACK_PACKAGE_CONTACT "The Vexa Lumo 65 authors <authors@vexa-lumo-65.invalid>")
set(CPACK_PACKAGING_INSTALL_PREFIX /usr)
set(CPACK_STRIP_FILES ON)
set(CPACK_INSTALL_DEFAULT_DIRECTORY_PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE
    WORLD_READ WORLD_EXECUTE)

set(CPACK_DEB_COMPONENT_INSTALL ON)
set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS ON)
set(CPACK_DEBIAN_PACKAGE_CONTROL_STRICT_PERMISSION ON)

set(CPACK_COMPONENTS_ALL program artwork udev developer)
foreach(component program artwork udev)
    string(TOUPPER ${component} upper)
    set(CPACK_COMPONENT_${upper}_GROUP program)
endforeach()
set(CPACK_COMPONENT_DEVELOPER_GROUP developer)

set(CPACK_DEBIAN_PROGRAM_PACKAGE_NAME vexa-lumo-65)
set(CPACK_DEBIAN_PROGRAM_PACKAGE_SECTION utils)
set(CPACK_DEBIAN_PROGRAM_DESCRIPTION
"Sets the lighting effects, the colours of single keys, the key assignment and
the debounce of a Vexa Lumo 65, over its USB cable or its 2.4 GHz receiver.
Without a keyboard everything works as a preview.

Whoever sits at the computer may configure the keyboard; no program gets to
read what is typed.")
# Its letters and the one emoji among them; on X11 it runs without the platform plugin for Wayland.
set(CPACK_DEBIAN_PROGRAM_PACKAGE_DEPENDS "fonts-inter, fonts-noto-color-emoji")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_RECOMMENDS "qt6-wayland, udev")
set(CPACK_DEBIAN_PROGRAM_PACKAGE_CONTROL_EXTRA
    "${CMAKE_CURRENT_LIST_DIR}/postinst;${CMAKE_CURRENT_LIST_DIR}/postrm")

set(CPACK_DEBIAN_DEVELOPER_PACKAGE_NAME vexa-lumo-65-tools)
set(CPACK_DEBIAN_DEVELOPER_PACKAGE_SECTION devel)
set(CPACK_DEBIAN_DEVELOPER_PACKAGE_DEPENDS "vexa-lumo-65 (= ${PROJECT_VERSION})")
set(CPACK_DEBIAN_DEVELOPER_DESCRIPTION
"Virtual keyboards, demo and tour, for developers of vexa-lumo-65: the program's
own window on a keyboard that needs no hardware, the tour that drives it and
takes pictures, and two keyboards for the kernel, one as a HID device, one as a
USB device.")

include(CPack)
cpack_add_component_group(program)
cpack_add_component_group(developer)
