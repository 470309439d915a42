// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Bmp.h"
#include "Platform/gdiplus/codecs/BmpHeader.h"
#include "Platform/gdiplus/codecs/LittleEndian.h"
#include "Platform/gdiplus/codecs/Resolution.h"

#include <limits>

namespace vq::gdiplus {
namespace {

constexpr std::size_t kHeaderBytes = bmp::kFileHeaderBytes + bmp::kInfoHeaderBytes;

using HeaderBytes = std::array<std::uint8_t, kHeaderBytes>;

HeaderBytes headerOf(const ConstPixelView& pixels, std::uint32_t pixelBytes, double dpiX, double dpiY)
{
    constexpr std::uint32_t kMostPixelsPerMetre = 0x7FFFFFFF; // a signed field
    HeaderBytes header{'B', 'M'};
    putLittleEndian32(header, 2, static_cast<std::uint32_t>(kHeaderBytes) + pixelBytes);
    putLittleEndian32(header, 10, kHeaderBytes);
    putLittleEndian32(header, 14, bmp::kInfoHeaderBytes);
    putLittleEndian32(header, 18, static_cast<std::uint32_t>(pixels.width));
    putLittleEndian32(header, 22, static_cast<std::uint32_t>(pixels.height));
    putLittleEndian16(header, 26, 1);  // planes
    putLittleEndian16(header, 28, 32); // bits per pixel; compression stays 0
    putLittleEndian32(header, 34, pixelBytes);
    putLittleEndian32(header, 38, wholeResolution(dpiX, kInchesPerMetre, kMostPixelsPerMetre));
    putLittleEndian32(header, 42, wholeResolution(dpiY, kInchesPerMetre, kMostPixelsPerMetre));
    return header;
}

} // namespace

std::optional<FileBytes> encodeBmp(ConstPixelView pixels, double dpiX, double dpiY)
{
    constexpr std::uint64_t kMaxPixelBytes = std::numeric_limits<std::uint32_t>::max() - kHeaderBytes;
    if (pixels.width < 1 || pixels.height < 1)
        return std::nullopt;
    const std::uint64_t rowBytes = sizeof(Pixel) * static_cast<std::uint64_t>(pixels.width);
    const std::uint64_t pixelBytes = rowBytes * static_cast<std::uint64_t>(pixels.height);
    if (pixelBytes > kMaxPixelBytes)
        return std::nullopt;

    FileBytes file;
    const HeaderBytes header = headerOf(pixels, static_cast<std::uint32_t>(pixelBytes), dpiX, dpiY);
    if (!file.reserve(kHeaderBytes + pixelBytes) || !file.append(header))
        return std::nullopt;
    for (int y = pixels.height - 1; y >= 0; --y)
        if (!file.append({pixels.top + y * pixels.stride, rowBytes}))
            return std::nullopt;
    return file;
}

} // namespace vq::gdiplus
