// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// TIFF files byte for byte, and a reader of them, without libtiff; and compressed ones, written by it.

#include "Platform/gdiplus/codecs/TiffMemory.h"
#include "unit/Platform/gdiplus/codecs/Support.h"

#include <algorithm>
#include <map>

namespace vq::test {

/// What to write. A block is a strip or, with a tile size, a tile, decoded: samples packed as in the file, those of 16
/// bits with the low byte first.
struct TiffContent
{
    int width = 1;
    int height = 1;
    int bits = 8;
    int samples = 1;
    int photometric = PHOTOMETRIC_MINISBLACK;
    int compression = COMPRESSION_NONE;
    int predictor = PREDICTOR_NONE;
    int planes = PLANARCONFIG_CONTIG;
    int rowsPerStrip = 0; ///< 0: all
    int tileWidth = 0;    ///< 0: strips
    int tileHeight = 0;
    int extraSample = -1; ///< -1: no such tag; counts for the samples behind the colours
    int sampleFormat = 0; ///< 0: no such tag
    int orientation = 0;  ///< 0: no such tag
    int resolutionUnit = 0;
    std::uint32_t resolutionX = 0; ///< 0: no such tag; whole numbers
    std::uint32_t resolutionY = 0;
    std::vector<std::uint16_t> palette{}; ///< all reds, all greens, all blues
    std::vector<Bytes> blocks{};
    bool bigEndian = false; ///< for samples of up to 8 bits
};

/// Numbers in one of the two byte orders.
class TiffNumbers
{
public:
    explicit TiffNumbers(bool bigEndian) : m_bigEndian(bigEndian) {}

    void put(std::uint32_t value, int size)
    {
        for (int i = 0; i < size; ++i)
            bytes.push_back(static_cast<std::uint8_t>(value >> 8 * (m_bigEndian ? size - 1 - i : i)));
    }

