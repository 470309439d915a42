// SPDX-License-Identifier: MIT
// cairo on premultiplied memory.
#include "overlay/Lasso.h"

#include <cairo.h>

namespace vq::bench {

namespace {

void stroke(cairo_t* context, const Vertex& from, const Vertex& to)
{
    cairo_move_to(context, from.x + 0.5, from.y + 0.5);
    cairo_line_to(context, to.x + 0.5, to.y + 0.5);
    cairo_stroke(context);
}

void outlineSquare(cairo_t* context, const Vertex& centre)
{
    cairo_rectangle(context, centre.x - 1.5, centre.y - 1.5, 3, 3);
    cairo_stroke(context);
}

void draw(cairo_t* context, const Lasso& lasso)
{
    const auto channel = [](int shift) { return (kColour >> shift & 0xFF) / 255.0; };
    cairo_set_source_rgba(context, channel(16), channel(8), channel(0), channel(24));
    cairo_set_line_width(context, 1);
    for (std::size_t i = 1; i < lasso.size(); ++i) {
        stroke(context, lasso[i - 1], lasso[i]);
        outlineSquare(context, lasso[i - 1]);
        outlineSquare(context, lasso[i]);
    }
    stroke(context, lasso.front(), lasso.back());
}

} // namespace

void addCairo(const Lasso& lasso)
{
    for (const bool smooth : {true, false})
        benchmark::RegisterBenchmark(nameOfDrawing(smooth, "cairo").c_str(), [&lasso, smooth](benchmark::State& state) {
            cairo_surface_t* const surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, kWidth, kHeight);
            cairo_t* const context = cairo_create(surface);
            cairo_set_antialias(context, smooth ? CAIRO_ANTIALIAS_DEFAULT : CAIRO_ANTIALIAS_NONE);
            for (auto _ : state) {
                draw(context, lasso);
                cairo_surface_flush(surface);
            }
            cairo_destroy(context);
            cairo_surface_destroy(surface);
        })->Unit(benchmark::kMillisecond);
}

} // namespace vq::bench
