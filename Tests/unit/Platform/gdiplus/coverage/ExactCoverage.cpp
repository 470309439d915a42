// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/coverage/ExactCoverage.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vq::test {

namespace {

using Coordinate = double Vertex::*;

double cross(Vertex a, Vertex b)
{
    return a.x * b.y - a.y * b.x;
}

/// What is left of a polygon on one side of an axis-parallel line (Sutherland and Hodgman). A concave polygon that
/// falls apart keeps connecting sides along the line, which enclose nothing.
Contour keptSide(const Contour& contour, Coordinate coordinate, double limit, bool keepsGreater)
{
    Contour kept;
    const auto isKept = [&](Vertex vertex) {
        return keepsGreater ? vertex.*coordinate >= limit : vertex.*coordinate <= limit;
    };
    for (std::size_t i = 0; i < contour.size(); ++i) {
        const Vertex from = contour[i];
        const Vertex to = contour[(i + 1) % contour.size()];
        if (isKept(from))
            kept.push_back(from);
        if (isKept(from) != isKept(to)) {
            const double share = (limit - from.*coordinate) / (to.*coordinate - from.*coordinate);
            Vertex crossing = from + share * (to - from);
            crossing.*coordinate = limit;
            kept.push_back(crossing);
        }
    }
    return kept;
}

Contour keptBetween(const Contour& contour, Coordinate coordinate, double first, double last)
{
    return keptSide(keptSide(contour, coordinate, first, true), coordinate, last, false);
}

/// The pixels that a range of coordinates touches, within 0 .. count.
struct PixelRange
{
    PixelRange(const Contour& contour, Coordinate coordinate, double origin, int count)
    {
        const auto [least, most] =
            std::ranges::minmax_element(contour, {}, [&](Vertex vertex) { return vertex.*coordinate; });
        first = static_cast<int>(std::clamp(std::floor((*least).*coordinate - origin), 0.0, double{1} * count));
        last = static_cast<int>(std::clamp(std::ceil((*most).*coordinate - origin), 0.0, double{1} * count));
    }
    int first;
    int last; ///< excluded
};

/// Adds the contour's coverage, times a factor.
void addCoverage(const Contour& contour, double factor, double origin, CoverageMap& map)
{
    if (contour.size() < 3)
        return;
    const double direction = areaOf(contour) < 0 ? -factor : factor;
    const PixelRange rows(contour, &Vertex::y, origin, map.height());
    for (int y = rows.first; y < rows.last; ++y) {
        const Contour strip = keptBetween(contour, &Vertex::y, y + origin, y + origin + 1);
        if (strip.size() < 3)
            continue;
        const PixelRange columns(strip, &Vertex::x, origin, map.width());
        for (int x = columns.first; x < columns.last; ++x)
            map.at(x, y) += direction * areaOf(keptBetween(strip, &Vertex::x, x + origin, x + origin + 1));
    }
}

bool isBetween(double value, double a, double b)
{
    return value >= std::min(a, b) && value <= std::max(a, b);
}

bool sidesMeet(Vertex a, Vertex b, Vertex c, Vertex d)
{
    const double ofC = cross(b - a, c - a);
    const double ofD = cross(b - a, d - a);
    const double ofA = cross(d - c, a - c);
    const double ofB = cross(d - c, b - c);
    if (ofC == 0 && ofD == 0)
        return isBetween(c.x, a.x, b.x) && isBetween(c.y, a.y, b.y);
    return (ofC > 0) != (ofD > 0) && (ofA > 0) != (ofB > 0);
}

} // namespace

double areaOf(const Contour& contour)
{
    double twice = 0;
    for (std::size_t i = 0; i < contour.size(); ++i) // from the first corner, so that far away nothing is lost
        twice += cross(contour[i] - contour[0], contour[(i + 1) % contour.size()] - contour[0]);
    return twice / 2;
}

bool isSimple(const Contour& contour)
{
    const std::size_t count = contour.size();
    for (std::size_t i = 0; i < count; ++i)
        for (std::size_t j = i + 2; j < count; ++j) {
            const bool areNeighbours = i == 0 && j == count - 1;
            if (!areNeighbours && sidesMeet(contour[i], contour[i + 1], contour[j], contour[(j + 1) % count]))
                return false;
        }
    return true;
}

double CoverageMap::sum() const
{
    return std::accumulate(m_shares.begin(), m_shares.end(), 0.0);
}

CoverageMap exactCoverage(const Outline& outline, int width, int height, double origin)
{
    CoverageMap map(width, height);
    for (const Contour& area : outline.areas)
        addCoverage(area, 1, origin, map);
    for (const Contour& hole : outline.holes)
        addCoverage(hole, -1, origin, map);
    return map;
}

} // namespace vq::test
