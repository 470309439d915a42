// SPDX-License-Identifier: MIT
#include "vqview/overlay/Histogram.h"

#include <gmock/gmock.h>

#include <chrono>
#include <cmath>
#include <limits>
#include <numeric>
#include <random>

namespace vqview {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

std::vector<std::uint32_t> none()
{
    return {};
}

TEST(Statistics, AreOfTheValuesThatAreFinite)
{
    const std::vector<float> values{kNaN, 3, -1, kInfinity, 4, -kInfinity};
    const Statistics statistics = statisticsOf(values);
    EXPECT_EQ(statistics.count, 3u);
    EXPECT_EQ(statistics.least, -1);
    EXPECT_EQ(statistics.most, 4);
    EXPECT_EQ(statistics.mean, 2);
}

TEST(Statistics, OfNothingAreZero)
{
    const std::vector<float> unknown{kNaN, kInfinity};
    for (const Statistics& statistics : {statisticsOf({}), statisticsOf(unknown)}) {
        EXPECT_EQ(statistics.count, 0u);
        EXPECT_EQ(statistics.least, 0);
        EXPECT_EQ(statistics.most, 0);
        EXPECT_EQ(statistics.mean, 0);
    }
}

TEST(Statistics, LeaveOutTailsThatTakeMostOfTheRange)
{
    std::vector<float> values(1000);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<float>(i % 100) / 100; // 0 .. 0.99
    values[0] = -50;
    values[1] = 49;
    const Statistics all = statisticsOf(values);

    const Statistics shown = withoutTails(values, all);

    EXPECT_NEAR(shown.least, 0, 0.05); // parts of 99 / 4096
    EXPECT_NEAR(shown.most, 0.99, 0.05);
    EXPECT_EQ(shown.count, all.count);
    EXPECT_EQ(shown.mean, all.mean);
}

TEST(Statistics, KeepARangeThatIsFilled)
{
    std::vector<float> values(1000);
    for (std::size_t i = 0; i < values.size(); ++i)
        values[i] = static_cast<float>(i);

    const Statistics shown = withoutTails(values, statisticsOf(values));

    EXPECT_EQ(shown.least, 0);
    EXPECT_EQ(shown.most, 999);
    for (const std::vector<float>& few : {std::vector<float>{}, std::vector<float>{7}}) {
        EXPECT_EQ(withoutTails(few, statisticsOf(few)).least, statisticsOf(few).least);
        EXPECT_EQ(withoutTails(few, statisticsOf(few)).most, statisticsOf(few).most);
    }
}

TEST(Statistics, KnowAValuesPlaceInTheRange)
{
    const Statistics range{10, 30, 20, 2};
    EXPECT_EQ(range.placeOf(10), 0);
    EXPECT_EQ(range.placeOf(25), 0.75);
    EXPECT_EQ(range.placeOf(30), 1);
    EXPECT_EQ((Statistics{7, 7, 7, 1}.placeOf(7)), 0.5);
}

TEST(Histogram, CountsEachPartFromItsLowerEdgeOn)
{
    const std::vector<float> values{0, 0.5F, 1, 1.5F, 2, 2.5F, 3, 3.5F, 4};
    const Histogram histogram = histogramOf(values, none(), statisticsOf(values), 4);
    EXPECT_THAT(histogram.all, ElementsAre(2, 2, 2, 3)); // the most is in the last one
    EXPECT_EQ(histogram.highest, 3u);
    EXPECT_EQ(histogram.selectedCount, 0u);
}

TEST(Histogram, CountsWhatIsSelected)
{
    const std::vector<float> values{0, 1, 2, 3, kNaN};
    const std::vector<std::uint32_t> selected{0, 3, 4, 77};
    const Histogram histogram = histogramOf(values, selected, statisticsOf(values), 2);
    EXPECT_THAT(histogram.all, ElementsAre(2, 2));
    EXPECT_THAT(histogram.selected, ElementsAre(1, 1));
    EXPECT_EQ(histogram.selectedCount, 2u);
}

TEST(Histogram, OfOneValueFillsTheMiddle)
{
    const std::vector<float> values{5, 5, 5};
    EXPECT_THAT(histogramOf(values, none(), statisticsOf(values), 3).all, ElementsAre(0, 3, 0));
}

TEST(Histogram, OfNothingIsEmpty)
{
    const Histogram histogram = histogramOf({}, none(), {}, 3);
    EXPECT_THAT(histogram.all, ElementsAre(0, 0, 0));
    EXPECT_EQ(histogram.highest, 0u);
}

TEST(Histogram, LosesNoValueOfTheWholeRangeOfFloats)
{
    constexpr float kMost = std::numeric_limits<float>::max();
    std::mt19937 random(3);
    std::uniform_real_distribution<float> any(-1, 1);
    std::vector<float> values(1000);
    for (float& value : values)
        value = any(random) * kMost;
    values.push_back(kMost);
    values.push_back(-kMost);
    const Histogram histogram = histogramOf(values, none(), statisticsOf(values), 64);
    EXPECT_EQ(std::accumulate(histogram.all.begin(), histogram.all.end(), std::size_t{0}), values.size());
}

TEST(Histogram, OfAMillionValuesIsQuick)
{
    std::mt19937 random(5);
    std::normal_distribution<float> any(10, 3);
    std::vector<float> values(1'000'000);
    for (float& value : values)
        value = any(random);
    std::vector<std::uint32_t> selected(values.size() / 2);
    std::iota(selected.begin(), selected.end(), 0U);
    double best = 1e9; // milliseconds: the quickest of some, as others use the machine as well
    for (int round = 0; round < 5; ++round) {
        const auto start = std::chrono::steady_clock::now();
        const Statistics statistics = statisticsOf(values);
        const Histogram histogram = histogramOf(values, selected, statistics, 50);
        best =
            std::min(best, std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - start).count());
        EXPECT_EQ(histogram.selectedCount, selected.size());
    }
    RecordProperty("milliseconds", std::to_string(best));
#ifndef __SANITIZE_ADDRESS__
    EXPECT_LT(best, 20);
#endif
}

