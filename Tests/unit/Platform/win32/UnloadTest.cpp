// SPDX-License-Identifier: MIT
#include "support/SharedLibrary.h"

#include <gtest/gtest.h>

namespace {

using vq::test::bytesInUse;
using vq::test::SharedLibrary;

constexpr std::size_t kLoads = 300;
constexpr std::size_t kSmallestBlock = 16; // one block lost at each load would take more than this

void loadAndUnload(std::size_t times)
{
    for (std::size_t round = 0; round < times; ++round)
        const SharedLibrary guest(VQ_GUEST);
}

TEST(PlatformLibrary, IsUnloadedWithItsLastUser)
{
    {
        const SharedLibrary guest(VQ_GUEST);
        EXPECT_TRUE(SharedLibrary::isInMemory(VQ_PLATFORM));
    }
    EXPECT_FALSE(SharedLibrary::isInMemory(VQ_PLATFORM));
}

TEST(PlatformLibrary, GivesBackWhatItTookWhenItIsUnloaded)
{
    loadAndUnload(500); // the loader's own lists reach their size: measured, over 250 loads with the libraries below
    const std::size_t before = bytesInUse();

    loadAndUnload(kLoads);

    EXPECT_LT(bytesInUse(), before + kLoads * kSmallestBlock);
}

} // namespace
