// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/PixelMemory.h"
#include "Platform/gdiplus/compositor/PixelView.h"

#include <cstdint>
#include <optional>

namespace vq::gdiplus {

/// The pixel format that GDI+ reports for a decoded file. The pixels themselves are always handed over as 32 bits.
enum class PictureFormat {
    Indexed1,      ///< PixelFormat1bppIndexed
    Indexed4,      ///< PixelFormat4bppIndexed
    Indexed8,      ///< PixelFormat8bppIndexed, grey pictures included
    Indexed8Alpha, ///< PixelFormat8bppIndexed, one colour of the palette being transparent
    Rgb555,        ///< PixelFormat16bppRGB555
    Rgb565,        ///< PixelFormat16bppRGB565
    Rgb24,         ///< PixelFormat24bppRGB
    Rgb48,         ///< PixelFormat48bppRGB
    Rgb32,         ///< PixelFormat32bppRGB
    Argb32         ///< PixelFormat32bppARGB, straight alpha
};

/// Whether pixels may have an alpha below 255.
constexpr bool mayBeTransparent(PictureFormat format)
{
    return format == PictureFormat::Argb32 || format == PictureFormat::Indexed8Alpha;
}

/// The resolution of a file that states none, in dots per inch.
inline constexpr double kDefaultDpi = 96.0;

/// A decoded picture: rows of 32-bit pixels from the top, without gaps between them. Alpha is 255 throughout unless
/// `mayBeTransparent` of the format; colour bytes of transparent pixels are those of the file.
struct Picture
{
    int width = 0;
    int height = 0;
    platform::PixelMemory<Pixel> pixels;
    PictureFormat format = PictureFormat::Argb32;
    double dpiX = kDefaultDpi;
    double dpiY = kDefaultDpi;

    PixelView view() const
    {
        return {reinterpret_cast<std::uint8_t*>(pixels.get()),
                static_cast<std::ptrdiff_t>(width) * static_cast<std::ptrdiff_t>(sizeof(Pixel)), width, height};
    }
};

/// A decoder refuses a file that claims more; checked before any memory is taken. 2^28 pixels are 1 GiB.
inline constexpr std::int64_t kMaxPicturePixels = std::int64_t{1} << 28;
inline constexpr std::int64_t kMaxPictureSide = 1'000'000;

/// Pixels that one byte of a file may stand for where its format states no bound of its own. A blank page takes a byte
/// for 250 pixels at best, so that half of one is still far below.
inline constexpr std::int64_t kMaxPixelsPerByte = 4096;

/// Whether both sides are positive and within the limits above.
bool isPictureSize(std::int64_t width, std::int64_t height);

/// A picture of that size whose pixels hold anything. Empty when that is no picture size or the memory cannot
/// be had.
std::optional<Picture> allocatePicture(std::int64_t width, std::int64_t height);

} // namespace vq::gdiplus
