// SPDX-License-Identifier: MIT
#pragma once

#include "pixels/Work.h"

#include <string_view>
#include <vector>

namespace vq::bench {

/// Lets each contestant do the work once and compares the pictures with ours; says on the error output who differs.
bool agree(const Work& work, Scene& scene);

/// Milliseconds for one run of the work, of each contestant in each round.
using Times = std::vector<std::vector<double>>;

/// Measures in rounds, in which each contestant has its turn: whatever else the machine does meets all alike. In time
/// of the processor, which others disturb less.
Times contest(const Work& work, Scene& scene, int rounds);

/// The middle value and those a quarter from either end.
struct Spread
{
    double low, middle, high;
};

Spread spreadOf(std::vector<double> values);

/// Prints a row for the work: our time, then each other contestant's with the ratio of ours to it. Pictures of 3840 x
/// 2160 are held against what we ask of ourselves. @return whether what must be was reached.
bool report(const Work& work, cv::Size size, const Times& times, bool isBaseline);

} // namespace vq::bench
