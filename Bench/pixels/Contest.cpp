// SPDX-License-Identifier: MIT
#include "pixels/Contest.h"

#include <algorithm>
#include <cstdio>
#include <ctime>

namespace vq::bench {

namespace {

/// Whether the picture is like ours; says what differs.
bool isLike(const cv::Mat& picture, const cv::Mat& ours, const Agreement& agreement)
{
    if (picture.size() != ours.size()) {
        std::fprintf(stderr, "%d x %d instead of %d x %d pixels", picture.cols, picture.rows, ours.cols, ours.rows);
        return false;
    }
    const int frame = agreement.frame;
    const cv::Rect inside(frame, frame, ours.cols - 2 * frame, ours.rows - 2 * frame);
    cv::Mat difference;
    cv::absdiff(picture(inside), ours(inside), difference);
    const auto bits = [&](int channel) { return static_cast<double>(agreement.channels >> 8 * channel & 0xFF); };
    cv::bitwise_and(difference, cv::Scalar(bits(0), bits(1), bits(2), bits(3)), difference);

    double largest = 0;
    cv::minMaxLoc(difference.reshape(1), nullptr, &largest);
    const int apart = cv::countNonZero(difference.reshape(1) > agreement.most);
    if (apart <= agreement.share * static_cast<double>(inside.area()))
        return true;
    std::fprintf(stderr, "%d channels lie more than %d apart, by up to %.0f", apart, agreement.most, largest);
    return false;
}

double milliseconds(std::clock_t ticks)
{
    return static_cast<double>(ticks) * 1e3 / CLOCKS_PER_SEC;
}

/// Milliseconds for one run, from `count` runs.
double timeOf(const Work& work, const Contestant& contestant, Scene& scene, int count)
{
    std::clock_t ticks = 0;
    for (int i = 0; i < (work.restores ? count : 1); ++i) {
        if (work.restores)
            scene.restore(work.start);
        const std::clock_t begin = std::clock();
        for (int run = 0; run < (work.restores ? 1 : count); ++run)
            contestant.run(scene);
        ticks += std::clock() - begin;
    }
    return milliseconds(ticks) / count;
}

} // namespace

bool agree(const Work& work, Scene& scene)
{
    cv::Mat ours;
    for (const Contestant& contestant : work.contestants) {
        scene.restore(work.start);
        const cv::Mat picture = contestant.run(scene);
        if (ours.empty()) {
            ours = picture.clone();
            continue;
        }
        if (picture.empty() || isLike(picture, ours, work.agreement))
            continue;
        std::fprintf(stderr, ": %s of %s\n", work.name.data(), contestant.name.data());
        return false;
    }
    return true;
}

Times contest(const Work& work, Scene& scene, int rounds)
{
    constexpr double kTurn = 4; // milliseconds at least, for a clock of microseconds
    const std::size_t count = work.contestants.size();
    Times times(count);
    std::vector<int> runs;
    scene.restore(work.start);
    for (const Contestant& contestant : work.contestants) {
        timeOf(work, contestant, scene, 1); // what is kept between runs is there now
        const double once = timeOf(work, contestant, scene, 1);
        runs.push_back(1 + static_cast<int>(kTurn / std::max(once, 0.01)));
    }
    for (int round = 0; round < rounds; ++round) {
        scene.restore(work.start);
        for (std::size_t turn = 0; turn < count; ++turn) { // nobody is always the first or after the same one
            const std::size_t i = (round % 2 ? count - 1 - turn : turn + static_cast<std::size_t>(round)) % count;
            times[i].push_back(timeOf(work, work.contestants[i], scene, runs[i]));
        }
    }
    return times;
}

Spread spreadOf(std::vector<double> values)
{
    std::sort(values.begin(), values.end());
    const std::size_t last = values.size() - 1;
    return {values[last / 4], values[values.size() / 2], values[last - last / 4]};
}

} // namespace vq::bench
