// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "Platform/win32/Errors.h"
#include "Platform/win32/GlobalMemory.h"
#include "Platform/win32/HandleTable.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

TEST(GlobalMemory, RefusesWhatIsNoLiveBlock)
{
    int number = 0;
    const HGLOBAL stale = GlobalAlloc(GMEM_MOVEABLE, 4);
    GlobalFree(stale);
    const HGLOBAL another = GlobalAlloc(GMEM_MOVEABLE, 4); // may take the same place
    for (const HGLOBAL memory : {HGLOBAL{&number}, stale, HGLOBAL{reinterpret_cast<void*>(0x12)}}) {
        EXPECT_EQ(GlobalLock(memory), nullptr);
        EXPECT_FALSE(GlobalUnlock(memory));
        EXPECT_EQ(GlobalSize(memory), 0u);
        EXPECT_EQ(GlobalReAlloc(memory, 10, GMEM_MOVEABLE), nullptr);
        EXPECT_EQ(GlobalHandle(memory), nullptr);
        EXPECT_EQ(GlobalFree(memory), memory);
        EXPECT_EQ(GetLastError(), ERROR_INVALID_HANDLE);
    }
    GlobalFree(another);
}

TEST(GlobalMemory, LeavesABlockAsItWasWhenMemoryRunsOut)
{
    const HGLOBAL movable = GlobalAlloc(GHND, 4);
    const HGLOBAL fixed = GlobalAlloc(GPTR, 4);
    {
        const vq::platform::ScopedAllocationFailure noMemory;
        EXPECT_EQ(GlobalAlloc(GHND, 4), nullptr);
        EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
        EXPECT_EQ(GlobalReAlloc(movable, 100, GMEM_MOVEABLE), nullptr);
        EXPECT_EQ(GlobalReAlloc(fixed, 100, GMEM_MOVEABLE), nullptr);
    }
    EXPECT_EQ(GlobalSize(movable), 4u);
    EXPECT_EQ(GlobalSize(fixed), 4u);
    EXPECT_EQ(GlobalReAlloc(movable, static_cast<SIZE_T>(-1), GMEM_MOVEABLE), nullptr);
    GlobalFree(movable);
    GlobalFree(fixed);
}

TEST(HandleTable, FindsWhatWasInsertedUntilItIsRemoved)
{
    vq::win32::HandleTable<int> table;
    int one = 1;
    int two = 2;
    const auto first = table.insert(&one);
    const auto second = table.insert(&two);

    EXPECT_EQ(table.find(first), &one);
    EXPECT_EQ(table.find(second), &two);
    EXPECT_EQ(table.remove(first), &one);
    EXPECT_EQ(table.find(first), nullptr);
    EXPECT_EQ(table.remove(first), nullptr);
    EXPECT_EQ(table.find(second), &two);
    table.close();
}

TEST(HandleTable, NeverGivesANumberTwice)
{
    vq::win32::HandleTable<int> table;
    int object = 0;
    std::vector<std::uintptr_t> old;
    for (int round = 0; round < 1000; ++round) {
        const auto number = table.insert(&object);
        for (const auto before : old)
            ASSERT_NE(number, before);
        ASSERT_NE(number, 0u);
        table.remove(number);
        old.push_back(number);
    }
    for (const auto number : old)
        EXPECT_EQ(table.find(number), nullptr);
    table.close();
}

TEST(HandleTable, FindsNothingForNumbersThatItNeverGave)
{
    vq::win32::HandleTable<int> table;
    EXPECT_EQ(table.find(0), nullptr);
    int object = 0;
    const auto number = table.insert(&object);
    for (int bit = 0; bit < 64; ++bit)
        EXPECT_EQ(table.find(number ^ std::uintptr_t{1} << bit), nullptr) << bit;
    EXPECT_EQ(table.find(~std::uintptr_t{0}), nullptr);
    table.close();
}

TEST(HandleTable, IsEmptyOnceItIsClosed)
{
    vq::win32::HandleTable<int> table;
    int object = 0;
    const auto number = table.insert(&object);
    table.close();
    EXPECT_EQ(table.find(number), nullptr);
    EXPECT_EQ(table.insert(&object), 0u);
    EXPECT_EQ(table.remove(number), nullptr);
}

} // namespace
