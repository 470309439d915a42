// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/BmpHeader.h"

#include "Platform/gdiplus/codecs/LittleEndian.h"
#include "Platform/gdiplus/codecs/Resolution.h"

#include <algorithm>
#include <bit>

namespace vq::gdiplus::bmp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kCoreHeaderBytes = 12;
constexpr std::size_t kOs2HeaderBytes = 64;                               // other fields where Windows has masks
constexpr std::size_t kMasksOffset = kFileHeaderBytes + kInfoHeaderBytes; // in a longer header, or behind a short one

// The Compression field, by Microsoft's names.
constexpr std::uint32_t kBiRgb = 0;
constexpr std::uint32_t kBiRle8 = 1;
constexpr std::uint32_t kBiRle4 = 2;
constexpr std::uint32_t kBiBitFields = 3;
constexpr std::uint32_t kBiAlphaBitFields = 6;

constexpr ChannelMasks kMasks555{0x7C00, 0x03E0, 0x001F, 0};
constexpr ChannelMasks kMasks565{0xF800, 0x07E0, 0x001F, 0};
constexpr ChannelMasks kMasks888{0x00FF0000, 0x0000FF00, 0x000000FF, 0};

/// The fields in the words of the file, before anything is concluded from them.
struct Fields
{
    std::size_t headerBytes;
    std::int64_t width;
    std::int64_t height; // negative: top row first
    int bitsPerPixel;
    std::uint32_t compression;
    std::uint32_t pixelsPerMetreX;
    std::uint32_t pixelsPerMetreY;
    std::uint32_t coloursUsed;

    bool isCore() const { return headerBytes == kCoreHeaderBytes; }
    bool hasMasks() const { return compression == kBiBitFields || compression == kBiAlphaBitFields; }
};

/// Core, info, with three masks, with four masks, OS/2's second, V4 and V5.
bool isKnownHeader(std::size_t bytes)
{
    constexpr std::size_t kKnown[] = {kCoreHeaderBytes, kInfoHeaderBytes, 52, 56, kOs2HeaderBytes, 108, 124};
    return std::ranges::find(kKnown, bytes) != std::end(kKnown);
}

std::int64_t signed32(Bytes file, std::size_t offset)
{
    return static_cast<std::int32_t>(littleEndian32(file, offset));
}

std::optional<Fields> readFields(Bytes file)
{
    if (file.size() < kFileHeaderBytes + kCoreHeaderBytes)
        return std::nullopt;
    Fields fields{};
    fields.headerBytes = littleEndian32(file, 14);
    if (!isKnownHeader(fields.headerBytes) || file.size() < kFileHeaderBytes + fields.headerBytes)
        return std::nullopt;

    if (fields.isCore()) {
        fields.width = littleEndian16(file, 18);
        fields.height = littleEndian16(file, 20);
        fields.bitsPerPixel = littleEndian16(file, 24);
        return fields;
    }
    fields.width = signed32(file, 18);
    fields.height = signed32(file, 22);
    fields.bitsPerPixel = littleEndian16(file, 28);
    fields.compression = littleEndian32(file, 30);
    fields.pixelsPerMetreX = littleEndian32(file, 38);
    fields.pixelsPerMetreY = littleEndian32(file, 42);
    fields.coloursUsed = littleEndian32(file, 46);
    return fields;
}

/// Empty for a pair that does not exist.
std::optional<Storage> storageOf(const Fields& fields)
{
    const int bits = fields.bitsPerPixel;
    switch (fields.compression) {
    case kBiRgb:
        if (bits == 1 || bits == 4 || bits == 8 || bits == 24)
            return Storage::Plain;
        return !fields.isCore() && (bits == 16 || bits == 32) ? std::optional(Storage::Plain) : std::nullopt;
    case kBiRle8:
        return bits == 8 ? std::optional(Storage::RunLength8) : std::nullopt;
    case kBiRle4:
        return bits == 4 ? std::optional(Storage::RunLength4) : std::nullopt;
    case kBiBitFields:
    case kBiAlphaBitFields:
        if (fields.headerBytes == kOs2HeaderBytes)
            return std::nullopt; // OS/2's own compressions
        return bits == 16 || bits == 32 ? std::optional(Storage::Plain) : std::nullopt;
    default:
        return std::nullopt;
    }
}

