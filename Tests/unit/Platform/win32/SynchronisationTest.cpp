// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <gtest/gtest.h>
#include <thread>
#include <vector>

namespace {

class CriticalSection : public ::testing::Test
{
protected:
    CriticalSection() { InitializeCriticalSection(&section); }
    ~CriticalSection() override { DeleteCriticalSection(&section); }

    bool anotherThreadGetsIn()
    {
        bool entered = false;
        std::thread([&] {
            entered = TryEnterCriticalSection(&section);
            if (entered)
                LeaveCriticalSection(&section);
        }).join();
        return entered;
    }

    CRITICAL_SECTION section;
};

TEST_F(CriticalSection, MayBeEnteredAgainByItsOwner)
{
    EnterCriticalSection(&section);
    EXPECT_TRUE(TryEnterCriticalSection(&section));
    EXPECT_FALSE(anotherThreadGetsIn());

    LeaveCriticalSection(&section);
    EXPECT_FALSE(anotherThreadGetsIn());

    LeaveCriticalSection(&section);
    EXPECT_TRUE(anotherThreadGetsIn());
}

TEST_F(CriticalSection, LetsOneThreadInAtATime)
{
    int count = 0;
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([&] {
            for (int round = 0; round < 5000; ++round) {
                EnterCriticalSection(&section);
                ++count;
                LeaveCriticalSection(&section);
            }
        });
    for (std::thread& thread : threads)
        thread.join();
    EXPECT_EQ(count, 4 * 5000);
}

TEST(CriticalSectionWithSpinCount, IsMadeLikeAnyOther)
{
    CRITICAL_SECTION section;
    EXPECT_TRUE(InitializeCriticalSectionAndSpinCount(&section, 4000));
    EnterCriticalSection(&section);
    LeaveCriticalSection(&section);
    DeleteCriticalSection(&section);
}

TEST(LastError, BelongsToItsThread)
{
    SetLastError(0xABCDE);
    const DWORD here = GetLastError();
    DWORD elsewhere = here;
    std::thread([&] { elsewhere = GetLastError(); }).join();
    EXPECT_EQ(here, 0xABCDEu);
    EXPECT_NE(elsewhere, 0xABCDEu);
}

TEST(ResultCodes, TellSuccessFromFailure)
{
    EXPECT_TRUE(SUCCEEDED(S_OK));
    EXPECT_TRUE(SUCCEEDED(S_FALSE));
    EXPECT_TRUE(FAILED(E_FAIL));
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_SUCCESS), S_OK);
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_INVALID_PARAMETER), E_INVALIDARG);
    EXPECT_EQ(HRESULT_FROM_WIN32(ERROR_OUTOFMEMORY), E_OUTOFMEMORY);
}

} // namespace
