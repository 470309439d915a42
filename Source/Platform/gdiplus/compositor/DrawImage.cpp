// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/DrawImage.h"

#include "Platform/gdiplus/compositor/BilinearRows.h"
#include "Platform/gdiplus/compositor/CompositeRow.h"
#include "Platform/gdiplus/compositor/SampleAxis.h"
#include "Platform/gdiplus/compositor/StripMemory.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <span>

namespace vq::gdiplus {

namespace {

/// One call: where from, where to, how.
struct Transfer
{
    PixelView canvas;
    ConstPixelView image;
    SampleAxis columns;
    SampleAxis rows;
    Blend blend;

    std::span<Pixel> target(int y, int begin, int end) const
    {
        return {canvas.row(y) + begin, static_cast<std::size_t>(end - begin)};
    }
};

/// Columns that Nearest looks up at a time; long strips follow the rows of memory.
constexpr int kNearestStrip = 4096;

bool isWithin(int index, int length)
{
    return index >= 0 && index < length;
}

/// Transparent pixels over the canvas: only a copy shows them.
void drawNothing(const Transfer& transfer, int y, int begin, int end)
{
    if (transfer.blend == Blend::SourceCopy)
        std::ranges::fill(transfer.target(y, begin, end), Pixel{0});
}

/// Divides the columns of an axis into strips of at most `longest` on which `kindAt` is the same.
template <typename KindAt, typename Function>
void forEachStrip(const SampleAxis& axis, int longest, KindAt kindAt, Function strip)
{
    for (int begin = axis.begin(); begin < axis.end();) {
        const auto kind = kindAt(begin);
        const int limit = begin + std::min(axis.end() - begin, longest);
        int end = begin + 1;
        while (end < limit && kindAt(end) == kind)
            ++end;
        strip(kind, begin, end);
        begin = end;
    }
}

/// Columns that lie beside each other in the image.
void drawUnscaledStrip(const Transfer& transfer, int begin, int end)
{
    const int firstColumn = transfer.columns.nearestAt(begin);
    for (int y = transfer.rows.begin(); y < transfer.rows.end(); ++y) {
        const int row = transfer.rows.nearestAt(y);
        const std::span<Pixel> target = transfer.target(y, begin, end);
        if (isWithin(row, transfer.image.height))
            compositeRow(target, {transfer.image.row(row) + firstColumn, target.size()}, transfer.blend);
        else
            drawNothing(transfer, y, begin, end);
    }
}

void drawNearestStrip(const Transfer& transfer, int begin, int end)
{
    std::array<int, kNearestStrip> columns;
    for (int x = begin; x < end; ++x)
        columns[static_cast<std::size_t>(x - begin)] = transfer.columns.nearestAt(x);

    std::array<Pixel, kNearestStrip> source;
    for (int y = transfer.rows.begin(); y < transfer.rows.end(); ++y) {
        const int row = transfer.rows.nearestAt(y);
        if (!isWithin(row, transfer.image.height)) {
            drawNothing(transfer, y, begin, end);
            continue;
        }
        const std::span<Pixel> target = transfer.target(y, begin, end);
        const Pixel* pixels = transfer.image.row(row);
        for (std::size_t i = 0; i < target.size(); ++i)
            source[i] = pixels[columns[i]];
        compositeRow(target, {source.data(), target.size()}, transfer.blend);
    }
}

void drawEmptyStrip(const Transfer& transfer, int begin, int end)
{
    for (int y = transfer.rows.begin(); y < transfer.rows.end(); ++y)
        drawNothing(transfer, y, begin, end);
}

void drawNearest(const Transfer& transfer)
{
    const auto isInside = [&](int x) { return isWithin(transfer.columns.nearestAt(x), transfer.image.width); };
    const auto strip = [&](bool inside, int begin, int end) {
        if (!inside)
            drawEmptyStrip(transfer, begin, end);
        else if (transfer.columns.isUnscaled())
            drawUnscaledStrip(transfer, begin, end);
        else
            drawNearestStrip(transfer, begin, end);
    };
    const int longest = transfer.columns.isUnscaled() ? transfer.columns.end() : kNearestStrip;
    forEachStrip(transfer.columns, longest, isInside, strip);
}

void drawBilinearStrip(const Transfer& transfer, int begin, int end, StripMemory& memory)
{
    memory.rewind();
    const StripColumns columns(transfer.columns, begin, end, memory);
    std::array kept{StripRow(columns.count(), memory), StripRow(columns.count(), memory)};
    const std::span<Pixel> mixed = memory.take<Pixel>(columns.count());
    for (int y = transfer.rows.begin(); y < transfer.rows.end(); ++y) {
        if (transfer.rows.reachAt(y) == Reach::Outside) {
            drawNothing(transfer, y, begin, end);
            continue;
        }
        const SamplePosition position = transfer.rows.at(y);
        const int next = position.fraction == 0 ? position.index : position.index + 1;
        StripRow& upper = kept[static_cast<unsigned>(position.index) & 1U]; // neighbours differ in their last bit
        StripRow& lower = kept[static_cast<unsigned>(next) & 1U];
        upper.fetch(columns, transfer.image, position.index);
        lower.fetch(columns, transfer.image, next);

        const std::span<Pixel> target = transfer.target(y, begin, end);
        if (upper.isOpaque() && lower.isOpaque()) {
            StripRow::mixOpaque(upper, lower, position.fraction, target);
            continue;
        }
        upper.fetchAmounts(columns, transfer.image);
        lower.fetchAmounts(columns, transfer.image);
        const std::span<Pixel> result = transfer.blend == Blend::SourceCopy ? target : mixed;
        StripRow::mixAny(upper, lower, position.fraction, result);
        if (transfer.blend != Blend::SourceCopy)
            compositeRow(target, mixed, transfer.blend);
    }
}

std::size_t bytesForStrip(std::size_t count)
{
    return StripColumns::bytesFor(count) + 2 * StripRow::bytesFor(count) + StripMemory::bytesFor<Pixel>(count);
}

bool drawBilinear(const Transfer& transfer, StripMemory& memory)
{
    const SampleAxis& columns = transfer.columns;
    if (!memory.provide(bytesForStrip(static_cast<std::size_t>(columns.end() - columns.begin()))))
        return false;
    const auto reach = [&](int x) { return columns.reachAt(x); };
    const auto strip = [&](Reach kind, int begin, int end) {
        if (kind == Reach::Outside)
            drawEmptyStrip(transfer, begin, end);
        else
            drawBilinearStrip(transfer, begin, end, memory);
    };
    forEachStrip(columns, columns.end(), reach, strip);
    return true;
}

} // namespace

bool drawImage(PixelView canvas, FloatRect target, ConstPixelView image, FloatRect source, Sampling sampling,
               Blend blend, bool halfPixelOffset, StripMemory* kept)
{
    const auto columns = SampleAxis::create({target.x, target.width}, {source.x, source.width}, canvas.width,
                                            image.width, halfPixelOffset);
    const auto rows = SampleAxis::create({target.y, target.height}, {source.y, source.height}, canvas.height,
                                         image.height, halfPixelOffset);
    if (!columns || !rows)
        return true;

    const Transfer transfer{canvas, image, *columns, *rows, blend};
    const bool isPicked = columns->hasWholePositions() && rows->hasWholePositions();
    if (sampling == Sampling::Bilinear && !isPicked) {
        StripMemory own;
        return drawBilinear(transfer, kept ? *kept : own);
    }
    drawNearest(transfer);
    return true;
}

} // namespace vq::gdiplus
