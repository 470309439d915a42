// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// GIF files byte for byte, and a reader of them, without giflib.

#include "unit/Platform/gdiplus/codecs/Support.h"

#include <optional>

namespace vq::test {

inline void append(Bytes& file, const Bytes& more)
{
    file.insert(file.end(), more.begin(), more.end());
}

inline void append16(Bytes& file, int value)
{
    file.push_back(static_cast<std::uint8_t>(value));
    file.push_back(static_cast<std::uint8_t>(value >> 8));
}

/// What to write: one frame, possibly twice. A palette is 2, 4 .. 256 colours of three bytes.
struct GifContent
{
    int screenWidth = 2;
    int screenHeight = 2;
    int left = 0;
    int top = 0;
    int width = 2;
    int height = 2;
    Bytes indices{};
    Bytes palette{};
    bool paletteIsLocal = false;
    int transparent = -1;
    bool interlaced = false;
    int frames = 1;
};

/// Codes of any width, from the lower bits on, in blocks of at most 255 bytes.
class GifCodes
{
public:
    explicit GifCodes(int codeBits) : m_codeBits(codeBits) {}

    void put(unsigned code)
    {
        m_pending |= code << m_count;
        for (m_count += m_codeBits; m_count >= 8; m_count -= 8) {
            m_bytes.push_back(static_cast<std::uint8_t>(m_pending));
            m_pending >>= 8;
        }
    }

