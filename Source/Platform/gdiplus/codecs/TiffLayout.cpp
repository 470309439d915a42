// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/TiffLayout.h"

#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <algorithm>
#include <span>

namespace vq::gdiplus::tiff {
namespace {

/// The value of a tag, or the one that the format defines where the tag is missing.
template <typename Value>
Value valueOf(TIFF* file, std::uint32_t tag, Value otherwise = 0)
{
    Value value = otherwise;
    return TIFFGetFieldDefaulted(file, tag, &value) ? value : otherwise;
}

/// GDI+ reads these and deflate. Others of libtiff are rare in pictures and left alone: each is a decoder of its own.
bool isReadCompression(std::uint16_t compression)
{
    constexpr std::uint16_t kRead[] = {COMPRESSION_NONE,          COMPRESSION_CCITTRLE, COMPRESSION_CCITTFAX3,
                                       COMPRESSION_CCITTFAX4,     COMPRESSION_LZW,      COMPRESSION_JPEG,
                                       COMPRESSION_ADOBE_DEFLATE, COMPRESSION_DEFLATE,  COMPRESSION_PACKBITS};
    return std::ranges::find(kRead, compression) != std::end(kRead);
}

std::optional<Colours> coloursOf(std::uint16_t photometric)
{
    switch (photometric) {
    case PHOTOMETRIC_MINISWHITE:
        return Colours::WhiteIsZero;
    case PHOTOMETRIC_MINISBLACK:
        return Colours::BlackIsZero;
    case PHOTOMETRIC_RGB:
        return Colours::Rgb;
    case PHOTOMETRIC_PALETTE:
        return Colours::Palette;
    case PHOTOMETRIC_SEPARATED:
    case PHOTOMETRIC_YCBCR:
    case PHOTOMETRIC_CIELAB:
        return Colours::Converted;
    default:
        return std::nullopt;
    }
}

/// Wine's conformance tests, run on Windows, have RGB with a fourth sample that nothing is said about: it is alpha, but
/// for 16 bits.
Alpha alphaOf(TIFF* file, const Layout& layout)
{
    if (layout.colours == Colours::Palette || layout.colours == Colours::Converted ||
        layout.samples <= layout.colourSamples())
        return Alpha::None;
    std::uint16_t count = 0;
    const std::uint16_t* kinds = nullptr;
    const bool isStated = TIFFGetField(file, TIFFTAG_EXTRASAMPLES, &count, &kinds) && count > 0;
    switch (isStated ? kinds[0] : EXTRASAMPLE_UNSPECIFIED) {
    case EXTRASAMPLE_ASSOCALPHA:
        return Alpha::Premultiplied;
    case EXTRASAMPLE_UNASSALPHA:
        return Alpha::Straight;
    default:
        return layout.colours == Colours::Rgb && layout.samples == 4 && layout.bits <= 8 ? Alpha::Straight
                                                                                         : Alpha::None;
    }
}

bool hasReadSamples(TIFF* file, const Layout& layout)
{
    const auto kind = valueOf<std::uint16_t>(file, TIFFTAG_SAMPLEFORMAT, SAMPLEFORMAT_UINT);
    if (kind != SAMPLEFORMAT_UINT && kind != SAMPLEFORMAT_VOID)
        return false;
    constexpr int kBits[] = {1, 2, 4, 8, 16};
    if (std::ranges::find(kBits, layout.bits) == std::end(kBits) || layout.samples < layout.colourSamples())
        return false;
    return layout.colours != Colours::Palette || layout.bits <= 8;
}

/// Entries have 16 bits; where all of them are below 256, a writer took them for 8.
bool readPalette(TIFF* file, Layout& layout)
{
    std::uint16_t* channels[3] = {};
    if (!TIFFGetField(file, TIFFTAG_COLORMAP, &channels[0], &channels[1], &channels[2]))
        return false;
    const std::size_t count = std::size_t{1} << layout.bits;
    const bool isWide = std::ranges::any_of(channels, [&](const std::uint16_t* channel) {
        return std::any_of(channel, channel + count, [](std::uint16_t value) { return value > 255; });
    });
    const int shift = isWide ? 8 : 0;
    layout.palette.fill(kAlphaBits);
    for (std::size_t i = 0; i < count; ++i)
        layout.palette[i] = packed(255, static_cast<std::uint32_t>(channels[0][i] >> shift),
                                   static_cast<std::uint32_t>(channels[1][i] >> shift),
                                   static_cast<std::uint32_t>(channels[2][i] >> shift));
    return true;
}

/// Evenly from black to white or the other way round.
void makeGreys(Layout& layout)
{
    const Pixel most = (Pixel{1} << layout.bits) - 1;
    for (Pixel sample = 0; sample <= most; ++sample) {
        const Pixel light = sample * (255 / most);
        layout.palette[sample] = kAlphaBits | (layout.colours == Colours::WhiteIsZero ? 255 - light : light) * 0x010101;
    }
}

void readBlocks(TIFF* file, Layout& layout)
{
    layout.tiled = TIFFIsTiled(file);
    if (layout.tiled) {
        layout.blockWidth = valueOf<std::uint32_t>(file, TIFFTAG_TILEWIDTH);
        layout.blockHeight = valueOf<std::uint32_t>(file, TIFFTAG_TILELENGTH);
        layout.blockBytes = TIFFTileSize(file);
        layout.blocks = TIFFNumberOfTiles(file);
    } else {
        const auto rows = valueOf<std::uint32_t>(file, TIFFTAG_ROWSPERSTRIP);
        layout.blockWidth = layout.width;
        layout.blockHeight = std::min<std::int64_t>(rows, layout.height);
        layout.blockBytes = TIFFStripSize(file);
        layout.blocks = TIFFNumberOfStrips(file);
    }
}

} // namespace

std::optional<Layout> readLayout(TIFF* file)
{
    Layout layout{};
    layout.width = valueOf<std::uint32_t>(file, TIFFTAG_IMAGEWIDTH);
    layout.height = valueOf<std::uint32_t>(file, TIFFTAG_IMAGELENGTH);
    if (!isPictureSize(layout.width, layout.height) ||
        !isReadCompression(valueOf<std::uint16_t>(file, TIFFTAG_COMPRESSION)))
        return std::nullopt;
    std::uint16_t photometric = 0;
    if (!TIFFGetField(file, TIFFTAG_PHOTOMETRIC, &photometric))
        return std::nullopt;
    const auto colours = coloursOf(photometric);
    if (!colours)
        return std::nullopt;

    layout.colours = *colours;
    layout.bits = valueOf<std::uint16_t>(file, TIFFTAG_BITSPERSAMPLE);
    layout.samples = valueOf<std::uint16_t>(file, TIFFTAG_SAMPLESPERPIXEL);
    layout.alpha = alphaOf(file, layout);
    layout.separatePlanes =
        layout.samples > 1 && valueOf<std::uint16_t>(file, TIFFTAG_PLANARCONFIG) == PLANARCONFIG_SEPARATE;
    layout.orientation = valueOf<std::uint16_t>(file, TIFFTAG_ORIENTATION);
    if (!hasReadSamples(file, layout) || (layout.colours == Colours::Palette && !readPalette(file, layout)))
        return std::nullopt;
    if (layout.isGrey() && layout.isLookedUp())
        makeGreys(layout);
    readBlocks(file, layout);
    if (layout.blockWidth < 1 || layout.blockHeight < 1 || layout.blockBytes < 1 || layout.blocks < 1)
        return std::nullopt;
    return layout;
}

/// Mostly as Wine's conformance tests, run on Windows, list them; 2 bits and grey with alpha are not among them.
PictureFormat formatOf(const Layout& layout)
{
    if (layout.hasAlpha())
        return PictureFormat::Argb32;
    switch (layout.colours) {
    case Colours::WhiteIsZero:
    case Colours::BlackIsZero:
        if (layout.bits == 16)
            return PictureFormat::Argb32;
        return layout.bits == 1 ? PictureFormat::Indexed1 : PictureFormat::Indexed8;
    case Colours::Palette:
        if (layout.bits == 8)
            return PictureFormat::Indexed8;
        return layout.bits == 1 ? PictureFormat::Indexed1 : PictureFormat::Indexed4;
    case Colours::Rgb:
        return layout.bits == 16 ? PictureFormat::Rgb48 : PictureFormat::Rgb24;
    case Colours::Converted:
        break;
    }
    return PictureFormat::Rgb24;
}

} // namespace vq::gdiplus::tiff
