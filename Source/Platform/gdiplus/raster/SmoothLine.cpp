// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/SmoothLine.h"

#include "Platform/gdiplus/compositor/CompositePixel.h"
#include "Platform/gdiplus/raster/ConvexPolygon.h"

#include <cmath>
#include <cstdint>

namespace vq::gdiplus {
namespace {

constexpr double kWidest = 2.5;
constexpr double kFarthest = 1e8;

/// 32 bits of a position are its fraction.
constexpr int kFractionBits = 32;
constexpr int kStepBits = kFractionBits - 8;
constexpr std::int64_t kHalfStep = std::int64_t{1} << (kStepBits - 1);

/// The share of a pixel that is covered in full; a level of coverage is 256 of it.
constexpr int kWhole = 255 * 256;

std::int64_t toFixed(double value)
{
    return static_cast<std::int64_t>(std::floor(value * (std::int64_t{1} << kFractionBits)));
}

/// The part of [0, 1] x [0, 1] above an edge that passes its middle `middle` below the upper side and rises or falls by
/// 2 `half` across it.
double shareAbove(double middle, double half)
{
    if (middle <= -half)
        return 0;
    if (middle >= 1 + half)
        return 1;
    if (middle < half)
        return (middle + half) * (middle + half) / (4 * half);
    if (middle > 1 - half)
        return 1 - (1 + half - middle) * (1 + half - middle) / (4 * half);
    return middle;
}

/// Memory is fetched for what is drawn this many columns later.
constexpr int kAhead = 16;

/// A line with fewer columns than this looks up less than its table has entries.
constexpr int kFewColumns = 64;

/// Composites a pixel of a line that was turned, or was not, to be wider than high.
template <bool steep, typename Composite>
struct Plot
{
    PixelView view;
    Composite composite;

    void operator()(int i, int j, Channel coverage) const
    {
        if (coverage != 0)
            composite(steep ? j : i, steep ? i : j, coverage);
    }

