// SPDX-License-Identifier: MIT
#include "vqview/overlay/Labels.h"

#include "vqview/overlay/Panels.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

namespace vqview {

namespace {

constexpr float kBeside = 8;        // units from a picked point to its number
constexpr float kBelow = 4;         // from an edge of the bounds to its size
constexpr float kShortestEdge = 24; // that gets its size

struct WindowPoint
{
    double x = 0, y = 0, depth = 0; // y upwards
};

/// Where labels are put, and how large they are.
struct Placing
{
    const SVQGLVariables& view;
    const TextStyle& style;
    float scale;

    /// Nothing for what lies behind the eye, which would be seen mirrored.
    std::optional<WindowPoint> seen(const Point3& point) const;
    /// Adds a label with its upper left corner so many pixels from a point, y downwards.
    void add(const CString& text, const WindowPoint& at, LONG right, LONG down) const;
    void addCentred(const CString& text, const WindowPoint& at, LONG down) const;
    LONG halfLine() const { return style.lineHeight() / 2; }
};

/// The fourth of a point's clip coordinates: its distance in front of the eye, or 1 without a perspective.
double clipWeight(const SVQGLVariables& view, const Point3& point)
{
    const std::array<double, 4> model{point.x, point.y, point.z, 1};
    double weight = 0;
    for (std::size_t row = 0; row < 4; ++row) {
        double eye = 0;
        for (std::size_t column = 0; column < 4; ++column)
            eye += view.m_dModelView[column * 4 + row] * model[column];
        weight += view.m_dProjection[row * 4 + 3] * eye;
    }
    return weight;
}

std::optional<WindowPoint> Placing::seen(const Point3& point) const
{
    WindowPoint window;
    if (!(clipWeight(view, point) > 0) || gluProject(point.x, point.y, point.z, view.m_dModelView, view.m_dProjection,
                                                     view.m_iViewport, &window.x, &window.y, &window.depth) != GL_TRUE)
        return std::nullopt;
    return window;
}

void Placing::add(const CString& text, const WindowPoint& at, LONG right, LONG down) const
{
    // The list takes a place of the scene. The middle of a pixel stays in it whatever the conversions round.
    const double x = std::floor(at.x + right) + 0.5;
    const double y = std::floor(at.y - down) + 0.5;
    double scene[3];
    if (gluUnProject(x, y, at.depth, view.m_dModelView, view.m_dProjection, view.m_iViewport, &scene[0], &scene[1],
                     &scene[2]) != GL_TRUE)
        return;
    CVQDrawingAPI::Text()->Add(VQ_TEXT_FREE | VQ_TEXT_ONCE, static_cast<float>(scene[0]), static_cast<float>(scene[1]),
                               static_cast<float>(scene[2]), L"%s", text.GetString());
}

void Placing::addCentred(const CString& text, const WindowPoint& at, LONG down) const
{
    add(text, at, -CVQDIB::GetTextSize(style.font, text).cx / 2, down);
}

CString lengthText(double length)
{
    return CVQUnit::GetDeciPointedString(length, true, VQ_UNIT_LENGTH, true, true, true, -1);
}

Point3 middleOf(const Point3& a, const Point3& b)
{
    return {(a.x + b.x) / 2, (a.y + b.y) / 2, (a.z + b.z) / 2};
}

void addPicked(std::span<const Point3> picked, const Placing& placing)
{
    for (std::size_t i = 0; i < picked.size(); ++i) {
        CString number;
        number.Format(L"%d", static_cast<int>(i + 1));
        if (const auto at = placing.seen(picked[i]))
            placing.add(number, *at, pixels(kBeside, placing.scale), -placing.halfLine());
        if (i + 1 == picked.size())
            return;
        const Point3& next = picked[i + 1];
        const double distance =
            std::hypot(double{next.x} - picked[i].x, double{next.y} - picked[i].y, double{next.z} - picked[i].z);
        if (const auto middle = placing.seen(middleOf(picked[i], next)))
            placing.addCentred(lengthText(distance), *middle, -placing.halfLine());
    }
}

/// An edge of the bounds as it is seen.
struct SeenEdge
{
    WindowPoint middle;
    double outwards; ///< the larger, the farther below, or to the right of an upright edge
    double length;
};

enum Axis : std::size_t { X, Y, Z };

std::optional<SeenEdge> seenEdge(const Bounds& bounds, Axis axis, unsigned which, const Placing& placing)
{
    const std::array<float, 3> least{bounds.least.x, bounds.least.y, bounds.least.z};
    const std::array<float, 3> most{bounds.most.x, bounds.most.y, bounds.most.z};
    std::array<float, 3> from = least;
    const std::size_t second = (axis + 1) % 3;
    const std::size_t third = (axis + 2) % 3;
    from[second] = (which & 1) != 0 ? most[second] : least[second];
    from[third] = (which & 2) != 0 ? most[third] : least[third];
    std::array<float, 3> to = from;
    to[axis] = most[axis];
    const Point3 first{from[0], from[1], from[2]};
    const Point3 last{to[0], to[1], to[2]};
    const auto a = placing.seen(first);
    const auto b = placing.seen(last);
    const auto middle = placing.seen(middleOf(first, last));
    if (!a || !b || !middle)
        return std::nullopt;
    return SeenEdge{*middle, axis == Y ? middle->x : -middle->y, std::hypot(a->x - b->x, a->y - b->y)};
}

void addSize(const Bounds& bounds, Axis axis, double size, const Placing& placing)
{
    std::optional<SeenEdge> outermost;
    for (unsigned which = 0; which < 4; ++which)
        if (const auto edge = seenEdge(bounds, axis, which, placing);
            edge && (!outermost || edge->outwards > outermost->outwards))
            outermost = edge;
    if (!outermost || outermost->length < pixels(kShortestEdge, placing.scale))
        return;
    const LONG distance = pixels(kBelow, placing.scale);
    if (axis == Y)
        placing.add(lengthText(size), outermost->middle, distance, -placing.halfLine());
    else
        placing.addCentred(lengthText(size), outermost->middle, distance);
}

void addSizes(const Bounds& bounds, const Placing& placing)
{
    if (bounds.isEmpty())
        return;
    addSize(bounds, X, double{bounds.most.x} - bounds.least.x, placing);
    addSize(bounds, Y, double{bounds.most.y} - bounds.least.y, placing);
    addSize(bounds, Z, double{bounds.most.z} - bounds.least.z, placing);
}

void addCount(std::size_t count, const Point3& centre, const Placing& placing)
{
    if (count == 0)
        return;
    const CString text =
        CVQUnit::GetDeciPointedString(static_cast<double>(count), false, VQ_UNIT_END, true, false, false, 0) +
        (count == 1 ? L" point" : L" points");
    if (const auto at = placing.seen(centre))
        placing.addCentred(text, *at, -placing.halfLine());
}

} // namespace

void addLabels(const LabelContent& content, const SVQGLVariables& view, float scale)
{
    if (!CVQDrawingAPI::Text())
        return;
    const TextStyle style = styleOf(DPF_MEASUREMENT_FONT, scale);
    const Placing placing{view, style, scale};
    addSizes(content.bounds, placing);
    addCount(content.selectedCount, content.selectedCentre, placing);
    addPicked(content.picked, placing);
}

void drawLabels(CVQDIB& image, const SVQGLVariables& view, float scale, DragShapes shapes)
{
    if (!CVQDrawingAPI::Text())
        return;
    TextStyle style = styleOf(DPF_MEASUREMENT_FONT, scale);
    image.SetTextFont(style.font);
    image.SetTextColor(style.colour, 255);
    image.EnableTextShadow(true); // readable on any scan
    SVQGLVariables inImage = view;
    inImage.m_iViewport[0] = 0;
    inImage.m_iViewport[1] = 0;
    if (shapes == DragShapes::Drawn)
        CVQDrawingAPI::Draw(&image, 0, 0, inImage.m_dModelView, inImage.m_dProjection, inImage.m_iViewport);
    else
        CVQDrawingAPI::Text()->Draw(&image, 0, 0, inImage.m_dModelView, inImage.m_dProjection, inImage.m_iViewport);
}

} // namespace vqview
