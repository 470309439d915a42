// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/GraphicsState.h"

#include <algorithm>
#include <vector>

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

} // namespace

BorrowedContext::~BorrowedContext()
{
    if (m_context)
        DeleteDC(m_context);
}

HDC BorrowedContext::open(int width, int height)
{
    const std::size_t count = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
    m_memory.reset(static_cast<std::uint8_t*>(platform::allocateRaw(count * sizeof(Pixel))));
    if (!m_memory)
        return nullptr;
    std::fill_n(reinterpret_cast<Pixel*>(m_memory.get()), count, kUntouched);
    const auto stride = static_cast<std::ptrdiff_t>(width) * static_cast<std::ptrdiff_t>(sizeof(Pixel));
    m_surface = {m_memory.get(), stride, width, height};
    m_context = win32::createSurfaceContext(m_surface);
    return m_context;
}

void BorrowedContext::close(PixelStore& target)
{
    // The picture may have been turned in between.
    const int width = std::min<int>(m_surface.width, target.width);
    const int height = std::min<int>(m_surface.height, target.height);
    std::vector<Pixel> mixed(static_cast<std::size_t>(width));
    for (int y = 0; y < height; ++y) {
        const std::span drawn(reinterpret_cast<const Pixel*>(m_surface.row(y)), static_cast<std::size_t>(width));
        if (!hasDrawnPixels(drawn))
            continue;
        readRow(target.layout, target.row(y), mixed);
        for (std::size_t x = 0; x < mixed.size(); ++x)
            mixed[x] = isDrawn(drawn[x]) ? drawn[x] | kAlphaBits : mixed[x];
        writeRow(target.layout, mixed, target.row(y));
    }
    DeleteDC(m_context);
    m_context = nullptr;
    m_memory.reset();
}

} // namespace vq::gdiplus
