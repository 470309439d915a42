// SPDX-License-Identifier: MIT
#include "Platform/win32/PixelTransfer.h"

#include "Platform/PixelMemory.h"

#include <algorithm>
#include <cstring>
#include <functional>

namespace vq::win32 {
namespace {

constexpr std::int64_t kBytesPerPixel = 4;

/// One direction of a block, in 64 bits: arguments may be anything an `int` holds.
struct Span
{
    std::int64_t target;
    std::int64_t source;
    std::int64_t length;
};

Span clip(Span span, LONG targetSize, LONG sourceSize)
{
    const std::int64_t skip = std::max<std::int64_t>({0, -span.target, -span.source});
    const Span rest{span.target + skip, span.source + skip, span.length - skip};
    return {rest.target, rest.source, std::min({rest.length, targetSize - rest.target, sourceSize - rest.source})};
}

BYTE* pixelAt(const Surface& surface, std::int64_t x, std::int64_t y)
{
    return surface.top + y * surface.stride + x * kBytesPerPixel;
}

/// Rows in memory: the first one, the distance to the next, and how many.
struct Rows
{
    BYTE* first;
    std::ptrdiff_t stride;
    std::int64_t count;
    std::size_t bytes;

    BYTE* row(std::int64_t index) const { return first + index * stride; }
    const BYTE* lowest() const { return std::min(first, row(count - 1), std::less<>()); }
    const BYTE* end() const { return std::max(first, row(count - 1), std::less<>()) + bytes; }
};

bool overlap(const Rows& one, const Rows& other)
{
    const std::less<const BYTE*> before;
    return before(one.lowest(), other.end()) && before(other.lowest(), one.end());
}

// With equal strides every row is displaced by the same distance: towards the end of memory the last row goes first.
void moveRows(const Rows& target, const Rows& source)
{
    const bool towardsEnd = std::less<>()(source.first, target.first);
    const bool lastFirst = towardsEnd == (target.stride > 0);
    for (std::int64_t step = 0; step < target.count; ++step) {
        const std::int64_t index = lastFirst ? target.count - 1 - step : step;
        std::memmove(target.row(index), source.row(index), target.bytes);
    }
}

bool copyThroughCopy(const Rows& target, const Rows& source)
{
    const std::size_t bytes = source.bytes * static_cast<std::size_t>(source.count);
    const vq::platform::PixelMemory<BYTE> aside(static_cast<BYTE*>(vq::platform::allocateRaw(bytes)));
    if (!aside)
        return false;
    const Rows between{aside.get(), static_cast<std::ptrdiff_t>(source.bytes), source.count, source.bytes};
    moveRows(between, source);
    moveRows(target, between);
    return true;
}

} // namespace

void fillPixels(const Surface& surface, const Block& block, DWORD pixel)
{
    const Span columns = clip({block.x, block.x, block.width}, surface.width, surface.width);
    const Span rows = clip({block.y, block.y, block.height}, surface.height, surface.height);
    if (columns.length <= 0)
        return;
    for (std::int64_t y = 0; y < rows.length; ++y) {
        BYTE* place = pixelAt(surface, columns.target, rows.target + y);
        for (std::int64_t x = 0; x < columns.length; ++x, place += kBytesPerPixel)
            std::memcpy(place, &pixel, sizeof pixel);
    }
}

bool copyPixels(const Surface& target, const Block& block, const Surface& source, int sourceX, int sourceY)
{
    const Span columns = clip({block.x, sourceX, block.width}, target.width, source.width);
    const Span rows = clip({block.y, sourceY, block.height}, target.height, source.height);
    if (columns.length <= 0 || rows.length <= 0)
        return true;
    const auto bytes = static_cast<std::size_t>(columns.length * kBytesPerPixel);
    const Rows to{pixelAt(target, columns.target, rows.target), target.stride, rows.length, bytes};
    const Rows from{pixelAt(source, columns.source, rows.source), source.stride, rows.length, bytes};
    if (to.stride != from.stride && overlap(to, from))
        return copyThroughCopy(to, from);
    moveRows(to, from);
    return true;
}

} // namespace vq::win32
