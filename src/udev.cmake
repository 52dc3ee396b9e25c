# What the udev rule asks which interface a device is; it lies where udev looks for such programs.
add_library(lumo_udev STATIC udev/InterfaceProperty.cpp)
target_link_libraries(lumo_udev PUBLIC lumo_platform PRIVATE lumo_options)

add_executable(vexa-lumo-65-interface udev/main.cpp)
target_link_libraries(vexa-lumo-65-interface PRIVATE lumo_udev lumo_options)
add_dependencies(vexa-lumo-65 vexa-lumo-65-interface)  # whoever has the program can install the rule