TEST(Ticks, AreRoundNumbersWithinTheRange)
{
    EXPECT_THAT(ticksOf(0, 10, 6).values, ElementsAre(0, 2, 4, 6, 8, 10));
    EXPECT_THAT(ticksOf(0.3, 9.7, 6).values, ElementsAre(2, 4, 6, 8));
    EXPECT_THAT(ticksOf(-1, 1, 5).values, ElementsAre(-1, -0.5, 0, 0.5, 1));
    EXPECT_THAT(ticksOf(12, 61, 3).values, ElementsAre(50));
}

TEST(Ticks, HaveTheDecimalsThatTellThemApart)
{
    EXPECT_EQ(ticksOf(0, 10, 6).decimals, 0);
    EXPECT_EQ(ticksOf(-1, 1, 5).decimals, 1);
    EXPECT_EQ(ticksOf(100, 100.1, 6).decimals, 2);
}

TEST(Ticks, OfLongNumbersAreInPowersOfTen)
{
    const Ticks large = ticksOf(0, 5e6, 6);
    EXPECT_EQ(large.exponent, 6);
    EXPECT_EQ(large.decimals, 0);
    const Ticks small = ticksOf(0, 0.004, 5);
    EXPECT_EQ(small.exponent, -3);
    EXPECT_EQ(small.decimals, 0);
    EXPECT_EQ(ticksOf(0, 999'999, 6).exponent, 0);
}

TEST(Ticks, OfOneNumberAreThatNumber)
{
    const Ticks ticks = ticksOf(12.5, 12.5, 6);
    EXPECT_THAT(ticks.values, ElementsAre(12.5));
    EXPECT_EQ(ticks.decimals, 1);
    EXPECT_THAT(ticksOf(0, 0, 6).values, ElementsAre(0));
}

TEST(Ticks, AreNeverMoreThanAskedFor)
{
    std::mt19937 random(9);
    std::uniform_real_distribution<double> any(-1, 1);
    for (int round = 0; round < 2000; ++round) {
        const double scale = std::pow(10.0, 12 * any(random));
        const double a = any(random) * scale;
        const double b = any(random) * scale;
        const int most = 2 + round % 7;
        const Ticks ticks = ticksOf(std::min(a, b), std::max(a, b), most);
        ASSERT_LE(ticks.values.size(), static_cast<std::size_t>(most)) << "round " << round;
        ASSERT_TRUE(std::is_sorted(ticks.values.begin(), ticks.values.end()));
        for (const double value : ticks.values) {
            ASSERT_GE(value, std::min(a, b) - 1e-6 * scale);
            ASSERT_LE(value, std::max(a, b) + 1e-6 * scale);
        }
    }
}

} // namespace
} // namespace vqview
