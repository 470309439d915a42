// SPDX-License-Identifier: MIT
#include "BlockReference.h"

#include <algorithm>

namespace vq::reference {
namespace {

void paste(Word& d, Word s)
{
    blend(d, channel(s, Red), channel(s, Green), channel(s, Blue), channel(s, Alpha));
}

/// Calls `apply` for every pixel pair of a clipped block, row by row from the top. A row is read as a whole before it
/// is written.
template <typename Apply>
void transfer(Picture& dst, const Picture& src, Block block, Apply apply)
{
    if (!clip(block, dst, src) || block.isNothing())
        return;
    for (std::int64_t row = 0; row < block.h; ++row) {
        std::vector<Word> aside;
        for (std::int64_t column = 0; column < block.w; ++column)
            aside.push_back(src.at(static_cast<Number>(block.sx + column), static_cast<Number>(block.sy + row)));
        for (std::int64_t column = 0; column < block.w; ++column)
            apply(dst.at(static_cast<Number>(block.dx + column), static_cast<Number>(block.dy + row)),
                  aside.at(static_cast<std::size_t>(column)));
    }
}

} // namespace

bool clip(Block& block, const Picture& dst, const Picture& src)
{
    auto& [dx, dy, sx, sy, w, h] = block;
    if (dx >= dst.width || dy >= dst.height)
        return false;
    if (dx < 0) {
        sx -= dx;
        w += dx;
        dx = 0;
    }
    if (dy < 0) {
        sy -= dy;
        h += dy;
        dy = 0;
    }
    if (sx < 0) { // the destination stays where it is
        w += sx;
        sx = 0;
    }
    if (sy < 0) {
        h += sy;
        sy = 0;
    }
    if (sx >= src.width || sy >= src.height)
        return false;
    w = std::min<std::int64_t>(w, src.width);
    h = std::min<std::int64_t>(h, src.height);
    w = std::min(w, dst.width - dx);
    h = std::min(h, dst.height - dy);
    if (w + sx > src.width)
        w = src.width - sx;
    if (h + sy > src.height)
        h = src.height - sy;
    return true;
}

void copy(Picture& dst, const Picture& src, Block block)
{
    transfer(dst, src, block, [](Word& d, Word s) { d = s; });
}

void paste(Picture& dst, const Picture& src, Block block)
{
    transfer(dst, src, block, [](Word& d, Word s) { paste(d, s); });
}

void blend(Picture& dst, const Picture& src)
{
    if (dst.width != src.width || dst.height != src.height)
        return;
    for (std::size_t i = 0; i < dst.pixels.size(); ++i)
        paste(dst.pixels[i], src.pixels[i]);
}

void blend(Picture& dst, const Picture& src, Number weight)
{
    if (dst.width != src.width || dst.height != src.height)
        return;
    for (std::size_t i = 0; i < dst.pixels.size(); ++i) {
        const Word s = src.pixels[i];
        blend(dst.pixels[i], channel(s, Red), channel(s, Green), channel(s, Blue), weight);
    }
}

void blendColour(Picture& dst, Number red, Number green, Number blue, Number weight)
{
    for (Word& pixel : dst.pixels)
        blend(pixel, red, green, blue, weight);
}

void blendColorRef(Picture& dst, Word colour, Number alpha)
{
    const Word weight = ((static_cast<Word>(alpha) << 24) | colour) >> 24;
    blendColour(dst, channel(colour, 0), channel(colour, 1), channel(colour, 2), static_cast<Number>(weight));
}

} // namespace vq::reference
