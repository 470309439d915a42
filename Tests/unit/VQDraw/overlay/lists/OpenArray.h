// SPDX-License-Identifier: MIT
#pragma once

#include "VQDraw/LumpArray.h"

#include <vector>

namespace vq::test {

/// A number that counts how many of its kind there are, and starts at -1.
struct Counted
{
    Counted() : Counted(-1) {}
    Counted(int number) : value(number) { ++alive; }
    Counted(const Counted& other) : Counted(other.value) {}
    Counted& operator=(const Counted& other) = default;
    ~Counted() { --alive; }

    int value;
    inline static int alive = 0;
};

/// An array that shows its blocks.
template <typename T>
class OpenArray : public CLumpArray<T, const T&>
{
public:
    using Base = CLumpArray<T, const T&>;
    using Base::Base;
    using Base::m_nBlockCount;
    using Base::m_nBlockMask;
    using Base::m_nBlockShift;
    using Base::m_nBlockSize;
    using Base::m_ppBlocks;

    OpenArray(const OpenArray& other) = default;
    OpenArray& operator=(const OpenArray& other) = default;
};

using CountedArray = OpenArray<Counted>;

inline std::vector<int> valuesOf(const CountedArray& array)
{
    std::vector<int> values;
    for (std::uint64_t index = 0; index < array.GetSize(); ++index)
        values.push_back(array[index].value);
    return values;
}

/// `count` elements with the values 0, 1, 2 ...
inline void fill(CountedArray& array, int count)
{
    for (int value = 0; value < count; ++value)
        array.SetAtGrow(array.GetSize(), value);
}

} // namespace vq::test
