// SPDX-License-Identifier: MIT
#include "pixels/Painters.h"

#include <pixman.h>

#include <memory>

namespace vq::bench {

namespace {

struct Unreference
{
    void operator()(pixman_image_t* image) const { pixman_image_unref(image); }
};
using Image = std::unique_ptr<pixman_image_t, Unreference>;

Image imageOver(const cv::Mat& picture)
{
    return Image(pixman_image_create_bits(PIXMAN_a8r8g8b8, picture.cols, picture.rows,
                                          reinterpret_cast<std::uint32_t*>(picture.data),
                                          static_cast<int>(picture.step[0])));
}

void composite(pixman_op_t operation, pixman_image_t* source, const cv::Mat& target, cv::Size part)
{
    const Image to = imageOver(target);
    pixman_image_composite32(operation, source, nullptr, to.get(), 0, 0, 0, 0, 0, 0, part.width, part.height);
}

} // namespace

void pasteWithPixman(cv::Mat& target, const cv::Mat& premultiplied)
{
    composite(PIXMAN_OP_OVER, imageOver(premultiplied).get(), target, target.size());
}

void blendWithPixman(cv::Mat& target, Colour colour, double weight)
{
    const auto premultiplied = [weight](int channel) { return static_cast<std::uint16_t>(channel * weight * 257); };
    const pixman_color_t filling{premultiplied(colour.red), premultiplied(colour.green), premultiplied(colour.blue),
                                 static_cast<std::uint16_t>(weight * 65535)};
    const Image solid(pixman_image_create_solid_fill(&filling));
    composite(PIXMAN_OP_OVER, solid.get(), target, target.size());
}

void screenWithPixman(cv::Mat& target, const cv::Mat& opaque)
{
    composite(PIXMAN_OP_SCREEN, imageOver(opaque).get(), target, target.size());
}

void scaleWithPixman(cv::Mat& target, const cv::Mat& picture, cv::Size part)
{
    const Image source = imageOver(picture);
    pixman_transform_t transform;
    pixman_transform_init_scale(&transform, pixman_double_to_fixed(static_cast<double>(picture.cols) / part.width),
                                pixman_double_to_fixed(static_cast<double>(picture.rows) / part.height));
    pixman_image_set_transform(source.get(), &transform);
    pixman_image_set_filter(source.get(), PIXMAN_FILTER_BILINEAR, nullptr, 0);
    pixman_image_set_repeat(source.get(), PIXMAN_REPEAT_PAD);
    composite(PIXMAN_OP_SRC, source.get(), target, part);
}

} // namespace vq::bench
