// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Memory that runs out. Only arrays from `new (std::nothrow)` in this program are meant.

namespace vq::test {

/// While this lives, allocations fail from number `first` on (counted from 0), `count` of them.
class FailingMemory
{
public:
    explicit FailingMemory(int first, int count = 1 << 30);
    ~FailingMemory();
    FailingMemory(const FailingMemory&) = delete;
    FailingMemory& operator=(const FailingMemory&) = delete;

    /// How many allocations have been asked for, those that failed among them.
    static int asked();
};

} // namespace vq::test
