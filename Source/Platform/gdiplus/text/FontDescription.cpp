// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/FontDescription.h"

#include "Platform/gdiplus/text/FaceNames.h"

#include <algorithm>
#include <cmath>

namespace vq::gdiplus {
namespace {

constexpr LONG kRegularWeight = 400;
constexpr int kPitchBits = 0x03;
constexpr int kFamilyBits = 0xF0;

constexpr std::array<std::u16string_view, 7> kRasterFaces{u"System",        u"Fixedsys", u"Terminal",   u"Courier",
                                                          u"MS Sans Serif", u"MS Serif", u"Small Fonts"};

FontClass classOf(BYTE pitchAndFamily)
{
    if ((pitchAndFamily & kPitchBits) == FIXED_PITCH || (pitchAndFamily & kFamilyBits) == FF_MODERN)
        return FontClass::Monospace;
    return (pitchAndFamily & kFamilyBits) == FF_ROMAN ? FontClass::Serif : FontClass::SansSerif;
}

} // namespace

FontDescription describe(const LOGFONTW& font)
{
    FontDescription description;
    const std::u16string_view units(font.lfFaceName, LF_FACESIZE);
    std::ranges::copy(units.substr(0, units.find(u'\0')), description.face.begin());
    const auto height = static_cast<float>(font.lfHeight);
    description.size = height == 0 ? kDefaultCellHeight : std::fabs(height);
    description.sizeRule = height < 0 ? SizeRule::Em : SizeRule::Cell;
    description.fontClass = classOf(font.lfPitchAndFamily);
    description.bold = font.lfWeight > kRegularWeight;
    description.italic = font.lfItalic != 0;
    description.underline = font.lfUnderline != 0;
    description.strikeout = font.lfStrikeOut != 0;
    return description;
}

bool isRasterFace(std::u16string_view face)
{
    return std::ranges::any_of(kRasterFaces, [face](std::u16string_view raster) { return sameFace(face, raster); });
}

} // namespace vq::gdiplus
