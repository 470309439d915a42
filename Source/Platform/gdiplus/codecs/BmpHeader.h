// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/Picture.h"

#include <array>
#include <cstdint>
#include <optional>
#include <span>

namespace vq::gdiplus::bmp {

inline constexpr std::size_t kFileHeaderBytes = 14;
inline constexpr std::size_t kInfoHeaderBytes = 40;

enum class Storage { Plain, RunLength8, RunLength4 };

/// Which bits of a 16- or 32-bit pixel belong to a channel. A mask is one run of bits, or 0 for a channel that is not
/// stored.
struct ChannelMasks
{
    std::uint32_t red, green, blue, alpha;
};

/// What precedes the pixels, checked: sizes are positive and within the limits for pictures, the depth is one that
/// exists for the storage, and `pixelData` lies in the file.
struct Header
{
    int width = 0;
    int height = 0;
    bool topRowFirst = false;
    int bitsPerPixel = 0;
    Storage storage = Storage::Plain;
    ChannelMasks masks{};             ///< for 16 and 32 bits
    std::array<Pixel, 256> palette{}; ///< opaque; entries that the file lacks are black
    PictureFormat format = PictureFormat::Rgb24;
    double dpiX = kDefaultDpi;
    double dpiY = kDefaultDpi;
    std::span<const std::uint8_t> pixelData; ///< from the first pixel to the end of the file
};

/// Empty when the header is damaged, incomplete or of a kind that is not read.
std::optional<Header> readHeader(std::span<const std::uint8_t> file);

} // namespace vq::gdiplus::bmp
