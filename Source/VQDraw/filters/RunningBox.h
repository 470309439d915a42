// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Means of boxes of any size on a torus, at a cost that does not depend on the size. Standard library only.

#include "VQDraw/image/PixelFormulas.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace vq {

/// The positions -radius .. radius around 0, wrapped round to 0 .. size - 1: each position `rounds` times, and once
/// more the `rest` positions from `start` on, which wrap round, too.
struct WrappedWindow
{
    WrappedWindow(std::int64_t radius, std::int64_t windowedSize)
        : size(windowedSize), rounds((2 * radius + 1) / size), rest((2 * radius + 1) % size),
          start((size - radius % size) % size)
    {
    }

    /// What the window meets when it moves on by one for the first time: it loses its first position and gains the one
    /// after its last. These are the same where nothing is left over.
    std::int64_t leaving() const { return start; }
    std::int64_t entering() const { return (start + rest) % size; }

    std::int64_t size, rounds, rest, start;
};

/// Boxes of sides up to 255: a column of 255 bytes sums up within 16 bits, and the whole box within 24, which is all
/// that single precision counts exactly. Until there, a sum of integers equals the sum of the same bytes in single
/// precision, in any order.
struct SmallSums
{
    using Column = std::uint16_t;
    using Window = std::uint32_t;

    static constexpr std::int64_t kMostRadius = 127;

    /// Through signed integers, which processors convert in one step.
    static float inFloat(Window sum) { return static_cast<float>(static_cast<std::int32_t>(sum)); }
};

static_assert(255 * (2 * SmallSums::kMostRadius + 1) <= 0xFFFF);
static_assert(255 * (2 * SmallSums::kMostRadius + 1) * (2 * SmallSums::kMostRadius + 1) < 1 << 24);

/// Larger boxes: the exact sum is rounded to single precision once. It fits 64 bits up to this radius.
struct LargeSums
{
    using Column = std::uint64_t;
    using Window = std::uint64_t;

    static constexpr std::int64_t kMostRadius = (1 << 27) - 1;

    static float inFloat(Window sum) { return static_cast<float>(sum); }
};

/// What each of the bytes of a box counts.
inline float boxFactor(std::int64_t radius)
{
    const auto side = static_cast<float>(2 * radius + 1);
    return 1.0F / (side * side);
}

/// A row of means from the sums of its columns. `means` has four bytes a column.
template <typename Sums>
class MeansOfRow
{
public:
    MeansOfRow(WrappedWindow window, float factor) : m_window(window), m_factor(factor) {}

    void operator()(const typename Sums::Column* columns, Channel* means)
    {
        start(columns);
        std::int64_t entering = m_window.entering();
        std::int64_t leaving = m_window.leaving();
        for (std::int64_t x = 0; x < m_window.size;) {
            const std::int64_t untilWrap = m_window.size - std::max({entering, leaving, x});
            const std::int64_t count = std::min<std::int64_t>(untilWrap, kBlock);
            advance(columns + 4 * entering, columns + 4 * leaving, 4 * static_cast<std::size_t>(count));
            convert(means + 4 * x, 4 * static_cast<std::size_t>(count));
            x += count;
            entering = (entering + count) % m_window.size;
            leaving = (leaving + count) % m_window.size;
        }
    }

private:
    using Column = typename Sums::Column;
    using Window = typename Sums::Window;

    static constexpr std::size_t kBlock = 64;

    /// The window around column 0.
    void start(const Column* columns)
    {
        m_sum = {};
        if (m_window.rounds > 0)
            add(columns, m_window.size, static_cast<Window>(m_window.rounds));
        const std::int64_t untilEnd = std::min(m_window.rest, m_window.size - m_window.start);
        add(columns + 4 * m_window.start, untilEnd, 1);
        add(columns, m_window.rest - untilEnd, 1);
    }

    void add(const Column* columns, std::int64_t count, Window times)
    {
        std::array<Window, 4> sum{};
        for (std::int64_t x = 0; x < count; ++x, columns += 4)
            for (std::size_t channel = 0; channel < 4; ++channel)
                sum[channel] += columns[channel];
        for (std::size_t channel = 0; channel < 4; ++channel)
            m_sum[channel] += times * sum[channel];
    }

    /// The sums of `count` / 4 windows. Only the addition in the second loop waits for the pixel before.
    void advance(const Column* entering, const Column* leaving, std::size_t count)
    {
        for (std::size_t i = 0; i < count; ++i)
            m_block[i] = static_cast<Window>(entering[i]) - static_cast<Window>(leaving[i]);
        std::array<Window, 4> sum = m_sum;
        for (std::size_t i = 0; i < count; i += 4)
            for (std::size_t channel = 0; channel < 4; ++channel) {
                const Window next = sum[channel] + m_block[i + channel];
                m_block[i + channel] = sum[channel];
                sum[channel] = next;
            }
        m_sum = sum;
    }

    void convert(Channel* means, std::size_t count) const
    {
        for (std::size_t i = 0; i < count; ++i)
            means[i] = static_cast<Channel>(static_cast<std::int32_t>(Sums::inFloat(m_block[i]) * m_factor));
    }

    WrappedWindow m_window;
    float m_factor;
    std::array<Window, 4> m_sum;
    std::array<Window, 4 * kBlock> m_block;
};

} // namespace vq
