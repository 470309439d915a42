// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/PixelStore.h"
#include "Platform/gdiplus/codecs/Bmp.h"
#include "Platform/gdiplus/codecs/Codecs.h"
#include "Platform/win32/Surface.h"

#include <limits>

namespace vq::gdiplus {
namespace {

using Gdiplus::InvalidParameter;
using Gdiplus::OutOfMemory;

const GUID& rawFormatOf(FileFormat format)
{
    switch (format) {
    case FileFormat::Bmp:
        return Gdiplus::ImageFormatBMP;
    case FileFormat::Jpeg:
        return Gdiplus::ImageFormatJPEG;
    case FileFormat::Gif:
        return Gdiplus::ImageFormatGIF;
    case FileFormat::Tiff:
        return Gdiplus::ImageFormatTIFF;
    case FileFormat::Png:
        return Gdiplus::ImageFormatPNG;
    }
    return Gdiplus::ImageFormatUndefined;
}

/// The shape of a device-independent bitmap; sizes are positive.
struct DibShape
{
    std::int64_t width;
    std::int64_t height;
    std::int64_t stride;
    bool isTopDown;
};

/// Empty for sizes that no bitmap can have.
std::optional<DibShape> shapeOf(const BITMAPINFOHEADER& header)
{
    const std::int64_t height = header.biHeight;
    const DibShape shape{header.biWidth, std::abs(height),
                         (std::int64_t{header.biWidth} * header.biBitCount + 31) / 32 * 4, height < 0};
    if (shape.width <= 0 || shape.height == 0 || shape.stride > std::numeric_limits<INT>::max())
        return std::nullopt;
    return shape;
}

/// Colours and channel masks that stand behind the header in memory.
std::size_t tableBytes(const BITMAPINFOHEADER& header)
{
    if (header.biCompression == BI_BITFIELDS && header.biSize == sizeof(BITMAPINFOHEADER))
        return 3 * sizeof(DWORD);
    if (header.biBitCount > 8)
        return 0;
    const DWORD colours = DWORD{1} << header.biBitCount;
    return sizeof(RGBQUAD) * (header.biClrUsed == 0 ? colours : std::min(header.biClrUsed, colours));
}

std::span<const std::uint8_t> bytesAt(const void* address, std::size_t count)
{
    return {static_cast<const std::uint8_t*>(address), count};
}

/// Decodes the bitmap as the file that it would be.
PixelsOrStatus decodedDib(const BITMAPINFO& info, const void* bits, const DibShape& shape)
{
    const std::size_t headerBytes = info.bmiHeader.biSize + tableBytes(info.bmiHeader);
    const auto pixelBytes = static_cast<std::size_t>(shape.stride * shape.height);
    BITMAPFILEHEADER fileHeader{};
    fileHeader.bfType = 0x4D42; // "BM"
    fileHeader.bfOffBits = static_cast<DWORD>(sizeof fileHeader + headerBytes);

    FileBytes file;
    if (!file.reserve(sizeof fileHeader + headerBytes + pixelBytes) ||
        !file.append(bytesAt(&fileHeader, sizeof fileHeader)) || !file.append(bytesAt(&info, headerBytes)) ||
        !file.append(bytesAt(bits, pixelBytes)))
        return {nullptr, OutOfMemory};
    auto picture = decodeBmp(file.bytes());
    if (!picture)
        return {nullptr, InvalidParameter};
    picture->dpiX = screenResolution().x;
    picture->dpiY = screenResolution().y;
    return pixelsFrom(std::move(*picture), Gdiplus::ImageFormatMemoryBMP);
}

} // namespace

PixelsOrStatus decodedPixels(std::span<const std::uint8_t> file)
{
    const auto format = fileFormat(file);
    auto picture = decodePicture(file);
    if (!format || !picture)
        return {nullptr, InvalidParameter};
    return pixelsFrom(std::move(*picture), rawFormatOf(*format));
}

PixelsOrStatus pixelsOfDib(const BITMAPINFO* info, void* bits)
{
    constexpr DWORD kLargestHeader = 124; // BITMAPV5HEADER
    if (!info || !bits || info->bmiHeader.biSize < sizeof(BITMAPINFOHEADER) || info->bmiHeader.biSize > kLargestHeader)
        return {nullptr, InvalidParameter};
    const BITMAPINFOHEADER& header = info->bmiHeader;
    const auto shape = shapeOf(header);
    if (!shape)
        return {nullptr, InvalidParameter};
    const bool isPlain = header.biCompression == BI_RGB;
    if (isPlain && (header.biBitCount == 24 || header.biBitCount == 32)) {
        const auto format = header.biBitCount == 24 ? PixelFormat24bppRGB : PixelFormat32bppRGB;
        auto* first = static_cast<std::uint8_t*>(bits);
        const auto stride = static_cast<std::ptrdiff_t>(shape->stride);
        const auto height = static_cast<int>(shape->height);
        return shape->isTopDown ? pixelsOver(header.biWidth, height, stride, format, first)
                                : pixelsOver(header.biWidth, height, -stride, format, first + (height - 1) * stride);
    }
    const bool isSmall =
        header.biBitCount == 1 || header.biBitCount == 4 || header.biBitCount == 8 || header.biBitCount == 16;
    const bool hasMasks = header.biCompression == BI_BITFIELDS && (header.biBitCount == 16 || header.biBitCount == 32);
    if (!(isPlain && isSmall) && !hasMasks)
        return {nullptr, InvalidParameter};
    return decodedDib(*info, bits, *shape);
}

PixelsOrStatus pixelsOfHandle(HBITMAP bitmap)
{
    const auto surface = win32::surfaceOf(bitmap);
    if (!surface)
        return {nullptr, InvalidParameter};
    const auto original =
        pixelsOver(surface->width, surface->height, surface->stride, PixelFormat32bppRGB, surface->top);
    if (!original.pixels)
        return original;
    return clonePixels(*original.pixels);
}

} // namespace vq::gdiplus
