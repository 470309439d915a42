// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/Bitmap.h"

#include "Platform/gdiplus/BitmapHandle.h"
#include "Platform/gdiplus/FileAccess.h"
#include "Platform/gdiplus/Graphics.h"
#include "Platform/gdiplus/ImageAccess.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

namespace Gdiplus {

using vq::gdiplus::guarded;
using vq::gdiplus::PixelsOrStatus;
using vq::gdiplus::PixelStore;

namespace {

vq::gdiplus::Pixel pixelAt(const PixelStore& store, INT x, INT y)
{
    vq::gdiplus::Pixel pixel = 0;
    readRow(store.layout, store.at(x, y), {&pixel, 1});
    return pixel;
}

/// A number as an INT without its fraction; 0 for what is no number.
INT truncated(REAL value)
{
    constexpr double kLowest = std::numeric_limits<INT>::min();
    constexpr double kHighest = std::numeric_limits<INT>::max();
    return std::isnan(value) ? 0 : static_cast<INT>(std::clamp<double>(value, kLowest, kHighest));
}

} // namespace

Bitmap::Bitmap(const WCHAR* filename, BOOL) : Image(Pixels(), Ok)
{
    take([&]() -> PixelsOrStatus {
        const auto file = filename ? vq::gdiplus::readFile(filename) : std::nullopt;
        if (!file)
            return {nullptr, InvalidParameter};
        return vq::gdiplus::decodedPixels(file->bytes());
    });
}

Bitmap::Bitmap(IStream* stream, BOOL useEmbeddedColorManagement) : Image(stream, useEmbeddedColorManagement) {}

Bitmap::Bitmap(INT width, INT height, INT stride, PixelFormat format, BYTE* scan0) : Image(Pixels(), Ok)
{
    take([&] {
        return scan0 ? vq::gdiplus::pixelsOver(width, height, stride, format, scan0)
                     : vq::gdiplus::createPixels(width, height, format, vq::gdiplus::screenResolution());
    });
}

Bitmap::Bitmap(INT width, INT height, PixelFormat format) : Bitmap(width, height, 0, format, nullptr) {}

Bitmap::Bitmap(INT width, INT height, Graphics* target) : Image(Pixels(), Ok)
{
    take([&]() -> PixelsOrStatus {
        const vq::gdiplus::Resolution resolution{target ? target->GetDpiX() : 0, target ? target->GetDpiY() : 0};
        if (!(resolution.x > 0))
            return {nullptr, InvalidParameter};
        return vq::gdiplus::createPixels(width, height, PixelFormat32bppPARGB, resolution);
    });
}

Bitmap::Bitmap(const BITMAPINFO* gdiBitmapInfo, VOID* gdiBitmapData) : Image(Pixels(), Ok)
{
    take([&] { return vq::gdiplus::pixelsOfDib(gdiBitmapInfo, gdiBitmapData); });
}

Bitmap::Bitmap(HBITMAP hbm, HPALETTE) : Image(Pixels(), Ok)
{
    take([&] { return vq::gdiplus::pixelsOfHandle(hbm); });
}

Bitmap::Bitmap(Pixels pixels, Status status) : Image(std::move(pixels), status) {}

Bitmap* Bitmap::FromFile(const WCHAR* filename, BOOL useEmbeddedColorManagement)
{
    return new Bitmap(filename, useEmbeddedColorManagement);
}

Bitmap* Bitmap::FromStream(IStream* stream, BOOL useEmbeddedColorManagement)
{
    return new Bitmap(stream, useEmbeddedColorManagement);
}

Bitmap* Bitmap::FromBITMAPINFO(const BITMAPINFO* gdiBitmapInfo, VOID* gdiBitmapData)
{
    return new Bitmap(gdiBitmapInfo, gdiBitmapData);
}

Bitmap* Bitmap::FromHBITMAP(HBITMAP hbm, HPALETTE hpal)
{
    return new Bitmap(hbm, hpal);
}

/// Fills a new bitmap with what `make` gives.
template <typename Make>
void Bitmap::take(Make make)
{
    m_lastStatus = guarded([&] {
        PixelsOrStatus made = make();
        m_pixels = std::move(made.pixels);
        return made.status;
    });
}

/// A bitmap of its own around the copy that `make` gives.
template <typename Make>
Bitmap* Bitmap::copied(Make make) const
{
    Bitmap* copy = nullptr;
    setStatus(withPixels([&](const PixelStore& store) {
        PixelsOrStatus made = make(store);
        if (!made.pixels)
            return made.status;
        copy = new Bitmap(std::move(made.pixels), Ok);
        return copy ? Ok : OutOfMemory;
    }));
    return copy;
}

Bitmap* Bitmap::Clone() const
{
    return copied(vq::gdiplus::clonePixels);
}

Bitmap* Bitmap::Clone(const Rect& rect, PixelFormat format) const
{
    return copied([&](const PixelStore& store) -> PixelsOrStatus {
        if (rect.IsEmptyArea())
            return {nullptr, InvalidParameter};
        if (!liesInside(store, rect))
            return {nullptr, OutOfMemory};
        return copyPixels(store, rect, format);
    });
}

Bitmap* Bitmap::Clone(INT x, INT y, INT width, INT height, PixelFormat format) const
{
    return Clone(Rect(x, y, width, height), format);
}

Bitmap* Bitmap::Clone(const RectF& rect, PixelFormat format) const
{
    return Clone(Rect(truncated(rect.X), truncated(rect.Y), truncated(rect.Width), truncated(rect.Height)), format);
}

Bitmap* Bitmap::Clone(REAL x, REAL y, REAL width, REAL height, PixelFormat format) const
{
    return Clone(RectF(x, y, width, height), format);
}

Status Bitmap::LockBits(const Rect* rect, UINT flags, PixelFormat format, BitmapData* lockedBitmapData)
{
    return setStatus(withPixels([&](PixelStore& store) {
        if (!lockedBitmapData)
            return InvalidParameter;
        return lockPixels(store, rect ? *rect : store.bounds(), flags, format, *lockedBitmapData);
    }));
}

Status Bitmap::UnlockBits(BitmapData* lockedBitmapData)
{
    return setStatus(
        withPixels([&](PixelStore& store) { return lockedBitmapData ? unlockPixels(store) : InvalidParameter; }));
}

Status Bitmap::GetPixel(INT x, INT y, Color* color) const
{
    return setStatus(withPixels([&](const PixelStore& store) {
        if (!color || !store.bounds().Contains(x, y))
            return InvalidParameter;
        color->SetValue(pixelAt(store, x, y));
        return Ok;
    }));
}

Status Bitmap::SetPixel(INT x, INT y, const Color& color)
{
    return setStatus(withPixels([&](PixelStore& store) {
        if (IsIndexedPixelFormat(store.format) || !store.bounds().Contains(x, y))
            return InvalidParameter;
        const vq::gdiplus::Pixel pixel = color.GetValue();
        writeRow(store.layout, {&pixel, 1}, store.at(x, y));
        return Ok;
    }));
}

Status Bitmap::SetResolution(REAL xdpi, REAL ydpi)
{
    return setStatus(withPixels([&](PixelStore& store) {
        if (!(xdpi > 0) || !(ydpi > 0) || !std::isfinite(xdpi) || !std::isfinite(ydpi))
            return InvalidParameter;
        store.resolution = {xdpi, ydpi};
        return Ok;
    }));
}

Status Bitmap::GetHBITMAP(const Color& colorBackground, HBITMAP* hbmReturn) const
{
    return setStatus(withPixels([&](const PixelStore& store) {
        if (!hbmReturn)
            return InvalidParameter;
        *hbmReturn = vq::gdiplus::createHandle(store, colorBackground.GetValue());
        return *hbmReturn ? Ok : OutOfMemory;
    }));
}

} // namespace Gdiplus
