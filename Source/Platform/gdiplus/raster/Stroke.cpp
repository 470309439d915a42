// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/Stroke.h"

#include "Platform/gdiplus/raster/CutDashes.h"

#include <algorithm>
#include <numbers>

namespace vq::gdiplus {
namespace {

/// Points closer together than this, in pixels, are one.
constexpr double kSamePoint = 1e-9;

/// What a dash that is shorter than its ends becomes: a line that still has a direction.
constexpr double kSpeck = 1e-6;

/// The joints' arcs stay within 1/8 pixel over this of a circle.
constexpr double kArcScale = 64;

constexpr double kLeastAnchorWidth = 2;
constexpr double kArrowLength = std::numbers::sqrt3; // in widths; the half base is one

agg::line_join_e joinOf(Corner corner)
{
    switch (corner) {
    case Corner::Bevel:
        return agg::bevel_join;
    case Corner::Round:
        return agg::round_join;
    case Corner::MiterOrBevel:
        return agg::miter_join_revert;
    default:
        return agg::miter_join;
    }
}

bool isAnchor(LineEnd end)
{
    return end >= LineEnd::NoAnchor;
}

/// How much of a line its anchor replaces.
double bodyLostTo(LineEnd end, double width)
{
    return end == LineEnd::ArrowAnchor ? width : 0;
}

/// The corner that a line's end turns to: `out` leads away from the line, `side` to its second side as outlines go.
struct EndAxes
{
    PointD at;
    PointD out;
    PointD side;

