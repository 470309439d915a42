// SPDX-License-Identifier: MIT
#include "Platform/afx/Array.h"

#include "PrintCString.h"

#include <gmock/gmock.h>

#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace vq::test::cArrayTests {
namespace {

using Numbers = CArray<int, int>;
constexpr INT_PTR kMost = std::numeric_limits<INT_PTR>::max();

/// Shows how much memory the array holds.
class ShownArray : public Numbers
{
public:
    INT_PTR capacity() const { return m_nMaxSize; }
};

template <typename Array>
auto contentOf(const Array& array)
{
    return std::vector(array.GetData(), array.GetData() + array.GetSize());
}

template <typename Array>
void fill(Array& array, int count)
{
    for (int i = 0; i < count; ++i)
        array.Add(i);
}

/// Counts its living objects, and grows dangerous when it is used after its end.
struct Counted
{
    Counted() : value(std::make_unique<int>(0)) { ++alive; }
    explicit Counted(int number) : value(std::make_unique<int>(number)) { ++alive; }
    Counted(const Counted& other) : value(std::make_unique<int>(*other.value)) { ++alive; }
    Counted& operator=(const Counted& other)
    {
        *value = *other.value;
        return *this;
    }
    ~Counted() { --alive; }

    std::unique_ptr<int> value;
    static inline int alive = 0;
};

TEST(CArraySizes, StartEmptyWithoutMemory)
{
    const Numbers array;

    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(array.GetSize(), 0);
    EXPECT_EQ(array.GetCount(), 0);
    EXPECT_EQ(array.GetUpperBound(), -1);
    EXPECT_EQ(array.GetData(), nullptr);
}

TEST(CArraySizes, NewElementsAreZero)
{
    Numbers array;
    array.SetSize(3);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 0, 0));

    fill(array, 1);
    array.SetSize(1);
    array.SetSize(4);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 0, 0, 0));
}

TEST(CArraySizes, NegativeAndImpossibleOnesAreRefused)
{
    Numbers array;
    fill(array, 2);

    EXPECT_THROW(array.SetSize(-1), CInvalidArgException*);
    EXPECT_THROW(array.SetSize(kMost / 2), CMemoryException*);
    EXPECT_THROW(array.SetSize(kMost), CMemoryException*);
    EXPECT_THROW(array.SetAtGrow(kMost, 1), CInvalidArgException*);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 1));
}

TEST(CArrayGrowth, FollowsTheFrameworksRule)
{
    ShownArray array;
    array.Add(0);
    EXPECT_EQ(array.capacity(), 1) << "the first memory is as large as asked";
    array.Add(1);
    EXPECT_EQ(array.capacity(), 5) << "4 more at least";
    array.SetSize(100);
    EXPECT_EQ(array.capacity(), 100);
    array.Add(1);
    EXPECT_EQ(array.capacity(), 112) << "an eighth of 100 more";
    array.SetSize(100000);
    array.Add(1);
    EXPECT_EQ(array.capacity(), 101024) << "1024 more at most";
}

TEST(CArrayGrowth, FollowsGrowByWhereItIsGiven)
{
    ShownArray array;
    array.SetSize(1, 10);
    EXPECT_EQ(array.capacity(), 10);
    array.SetSize(11);
    EXPECT_EQ(array.capacity(), 20);
    array.SetSize(35);
    EXPECT_EQ(array.capacity(), 35);
    array.FreeExtra();
    array.SetSize(3);
    array.FreeExtra();
    EXPECT_EQ(array.capacity(), 3);
    array.SetSize(0);
    EXPECT_EQ(array.capacity(), 0);
}

TEST(CArrayAccess, RefusesIndicesOutside)
{
    Numbers array;
    fill(array, 3);
    const Numbers& constant = array;

    for (const INT_PTR index : {INT_PTR{-1}, INT_PTR{3}, kMost, -kMost}) {
        EXPECT_THROW(array[index], CInvalidArgException*);
        EXPECT_THROW(constant[index], CInvalidArgException*);
        EXPECT_THROW(array.GetAt(index), CInvalidArgException*);
        EXPECT_THROW(constant.GetAt(index), CInvalidArgException*);
        EXPECT_THROW(array.ElementAt(index), CInvalidArgException*);
        EXPECT_THROW(array.SetAt(index, 1), CInvalidArgException*);
    }
    array[1] = 10;
    array.SetAt(2, 20);
    array.ElementAt(0) = 5;
    EXPECT_THAT(contentOf(array), testing::ElementsAre(5, 10, 20));
}

TEST(CArrayGrowing, AddGivesTheIndexAndSetAtGrowFillsTheGap)
{
    Numbers array;
    EXPECT_EQ(array.Add(7), 0);
    EXPECT_EQ(array.Add(8), 1);
    array.SetAtGrow(4, 9);
    array.SetAtGrow(0, 6);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(6, 8, 0, 0, 9));
    EXPECT_THROW(array.SetAtGrow(-1, 0), CInvalidArgException*);
}

