// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Owners of what the text libraries hand out.

#include <memory>

#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_SIZES_H
#include <hb-ot.h>
#include <hb.h>

namespace vq::gdiplus {

template <auto release>
struct Releaser
{
    template <typename T>
    void operator()(T* object) const
    {
        release(object);
    }
};

template <typename T, auto release>
using Handle = std::unique_ptr<T, Releaser<release>>;

using BlobHandle = Handle<hb_blob_t, hb_blob_destroy>;
using ShapingFaceHandle = Handle<hb_face_t, hb_face_destroy>;
using ShapingFontHandle = Handle<hb_font_t, hb_font_destroy>;
using BufferHandle = Handle<hb_buffer_t, hb_buffer_destroy>;

using FreeTypeHandle = Handle<FT_LibraryRec_, FT_Done_FreeType>;
using OutlineFaceHandle = Handle<FT_FaceRec_, FT_Done_Face>;
using FaceSizeHandle = Handle<FT_SizeRec_, FT_Done_Size>;

using ConfigurationHandle = Handle<FcConfig, FcConfigDestroy>;
using PatternHandle = Handle<FcPattern, FcPatternDestroy>;
using CharacterSetHandle = Handle<FcCharSet, FcCharSetDestroy>;
using FontSetHandle = Handle<FcFontSet, FcFontSetDestroy>;

} // namespace vq::gdiplus
