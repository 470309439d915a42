# SPDX-License-Identifier: MIT
# What every target of this project is compiled with.

set(VQDRAW_SANITIZER "" CACHE STRING "Sanitizers for the whole build, for instance address,undefined")

set(CMAKE_CXX_STANDARD 20)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_FIND_PACKAGE_TARGETS_GLOBAL ON) # a second build of a library links what the first does, from another folder
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)

# No fused multiply-add: every build gives the same bits. No unique symbols: they would pin a library in memory.
add_compile_options(-ffp-contract=off)
if(NOT WIN32)
    add_compile_options($<$<CXX_COMPILER_ID:GNU>:-fno-gnu-unique>)
endif()

if(VQDRAW_SANITIZER)
    add_compile_options(-fsanitize=${VQDRAW_SANITIZER} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${VQDRAW_SANITIZER})
endif()

set(CMAKE_RUNTIME_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/bin)
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)
set(CMAKE_ARCHIVE_OUTPUT_DIRECTORY ${PROJECT_BINARY_DIR}/lib)

# Warnings are errors in our own code (not in Google Test's).
function(vq_own_code target)
    target_compile_options(${target} PRIVATE
        -Wall -Wextra -Wpedantic -Wshadow -Wconversion -Wold-style-cast -Wnon-virtual-dtor -Woverloaded-virtual
        -Wcast-qual -Wundef -Werror)
endfunction()

# What nearly every file of a target starts with, read once: compile time is most of the time that ./test takes.
function(vq_precompile target)
    target_precompile_headers(${target} PRIVATE <algorithm> <memory> <optional> <span> <string> <vector> ${ARGN})
endfunction()

# Files that make the same templates of the same headers take half the time when several are compiled as one (the 12 of
# draw's tests: 19 s alone, 9 s six at a time). Other files stay alone: each includes what it needs.
set(VQDRAW_FILES_AT_ONCE 8 CACHE STRING "Files of tests that are compiled as one; 1: each alone")
function(vq_compile_together target)
    if(VQDRAW_FILES_AT_ONCE GREATER 1)
        set_target_properties(${target} PROPERTIES UNITY_BUILD ON UNITY_BUILD_BATCH_SIZE ${VQDRAW_FILES_AT_ONCE})
    endif()
endfunction()

# vq_kernel(name LIBRARIES ... SOURCES ...): routines that are not exported. Compiled once, for the library that they
# are part of and for the tests that reach them.
function(vq_kernel target)
    cmake_parse_arguments(PARSE_ARGV 1 arg "" "" "LIBRARIES;SOURCES")
    add_library(${target} OBJECT ${arg_SOURCES})
    vq_own_code(${target})
    vq_precompile(${target})
    target_include_directories(${target} PUBLIC ${PROJECT_SOURCE_DIR}/Source)
    target_link_libraries(${target} PUBLIC ${arg_LIBRARIES})
endfunction()

# A shared library of the project below Source/: exports what its code marks, installs with its headers.
function(vq_library target)
    add_library(${target} SHARED)
    add_library(VQDraw::${target} ALIAS ${target})
    vq_library_settings(${target})
    install(TARGETS ${target} EXPORT VQDrawTargets
        RUNTIME DESTINATION bin LIBRARY DESTINATION lib ARCHIVE DESTINATION lib)
endfunction()

function(vq_library_settings target)
    vq_own_code(${target})
    target_compile_features(${target} PUBLIC cxx_std_20)
    target_include_directories(${target} PUBLIC
        $<BUILD_INTERFACE:${PROJECT_SOURCE_DIR}/Source>
        $<INSTALL_INTERFACE:include>
        $<INSTALL_INTERFACE:include/VQDraw>)
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION} SOVERSION ${PROJECT_VERSION_MAJOR} INSTALL_RPATH "$ORIGIN")
    if(NOT WIN32)
        # A library's calls of its own exported functions are its own: they are inlined, and go through no table.
        target_compile_options(${target} PRIVATE -fno-semantic-interposition)
        set(map ${PROJECT_SOURCE_DIR}/cmake/hide-standard-library.map)
        target_link_options(${target} PRIVATE LINKER:--version-script=${map} LINKER:-z,defs LINKER:-Bsymbolic-functions)
        set_target_properties(${target} PROPERTIES LINK_DEPENDS ${map})
        if(VQDRAW_SANITIZER)
            set_target_properties(${target} PROPERTIES LINK_OPTIONS "LINKER:--version-script=${map}")
        endif()
    endif()
endfunction()
