// SPDX-License-Identifier: MIT
#include "Platform/win32/SectionHeader.h"

#include <cstring>
#include <limits>

namespace vq::win32 {
namespace {

constexpr DWORD kMasks[3]{0x00FF0000, 0x0000FF00, 0x000000FF};

// The masks take three entries where the declared type has one.
bool hasKnownMasks(const BITMAPINFO& info)
{
    const auto* masks = reinterpret_cast<const BYTE*>(&info) + sizeof(BITMAPINFOHEADER);
    return std::memcmp(masks, kMasks, sizeof kMasks) == 0;
}

} // namespace

std::optional<PixelLayout> layoutOf(const BITMAPINFO& info)
{
    const BITMAPINFOHEADER& header = info.bmiHeader;
    if (header.biSize < sizeof(BITMAPINFOHEADER) || header.biPlanes != 1 || header.biBitCount != 32)
        return std::nullopt;
    if (header.biWidth <= 0 || header.biHeight == 0 || header.biHeight == std::numeric_limits<LONG>::min())
        return std::nullopt;
    const bool topDown = header.biHeight < 0;
    PixelLayout layout{header.biWidth, topDown ? -header.biHeight : header.biHeight, topDown, {}};
    if (header.biCompression == BI_RGB)
        return layout;
    if (header.biCompression != BI_BITFIELDS || !hasKnownMasks(info))
        return std::nullopt;
    std::memcpy(layout.masks, kMasks, sizeof kMasks);
    return layout;
}

void storeMasks(BITMAPINFO& info)
{
    std::memcpy(reinterpret_cast<BYTE*>(&info) + sizeof(BITMAPINFOHEADER), kMasks, sizeof kMasks);
}

} // namespace vq::win32
