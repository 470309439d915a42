// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// One channel of the rows around a row. Standard library only.

#include "VQDraw/image/PixelFormulas.h"

#include <cstddef>
#include <cstdint>

namespace vq {

/// Copies channel `channel` (0 blue .. 3 alpha) of a row, with the `margin` bytes that wrap round before and after it:
/// `bytes` has count + 2 * margin entries. margin <= count.
template <typename Pixel>
void takeChannel(const Pixel* row, std::size_t count, unsigned channel, std::size_t margin, Channel* bytes)
{
    const unsigned shift = 8 * channel;
    for (std::size_t x = 0; x < count; ++x)
        bytes[margin + x] = static_cast<Channel>(row[x] >> shift);
    for (std::size_t i = 0; i < margin; ++i) {
        bytes[i] = bytes[count + i];
        bytes[margin + count + i] = bytes[margin + i];
    }
}

/// One channel of the rows from y - reach to y + reach, as they were before the filter wrote any. Rows wrap round: -1
/// is the last one and `height` the first one. Each row has margins of `reach` bytes, which wrap round as well.
template <typename Pixel>
class ChannelRows
{
public:
    static std::size_t rowLength(std::int64_t width, std::int64_t reach)
    {
        return static_cast<std::size_t>(width + 2 * reach);
    }

    static std::size_t bytesFor(std::int64_t width, std::int64_t reach)
    {
        return rowLength(width, reach) * static_cast<std::size_t>(3 * reach + 1);
    }

    /// Before the first row is written. `memory` has `bytesFor` bytes; reach <= width and height.
    ChannelRows(const Pixel* pixels, std::int64_t width, std::int64_t height, unsigned channel, std::int64_t reach,
                Channel* memory)
        : m_pixels(pixels), m_width(width), m_height(height), m_channel(channel), m_reach(reach), m_memory(memory)
    {
        for (std::int64_t y = 0; y < reach; ++y)
            take(y, firstRow(y));
        for (std::int64_t y = -reach; y < reach; ++y)
            take(y < 0 ? y + height : y, ringRow(y));
    }

    /// Makes row y the one in the middle: to be called for each row in turn, before it is written.
    void reachRow(std::int64_t y)
    {
        if (y + m_reach < m_height)
            take(y + m_reach, ringRow(y + m_reach));
    }

    const Channel* row(std::int64_t y) const { return y < m_height ? ringRow(y) : firstRow(y - m_height); }

private:
    void take(std::int64_t y, Channel* bytes) const
    {
        takeChannel(m_pixels + y * m_width, static_cast<std::size_t>(m_width), m_channel,
                    static_cast<std::size_t>(m_reach), bytes);
    }

    Channel* ringRow(std::int64_t y) const { return firstRow(m_reach + (y + m_reach) % (2 * m_reach + 1)); }
    Channel* firstRow(std::int64_t index) const { return m_memory + index * (m_width + 2 * m_reach); }

    const Pixel* m_pixels;
    std::int64_t m_width;
    std::int64_t m_height;
    unsigned m_channel;
    std::int64_t m_reach;
    Channel* m_memory;
};

} // namespace vq
