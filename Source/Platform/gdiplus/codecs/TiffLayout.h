// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/Picture.h"

#include <array>
#include <cstdint>
#include <optional>

#include <tiffio.h>

namespace vq::gdiplus::tiff {

enum class Colours {
    WhiteIsZero,
    BlackIsZero,
    Rgb,
    Palette,
    Converted ///< CMYK, YCbCr and CIELab, which libtiff turns into RGB
};

enum class Alpha { None, Straight, Premultiplied };

/// How the pixels of a file lie in it.
struct Layout
{
    std::int64_t width;
    std::int64_t height;
    int bits;    ///< a sample: 1, 2, 4, 8 or 16
    int samples; ///< a pixel, those without meaning here included
    Colours colours;
    Alpha alpha;         ///< that of the first sample behind the colours
    bool separatePlanes; ///< a plane for each sample, not all samples of a pixel together
    bool tiled;
    std::int64_t blockWidth; ///< of a tile; a strip is as wide as the picture
    std::int64_t blockHeight;
    std::int64_t blockBytes; ///< decoded
    std::int64_t blocks;
    int orientation;                ///< 1 .. 8 by the tag's numbering
    std::array<Pixel, 256> palette; ///< what a sample stands for, where `isLookedUp`

    int colourSamples() const { return colours == Colours::Rgb ? 3 : 1; }
    bool hasAlpha() const { return alpha != Alpha::None; }
    bool isGrey() const { return colours == Colours::WhiteIsZero || colours == Colours::BlackIsZero; }
    /// One sample of at most 8 bits says all about a pixel.
    bool isLookedUp() const { return colours == Colours::Palette || (isGrey() && !hasAlpha() && bits <= 8); }
};

/// Empty for kinds of pictures that are not read and for sizes that no picture has.
std::optional<Layout> readLayout(TIFF* file);

/// The format that GDI+ reports for such a file.
PictureFormat formatOf(const Layout& layout);

} // namespace vq::gdiplus::tiff
