// SPDX-License-Identifier: MIT
#include "Platform/win32/BitmapObject.h"
#include "Platform/win32/Bitmaps.h"
#include "Platform/win32/ContextObject.h"
#include "Platform/win32/Errors.h"
#include "Platform/win32/SectionHeader.h"

#include <algorithm>
#include <cstring>

using namespace vq::win32;

namespace {

struct Target
{
    std::shared_ptr<Bitmap> bitmap;
    Surface surface;
};

std::optional<Target> targetOf(HBITMAP handle)
{
    auto bitmap = find<Bitmap>(handle);
    const auto surface = bitmap ? bitmap->surface() : std::nullopt;
    if (!surface)
        return std::nullopt;
    return Target{std::move(bitmap), *surface};
}

int fail(DWORD error)
{
    SetLastError(error);
    return 0;
}

std::size_t bytesOf(LONG pixels)
{
    return static_cast<std::size_t>(pixels) * 4;
}

// Rows are numbered from the bottom of the header's picture, which lies at the top left of the bitmap.
class RowRange
{
public:
    RowRange(const PixelLayout& layout, UINT first, UINT count)
        : m_layout(layout), m_first(first), m_count(std::min<std::int64_t>(count, std::int64_t{layout.height} - first))
    {
    }

    bool isEmpty() const { return m_count <= 0; }
    std::int64_t count() const { return m_count; }

    /// The bitmap's row, counted from the top, that belongs to row `index` in the host's memory.
    std::int64_t bitmapRow(std::int64_t index) const
    {
        const std::int64_t fromBottom = m_first + (m_layout.topDown ? m_count - 1 - index : index);
        return m_layout.height - 1 - fromBottom;
    }

private:
    const PixelLayout& m_layout;
    std::int64_t m_first;
    std::int64_t m_count;
};

int describeBitmap(const Bitmap& bitmap, BITMAPINFOHEADER& header)
{
    const DWORD size = header.biSize;
    header = {};
    header.biSize = size;
    header.biWidth = bitmap.width();
    header.biHeight = bitmap.height();
    header.biPlanes = 1;
    header.biBitCount = 32;
    header.biCompression = BI_BITFIELDS;
    header.biSizeImage = static_cast<DWORD>(bitmap.bytesPerRow()) * static_cast<DWORD>(bitmap.height());
    return bitmap.height();
}

void completeHeader(BITMAPINFO& info, const PixelLayout& layout)
{
    info.bmiHeader.biSizeImage = static_cast<DWORD>(layout.width) * 4 * static_cast<DWORD>(layout.height);
    info.bmiHeader.biClrUsed = 0;
}

// The masks of a header that asks for them are an output here.
std::optional<PixelLayout> layoutToFill(BITMAPINFO& info)
{
    if (info.bmiHeader.biCompression == BI_BITFIELDS && info.bmiHeader.biBitCount == 32)
        storeMasks(info);
    return layoutOf(info);
}

int copyOut(const Surface& surface, const PixelLayout& layout, const RowRange& rows, BYTE* bits)
{
    const std::size_t stride = bytesOf(layout.width);
    const std::size_t common = bytesOf(std::min(layout.width, surface.width));
    int taken = 0;
    for (std::int64_t index = 0; index < rows.count(); ++index, bits += stride) {
        const std::int64_t row = rows.bitmapRow(index);
        const bool exists = row < surface.height;
        if (exists)
            std::memcpy(bits, surface.row(static_cast<LONG>(row)), common);
        const std::size_t filled = exists ? common : 0;
        std::memset(bits + filled, 0, stride - filled);
        taken += exists;
    }
    return taken;
}

} // namespace

int GetDIBits(HDC context, HBITMAP bitmap, UINT firstRow, UINT rows, LPVOID bits, BITMAPINFO* info, UINT)
{
    std::unique_lock lock(gdiLock);
    if (!info || !find<Context>(context))
        return fail(ERROR_INVALID_PARAMETER);
    const auto target = targetOf(bitmap);
    lock.unlock();
    if (!target)
        return fail(ERROR_INVALID_HANDLE);
    if (info->bmiHeader.biSize < sizeof(BITMAPINFOHEADER))
        return fail(ERROR_INVALID_PARAMETER);
    if (!bits && info->bmiHeader.biBitCount == 0)
        return describeBitmap(*target->bitmap, info->bmiHeader);

    const auto layout = layoutToFill(*info);
    if (!layout)
        return fail(ERROR_INVALID_PARAMETER);
    completeHeader(*info, *layout);
    const RowRange range(*layout, firstRow, rows);
    if (!bits || range.isEmpty())
        return 1; // the header was filled in
    return copyOut(target->surface, *layout, range, static_cast<BYTE*>(bits));
}

int SetDIBits(HDC, HBITMAP bitmap, UINT firstRow, UINT rows, const void* bits, const BITMAPINFO* info, UINT)
{
    const auto layout = info && bits ? layoutOf(*info) : std::nullopt;
    if (!layout)
        return fail(ERROR_INVALID_PARAMETER);
    std::unique_lock lock(gdiLock);
    const auto target = targetOf(bitmap);
    lock.unlock();
    if (!target)
        return fail(ERROR_INVALID_HANDLE);

    const RowRange range(*layout, firstRow, rows);
    const Surface& surface = target->surface;
    const std::size_t common = bytesOf(std::min(layout->width, surface.width));
    const auto* source = static_cast<const BYTE*>(bits);
    for (std::int64_t index = 0; index < range.count(); ++index, source += bytesOf(layout->width)) {
        const std::int64_t row = range.bitmapRow(index);
        if (row < surface.height)
            std::memcpy(surface.row(static_cast<LONG>(row)), source, common);
    }
    return static_cast<int>(std::max<std::int64_t>(range.count(), 0));
}
