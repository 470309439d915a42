// SPDX-License-Identifier: MIT
#include "vqview/model/Progress.h"

#include <algorithm>

namespace vqview {

void Progress::stage(double begin, double end)
{
    m_begin = begin;
    m_end = end;
}

bool Progress::report(double done, double all)
{
    const double part = all > 0 ? std::clamp(done / all, 0.0, 1.0) : 1.0;
    m_fraction.store(std::max(fraction(), m_begin + part * (m_end - m_begin)), std::memory_order_relaxed);
    return !isCancelled();
}

} // namespace vqview
