// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Lines one pixel wide without smoothing. On every whole position of the longer axis from end to end, ends included,
/// the nearest pixel of the shorter one; halfway lies towards larger coordinates. Curves of GDI+ are reproduced bit by
/// bit when their edges, which end between pixels, are drawn so.

#include "Platform/gdiplus/raster/DashPattern.h"
#include "Platform/gdiplus/raster/Polylines.h"

#include <algorithm>
#include <utility>

namespace vq::gdiplus {

/// Calls `pixel(x, y, distance)` for the pixels of an edge on a surface of width x height; `distance`, in pixels, is
/// how far from `from` they lie, 0 at least. Both ends are numbers and differ.
template <typename Pixel>
void forEachThinPixel(PointD from, PointD to, int width, int height, Pixel pixel)
{
    const bool across = std::abs(to.x - from.x) >= std::abs(to.y - from.y);
    const auto turned = [across](PointD point) { return across ? point : PointD{point.y, point.x}; };
    const int size = across ? width : height;
    const int sideSize = across ? height : width;
    const PointD start = turned(from);
    const double perStep = lengthOf(to - from) / std::abs(turned(to).x - start.x);
    PointD low = start;
    PointD high = turned(to);
    if (high.x < low.x)
        std::swap(low, high);
    const auto position = [size](double value) { return static_cast<int>(std::clamp(value, -1.0, size + 0.0)); };
    const int first = std::max(position(std::ceil(low.x)), 0);
    const int last = std::min(position(std::floor(high.x)), size - 1);
    const auto [least, most] = std::minmax(low.y, high.y);
    for (int i = first; i <= last; ++i) {
        const double side = std::clamp(low.y + (i - low.x) * (high.y - low.y) / (high.x - low.x), least, most);
        const double nearest = std::floor(side + 0.5);
        if (!(nearest >= 0 && nearest < sideSize))
            continue;
        const int j = static_cast<int>(nearest);
        const double distance = std::max((high.x == start.x ? start.x - i : i - start.x) * perStep, 0.0);
        pixel(across ? i : j, across ? j : i, distance);
    }
}

/// Calls `pixel(y, x, x + 1)` for the pixels of all edges; those where edges meet come more than once.
template <typename Run>
void drawThin(const Polylines& lines, const DashPattern& dashes, int width, int height, Run pixel)
{
    // A pixel lies on the dash that begins at it, however its distance is rounded.
    constexpr double kRounding = 1e-6;
    for (const Polylines::Figure& figure : lines.figures()) {
        const auto points = lines.points(figure);
        double begin = 0;
        const auto edge = [&](PointD from, PointD to) {
            if (from == to)
                return;
            forEachThinPixel(from, to, width, height, [&](int x, int y, double distance) {
                if (dashes.solid() || dashes.at(begin + distance + kRounding).on)
                    pixel(y, x, x + 1);
            });
            begin += lengthOf(to - from);
        };
        for (std::size_t i = 1; i < points.size(); ++i)
            edge(points[i - 1], points[i]);
        if (figure.closed)
            edge(points.back(), points.front());
    }
}

} // namespace vq::gdiplus
