// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Text measured and turned into coverage, with GDI+'s rules for padding, lines and places.
///
/// Any script that an installed font covers is shaped and put into its order; what the font's face lacks is taken from
/// the fonts that fontconfig names next, and what none has is the face's box. Paragraphs run from left to right unless
/// the format says otherwise, whatever they hold. Measured widths are the sums of unhinted advances: no kerning and no
/// optional ligatures in Latin, Greek and Cyrillic, and no tracking. (Microsoft documents an advance factor of 1.03;
/// how it is rounded is not known, and Wine has none.)
///
/// Pairs of surrogates are one character; lone ones are U+FFFD; control characters take no room. Tab stops lie four ems
/// apart.
///
/// Everything here may be called from any thread; one lock is held within a call. No thread is started. Fonts, shaped
/// texts and glyphs are kept within fixed budgets, the least recently used leaving first: a scene that fits into them
/// takes no memory when it is drawn again. `releaseTextEngine` runs by itself when GDI+ is shut down and when the
/// library is unloaded.

#include "Platform/gdiplus/text/Font.h"
#include "Platform/gdiplus/text/GlyphSink.h"
#include "Platform/gdiplus/text/TextFormat.h"

#include <optional>
#include <span>
#include <string_view>

namespace vq::gdiplus {

/// How glyphs become coverage.
enum class GlyphRendering : unsigned char {
    TwoLevel,   ///< hinted; coverage is 0 or 255; whole pixels
    HintedGrey, ///< hinted; whole pixels
    SmoothGrey  ///< not hinted; at the measured place, which is rounded to a quarter of a pixel each way
};

/// The rendering of a GDI+ hint by its number: 3 and 5 are hinted grey, 4 smooth grey, any other two-level. (Hint 5's
/// sub-pixel rendering needs a background that a surface with alpha does not have.)
constexpr GlyphRendering renderingOfHint(int textRenderingHint)
{
    if (textRenderingHint == 4)
        return GlyphRendering::SmoothGrey;
    return textRenderingHint == 3 || textRenderingHint == 5 ? GlyphRendering::HintedGrey : GlyphRendering::TwoLevel;
}

struct TextDrawing
{
    GlyphRendering rendering = GlyphRendering::TwoLevel;
    unsigned contrast = 4; ///< GDI+'s TextContrast, 0 .. 12: grey coverage is raised to 1 / (1 + contrast / 10)
    PixelRect visible{};   ///< where coverage can be taken, in the coordinates of the layout
    std::span<const std::size_t> underlined{}; ///< wide characters that are underlined by themselves, ascending
};

/// Measures text as GDI+ does. A layout width of 0 does not wrap, a height of 0 does not limit; so do negative sizes
/// and what is no number. The bounds hold em/6 before and after the longest line and em/8 below the last one; spaces at
/// the end of a line are not counted. Centred and far text moves the bounds by the space that is left. A text without a
/// line measures 0 x 0. Nothing when memory cannot be had.
std::optional<TextMeasure> measureText(const Font& font, std::wstring_view text, const FloatRect& layout,
                                       const TextFormat& format) noexcept;

/// Lays text out as GDI+ draws it and delivers its glyphs: text begins em/6 beside the rectangle's edge, the first
/// cell at its upper edge; lines that start below it are left out; all is clipped to it, where it has a size,
/// unless the format says otherwise. Glyphs come in the order of the screen, line by line, each before the next;
/// underline and strike-out after the glyphs of their line. Two-level and hinted glyphs stand at the pixel nearest to
/// their measured place. False when memory ran out; then part of the text may be missing.
bool drawText(GlyphSink& sink, const Font& font, std::wstring_view text, const FloatRect& layout,
              const TextFormat& format, const TextDrawing& drawing) noexcept;

/// Gives back all memory of the engine and of the libraries behind it. Fonts stay valid; the next call starts afresh.
void releaseTextEngine() noexcept;

} // namespace vq::gdiplus
