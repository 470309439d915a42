// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/raster/RunSet.h"

#include <algorithm>
#include <tuple>

namespace vq::gdiplus {

void RunSet::paint(const Painter& painter)
{
    std::ranges::sort(m_runs,
                      [](const Run& a, const Run& b) { return std::tie(a.y, a.first) < std::tie(b.y, b.first); });
    for (std::size_t i = 0; i < m_runs.size();) {
        Run whole = m_runs[i];
        for (++i; i < m_runs.size() && m_runs[i].y == whole.y && m_runs[i].first <= whole.end; ++i)
            whole.end = std::max(whole.end, m_runs[i].end);
        painter.run(whole.first, whole.y, whole.end - whole.first);
    }
    clear();
}

} // namespace vq::gdiplus
