// SPDX-License-Identifier: MIT
#include "vqview/overlay/Histogram.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>

namespace vqview {

namespace {

constexpr std::size_t kNoBin = std::numeric_limits<std::size_t>::max();
constexpr int kMostDecimals = 6; // a float tells no more apart
constexpr double kLongFrom = 1e6;
constexpr double kShortBelow = 1e-2;

/// Puts values into equal parts of a range.
class Bins
{
public:
    Bins(const Statistics& range, std::size_t count)
        : m_least(range.least), m_most(range.most), m_last(static_cast<double>(count - 1)),
          m_perUnit(range.most > range.least ? static_cast<double>(count) / (range.most - range.least) : 0),
          m_first(range.most > range.least ? 0 : static_cast<double>(count / 2))
    {
    }

    std::size_t of(double value) const
    {
        if (!(value >= m_least && value <= m_most))
            return kNoBin;
        return static_cast<std::size_t>(std::min(m_first + (value - m_least) * m_perUnit, m_last));
    }

private:
    double m_least, m_most, m_last, m_perUnit, m_first;
};

/// The smallest of 1, 2, 5 times a power of ten that is not below `least`.
double roundStep(double least)
{
    const double power = std::pow(10.0, std::floor(std::log10(least)));
    constexpr std::array kFactors{1.0, 2.0, 5.0, 10.0};
    constexpr double kTolerance = 1 - 1e-9; // 10 ^ x is not exact
    for (const double factor : kFactors)
        if (factor * power >= least * kTolerance)
            return factor * power;
    return kFactors.back() * power;
}

int exponentOf(double least, double most)
{
    const double largest = std::max(std::fabs(least), std::fabs(most));
    if (largest == 0 || (largest >= kShortBelow && largest < kLongFrom))
        return 0;
    return static_cast<int>(std::floor(std::log10(largest) / 3)) * 3;
}

int decimalsOf(double step, int exponent)
{
    constexpr double kTolerance = 1e-9;
    const double magnitude = std::log10(step) - exponent;
    return std::clamp(static_cast<int>(-std::floor(magnitude + kTolerance)), 0, kMostDecimals);
}

int digitsOf(double value, int exponent)
{
    const double magnitude = value == 0 ? 0 : std::log10(std::fabs(value)) - exponent;
    return std::clamp(2 - static_cast<int>(std::floor(magnitude)), 0, kMostDecimals);
}

} // namespace

Statistics statisticsOf(std::span<const float> values)
{
    double least = std::numeric_limits<double>::infinity();
    double most = -least;
    double sum = 0;
    std::size_t count = 0;
    for (const float value : values) {
        if (!std::isfinite(value))
            continue;
        least = std::min(least, double{value});
        most = std::max(most, double{value});
        sum += value;
        ++count;
    }
    if (count == 0)
        return {};
    return {least, most, std::clamp(sum / static_cast<double>(count), least, most), count};
}

Histogram histogramOf(std::span<const float> values, std::span<const std::uint32_t> selected,
                      const Statistics& statistics, std::size_t bins)
{
    Histogram histogram{std::vector<std::size_t>(bins), std::vector<std::size_t>(bins)};
    if (statistics.count == 0)
        return histogram;
    const Bins parts(statistics, bins);
    for (const float value : values)
        if (const std::size_t bin = parts.of(value); bin != kNoBin)
            ++histogram.all[bin];
    for (const std::uint32_t index : selected) {
        const std::size_t bin = index < values.size() ? parts.of(values[index]) : kNoBin;
        if (bin == kNoBin)
            continue;
        ++histogram.selected[bin];
        ++histogram.selectedCount;
    }
    histogram.highest = *std::max_element(histogram.all.begin(), histogram.all.end());
    return histogram;
}

Ticks ticksOf(double least, double most, int atMost)
{
    Ticks ticks;
    ticks.exponent = exponentOf(least, most);
    if (!(most > least)) {
        ticks.values = {least};
        ticks.decimals = digitsOf(least, ticks.exponent);
        return ticks;
    }
    const double step = roundStep((most - least) / std::max(atMost - 1, 1));
    ticks.decimals = decimalsOf(step, ticks.exponent);
    const double tolerance = step * 1e-6;
    for (double index = std::ceil((least - tolerance) / step); index * step <= most + tolerance; ++index)
        ticks.values.push_back(index * step);
    return ticks;
}

Statistics withoutTails(std::span<const float> values, const Statistics& all)
{
    constexpr std::size_t kParts = 4096;
    constexpr double kWorthShowing = 0.25;
    const std::vector<std::size_t> parts = histogramOf(values, {}, all, kParts).all;
    const std::size_t tail = all.count / 100;
    std::size_t first = 0, last = kParts - 1;
    for (std::size_t passed = parts[first]; first < last && passed <= tail;)
        passed += parts[++first];
    for (std::size_t passed = parts[last]; last > first && passed <= tail;)
        passed += parts[--last];
    const double part = (all.most - all.least) / kParts;
    Statistics middle = all;
    middle.least = all.least + part * static_cast<double>(first);
    middle.most = all.least + part * static_cast<double>(last + 1);
    const bool isNarrow = middle.most - middle.least < kWorthShowing * (all.most - all.least);
    const bool holdsMean = all.mean >= middle.least && all.mean <= middle.most;
    return isNarrow && holdsMean ? middle : all;
}

} // namespace vqview
