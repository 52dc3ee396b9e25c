# Each file in ../mistakes holds one mistake, and says in a comment which diagnostic it earns on which line. The
# compiler itself compares (-verify): a test passes when exactly these diagnostics come and no other.
if(NOT "x86_64" IN_LIST available)
    return()
endif()
lumo_apple_command(command x86_64)
file(GLOB mistakes CONFIGURE_DEPENDS ${CMAKE_CURRENT_SOURCE_DIR}/../mistakes/*)
foreach(source ${mistakes})
    get_filename_component(name ${source} NAME_WE)
    lumo_apple_language(language ${source})
    set(kind -fsyntax-only)
    if(name MATCHES "^leaked")  # only the analyser sees that
        set(kind --analyze -Xanalyzer -analyzer-werror -o /dev/null)
    endif()
    add_test(NAME macos.refused.${name} COMMAND ${command} ${language} ${kind} -Xclang -verify ${source})
endforeach()
