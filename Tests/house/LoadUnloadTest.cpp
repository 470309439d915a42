// SPDX-License-Identifier: MIT
// A host that loads the drawing library while it runs, and lets it go.
#include "support/SharedLibrary.h"

#include "Platform/Platform.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace {

using vq::test::bytesInUse;
using vq::test::SharedLibrary;

constexpr int kLoads = 100;

TEST(LoadedLibrary, IsGoneFromMemoryWhenItIsUnloaded)
{
    ASSERT_FALSE(SharedLibrary::isInMemory(VQDRAW_LIBRARY));
    {
        const SharedLibrary library(VQDRAW_LIBRARY);
        EXPECT_TRUE(SharedLibrary::isInMemory(VQDRAW_LIBRARY));
    }
    EXPECT_FALSE(SharedLibrary::isInMemory(VQDRAW_LIBRARY));
}

TEST(LoadedLibrary, StartsAndShutsDownOnceEachTime)
{
    const AFX_MODULE_RUNS before = AfxGetModuleRuns();
    for (int i = 1; i <= kLoads; ++i) {
        {
            const SharedLibrary library(VQDRAW_LIBRARY);
            ASSERT_EQ(AfxGetModuleRuns().started, before.started + i);
            ASSERT_EQ(AfxGetModuleRuns().stopped, before.stopped + i - 1);
        }
        ASSERT_EQ(AfxGetModuleRuns().stopped, before.stopped + i);
    }
}

std::size_t bytesLeftBehindByLoading()
{
    const std::size_t before = bytesInUse();
    for (int i = 0; i < kLoads; ++i)
        const SharedLibrary library(VQDRAW_LIBRARY);
    return std::max(bytesInUse(), before) - before;
}

/// The loader's own tables grow for some rounds; what a library leaves behind grows in every one.
TEST(LoadedLibrary, LeavesNothingBehindHoweverOftenItIsLoaded)
{
    constexpr int kRounds = 5;
    std::size_t least = bytesLeftBehindByLoading();
    for (int round = 1; round < kRounds && least > 0; ++round)
        least = std::min(least, bytesLeftBehindByLoading());
    EXPECT_EQ(least, 0u);
}

} // namespace
