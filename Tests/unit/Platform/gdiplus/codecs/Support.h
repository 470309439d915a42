// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Small pictures and files for the tests of the codecs.

#include "Platform/gdiplus/codecs/FileBytes.h"
#include "Platform/gdiplus/codecs/Picture.h"

#include <cstdint>
#include <random>
#include <span>
#include <string_view>
#include <vector>

namespace vq::test {

using Bytes = std::vector<std::uint8_t>;
using Pixels = std::vector<gdiplus::Pixel>; // row by row from the top

inline Pixels pixelsOf(const gdiplus::Picture& picture)
{
    const gdiplus::Pixel* first = picture.pixels.get();
    return {first, first + std::int64_t{picture.width} * picture.height};
}

inline Bytes bytesOf(const gdiplus::FileBytes& file)
{
    return {file.bytes().begin(), file.bytes().end()};
}

inline gdiplus::ConstPixelView viewOf(const Pixels& pixels, int width)
{
    return {reinterpret_cast<const std::uint8_t*>(pixels.data()), std::ptrdiff_t{4} * width, width,
            static_cast<int>(pixels.size()) / width};
}

/// The same numbers for the same seed on every system.
inline Pixels randomPixels(std::size_t count, std::uint32_t seed)
{
    std::mt19937 generator(seed);
    Pixels result(count);
    for (gdiplus::Pixel& pixel : result)
        pixel = static_cast<gdiplus::Pixel>(generator());
    return result;
}

inline Bytes randomBytes(std::size_t count, std::uint32_t seed)
{
    std::mt19937 generator(seed);
    Bytes result(count);
    for (std::uint8_t& byte : result)
        byte = static_cast<std::uint8_t>(generator() >> 24);
    return result;
}

/// Bytes as they are written down: two digits each, apart from white space.
inline Bytes fromHex(std::string_view text)
{
    constexpr std::string_view kDigits = "0123456789ABCDEF";
    Bytes result;
    bool inByte = false;
    for (const char character : text) {
        const std::size_t digit = kDigits.find(character);
        if (digit == std::string_view::npos)
            continue;
        if (inByte)
            result.back() = static_cast<std::uint8_t>(result.back() << 4 | digit);
        else
            result.push_back(static_cast<std::uint8_t>(digit));
        inByte = !inByte;
    }
    return result;
}

inline void put32(Bytes& file, std::size_t offset, std::uint32_t value)
{
    for (std::size_t i = 0; i < 4; ++i)
        file.at(offset + i) = static_cast<std::uint8_t>(value >> (8 * i));
}

inline void putBigEndian32(Bytes& file, std::size_t offset, std::uint32_t value)
{
    for (std::size_t i = 0; i < 4; ++i)
        file.at(offset + i) = static_cast<std::uint8_t>(value >> (24 - 8 * i));
}

/// Where `text` begins in `file`; the file's length when it is not there.
inline std::size_t positionOf(const Bytes& file, std::string_view text)
{
    const std::string_view all(reinterpret_cast<const char*>(file.data()), file.size());
    const std::size_t position = all.find(text);
    return position == std::string_view::npos ? file.size() : position;
}

} // namespace vq::test
