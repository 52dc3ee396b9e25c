# cmake -DBUILD=… -DPROBE=… -DPREFIX=… -P installedArtwork.cmake: installs the pictures, lets the probe look for them
# from the folder of programs beside them, and sees that the drawings stay behind.
cmake_minimum_required(VERSION 3.25)
file(REMOVE_RECURSE ${PREFIX})
execute_process(COMMAND ${CMAKE_COMMAND} --install ${BUILD} --prefix ${PREFIX} --component artwork
    OUTPUT_QUIET COMMAND_ERROR_IS_FATAL ANY)
file(COPY ${PROBE} DESTINATION ${PREFIX}/bin)
get_filename_component(name ${PROBE} NAME)
# Where nothing of a working copy is near.
execute_process(COMMAND ${PREFIX}/bin/${name} WORKING_DIRECTORY ${PREFIX}/bin COMMAND_ERROR_IS_FATAL ANY)
file(GLOB_RECURSE drawings ${PREFIX}/*.svg)
if(drawings OR EXISTS ${PREFIX}/share/vexa-lumo-65/svg)
    message(FATAL_ERROR "the drawings are installed, too: ${drawings}")
endif()
