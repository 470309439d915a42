// SPDX-License-Identifier: MIT
#include "support/SharedLibrary.h"

#include <gtest/gtest.h>

namespace {

using vq::test::bytesInUse;
using vq::test::SharedLibrary;

constexpr std::size_t kLoadersOwn = 4096; // the loader's lists may have grown

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
    for (int round = 0; round < 3; ++round)
        const SharedLibrary guest(VQ_GUEST);
    const std::size_t before = bytesInUse();

    for (int round = 0; round < 100; ++round)
        const SharedLibrary guest(VQ_GUEST);

    EXPECT_LE(bytesInUse(), before + kLoadersOwn);
}

} // namespace
