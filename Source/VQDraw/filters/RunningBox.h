// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Means of boxes of any size on a torus, at a cost that does not depend on the size. Standard library only.

#include "VQDraw/filters/BoxRunSse2.h"

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

    /// How often the window around 0 holds a position.
    std::int64_t times(std::int64_t position) const
    {
        return rounds + ((position + size - start) % size < rest ? 1 : 0);
    }

    std::int64_t size, rounds, rest, start;
};

/// What each of the bytes of a box counts.
inline float boxFactor(std::int64_t radius)
{
    const auto side = static_cast<float>(2 * radius + 1);
    return 1.0F / (side * side);
}

/// A row of means from the sums of its columns, four channels each.
template <typename Sums>
class MeansOfRow
{
public:
    using Column = typename Sums::Column;

    MeansOfRow(WrappedWindow window, float factor) : m_window(window), m_factor(factor) {}

    void operator()(const Column* columns, Channel* means) const
    {
        std::array<Window, 4> sums = first(columns);
        std::int64_t entering = m_window.entering();
        std::int64_t leaving = m_window.leaving();
        for (std::int64_t x = 0; x < m_window.size;) {
            const std::int64_t count = m_window.size - std::max({entering, leaving, x});
            meansOfRun<Sums>(columns + 4 * entering, columns + 4 * leaving, static_cast<std::size_t>(count), sums,
                             m_factor, means + 4 * x);
            x += count;
            entering = (entering + count) % m_window.size;
            leaving = (leaving + count) % m_window.size;
        }
    }

private:
    using Window = typename Sums::Window;

    /// The sums of the window around column 0.
    std::array<Window, 4> first(const Column* columns) const
    {
        std::array<Window, 4> sums{};
        const auto add = [&](std::int64_t begin, std::int64_t end) {
            for (std::int64_t x = begin; x < end; ++x)
                for (std::int64_t channel = 0; channel < 4; ++channel)
                    sums[static_cast<std::size_t>(channel)] += columns[4 * x + channel];
        };
        if (m_window.rounds > 0)
            add(0, m_window.size);
        for (Window& sum : sums)
            sum *= static_cast<Window>(m_window.rounds);
        const std::int64_t end = m_window.start + m_window.rest;
        add(m_window.start, std::min(end, m_window.size));
        add(0, end - m_window.size);
        return sums;
    }

    WrappedWindow m_window;
    float m_factor;
};

} // namespace vq
