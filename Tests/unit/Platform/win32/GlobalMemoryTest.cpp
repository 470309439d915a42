// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

constexpr SIZE_T kMuch = 4'000'000; // more than fits beside a small block

class MovableBlock : public ::testing::Test
{
protected:
    ~MovableBlock() override { GlobalFree(memory); }

    HGLOBAL memory = GlobalAlloc(GHND, 16);
};

TEST_F(MovableBlock, IsZeroedAndHasTheSizeAskedFor)
{
    EXPECT_EQ(GlobalSize(memory), 16u);
    const auto* bytes = static_cast<const BYTE*>(GlobalLock(memory));
    ASSERT_NE(bytes, nullptr);
    for (int i = 0; i < 16; ++i)
        EXPECT_EQ(bytes[i], 0) << i;
    GlobalUnlock(memory);
}

TEST_F(MovableBlock, CountsItsLocks)
{
    void* first = GlobalLock(memory);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(GlobalLock(memory), first);
    EXPECT_EQ(GlobalFlags(memory) & GMEM_LOCKCOUNT, 2u);

    EXPECT_TRUE(GlobalUnlock(memory));
    SetLastError(ERROR_INVALID_HANDLE);
    EXPECT_FALSE(GlobalUnlock(memory)); // the last lock
    EXPECT_EQ(GetLastError(), DWORD{NO_ERROR});
    EXPECT_FALSE(GlobalUnlock(memory));
    EXPECT_EQ(GetLastError(), DWORD{ERROR_NOT_LOCKED});
}

TEST_F(MovableBlock, KeepsHandleAndContentWhenItGrows)
{
    std::memcpy(GlobalLock(memory), "0123456789abcdef", 16);
    GlobalUnlock(memory);

    EXPECT_EQ(GlobalReAlloc(memory, kMuch, GMEM_MOVEABLE | GMEM_ZEROINIT), memory);

    EXPECT_EQ(GlobalSize(memory), kMuch);
    const auto* bytes = static_cast<const BYTE*>(GlobalLock(memory));
    EXPECT_EQ(std::memcmp(bytes, "0123456789abcdef", 16), 0);
    EXPECT_EQ(bytes[16], 0);
    EXPECT_EQ(bytes[kMuch - 1], 0);
    GlobalUnlock(memory);
}

TEST_F(MovableBlock, ShrinksToItsFirstBytes)
{
    std::memcpy(GlobalLock(memory), "0123456789abcdef", 16);
    GlobalUnlock(memory);
    EXPECT_EQ(GlobalReAlloc(memory, 3, GMEM_MOVEABLE), memory);
    EXPECT_EQ(GlobalSize(memory), 3u);
    EXPECT_EQ(std::memcmp(GlobalLock(memory), "012", 3), 0);
    GlobalUnlock(memory);
}

TEST_F(MovableBlock, MovesWhileLockedOnRequestOnly)
{
    GlobalLock(memory);
    EXPECT_EQ(GlobalReAlloc(memory, kMuch, 0), nullptr);
    EXPECT_EQ(GlobalSize(memory), 16u);
    EXPECT_EQ(GlobalReAlloc(memory, kMuch, GMEM_MOVEABLE), memory);
    EXPECT_EQ(GlobalSize(memory), kMuch);
    GlobalUnlock(memory);
}

TEST_F(MovableBlock, IsFoundByItsAddress)
{
    EXPECT_EQ(GlobalHandle(GlobalLock(memory)), memory);
    GlobalUnlock(memory);
}

TEST_F(MovableBlock, OfNoBytesCannotBeLocked)
{
    EXPECT_EQ(GlobalReAlloc(memory, 0, GMEM_MOVEABLE), memory);
    EXPECT_EQ(GlobalSize(memory), 0u);
    EXPECT_EQ(GlobalFlags(memory), UINT{GMEM_DISCARDED});
    EXPECT_EQ(GlobalLock(memory), nullptr);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_DISCARDED});

    EXPECT_EQ(GlobalReAlloc(memory, 5, GMEM_MOVEABLE), memory);
    EXPECT_NE(GlobalLock(memory), nullptr);
    GlobalUnlock(memory);
}

TEST_F(MovableBlock, IsNotFreedTwice)
{
    const HGLOBAL other = GlobalAlloc(GMEM_MOVEABLE, 4);
    GlobalLock(other);
    EXPECT_EQ(GlobalFree(other), nullptr); // locked or not
    EXPECT_EQ(GlobalFree(other), other);
    EXPECT_EQ(GetLastError(), DWORD{ERROR_INVALID_HANDLE});
}

TEST(FixedBlock, IsItsOwnAddressAndAlwaysLocked)
{
    const HGLOBAL memory = GlobalAlloc(GPTR, 16);
    EXPECT_EQ(GlobalLock(memory), memory);
    EXPECT_TRUE(GlobalUnlock(memory));
    EXPECT_TRUE(GlobalUnlock(memory));
    EXPECT_EQ(GlobalSize(memory), 16u);
    EXPECT_EQ(GlobalHandle(memory), memory);
    EXPECT_EQ(static_cast<BYTE*>(memory)[15], 0);
    EXPECT_EQ(GlobalFree(memory), nullptr);
}

TEST(FixedBlock, MovesOnRequestOnly)
{
    HGLOBAL memory = GlobalAlloc(GMEM_FIXED, 16);
    std::memcpy(memory, "0123456789abcdef", 16);
    EXPECT_EQ(GlobalReAlloc(memory, kMuch, 0), nullptr);

    memory = GlobalReAlloc(memory, kMuch, GMEM_MOVEABLE);

    ASSERT_NE(memory, nullptr);
    EXPECT_EQ(GlobalSize(memory), kMuch);
    EXPECT_EQ(std::memcmp(memory, "0123456789abcdef", 16), 0);
    EXPECT_EQ(GlobalFree(memory), nullptr);
}

TEST(GlobalMemory, RefusesNull)
{
    EXPECT_EQ(GlobalFree(nullptr), nullptr);
    EXPECT_EQ(GlobalLock(nullptr), nullptr);
    EXPECT_FALSE(GlobalUnlock(nullptr));
    EXPECT_EQ(GlobalSize(nullptr), 0u);
    EXPECT_EQ(GlobalReAlloc(nullptr, 10, GMEM_MOVEABLE), nullptr);
    EXPECT_EQ(GlobalFlags(nullptr), UINT{GMEM_INVALID_HANDLE});
    EXPECT_EQ(GlobalHandle(nullptr), nullptr);
}

} // namespace
