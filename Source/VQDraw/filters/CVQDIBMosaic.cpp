// SPDX-License-Identifier: MIT
#include "VQDraw/VQDIB.h"

#include <algorithm>

void CVQDIB::Mosaic(LONG size)
{
    if (size < 2 || size >= std::min(m_iWidth, m_iHeight))
        return;
    const LONG columns = m_iWidth - m_iWidth % size;
    const LONG rows = m_iHeight - m_iHeight % size;
    for (LONG top = 0; top < rows; top += size) {
        ULONG* first = GetImageBuffer(0, top);
        for (ULONG* block = first; block != first + columns; block += size)
            std::fill_n(block + 1, size - 1, *block);
        for (LONG y = top + 1; y < top + size; ++y)
            std::copy_n(first, columns, GetImageBuffer(0, y));
    }
}
