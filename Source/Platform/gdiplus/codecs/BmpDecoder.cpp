// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Bmp.h"
#include "Platform/gdiplus/codecs/BmpHeader.h"
#include "Platform/gdiplus/codecs/BmpRunLength.h"
#include "Platform/gdiplus/codecs/LittleEndian.h"

#include <bit>

namespace vq::gdiplus {
namespace {

using bmp::Header;
using bmp::Storage;

/// A channel of a masked pixel, widened to 8 bits by repeating its bits (so that all ones are 255) or narrowed to its
/// upper 8.
class StoredChannel
{
public:
    StoredChannel(std::uint32_t mask, std::uint8_t whenAbsent) : m_mask(mask)
    {
        const int width = std::popcount(mask);
        m_shift = mask == 0 ? 0 : std::countr_zero(mask) + (width > 8 ? width - 8 : 0);
        const int kept = width > 8 ? 8 : width;
        for (unsigned value = 0; value < 1u << kept; ++value)
            m_scaled[value] = kept == 0 ? whenAbsent : repeated(value, kept);
    }

    Pixel of(std::uint32_t pixel) const { return m_scaled[(pixel & m_mask) >> m_shift]; }

private:
    static std::uint8_t repeated(unsigned value, int width)
    {
        unsigned result = 0;
        for (int place = 8 - width; place > -width; place -= width)
            result |= place >= 0 ? value << place : value >> -place;
        return static_cast<std::uint8_t>(result);
    }

    std::uint32_t m_mask;
    int m_shift;
    std::array<std::uint8_t, 256> m_scaled{};
};

/// Turns one stored row into pixels.
class RowConverter
{
public:
    explicit RowConverter(const Header& header)
        : m_header(header), m_red(header.masks.red, 0), m_green(header.masks.green, 0), m_blue(header.masks.blue, 0),
          m_alpha(header.masks.alpha, 255), m_isPlain32(areOwnMasks(header.masks))
    {
    }

    void convert(std::span<const std::uint8_t> stored, std::span<Pixel> row) const
    {
        switch (m_header.bitsPerPixel) {
        case 16:
            return convertMasked<2>(stored, row);
        case 24:
            return convert24(stored, row);
        case 32:
            return m_isPlain32 ? convertPlain32(stored, row) : convertMasked<4>(stored, row);
        default:
            return convertIndexed(stored, row);
        }
    }

private:
    void convertIndexed(std::span<const std::uint8_t> stored, std::span<Pixel> row) const
    {
        const auto bits = static_cast<unsigned>(m_header.bitsPerPixel);
        const unsigned pixelsPerByte = 8 / bits;
        const unsigned mask = (1u << bits) - 1;
        for (std::size_t x = 0; x < row.size(); ++x) {
            const auto placesLeft = static_cast<unsigned>(pixelsPerByte - 1 - x % pixelsPerByte);
            row[x] = m_header.palette[stored[x / pixelsPerByte] >> (placesLeft * bits) & mask];
        }
    }

    static void convert24(std::span<const std::uint8_t> stored, std::span<Pixel> row)
    {
        for (std::size_t x = 0; x < row.size(); ++x)
            row[x] = kAlphaBits | Pixel{stored[3 * x + 2]} << 16 | Pixel{stored[3 * x + 1]} << 8 | stored[3 * x];
    }

    /// The channels lie as in our own pixels: three times as fast as by masks.
    void convertPlain32(std::span<const std::uint8_t> stored, std::span<Pixel> row) const
    {
        const Pixel absentAlpha = m_header.masks.alpha == 0 ? kAlphaBits : 0;
        for (std::size_t x = 0; x < row.size(); ++x)
            row[x] = littleEndian32(stored, 4 * x) | absentAlpha;
    }

    static bool areOwnMasks(const bmp::ChannelMasks& masks)
    {
        return masks.red == 0x00FF0000 && masks.green == 0x0000FF00 && masks.blue == 0x000000FF &&
               (masks.alpha == kAlphaBits || masks.alpha == 0);
    }

    template <std::size_t bytesPerPixel>
    void convertMasked(std::span<const std::uint8_t> stored, std::span<Pixel> row) const
    {
        for (std::size_t x = 0; x < row.size(); ++x) {
            const std::uint32_t pixel =
                bytesPerPixel == 2 ? littleEndian16(stored, 2 * x) : littleEndian32(stored, 4 * x);
            row[x] = m_alpha.of(pixel) << 24 | m_red.of(pixel) << 16 | m_green.of(pixel) << 8 | m_blue.of(pixel);
        }
    }

    const Header& m_header;
    StoredChannel m_red, m_green, m_blue, m_alpha;
    bool m_isPlain32;
};

/// Rows lie at multiples of four bytes.
struct RowLayout
{
    std::size_t usedBytes;
    std::size_t stride;

    explicit RowLayout(const Header& header)
        : usedBytes((static_cast<std::size_t>(header.width) * static_cast<std::size_t>(header.bitsPerPixel) + 7) / 8),
          stride((usedBytes + 3) / 4 * 4)
    {
    }

    std::size_t bytes(int rows) const { return static_cast<std::size_t>(rows - 1) * stride + usedBytes; }
};

/// Whether the data can be the whole picture; asked before memory is taken.
bool claimIsCredible(const Header& header)
{
    if (header.storage == Storage::Plain)
        return RowLayout(header).bytes(header.height) <= header.pixelData.size();
    const std::int64_t pixels = std::int64_t{header.width} * header.height;
    return pixels <= kMaxPixelsPerByte * static_cast<std::int64_t>(header.pixelData.size());
}

void decodePlain(const Header& header, PixelView target)
{
    const RowLayout layout(header);
    const RowConverter converter(header);
    for (int line = 0; line < header.height; ++line) {
        const auto stored = header.pixelData.subspan(static_cast<std::size_t>(line) * layout.stride, layout.usedBytes);
        Pixel* row = target.row(header.topRowFirst ? line : header.height - 1 - line);
        converter.convert(stored, {row, static_cast<std::size_t>(header.width)});
    }
}

} // namespace

bool isBmp(std::span<const std::uint8_t> file)
{
    return file.size() >= 2 && file[0] == 'B' && file[1] == 'M';
}

std::optional<Picture> decodeBmp(std::span<const std::uint8_t> file)
{
    if (!isBmp(file))
        return std::nullopt;
    const auto header = bmp::readHeader(file);
    if (!header || !claimIsCredible(*header))
        return std::nullopt;

    std::optional<Picture> picture = allocatePicture(header->width, header->height);
    if (!picture)
        return std::nullopt;
    picture->format = header->format;
    picture->dpiX = header->dpiX;
    picture->dpiY = header->dpiY;
    if (header->storage == Storage::Plain)
        decodePlain(*header, picture->view());
    else if (!bmp::decodeRunLength(*header, picture->view()))
        return std::nullopt;
    return picture;
}

} // namespace vq::gdiplus
