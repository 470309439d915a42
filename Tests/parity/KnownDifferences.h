// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Where Wine 8.0, on which the Windows build is tested, does not do what Windows does. Our own layer follows Windows,
/// and so do the tests; a check that Wine cannot pass asks `differsHere` first.

#include <algorithm>
#include <array>
#include <string_view>
#if defined(_WIN32)
#include <windows.h>
#endif

namespace vq::test {

struct KnownDifference
{
    std::string_view topic;
    std::string_view windows; ///< and our layer
    std::string_view wine;
    std::string_view reason;
};

// clang-format off
inline constexpr std::array kKnownDifferences{
    KnownDifference{"calls before start-up", "GdiplusNotInitialized", "work", "Wine does not check"},
    KnownDifference{"fractional rectangles", "by pixel centres", "corners rounded to integers first", "Wine draws through GDI rectangles"},
    KnownDifference{"smoothed rectangles", "edges at integers cover half pixels", "smoothing ignored", "Wine has no anti-aliased shapes"},
    KnownDifference{"smoothed outlines", "cover parts of pixels", "smoothing ignored", "Wine has no anti-aliased shapes"},
    KnownDifference{"edges of curves", "exact by pixel centres", "up to 1 pixel off", "Wine rounds flattened points to integers"},
    KnownDifference{"thin curves", "eight even steps, nearest pixels", "up to 1 pixel off", "Wine flattens otherwise and rounds to integers"},
    KnownDifference{"wide inset pens", "stay inside their rectangle", "as Center", "Wine ignores the alignment"},
    KnownDifference{"dash caps", "drawn within the dash", "not drawn", "Wine ignores them"},
    KnownDifference{"body of an arrow", "ends one width before the tip", "one and a half", "Wine's own choice"},
    KnownDifference{"widening by less than one", "as thin as the pen, dashes in whole units", "one thick, dashes in pen widths", "Wine's own choice"},
    KnownDifference{"missing arguments", "InvalidParameter", "crash some calls", "Wine reads some paths and arrays of integers unchecked"},
    KnownDifference{"colour for a pen of another brush", "the pen becomes a solid one", "NotImplemented", "Wine changes solid brushes only"},
    KnownDifference{"closing all figures", "all", "all but the last", "Wine closes a figure where the next one starts"},
    KnownDifference{"going on with a closed figure", "a path added to it stays apart", "is connected", "Wine looks at the first point only"},
    KnownDifference{"anchors of thin pens", "drawn for a width of 2", "not drawn", "Wine draws lines of width 1 without their caps"},
    KnownDifference{"thin dashes of a second figure", "start anew", "go on from the first", "Wine draws a thin path in one go"},
    KnownDifference{"outlines under SourceCopy", "replace what the pen covers", "clear what they enclose as well", "Wine copies a line's whole box"},
    KnownDifference{"lines from afar", "are cut to the picture first", "take a second for 100 million pixels", "Wine goes along them pixel by pixel"},
    KnownDifference{"offset of dashes", "how far into the pattern they begin", "ignored", "not implemented in Wine"},
    KnownDifference{"round joins", "drawn", "bevels", "not implemented in Wine"},
    KnownDifference{"arcs of no size", "InvalidParameter", "Ok and a line", "later versions of Wine agree with Windows"},
    KnownDifference{"linear light", "HighQuality blends linearly, alpha may drop by 1", "setting ignored", "not implemented in Wine"},
    KnownDifference{"source-over rounding", "premultiplied and rounded", "straight and truncated, 1 off", "A0FFFFFF over A0000000: DCB9B9B9 against DBBABABA"},
    KnownDifference{"smoothing mode read back", "None for None, Default and HighSpeed; AntiAlias for HighQuality", "the number that was set; fresh 0", "Wine stores the number"},
    KnownDifference{"values of settings", "out of range: InvalidParameter", "most are stored", "Wine checks hints and interpolation only"},
    KnownDifference{"last pixel of a scaled picture", "drawn when its centre is inside", "missing at scales 0.8 and 1.8", "Wine rounds the target rectangle"},
    KnownDifference{"transposing turns", "Rotate90FlipX transposes", "exchanged with Rotate270FlipX", "Wine flips before it turns"},
    KnownDifference{"bitmap from a bad file", "InvalidParameter", "GenericError", "Wine reports its stream's failure"},
    KnownDifference{"image from a bad file", "OutOfMemory", "GenericError", "Wine reports its decoder's failure"},
    KnownDifference{"bits of a saved BMP", "32", "24", "Wine's encoder has no 32-bit form"},
    KnownDifference{"quality of a JPEG", "honoured", "always 75", "Wine ignores the parameter"},
    KnownDifference{"GIF of a 32-bit picture", "reduced to 8 bits", "empty", "Wine has no colour reduction"},
    KnownDifference{"TIFF of 32bppRGB and 32bppPARGB", "32bppARGB", "24bppRGB, 32bppPARGB", "Wine's encoder keeps what its format can say"},
    KnownDifference{"TIFF of 16-bit samples", "48bppRGB", "32bppARGB", "Wine knows no deeper formats"},
    KnownDifference{"surface of a lent context", "prepared with red 13, green 11, blue 12", "red 12, green 11, blue 13", "Wine exchanges red and blue"},
    KnownDifference{"area outside in Clone", "OutOfMemory", "InvalidParameter", "Wine checks it as an argument"},
    KnownDifference{"partly transparent pixels on a context", "our layer shows the stored colour, Windows a darkened one", "multiplied by alpha", "GDI+ writes premultiplied pixels to 32-bit contexts"},
    KnownDifference{"gradient tiles flipped across", "TileFlipY repeats a gradient as Tile does", "mirrors it as TileFlipX does", "Wine mirrors for every flip"},
    KnownDifference{"gamma of gradients", "interpolates light", "setting ignored", "not implemented in Wine"},
    KnownDifference{"range of triangular shapes", "focus and scale of 0 to 1 only", "every number", "Wine does not check"},
    KnownDifference{"width of measured text", "by unhinted advances", "by hinted ones", "Wine measures through GDI"},
    KnownDifference{"height of measured text", "the lines and an eighth of an em", "the lines", "Wine adds nothing"},
    KnownDifference{"spaces at the end of a line", "not measured", "measured", "Wine counts them among the text"},
    KnownDifference{"place of measured text", "moved by the alignment", "the layout's corner", "Wine measures the lines alone"},
    KnownDifference{"text while a context is lent", "ObjectBusy", "is drawn", "Wine does not check"},
    KnownDifference{"text under SourceCopy", "InvalidParameter", "is drawn", "Wine does not check"},
    KnownDifference{"text hints", "two levels or grey, hinted or not", "always grey", "Wine draws bitmaps' text from outlines"},
    KnownDifference{"text and its rectangle", "clipped to it; whole without clipping and trimming", "not clipped on bitmaps; always trimmed", "Wine clips through GDI only"},
    KnownDifference{"text far outside the picture", "not drawn", "crashes", "Wine computes places near 2^31 in 32 bits"},
    KnownDifference{"line breaks among fitted characters", "counted", "not counted at the end", "Wine skips them"},
    KnownDifference{"raster fonts", "NotTrueTypeFont", "a similar outline font", "Wine has no raster fonts installed"},
    KnownDifference{"faces of Windows", "found; our layer has stand-ins", "not found", "Wine runs with DejaVu fonts only"},
    KnownDifference{"damaged pictures", "refused", "some crash, some keep their file open", "Wine's decoders of TIFF and BMP"},
    KnownDifference{"screen without a display", "a desktop in memory", "drawing has no effect", "Wine's driver for no display drops it"},
};
// clang-format on

/// Whether this is a Windows program that runs under Wine.
inline bool runsUnderWine()
{
#if defined(_WIN32)
    const HMODULE library = GetModuleHandleW(L"ntdll.dll");
    return library && GetProcAddress(library, "wine_get_version");
#else
    return false;
#endif
}

/// The name of a row of the table; anything else does not compile.
struct Topic
{
    consteval Topic(const char* topic) : name(topic)
    {
        if (std::ranges::find(kKnownDifferences, name, &KnownDifference::topic) == kKnownDifferences.end())
            throw "no such row in kKnownDifferences";
    }
    std::string_view name;
};

/// Whether a check about this topic cannot be made here, because the system is known to answer differently.
inline bool differsHere(Topic)
{
    return runsUnderWine();
}

} // namespace vq::test
