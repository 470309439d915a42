// SPDX-License-Identifier: MIT
#include "VQDraw/VQDIB.h"

#include "VQDraw/filters/AlphaFormulas.h"
#include "VQDraw/filters/ChannelRows.h"
#include "VQDraw/filters/ColumnSums.h"
#include "VQDraw/filters/RowMemory.h"

#include <algorithm>

void CVQDIB::AlphaSmooth3x3()
{
    constexpr LONG kSmallest = 6;
    if (m_iWidth < kSmallest || m_iHeight < kSmallest)
        return;
    constexpr std::int64_t kReach = 2;
    constexpr unsigned kAlpha = 3;
    using Rows = vq::ChannelRows<ULONG>;
    const std::size_t columnCount = Rows::rowLength(m_iWidth, kReach);
    const std::size_t rowBytes = Rows::bytesFor(m_iWidth, kReach);
    vq::RowMemory memory(vq::RowMemory::bytesFor<std::uint16_t>(columnCount) + rowBytes);
    auto* sums = memory.take<std::uint16_t>(columnCount);
    Rows rows(m_pImageBuffer, m_iWidth, m_iHeight, kAlpha, kReach, memory.take<vq::Channel>(rowBytes));

    std::fill_n(sums, columnCount, std::uint16_t{0});
    for (std::int64_t y = -kReach; y < kReach; ++y)
        vq::addRow(sums, rows.row(y), columnCount);
    for (LONG y = 0; y < m_iHeight; ++y) {
        rows.reachRow(y);
        vq::addRow(sums, rows.row(y + kReach), columnCount);
        vq::softenRow(GetImageBuffer(0, y), rows.row(y) + kReach, sums, static_cast<std::size_t>(m_iWidth));
        vq::subtractRow(sums, rows.row(y - kReach), columnCount);
    }
}
