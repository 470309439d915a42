// SPDX-License-Identifier: MIT
#pragma once

#include <atomic>

namespace vqview {

/// How far a work has come, for a thread that watches, and its word to stop, for the one that works.
class Progress
{
public:
    /// @name By the one that watches
    /// @{
    double fraction() const { return m_fraction.load(std::memory_order_relaxed); } ///< 0 .. 1, never less than before
    void cancel() { m_isCancelled.store(true, std::memory_order_relaxed); }
    /// @}

    /// @name By the one that works
    /// @{
    bool isCancelled() const { return m_isCancelled.load(std::memory_order_relaxed); }
    /// What is reported from here on is a part of the whole, from `begin` to `end`.
    void stage(double begin, double end);
    /// `done` of `all` of the stage; of 0 all of it.
    /// @return false when the work is to stop.
    bool report(double done, double all);
    /// @}

private:
    std::atomic<double> m_fraction = 0;
    std::atomic<bool> m_isCancelled = false;
    double m_begin = 0, m_end = 1;
};

} // namespace vqview
