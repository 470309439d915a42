// SPDX-License-Identifier: MIT
#include "VQDraw/VQDIB.h"

#include "VQDraw/filters/Interior.h"
#include "VQDraw/filters/MedianNetwork.h"
#include "VQDraw/filters/RowMemory.h"

#include <algorithm>

namespace {

/// Brings a rectangle, both edges included, into the frame of one pixel. A bottom beyond width - 2 becomes height - 2,
/// deliberately: hosts read the rectangle afterwards. It may still lie below the picture.
void clampToInterior(CRect& rect, LONG width, LONG height)
{
    rect.NormalizeRect();
    rect.left = std::clamp<LONG>(rect.left, 1, width - 2);
    rect.right = std::clamp<LONG>(rect.right, 1, width - 2);
    rect.top = std::clamp<LONG>(rect.top, 1, height - 2);
    rect.bottom = std::max(rect.bottom, rect.top);
    if (rect.bottom > width - 2)
        rect.bottom = height - 2; // not above the top, which was clamped to it
}

} // namespace

void CVQDIB::Median(CRect* rect)
{
    constexpr LONG kSmallest = 3;
    if (m_iWidth < kSmallest || m_iHeight < kSmallest)
        return;
    const CRect interior(1, 1, m_iWidth - 2, m_iHeight - 2);
    CRect clamped = rect ? *rect : interior;
    clampToInterior(clamped, m_iWidth, m_iHeight);
    const vq::Area area{clamped.left, clamped.top, clamped.right + 1,
                        std::min<std::int64_t>(clamped.bottom, m_iHeight - 2) + 1};
    const std::size_t kept = vq::keptPixels(area);
    vq::RowMemory memory(vq::RowMemory::bytesFor<ULONG>(kept));
    if (rect)
        *rect = clamped;
    vq::filterInterior<vq::MedianColumns>(m_pImageBuffer, m_iWidth, area, memory.take<ULONG>(kept));
}
