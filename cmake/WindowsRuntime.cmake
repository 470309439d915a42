# SPDX-License-Identifier: MIT
# The compiler's runtime libraries beside the programs, in the build and in the package: Windows looks there first.
foreach(name libstdc++-6.dll libgcc_s_seh-1.dll libwinpthread-1.dll)
    execute_process(COMMAND ${CMAKE_CXX_COMPILER} -print-file-name=${name}
        OUTPUT_VARIABLE runtime OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
    if(NOT EXISTS ${runtime})
        message(FATAL_ERROR "The compiler has no ${name}")
    endif()
    configure_file(${runtime} ${CMAKE_RUNTIME_OUTPUT_DIRECTORY}/${name} COPYONLY)
    install(FILES ${runtime} DESTINATION bin)
endforeach()
