# SPDX-License-Identifier: MIT
# The text engine's sources and the libraries it stands on, for the library and for its tests.
find_package(PkgConfig REQUIRED)
pkg_check_modules(VQDRAW_TEXT REQUIRED IMPORTED_TARGET harfbuzz fribidi freetype2 fontconfig libunibreak)
set(VQ_TEXT_LIBRARIES PkgConfig::VQDRAW_TEXT)
set(VQ_TEXT_SOURCES
    Characters.cpp
    Engine.cpp
    Face.cpp
    FaceNames.cpp
    FaceStore.cpp
    FontDescription.cpp
    FontList.cpp
    FontconfigUsers.cpp
    GlyphRenderer.cpp
    Itemiser.cpp
    Lines.cpp
    PictureGlyph.cpp
    ReadCharacters.cpp
    Shaper.cpp
    TextLayout.cpp
    TextPainter.cpp
    Typeface.cpp
)
list(TRANSFORM VQ_TEXT_SOURCES PREPEND ${CMAKE_CURRENT_LIST_DIR}/)
