# SPDX-License-Identifier: MIT
# Run by the installation: copies the public headers, and every header of the project that they include, in the folders
# that they have below Source/. VQDRAW_SOURCE and VQDRAW_NOT_INSTALLED (a regular expression) are set by the caller.
cmake_minimum_required(VERSION 3.25)

function(vq_install_header header)
    get_property(installed GLOBAL PROPERTY VQDRAW_INSTALLED_HEADERS)
    if(header IN_LIST installed OR header MATCHES "${VQDRAW_NOT_INSTALLED}")
        return()
    endif()
    set_property(GLOBAL APPEND PROPERTY VQDRAW_INSTALLED_HEADERS ${header})

    string(REGEX REPLACE "^VQDraw/" "" target ${header})
    cmake_path(GET target PARENT_PATH folder)
    file(INSTALL ${VQDRAW_SOURCE}/${header} DESTINATION ${CMAKE_INSTALL_PREFIX}/include/VQDraw/${folder})

    file(STRINGS ${VQDRAW_SOURCE}/${header} includes REGEX "^#include \"")
    foreach(include IN LISTS includes)
        string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${include}")
        vq_install_header(${included})
    endforeach()
endfunction()

file(GLOB headers RELATIVE ${VQDRAW_SOURCE}
    ${VQDRAW_SOURCE}/VQDraw/*.h ${VQDRAW_SOURCE}/vqCommonBase/*.h
    ${VQDRAW_SOURCE}/vqGeometry/*.h ${VQDRAW_SOURCE}/vqMessage/*.h ${VQDRAW_SOURCE}/vqSelection/*.h)
foreach(header IN LISTS headers)
    vq_install_header(${header})
endforeach()