/// Three masks always, a fourth where the header has room for it or the compression says so.
std::size_t maskBytes(const Fields& fields)
{
    if (!fields.hasMasks())
        return 0;
    return fields.headerBytes >= 56 || fields.compression == kBiAlphaBitFields ? 16 : 12;
}

/// Where headers and masks end.
std::size_t headersEnd(const Fields& fields)
{
    const std::size_t end = kFileHeaderBytes + fields.headerBytes;
    return fields.hasMasks() ? std::max(end, kMasksOffset + maskBytes(fields)) : end;
}

bool isOneRun(std::uint32_t mask)
{
    return mask == 0 || std::has_single_bit((mask >> std::countr_zero(mask)) + std::uint64_t{1});
}

std::optional<ChannelMasks> masksOf(Bytes file, const Fields& fields)
{
    if (!fields.hasMasks())
        return fields.bitsPerPixel == 16 ? kMasks555 : kMasks888;
    const ChannelMasks masks{littleEndian32(file, kMasksOffset), littleEndian32(file, kMasksOffset + 4),
                             littleEndian32(file, kMasksOffset + 8),
                             maskBytes(fields) == 16 ? littleEndian32(file, kMasksOffset + 12) : 0};
    if (!isOneRun(masks.red) || !isOneRun(masks.green) || !isOneRun(masks.blue) || !isOneRun(masks.alpha))
        return std::nullopt;
    return masks;
}

PictureFormat formatOf(int bitsPerPixel, const ChannelMasks& masks)
{
    switch (bitsPerPixel) {
    case 1:
        return PictureFormat::Indexed1;
    case 4:
        return PictureFormat::Indexed4;
    case 8:
        return PictureFormat::Indexed8;
    case 24:
        return PictureFormat::Rgb24;
    default:
        break;
    }
    if (masks.alpha != 0)
        return PictureFormat::Argb32;
    if (bitsPerPixel == 32)
        return PictureFormat::Rgb32;
    return masks.green == kMasks565.green ? PictureFormat::Rgb565 : PictureFormat::Rgb555;
}

/// Entries are blue, green, red and, but for OS/2's first header, a byte without meaning. The table ends where the
/// pixels begin, whatever the header counts.
void readPalette(Bytes file, const Fields& fields, std::size_t pixelOffset, Header& header)
{
    header.palette.fill(kAlphaBits);
    if (fields.bitsPerPixel > 8)
        return;
    const std::size_t begin = headersEnd(fields);
    const std::size_t entryBytes = fields.isCore() ? 3 : 4;
    std::size_t count = std::size_t{1} << fields.bitsPerPixel;
    if (fields.coloursUsed != 0)
        count = std::min<std::size_t>(count, fields.coloursUsed);
    count = std::min(count, (pixelOffset - begin) / entryBytes);
    for (std::size_t i = 0; i < count; ++i) {
        const auto entry = file.subspan(begin + i * entryBytes, 3);
        header.palette[i] = kAlphaBits | Pixel{entry[2]} << 16 | Pixel{entry[1]} << 8 | entry[0];
    }
}

} // namespace

std::optional<Header> readHeader(std::span<const std::uint8_t> file)
{
    const auto fields = readFields(file);
    if (!fields)
        return std::nullopt;
    const auto storage = storageOf(*fields);
    const std::int64_t height = fields->height < 0 ? -fields->height : fields->height;
    if (!storage || !isPictureSize(fields->width, height))
        return std::nullopt;

    const std::size_t pixelOffset = littleEndian32(file, 10);
    if (pixelOffset < headersEnd(*fields) || pixelOffset > file.size())
        return std::nullopt;
    const auto masks = masksOf(file, *fields);
    if (!masks)
        return std::nullopt;

    Header header;
    header.width = static_cast<int>(fields->width);
    header.height = static_cast<int>(height);
    header.topRowFirst = fields->height < 0;
    header.bitsPerPixel = fields->bitsPerPixel;
    header.storage = *storage;
    header.masks = *masks;
    header.format = formatOf(fields->bitsPerPixel, *masks);
    header.dpiX = dpiFromPixelsPerMetre(fields->pixelsPerMetreX);
    header.dpiY = dpiFromPixelsPerMetre(fields->pixelsPerMetreY);
    header.pixelData = file.subspan(pixelOffset);
    readPalette(file, *fields, pixelOffset, header);
    return header;
}

} // namespace vq::gdiplus::bmp
