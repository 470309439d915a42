// SPDX-License-Identifier: MIT
// cairo on premultiplied memory.
#include "drawing/Backend.h"

#include <cairo.h>

#include <algorithm>
#include <cstring>
#include <numbers>

namespace vq::bench {

namespace {

constexpr double kFullTurn = 2 * std::numbers::pi;

/// cairo's pixels have their centres half a pixel farther.
double centred(int coordinate)
{
    return coordinate + 0.5;
}

class CairoBackend : public Backend
{
public:
    CairoBackend()
        : m_surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kWidth, kHeight)),
          m_context(cairo_create(m_surface))
    {
    }
    ~CairoBackend() override
    {
        cairo_destroy(m_context);
        cairo_surface_destroy(m_surface);
    }
    CairoBackend(const CairoBackend&) = delete;
    CairoBackend& operator=(const CairoBackend&) = delete;

    bool draws(const Scene& scene) const override { return !isMadeOf<Label>(scene); }

    void clear(Argb colour) override
    {
        cairo_save(m_context);
        setColour(colour);
        cairo_set_operator(m_context, CAIRO_OPERATOR_SOURCE);
        cairo_paint(m_context);
        cairo_restore(m_context);
        cairo_surface_flush(m_surface);
    }

    void begin(bool smooth) override
    {
        cairo_set_antialias(m_context, smooth ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
        cairo_set_fill_rule(m_context, CAIRO_FILL_RULE_EVEN_ODD);
    }
    void end() override { cairo_surface_flush(m_surface); }

    void draw(const Line& line) override
    {
        setPen(line.colour, 1);
        cairo_move_to(m_context, centred(line.from.x), centred(line.from.y));
        cairo_line_to(m_context, centred(line.to.x), centred(line.to.y));
        cairo_stroke(m_context);
    }

    void draw(const Disc& disc) override
    {
        setColour(disc.colour);
        addCircle(disc.centre, disc.radius);
        cairo_fill(m_context);
    }

    void draw(const Box& box) override
    {
        setColour(box.colour);
        cairo_rectangle(m_context, box.left, box.top, box.width, box.height);
        cairo_fill(m_context);
    }

    void draw(const DashedCircle& circle) override
    {
        setPen(circle.colour, circle.width);
        const double dashes[] = {1.0 * circle.width * kDashes[0], 1.0 * circle.width * kDashes[1]};
        cairo_set_dash(m_context, dashes, 2, 0);
        addCircle(circle.centre, circle.radius);
        cairo_stroke(m_context);
        cairo_set_dash(m_context, nullptr, 0, 0);
    }

    void draw(const RoundBox& box) override
    {
        const double radius = box.corner / 2.0;
        const double left = centred(box.box.left) + radius;
        const double top = centred(box.box.top) + radius;
        const double right = centred(box.box.left + box.box.width) - radius;
        const double bottom = centred(box.box.top + box.box.height) - radius;
        cairo_new_path(m_context);
        cairo_arc(m_context, left, top, radius, kFullTurn / 2, kFullTurn * 3 / 4);
        cairo_arc(m_context, right, top, radius, kFullTurn * 3 / 4, kFullTurn);
        cairo_arc(m_context, right, bottom, radius, 0, kFullTurn / 4);
        cairo_arc(m_context, left, bottom, radius, kFullTurn / 4, kFullTurn / 2);
        cairo_close_path(m_context);
        setColour(box.box.colour);
        cairo_fill_preserve(m_context);
        setPen(box.outline, box.outlineWidth);
        cairo_stroke(m_context);
    }

    void draw(const Polygon& polygon) override
    {
        setColour(polygon.colour);
        cairo_new_path(m_context);
        for (const Point& point : polygon.points)
            cairo_line_to(m_context, centred(point.x), centred(point.y));
        cairo_close_path(m_context);
        cairo_fill(m_context);
    }

    void draw(const Label&) override {}

    Picture picture() const override
    {
        Picture picture(static_cast<std::size_t>(kWidth) * kHeight);
        std::memcpy(picture.data(), cairo_image_surface_get_data(m_surface), picture.size() * sizeof(Argb));
        std::transform(picture.begin(), picture.end(), picture.begin(), unpremultiplied);
        return picture;
    }

private:
    void setColour(Argb colour)
    {
        const auto channel = [colour](int shift) { return (colour >> shift & 0xFF) / 255.0; };
        cairo_set_source_rgba(m_context, channel(16), channel(8), channel(0), channel(24));
    }
    void setPen(Argb colour, int width)
    {
        setColour(colour);
        cairo_set_line_width(m_context, width);
    }
    void addCircle(Point centre, int radius)
    {
        cairo_new_path(m_context);
        cairo_arc(m_context, centred(centre.x), centred(centre.y), radius, 0, kFullTurn);
        cairo_close_path(m_context);
    }

    cairo_surface_t* m_surface;
    cairo_t* m_context;
};

const BackendRegistration kCairo("cairo", [] { return std::make_unique<CairoBackend>(); });

} // namespace

} // namespace vq::bench