    Bytes inBlocks()
    {
        m_bytes.push_back(static_cast<std::uint8_t>(m_pending));
        Bytes blocks;
        for (std::size_t at = 0; at < m_bytes.size(); at += 255) {
            const std::size_t length = std::min<std::size_t>(255, m_bytes.size() - at);
            blocks.push_back(static_cast<std::uint8_t>(length));
            blocks.insert(blocks.end(), m_bytes.begin() + static_cast<std::ptrdiff_t>(at),
                          m_bytes.begin() + static_cast<std::ptrdiff_t>(at + length));
        }
        blocks.push_back(0);
        return blocks;
    }

private:
    int m_codeBits;
    unsigned m_pending = 0;
    int m_count = 0;
    Bytes m_bytes;
};

/// The indices as LZW data in which no code stands for more than one of them: the table is cleared before it grows.
inline Bytes plainLzw(const Bytes& indices, int indexBits)
{
    const unsigned clear = 1u << indexBits;
    GifCodes codes(indexBits + 1);
    for (std::size_t i = 0; i < indices.size(); ++i) {
        if (i % (clear - 2) == 0)
            codes.put(clear);
        codes.put(indices[i]);
    }
    codes.put(clear + 1);
    Bytes data{static_cast<std::uint8_t>(indexBits)};
    append(data, codes.inBlocks());
    return data;
}

inline Bytes interlacedRows(const Bytes& indices, int width, int height)
{
    Bytes result;
    for (const auto& [first, step] : {std::pair{0, 8}, {4, 8}, {2, 4}, {1, 2}})
        for (int y = first; y < height; y += step)
            result.insert(result.end(), indices.begin() + y * width, indices.begin() + (y + 1) * width);
    return result;
}

inline int paletteSizeField(const Bytes& palette)
{
    int field = 0;
    while (palette.size() / 3 > std::size_t{2} << field)
        ++field;
    return field;
}

inline Bytes gifFrame(const GifContent& content)
{
    Bytes frame;
    if (content.transparent >= 0)
        append(frame, {0x21, 0xF9, 4, 1, 0, 0, static_cast<std::uint8_t>(content.transparent), 0});
    frame.push_back(0x2C);
    for (const int number : {content.left, content.top, content.width, content.height})
        append16(frame, number);
    const bool hasPalette = content.paletteIsLocal && !content.palette.empty();
    frame.push_back(static_cast<std::uint8_t>((hasPalette ? 0x80 | paletteSizeField(content.palette) : 0) |
                                              (content.interlaced ? 0x40 : 0)));
    if (hasPalette)
        append(frame, content.palette);
    const int bits = std::max(2, paletteSizeField(content.palette) + 1);
    append(frame, plainLzw(content.interlaced ? interlacedRows(content.indices, content.width, content.height)
                                              : content.indices,
                           bits));
    return frame;
}

inline Bytes gifFile(const GifContent& content)
{
    Bytes file{'G', 'I', 'F', '8', '9', 'a'};
    append16(file, content.screenWidth);
    append16(file, content.screenHeight);
    const bool hasPalette = !content.paletteIsLocal && !content.palette.empty();
    append(file, {static_cast<std::uint8_t>(hasPalette ? 0xF0 | paletteSizeField(content.palette) : 0x70), 0, 0});
    if (hasPalette)
        append(file, content.palette);
    append(file, {0x21, 0xFE, 5, 'H', 'e', 'l', 'l', 'o', 0}); // a comment
    for (int i = 0; i < content.frames; ++i)
        append(file, gifFrame(content));
    file.push_back(0x3B);
    return file;
}

/// Black, red, green, blue.
inline Bytes fourGifColours()
{
    return {0, 0, 0, 255, 0, 0, 0, 255, 0, 0, 0, 255};
}

/// The indices in LZW data, by the book.
inline Bytes fromLzw(const Bytes& data, unsigned indexBits)
{
    const unsigned clear = 1u << indexBits;
    std::vector<Bytes> table;
    unsigned bits = indexBits + 1;
    std::optional<unsigned> previous;
    const auto reset = [&] {
        table.assign(clear + 2, {});
        for (unsigned i = 0; i < clear; ++i)
            table[i] = {static_cast<std::uint8_t>(i)};
        bits = indexBits + 1;
        previous.reset();
    };
    reset();
    Bytes result;
    std::size_t position = 0;
    while (position + bits <= 8 * data.size()) {
        unsigned code = 0;
        for (unsigned bit = 0; bit < bits; ++bit, ++position)
            code |= static_cast<unsigned>(data[position / 8] >> (position % 8) & 1) << bit;
        if (code == clear) {
            reset();
            continue;
        }
        if (code == clear + 1)
            break;
        if (previous && table.size() < 4096) {
            Bytes entry = table.at(*previous);
            entry.push_back(code < table.size() ? table.at(code).at(0) : entry.at(0));
            table.push_back(entry);
        }
        append(result, table.at(code));
        previous = code;
        if (table.size() == std::size_t{1} << bits && bits < 12)
            ++bits;
    }
    return result;
}

/// A file of one frame over the whole screen with a palette of 256 colours for all frames.
struct ReadGif
{
    int width = 0;
    int height = 0;
    Pixels palette{};
    int transparent = -1;
    Bytes indices{};
};

inline ReadGif readGif(const Bytes& file)
{
    ReadGif result;
    result.width = file.at(6) | file.at(7) << 8;
    result.height = file.at(8) | file.at(9) << 8;
    std::size_t at = 13;
    for (std::size_t i = 0; i < 256; ++i, at += 3)
        result.palette.push_back(0xFF000000u | gdiplus::Pixel{file.at(at)} << 16 |
                                 gdiplus::Pixel{file.at(at + 1)} << 8 | file.at(at + 2));
    if (file.at(at) == 0x21) {
        result.transparent = file.at(at + 3) & 1 ? file.at(at + 6) : -1;
        at += 8;
    }
    const unsigned indexBits = file.at(at + 10); // behind the frame's descriptor
    Bytes data;
    for (at += 11; file.at(at) != 0; at += 1u + file.at(at))
        data.insert(data.end(), file.begin() + static_cast<std::ptrdiff_t>(at) + 1,
                    file.begin() + static_cast<std::ptrdiff_t>(at) + 1 + file.at(at));
    result.indices = fromLzw(data, indexBits);
    return result;
}

} // namespace vq::test
