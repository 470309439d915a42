// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The pixels behind a picture. Drawing surfaces keep them alive too.

#include "Platform/PixelMemory.h"
#include "Platform/gdiplus/Enums.h"
#include "Platform/gdiplus/ImageCodecs.h"
#include "Platform/gdiplus/PixelConversion.h"
#include "Platform/gdiplus/Rect.h"

#include <memory>
#include <optional>
#include <utility>

namespace vq::gdiplus {

struct Picture;

/// Dots per inch.
struct Resolution
{
    Gdiplus::REAL x;
    Gdiplus::REAL y;
};

/// The resolution of the screen, which bitmaps in memory have.
Resolution screenResolution();

/// Pixels that are handed out until they are unlocked.
struct PixelLock
{
    Gdiplus::Rect rect;
    bool writes;
    bool isDirect; ///< the bitmap's own memory was handed out
    Layout layout;
    std::uint8_t* top;
    std::ptrdiff_t stride;
    platform::PixelMemory<std::uint8_t> memory; ///< the copy, unless it is the caller's memory
};

struct PixelStore
{
    int width = 0;
    int height = 0;
    Gdiplus::PixelFormat format = 0;  ///< what the bitmap says it is
    Layout layout = Layout::Straight; ///< what its memory holds; `Opaque` for all formats without alpha in own memory
    std::uint8_t* top = nullptr;
    std::ptrdiff_t stride = 0;
    platform::PixelMemory<std::uint8_t> memory; ///< empty when the memory is the caller's
    Resolution resolution{};
    GUID rawFormat = Gdiplus::ImageFormatMemoryBMP;
    std::optional<PixelLock> lock;

    std::uint8_t* row(int y) const { return top + y * stride; }
    std::uint8_t* at(int x, int y) const { return row(y) + static_cast<std::size_t>(x) * bytesPerPixel(layout); }
    Gdiplus::Rect bounds() const { return {0, 0, width, height}; }

    /// 32-bit pixels that can be worked on where they are.
    bool isAlignedWords() const
    {
        return layout != Layout::Packed && reinterpret_cast<std::uintptr_t>(top) % sizeof(Pixel) == 0;
    }
    /// Own memory without alpha holds 255 in the fourth byte whenever nothing is locked.
    bool isStraight() const
    {
        return isAlignedWords() && (layout == Layout::Straight || (layout == Layout::Opaque && memory));
    }
    PixelView words() const { return {top, stride, width, height}; }
};

using Pixels = std::shared_ptr<PixelStore>;

/// Pixels, or why there are none.
struct PixelsOrStatus
{
    Pixels pixels;
    Gdiplus::Status status = Gdiplus::Ok;
};

/// How a format is stored in the caller's memory; empty for the formats that no bitmap stores.
std::optional<Layout> layoutOf(Gdiplus::PixelFormat format);

/// Memory of its own, all zero: transparent, or black for formats without alpha.
PixelsOrStatus createPixels(int width, int height, Gdiplus::PixelFormat format, Resolution resolution);

/// Over memory of the caller. A row may not overlap the next.
PixelsOrStatus pixelsOver(int width, int height, std::ptrdiff_t stride, Gdiplus::PixelFormat format, std::uint8_t* top);

/// Takes the memory of a decoded picture over.
PixelsOrStatus pixelsFrom(Picture&& picture, const GUID& rawFormat);

/// The picture in the bytes of a file; `InvalidParameter` when they cannot be decoded.
PixelsOrStatus decodedPixels(std::span<const std::uint8_t> file);

/// Over the caller's device-independent bitmap, or a copy of one with 16 bits or a palette.
PixelsOrStatus pixelsOfDib(const BITMAPINFO* info, void* bits);

/// A copy of a bitmap handle's pixels, opaque.
PixelsOrStatus pixelsOfHandle(HBITMAP bitmap);

/// A part, which lies inside, in memory of its own and another format.
PixelsOrStatus copyPixels(const PixelStore& store, const Gdiplus::Rect& part, Gdiplus::PixelFormat format);

/// All of it as it is, in memory of its own.
PixelsOrStatus clonePixels(const PixelStore& store);

Gdiplus::Status rotateFlipPixels(PixelStore& store, Gdiplus::RotateFlipType type);

/// Sets the fourth byte of every pixel of a part that lies inside to 255.
void makeOpaque(PixelView view, const Gdiplus::Rect& part);

Gdiplus::Status lockPixels(PixelStore& store, const Gdiplus::Rect& rect, UINT flags, Gdiplus::PixelFormat format,
                           Gdiplus::BitmapData& data);
Gdiplus::Status unlockPixels(PixelStore& store);

/// The pixels as 32 bits with straight alpha: where they are, or in a copy.
class StraightPixels
{
public:
    /// Throws std::bad_alloc when a copy cannot be had.
    explicit StraightPixels(const PixelStore& store);

    ConstPixelView view() const { return m_view; }

private:
    platform::PixelMemory<std::uint8_t> m_copy;
    ConstPixelView m_view;
};

/// Whether a rectangle has an area and lies inside the bitmap.
bool liesInside(const PixelStore& store, const Gdiplus::Rect& rect);

} // namespace vq::gdiplus
