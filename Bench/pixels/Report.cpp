// SPDX-License-Identifier: MIT
#include "pixels/Contest.h"
#include "pixels/Targets.h"

#include <algorithm>
#include <cstdio>

namespace vq::bench {

namespace {

/// Ours to theirs, round by round.
Spread ratioTo(const std::vector<double>& ours, const std::vector<double>& theirs)
{
    std::vector<double> ratios(ours.size());
    std::transform(ours.begin(), ours.end(), theirs.begin(), ratios.begin(), [](double a, double b) { return a / b; });
    return spreadOf(ratios);
}

/// @return whether the bound is kept or there is none.
bool printMark(const char* kind, Bound bound, const Work& work, const Times& times)
{
    for (std::size_t i = 1; i < work.contestants.size(); ++i) {
        if (work.contestants[i].name != bound.of || bound.ratio == 0)
            continue;
        const bool kept = ratioTo(times[0], times[i]).middle <= bound.ratio;
        std::printf("  %s %.2f %s: %s", kind, bound.ratio, bound.of.data(), kept ? "met" : "MISSED");
        return kept;
    }
    return true;
}

} // namespace

bool report(const Work& work, cv::Size size, const Times& times, bool isBaseline)
{
    const Spread own = spreadOf(times[0]);
    std::printf("%-27s %4dx%-4d %9.3f", work.name.data(), size.width, size.height, own.middle);
    for (std::size_t i = 1; i < work.contestants.size(); ++i) {
        const Spread ratio = ratioTo(times[0], times[i]);
        std::printf("  %s %.3f %.2f (%.2f..%.2f)", work.contestants[i].name.data(), spreadOf(times[i]).middle,
                    ratio.middle, ratio.low, ratio.high);
    }
    bool kept = true;
    const auto target = std::ranges::find(kTargets, work.name, &Target::work);
    if (target != kTargets.end() && size == cv::Size(3840, 2160)) {
        Bound must = target->must;
        if (isBaseline && target->mustOfBaseline > 0)
            must.ratio = target->mustOfBaseline;
        kept = printMark("must", must, work, times);
        printMark("aim", target->aim, work, times);
    }
    std::printf("\n");
    std::fflush(stdout);
    return kept;
}

} // namespace vq::bench
