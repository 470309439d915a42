// SPDX-License-Identifier: MIT
#include "VQDraw/VQDIB.h"

#include "VQDraw/filters/ChannelRows.h"
#include "VQDraw/filters/LaplacianFormulas.h"
#include "VQDraw/filters/RowMemory.h"

void CVQDIB::Laplacian(LONG channel)
{
    if (!m_pImageBuffer)
        return;
    constexpr std::int64_t kReach = 1;
    using Rows = vq::ChannelRows<ULONG>;
    const std::size_t rowBytes = Rows::bytesFor(m_iWidth, kReach);
    vq::RowMemory memory(vq::RowMemory::bytesFor<vq::Channel>(rowBytes));
    Rows rows(m_pImageBuffer, m_iWidth, m_iHeight, static_cast<unsigned>(channel) & 3, kReach,
              memory.take<vq::Channel>(rowBytes));
    for (LONG y = 0; y < m_iHeight; ++y) {
        rows.reachRow(y);
        vq::edgeRow(rows.row(y - 1), rows.row(y), rows.row(y + 1), static_cast<std::size_t>(m_iWidth),
                    GetImageBuffer(0, y));
    }
}
