// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/FillRectangle.h"

#include "Platform/gdiplus/brushes/Painter.h"
#include "Platform/gdiplus/compositor/CompositingFormulas.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vq::gdiplus {
namespace {

/// Pixels first .. last - 1.
struct Range
{
    int first;
    int last;

    int length() const { return std::max(last - first, 0); }
};

int clampedToInt(double value, int highest)
{
    return static_cast<int>(std::clamp(value, 0.0, static_cast<double>(highest)));
}

/// Without the library's call, which processors without SSE4.1 need for `std::ceil`.
int ceiledToInt(double value, int highest)
{
    const int whole = clampedToInt(value, highest);
    return whole + static_cast<int>(whole < value && whole < highest);
}

/// The pixels of 0 .. size - 1 whose centre lies in [low, high).
[[gnu::always_inline]] inline Range centresInside(double low, double high, int size)
{
    return {ceiledToInt(low, size), ceiledToInt(high, size)};
}

/// The pixels of 0 .. size - 1 of which [low, high) covers anything.
Range touched(double low, double high, int size)
{
    return {clampedToInt(std::ceil(low - 0.5), size), clampedToInt(std::floor(high + 0.5) + 1, size)};
}

/// How much of pixel `index`, which covers [index - 1/2, index + 1/2), lies in [low, high): 0 .. 1.
double coverage(int index, double low, double high)
{
    return std::max(std::min(index + 0.5, high) - std::max(index - 0.5, low), 0.0);
}

Channel toChannel(double share)
{
    return static_cast<Channel>(std::lround(share * 255));
}

constexpr int kAtOnce = 8; ///< pixels that are stored together

void store(Pixel* pixels, Pixel colour)
{
    using Together [[gnu::vector_size(kAtOnce * sizeof(Pixel)), gnu::aligned(sizeof(Pixel)), gnu::may_alias]] = Pixel;
    *reinterpret_cast<Together*>(pixels) = Together{} + colour;
}

/// The pixels whose centres lie in a box.
struct Block
{
    Block(const PixelView& view, double left, double top, double right, double bottom)
        : columns(centresInside(left, right, view.width)), rows(centresInside(top, bottom, view.height))
    {
    }

    Range columns, rows;
};

void fillAliased(const Painter& painter, const Block& block)
{
    const auto& [columns, rows] = block;
    if (columns.length() == 0)
        return;
    constexpr int kRowsAhead = 4;
    for (int y = rows.first; y < rows.last; ++y) {
        if (y + kRowsAhead < rows.last)
            painter.expect(columns.first, y + kRowsAhead, columns.length());
        painter.run(columns.first, y, columns.length());
    }
}

/// For blocks of kAtOnce .. 2 * kAtOnce columns: every row is two stores, which may overlap. Boxes are narrow more
/// often than not. The view is a copy, which the stores cannot change.
void replaceNarrow(const PixelView view, const Block& block, Pixel colour)
{
    const int last = block.columns.length() - kAtOnce;
    for (int y = block.rows.first; y < block.rows.last; ++y) {
        Pixel* row = view.row(y) + block.columns.first;
        store(row, colour);
        store(row + last, colour);
    }
}

void replace(const PixelView& view, const Block& block, Pixel colour)
{
    const int length = block.columns.length();
    if (length >= kAtOnce && length <= 2 * kAtOnce)
        return replaceNarrow(view, block, colour);
    for (int y = block.rows.first; y < block.rows.last; ++y)
        std::fill_n(view.row(y) + block.columns.first, length, colour);
}

/// The colour that takes the place of what it covers in full, if the brush is of one.
std::optional<Pixel> replacingColour(const Canvas& canvas, const Shader& shader)
{
    const SolidShader* solid = shader.solid();
    const bool replaces = solid && (canvas.blend == Blend::SourceCopy || alphaOf(solid->colour) == 255);
    return replaces && canvas.alpha == SurfaceAlpha::Stored ? std::optional(sourceCopy(solid->colour)) : std::nullopt;
}

void fillSmooth(const Painter& painter, double left, double top, double right, double bottom)
{
    const PixelView& view = painter.canvas().view;
    const Range columns = touched(left, right, view.width);
    const Range rows = touched(top, bottom, view.height);
    // All columns that are covered in full lie between these two.
    const Range whole{std::max(columns.first, clampedToInt(std::ceil(left + 0.5), columns.last)),
                      std::min(columns.last, clampedToInt(std::floor(right - 0.5) + 1, columns.last))};
    const auto fill = [&](int x, int y, int length, double share) {
        const Channel covered = toChannel(share);
        if (length > 0 && covered != 0)
            painter.run(x, y, length, covered);
    };
    for (int y = rows.first; y < rows.last; ++y) {
        const double rowShare = coverage(y, top, bottom);
        for (int x = columns.first; x < std::min(whole.first, columns.last); ++x)
            fill(x, y, 1, rowShare * coverage(x, left, right));
        fill(whole.first, y, whole.length(), rowShare);
        for (int x = std::max(whole.last, whole.first); x < columns.last; ++x)
            fill(x, y, 1, rowShare * coverage(x, left, right));
    }
}

} // namespace

void fillRectangle(const Canvas& canvas, const Shader& shader, double left, double top, double right, double bottom)
{
    left = canvas.toCentred(left);
    top = canvas.toCentred(top);
    right = canvas.toCentred(right);
    bottom = canvas.toCentred(bottom);
    if (!(left < right) || !(top < bottom))
        return;
    if (canvas.smooth)
        return fillSmooth(Painter(canvas, shader), left, top, right, bottom);
    const Block block(canvas.view, left, top, right, bottom);
    if (const auto colour = replacingColour(canvas, shader))
        replace(canvas.view, block, *colour);
    else
        fillAliased(Painter(canvas, shader), block);
}

} // namespace vq::gdiplus
