// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/PngRows.h"

#include "Platform/gdiplus/codecs/FileBytes.h"
#include "Platform/gdiplus/codecs/PngChunks.h"
#include "Platform/gdiplus/codecs/PngFilters.h"

#include <algorithm>
#include <cstring>
#include <memory>

#include <libdeflate.h>

namespace vq::gdiplus::png {
namespace {

using Bytes = std::span<const std::uint8_t>;

struct Chunk
{
    ChunkType type;
    Bytes content;
};

/// The next chunk, which `rest` loses. Checksums are not looked at, as on the patient way.
std::optional<Chunk> nextChunk(Bytes& rest)
{
    constexpr std::size_t kFrame = 12; // length, type, checksum
    if (rest.size() < kFrame)
        return std::nullopt;
    const std::size_t length = bigEndian32(rest, 0);
    if (length > kMaxNumber || length > rest.size() - kFrame)
        return std::nullopt;
    Chunk chunk{{rest[4], rest[5], rest[6], rest[7]}, rest.subspan(8, length)};
    rest = rest.subspan(length + kFrame);
    return chunk;
}

bool isLetter(std::uint8_t byte)
{
    return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

/// Chunks that a reader may pass over begin with a small letter.
bool isAncillary(const ChunkType& type)
{
    return std::ranges::all_of(type, isLetter) && type[0] >= 'a';
}

/// Whether the file goes on to its end with nothing that matters to the pixels.
bool endsPlainly(Bytes rest)
{
    while (const auto chunk = nextChunk(rest)) {
        if (chunk->type == kEnd)
            return true;
        if (!isAncillary(chunk->type))
            return false;
    }
    return false;
}

/// The compressed pixels: where they are, or put together in `joined`. Empty when the chunks are not plain.
Bytes compressedPixels(Bytes rest, FileBytes& joined)
{
    Bytes only;
    Bytes behind = rest;
    int count = 0;
    for (auto chunk = nextChunk(rest); chunk && chunk->type == kPixels; chunk = nextChunk(rest)) {
        if (count++ == 0)
            only = chunk->content;
        else if ((count == 2 && !joined.append(only)) || !joined.append(chunk->content))
            return {};
        behind = rest;
    }
    if (!endsPlainly(behind))
        return {};
    return count == 1 ? only : joined.bytes();
}

Word read(const std::uint8_t* bytes, std::integral_constant<int, 3>)
{
    return Word{bytes[0]} << 16 | Word{bytes[1]} << 8 | bytes[2];
}

Word read(const std::uint8_t* bytes, std::integral_constant<int, 4>)
{
    Word word;
    std::memcpy(&word, bytes, sizeof word);
    return redAndBlueExchanged(word);
}

/// Each pixel is what the file holds plus what `predict(left, above, above left)` expects. Without alpha in the file
/// the top bytes go through the same sums and come to nothing that is kept.
template <int bytesPerPixel, typename Predict>
void restoreRow(const std::uint8_t* from, const Pixel* above, std::span<Pixel> to, Predict predict)
{
    constexpr Pixel kOpaque = bytesPerPixel == 3 ? kAlphaBits : 0;
    Word left = 0;
    Word aboveLeft = 0;
    for (std::size_t x = 0; x < to.size(); ++x, from += bytesPerPixel) {
        const Word raw = read(from, std::integral_constant<int, bytesPerPixel>());
        left = bytesAdded(raw, predict(left, above[x], aboveLeft));
        aboveLeft = above[x];
        to[x] = left | kOpaque;
    }
}

template <int bytesPerPixel>
bool restore(int filter, const std::uint8_t* from, const Pixel* above, std::span<Pixel> to)
{
    switch (filter) {
    case 0:
        restoreRow<bytesPerPixel>(from, above, to, [](Word, Word, Word) { return Word{0}; });
        return true;
    case 1:
        restoreRow<bytesPerPixel>(from, above, to, [](Word left, Word, Word) { return left; });
        return true;
    case 2:
        restoreRow<bytesPerPixel>(from, above, to, [](Word, Word up, Word) { return up; });
        return true;
    case 3:
        restoreRow<bytesPerPixel>(from, above, to, [](Word left, Word up, Word) { return bytesAveraged(left, up); });
        return true;
    case 4:
        restoreRow<bytesPerPixel>(from, above, to, paeth);
        return true;
    default:
        return false;
    }
}

template <int bytesPerPixel>
bool restoreRows(const std::uint8_t* rows, const PixelView& target)
{
    const auto width = static_cast<std::size_t>(target.width);
    const platform::PixelMemory<Pixel> nothing(
        static_cast<Pixel*>(platform::allocateZeroed(width * sizeof(Pixel)))); // above the first row
    const Pixel* above = nothing.get();
    for (int y = 0; y < target.height && above; ++y) {
        if (!restore<bytesPerPixel>(rows[0], rows + 1, above, {target.row(y), width}))
            return false;
        rows += 1 + width * bytesPerPixel;
        above = target.row(y);
    }
    return above != nullptr;
}

struct FreeDecompressor
{
    void operator()(libdeflate_decompressor* decompressor) const { libdeflate_free_decompressor(decompressor); }
};

/// Exactly `size` bytes, or none.
platform::PixelMemory<std::uint8_t> decompressed(Bytes stream, std::size_t size)
{
    const std::unique_ptr<libdeflate_decompressor, FreeDecompressor> decompressor(libdeflate_alloc_decompressor());
    platform::PixelMemory<std::uint8_t> bytes(static_cast<std::uint8_t*>(platform::allocateRaw(size)));
    if (!decompressor || !bytes ||
        libdeflate_zlib_decompress(decompressor.get(), stream.data(), stream.size(), bytes.get(), size, nullptr) !=
            LIBDEFLATE_SUCCESS)
        return nullptr;
    return bytes;
}

} // namespace

bool readPlainPixels(std::span<const std::uint8_t> chunks, Samples samples, PixelView target)
{
    FileBytes joined;
    const Bytes stream = compressedPixels(chunks, joined);
    if (stream.empty())
        return false;
    const std::size_t bytesPerPixel = samples == Samples::Rgb ? 3 : 4;
    const std::size_t rowBytes = 1 + static_cast<std::size_t>(target.width) * bytesPerPixel;
    const auto rows = decompressed(stream, rowBytes * static_cast<std::size_t>(target.height));
    if (!rows)
        return false;
    return samples == Samples::Rgb ? restoreRows<3>(rows.get(), target) : restoreRows<4>(rows.get(), target);
}

} // namespace vq::gdiplus::png
