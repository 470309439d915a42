// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/brushes/Painter.h"
#include "Platform/gdiplus/raster/Polylines.h"

#include <initializer_list>
#include <random>
#include <string>
#include <vector>

namespace vq::test {

using namespace vq::gdiplus;

/// A transparent surface; what is painted on it in opaque black has its coverage as alpha.
struct Surface
{
    Surface(int columns, int rows) : pixels(static_cast<std::size_t>(columns) * static_cast<std::size_t>(rows))
    {
        canvas.view = {reinterpret_cast<std::uint8_t*>(pixels.data()), columns * std::ptrdiff_t{4}, columns, rows};
        canvas.blend = Blend::SourceOver;
        canvas.alpha = SurfaceAlpha::Stored;
    }

    int coverage(int x, int y) const { return static_cast<int>(canvas.view.row(y)[x] >> 24); }

    /// One character a pixel: '#' covered, '.' not, '+' partly.
    std::vector<std::string> picture() const
    {
        std::vector<std::string> rows;
        for (int y = 0; y < canvas.view.height; ++y) {
            rows.emplace_back();
            for (int x = 0; x < canvas.view.width; ++x)
                rows.back() += coverage(x, y) == 0 ? '.' : coverage(x, y) == 255 ? '#' : '+';
        }
        return rows;
    }

    std::vector<Pixel> pixels;
    Canvas canvas{};
    Shader black = SolidShader{0xFF000000};
};

inline Polylines polylineOf(std::initializer_list<PointD> points, bool closed)
{
    Polylines lines;
    for (const PointD& point : points)
        lines.add(point);
    lines.endFigure(closed);
    return lines;
}

/// The area that a closed figure encloses; positive when it turns from right to down.
inline double signedArea(std::span<const PointD> points)
{
    double twice = 0;
    for (std::size_t i = 0; i < points.size(); ++i) {
        const PointD& a = points[i];
        const PointD& b = points[(i + 1) % points.size()];
        twice += a.x * b.y - a.y * b.x;
    }
    return twice / 2;
}

inline double signedArea(const Polylines& lines)
{
    double sum = 0;
    for (const auto& figure : lines.figures())
        sum += signedArea(lines.points(figure));
    return sum;
}

/// The area of a convex or simple polygon in the pixel around (x, y): half-planes cut it, one after another.
inline double areaInPixel(std::vector<PointD> polygon, int x, int y)
{
    const auto cut = [&](auto inside) {
        std::vector<PointD> rest;
        for (std::size_t i = 0; i < polygon.size(); ++i) {
            const PointD& a = polygon[i];
            const PointD& b = polygon[(i + 1) % polygon.size()];
            const double da = inside(a);
            const double db = inside(b);
            if (da >= 0)
                rest.push_back(a);
            if ((da >= 0) != (db >= 0))
                rest.push_back({a.x + (b.x - a.x) * da / (da - db), a.y + (b.y - a.y) * da / (da - db)});
        }
        polygon = rest;
    };
    cut([&](PointD p) { return p.x - (x - 0.5); });
    cut([&](PointD p) { return x + 0.5 - p.x; });
    cut([&](PointD p) { return p.y - (y - 0.5); });
    cut([&](PointD p) { return y + 0.5 - p.y; });
    return std::abs(signedArea(polygon));
}

} // namespace vq::test
