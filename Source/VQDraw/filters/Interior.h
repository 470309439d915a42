// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The loop of the filters over 3 x 3 pixels that leave a frame of one pixel. Standard library only.

#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vq {

/// Columns left .. right - 1 and rows top .. bottom - 1 of a picture.
struct Area
{
    std::int64_t left, top, right, bottom;

    bool isEmpty() const { return left >= right || top >= bottom; }
    std::int64_t width() const { return right - left; }
};

/// Columns that are looked at together: what belongs to them stays in the nearest cache.
inline constexpr std::size_t kInteriorBlock = 128;

/// How many pixels `filterInterior` keeps of the row above.
inline std::size_t keptPixels(Area area)
{
    return static_cast<std::size_t>(area.width() + 2);
}

/// One row in place. The three rows have `count` pixels, at least 3, of which the first and the last are only looked
/// at; `above`, which is kept aside, becomes a copy of what `row` was.
template <typename Columns, typename Pixel>
void filterInteriorRow(Pixel* above, Pixel* row, const Pixel* below, std::size_t count)
{
    Columns columns; // here and not the caller's: compilers see that no row lies in it
    std::array<Pixel, kInteriorBlock> results;
    std::size_t known = 0; // columns from the block before
    for (std::size_t begin = 0; begin < count;) {
        const std::size_t length = std::min(count - begin, kInteriorBlock);
        columns.take(reinterpret_cast<const Channel*>(above + begin), reinterpret_cast<const Channel*>(row + begin),
                     reinterpret_cast<const Channel*>(below + begin), length, known);
        std::copy_n(row + begin, length, above + begin);

        const std::size_t complete = known + length - 2;
        columns.combine(reinterpret_cast<Channel*>(results.data()), complete);
        columns.moveLastTwoToFront(complete);
        Pixel* target = row + begin + 1 - known;
        for (std::size_t i = 0; i < complete; ++i)
            target[i] = Columns::merged(target[i], results[i]);
        begin += length;
        known = 2;
    }
}

/// Filters an area in place that lies inside the picture's frame of one pixel and is not empty. `above` has
/// `keptPixels(area)` entries.
///
/// `Columns` turns three pixels above each other into what neighbours share. For a block of pixels:
///   take(above, own, below, length, place): of `length` columns from `place` on, from rows of bytes;
///   combine(results, length): bytes of results from columns 0 .. length + 1, for the columns between them;
///   moveLastTwoToFront(length): columns length and length + 1 become columns 0 and 1;
///   merged(own, result): the pixel that is stored.
template <typename Columns, typename Pixel>
void filterInterior(Pixel* pixels, std::int64_t width, Area area, Pixel* above)
{
    const std::size_t count = keptPixels(area);
    Pixel* row = pixels + area.top * width + (area.left - 1);
    std::copy_n(row - width, count, above);
    for (std::int64_t y = area.top; y < area.bottom; ++y, row += width)
        filterInteriorRow<Columns>(above, row, row + width, count);
}

} // namespace vq
