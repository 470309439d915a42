// SPDX-License-Identifier: MIT
// The library's own reader of Windows bitmaps, for pictures and for masks.
#include "VQDraw/VQDIB.h"

#include "VQDraw/image/FileOwner.h"
#include "VQDraw/image/ImageSize.h"
#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <optional>
#include <utility>
#include <vector>

namespace {

constexpr WORD kSignature = 0x4D42; // "BM"
constexpr WORD kBitsPerPixel = 24;
constexpr std::int64_t kBytesPerPixel = 3;

struct Headers
{
    BITMAPFILEHEADER file;
    BITMAPINFOHEADER info;

    std::int64_t rowBytes() const { return info.biWidth * kBytesPerPixel; }
    std::int64_t paddedRowBytes() const { return (rowBytes() + 3) / 4 * 4; }
    /// Behind the last pixel; the padding after it may be missing.
    std::int64_t end() const { return file.bfOffBits + paddedRowBytes() * (info.biHeight - 1) + rowBytes(); }
};

struct Picture
{
    LONG width;
    LONG height;
    vq::platform::PixelMemory<ULONG> pixels; // opaque, from the top
};

/// -1 when it cannot be found out.
std::int64_t sizeOf(std::FILE* file)
{
    return std::fseek(file, 0, SEEK_END) == 0 ? std::ftell(file) : -1;
}

/// Those of a picture that the file is long enough for.
std::optional<Headers> readHeaders(std::FILE* file)
{
    Headers headers;
    if (std::fread(&headers.file, sizeof headers.file, 1, file) != 1 || headers.file.bfType != kSignature ||
        std::fread(&headers.info, sizeof headers.info, 1, file) != 1 || headers.info.biBitCount != kBitsPerPixel)
        return std::nullopt;
    if (headers.info.biWidth < 1 || headers.info.biHeight < 1 ||
        !vq::isRepresentable(headers.info.biWidth, headers.info.biHeight) || headers.end() > sizeOf(file))
        return std::nullopt;
    return headers;
}

void unpackRow(const BYTE* from, ULONG* to, LONG width)
{
    for (LONG x = 0; x < width; ++x, from += kBytesPerPixel)
        to[x] = vq::argb(255, from[2], from[1], from[0]);
}

std::optional<Picture> readPicture(const CString& path)
{
    const vq::FileOwner file = vq::openFile(path, L"rb");
    const auto headers = file ? readHeaders(file.get()) : std::nullopt;
    if (!headers || std::fseek(file.get(), static_cast<long>(headers->file.bfOffBits), SEEK_SET) != 0)
        return std::nullopt;
    Picture picture{headers->info.biWidth, headers->info.biHeight, nullptr};
    const auto width = static_cast<std::size_t>(picture.width);
    picture.pixels.reset(static_cast<ULONG*>(
        vq::platform::allocateRaw(width * static_cast<std::size_t>(picture.height) * sizeof(ULONG))));
    if (!picture.pixels)
        return std::nullopt;

    std::vector<BYTE> row(static_cast<std::size_t>(headers->paddedRowBytes()));
    const auto bytesOfPixels = static_cast<std::size_t>(headers->rowBytes());
    for (LONG y = picture.height - 1; y >= 0; --y) {
        if (std::fread(row.data(), 1, row.size(), file.get()) < (y > 0 ? row.size() : bytesOfPixels))
            return std::nullopt;
        unpackRow(row.data(), picture.pixels.get() + static_cast<std::size_t>(y) * width, picture.width);
    }
    return picture;
}

/// A mask never makes a pixel fully transparent.
BYTE alphaOfMask(ULONG pixel)
{
    constexpr ULONG kLeast = 64;
    return static_cast<BYTE>(std::min<ULONG>((pixel >> 16 & 0xFF) + kLeast, 255));
}

} // namespace

bool CVQDIB::LoadBMP(CString path)
{
    auto picture = readPicture(path);
    if (!picture)
        return false;
    CVQDIB fresh(static_cast<CVQDIB*>(nullptr));
    if (!fresh.Adopt(picture->pixels.release(), picture->width, picture->height))
        return false;
    ExchangePicture(fresh);
    return true;
}

bool CVQDIB::LoadMaskBMP(CString path)
{
    const auto mask = readPicture(path);
    if (!mask)
        return false;
    const LONG width = std::min(mask->width, m_iWidth);
    for (LONG y = 0; y < std::min(mask->height, m_iHeight); ++y) {
        const ULONG* from = mask->pixels.get() + std::int64_t{y} * mask->width;
        ULONG* row = GetImageBuffer(0, y);
        std::transform(from, from + width, row, row,
                       [](ULONG maskPixel, ULONG pixel) { return vq::withAlpha(pixel, alphaOfMask(maskPixel)); });
    }
    return true;
}