    PointD place(double along, double across) const { return at + out * along + side * across; }
};

EndAxes axesAt(PointD at, PointD inner)
{
    const PointD inwards = (inner - at) * (1 / lengthOf(inner - at));
    return {at, inwards * -1, {inwards.y, -inwards.x}};
}

void addAnchor(LineEnd kind, const EndAxes& axes, double width, Polylines& outline)
{
    const auto add = [&](double along, double across) { outline.add(axes.place(along * width, across * width)); };
    switch (kind) {
    case LineEnd::ArrowAnchor:
        add(-kArrowLength, -1);
        add(0, 0);
        add(-kArrowLength, 1);
        break;
    case LineEnd::SquareAnchor: {
        constexpr double kHalfSide = std::numbers::sqrt2 / 2;
        add(-kHalfSide, -kHalfSide);
        add(kHalfSide, -kHalfSide);
        add(kHalfSide, kHalfSide);
        add(-kHalfSide, kHalfSide);
        break;
    }
    case LineEnd::DiamondAnchor:
        add(0, -1);
        add(1, 0);
        add(0, 1);
        add(-1, 0);
        break;
    case LineEnd::RoundAnchor: {
        const int count = 8 + static_cast<int>(std::ceil(std::numbers::pi * std::sqrt(kArcScale * width)));
        for (int i = 0; i < count; ++i) {
            const double angle = 2 * std::numbers::pi * i / count;
            add(std::sin(angle), -std::cos(angle));
        }
        break;
    }
    default:
        break;
    }
    outline.endFigure(true);
}

PointD pointOf(const agg::vertex_dist& vertex)
{
    return {vertex.x, vertex.y};
}

/// The next point of a line, from one end, that is not that end itself.
const PointD* nextPoint(std::span<const PointD> points, bool fromEnd)
{
    const PointD& at = fromEnd ? points.back() : points.front();
    const auto differs = [&](const PointD& point) { return lengthOf(point - at) > kSamePoint; };
    if (fromEnd) {
        const auto found = std::find_if(points.rbegin(), points.rend(), differs);
        return found == points.rend() ? nullptr : &*found;
    }
    const auto found = std::ranges::find_if(points, differs);
    return found == points.end() ? nullptr : &*found;
}

} // namespace

void Stroker::stroke(const Polylines& lines, const StrokeStyle& style, const Bounds& visible, Polylines& outline)
{
    m_width = style.width;
    m_joints.width(style.width);
    m_joints.line_join(joinOf(style.corner));
    m_joints.inner_join(agg::inner_jag);
    m_joints.miter_limit(style.miterLimit);
    m_joints.approximation_scale(kArcScale);

    const Polylines& bodies = withoutAnchors(lines, style);
    const auto capOf = [](LineEnd end) { return isAnchor(end) ? LineEnd::Flat : end; };
    if (style.dashes.solid()) {
        strokeFigures(bodies, capOf(style.start), capOf(style.end), LineEnd::Flat, outline);
    } else {
        m_dashes.clear();
        cutDashes(bodies, style.dashes, visible, m_dashes);
        strokeFigures(m_dashes, capOf(style.start), capOf(style.end), style.dashEnd, outline);
    }
    addAnchors(lines, style, outline);
}

/// What is left of lines where anchors take their ends.
const Polylines& Stroker::withoutAnchors(const Polylines& lines, const StrokeStyle& style)
{
    const double atStart = bodyLostTo(style.start, style.width);
    const double atEnd = bodyLostTo(style.end, style.width);
    if (atStart == 0 && atEnd == 0)
        return lines;
    m_bodies.clear();
    for (const Polylines::Figure& figure : lines.figures()) {
        if (!load(lines.points(figure), figure.closed))
            continue;
        if (!figure.closed)
            shorten(atStart, atEnd, false);
        for (const agg::vertex_dist& vertex : m_vertices)
            m_bodies.add(pointOf(vertex));
        m_bodies.endFigure(figure.closed);
    }
    return m_bodies;
}

void Stroker::addAnchors(const Polylines& lines, const StrokeStyle& style, Polylines& outline)
{
    if (!isAnchor(style.start) && !isAnchor(style.end))
        return;
    const double width = std::max(style.width, kLeastAnchorWidth);
    for (const Polylines::Figure& figure : lines.figures()) {
        if (figure.closed)
            continue;
        const auto points = lines.points(figure);
        if (const PointD* inner = nextPoint(points, false))
            addAnchor(style.start, axesAt(points.front(), *inner), width, outline);
        if (const PointD* inner = nextPoint(points, true))
            addAnchor(style.end, axesAt(points.back(), *inner), width, outline);
    }
}

void Stroker::inset(const Polylines& figures, double distance, Polylines& result)
{
    m_joints.line_join(agg::miter_join);
    m_joints.inner_join(agg::inner_miter);
    m_joints.miter_limit(10);
    for (const Polylines::Figure& figure : figures.figures()) {
        const auto points = figures.points(figure);
        if (!figure.closed || !load(points, true) || m_vertices.size() < 3) {
            for (const PointD& point : points)
                result.add(point);
            result.endFigure(figure.closed);
            continue;
        }
        double area = 0;
        for (std::size_t i = 0; i < m_vertices.size(); ++i) {
            const agg::vertex_dist& a = m_vertices[i];
            const agg::vertex_dist& b = m_vertices[(i + 1) % m_vertices.size()];
            area += a.x * b.y - a.y * b.x;
        }
        m_joints.width(area > 0 ? -2 * distance : 2 * distance);
        strokeSide(false, result);
        result.endFigure(true);
    }
}

/// Takes a figure's points, each different from the next; false when nothing is left to stroke.
bool Stroker::load(std::span<const PointD> points, bool closed)
{
    m_vertices.clear();
    for (const PointD& point : points) {
        if (!m_vertices.empty()) {
            agg::vertex_dist& previous = m_vertices.back();
            previous.dist = lengthOf(point - pointOf(previous));
            if (previous.dist <= kSamePoint)
                continue;
        }
        m_vertices.emplace_back(point.x, point.y);
    }
    if (closed) {
        while (m_vertices.size() > 1 &&
               lengthOf(pointOf(m_vertices.front()) - pointOf(m_vertices.back())) <= kSamePoint)
            m_vertices.pop_back();
        m_vertices.back().dist = lengthOf(pointOf(m_vertices.front()) - pointOf(m_vertices.back()));
    }
    return m_vertices.size() > 1;
}

/// Takes lengths off the ends of the open line that was loaded. When nothing remains, a speck in the middle of where
/// it would end or nothing.
void Stroker::shorten(double atStart, double atEnd, bool keepSpeck)
{
    if (atStart <= 0 && atEnd <= 0)
        return;
    double total = 0;
    for (std::size_t i = 0; i + 1 < m_vertices.size(); ++i)
        total += m_vertices[i].dist;
    double first = atStart;
    double last = total - atEnd;
    if (last - first < kSpeck) {
        if (!keepSpeck)
            return m_vertices.clear();
        const double middle = std::clamp((first + last) / 2, kSpeck, std::max(total - kSpeck, kSpeck));
        first = middle - kSpeck / 2;
        last = middle + kSpeck / 2;
    }
    cutTo(first, last);
}

/// Keeps what lies between two distances along the line.
void Stroker::cutTo(double first, double last)
{
    const auto pointAt = [&](std::size_t edge, double along) {
        const PointD from = pointOf(m_vertices[edge]);
        const PointD to = pointOf(m_vertices[edge + 1]);
        const PointD point = from + (to - from) * (along / m_vertices[edge].dist);
        return agg::vertex_dist(point.x, point.y);
    };
    const auto edgeAt = [&](double& along) {
        std::size_t edge = 0;
        while (edge + 2 < m_vertices.size() && along > m_vertices[edge].dist)
            along -= m_vertices[edge++].dist;
        return edge;
    };
    double alongFirst = first;
    double alongLast = last;
    const std::size_t firstEdge = edgeAt(alongFirst);
    const std::size_t lastEdge = edgeAt(alongLast);
    const agg::vertex_dist start = pointAt(firstEdge, alongFirst);
    const agg::vertex_dist end = pointAt(lastEdge, alongLast);
    m_vertices.resize(lastEdge + 1);
    m_vertices.push_back(end);
    m_vertices.erase(m_vertices.begin(), m_vertices.begin() + static_cast<std::ptrdiff_t>(firstEdge));
    m_vertices.front() = start;
    for (std::size_t i = 0; i + 1 < m_vertices.size(); ++i)
        m_vertices[i].dist = lengthOf(pointOf(m_vertices[i + 1]) - pointOf(m_vertices[i]));
    // An end that falls on a corner leaves an edge without length.
    std::erase_if(m_vertices, [&](const agg::vertex_dist& vertex) {
        return &vertex != &m_vertices.back() && vertex.dist <= kSamePoint / 1000;
    });
}

/// Ends of dashes keep within the dash; the ends of the whole line reach beyond it.
void Stroker::strokeFigures(const Polylines& lines, LineEnd start, LineEnd end, LineEnd dashEnd, Polylines& outline)
{
    for (const Polylines::Figure& figure : lines.figures()) {
        if (!load(lines.points(figure), figure.closed))
            continue;
        if (figure.closed && m_vertices.size() > 2) {
            strokeSide(false, outline);
            outline.endFigure(true);
            strokeSide(true, outline);
            outline.endFigure(true);
            continue;
        }
        const bool ownStart = figure.atStart && start != LineEnd::Flat;
        const bool ownEnd = figure.atEnd && end != LineEnd::Flat;
        const double pulled = dashEnd == LineEnd::Flat ? 0 : m_width / 2;
        shorten(ownStart ? 0 : pulled, ownEnd ? 0 : pulled, true);
        strokeOpen(ownStart ? start : dashEnd, ownEnd ? end : dashEnd, outline);
    }
}

/// Along one side, round the end, back along the other.
void Stroker::strokeOpen(LineEnd start, LineEnd end, Polylines& outline)
{
    const std::size_t count = m_vertices.size();
    if (count < 2)
        return;
    const Target target{&outline};
    finish(start, 0, 1, target);
    for (std::size_t i = 1; i + 1 < count; ++i)
        join(i - 1, i, i + 1, target);
    finish(end, count - 1, count - 2, target);
    for (std::size_t i = count - 2; i > 0; --i)
        join(i + 1, i, i - 1, target);
    outline.endFigure(true);
}

/// One side of a closed figure.
void Stroker::strokeSide(bool backwards, Polylines& outline)
{
    const std::size_t count = m_vertices.size();
    const Target target{&outline};
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = backwards ? count - 1 - i : i;
        const std::size_t before = (at + count - 1) % count;
        const std::size_t after = (at + 1) % count;
        join(backwards ? after : before, at, backwards ? before : after, target);
    }
}

