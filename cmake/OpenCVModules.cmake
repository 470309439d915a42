# SPDX-License-Identifier: MIT
# The OpenCV modules that the benchmarks compare with, as one target OpenCVModules. Debian's CMake package of OpenCV
# comes with every module and all that those depend on; the three modules are found one by one instead.
find_path(OPENCV_INCLUDE_FOLDER opencv2/core.hpp PATH_SUFFIXES opencv4 REQUIRED)
add_library(OpenCVModules INTERFACE)
target_include_directories(OpenCVModules SYSTEM INTERFACE ${OPENCV_INCLUDE_FOLDER})
foreach(module core imgproc imgcodecs)
    find_library(OPENCV_${module} opencv_${module} REQUIRED)
    target_link_libraries(OpenCVModules INTERFACE ${OPENCV_${module}})
endforeach()
