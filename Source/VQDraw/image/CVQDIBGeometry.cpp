// SPDX-License-Identifier: MIT
// Operations that move pixels: resizing, mirroring, turning.
#include "VQDraw/VQDIB.h"

#include "Platform/gdiplus/compositor/RotateFlip.h"
#include "VQDraw/image/ImageSize.h"
#include "VQDraw/image/PixelFormulas.h"
#include "VQDraw/image/Resampling.h"

#include <algorithm>
#include <utility>

int CVQDIB::Resize(LONG width, LONG height)
{
    return Create(width, height);
}

int CVQDIB::Resize(const CSize& size)
{
    return Create(size.cx, size.cy);
}

int CVQDIB::Resize(const CSize& size, bool keepContent, bool unused)
{
    return Resize(size.cx, size.cy, keepContent, unused);
}

int CVQDIB::Resize(LONG width, LONG height, bool keepContent, bool)
{
    if (!keepContent || !m_pImageBuffer)
        return Create(width, height);
    if (width == m_iWidth && height == m_iHeight)
        return 0;

    const LONG oldWidth = m_iWidth;
    const LONG oldHeight = m_iHeight;
    const vq::platform::PixelMemory<ULONG> old(Detach());
    const LONG columnCount = std::max<LONG>(width, 0);
    const vq::platform::PixelMemory<std::int32_t> columns(static_cast<std::int32_t*>(
        vq::platform::allocateRaw(static_cast<std::size_t>(columnCount) * sizeof(std::int32_t))));
    const bool isFilled = columnCount > 0 && height > 0;
    if (!columns || !Allocate(width, height, isFilled ? vq::platform::allocateRaw : vq::platform::allocateZeroed))
        return 0;

    vq::NearestSteps columnSteps(oldWidth, width);
    std::generate_n(columns.get(), columnCount, [&] { return columnSteps.next(); });
    vq::NearestSteps rowSteps(oldHeight, height);
    for (LONG y = 0; y < height; ++y) {
        const ULONG* from = old.get() + std::int64_t{rowSteps.next()} * oldWidth;
        vq::gather({GetImageBuffer(0, y), static_cast<std::size_t>(columnCount)}, columns.get(), from);
    }
    return 1;
}

void CVQDIB::FlipVertical()
{
    for (LONG top = 0, bottom = m_iHeight - 1; top < bottom; ++top, --bottom)
        std::swap_ranges(GetImageBuffer(0, top), GetImageBuffer(0, top) + m_iWidth, GetImageBuffer(0, bottom));
}

void CVQDIB::Rotate(Gdiplus::RotateFlipType type)
{
    const bool isTurn = type >= Gdiplus::RotateNoneFlipNone && type <= Gdiplus::Rotate270FlipX;
    const vq::gdiplus::Turn turn = vq::gdiplus::kTurns[isTurn ? static_cast<std::size_t>(type) : 0];
    const LONG width = turn.transposes ? m_iHeight : m_iWidth;
    const LONG height = turn.transposes ? m_iWidth : m_iHeight;
    if (!m_pImageBuffer || !vq::isRepresentable(width, height))
        return;
    vq::platform::PixelMemory<ULONG> turned(
        static_cast<ULONG*>(vq::platform::allocateRaw(static_cast<std::size_t>(m_iByteSize))));
    if (!turned)
        return;

    const auto view = [](ULONG* pixels, LONG w, LONG h) {
        return vq::gdiplus::PixelView{reinterpret_cast<BYTE*>(pixels), std::ptrdiff_t{w} * kPixelBytes, w, h};
    };
    vq::gdiplus::rotateFlip(view(m_pImageBuffer, m_iWidth, m_iHeight), view(turned.get(), width, height), turn,
                            [](vq::Pixel pixel) { return vq::zeroIfTransparent(pixel); });
    Destroy();
    Adopt(turned.release(), width, height);
}