/// Of the edge between neighbours; the last vertex of a closed figure is one of the first.
double Stroker::edgeLength(std::size_t a, std::size_t b) const
{
    const auto [lower, upper] = std::minmax(a, b);
    return m_vertices[upper == lower + 1 ? lower : upper].dist;
}

void Stroker::join(std::size_t before, std::size_t at, std::size_t after, Target target)
{
    const agg::vertex_dist& v0 = m_vertices[before];
    const agg::vertex_dist& v1 = m_vertices[at];
    const agg::vertex_dist& v2 = m_vertices[after];
    const double in = edgeLength(before, at);
    const double out = edgeLength(at, after);
    const PointD a = (pointOf(v1) - pointOf(v0)) * (1 / in);
    const PointD b = (pointOf(v2) - pointOf(v1)) * (1 / out);
    const bool turnsBack = a.x * b.x + a.y * b.y < 0 && std::abs(a.x * b.y - a.y * b.x) < kSamePoint;
    if (turnsBack && m_joints.line_join() != agg::round_join) { // a point at a limit would have no direction
        const double half = m_joints.width() / 2;
        target.add(pointOf(v1) + PointD{a.y, -a.x} * half);
        target.add(pointOf(v1) + PointD{b.y, -b.x} * half);
        return;
    }
    m_joints.calc_join(target, v0, v1, v2, in, out);
}

void Stroker::finish(LineEnd kind, std::size_t at, std::size_t inner, Target target)
{
    const double length = edgeLength(at, inner);
    if (kind == LineEnd::Triangle) {
        const EndAxes axes = axesAt(pointOf(m_vertices[at]), pointOf(m_vertices[inner]));
        target.add(axes.place(0, -m_width / 2));
        target.add(axes.place(m_width / 2, 0));
        target.add(axes.place(0, m_width / 2));
        return;
    }
    const auto cap = kind == LineEnd::Round    ? agg::round_cap
                     : kind == LineEnd::Square ? agg::square_cap
                                               : agg::butt_cap;
    m_joints.line_cap(cap);
    m_joints.calc_cap(target, m_vertices[at], m_vertices[inner], length);
}

} // namespace vq::gdiplus
