// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/text/GlyphRenderer.h"

#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vq::gdiplus {
namespace {

constexpr int kChannels = 4;
constexpr int kAlpha = 3; // index of alpha; blue, green, red before it
constexpr Channel kHalf = 128;

using Colour = std::array<double, kChannels>;

/// The stretch of the picture that a pixel covers along one side, cut to the picture.
struct Stretch
{
    double from;
    double to;

    /// How much of the picture's pixel `i` lies in it.
    double share(int i) const { return std::min(to, i + 1.0) - std::max(from, static_cast<double>(i)); }
};

Stretch covered(double begin, double scale, int length)
{
    return {std::max(0.0, begin / scale), std::min(static_cast<double>(length), (begin + 1) / scale)};
}

/// Premultiplied channels added up over the area, for a whole area of 1.
Colour meanOf(const PictureGlyph& picture, Stretch columns, Stretch rows, double scale)
{
    Colour sum{};
    for (int y = static_cast<int>(rows.from); y < rows.to; ++y) {
        const std::uint8_t* row = picture.pixels + y * picture.pitch;
        for (int x = static_cast<int>(columns.from); x < columns.to; ++x) {
            const double weight = columns.share(x) * rows.share(y) * scale * scale;
            for (int c = 0; c < kChannels; ++c)
                sum[static_cast<std::size_t>(c)] += weight * row[x * kChannels + c];
        }
    }
    return sum;
}

std::uint32_t rounded(double value)
{
    return static_cast<std::uint32_t>(std::clamp(value + 0.5, 0.0, 255.0));
}

Pixel straightened(const Colour& colour, bool twoLevel)
{
    const std::uint32_t alpha = rounded(colour[kAlpha]);
    if (alpha == 0 || (twoLevel && alpha < kHalf))
        return 0;
    const auto channel = [&colour](std::size_t i) { return rounded(colour[i] * 255 / colour[kAlpha]); };
    return packed(twoLevel ? 255 : alpha, channel(2), channel(1), channel(0));
}

} // namespace

GlyphImage scalePicture(const PictureGlyph& picture, double scale, bool twoLevel, const PixelRect& region)
{
    // The picture's corner keeps its place against the origin, to the nearest pixel, so that emoji stay crisp.
    const int left = static_cast<int>(std::lround(picture.left * scale));
    const int top = static_cast<int>(std::lround(-picture.top * scale));
    const PixelRect whole{left, top, left + static_cast<int>(std::ceil(picture.width * scale)),
                          top + static_cast<int>(std::ceil(picture.height * scale))};
    const PixelRect box = commonPart(whole, region);
    if (box.empty())
        return {};
    GlyphImage image;
    image.left = box.left;
    image.top = box.top;
    image.width = box.right - box.left;
    image.height = box.bottom - box.top;
    image.colours.reserve(static_cast<std::size_t>(image.width) * static_cast<std::size_t>(image.height));
    for (int y = box.top; y < box.bottom; ++y) {
        const Stretch rows = covered(y - top, scale, picture.height);
        for (int x = box.left; x < box.right; ++x) {
            const Stretch columns = covered(x - left, scale, picture.width);
            image.colours.push_back(straightened(meanOf(picture, columns, rows, scale), twoLevel));
        }
    }
    return image;
}

} // namespace vq::gdiplus
