// SPDX-License-Identifier: MIT
#include "vqview/overlay/Labels.h"

#include "vqview/overlay/Panels.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <optional>

namespace vqview {

namespace {

constexpr float kBeside = 12;       // units from a picked point to its number, past the sphere there
constexpr float kFromLine = 3;      // from a line to what names it
constexpr float kShortestEdge = 24; // of the bounds that gets its size

struct WindowPoint
{
    double x = 0, y = 0, depth = 0; // y upwards
};

/// In pixels of an image, y downwards.
struct Direction
{
    double x = 0, y = 0;
};

constexpr Direction kRight{1, 0};
constexpr Direction kUp{0, -1};
constexpr Direction kDown{0, 1};

/// A line as it is seen, and the middle of what it stands for.
struct SeenLine
{
    WindowPoint from, to, middle;

    double length() const { return std::hypot(to.x - from.x, to.y - from.y); }
    /// Upright to the line, to the side that is named; that itself where the line is a point.
    Direction sideTo(const Direction& side) const
    {
        if (!(length() > 0))
            return side;
        const Direction across{(to.y - from.y) / length(), (to.x - from.x) / length()};
        const double sign = across.x * side.x + across.y * side.y < 0 ? -1 : 1;
        return {across.x * sign, across.y * sign};
    }
};

/// Where labels are put, and how large they are.
struct Placing
{
    const SVQGLVariables& view;
    const TextStyle& style;
    float scale;

