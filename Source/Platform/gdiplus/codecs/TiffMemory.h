// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/codecs/FileBytes.h"

#include <cstdint>
#include <memory>
#include <span>

#include <tiffio.h>

/// @file
/// Files in memory for libtiff, with handlers of their own that say nothing: the library's usual ones, which print, are
/// one pair for the whole process.

namespace vq::gdiplus::tiff {

struct Close
{
    void operator()(TIFF* file) const { TIFFClose(file); }
};

/// An open file; its memory outlives it.
using Handle = std::unique_ptr<TIFF, Close>;

/// What is read from.
struct Source
{
    std::span<const std::uint8_t> bytes;
    std::uint64_t position = 0;
    bool sawError = false; ///< the library reported an error, whatever its call answered
};

/// What is written to.
struct Target
{
    FileBytes bytes;
    std::uint64_t position = 0;
    bool sawError = false;
};

/// Reads the first directory. No single block of memory will be larger than `mostBytesAtOnce`. Null for what is no TIFF
/// file.
Handle open(Source& source, std::int64_t mostBytesAtOnce);

/// Starts a little-endian file.
Handle create(Target& target);

} // namespace vq::gdiplus::tiff
