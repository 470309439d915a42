// SPDX-License-Identifier: MIT
#include "support/ImageAccess.h"
#include "support/Pictures.h"

namespace vq::test {
namespace {

using Access = VQTestAccess;

TEST(CVQDIBSharedPixels, BitmapAndGraphicsAreTheImagesOwn)
{
    CVQDIB image(4, 3);

    EXPECT_EQ(image.GetBitmap(), Access::bitmap(image));
    EXPECT_EQ(image.GetGraphics(), Access::graphics(image));
    EXPECT_EQ(image.GetBitmap(), image.GetBitmap());
}

TEST(CVQDIBSharedPixels, TheBitmapHasTheImagesSizeAndFormat)
{
    using namespace Gdiplus; // Windows has no scope for its pixel formats
    CVQDIB image(7, 3);

    EXPECT_EQ(image.GetBitmap()->GetWidth(), 7u);
    EXPECT_EQ(image.GetBitmap()->GetHeight(), 3u);
    EXPECT_EQ(image.GetBitmap()->GetPixelFormat(), PixelFormat32bppARGB);
}

TEST(CVQDIBSharedPixels, TheBitmapReadsWhatIsWrittenToTheBuffer)
{
    CVQDIB image(3, 2);
    const Pixels content = {0xFF102030, 0x80FF0000, 0x00FF00FF, 0x01123456, 0, 0xFFFFFFFF};
    paint(image, content);

    for (INT y = 0; y < 2; ++y) {
        for (INT x = 0; x < 3; ++x) {
            Gdiplus::Color colour(1);
            ASSERT_EQ(image.GetBitmap()->GetPixel(x, y, &colour), Gdiplus::Ok);
            EXPECT_EQ(colour.GetValue(), content[static_cast<std::size_t>(y * 3 + x)]);
        }
    }
}

TEST(CVQDIBSharedPixels, TheBufferShowsWhatIsWrittenToTheBitmap)
{
    CVQDIB image(3, 2);

    ASSERT_EQ(image.GetBitmap()->SetPixel(2, 1, Gdiplus::Color(0x80123456)), Gdiplus::Ok);
    ASSERT_EQ(image.GetBitmap()->SetPixel(0, 0, Gdiplus::Color(0xFFABCDEF)), Gdiplus::Ok);

    EXPECT_TRUE(shows(image, {0xFFABCDEF, 0, 0, 0, 0, 0x80123456}));
}

TEST(CVQDIBSharedPixels, TheBufferShowsWhatTheGraphicsDraws)
{
    CVQDIB image(4, 3);
    image.EnableAntialias(false);
    const Gdiplus::SolidBrush brush(Gdiplus::Color(0xFF00FF00));

    ASSERT_EQ(image.GetGraphics()->FillRectangle(&brush, 1, 1, 2, 1), Gdiplus::Ok);

    constexpr ULONG g = 0xFF00FF00;
    EXPECT_TRUE(shows(image, {0, 0, 0, 0, //
                              0, g, g, 0, //
                              0, 0, 0, 0}));
}

TEST(CVQDIBSharedPixels, TheGraphicsBlendsOverWhatIsInTheBuffer)
{
    CVQDIB image(2, 1);
    image.EnableAntialias(false);
    paint(image, {0xFF000000, 0x00000000});
    const Gdiplus::SolidBrush halfRed(Gdiplus::Color(0x80FF0000));

    ASSERT_EQ(image.GetGraphics()->FillRectangle(&halfRed, 0, 0, 2, 1), Gdiplus::Ok);

    EXPECT_TRUE(shows(image, {0xFF800000, 0x80FF0000}));
}

TEST(CVQDIBSharedPixels, ClearingTheGraphicsSetsEveryPixel)
{
    CVQDIB image(5, 3);
    fillRandom(image, 1);

    ASSERT_EQ(image.GetGraphics()->Clear(Gdiplus::Color(0xFF123456)), Gdiplus::Ok);

    EXPECT_TRUE(shows(image, Pixels(15, 0xFF123456)));
}

TEST(CVQDIBSharedPixels, LockedBitsAreTheBufferItself)
{
    using namespace Gdiplus; // Windows has no scope for its pixel formats
    CVQDIB image(5, 3);
    const Rect all(0, 0, 5, 3);
    BitmapData data{};

    ASSERT_EQ(image.GetBitmap()->LockBits(&all, Gdiplus::ImageLockModeRead | Gdiplus::ImageLockModeWrite,
                                          PixelFormat32bppARGB, &data),
              Gdiplus::Ok);

    EXPECT_EQ(data.Scan0, static_cast<void*>(image.GetImageBuffer()));
    EXPECT_EQ(data.Stride, 20);
    EXPECT_EQ(image.GetBitmap()->UnlockBits(&data), Gdiplus::Ok);
}

TEST(CVQDIBSharedPixels, OneImageIsDrawnOntoAnother)
{
    CVQDIB source(2, 1);
    CVQDIB target(4, 2);
    paint(source, {0xFF112233, 0xFF445566});

    ASSERT_EQ(target.GetGraphics()->DrawImage(source.GetBitmap(), 1, 1, 2, 1), Gdiplus::Ok);

    EXPECT_TRUE(shows(target, {0, 0, 0, 0, //
                               0, 0xFF112233, 0xFF445566, 0}));
}

TEST(CVQDIBSharedPixels, FollowTheImageToItsNewMemory)
{
    CVQDIB image(2, 2);

    ASSERT_EQ(image.Resize(6, 4), 1);
    ASSERT_EQ(image.GetBitmap()->SetPixel(5, 3, Gdiplus::Color(0xFF010203)), Gdiplus::Ok);

    EXPECT_EQ(image(5, 3), 0xFF010203u);
    EXPECT_EQ(image.GetBitmap()->GetWidth(), 6u);
}

TEST(CVQDIBSharedPixels, AFreshGraphicsReportsNoFailure)
{
    CVQDIB image(2, 2);

    EXPECT_EQ(image.GetBitmap()->GetLastStatus(), Gdiplus::Ok);
    EXPECT_EQ(image.GetGraphics()->GetLastStatus(), Gdiplus::Ok);
}

} // namespace
} // namespace vq::test
