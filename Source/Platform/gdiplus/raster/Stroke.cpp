// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/Stroke.h"

#include "Platform/gdiplus/raster/CutDashes.h"

#include <algorithm>
#include <numbers>

namespace vq::gdiplus {
namespace {

/// Points closer together than this, in pixels, are one: an edge between them would have the direction of a rounding.
constexpr double kSamePoint = 1e-3;

/// The sine of an angle that is none.
constexpr double kNoAngle = 1e-9;

/// What a dash that is shorter than its ends becomes: a line that still has a direction.
constexpr double kSpeck = 4e-3;

/// The joints' arcs stay within 1/8 pixel over this of a circle.
constexpr double kArcScale = 64;

/// The cosine of 18 degrees, up to which a bend is slight, and how much longer than a stroke is wide its outer corner
/// is.
constexpr double kSlightBend = 0.951;
constexpr double kSlightMiter = 1.02;

/// How far, in pixels, the inner side of such a bend may fold back: over an area that nobody sees.
constexpr double kFold = 0.1;

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
    m_slightBendsArePointed = style.corner != Corner::Bevel && style.miterLimit > kSlightMiter;

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
        for (const Vertex& vertex : m_vertices)
            m_bodies.add(vertex.at);
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
    m_slightBendsArePointed = true;
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
            const PointD a = m_vertices[i].at;
            const PointD b = m_vertices[(i + 1) % m_vertices.size()].at;
            area += a.x * b.y - a.y * b.x;
        }
        m_width = area > 0 ? -2 * distance : 2 * distance;
        m_joints.width(m_width);
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
            Vertex& previous = m_vertices.back();
            const PointD edge = point - previous.at;
            previous.length = lengthOf(edge);
            if (previous.length <= kSamePoint)
                continue;
            previous.direction = edge * (1 / previous.length);
        }
        m_vertices.push_back({point, {}, 0});
    }
    if (closed) {
        while (m_vertices.size() > 1 && lengthOf(m_vertices.front().at - m_vertices.back().at) <= kSamePoint)
            m_vertices.pop_back();
        const PointD edge = m_vertices.front().at - m_vertices.back().at;
        m_vertices.back().length = lengthOf(edge);
        m_vertices.back().direction = edge * (1 / m_vertices.back().length);
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
        total += m_vertices[i].length;
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
    const auto edgeAt = [&](double& along) {
        std::size_t edge = 0;
        while (edge + 2 < m_vertices.size() && along > m_vertices[edge].length)
            along -= m_vertices[edge++].length;
        return edge;
    };
    const auto pointAt = [&](double along) {
        const Vertex& vertex = m_vertices[edgeAt(along)];
        return vertex.at + vertex.direction * along;
    };
    const PointD start = pointAt(first);
    const PointD end = pointAt(last);
    const std::size_t firstEdge = edgeAt(first);
    const std::size_t lastEdge = edgeAt(last);
    m_cut.clear();
    m_cut.push_back(start);
    for (std::size_t i = firstEdge + 1; i <= lastEdge; ++i)
        m_cut.push_back(m_vertices[i].at);
    m_cut.push_back(end);
    load(m_cut, false);
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

/// Of neighbours; the edge after the last vertex of a closed figure leads to its first one.
const Stroker::Vertex& Stroker::edgeBetween(std::size_t a, std::size_t b) const
{
    const auto [lower, upper] = std::minmax(a, b);
    return m_vertices[upper == lower + 1 ? lower : upper];
}

void Stroker::join(std::size_t before, std::size_t at, std::size_t after, Target target)
{
    const Vertex& in = edgeBetween(before, at);
    const Vertex& out = edgeBetween(at, after);
    const double sign = (before + 1) % m_vertices.size() == at ? 1 : -1; // backwards
    const PointD a = in.direction * sign;
    const PointD b = out.direction * sign;
    const PointD corner = m_vertices[at].at;
    const double cosine = a.x * b.x + a.y * b.y;
    const double sine = std::abs(a.x * b.y - a.y * b.x);
    const double half = m_width / 2;
    // Curves are made of bends so slight that both sides of the stroke have a plain corner there, where the edges reach
    // about as far as the inner corner.
    if (m_slightBendsArePointed && cosine > kSlightBend &&
        (std::min(in.length, out.length) + kFold) * (1 + cosine) > std::abs(half) * sine) {
        target.add(corner + PointD{a.y + b.y, -a.x - b.x} * (half / (1 + cosine)));
        return;
    }
    const bool turnsBack = cosine < 0 && sine < kNoAngle;
    if (turnsBack && m_joints.line_join() != agg::round_join) { // a point at a limit would have no direction
        target.add(corner + PointD{a.y, -a.x} * half);
        target.add(corner + PointD{b.y, -b.x} * half);
        return;
    }
    const auto vertex = [&](std::size_t i) { return agg::vertex_dist(m_vertices[i].at.x, m_vertices[i].at.y); };
    m_joints.calc_join(target, vertex(before), vertex(at), vertex(after), in.length, out.length);
}

void Stroker::finish(LineEnd kind, std::size_t at, std::size_t inner, Target target)
{
    const PointD end = m_vertices[at].at;
    const Vertex& edge = edgeBetween(at, inner);
    const PointD inwards = edge.direction * (at < inner ? 1.0 : -1.0);
    const PointD side = PointD{inwards.y, -inwards.x} * (m_width / 2);
    switch (kind) {
    case LineEnd::Triangle:
        target.add(end - side);
        target.add(end - inwards * (m_width / 2));
        target.add(end + side);
        return;
    case LineEnd::Square:
        target.add(end - side - inwards * (m_width / 2));
        target.add(end + side - inwards * (m_width / 2));
        return;
    case LineEnd::Round: {
        const PointD within = m_vertices[inner].at;
        m_joints.line_cap(agg::round_cap);
        m_joints.calc_cap(target, agg::vertex_dist(end.x, end.y), agg::vertex_dist(within.x, within.y), edge.length);
        return;
    }
    default:
        target.add(end - side);
        target.add(end + side);
    }
}

} // namespace vq::gdiplus