    /// Nothing for what lies behind the eye, which would be seen mirrored.
    std::optional<WindowPoint> seen(const Point3& point) const;
    std::optional<SeenLine> seen(const Point3& from, const Point3& to) const;
    /// Adds a label with its middle in some direction from a point, so far that their distance is as given, in units.
    void add(const CString& text, const WindowPoint& at, const Direction& direction, float distance) const;
    void addBeside(const CString& text, const SeenLine& line, const Direction& side) const
    {
        add(text, line.middle, line.sideTo(side), kFromLine);
    }
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

std::optional<SeenLine> Placing::seen(const Point3& from, const Point3& to) const
{
    const auto first = seen(from);
    const auto last = seen(to);
    const auto middle = seen(Point3{(from.x + to.x) / 2, (from.y + to.y) / 2, (from.z + to.z) / 2});
    if (!first || !last || !middle)
        return std::nullopt;
    return SeenLine{*first, *last, *middle};
}

void Placing::add(const CString& text, const WindowPoint& at, const Direction& direction, float distance) const
{
    const CSize size = CVQDIB::GetTextSize(style.font, text);
    const double away = std::fabs(direction.x) * size.cx / 2 + std::fabs(direction.y) * size.cy / 2 +
                        pixels(distance, scale) * std::hypot(direction.x, direction.y);
    // The list takes a place of the scene. The middle of a pixel stays in it whatever the conversions round.
    const double x = std::floor(at.x + direction.x * away - size.cx / 2.0) + 0.5;
    const double y = std::floor(at.y - direction.y * away + size.cy / 2.0) + 0.5;
    double scene[3];
    if (gluUnProject(x, y, at.depth, view.m_dModelView, view.m_dProjection, view.m_iViewport, &scene[0], &scene[1],
                     &scene[2]) != GL_TRUE)
        return;
    CVQDrawingAPI::Text()->Add(VQ_TEXT_FREE | VQ_TEXT_ONCE, static_cast<float>(scene[0]), static_cast<float>(scene[1]),
                               static_cast<float>(scene[2]), L"%s", text.GetString());
}

CString lengthText(double length)
{
    return CVQUnit::GetDeciPointedString(length, true, VQ_UNIT_LENGTH, true, true, true, -1);
}

double distanceOf(const Point3& a, const Point3& b)
{
    return std::hypot(double{b.x} - a.x, double{b.y} - a.y, double{b.z} - a.z);
}

void addPicked(std::span<const Point3> picked, const Placing& placing)
{
    for (std::size_t i = 0; i < picked.size(); ++i) {
        CString number;
        number.Format(L"%d", static_cast<int>(i + 1));
        if (const auto at = placing.seen(picked[i]))
            placing.add(number, *at, kRight, kBeside);
        if (i + 1 == picked.size())
            return;
        if (const auto line = placing.seen(picked[i], picked[i + 1]))
            placing.addBeside(lengthText(distanceOf(picked[i], picked[i + 1])), *line, kUp);
    }
}

enum Axis : std::size_t { X, Y, Z };

/// One of the four edges along an axis.
std::optional<SeenLine> seenEdge(const Bounds& bounds, Axis axis, unsigned which, const Placing& placing)
{
    const std::array least{bounds.least.x, bounds.least.y, bounds.least.z};
    const std::array most{bounds.most.x, bounds.most.y, bounds.most.z};
    std::array<float, 3> from = least;
    const std::size_t second = (axis + 1) % 3;
    const std::size_t third = (axis + 2) % 3;
    from[second] = (which & 1) != 0 ? most[second] : least[second];
    from[third] = (which & 2) != 0 ? most[third] : least[third];
    std::array<float, 3> to = from;
    to[axis] = most[axis];
    return placing.seen({from[0], from[1], from[2]}, {to[0], to[1], to[2]});
}

/// The size stands outside of the lowest edge, or at the right of the rightmost where edges are upright.
void addSize(const Bounds& bounds, Axis axis, double size, const Placing& placing)
{
    const auto outwards = [axis](const SeenLine& edge) { return axis == Y ? edge.middle.x : -edge.middle.y; };
    std::optional<SeenLine> outermost;
    for (unsigned which = 0; which < 4; ++which)
        if (const auto edge = seenEdge(bounds, axis, which, placing);
            edge && (!outermost || outwards(*edge) > outwards(*outermost)))
            outermost = edge;
    if (outermost && outermost->length() >= pixels(kShortestEdge, placing.scale))
        placing.addBeside(lengthText(size), *outermost, axis == Y ? kRight : kDown);
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
        placing.add(text, *at, {}, 0);
}

/// A dark tag under bright text, a bright one under dark text.
CVQColor tagColour(COLORREF text)
{
    constexpr int kAlpha = 150;
    constexpr CVQColor kDark(24, 26, 30, kAlpha);
    constexpr CVQColor kBright(250, 250, 250, kAlpha);
    CVQColor ink;
    ink.Set(text, false);
    return brightnessOf(ink) < 0.5F ? kBright : kDark;
}

/// Tags below all labels: behind the eye too, where labels that others have added are drawn.
void drawTags(CVQDIB& image, const TextStyle& style, const SVQGLVariables& view)
{
    const CVQColor colour = tagColour(style.colour);
    const CVQText& labels = *CVQDrawingAPI::Text();
    for (INT_PTR i = 0; i < labels.GetCount(); ++i) {
        const SVQText& label = labels[i];
        double x = 0;
        double y = 0;
        double depth = 0;
        if (label.m_strText.IsEmpty() || gluProject(label.m_fX, label.m_fY, label.m_fZ, view.m_dModelView,
                                                    view.m_dProjection, view.m_iViewport, &x, &y, &depth) != GL_TRUE)
            continue;
        const double top = view.m_iViewport[3] - y - 1;
        const CSize size = CVQDIB::GetTextSize(style.font, label.m_strText);
        if (!(x > -size.cx && x < image.GetWidth() && top > -size.cy && top < image.GetHeight()))
            continue;
        const CRect tag(CPoint(static_cast<LONG>(x), static_cast<LONG>(top)), size);
        fillRounded(image, tag, size.cy / 4, Corners::All, {colour, colour});
    }
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
    SVQGLVariables inImage = view;
    inImage.m_iViewport[0] = 0;
    inImage.m_iViewport[1] = 0;
    drawTags(image, style, inImage);
    image.SetTextFont(style.font);
    image.SetTextColor(style.colour, 255);
    image.EnableTextShadow(style.hasShadow);
    if (shapes == DragShapes::Drawn)
        CVQDrawingAPI::Draw(&image, 0, 0, inImage.m_dModelView, inImage.m_dProjection, inImage.m_iViewport);
    else
        CVQDrawingAPI::Text()->Draw(&image, 0, 0, inImage.m_dModelView, inImage.m_dProjection, inImage.m_iViewport);
}

} // namespace vqview
