// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/GraphicsState.h"

#include <algorithm>

namespace vq::gdiplus {
namespace {

/// Red 13, green 11, blue 12: the colour that GDI+ prepares its contexts with.
constexpr Pixel kUntouched = 0x000D0B0C;

bool isDrawn(Pixel pixel)
{
    return (pixel & ~kAlphaBits) != kUntouched;
}

/// All pixels are looked at, without a branch: that is one pass at the speed of memory.
bool hasDrawnPixels(std::span<const Pixel> row)
{
    Pixel differences = 0;
    for (const Pixel pixel : row)
        differences |= (pixel ^ kUntouched) & ~kAlphaBits;
    return differences != 0;
}

/// Copies runs of drawn pixels, so that the others keep every bit. The row becomes opaque where it was drawn on.
void copyDrawn(std::span<Pixel> row, PixelStore& target, int y)
{
    auto end = row.begin();
    while (true) {
        const auto first = std::find_if(end, row.end(), isDrawn);
        if (first == row.end())
            return;
        end = std::find_if_not(first, row.end(), isDrawn);
        for (Pixel& pixel : std::span(first, end))
            pixel |= kAlphaBits;
        writeRow(target.layout, {first, end}, target.at(static_cast<int>(first - row.begin()), y));
    }
}

} // namespace

BorrowedContext::BorrowedContext() : m_context(kUntouched) {}

HDC BorrowedContext::open(int width, int height)
{
    return m_context.open(width, height);
}

Gdiplus::Status BorrowedContext::close(PixelStore& target)
{
    m_context.close();
    win32::BlankPicture& picture = *m_context.picture();
    const win32::RowSpan opened = picture.opened();
    const auto surface = picture.open(opened);
    // The picture may have been turned in between.
    const int width = std::min<int>(picture.width(), target.width);
    const int end = static_cast<int>(std::min<std::int64_t>(opened.end, target.height));
    for (int y = static_cast<int>(opened.first); y < end; ++y) {
        const std::span row(reinterpret_cast<Pixel*>(surface->row(y)), static_cast<std::size_t>(width));
        if (hasDrawnPixels(row))
            copyDrawn(row, target, y);
    }
    return picture.hasFailed() ? Gdiplus::OutOfMemory : Gdiplus::Ok;
}

} // namespace vq::gdiplus
