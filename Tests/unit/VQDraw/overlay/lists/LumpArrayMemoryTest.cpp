// SPDX-License-Identifier: MIT
// What becomes of the array when memory cannot be had.
#include "unit/VQDraw/overlay/lists/FailingMemory.h"
#include "unit/VQDraw/overlay/lists/OpenArray.h"

#include <gtest/gtest.h>

#include <functional>
#include <numeric>

namespace vq::test {
namespace {

std::vector<int> firstNumbers(int count)
{
    std::vector<int> numbers(static_cast<std::size_t>(count));
    std::iota(numbers.begin(), numbers.end(), 0);
    return numbers;
}

/// Every element up to the size lies in a block, and only the last block is missing.
void expectWhole(const CountedArray& array)
{
    for (std::uint64_t block = 0; block + 1 < array.m_nBlockCount; ++block)
        EXPECT_NE(array.m_ppBlocks[block], nullptr) << block;
    const bool isLastMissing = array.m_nBlockCount > 0 && !array.m_ppBlocks[array.m_nBlockCount - 1];
    EXPECT_LE(array.GetSize(), (array.m_nBlockCount - (isLastMissing ? 1 : 0)) * array.m_nBlockSize);
}

TEST(LumpArrayInShortMemory, StaysAsItWasWithoutALargerTable)
{
    CountedArray array(4);
    fill(array, 5);
    {
        const FailingMemory memory(0, 1);
        EXPECT_FALSE(array.SetSize(20));
    }
    EXPECT_EQ(valuesOf(array), firstNumbers(5));
    EXPECT_EQ(array.m_nBlockCount, 2u);
    {
        const FailingMemory memory(0, 1);
        array.SetAtGrow(20, 1);
    }
    EXPECT_EQ(valuesOf(array), firstNumbers(5));
    EXPECT_EQ(array.m_nBlockCount, 2u);
}

TEST(LumpArrayInShortMemory, ASizeThatCannotBeHadBecomesWhatTheBlocksHold)
{
    CountedArray array(4);
    fill(array, 5);
    {
        const FailingMemory memory(2); // the table and one block succeed
        EXPECT_FALSE(array.SetSize(20));
    }
    EXPECT_EQ(array.GetSize(), 12u);
    EXPECT_EQ(array.m_nBlockCount, 4u) << "the missing block is counted";
    EXPECT_EQ(array.m_ppBlocks[3], nullptr);
    EXPECT_EQ(array[4].value, 4);
    EXPECT_EQ(array[11].value, -1);
}

TEST(LumpArrayInShortMemory, AMissingBlockIsMadeByTheNextStore)
{
    CountedArray array(4);
    fill(array, 4);
    {
        const FailingMemory memory(1);
        array.SetAtGrow(4, 4);
    }
    EXPECT_EQ(valuesOf(array), firstNumbers(4)) << "the size grows only when the value was stored";
    EXPECT_EQ(array.m_nBlockCount, 2u);
    EXPECT_EQ(array.m_ppBlocks[1], nullptr);

    array.SetAtGrow(4, 4);

    EXPECT_EQ(valuesOf(array), firstNumbers(5));
    EXPECT_EQ(array.m_nBlockCount, 2u);
}

TEST(LumpArrayInShortMemory, AMissingBlockIsMadeByTheNextSizeToo)
{
    for (const std::uint64_t size : {5u, 8u, 9u}) {
        CountedArray array(4);
        {
            const FailingMemory memory(2);
            EXPECT_FALSE(array.SetSize(6));
        }
        EXPECT_EQ(array.GetSize(), 4u);
        {
            const FailingMemory memory(0);
            EXPECT_FALSE(array.SetSize(size));
        }
        EXPECT_EQ(array.GetSize(), 4u);
        EXPECT_TRUE(array.SetSize(size));
        EXPECT_EQ(valuesOf(array), std::vector<int>(static_cast<std::size_t>(size), -1));
    }
}

TEST(LumpArrayInShortMemory, ACopyLeavesOutWhatHasNoRoom)
{
    CountedArray array(4);
    fill(array, 10);
    const FailingMemory memory(2); // the table and one block succeed
    const CountedArray copy(array);
    EXPECT_EQ(valuesOf(copy), firstNumbers(4));
}

TEST(LumpArrayInShortMemory, ACopyGoesOnWhereMemoryComesBack)
{
    CountedArray array(4);
    fill(array, 10);
    const FailingMemory memory(2, 3); // then fails: the size, elements 4 and 5
    const CountedArray copy(array);
    EXPECT_EQ(valuesOf(copy), (std::vector{0, 1, 2, 3, -1, -1, 6, 7, 8, 9}));
}

using Operation = std::function<void(CountedArray&)>;

const Operation kOperations[] = {
    [](CountedArray& array) { array.SetSize(30); },
    [](CountedArray& array) { array.SetSize(2); },
    [](CountedArray& array) { array.SetAtGrow(29, 29); },
    [](CountedArray& array) { array.SetAtGrow(6, 6); },
    [](CountedArray& array) { fill(array, 40); },
    [](CountedArray& array) {
        CountedArray other(2);
        fill(other, 25);
        array = other;
    },
    [](CountedArray& array) {
        const CountedArray copy(array);
        array.RemoveAll();
        array = copy;
    },
};

int allocationsOf(const Operation& operation)
{
    CountedArray array(4);
    fill(array, 6);
    const FailingMemory memory(1 << 30);
    operation(array);
    return FailingMemory::asked();
}

TEST(LumpArrayInShortMemory, IsWholeAfterAFailureAtAnyAllocation)
{
    for (const Operation& operation : kOperations)
        for (const int length : {1, 2, 1 << 30})
            for (int first = 0; first < allocationsOf(operation); ++first) {
                SCOPED_TRACE(testing::Message() << length << " failures from " << first);
                CountedArray array(4);
                fill(array, 6);
                {
                    const FailingMemory memory(first, length);
                    operation(array);
                }
                expectWhole(array);
                (void)valuesOf(array);
                operation(array);
                expectWhole(array);
                array.RemoveAll();
                array.SetAtGrow(9, 9);
                EXPECT_EQ(array.GetSize(), 10u);
            }
    EXPECT_EQ(Counted::alive, 0);
}

} // namespace
} // namespace vq::test
