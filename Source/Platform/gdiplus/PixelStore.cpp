// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/PixelStore.h"

#include "Platform/gdiplus/codecs/Picture.h"
#include "Platform/gdiplus/compositor/RotateFlip.h"

#include <cmath>
#include <limits>
#include <new>

namespace vq::gdiplus {
namespace {

using Gdiplus::InvalidParameter;
using Gdiplus::OutOfMemory;

/// Rows are at most 2^31 - 1 bytes long, as strides are counted in INT.
bool isUsableSize(std::int64_t width, std::int64_t height)
{
    return width > 0 && height > 0 && width * 4 <= std::numeric_limits<INT>::max();
}

std::size_t byteCount(const PixelStore& store)
{
    return static_cast<std::size_t>(store.width) * sizeof(Pixel) * static_cast<std::size_t>(store.height);
}

/// Points the store at 32-bit words of its own; false when `memory` is empty.
bool takeMemory(PixelStore& store, platform::PixelMemory<std::uint8_t> memory)
{
    if (!memory)
        return false;
    store.memory = std::move(memory);
    store.top = store.memory.get();
    store.stride = static_cast<std::ptrdiff_t>(store.width) * static_cast<std::ptrdiff_t>(sizeof(Pixel));
    return true;
}

platform::PixelMemory<std::uint8_t> rawMemory(std::size_t bytes)
{
    return platform::PixelMemory<std::uint8_t>(static_cast<std::uint8_t*>(platform::allocateRaw(bytes)));
}

/// In memory of the bitmap's own every format is 32 bits: premultiplied stays so, because not every premultiplied pixel
/// survives the way through straight alpha.
Layout ownLayout(Gdiplus::PixelFormat format)
{
    if (format == PixelFormat32bppPARGB)
        return Layout::Premultiplied;
    return Gdiplus::IsAlphaPixelFormat(format) ? Layout::Straight : Layout::Opaque;
}

Pixels describedPixels(int width, int height, Gdiplus::PixelFormat format, Resolution resolution)
{
    auto store = std::make_shared<PixelStore>();
    store->width = width;
    store->height = height;
    store->format = format;
    store->layout = ownLayout(format);
    store->resolution = resolution;
    return store;
}

Gdiplus::PixelFormat formatOf(PictureFormat format)
{
    switch (format) {
    case PictureFormat::Indexed1:
        return PixelFormat1bppIndexed;
    case PictureFormat::Indexed4:
        return PixelFormat4bppIndexed;
    case PictureFormat::Indexed8:
    case PictureFormat::Indexed8Alpha:
        return PixelFormat8bppIndexed;
    case PictureFormat::Rgb555:
        return PixelFormat16bppRGB555;
    case PictureFormat::Rgb565:
        return PixelFormat16bppRGB565;
    case PictureFormat::Rgb24:
        return PixelFormat24bppRGB;
    case PictureFormat::Rgb48:
        return PixelFormat48bppRGB;
    case PictureFormat::Rgb32:
        return PixelFormat32bppRGB;
    case PictureFormat::Argb32:
        break;
    }
    return PixelFormat32bppARGB;
}

} // namespace

Resolution screenResolution()
{
    const float dotsPerInch = std::round(96.0f * win32::displayScaleFactor());
    return {dotsPerInch, dotsPerInch};
}

std::optional<Layout> layoutOf(Gdiplus::PixelFormat format)
{
    switch (format) {
    case PixelFormat32bppARGB:
        return Layout::Straight;
    case PixelFormat32bppRGB:
        return Layout::Opaque;
    case PixelFormat32bppPARGB:
        return Layout::Premultiplied;
    case PixelFormat24bppRGB:
        return Layout::Packed;
    default:
        return std::nullopt;
    }
}

PixelsOrStatus createPixels(int width, int height, Gdiplus::PixelFormat format, Resolution resolution)
{
    if (!layoutOf(format) || !isUsableSize(width, height))
        return {nullptr, InvalidParameter};
    auto store = describedPixels(width, height, format, resolution);
    platform::PixelMemory<std::uint8_t> memory(static_cast<std::uint8_t*>(platform::allocateZeroed(byteCount(*store))));
    if (!takeMemory(*store, std::move(memory)))
        return {nullptr, OutOfMemory};
    if (store->layout == Layout::Opaque)
        makeOpaque(store->words(), store->bounds());
    return {std::move(store)};
}

PixelsOrStatus pixelsOver(int width, int height, std::ptrdiff_t stride, Gdiplus::PixelFormat format, std::uint8_t* top)
{
    const auto layout = layoutOf(format);
    if (!layout || !isUsableSize(width, height) || !top || stride % 4 != 0)
        return {nullptr, InvalidParameter};
    const auto rowBytes = static_cast<std::ptrdiff_t>(bytesPerPixel(*layout)) * width;
    if (height > 1 && std::abs(stride) < rowBytes)
        return {nullptr, InvalidParameter};
    auto store = describedPixels(width, height, format, screenResolution());
    store->layout = *layout;
    store->top = top;
    store->stride = stride;
    return {std::move(store)};
}

PixelsOrStatus pixelsFrom(Picture&& picture, const GUID& rawFormat)
{
    const Resolution resolution{static_cast<Gdiplus::REAL>(picture.dpiX), static_cast<Gdiplus::REAL>(picture.dpiY)};
    auto store = describedPixels(picture.width, picture.height, formatOf(picture.format), resolution);
    if (mayBeTransparent(picture.format))
        store->layout = Layout::Straight; // a palette with a transparent colour too
    store->rawFormat = rawFormat;
    takeMemory(*store, platform::PixelMemory<std::uint8_t>(reinterpret_cast<std::uint8_t*>(picture.pixels.release())));
    return {std::move(store)};
}

PixelsOrStatus copyPixels(const PixelStore& store, const Gdiplus::Rect& part, Gdiplus::PixelFormat format)
{
    if (!layoutOf(format))
        return {nullptr, InvalidParameter};
    auto copy = describedPixels(part.Width, part.Height, format, store.resolution);
    if (!takeMemory(*copy, rawMemory(byteCount(*copy))))
        return {nullptr, OutOfMemory};
    for (int y = 0; y < part.Height; ++y) {
        const std::uint8_t* from = store.at(part.X, part.Y + y);
        if (store.layout == copy->layout && store.layout == Layout::Premultiplied) {
            std::memcpy(copy->row(y), from, static_cast<std::size_t>(copy->stride));
            continue;
        }
        const std::span row(copy->words().row(y), static_cast<std::size_t>(part.Width));
        readRow(store.layout, from, row);
        if (copy->layout != Layout::Straight)
            writeRow(copy->layout, row, copy->row(y));
    }
    return {std::move(copy)};
}

PixelsOrStatus clonePixels(const PixelStore& store)
{
    // Formats that no bitmap is made in (a palette, 16 bits) lie in memory as 32 bits with or without alpha.
    const auto own = store.layout == Layout::Straight ? PixelFormat32bppARGB : PixelFormat32bppRGB;
    auto clone = copyPixels(store, store.bounds(), layoutOf(store.format) ? store.format : own);
    if (clone.pixels) {
        clone.pixels->format = store.format;
        clone.pixels->rawFormat = store.rawFormat;
    }
    return clone;
}

Gdiplus::Status rotateFlipPixels(PixelStore& store, Gdiplus::RotateFlipType type)
{
    if (type < 0 || static_cast<std::size_t>(type) >= kTurns.size())
        return InvalidParameter;
    if (store.lock)
        return Gdiplus::WrongState;
    if (type == Gdiplus::RotateNoneFlipNone)
        return Gdiplus::Ok;
    const Turn turn = kTurns[static_cast<std::size_t>(type)];

    Pixels words; // where 24 bits or unaligned memory are turned into 32-bit words first
    if (!store.isAlignedWords()) {
        auto copy = clonePixels(store);
        if (!copy.pixels)
            return copy.status;
        words = std::move(copy.pixels);
    }
    const PixelStore& source = words ? *words : store;
    if (turn.transposes && !isUsableSize(source.height, source.width))
        return OutOfMemory;
    auto memory = rawMemory(byteCount(source));
    if (!memory)
        return OutOfMemory;

    const PixelView from = source.words();
    const int width = turn.transposes ? from.height : from.width;
    const int height = turn.transposes ? from.width : from.height;
    const auto stride = static_cast<std::ptrdiff_t>(width) * static_cast<std::ptrdiff_t>(sizeof(Pixel));
    const PixelView to{memory.get(), stride, width, height};
    if (source.layout == Layout::Opaque && !source.memory)
        rotateFlip(from, to, turn, [](Pixel pixel) { return pixel | kAlphaBits; });
    else
        rotateFlip(from, to, turn);

    store.layout = source.layout;
    store.width = width;
    store.height = height;
    if (turn.transposes)
        std::swap(store.resolution.x, store.resolution.y);
    takeMemory(store, std::move(memory));
    return Gdiplus::Ok;
}

void makeOpaque(PixelView view, const Gdiplus::Rect& part)
{
    for (int y = part.Y; y < part.GetBottom(); ++y) {
        Pixel* row = view.row(y);
        for (int x = part.X; x < part.GetRight(); ++x)
            row[x] |= kAlphaBits;
    }
}

bool liesInside(const PixelStore& store, const Gdiplus::Rect& rect)
{
    return rect.X >= 0 && rect.Y >= 0 && rect.Width > 0 && rect.Height > 0 && rect.Width <= store.width - rect.X &&
           rect.Height <= store.height - rect.Y;
}

StraightPixels::StraightPixels(const PixelStore& store) : m_view(store.words())
{
    if (store.isStraight())
        return;
    m_copy = rawMemory(byteCount(store));
    if (!m_copy)
        throw std::bad_alloc();
    const auto stride = static_cast<std::ptrdiff_t>(store.width) * static_cast<std::ptrdiff_t>(sizeof(Pixel));
    const PixelView copy{m_copy.get(), stride, store.width, store.height};
    for (int y = 0; y < store.height; ++y)
        readRow(store.layout, store.row(y), {copy.row(y), static_cast<std::size_t>(store.width)});
    m_view = copy;
}

} // namespace vq::gdiplus
