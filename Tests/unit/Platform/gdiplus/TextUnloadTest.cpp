// SPDX-License-Identifier: MIT
// What drawing text leaves behind when the platform layer is unloaded. This program is not linked with the layer.
#include "support/SharedLibrary.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <thread>

namespace {

using vq::test::bytesInUse;
using vq::test::SharedLibrary;

constexpr int kLoads = 100;

std::ptrdiff_t threads()
{
    return std::distance(std::filesystem::directory_iterator("/proc/self/task"), {});
}

/// In a thread of its own: the C library's stock of freed blocks, which counts as in use, goes with the thread.
void loadAndUnload(int times)
{
    std::thread([times] {
        for (int i = 0; i < times; ++i)
            const SharedLibrary module(VQ_TEXT_MODULE);
    }).join();
}

TEST(PlatformLayer, IsGoneFromMemoryAfterTextWasDrawn)
{
    {
        const SharedLibrary module(VQ_TEXT_MODULE);
        EXPECT_TRUE(SharedLibrary::isInMemory(VQ_PLATFORM_LIBRARY));
    }
    EXPECT_FALSE(SharedLibrary::isInMemory(VQ_PLATFORM_LIBRARY));
}

TEST(PlatformLayer, DrawsTextWithoutAThread)
{
    const std::ptrdiff_t before = threads();
    const SharedLibrary module(VQ_TEXT_MODULE);
    EXPECT_EQ(threads(), before);
}

TEST(PlatformLayer, LeavesNothingOfTextBehindHoweverOftenItIsLoaded)
{
    loadAndUnload(kLoads / 10); // the loader's own tables reach their size

    const std::size_t before = bytesInUse();
    loadAndUnload(kLoads);

    EXPECT_LE(bytesInUse(), before);
}

} // namespace
