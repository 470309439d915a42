// SPDX-License-Identifier: MIT
#pragma once

#include <cmath>
#include <cstddef>
#include <span>

namespace vq::gdiplus {

/// Alternating lengths, on and off, that repeat along a line; an odd count exchanges on and off with every turn. Lends
/// the array.
class DashPattern
{
public:
    /// Where a distance falls.
    struct Place
    {
        bool on;
        double left; ///< how far it goes on so
    };

    DashPattern() = default;

    /// Lengths above 0 in units of `unit` pixels; `offset`, in the same units, is where in the pattern a line begins.
    DashPattern(std::span<const float> lengths, double offset, double unit) : m_lengths(lengths), m_unit(unit)
    {
        for (float length : lengths)
            m_period += static_cast<double>(length) * unit;
        if (lengths.size() % 2 != 0)
            m_period *= 2;
        // Nobody can see dashes this short, and a line would have millions of them.
        if (m_period < kShortestPeriod || !std::isfinite(m_period))
            m_lengths = {};
        m_offset = offset * unit;
    }

    bool solid() const { return m_lengths.empty(); }

    Place at(double distance) const
    {
        const Walk walk(*this, distance);
        return {walk.on(), walk.left()};
    }

    /// Goes along a line dash by dash, gap by gap, without rounding its way into standing still.
    class Walk
    {
    public:
        Walk(const DashPattern& pattern, double distance) : m_pattern(&pattern)
        {
            double rest = std::fmod(distance + pattern.m_offset, pattern.m_period);
            if (rest < 0)
                rest += pattern.m_period;
            for (m_left = pattern.length(0); rest >= m_left && m_index + 1 < 2 * pattern.m_lengths.size();) {
                rest -= m_left;
                m_left = pattern.length(++m_index);
            }
            m_left -= rest;
        }

        bool on() const { return m_index % 2 == 0; }
        double left() const { return m_left; }
        void go(double distance) { m_left -= distance; }
        void next()
        {
            m_index = (m_index + 1) % (2 * m_pattern->m_lengths.size());
            m_left = m_pattern->length(m_index);
        }

    private:
        const DashPattern* m_pattern;
        std::size_t m_index = 0;
        double m_left;
    };

private:
    static constexpr double kShortestPeriod = 1.0 / 64;

    double length(std::size_t index) const { return static_cast<double>(m_lengths[index % m_lengths.size()]) * m_unit; }

    std::span<const float> m_lengths;
    double m_unit = 1;
    double m_offset = 0;
    double m_period = 0;
};

} // namespace vq::gdiplus
