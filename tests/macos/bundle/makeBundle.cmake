# Configures, builds and installs the bundle's project from nothing.
file(REMOVE_RECURSE ${MADE} ${INSTALLED})
execute_process(COMMAND_ERROR_IS_FATAL ANY COMMAND ${CMAKE_COMMAND}
    -S ${CMAKE_CURRENT_LIST_DIR}/project -B ${MADE} -G Ninja
    -DCMAKE_SYSTEM_NAME=Darwin -DCMAKE_CXX_COMPILER=${CLANG} -DCMAKE_CXX_COMPILER_TARGET=x86_64-apple-macos12
    -DCMAKE_CXX_FLAGS=-Wno-stdlibcxx-not-found -DCMAKE_TRY_COMPILE_TARGET_TYPE=STATIC_LIBRARY
    -DCMAKE_OSX_DEPLOYMENT_TARGET=${OLDEST} -DLUMO_VERSION=${VERSION} -DLUMO_ROOT=${ROOT} -DQt6_VERSION=6.5)
execute_process(COMMAND_ERROR_IS_FATAL ANY COMMAND ${CMAKE_COMMAND} --build ${MADE})
# Twice: what was installed before gives way.
execute_process(COMMAND_ERROR_IS_FATAL ANY COMMAND ${CMAKE_COMMAND} --install ${MADE} --prefix ${INSTALLED})
execute_process(COMMAND_ERROR_IS_FATAL ANY COMMAND ${CMAKE_COMMAND} --install ${MADE} --prefix ${INSTALLED})
