// SPDX-License-Identifier: MIT
#include "calls/Measure.h"

#include <cairo.h>

namespace vq::bench {

namespace {

/// A context on premultiplied memory.
class Surface
{
public:
    explicit Surface(bool smooth)
        : m_surface(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kSize, kSize)), m_context(cairo_create(m_surface))
    {
        cairo_set_source_rgb(m_context, 1, 1, 1);
        cairo_paint(m_context);
        cairo_set_line_width(m_context, 1);
        cairo_set_antialias(m_context, smooth ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
    }
    ~Surface()
    {
        cairo_destroy(m_context);
        cairo_surface_destroy(m_surface);
    }
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    cairo_t* with(std::uint32_t argb)
    {
        const auto channel = [argb](int shift) { return (argb >> shift & 0xFF) / 255.0; };
        cairo_set_source_rgba(m_context, channel(16), channel(8), channel(0), channel(24));
        return m_context;
    }
    void finish() { cairo_surface_flush(m_surface); }

private:
    cairo_surface_t* m_surface;
    cairo_t* m_context;
};

template <typename Draw>
void add(const std::string& work, const Calls& calls, bool smooth, Draw draw)
{
    addMeasure(
        work, "cairo", calls, [smooth] { return std::make_unique<Surface>(smooth); }, draw,
        [](Surface& surface) { surface.finish(); });
}

void fillBox(Surface& surface, const Call& call, int size)
{
    cairo_t* context = surface.with(call.argb);
    cairo_rectangle(context, call.x, call.y, size, size);
    cairo_fill(context);
}

} // namespace

void addCairo(const Calls& calls, const std::string& kind)
{
    const auto line = [](Surface& surface, const Call& call) {
        cairo_t* context = surface.with(call.argb);
        cairo_move_to(context, call.x + 0.5, call.y + 0.5);
        cairo_line_to(context, call.toX + 0.5, call.toY + 0.5);
        cairo_stroke(context);
    };
    add("Line, smooth/" + kind, calls, true, line);
    add("Line, hard/" + kind, calls, false, line);
    add("FillRect/" + kind, calls, false, [](Surface& surface, const Call& call) { fillBox(surface, call, 10); });
    add("Pixel/" + kind, calls, false, [](Surface& surface, const Call& call) { fillBox(surface, call, 1); });
}

} // namespace vq::bench
