// SPDX-License-Identifier: MIT
#include "Platform/win32/Bitmaps.h"

#include "Platform/win32/BitmapObject.h"
#include "Platform/win32/ContextObject.h"
#include "Platform/win32/Errors.h"
#include "Platform/win32/SectionHeader.h"
#include "Platform/win32/StockObjects.h"

#include <cstring>

using namespace vq::win32;

namespace {

std::nullptr_t fail(DWORD error)
{
    SetLastError(error);
    return nullptr;
}

HBITMAP publishBitmap(std::shared_ptr<Bitmap> bitmap)
{
    return bitmap ? static_cast<HBITMAP>(publish(std::move(bitmap))) : nullptr;
}

HBITMAP stockBitmap()
{
    const auto bitmap = stockObject(kDefaultBitmap);
    return bitmap ? static_cast<HBITMAP>(bitmap->handle) : nullptr;
}

bool hasMonochromeBitmap(const Context& context)
{
    return context.target == Context::Target::Memory && static_cast<const Bitmap&>(*context.bitmap).isMonochrome();
}

} // namespace

HBITMAP CreateCompatibleBitmap(HDC context, int width, int height)
{
    const std::scoped_lock lock(gdiLock);
    const auto found = find<Context>(context);
    if (!found)
        return fail(ERROR_INVALID_HANDLE);
    if (width == 0 || height == 0)
        return stockBitmap();
    return publishBitmap(Bitmap::create(width, height, hasMonochromeBitmap(*found) ? 1 : 32));
}

HBITMAP CreateBitmap(int width, int height, UINT planes, UINT bitsPerPixel, const void* bits)
{
    if (planes != 1 || (bitsPerPixel != 1 && bitsPerPixel != 32))
        return fail(planes == 1 ? ERROR_NOT_SUPPORTED : ERROR_INVALID_PARAMETER);
    const std::scoped_lock lock(gdiLock);
    if (width == 0 || height == 0)
        return stockBitmap();
    auto bitmap = Bitmap::create(width, height, static_cast<WORD>(bitsPerPixel));
    if (bitmap && bits)
        std::memcpy(bitmap->memory(), bits,
                    static_cast<std::size_t>(bitmap->bytesPerRow()) * static_cast<std::size_t>(bitmap->height()));
    return publishBitmap(std::move(bitmap));
}

HBITMAP CreateDIBSection(HDC, const BITMAPINFO* info, UINT, void** bits, HANDLE section, DWORD)
{
    if (bits)
        *bits = nullptr;
    const auto layout = info && !section ? layoutOf(*info) : std::nullopt;
    if (!layout)
        return fail(section ? ERROR_NOT_SUPPORTED : ERROR_INVALID_PARAMETER);

    const auto kind = layout->topDown ? Bitmap::Kind::SectionTopDown : Bitmap::Kind::SectionBottomUp;
    auto bitmap = Bitmap::create(layout->width, layout->height, 32, kind);
    if (!bitmap)
        return nullptr;
    bitmap->setSectionHeader(info->bmiHeader, layout->masks);
    BYTE* const memory = bitmap->memory();

    const std::scoped_lock lock(gdiLock);
    const HBITMAP handle = publishBitmap(std::move(bitmap));
    if (handle && bits)
        *bits = memory;
    return handle;
}
