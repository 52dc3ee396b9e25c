# One interface target that carries our warnings and sanitizers; every target of ours links it.
add_library(lumo_options INTERFACE)
target_compile_options(lumo_options INTERFACE
    -Wall -Wextra -Wconversion -Wshadow -Wpedantic -Wnon-virtual-dtor -Woverloaded-virtual
    $<$<BOOL:${LUMO_STRICT}>:-Werror>
    # Colours come out the same to the last bit on every processor.
    -ffp-contract=off)
# A debug build stops at an index, an optional or a pointer that is not there, where libstdc++ can tell.
target_compile_definitions(lumo_options INTERFACE $<$<CONFIG:Debug>:_GLIBCXX_ASSERTIONS>)
if(LUMO_SANITIZE)
    target_compile_options(lumo_options INTERFACE -fsanitize=${LUMO_SANITIZE} -fno-omit-frame-pointer)
    target_compile_options(lumo_options INTERFACE -fno-sanitize-recover=all)
    target_link_options(lumo_options INTERFACE -fsanitize=${LUMO_SANITIZE})
endif()
