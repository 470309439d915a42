// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <span>

namespace vq::test {

/// What `new` and `delete` did, in their order.
struct MemoryEvent
{
    void* block;
    bool isGiven; ///< deleted
};

/// Starts writing down, from nothing. On Windows that sees this program's own blocks only, not those of libraries.
void startMemoryEvents();
/// Stops. The events are there until the next start; only the first million is kept.
std::span<const MemoryEvent> stopMemoryEvents();

/// From now on the allocation with this number, counted from 0, fails, and no other.
void failMemoryAt(int number);
/// All succeed again. Whether one has failed.
bool stopFailingMemory();

} // namespace vq::test
