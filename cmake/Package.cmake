# SPDX-License-Identifier: MIT
# What an installation holds besides the libraries: headers, a CMake package and pkg-config files. It works from any folder.
include(CMakePackageConfigHelpers)

set(package lib/cmake/VQDraw)
install(EXPORT VQDrawTargets NAMESPACE VQDraw:: DESTINATION ${package})
configure_package_config_file(${CMAKE_CURRENT_LIST_DIR}/VQDrawConfig.cmake.in ${PROJECT_BINARY_DIR}/VQDrawConfig.cmake
    INSTALL_DESTINATION ${package})
write_basic_package_version_file(${PROJECT_BINARY_DIR}/VQDrawConfigVersion.cmake COMPATIBILITY SameMinorVersion)
install(FILES ${PROJECT_BINARY_DIR}/VQDrawConfig.cmake ${PROJECT_BINARY_DIR}/VQDrawConfigVersion.cmake
    DESTINATION ${package})

if(WIN32)
    include(${CMAKE_CURRENT_LIST_DIR}/WindowsRuntime.cmake)
    get_target_property(definitions vqPlatform INTERFACE_COMPILE_DEFINITIONS)
    get_target_property(libraries vqPlatform INTERFACE_LINK_LIBRARIES)
    list(TRANSFORM definitions PREPEND " -D" OUTPUT_VARIABLE VQDRAW_PC_DEFINITIONS)
    list(TRANSFORM libraries PREPEND " -l" OUTPUT_VARIABLE VQDRAW_PC_LIBRARIES)
    list(JOIN VQDRAW_PC_DEFINITIONS "" VQDRAW_PC_DEFINITIONS)
    list(JOIN VQDRAW_PC_LIBRARIES "" VQDRAW_PC_LIBRARIES)
    set(not_installed "^Platform/(win32|gdiplus)/")
else()
    set(not_installed "^$")
endif()
foreach(name vqdraw vqselection)
    configure_file(${CMAKE_CURRENT_LIST_DIR}/${name}.pc.in ${PROJECT_BINARY_DIR}/${name}.pc @ONLY)
    install(FILES ${PROJECT_BINARY_DIR}/${name}.pc DESTINATION lib/pkgconfig)
endforeach()

install(CODE "set(VQDRAW_SOURCE \"${PROJECT_SOURCE_DIR}/Source\")\nset(VQDRAW_NOT_INSTALLED \"${not_installed}\")")
install(SCRIPT ${CMAKE_CURRENT_LIST_DIR}/InstallHeaders.cmake)
install(FILES ${PROJECT_SOURCE_DIR}/LICENSE DESTINATION share/doc/vqdraw)
