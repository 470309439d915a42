// SPDX-License-Identifier: MIT
#include "ColourExchangeReference.h"

namespace vq::reference {
namespace {

constexpr Word kOpaque = 0xFF000000;

void exchange(Word& pixel, Word to, Number alpha)
{
    const Number weight = lowByte(alpha) | channel(to, 3);
    blend(pixel, channel(to, 0), channel(to, 1), channel(to, 2), weight);
}

/// Displaces a base value at random by at most half the range.
Number displaced(Number base, Number range, Draw draw)
{
    const Number half = range / 2;
    if (draw() % range - half + base < 0)
        return 0;
    if (draw() % range - half + base >= 256)
        return 255;
    return draw() % range - half + base;
}

Number blueAt(const Picture& picture, Number x, Number y)
{
    return channel(picture.at(x % picture.width, y % picture.height), Blue);
}

Number wrappedOnce(Number coordinate, Number size)
{
    return coordinate >= size ? coordinate - size : coordinate;
}

struct Colour
{
    Number red, green, blue;
};

void plot(Picture& picture, Number x, Number y, const Colour& colour, Number weight)
{
    x = wrappedOnce(x, picture.width);
    y = wrappedOnce(y, picture.height);
    if (x < picture.width && y < picture.height)
        blend(picture.at(x, y), colour.red, colour.green, colour.blue, weight);
}

void refine(Picture& picture, Number x, Number y, Number step, Number weight, Draw draw)
{
    const Number half = step / 2;
    const Number range = 8 * step + 20;
    const Number p00 = blueAt(picture, x, y);
    const Number p10 = blueAt(picture, x + step, y);
    const Number p01 = blueAt(picture, x, y + step);
    const Number p11 = blueAt(picture, x + step, y + step);
    const Number top = displaced((p00 + p10) / 2, range, draw);
    const Number centre = displaced((p00 + p10 + p01 + p11) / 4, range, draw);
    const Number left = displaced((p00 + p01) / 2, range, draw);
    const Colour colour{top, centre, left};
    plot(picture, x + half, y, colour, weight);
    plot(picture, x + half, y + half, colour, weight);
    plot(picture, x, y + half, colour, weight);
}

} // namespace

int exchangeColor(Picture& picture, Word from, Word to, Number alpha)
{
    if (picture.isEmpty())
        return 0;
    for (Word& pixel : picture.pixels)
        if (pixel == (from | kOpaque))
            exchange(pixel, to, alpha);
    return 1;
}

int exchangeColors(Picture& picture, const std::vector<Word>& from, const std::vector<Word>& to, Number alpha)
{
    if (picture.isEmpty() || from.size() != to.size())
        return 0;
    for (Word& pixel : picture.pixels) {
        const Word before = pixel;
        for (std::size_t i = 0; i < from.size(); ++i)
            if (before == (from[i] | kOpaque))
                exchange(pixel, to[i], alpha);
    }
    return 1;
}

void buildFractalMap(Picture& picture, Number red, Number green, Number blue, Number alpha, Draw draw)
{
    if (picture.isEmpty())
        return;
    blend(picture.at(0, 0), red, green, blue, alpha);
    for (Number step = 256; step >= 2; step /= 2)
        for (Number y = 0; y < picture.height; y += step)
            for (Number x = 0; x < picture.width; x += step)
                refine(picture, x, y, step, alpha, draw);
}

} // namespace vq::reference
