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
Pixel countDrawn(std::span<const Pixel> row)
{
    Pixel count = 0;
    for (const Pixel pixel : row)
        count += isDrawn(pixel);
    return count;
}

/// Copies the pixels of a row from `x` on. They become opaque here, too.
void copyRun(std::span<Pixel> run, PixelStore& target, int x, int y)
{
    for (Pixel& pixel : run)
        pixel |= kAlphaBits;
    writeRow(target.layout, run, target.at(x, y));
}

/// Copies runs of drawn pixels, so that the others keep every bit.
void copyDrawn(std::span<Pixel> row, PixelStore& target, int y)
{
    const Pixel count = countDrawn(row);
    if (count == row.size())
        return copyRun(row, target, 0, y);
    auto end = count == 0 ? row.end() : row.begin();
    while (end != row.end()) {
        const auto first = std::find_if(end, row.end(), isDrawn);
        end = std::find_if_not(first, row.end(), isDrawn);
        copyRun({first, end}, target, static_cast<int>(first - row.begin()), y);
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
        copyDrawn(row, target, y);
    }
    return picture.hasFailed() ? Gdiplus::OutOfMemory : Gdiplus::Ok;
}

} // namespace vq::gdiplus
