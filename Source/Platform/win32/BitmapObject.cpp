// SPDX-License-Identifier: MIT
#include "Platform/win32/BitmapObject.h"

#include "Platform/win32/Errors.h"
#include "Platform/win32/GdiObjects.h"

#include <cstring>
#include <limits>

namespace vq::win32 {
namespace {

// Rows of bitmaps are padded to 16 bits, those of sections to 32, which for 32 bits per pixel is the same.
std::int64_t bytesPerRowOf(LONG width, WORD bitsPerPixel)
{
    return (std::int64_t{width} * bitsPerPixel + 15) / 16 * 2;
}

std::nullptr_t fail(DWORD error)
{
    SetLastError(error);
    return nullptr;
}

} // namespace

std::shared_ptr<Bitmap> Bitmap::create(LONG width, LONG height, WORD bitsPerPixel, Kind kind)
{
    if (width <= 0 || height <= 0)
        return fail(ERROR_INVALID_PARAMETER);
    const std::int64_t bytesPerRow = bytesPerRowOf(width, bitsPerPixel);
    if (bytesPerRow > std::numeric_limits<LONG>::max() / height)
        return fail(ERROR_NOT_ENOUGH_MEMORY);
    auto bitmap = tryMake<Bitmap>();
    if (!bitmap)
        return fail(ERROR_NOT_ENOUGH_MEMORY);
    bitmap->m_kind = kind;
    bitmap->m_memory.reset(
        static_cast<BYTE*>(vq::platform::allocateZeroed(static_cast<std::size_t>(bytesPerRow * height))));
    if (!bitmap->m_memory)
        return fail(ERROR_NOT_ENOUGH_MEMORY);

    const bool isSection = kind != Kind::Compatible;
    bitmap->m_record = {.bmType = 0,
                        .bmWidth = width,
                        .bmHeight = height,
                        .bmWidthBytes = static_cast<LONG>(bytesPerRow),
                        .bmPlanes = 1,
                        .bmBitsPixel = bitsPerPixel,
                        .bmBits = isSection ? bitmap->m_memory.get() : nullptr};
    return bitmap;
}

void Bitmap::setSectionHeader(const BITMAPINFOHEADER& header, const DWORD (&masks)[3])
{
    m_section.dsBm = m_record;
    m_section.dsBmih = header;
    m_section.dsBmih.biSize = sizeof(BITMAPINFOHEADER);
    m_section.dsBmih.biHeight = height(); // whatever the order of the rows is
    m_section.dsBmih.biSizeImage = static_cast<DWORD>(bytesPerRow()) * static_cast<DWORD>(height());
    m_section.dsBmih.biClrUsed = 0;
    std::memcpy(m_section.dsBitfields, masks, sizeof masks);
}

DWORD Bitmap::type() const
{
    return OBJ_BITMAP;
}

int Bitmap::describe(int bytes, void* buffer) const
{
    constexpr int kFull = sizeof(DIBSECTION);
    constexpr int kShort = sizeof(BITMAP);
    if (m_kind != Kind::Compatible && bytes >= kFull) {
        std::memcpy(buffer, &m_section, kFull);
        return kFull;
    }
    if (bytes < kShort)
        return 0;
    std::memcpy(buffer, &m_record, kShort);
    return kShort;
}

std::optional<Surface> Bitmap::surface() const
{
    if (isMonochrome())
        return std::nullopt;
    const std::ptrdiff_t stride = bytesPerRow();
    if (m_kind == Kind::SectionBottomUp)
        return Surface{memory() + stride * (height() - 1), -stride, width(), height()};
    return Surface{memory(), stride, width(), height()};
}

} // namespace vq::win32
