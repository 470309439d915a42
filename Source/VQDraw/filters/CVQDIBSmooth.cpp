// SPDX-License-Identifier: MIT
// Smoothing by means of small boxes.
#include "VQDraw/VQDIB.h"

#include "VQDraw/filters/BoxColumns.h"
#include "VQDraw/filters/BoxFormulas.h"
#include "VQDraw/filters/Interior.h"
#include "VQDraw/filters/RowMemory.h"

#include <algorithm>

void CVQDIB::Smooth2x2()
{
    if (!m_pImageBuffer)
        return;
    const auto stride = static_cast<std::size_t>(m_iWidth) * kPixelBytes;
    const auto bytes = static_cast<std::size_t>(m_iByteSize);
    vq::smoothBackwards(GetByteImageBuffer(), stride + 4, bytes - 3, stride);
}

void CVQDIB::Smooth3x3()
{
    Smooth3x3(1, 1, m_iWidth, m_iHeight);
}

void CVQDIB::Smooth3x3(LONG x1, LONG x2)
{
    Smooth3x3(x1, 1, x2, m_iHeight);
}

void CVQDIB::Smooth3x3(CRect rect)
{
    Smooth3x3(rect.left, rect.top, rect.right, rect.bottom);
}

void CVQDIB::Smooth3x3(LONG x1, LONG y1, LONG x2, LONG y2)
{
    const vq::Area area{std::max<LONG>(x1, 1), std::max<LONG>(y1, 1), std::min(x2, m_iWidth - 1),
                        std::min(y2, m_iHeight - 1)};
    if (area.isEmpty())
        return;
    const std::size_t kept = vq::keptPixels(area);
    vq::RowMemory memory(vq::RowMemory::bytesFor<ULONG>(kept));
    vq::filterInterior<vq::BoxColumns>(m_pImageBuffer, m_iWidth, area, memory.take<ULONG>(kept));
}
