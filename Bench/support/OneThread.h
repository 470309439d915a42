// SPDX-License-Identifier: MIT
#pragma once

#include <functional>

namespace vq::bench {

/// Runs the work where every painter keeps to one thread: Qt's hands large fills to the threads of its pool, unless it
/// is called on one of them. @return what the work returns.
int onOneThread(const std::function<int()>& work);

} // namespace vq::bench
