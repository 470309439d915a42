// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// One colour over four opaque pixels of different coverage, as the rows of glyphs have them. Written with vectors, as
/// ColourRun.h is and for the same reason.

#include "Platform/gdiplus/compositor/CompositePixel.h"

#include <bit>
#include <cstring>

namespace vq::gdiplus {

class CoveredColour
{
public:
    static constexpr std::size_t kPixels = 4;

    explicit CoveredColour(Pixel colour)
        : m_alpha(inBothLanes(alphaOf(colour))), m_low(lanesOf(blueOf(colour), redOf(colour))),
          m_high(lanesOf(greenOf(colour), 255))
    {
    }

    static bool coversAny(const Channel* coverage)
    {
        std::uint32_t all;
        std::memcpy(&all, coverage, sizeof all);
        return all != 0;
    }

    static bool areOpaque(const Pixel* pixels) { return alphaOf(pixels[0] & pixels[1] & pixels[2] & pixels[3]) == 255; }

    /// `sourceOver` of `withCoverage` over kPixels opaque pixels. Lanes stay below 65536, see `overOpaquePixel`.
    void overOpaque(Pixel* pixels, const Channel* coverage) const
    {
        Bytes bytes;
        std::memcpy(&bytes, coverage, sizeof bytes);
        const Words words = __builtin_convertvector(bytes, Words);
        const Lanes alpha = dividedBy255(std::bit_cast<Lanes>(words | words << 16) * m_alpha + 128);
        const Lanes kept = 255 - alpha;
        Lanes lanes;
        std::memcpy(&lanes, pixels, sizeof lanes);
        const Lanes low = dividedBy255((lanes & 0xFF) * kept + m_low * alpha + 128);
        const Lanes high = (lanes >> 8) * kept + m_high * alpha + 128;
        lanes = low | ((high + (high >> 8)) & 0xFF00);
        std::memcpy(pixels, &lanes, sizeof lanes);
    }

private:
    using Bytes [[gnu::vector_size(4)]] = std::uint8_t;
    using Words [[gnu::vector_size(16)]] = std::uint32_t;
    using Lanes [[gnu::vector_size(16)]] = std::uint16_t; // of each pixel blue or green, then red or alpha

    static Lanes lanesOf(std::uint32_t first, std::uint32_t second)
    {
        const std::uint32_t both = first | second << 16;
        return std::bit_cast<Lanes>(Words{both, both, both, both});
    }
    static Lanes inBothLanes(std::uint32_t value) { return lanesOf(value, value); }

    /// Of values that 128 was added to.
    static Lanes dividedBy255(Lanes raised) { return (raised + (raised >> 8)) >> 8; }

    Lanes m_alpha;
    Lanes m_low;
    Lanes m_high;
};

} // namespace vq::gdiplus
