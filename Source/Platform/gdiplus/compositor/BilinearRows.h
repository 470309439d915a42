// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// The two passes of bilinear interpolation over a strip of columns: a source row is brought to the target's columns
/// once and kept, then two such rows are mixed for every target row between them.

#include "Platform/gdiplus/compositor/PixelView.h"
#include "Platform/gdiplus/compositor/SampleAxis.h"
#include "Platform/gdiplus/compositor/StripMemory.h"

#include <cstddef>
#include <cstdint>
#include <span>

namespace vq::gdiplus {

/// Where each column of a strip finds its source pixels. All columns have the same `Reach`.
struct StripColumns
{
    StripColumns(const SampleAxis& axis, int begin, int end, StripMemory& memory);

    static std::size_t bytesFor(std::size_t count);

    std::size_t count() const { return index.size(); }

    bool isInside; ///< both source pixels of every column are in the image
    std::span<std::int32_t> index;
    std::span<float> weight;             ///< of the second source pixel
    std::span<std::uint16_t> laneWeight; ///< the same in 1/65536, once for each channel
};

/// A source row at the columns of a strip, premultiplied. Rows without transparency have channels in 1/256 and 16 bits;
/// all others have amounts in single precision, colours times alpha (0 .. 65025) beside alpha (0 .. 255).
class StripRow
{
public:
    StripRow(std::size_t count, StripMemory& memory);

    static std::size_t bytesFor(std::size_t count);

    /// Takes row `y` of the image; a row outside it is transparent. Costs nothing when it is here already.
    void fetch(const StripColumns& columns, ConstPixelView image, int y);

    bool isOpaque() const { return m_isOpaque; }

    /// Two opaque rows become opaque pixels.
    static void mixOpaque(const StripRow& upper, const StripRow& lower, std::uint16_t weight, std::span<Pixel> result);

    /// Two rows of any kind become straight pixels; alpha 0 gives 00000000.
    static void mixAny(const StripRow& upper, const StripRow& lower, std::uint16_t weight, std::span<Pixel> result);

    /// What `mixAny` needs of a row that `fetch` has taken.
    void fetchAmounts(const StripColumns& columns, ConstPixelView image);

private:
    static constexpr int kNothing = -2;

    int m_y = kNothing;
    bool m_isOpaque = false;
    bool m_hasAmounts = false;
    std::span<std::uint16_t> m_lanes;
    std::span<float> m_alpha;
    std::span<float> m_red;
    std::span<float> m_green;
    std::span<float> m_blue;
};

} // namespace vq::gdiplus
