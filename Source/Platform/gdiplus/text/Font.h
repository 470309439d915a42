// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/text/FontDescription.h"

#include <cstdint>
#include <memory>
#include <string>

namespace vq::gdiplus {

/// Vertical sizes and lines of a face in design units, `unitsPerEm` to the em.
struct FontMetrics
{
    int unitsPerEm;
    int ascent;                           ///< the OS/2 table's winAscent: GDI+'s cell ascent
    int descent;                          ///< winDescent, positive downwards: GDI+'s cell descent
    int lineSpacing;                      ///< ascent, descent and external leading
    int underlineTop, underlineThickness; ///< the stroke's upper edge above the baseline (negative: below)
    int strikeoutTop, strikeoutThickness;
};

/// A font at a size. Holds no resource of a library: faces, shaped texts and glyphs live in the engine's caches, under
/// its lock, so that a font may be kept, shared between threads and let go anywhere.
struct Font
{
    FontDescription description;
    FontMetrics metrics;
    float em;           ///< pixels
    std::string family; ///< what stands behind the face's name, UTF-8
    bool held;          ///< the face that was asked for is installed, and no other stands in for it
    std::uint64_t id;   ///< never given twice while the library is loaded

    double pixels(int designUnits) const { return static_cast<double>(em) * designUnits / metrics.unitsPerEm; }
};

/// The font for a description, from a cache of bounded size: to ask again costs a look-up and no memory. A face that is
/// not held is replaced by a similar one; weight and slant that a family lacks are synthesised. Null when no font at
/// all is installed, when memory runs out, and for a size that is not above 0 and at most `kLargestEm`.
std::shared_ptr<const Font> openFont(const FontDescription& description) noexcept;

} // namespace vq::gdiplus
