// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/CutDashes.h"

#include <algorithm>

namespace vq::gdiplus {
namespace {

/// The part of an edge, 0 .. 1, that may be seen; empty when first > last.
struct Part
{
    double first = 0;
    double last = 1;

    /// Keeps what lies between low and high on one axis.
    void clip(double from, double to, double low, double high)
    {
        const double length = to - from;
        if (length == 0) {
            if (from < low || from > high)
                last = -1;
            return;
        }
        const double a = (low - from) / length;
        const double b = (high - from) / length;
        first = std::max(first, std::min(a, b));
        last = std::min(last, std::max(a, b));
    }
};

Part visiblePart(PointD from, PointD to, const Bounds& visible)
{
    Part part;
    part.clip(from.x, to.x, visible.left, visible.right);
    part.clip(from.y, to.y, visible.top, visible.bottom);
    return part;
}

class Cutter
{
public:
    Cutter(const DashPattern& pattern, const Bounds& visible, Polylines& dashes)
        : m_pattern(pattern), m_visible(visible), m_dashes(dashes), m_walk(pattern, 0)
    {
    }

    void cut(std::span<const PointD> points, bool closed)
    {
        for (std::size_t i = 1; i < points.size(); ++i)
            edge(points[i - 1], points[i]);
        if (closed)
            edge(points.back(), points.front());
        if (m_walk.on())
            endDash(!closed);
    }

private:
    void edge(PointD from, PointD to)
    {
        const double length = lengthOf(to - from);
        if (length == 0)
            return;
        const Part part = visiblePart(from, to, m_visible);
        if (part.first > part.last)
            return skip(length);
        skip(part.first * length);
        walk(from, (to - from) * (1 / length), part.first * length, part.last * length);
        skip((1 - part.last) * length);
    }

    /// Goes on unseen.
    void skip(double distance)
    {
        if (distance <= 0)
            return;
        endDash(false);
        m_begin += distance;
        m_walk = DashPattern::Walk(m_pattern, m_begin);
    }

    /// Goes along an edge from one distance from its begin to another.
    void walk(PointD from, PointD direction, double position, double end)
    {
        while (position < end) {
            const double step = std::min(m_walk.left(), end - position);
            if (m_walk.on()) {
                if (m_dashes.openCount() == 0) {
                    m_atStart = m_begin == 0;
                    m_dashes.add(from + direction * position);
                }
                m_dashes.add(from + direction * (position + step));
            }
            position += step;
            m_begin += step;
            if (step < m_walk.left()) {
                m_walk.go(step);
                return;
            }
            endDash(false);
            m_walk.next();
        }
    }

    void endDash(bool atEnd) { m_dashes.endFigure(false, m_atStart, atEnd); }

    const DashPattern& m_pattern;
    const Bounds& m_visible;
    Polylines& m_dashes;
    DashPattern::Walk m_walk;
    double m_begin = 0; ///< how far the line has come
    bool m_atStart = false;
};

} // namespace

void cutDashes(const Polylines& lines, const DashPattern& pattern, const Bounds& visible, Polylines& dashes)
{
    for (const Polylines::Figure& figure : lines.figures())
        Cutter(pattern, visible, dashes).cut(lines.points(figure), figure.closed);
}

} // namespace vq::gdiplus
