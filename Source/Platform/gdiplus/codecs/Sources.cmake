# SPDX-License-Identifier: MIT
# The sources of the codecs, for the platform library and for the tests, which compile them in: they are not exported.
set(VQ_CODEC_SOURCES
    BmpDecoder.cpp
    BmpEncoder.cpp
    BmpHeader.cpp
    BmpRunLength.cpp
    Codecs.cpp
    FileBytes.cpp
    JpegDecoder.cpp
    JpegEncoder.cpp
    Picture.cpp
    PngDecoder.cpp
    PngEncoder.cpp
)
list(TRANSFORM VQ_CODEC_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
