// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/raster/Polylines.h"
#include "Platform/gdiplus/raster/StrokeStyle.h"

#include <agg_math_stroke.h>

#include <vector>

namespace vq::gdiplus {

/// Turns lines into the outlines of their strokes. Keeps its memory.
class Stroker
{
public:
    /// Adds figures to `outline` that all turn the same way: filled by the winding rule they are the stroke. Dashes
    /// outside `visible` are left out.
    void stroke(const Polylines& lines, const StrokeStyle& style, const Bounds& visible, Polylines& outline);

    /// Only the anchors.
    void addAnchors(const Polylines& lines, const StrokeStyle& style, Polylines& outline);

    /// Moves the edges of closed figures inwards; open ones stay.
    void inset(const Polylines& figures, double distance, Polylines& result);

private:
    /// Hands the vertices of a joint on.
    struct Target
    {
        using value_type = PointD;
        void add(PointD point) { polylines->add(point); }
        void remove_all() {}
        Polylines* polylines;
    };
    using Joints = agg::math_stroke<Target>;

    /// A point of the line and the edge that leads on from it.
    struct Vertex
    {
        PointD at;
        PointD direction; ///< of length 1
        double length;
    };

    const Polylines& withoutAnchors(const Polylines& lines, const StrokeStyle& style);
    bool load(std::span<const PointD> points, bool closed);
    void shorten(double atStart, double atEnd, bool keepSpeck);
    void cutTo(double first, double last);
    void strokeFigures(const Polylines& lines, LineEnd start, LineEnd end, LineEnd dashEnd, Polylines& outline);
    void strokeOpen(LineEnd start, LineEnd end, Polylines& outline);
    void strokeSide(bool backwards, Polylines& outline);
    void join(std::size_t before, std::size_t at, std::size_t after, Target target);
    void finish(LineEnd kind, std::size_t at, std::size_t inner, Target target);
    const Vertex& edgeBetween(std::size_t a, std::size_t b) const;

    Joints m_joints;
    double m_width = 1;
    bool m_slightBendsArePointed = true; ///< corners of small angles are pointed
    std::vector<Vertex> m_vertices;
    std::vector<PointD> m_cut;
    Polylines m_bodies;
    Polylines m_dashes;
};

} // namespace vq::gdiplus
