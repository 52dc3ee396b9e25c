# The three ways of compiling for macOS on Linux: the compiler is a true Apple target, the C library's headers are the
# host's, Apple's own declarations are replaced by ours in ../include.
set(lumo_apple_declarations ${CMAKE_CURRENT_LIST_DIR}/../include)
set(lumo_apple_targets x86_64 arm64 libcxx)

set(lumo_apple_triple_x86_64 x86_64-apple-macos12)
set(lumo_apple_headers_x86_64
    /usr/include/c++/12 /usr/include/x86_64-linux-gnu/c++/12 /usr/include/x86_64-linux-gnu /usr/include)
set(lumo_apple_packages_x86_64 "g++-12")

set(lumo_apple_triple_arm64 arm64-apple-macos12)
set(lumo_apple_headers_arm64
    /usr/aarch64-linux-gnu/include/c++/12 /usr/aarch64-linux-gnu/include/c++/12/aarch64-linux-gnu
    /usr/aarch64-linux-gnu/include)
set(lumo_apple_packages_arm64 "libstdc++-12-dev-arm64-cross, libc6-dev-arm64-cross")

# Apple's library is libc++, and libstdc++ hides what it lacks.
set(lumo_apple_triple_libcxx x86_64-apple-macos12)
set(lumo_apple_headers_libcxx
    /usr/lib/llvm-14/include/c++/v1 ${CMAKE_CURRENT_LIST_DIR}/../include-libcxx
    /usr/include/x86_64-linux-gnu /usr/include)
set(lumo_apple_packages_libcxx "libc++-14-dev, libc++abi-14-dev")

set(lumo_apple_defaults
    -std=c++20 -nostdlibinc -fPIC -D_GNU_SOURCE
    -U__nonnull  # clang predefines it for Apple's targets, and the host's C library gives it another meaning
    -D__NO_CTYPE  # keeps the host's C library from defining what libc++ defines
    -DQT_NO_VERSION_TAGGING
    -I${PROJECT_SOURCE_DIR}/src)
set(lumo_apple_warnings
    -Wall -Wextra -Wconversion -Wshadow -Wnon-virtual-dtor -Woverloaded-virtual -Wunguarded-availability
    -Wundeclared-selector -Wnonnull -Wnullability -Wnullability-completeness -Wnullable-to-nonnull-conversion -Werror)

# <out>: the compiler and the flags that are the same for every file of a target.
function(lumo_apple_command out target)
    set(command ${LUMO_APPLE_CLANG} -target ${lumo_apple_triple_${target}} ${lumo_apple_defaults})
    foreach(folder ${lumo_apple_declarations} ${lumo_apple_headers_${target}} ${lumo_apple_qt_headers})
        list(APPEND command -isystem ${folder})
    endforeach()
    set(${out} ${command} ${lumo_apple_warnings} PARENT_SCOPE)
endfunction()

# <out>: what the language of one file needs beside that.
function(lumo_apple_language out source)
    set(flags)
    if(source MATCHES "\\.mm$")
        set(flags -fobjc-arc)
    endif()
    set(${out} ${flags} PARENT_SCOPE)
endfunction()

# <out>: the targets whose headers are here. Those left out are named.
function(lumo_apple_available_targets out)
    set(available)
    foreach(target ${lumo_apple_targets})
        set(missing)
        foreach(folder ${lumo_apple_headers_${target}})
            if(NOT IS_DIRECTORY ${folder})
                list(APPEND missing ${folder})
            endif()
        endforeach()
        if(missing)
            message(NOTICE "macOS layer: NOT compiled for ${target}: no ${missing} (${lumo_apple_packages_${target}}).")
        else()
            list(APPEND available ${target})
        endif()
    endforeach()
    set(${out} ${available} PARENT_SCOPE)
endfunction()
