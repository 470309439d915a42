// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

namespace vqview {

/// Of the values that are finite.
struct Statistics
{
    double least = 0, most = 0, mean = 0; ///< 0 without values
    std::size_t count = 0;

    /// 0 at the least .. 1 at the most; the middle where both are one.
    double placeOf(double value) const { return most > least ? (value - least) / (most - least) : 0.5; }
};

Statistics statisticsOf(std::span<const float> values);

/// The range that is worth showing: all of it, unless a hundredth of the values at either end takes more than three
/// quarters of it; then that of the others. Count and mean stay those of all.
Statistics withoutTails(std::span<const float> values, const Statistics& all);

/// How many values lie in each of equal parts of a range, the most in the last one.
struct Histogram
{
    std::vector<std::size_t> all;
    std::vector<std::size_t> selected;
    std::size_t selectedCount = 0; ///< of values that are finite
    std::size_t highest = 0;       ///< of `all`
};

/// @param selected indices of values; those beyond are passed over
/// @param bins from 1 on
Histogram histogramOf(std::span<const float> values, std::span<const std::uint32_t> selected,
                      const Statistics& statistics, std::size_t bins);

/// Round numbers along an axis: multiples of 1, 2 or 5 times a power of ten.
struct Ticks
{
    std::vector<double> values; ///< ascending, within the range; of a range of one number that number
    int decimals = 0;           ///< that tell them apart once they are divided by 10 ^ `exponent`
    int exponent = 0;           ///< a multiple of 3; 0 unless numbers would be very long without it
};

/// At most `atMost` of them, from 2 on.
Ticks ticksOf(double least, double most, int atMost);

} // namespace vqview
