// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"
#include "unit/VQDraw/overlay/lists/OpenArray.h"
#include "vqGeometry/VQPoint.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>
#include <random>
#include <stdexcept>
#include <typeinfo>

namespace vq::test {
namespace {

constexpr std::uint64_t kLargest = std::numeric_limits<std::uint64_t>::max();

TEST(LumpArray, StartsEmptyWithoutMemory)
{
    const OpenArray<CPoint> array(2048);
    EXPECT_EQ(array.GetSize(), 0u);
    EXPECT_EQ(array.m_nBlockSize, 2048u);
    EXPECT_EQ(array.m_nBlockMask, 2047u);
    EXPECT_EQ(array.m_nBlockShift, 11u);
    EXPECT_EQ(array.m_nBlockCount, 0u);
    EXPECT_EQ(array.m_ppBlocks, nullptr);
}

TEST(LumpArray, RoundsBlocksUpToPowersOfTwo)
{
    struct Row
    {
        std::uint64_t asked, size, shift;
    };
    constexpr std::uint64_t kTopBit = std::uint64_t{1} << 63;
    for (const Row& row : {Row{1, 1, 0}, Row{2, 2, 1}, Row{3, 4, 2}, Row{4, 4, 2}, Row{5, 8, 3}, Row{2048, 2048, 11},
                           Row{2049, 4096, 12}, Row{kTopBit, kTopBit, 63}}) {
        const OpenArray<CPoint> array(row.asked);
        EXPECT_EQ(array.m_nBlockSize, row.size) << row.asked;
        EXPECT_EQ(array.m_nBlockMask, row.size - 1) << row.asked;
        EXPECT_EQ(array.m_nBlockShift, row.shift) << row.asked;
    }
}

TEST(LumpArray, HasBlocksOfOneElementWhereNoPowerOfTwoFits)
{
    for (const std::uint64_t asked : {std::uint64_t{0}, kLargest}) {
        CountedArray array(asked);
        EXPECT_EQ(array.m_nBlockSize, 1u);
        EXPECT_EQ(array.m_nBlockShift, 64u);
        fill(array, 5);
        EXPECT_EQ(valuesOf(array), (std::vector{0, 1, 2, 3, 4}));
        EXPECT_EQ(array.m_nBlockCount, 5u);
        EXPECT_TRUE(array.SetSize(2));
        EXPECT_EQ(valuesOf(CountedArray(array)), (std::vector{0, 1}));
    }
}

TEST(LumpArray, StoresTheElementBehindAFullBlockInTheNext)
{
    OpenArray<CPoint> array(2048);
    for (int i = 0; i < 2049; ++i)
        array.SetAtGrow(array.GetSize(), CPoint(i, -i));

    EXPECT_EQ(array.GetSize(), 2049u);
    EXPECT_EQ(array.m_nBlockCount, 2u);
    EXPECT_EQ(array.m_ppBlocks[1][0], CPoint(2048, -2048));
    EXPECT_EQ(array.m_ppBlocks[0][2047], CPoint(2047, -2047));
}

TEST(LumpArray, StoringFarBehindTheEndMakesZerosBetween)
{
    OpenArray<CPoint> points(2048);
    points.SetAtGrow(10000, CPoint(3, 4));
    EXPECT_EQ(points.GetSize(), 10001u);
    EXPECT_EQ(points.m_nBlockCount, 5u);
    for (std::uint64_t index = 0; index < 10000; ++index)
        ASSERT_EQ(points[index], CPoint(0, 0));
    EXPECT_EQ(points[10000], CPoint(3, 4));

    OpenArray<int> numbers(4);
    numbers.SetAtGrow(6, 1);
    EXPECT_EQ(numbers[3], 0);
    OpenArray<CVQPoint> vectors(4);
    vectors.SetAtGrow(6, CVQPoint(1, 2, 3));
    EXPECT_EQ(vectors[2].x, 0.0);
    EXPECT_EQ(vectors[6].z, 3.0);
}

TEST(LumpArray, EmptyingFreesEverythingAndALaterElementStartsAnew)
{
    for (const bool bySize : {true, false}) {
        CountedArray array(4);
        fill(array, 9);
        if (bySize)
            EXPECT_TRUE(array.SetSize(0));
        else
            array.RemoveAll();
        EXPECT_EQ(array.GetSize(), 0u);
        EXPECT_EQ(array.m_nBlockCount, 0u);
        EXPECT_EQ(array.m_ppBlocks, nullptr);
        EXPECT_EQ(array.m_nBlockSize, 4u);
        EXPECT_EQ(Counted::alive, 0);
        fill(array, 1);
        EXPECT_EQ(valuesOf(array), (std::vector{0}));
        EXPECT_EQ(Counted::alive, 4);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(LumpArray, ShrinkingFreesWholeBlocksAndKeepsTheRest)
{
    OpenArray<CPoint> array(2048);
    for (int i = 0; i < 5000; ++i)
        array.SetAtGrow(array.GetSize(), CPoint(i, i));
    const CPoint* const first = &array[0];

    EXPECT_TRUE(array.SetSize(1));

    EXPECT_EQ(array.GetSize(), 1u);
    EXPECT_EQ(array.m_nBlockCount, 1u);
    EXPECT_EQ(&array[0], first);
    EXPECT_EQ(array.m_ppBlocks[0][2047], CPoint(2047, 2047)) << "elements of a kept block stay";
    EXPECT_EQ(array.m_ppBlocks[1], nullptr);
    EXPECT_EQ(array.m_ppBlocks[2], nullptr);
}

TEST(LumpArray, GrowingAgainWithinAKeptBlockShowsItsOldElements)
{
    CountedArray array(4);
    fill(array, 7);
    EXPECT_TRUE(array.SetSize(5));
    array[4].value = 40;
    EXPECT_TRUE(array.SetSize(8));
    EXPECT_EQ(valuesOf(array), (std::vector{0, 1, 2, 3, 40, 5, 6, -1}));
}

TEST(LumpArray, SizesWithinABlockTakeNoMemory)
{
    CountedArray array(8);
    EXPECT_TRUE(array.SetSize(3));
    Counted* const block = array.m_ppBlocks[0];
    EXPECT_TRUE(array.SetSize(8));
    EXPECT_TRUE(array.SetSize(1));
    EXPECT_EQ(array.m_ppBlocks[0], block);
    EXPECT_EQ(Counted::alive, 8);
}

TEST(LumpArray, CopiesHaveTheBlockSizeOfTheOriginal)
{
    CountedArray array(5);
    fill(array, 11);
    CountedArray copy(array);
    EXPECT_EQ(copy.m_nBlockSize, 8u);
    EXPECT_EQ(valuesOf(copy), valuesOf(array));
    copy[0].value = 77;
    EXPECT_EQ(array[0].value, 0);
}

TEST(LumpArray, AssignmentKeepsTheBlockSizeAndTakesTheElements)
{
    CountedArray array(5);
    fill(array, 11);
    CountedArray other(2);
    fill(other, 30);

    other = array;

    EXPECT_EQ(other.m_nBlockSize, 2u);
    EXPECT_EQ(other.m_nBlockCount, 6u);
    EXPECT_EQ(valuesOf(other), valuesOf(array));
    other = CountedArray(4);
    EXPECT_EQ(other.GetSize(), 0u);
    EXPECT_EQ(other.m_ppBlocks, nullptr);
}

TEST(LumpArray, AssignmentFromItselfChangesNothing)
{
    CountedArray array(4);
    fill(array, 6);
    Counted* const block = array.m_ppBlocks[1];
    const CountedArray& same = array;
    array = same;
    EXPECT_EQ(valuesOf(array), (std::vector{0, 1, 2, 3, 4, 5}));
    EXPECT_EQ(array.m_ppBlocks[1], block);
}

TEST(LumpArray, ElementsStayWhereTheyAreWhileItGrows)
{
    CountedArray array(16);
    std::vector<const Counted*> places;
    for (int i = 0; i < 5000; ++i) {
        array.SetAtGrow(array.GetSize(), i);
        places.push_back(&array[array.GetSize() - 1]);
    }
    array.SetAtGrow(100000, 1);
    for (std::size_t i = 0; i < places.size(); ++i) {
        ASSERT_EQ(places[i], &array[i]);
        ASSERT_EQ(places[i]->value, static_cast<int>(i));
    }
}

TEST(LumpArray, StoresItsOwnElements)
{
    CountedArray array(2);
    fill(array, 2);
    array.SetAtGrow(9, array[1]);
    EXPECT_EQ(array[9].value, 1);
    array.SetAtGrow(0, array[0]);
    EXPECT_EQ(array[0].value, 0);
}

TEST(LumpArray, RefusesWhatNoMemoryHolds)
{
    CountedArray array(4);
    fill(array, 5);
    EXPECT_FALSE(array.SetSize(kLargest));
    array.SetAtGrow(kLargest, 1);
    array.SetAtGrow(kLargest - 1, 1);
    EXPECT_EQ(valuesOf(array), (std::vector{0, 1, 2, 3, 4}));

    CountedArray hugeBlocks(std::uint64_t{1} << 62);
    EXPECT_FALSE(hugeBlocks.SetSize(1));
    hugeBlocks.SetAtGrow(0, 1);
    EXPECT_EQ(hugeBlocks.GetSize(), 0u);

    CountedArray single(1);
    single.SetAtGrow(kLargest, 1);
    EXPECT_FALSE(single.SetSize(kLargest));
    EXPECT_EQ(single.GetSize(), 0u);
}

TEST(LumpArray, KnowsItsElementTypeAtRunTime)
{
    const CLumpArray<CPoint, const CPoint&> points(1);
    const CLumpArray<CVQPoint, const CVQPoint&> vectors(1);
    EXPECT_NE(typeid(points), typeid(vectors));
    EXPECT_TRUE(std::has_virtual_destructor_v<decltype(points)>);
}

/// Throws when the number of them that may still be made is used up.
struct Thrower
{
    Thrower()
    {
        if (left-- == 0)
            throw std::runtime_error("no more");
    }
    int value = 0;
    inline static int left = 0;
};

TEST(LumpArray, StaysWholeWhenAnElementCannotBeConstructed)
{
    Thrower::left = 6;
    OpenArray<Thrower> array(4);
    array.SetAtGrow(0, Thrower()); // uses 5
    EXPECT_THROW(array.SetSize(9), std::runtime_error);
    EXPECT_EQ(array.GetSize(), 1u);
    Thrower::left = 100;
    EXPECT_TRUE(array.SetSize(9));
    EXPECT_EQ(array.m_nBlockCount, 3u);
    EXPECT_EQ(array[8].value, 0);
}

/// Appends -1 up to a size: a kept block would show its old elements there, where a vector makes new ones.
void growBoth(CountedArray& array, std::vector<int>& expected, std::size_t size)
{
    for (; expected.size() < size; expected.push_back(-1))
        array.SetAtGrow(expected.size(), -1);
}

/// One random operation on the array and on a vector.
void operate(CountedArray& array, std::vector<int>& expected, std::mt19937& random)
{
    const auto number = [&](std::uint32_t limit) { return random() % limit; };
    const int value = static_cast<int>(number(1000));
    switch (number(8)) {
    case 0:
    case 1:
    case 2:
        array.SetAtGrow(array.GetSize(), value);
        expected.push_back(value);
        break;
    case 3: {
        const std::size_t index = number(static_cast<std::uint32_t>(expected.size()) + 20);
        growBoth(array, expected, index);
        array.SetAtGrow(index, value);
        expected.resize(std::max(expected.size(), index + 1));
        expected[index] = value;
        break;
    }
    case 4:
        if (!expected.empty()) {
            const std::size_t index = number(static_cast<std::uint32_t>(expected.size()));
            array.GetAt(index).value = value;
            expected[index] = value;
        }
        break;
    case 5: {
        const std::size_t size = number(60);
        growBoth(array, expected, size);
        EXPECT_TRUE(array.SetSize(size));
        expected.resize(size);
        break;
    }
    case 6: {
        CountedArray other(1 + number(9));
        other = array;
        array.RemoveAll();
        array = other;
        break;
    }
    default:
        if (number(10) == 0) {
            array.RemoveAll();
            expected.clear();
        }
    }
}

TEST(LumpArray, EqualsAVectorUnderRandomOperations)
{
    for (std::uint32_t seed = 1; seed <= 40; ++seed) {
        std::mt19937 random(seed);
        CountedArray array(1 + seed % 9);
        std::vector<int> expected;
        for (int step = 0; step < 300; ++step) {
            operate(array, expected, random);
            ASSERT_EQ(valuesOf(array), expected) << "seed " << seed << ", step " << step;
        }
        array.RemoveAll();
        ASSERT_EQ(Counted::alive, 0) << "seed " << seed;
    }
}

} // namespace
} // namespace vq::test
