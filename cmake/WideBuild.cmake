# SPDX-License-Identifier: MIT
# The libraries with hot loops once more, for processors with AVX2: lib/glibc-hwcaps/x86-64-v3 is where the system's
# loader looks first on such a machine, in the build as in an installation. The libraries themselves test no processor.
set(VQDRAW_WIDE x86-64-v3)
set(VQDRAW_WIDE_FOLDER lib/glibc-hwcaps/${VQDRAW_WIDE})

option(VQDRAW_FOR_AVX2 "Build the library for processors with AVX2 as well" ON)

# Sanitizers look at the one source; one build of it is enough for them.
set(VQDRAW_WIDE_BUILD OFF)
if(VQDRAW_FOR_AVX2 AND CMAKE_SYSTEM_NAME STREQUAL "Linux" AND CMAKE_SYSTEM_PROCESSOR STREQUAL "x86_64" AND NOT VQDRAW_SANITIZER)
    set(VQDRAW_WIDE_BUILD ON)
endif()

function(vq_sources_of target result)
    get_target_property(sources ${target} SOURCES)
    get_target_property(folder ${target} SOURCE_DIR)
    list(TRANSFORM sources PREPEND ${folder}/ REGEX "^[^/]")
    set(${result} ${sources} PARENT_SCOPE)
endfunction()

# vq_wide_library(library): the library and its kernels compiled once more, into the wide folder. To be called when
# the library's sources and kernels are complete.
function(vq_wide_library library)
    if(NOT VQDRAW_WIDE_BUILD)
        return()
    endif()
    set(wide ${library}Wide)
    add_library(${wide} SHARED)
    vq_library_settings(${wide})
    vq_sources_of(${library} sources)
    target_sources(${wide} PRIVATE ${sources})
    get_target_property(libraries ${library} LINK_LIBRARIES)
    foreach(part IN LISTS libraries)
        vq_is_kernel(${part} isKernel)
        if(isKernel)
            vq_add_kernel(${wide} ${part})
        else()
            target_link_libraries(${wide} PRIVATE ${part})
        endif()
    endforeach()
    get_target_property(headers ${library} PRECOMPILE_HEADERS)
    target_precompile_headers(${wide} PRIVATE ${headers})
    target_compile_options(${wide} PRIVATE -march=${VQDRAW_WIDE})
    set_target_properties(${wide} PROPERTIES
        DEFINE_SYMBOL ${library}_EXPORTS
        OUTPUT_NAME ${library}
        LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/${VQDRAW_WIDE_FOLDER}
        INSTALL_RPATH "$ORIGIN/../..")
    add_dependencies(${library} ${wide}) # who builds the library has both: the loader must never find an old twin
    install(TARGETS ${wide} LIBRARY DESTINATION ${VQDRAW_WIDE_FOLDER} NAMELINK_SKIP)
endfunction()

function(vq_is_kernel name result)
    set(${result} OFF PARENT_SCOPE)
    if(TARGET ${name})
        get_target_property(type ${name} TYPE)
        if(type STREQUAL "OBJECT_LIBRARY")
            set(${result} ON PARENT_SCOPE)
        endif()
    endif()
endfunction()

function(vq_add_kernel wide kernel)
    vq_sources_of(${kernel} sources)
    get_target_property(libraries ${kernel} LINK_LIBRARIES)
    get_target_property(systemFolders ${kernel} INTERFACE_SYSTEM_INCLUDE_DIRECTORIES)
    target_sources(${wide} PRIVATE ${sources})
    if(libraries)
        target_link_libraries(${wide} PRIVATE ${libraries})
    endif()
    if(systemFolders)
        target_include_directories(${wide} SYSTEM PRIVATE ${systemFolders})
    endif()
endfunction()
