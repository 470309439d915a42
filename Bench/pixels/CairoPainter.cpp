// SPDX-License-Identifier: MIT
#include "pixels/Painters.h"

#include <cairo.h>

#include <memory>

namespace vq::bench {

namespace {

using Surface = std::unique_ptr<cairo_surface_t, decltype(&cairo_surface_destroy)>;
using Context = std::unique_ptr<cairo_t, decltype(&cairo_destroy)>;

Surface surfaceOver(const cv::Mat& picture, cairo_format_t format)
{
    return {cairo_image_surface_create_for_data(picture.data, format, picture.cols, picture.rows,
                                                static_cast<int>(picture.step[0])),
            cairo_surface_destroy};
}

void paint(const cv::Mat& target, const cv::Mat& source, cairo_format_t sourceFormat, double weight)
{
    const Surface to = surfaceOver(target, CAIRO_FORMAT_RGB24);
    const Surface from = surfaceOver(source, sourceFormat);
    const Context context(cairo_create(to.get()), cairo_destroy);
    cairo_set_source_surface(context.get(), from.get(), 0, 0);
    if (weight < 1)
        cairo_paint_with_alpha(context.get(), weight);
    else
        cairo_paint(context.get());
}

} // namespace

void pasteWithCairo(cv::Mat& target, const cv::Mat& premultiplied)
{
    paint(target, premultiplied, CAIRO_FORMAT_ARGB32, 1);
}

void blendWithCairo(cv::Mat& target, const cv::Mat& opaque, double weight)
{
    paint(target, opaque, CAIRO_FORMAT_RGB24, weight);
}

} // namespace vq::bench
