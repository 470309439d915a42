// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"
#include "support/ImageAccess.h"
#include "support/Locks.h"
#include "support/Pictures.h"

#include <atomic>
#include <chrono>
#include <functional>
#include <thread>

namespace vq::test {
namespace {

using Access = VQTestAccess;

constexpr int kThreads = 8;
constexpr int kRounds = 60;

/// Makes, paints, turns and drops images; true when none of them ever held a foreign pixel.
bool imagesStayApart(std::uint32_t seed)
{
    std::mt19937 generator(seed);
    for (int round = 0; round < kRounds; ++round) {
        const auto width = static_cast<int>(1 + generator() % 40);
        const auto height = static_cast<int>(1 + generator() % 40);
        const Pixels own(static_cast<std::size_t>(width * height), 0xFF000000 | seed << 8);
        CVQDIB image(width, height);
        if (pixels(image) != Pixels(own.size(), 0))
            return false;
        for (std::size_t i = 0; i < own.size(); ++i)
            image.GetImageBuffer()[i] = own[i];
        CVQDIB duplicate(image);
        duplicate = image;
        image.Rotate(Gdiplus::Rotate90FlipNone);
        if (pixels(image) != own || pixels(duplicate) != own)
            return false;
        duplicate.Resize(height, width, true, false);
        if (pixels(duplicate) != own)
            return false;
    }
    return true;
}

TEST(CVQDIBLocks, EightThreadsMakeAndDropImagesAtOnce)
{
    std::atomic<int> clean{0};
    std::vector<std::thread> threads;
    for (std::uint32_t seed = 1; seed <= kThreads; ++seed) {
        threads.emplace_back([seed, &clean] {
            if (imagesStayApart(seed))
                ++clean;
        });
    }
    for (std::thread& thread : threads)
        thread.join();

    EXPECT_EQ(clean.load(), kThreads);
}

TEST(CVQDIBLocks, CreationAndDestructionWaitForTheLock)
{
    CVQDIB image(2, 2);

    EXPECT_TRUE(waitsForTheLock([] { CVQDIB other(3, 3); }));
    EXPECT_TRUE(waitsForTheLock([&] { Access::destroy(image); }));
    EXPECT_TRUE(waitsForTheLock([&] { Access::create(image, 4, 4); }));
    EXPECT_EQ(image.GetSize(), 16);
}

TEST(CVQDIBLocks, TakingABitmapWaitsForTheLock)
{
    Gdiplus::Bitmap bitmap(2, 2);

    EXPECT_TRUE(waitsForTheLock([&] { CVQDIB image(&bitmap); }));
}

TEST(CVQDIBLocks, BlockTransfersAndScaledOnesWaitForTheLock)
{
    CVQDIB image(2, 2);
    CVQDIB source(2, 2);

    EXPECT_TRUE(waitsForTheLock([&] { image.Copy(source); }));
    EXPECT_TRUE(waitsForTheLock([&] { image.Paste(source); }));
    EXPECT_TRUE(waitsForTheLock([&] { image.CopyWithScale(&source); }));
    EXPECT_TRUE(waitsForTheLock([&] { image.PasteWithScale(&source); }));
    EXPECT_TRUE(waitsForTheLock([&] { image.PasteWithScaleFloat(&source, 0, 0, 2, 2); }));
}

TEST(CVQDIBLocks, PixelOperationsTakeNoLock)
{
    CVQDIB image(3, 2);
    CVQDIB source(3, 2);

    EXPECT_TRUE(finishesWhileLocked(std::chrono::seconds(30), [&] {
        image.Clear(COLORREF{0x030201});
        image.ClearAlpha(BYTE{5});
        image.SaturateAlphaChannel(100);
        image.ExchangeRB();
        image.FlipVertical();
        image.Emboss();
        image.Blend(source);
        image.Blend(COLORREF{0x030201}, 100);
        image.Add(source);
        image.ConvertToGray();
    }));
}

TEST(CVQDIBLocks, TheHolderOfTheLockMakesImagesItself)
{
    Access::lock().Lock();
    {
        CVQDIB image(2, 2);
        EXPECT_EQ(image.Resize(3, 3), 1);
    }
    Access::lock().Unlock();
}

TEST(CVQDIBLocks, AreReleasedByFailedCreations)
{
    CVQDIB image(65536, 65536);

    std::thread other([] { CVQDIB small(1, 1); });
    other.join();
    EXPECT_EQ(image.GetSize(), 0);
}

} // namespace
} // namespace vq::test
