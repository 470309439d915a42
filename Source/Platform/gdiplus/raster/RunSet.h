// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/gdiplus/brushes/Painter.h"

#include <vector>

namespace vq::gdiplus {

/// Pixels that a shape without smoothing lights, however often its parts touch them. Keeps its memory.
class RunSet
{
public:
    /// Forgets what was added.
    void clear() { m_runs.clear(); }

    /// Pixels first .. end - 1 of a row; at least one, all inside the surface.
    void add(int y, int first, int end) { m_runs.push_back({y, first, end}); }

    /// Paints each pixel once and empties the set.
    void paint(const Painter& painter);

private:
    struct Run
    {
        int y;
        int first;
        int end;
    };

    std::vector<Run> m_runs;
};

} // namespace vq::gdiplus
