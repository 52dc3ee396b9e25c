# cmake -DFOLDER=src/platform/macos -P checkSources.cmake: the list that builds the macOS layer on a Mac names every
# file of its folder and no other. Only a Mac configures it for real, so it is read here with the commands it uses
# replaced by ones that note their arguments.
cmake_minimum_required(VERSION 3.25)
function(target_sources target kind)
    set_property(GLOBAL PROPERTY lumo_sources "${ARGN}")
endfunction()
function(set_source_files_properties)
    set_property(GLOBAL PROPERTY lumo_properties "${ARGN}")
endfunction()
function(target_link_libraries)
endfunction()

include(${FOLDER}/sources.cmake)

file(GLOB present ${FOLDER}/*.cpp ${FOLDER}/*.mm)
get_property(listed GLOBAL PROPERTY lumo_sources)
list(SORT present)
list(SORT listed)
if(NOT listed STREQUAL present)
    message(FATAL_ERROR "sources.cmake names\n  ${listed}\nand the folder has\n  ${present}")
endif()
file(GLOB objective_c ${FOLDER}/*.mm)
list(SORT objective_c)
get_property(properties GLOBAL PROPERTY lumo_properties)
if(NOT properties STREQUAL "${objective_c};PROPERTIES;COMPILE_OPTIONS;-fobjc-arc")
    message(FATAL_ERROR "every .mm needs -fobjc-arc; there is\n  ${properties}")
endif()