    /// Of a steep line every pixel lies on another row, which the processor does not foresee.
    void expect(int i, int j) const
    {
        if (steep && i < view.height && j >= 0 && j < view.width)
            __builtin_prefetch(view.row(i) + j, 1);
    }
};

Channel toChannel(double share)
{
    return static_cast<Channel>(share * 255 + 0.5);
}

} // namespace

SmoothLine::SmoothLine()
{
    for (std::size_t i = 0; i < m_shares.size(); ++i)
        m_shares[i] = i < m_shares.size() / 2 ? 0 : kWhole;
}

bool SmoothLine::canDraw(PointD from, PointD to, double width)
{
    const auto isNear = [](PointD point) { return std::abs(point.x) < kFarthest && std::abs(point.y) < kFarthest; };
    return width <= kWidest && isNear(from) && isNear(to);
}

/// The share, of kWhole, above an edge that passes `step` steps below a pixel's upper side.
int SmoothLine::shareAtStep(int step, double halfSlope)
{
    return static_cast<int>(shareAbove(static_cast<double>(step) / kSteps, halfSlope) * kWhole + 0.5);
}

void SmoothLine::tabulate(double slope)
{
    if (slope == m_slope)
        return;
    m_slope = slope;
    for (int i = -kSteps / 2; i <= kSteps + kSteps / 2; ++i)
        m_shares[static_cast<std::size_t>(kOrigin + i)] = static_cast<std::uint16_t>(shareAtStep(i, slope / 2));
}

/// The columns between the ends: two parallel edges pass through each of them. `shareAt(i)` is the share of a pixel
/// above an edge that passes i steps below its upper side.
template <typename Plot, typename ShareAt>
void SmoothLine::drawSteps(double firstCentre, double slope, double halfHeight, int first, int last, int rows,
                           const Plot& plot, ShareAt shareAt)
{
    const double reach = std::abs(slope) / 2;
    std::int64_t upper = toFixed(firstCentre - halfHeight + 0.5); // rows begin half a pixel above their centres
    const std::int64_t thickness = toFixed(2 * halfHeight);
    const std::int64_t across = toFixed(reach);
    const std::int64_t step = toFixed(slope);
    for (int i = first; i <= last; ++i, upper += step) {
        plot.expect(i + kAhead, static_cast<int>((upper + kAhead * step) >> kFractionBits));
        const std::int64_t lower = upper + thickness;
        const int firstRow = std::max(static_cast<int>((upper - across) >> kFractionBits), 0);
        const int lastRow = std::min(static_cast<int>((lower + across) >> kFractionBits), rows - 1);
        const auto upperStep = static_cast<int>((upper + kHalfStep) >> kStepBits);
        const auto lowerStep = static_cast<int>((lower + kHalfStep) >> kStepBits);
        for (int j = firstRow; j <= lastRow; ++j) {
            const int share = shareAt(lowerStep - j * kSteps) - shareAt(upperStep - j * kSteps);
            plot(i, j, static_cast<Channel>((share + 128) >> 8));
        }
    }
}

/// A line that is at least as wide as it is high, on a surface of columns x rows.
template <typename Plot>
void SmoothLine::drawTurned(PointD from, PointD to, double width, int columns, int rows, const Plot& plot)
{
    if (to.x < from.x)
        std::swap(from, to);
    const PointD along = (to - from) * (1 / lengthOf(to - from));
    const PointD side = PointD{along.y, -along.x} * (width / 2);
    const ConvexPolygon body({from + side, to + side, to - side, from - side});
    const double slope = along.y / along.x;
    const double halfHeight = width / 2 / along.x;

    const auto column = [columns](double x) {
        return static_cast<int>(std::clamp(x, -1.0, static_cast<double>(columns)));
    };
    const double overhang = std::abs(side.x);
    const int first = std::max(column(std::floor(from.x - overhang + 0.5)), 0);
    const int last = std::min(column(std::ceil(to.x + overhang - 0.5)), columns - 1);
    const int firstWhole = std::max(column(std::ceil(from.x + overhang + 0.5)), first);
    const int lastWhole = std::min(column(std::floor(to.x - overhang - 0.5)), last);

    const auto drawEnd = [&](int begin, int end) {
        ConvexPolygon rest = body;
        rest.takeColumnsUpTo(begin - 0.5);
        for (int i = begin; i < end; ++i) {
            ConvexPolygon strip = rest.takeColumnsUpTo(i + 0.5);
            if (strip.empty())
                continue;
            const auto [top, bottom] = strip.rows();
            const auto row = [rows](double y) { return static_cast<int>(std::clamp(y, -1.0, rows + 0.0)); };
            const int firstRow = std::max(row(std::floor(top + 0.5)), 0);
            const int lastRow = std::min(row(std::ceil(bottom - 0.5)), rows - 1);
            if (top < firstRow - 0.5)
                strip.takeRowsUpTo(firstRow - 0.5);
            for (int j = firstRow; j <= lastRow; ++j)
                plot(i, j, toChannel(bottom > j + 0.5 ? strip.takeRowsUpTo(j + 0.5).area() : strip.area()));
        }
    };
    if (firstWhole > lastWhole)
        return drawEnd(first, last + 1);
    drawEnd(first, firstWhole);
    const auto drawStepsWith = [&](auto shareAt) {
        drawSteps(from.y + (firstWhole - from.x) * slope, slope, halfHeight, firstWhole, lastWhole, rows, plot,
                  shareAt);
    };
    const double steepness = std::abs(slope);
    if (steepness != m_slope && lastWhole - firstWhole < kFewColumns) {
        drawStepsWith([=](int step) { return shareAtStep(step, steepness / 2); });
    } else {
        tabulate(steepness);
        drawStepsWith([this](int step) { return m_shares[static_cast<std::size_t>(kOrigin + step)]; });
    }
    drawEnd(lastWhole + 1, last + 1);
}

void SmoothLine::draw(PointD from, PointD to, double width, const Painter& painter)
{
    const PixelView view = painter.canvas().view;
    const auto drawWith = [&]<typename Composite>(Composite composite) {
        if (std::abs(to.y - from.y) > std::abs(to.x - from.x))
            drawTurned({from.y, from.x}, {to.y, to.x}, width, view.height, view.width,
                       Plot<true, Composite>{view, composite});
        else
            drawTurned(from, to, width, view.width, view.height, Plot<false, Composite>{view, composite});
    };
    if (const auto colour = painter.plainColour())
        drawWith([view, colour = *colour](int x, int y, Channel coverage) {
            Pixel& pixel = view.row(y)[x];
            pixel = overPixel<StoredLight>(pixel, withCoverage(colour, coverage));
        });
    else
        drawWith([&](int x, int y, Channel coverage) { painter.run(x, y, 1, coverage); });
}

} // namespace vq::gdiplus