TEST(CArrayGrowing, AnElementOfTheArrayItselfMayBeAdded)
{
    CArray<CString> array;
    array.Add(L"a text that is long enough for memory of its own");
    for (int i = 0; i < 1000; ++i)
        array.Add(array[0]); // moves the array every now and then

    for (INT_PTR i = 0; i < array.GetSize(); ++i)
        ASSERT_EQ(array[i], L"a text that is long enough for memory of its own") << i;
}

TEST(CArrayGrowing, AnElementOfTheArrayItselfMayBeInserted)
{
    CArray<CString> array;
    array.Add(L"first");
    array.Add(L"second");
    array.SetSize(2, 100);

    array.InsertAt(0, array[1], 2);
    array.InsertAt(1, array[3]);

    EXPECT_THAT(contentOf(array), testing::ElementsAre(L"second", L"second", L"second", L"first", L"second"));
}

TEST(CArrayInserting, MovesLaterElementsOrFillsUpToTheIndex)
{
    Numbers array;
    fill(array, 4);

    array.InsertAt(1, 9, 2);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 9, 9, 1, 2, 3));
    array.InsertAt(8, 5);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 9, 9, 1, 2, 3, 0, 0, 5));
    EXPECT_THROW(array.InsertAt(-1, 1), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(0, 1, 0), CInvalidArgException*);
    EXPECT_THROW(array.InsertAt(kMost, 1, 1), CInvalidArgException*);
    EXPECT_EQ(array.GetSize(), 9);
}

TEST(CArrayInserting, TakesAWholeArrayAlsoItself)
{
    Numbers array, other;
    fill(array, 3);
    fill(other, 2);

    array.InsertAt(1, &other);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 0, 1, 1, 2));
    array.InsertAt(5, &array);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 0, 1, 1, 2, 0, 0, 1, 1, 2));
    const Numbers empty;
    array.InsertAt(20, &empty);
    EXPECT_EQ(array.GetSize(), 10);
    EXPECT_THROW(array.InsertAt(0, static_cast<const Numbers*>(nullptr)), CInvalidArgException*);
}

TEST(CArrayRemoving, ClosesTheGap)
{
    Numbers array;
    fill(array, 6);

    array.RemoveAt(1, 2);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 3, 4, 5));
    array.RemoveAt(3);
    array.RemoveAt(0, 0);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 3, 4));
    EXPECT_THROW(array.RemoveAt(3), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(1, kMost), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(-1), CInvalidArgException*);
    EXPECT_THROW(array.RemoveAt(0, -1), CInvalidArgException*);
    array.RemoveAll();
    EXPECT_TRUE(array.IsEmpty());
}

TEST(CArrayCopying, AppendsAndCopiesOtherArrays)
{
    Numbers array, other;
    fill(array, 2);
    fill(other, 3);

    EXPECT_EQ(array.Append(other), 2);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 1, 0, 1, 2));
    array.Copy(other);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 1, 2));
    array.Copy(array);
    EXPECT_THAT(contentOf(array), testing::ElementsAre(0, 1, 2));
    EXPECT_THROW(array.Append(array), CInvalidArgException*);
    array.Copy(Numbers());
    EXPECT_TRUE(array.IsEmpty());
    EXPECT_EQ(array.Append(Numbers()), 0);
}

TEST(CArrayElements, EveryOneIsMadeAndDestroyedOnce)
{
    {
        CArray<Counted, const Counted&> array;
        for (int i = 0; i < 50; ++i)
            array.Add(Counted(i));
        array.InsertAt(10, array[5], 7);
        array.RemoveAt(3, 20);
        array.SetSize(60);
        array.SetSize(20);
        array.FreeExtra();
        EXPECT_EQ(Counted::alive, 20);
        EXPECT_EQ(*array[2].value, 2);
        EXPECT_EQ(*array[3].value, 16) << "3 .. 22 went: 7 numbers up to 9, 7 times 5, 6 from 10 on";
        EXPECT_EQ(*array[19].value, 32);
    }
    EXPECT_EQ(Counted::alive, 0);
}

TEST(CArrayElements, MayBeSetFromAnotherType)
{
    CArray<CString, LPCTSTR> array;
    array.Add(L"text");
    array.InsertAt(0, L"before");
    array.SetAtGrow(3, L"behind");
    EXPECT_THAT(contentOf(array), testing::ElementsAre(L"before", L"text", L"", L"behind"));
}

TEST(CStringArray, HoldsStrings)
{
    CStringArray names;
    names.Add(L"one");
    names.Add(CString(L"two"));
    names.InsertAt(0, L"zero");
    names.SetAtGrow(4, L"four");
    names.SetAt(2, L"TWO");

    EXPECT_THAT(contentOf(names), testing::ElementsAre(L"zero", L"one", L"TWO", L"", L"four"));
    EXPECT_EQ(names.GetAt(1), L"one");
    EXPECT_THROW(names.GetAt(5), CInvalidArgException*);
}

} // namespace
} // namespace vq::test::cArrayTests
