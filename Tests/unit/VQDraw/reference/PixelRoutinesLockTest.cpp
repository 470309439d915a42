// SPDX-License-Identifier: MIT
#include "support/Locks.h"
#include "support/Pictures.h"

namespace vq::test {
namespace {

TEST(PixelRoutinesLock, BlockAndScaledTransfersWaitForTheLock)
{
    CVQDIB image(8, 8);
    CVQDIB source(4, 4);

    EXPECT_TRUE(waitsForTheLock([&] { image.Copy(source); }));
    EXPECT_TRUE(waitsForTheLock([&] { image.Paste(source); }));
    EXPECT_TRUE(waitsForTheLock([&] { image.CopyWithScale(&source); }));
    EXPECT_TRUE(waitsForTheLock([&] { image.PasteWithScale(&source); }));
    EXPECT_TRUE(waitsForTheLock([&] { image.PasteWithScaleFloat(&source, 1.5f, 1, 3, 3); }));
}

TEST(PixelRoutinesLock, BlocksOutsideTheImageLetGoOfTheLock)
{
    CVQDIB image(8, 8);
    CVQDIB source(4, 4);

    image.Copy(source, 8, 0);
    image.Paste(source, 0, 8);
    image.Copy(source, 0, 0, 4, 0, 1, 1);
    image.Copy(source, 0, 0, 0, 0, 0, 0);
    image.CopyWithScale(nullptr);
    image.PasteWithScale(nullptr);
    image.PasteWithScaleFloat(nullptr, 0, 0, 1, 1);

    std::thread other([&] { image.Copy(source); });
    other.join();
}

TEST(PixelRoutinesLock, BlendsAndFiltersTakeNoLock)
{
    CVQDIB image(8, 8);
    CVQDIB source(8, 8);

    EXPECT_TRUE(finishesWhileLocked(std::chrono::seconds(30), [&] {
        image.Blend(source);
        image.Blend(source, LONG{9});
        image.Blend(LONG{1}, LONG{2}, LONG{3}, LONG{4});
        image.Blend(COLORREF{0x123456}, LONG{9});
        image.Add(source);
        image.Subtract(source);
        image.Multiply(source);
        image.Screen(source);
        image.Difference(source);
        image.Lighten(source, 200);
        image.Darken(source, 200);
        image.Invert();
        image.ConvertToGray();
        image.Quantize(2);
        image.Equalize();
        image.Smooth3x3();
        image.Smooth(1);
        image.AlphaSmooth3x3();
        image.Median(nullptr);
        image.Laplacian(0);
        image.Mosaic(2);
        image.BuildFractalMap(1, 2, 3, 4);
    }));
}

} // namespace
} // namespace vq::test
