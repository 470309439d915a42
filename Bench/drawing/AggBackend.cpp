// SPDX-License-Identifier: MIT
// AGG's rasterisers alone, with a plain loop over straight alpha behind them.
#include "drawing/Backend.h"
#include "drawing/StraightPixels.h"

#include <agg_conv_dash.h>
#include <agg_conv_stroke.h>
#include <agg_dda_line.h>
#include <agg_ellipse.h>
#include <agg_path_storage.h>
#include <agg_rasterizer_scanline_aa.h>
#include <agg_renderer_outline_aa.h>
#include <agg_rounded_rect.h>
#include <agg_scanline_u.h>

namespace vq::bench {

namespace {

agg::rgba8 colourOf(Argb colour)
{
    return {colour >> 16 & 0xFF, colour >> 8 & 0xFF, colour & 0xFF, colour >> 24};
}

/// AGG's pixels have their centres half a pixel farther.
double centred(int coordinate)
{
    return coordinate + 0.5;
}

class AggBackend : public Backend
{
public:
    AggBackend() { m_rasteriser.clip_box(0, 0, kWidth, kHeight); }

    bool draws(const Scene& scene) const override { return !isMadeOf<Label>(scene); }
    void clear(Argb colour) override { m_pixels.clear(colour); }
    void begin(bool smooth) override { m_smooth = smooth; }
    void end() override {}

    void draw(const Line& line) override
    {
        if (!m_smooth) {
            drawAliased(line);
            return;
        }
        agg::path_storage path;
        path.move_to(centred(line.from.x), centred(line.from.y));
        path.line_to(centred(line.to.x), centred(line.to.y));
        stroke(path, 1, line.colour);
    }

    void draw(const Disc& disc) override
    {
        agg::ellipse ellipse(centred(disc.centre.x), centred(disc.centre.y), disc.radius, disc.radius);
        fill(ellipse, disc.colour);
    }

    void draw(const Box& box) override
    {
        for (int y = 0; y < box.height; ++y)
            m_pixels.blendRun(box.left, box.top + y, box.width, colourOf(box.colour));
    }

    void draw(const DashedCircle& circle) override
    {
        agg::ellipse ellipse(centred(circle.centre.x), centred(circle.centre.y), circle.radius, circle.radius);
        agg::conv_dash<agg::ellipse> dashes(ellipse);
        dashes.add_dash(circle.width * kDashes[0], circle.width * kDashes[1]);
        stroke(dashes, circle.width, circle.colour);
    }

    void draw(const RoundBox& box) override
    {
        agg::rounded_rect path(centred(box.box.left), centred(box.box.top), centred(box.box.left + box.box.width),
                               centred(box.box.top + box.box.height), box.corner / 2.0);
        fill(path, box.box.colour);
        stroke(path, box.outlineWidth, box.outline);
    }

    void draw(const Polygon& polygon) override
    {
        agg::path_storage path;
        path.move_to(centred(polygon.points.front().x), centred(polygon.points.front().y));
        for (const Point& point : polygon.points)
            path.line_to(centred(point.x), centred(point.y));
        path.close_polygon();
        m_rasteriser.filling_rule(agg::fill_even_odd);
        fill(path, polygon.colour);
        m_rasteriser.filling_rule(agg::fill_non_zero);
    }

    void draw(const Label&) override {}

    Picture picture() const override { return m_pixels.picture(); }

protected:
    StraightPixels m_pixels;

private:
    void drawAliased(const Line& line)
    {
        constexpr int kFine = agg::line_bresenham_interpolator::subpixel_scale;
        const auto fine = [](int coordinate) { return coordinate * kFine + kFine / 2; };
        const agg::rgba8 colour = colourOf(line.colour);
        agg::line_bresenham_interpolator pen(fine(line.from.x), fine(line.from.y), fine(line.to.x), fine(line.to.y));
        for (unsigned i = 0; i <= pen.len(); ++i) {
            if (pen.is_ver()) {
                m_pixels.blendPixel(pen.x2(), pen.y1(), colour, agg::cover_full);
                pen.vstep();
            } else {
                m_pixels.blendPixel(pen.x1(), pen.y2(), colour, agg::cover_full);
                pen.hstep();
            }
        }
    }

    template <typename Path>
    void stroke(Path& path, int width, Argb colour)
    {
        agg::conv_stroke<Path> outline(path);
        outline.width(width);
        fill(outline, colour);
    }

    template <typename Path>
    void fill(Path& path, Argb argb)
    {
        m_rasteriser.reset();
        m_rasteriser.add_path(path);
        if (!m_rasteriser.rewind_scanlines())
            return;
        const agg::rgba8 colour = colourOf(argb);
        m_scanline.reset(m_rasteriser.min_x(), m_rasteriser.max_x());
        while (m_rasteriser.sweep_scanline(m_scanline)) {
            auto span = m_scanline.begin();
            for (unsigned i = 0; i < m_scanline.num_spans(); ++i, ++span)
                m_pixels.blendRun(span->x, m_scanline.y(), span->len, colour, span->covers);
        }
    }

    agg::rasterizer_scanline_aa<> m_rasteriser;
    agg::scanline_u8 m_scanline;
    bool m_smooth = true;
};

/// Thin smooth lines without scanlines: coverage from the distance to the line.
class AggOutlineBackend : public AggBackend
{
public:
    bool draws(const Scene& scene) const override { return isMadeOf<Line>(scene) && scene.smooth; }

    using AggBackend::draw;
    void draw(const Line& line) override
    {
        agg::renderer_outline_aa<StraightPixels> renderer(m_pixels, m_profile);
        renderer.color(colourOf(line.colour));
        agg::line_parameters geometry = geometryOf(line);
        renderer.line0(geometry);
    }

private:
    static agg::line_parameters geometryOf(const Line& line)
    {
        const auto fine = [](int coordinate) { return agg::line_coord::conv(centred(coordinate)); };
        const int x1 = fine(line.from.x);
        const int y1 = fine(line.from.y);
        const int x2 = fine(line.to.x);
        const int y2 = fine(line.to.y);
        return {x1, y1, x2, y2, static_cast<int>(agg::calc_distance(x1, y1, x2, y2))};
    }

    agg::line_profile_aa m_profile{1, agg::gamma_none()};
};

const BackendRegistration kAgg("AGG", [] { return std::make_unique<AggBackend>(); });
const BackendRegistration kOutline("AGG-outline", [] { return std::make_unique<AggOutlineBackend>(); });

} // namespace

} // namespace vq::bench
