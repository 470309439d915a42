// SPDX-License-Identifier: MIT
#include "Platform/afx/Synchronisation.h"

#include <gtest/gtest.h>

#include <array>
#include <thread>

namespace {

bool isFree(CCriticalSection& section)
{
    bool entered = false;
    std::thread([&] {
        entered = TryEnterCriticalSection(section) != FALSE;
        if (entered)
            section.Unlock();
    }).join();
    return entered;
}

TEST(CCriticalSection, MayBeEnteredAgainByItsOwnerAndMustBeLeftAsOften)
{
    CCriticalSection section;
    EXPECT_TRUE(section.Lock());
    EXPECT_TRUE(section.Lock());
    EXPECT_TRUE(section.Unlock());
    EXPECT_FALSE(isFree(section));
    EXPECT_TRUE(section.Unlock());
    EXPECT_TRUE(isFree(section));
}

TEST(CCriticalSection, KeepsThreadsApart)
{
    CCriticalSection section;
    int count = 0;
    std::array<std::thread, 4> threads;
    for (std::thread& thread : threads)
        thread = std::thread([&] {
            for (int i = 0; i < 10000; ++i) {
                const CSingleLock lock(&section, TRUE);
                ++count;
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(count, 40000);
}

TEST(CSingleLock, HoldsTheSectionUntilItGoes)
{
    CCriticalSection section;
    {
        CSingleLock lock(&section);
        EXPECT_FALSE(lock.IsLocked());
        EXPECT_FALSE(lock.Unlock());
        EXPECT_TRUE(lock.Lock());
        EXPECT_FALSE(lock.Lock());
        EXPECT_TRUE(lock.IsLocked());
        EXPECT_FALSE(isFree(section));
        EXPECT_TRUE(lock.Unlock());
        EXPECT_TRUE(isFree(section));
        lock.Lock();
    }
    EXPECT_TRUE(isFree(section));
}

} // namespace
