# SPDX-License-Identifier: MIT
# VQDRAW_OPENGL and VQDRAW_GLU: what those link that call OpenGL.
if(WIN32)
    set(VQDRAW_OPENGL opengl32)
    set(VQDRAW_GLU glu32)
else()
    # The library without a window system: libGL would load X11 with it, also where the host draws off screen.
    find_package(OpenGL REQUIRED COMPONENTS OpenGL)
    if(NOT OPENGL_GLU_FOUND)
        message(FATAL_ERROR "GLU is missing: install Debian's libglu1-mesa-dev")
    endif()
    set(VQDRAW_OPENGL OpenGL::OpenGL)
    set(VQDRAW_GLU ${OPENGL_glu_LIBRARY}) # its target in CMake would bring libGL along
endif()
