// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/win32/Gdi.h"

#include <array>
#include <cstddef>
#include <string_view>

namespace vq::gdiplus {

/// Fonts of more pixels to the em are refused.
inline constexpr float kLargestEm = 10000.0F;

/// The height of a cell whose logical font asks for height 0 (measured on Wine 8.0: as lfHeight 16).
inline constexpr float kDefaultCellHeight = 16.0F;

/// What `FontDescription::size` measures.
enum class SizeRule : unsigned char {
    Em,  ///< the em, exactly
    Cell ///< ascent and descent together; the em becomes the nearest whole number of pixels, 1 at least
};

/// What to look for when the face is unknown.
enum class FontClass : unsigned char { SansSerif, Serif, Monospace };

/// What a font is asked for by: a plain value, so that the same request is recognised without memory.
struct FontDescription
{
    static constexpr std::size_t kFaceUnits = LF_FACESIZE;

    std::array<char16_t, kFaceUnits> face{}; ///< family, 16-bit units, zeros after its end; empty: the user interface's
    float size = 0;                          ///< pixels
    SizeRule sizeRule = SizeRule::Em;
    FontClass fontClass = FontClass::SansSerif;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikeout = false;

    friend bool operator==(const FontDescription&, const FontDescription&) = default;

    std::u16string_view faceName() const
    {
        const std::u16string_view units(face.data(), face.size());
        return units.substr(0, units.find(u'\0'));
    }
};

/// The description of a logical font, as GDI+ reads it: a negative height is the em, a positive one the cell's, 0 the
/// default; a weight above 400 is bold; width, escapement and orientation do not matter.
FontDescription describe(const LOGFONTW& font);

/// Whether Windows holds the face as a bitmap only, which GDI+ answers with NotTrueTypeFont. Case does not matter.
bool isRasterFace(std::u16string_view face);

} // namespace vq::gdiplus