    Bytes bytes;

private:
    bool m_bigEndian;
};

/// The file without a compressor: `content.compression` only says what the blocks are.
inline Bytes tiffFile(const TiffContent& content)
{
    constexpr int kShort = 3;
    constexpr int kLong = 4;
    constexpr int kRational = 5;
    TiffNumbers file(content.bigEndian);
    file.bytes = content.bigEndian ? Bytes{'M', 'M', 0, 42} : Bytes{'I', 'I', 42, 0};
    file.put(0, 4); // where the directory lies, filled in below
    std::vector<std::uint32_t> offsets;
    std::vector<std::uint32_t> lengths;
    for (const Bytes& block : content.blocks) {
        offsets.push_back(static_cast<std::uint32_t>(file.bytes.size()));
        lengths.push_back(static_cast<std::uint32_t>(block.size()));
        file.bytes.insert(file.bytes.end(), block.begin(), block.end());
    }
    if (file.bytes.size() % 2 != 0)
        file.bytes.push_back(0);

    struct Entry
    {
        int type;
        std::vector<std::uint32_t> values;
    };
    const auto number = [](int value) { return static_cast<std::uint32_t>(value); };
    std::map<int, Entry> entries;
    const auto samples = static_cast<std::size_t>(content.samples);
    entries[TIFFTAG_IMAGEWIDTH] = {kLong, {number(content.width)}};
    entries[TIFFTAG_IMAGELENGTH] = {kLong, {number(content.height)}};
    entries[TIFFTAG_BITSPERSAMPLE] = {kShort, std::vector(samples, number(content.bits))};
    entries[TIFFTAG_COMPRESSION] = {kShort, {number(content.compression)}};
    entries[TIFFTAG_PHOTOMETRIC] = {kShort, {number(content.photometric)}};
    entries[TIFFTAG_SAMPLESPERPIXEL] = {kShort, {number(content.samples)}};
    entries[TIFFTAG_PLANARCONFIG] = {kShort, {number(content.planes)}};
    if (content.tileWidth != 0) {
        entries[TIFFTAG_TILEWIDTH] = {kLong, {number(content.tileWidth)}};
        entries[TIFFTAG_TILELENGTH] = {kLong, {number(content.tileHeight)}};
        entries[TIFFTAG_TILEOFFSETS] = {kLong, offsets};
        entries[TIFFTAG_TILEBYTECOUNTS] = {kLong, lengths};
    } else {
        entries[TIFFTAG_ROWSPERSTRIP] = {kLong,
                                         {number(content.rowsPerStrip > 0 ? content.rowsPerStrip : content.height)}};
        entries[TIFFTAG_STRIPOFFSETS] = {kLong, offsets};
        entries[TIFFTAG_STRIPBYTECOUNTS] = {kLong, lengths};
    }
    if (content.extraSample >= 0) {
        const int colours = content.photometric == PHOTOMETRIC_RGB ? 3 : 1;
        entries[TIFFTAG_EXTRASAMPLES] = {
            kShort, std::vector(static_cast<std::size_t>(content.samples - colours), number(content.extraSample))};
    }
    if (content.sampleFormat > 0)
        entries[TIFFTAG_SAMPLEFORMAT] = {kShort, std::vector(samples, number(content.sampleFormat))};
    if (content.orientation > 0)
        entries[TIFFTAG_ORIENTATION] = {kShort, {number(content.orientation)}};
    if (content.resolutionUnit > 0)
        entries[TIFFTAG_RESOLUTIONUNIT] = {kShort, {number(content.resolutionUnit)}};
    if (content.resolutionX > 0)
        entries[TIFFTAG_XRESOLUTION] = {kRational, {content.resolutionX, 1}};
    if (content.resolutionY > 0)
        entries[TIFFTAG_YRESOLUTION] = {kRational, {content.resolutionY, 1}};
    if (!content.palette.empty())
        entries[TIFFTAG_COLORMAP] = {kShort, {content.palette.begin(), content.palette.end()}};

    // Values of more than four bytes lie in front of the directory.
    std::map<int, std::uint32_t> elsewhere;
    for (const auto& [tag, entry] : entries) {
        const int size = entry.type == kShort ? 2 : 4;
        if (entry.values.size() * static_cast<std::size_t>(size) <= 4)
            continue;
        elsewhere[tag] = static_cast<std::uint32_t>(file.bytes.size());
        for (const std::uint32_t value : entry.values)
            file.put(value, size);
    }
    TiffNumbers start(content.bigEndian);
    start.put(static_cast<std::uint32_t>(file.bytes.size()), 4);
    std::copy(start.bytes.begin(), start.bytes.end(), file.bytes.begin() + 4);
    file.put(static_cast<std::uint32_t>(entries.size()), 2);
    for (const auto& [tag, entry] : entries) {
        file.put(number(tag), 2);
        file.put(number(entry.type), 2);
        file.put(static_cast<std::uint32_t>(entry.values.size() / (entry.type == kRational ? 2 : 1)), 4);
        const std::size_t end = file.bytes.size() + 4;
        if (elsewhere.contains(tag))
            file.put(elsewhere[tag], 4);
        else
            for (const std::uint32_t value : entry.values)
                file.put(value, entry.type == kShort ? 2 : 4);
        file.bytes.resize(end);
    }
    file.put(0, 4); // no further directory
    return file.bytes;
}

/// The same, its blocks compressed by libtiff.
inline Bytes compressedTiffFile(const TiffContent& content)
{
    gdiplus::tiff::Target target;
    {
        const auto handle = gdiplus::tiff::create(target);
        TIFF* file = handle.get();
        TIFFSetField(file, TIFFTAG_IMAGEWIDTH, content.width);
        TIFFSetField(file, TIFFTAG_IMAGELENGTH, content.height);
        TIFFSetField(file, TIFFTAG_BITSPERSAMPLE, content.bits);
        TIFFSetField(file, TIFFTAG_SAMPLESPERPIXEL, content.samples);
        TIFFSetField(file, TIFFTAG_PLANARCONFIG, content.planes);
        TIFFSetField(file, TIFFTAG_COMPRESSION, content.compression);
        TIFFSetField(file, TIFFTAG_PHOTOMETRIC, content.photometric);
        if (content.compression == COMPRESSION_JPEG)
            TIFFSetField(file, TIFFTAG_JPEGCOLORMODE, JPEGCOLORMODE_RGB);
        if (content.predictor != PREDICTOR_NONE)
            TIFFSetField(file, TIFFTAG_PREDICTOR, content.predictor);
        const auto extra = static_cast<std::uint16_t>(content.extraSample);
        if (content.extraSample >= 0)
            TIFFSetField(file, TIFFTAG_EXTRASAMPLES, 1, &extra);
        if (content.tileWidth != 0) {
            TIFFSetField(file, TIFFTAG_TILEWIDTH, content.tileWidth);
            TIFFSetField(file, TIFFTAG_TILELENGTH, content.tileHeight);
        } else {
            TIFFSetField(file, TIFFTAG_ROWSPERSTRIP, content.rowsPerStrip > 0 ? content.rowsPerStrip : content.height);
        }
        if (!content.palette.empty()) {
            const std::uint16_t* reds = content.palette.data();
            const std::size_t count = content.palette.size() / 3;
            TIFFSetField(file, TIFFTAG_COLORMAP, reds, reds + count, reds + 2 * count);
        }
        for (std::size_t i = 0; i < content.blocks.size(); ++i) {
            Bytes block = content.blocks[i]; // the library's interface takes no constant bytes
            const auto size = static_cast<tmsize_t>(block.size());
            if (content.tileWidth != 0)
                TIFFWriteEncodedTile(file, static_cast<std::uint32_t>(i), block.data(), size);
            else
                TIFFWriteEncodedStrip(file, static_cast<std::uint32_t>(i), block.data(), size);
        }
    }
    return {target.bytes.bytes().begin(), target.bytes.bytes().end()};
}

/// Bytes in TIFF's kind of LZW: codes from the upper bits on, that widen one code early.
inline Bytes fromTiffLzw(const Bytes& data)
{
    constexpr unsigned kClear = 256;
    std::vector<Bytes> table;
    unsigned bits = 9;
    bool hasPrevious = false;
    Bytes previous;
    Bytes result;
    std::size_t position = 0;
    while (position + bits <= 8 * data.size()) {
        unsigned code = 0;
        for (unsigned bit = 0; bit < bits; ++bit, ++position)
            code = code << 1 | (data[position / 8] >> (7 - position % 8) & 1u);
        if (code == kClear + 1)
            break;
        if (code == kClear) {
            table.assign(258, {});
            for (unsigned i = 0; i < 256; ++i)
                table[i] = {static_cast<std::uint8_t>(i)};
            bits = 9;
            hasPrevious = false;
            continue;
        }
        if (hasPrevious) {
            previous.push_back(code < table.size() ? table.at(code).at(0) : previous.at(0));
            table.push_back(previous);
        }
        previous = table.at(code);
        hasPrevious = true;
        result.insert(result.end(), previous.begin(), previous.end());
        bits = table.size() >= 2047 ? 12 : table.size() >= 1023 ? 11 : table.size() >= 511 ? 10 : 9;
    }
    return result;
}

/// The first directory of a little-endian file: the values of each tag, rationals as two numbers.
inline std::map<int, std::vector<std::uint32_t>> tiffTags(const Bytes& file)
{
    const auto number = [&](std::size_t at, std::size_t size) {
        std::uint32_t value = 0;
        for (std::size_t i = 0; i < size; ++i)
            value |= std::uint32_t{file.at(at + i)} << 8 * i;
        return value;
    };
    std::map<int, std::vector<std::uint32_t>> tags;
    const std::size_t directory = number(4, 4);
    for (std::size_t i = 0; i < number(directory, 2); ++i) {
        const std::size_t entry = directory + 2 + 12 * i;
        const std::uint32_t type = number(entry + 2, 2);
        const std::size_t size = type == 3 ? 2 : type == 1 ? 1 : 4;
        const std::size_t count = number(entry + 4, 4) * (type == 5 ? 2 : 1);
        const std::size_t values = size * count > 4 ? number(entry + 8, 4) : entry + 8;
        for (std::size_t value = 0; value < count; ++value)
            tags[static_cast<int>(number(entry, 2))].push_back(number(values + value * size, size));
    }
    return tags;
}

/// The samples of a file as our encoder writes it: strips, LZW, differences to the left.
inline Bytes tiffSamples(const Bytes& file)
{
    auto tags = tiffTags(file);
    const std::size_t samples = tags.at(TIFFTAG_SAMPLESPERPIXEL).at(0);
    const std::size_t rowBytes = samples * tags.at(TIFFTAG_IMAGEWIDTH).at(0);
    Bytes result;
    for (std::size_t i = 0; i < tags.at(TIFFTAG_STRIPOFFSETS).size(); ++i) {
        const auto begin = file.begin() + tags.at(TIFFTAG_STRIPOFFSETS).at(i);
        const Bytes strip = fromTiffLzw({begin, begin + tags.at(TIFFTAG_STRIPBYTECOUNTS).at(i)});
        result.insert(result.end(), strip.begin(), strip.end());
    }
    for (std::size_t i = 0; i < result.size(); ++i)
        if (i % rowBytes >= samples)
            result[i] = static_cast<std::uint8_t>(result[i] + result[i - samples]);
    return result;
}

} // namespace vq::test
