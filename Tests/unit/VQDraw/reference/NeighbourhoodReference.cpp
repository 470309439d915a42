// SPDX-License-Identifier: MIT
#include "NeighbourhoodReference.h"

#include <algorithm>
#include <utility>

namespace vq::reference {
namespace {

Number onTorus(Number coordinate, Number size)
{
    return ((coordinate % size) + size) % size;
}

/// The pixel at (x, y) of a picture that continues beyond its edges with its other side.
Word torusPixel(const Picture& picture, Number x, Number y)
{
    return picture.at(onTorus(x, picture.width), onTorus(y, picture.height));
}

Number byteAt(const Picture& picture, std::int64_t i)
{
    return channel(picture.pixels.at(static_cast<std::size_t>(i / 4)), static_cast<unsigned>(i % 4));
}

/// The fifth of the nine values around (x, y).
Number middleOfNine(const Picture& picture, Number x, Number y, unsigned which)
{
    std::vector<Number> values;
    for (Number row = y - 1; row <= y + 1; ++row)
        for (Number column = x - 1; column <= x + 1; ++column)
            values.push_back(channel(picture.at(column, row), which));
    std::sort(values.begin(), values.end());
    return values.at(4);
}

/// Both edges of the area belong to it; only its part inside the frame of one pixel changes.
void medianOf(Picture& picture, const Rectangle& area)
{
    const Picture old = picture;
    for (Number y = 1; y <= picture.height - 2; ++y)
        for (Number x = 1; x <= picture.width - 2; ++x) {
            if (y < area.top || y > area.bottom || x < area.left || x > area.right)
                continue;
            Word& pixel = picture.at(x, y);
            setChannel(pixel, Blue, middleOfNine(old, x, y, Red)); // red and blue change places
            setChannel(pixel, Green, middleOfNine(old, x, y, Green));
            setChannel(pixel, Red, middleOfNine(old, x, y, Blue));
        }
}

} // namespace

void smooth2x2(Picture& picture)
{
    const std::int64_t row = std::int64_t{4} * picture.width;
    const std::int64_t last = std::int64_t{4} * static_cast<std::int64_t>(picture.pixels.size()) - 4;
    for (std::int64_t i = last; i >= row + 4; --i) {
        const Number total =
            byteAt(picture, i) + byteAt(picture, i - 4) + byteAt(picture, i - row) + byteAt(picture, i - row - 4);
        setChannel(picture.pixels.at(static_cast<std::size_t>(i / 4)), static_cast<unsigned>(i % 4), total >> 2);
    }
}

void smooth3x3(Picture& picture)
{
    smooth3x3(picture, 1, 1, picture.width - 1, picture.height - 1);
}

void smooth3x3(Picture& picture, Number x1, Number x2)
{
    smooth3x3(picture, x1, 1, x2, picture.height - 1);
}

void smooth3x3(Picture& picture, Number x1, Number y1, Number x2, Number y2)
{
    if (picture.height < 3)
        return;
    const Picture old = picture;
    for (Number y = std::max(y1, 1); y < std::min(y2, picture.height - 1); ++y)
        for (Number x = std::max(x1, 1); x < std::min(x2, picture.width - 1); ++x)
            for (const unsigned c : {Blue, Green, Red}) {
                Number total = 0;
                for (Number row = y - 1; row <= y + 1; ++row)
                    for (Number column = x - 1; column <= x + 1; ++column)
                        total += channel(old.at(column, row), c);
                setChannel(picture.at(x, y), c, total / 9);
            }
}

void smooth(Picture& picture, Word radius)
{
    const auto n = static_cast<Number>(radius);
    const auto side = static_cast<float>(2 * n + 1);
    const float area = side * side;
    const float factor = 1.0f / area;
    const Picture old = picture;
    for (Number y = 0; y < picture.height; ++y)
        for (Number x = 0; x < picture.width; ++x) {
            float totals[4] = {};
            for (Number row = y - n; row <= y + n; ++row)
                for (Number column = x - n; column <= x + n; ++column) {
                    const Word neighbour = torusPixel(old, column, row);
                    for (const unsigned c : {Blue, Green, Red, Alpha})
                        totals[c] += static_cast<float>(channel(neighbour, c));
                }
            for (const unsigned c : {Blue, Green, Red, Alpha})
                setChannel(picture.at(x, y), c, static_cast<Number>(totals[c] * factor));
        }
}

void alphaSmooth3x3(Picture& picture)
{
    if (picture.width < 6 || picture.height < 6)
        return;
    const Picture old = picture;
    for (Number y = 0; y < picture.height; ++y)
        for (Number x = 0; x < picture.width; ++x) {
            if (channel(old.at(x, y), Alpha) > 100)
                continue;
            Number total = 0;
            for (Number row = y - 2; row <= y + 2; ++row)
                for (Number column = x - 2; column <= x + 2; ++column)
                    total += channel(torusPixel(old, column, row), Alpha);
            setChannel(picture.at(x, y), Alpha, total / 25);
        }
}

void median(Picture& picture)
{
    medianOf(picture, {1, 1, picture.width - 2, picture.height - 2});
}

void median(Picture& picture, Rectangle& area)
{
    if (picture.width < 3 || picture.height < 3)
        return;
    if (area.left > area.right)
        std::swap(area.left, area.right);
    if (area.top > area.bottom)
        std::swap(area.top, area.bottom);
    area.left = std::clamp(area.left, 1, picture.width - 2);
    area.right = std::clamp(area.right, 1, picture.width - 2);
    area.top = std::clamp(area.top, 1, picture.height - 2);
    area.bottom = std::max(area.bottom, area.top);
    if (area.bottom > picture.width - 2) // compared with the width, set from the height
        area.bottom = picture.height - 2;
    if (area.top > area.bottom)
        std::swap(area.top, area.bottom);
    medianOf(picture, area);
}

void laplacian(Picture& picture, Number channelNumber)
{
    const auto c = static_cast<unsigned>(channelNumber & 3);
    const Picture old = picture;
    for (Number y = 0; y < picture.height; ++y)
        for (Number x = 0; x < picture.width; ++x) {
            Number edge = 9 * channel(old.at(x, y), c);
            for (Number row = y - 1; row <= y + 1; ++row)
                for (Number column = x - 1; column <= x + 1; ++column)
                    edge -= channel(torusPixel(old, column, row), c);
            const Number out = ((edge >> 3) + 255) >> 1;
            for (const unsigned each : {Blue, Green, Red, Alpha})
                setChannel(picture.at(x, y), each, out);
        }
}

void mosaic(Picture& picture, Number size)
{
    if (picture.width < 2 || picture.height < 2 || size < 2 || size >= std::min(picture.width, picture.height))
        return;
    const Number columns = picture.width - picture.width % size;
    const Number rows = picture.height - picture.height % size;
    for (Number y = 0; y < rows; ++y)
        for (Number x = 0; x < columns; ++x)
            picture.at(x, y) = picture.at(x - x % size, y - y % size);
}

} // namespace vq::reference
