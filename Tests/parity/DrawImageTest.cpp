// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

namespace vq::test {
namespace {

using Gdiplus::UnitPixel;

TEST(DrawImage, SourceCopyKeepsColoursAndWritesZeroForTransparentPixels)
{
    TestPicture target(2, 2, 0xFFFFFFFF);
    TestPicture source(2, 2, {0x00000000, 0xFFFF0000, 0x00000000, 0x00FF00FF});
    target.graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, 0, 0), Gdiplus::Ok);
    EXPECT_EQ(target.all(), row({0, 0xFFFF0000, 0, 0}));
}

TEST(DrawImage, SourceOverBlendsAndLeavesTransparentPlaces)
{
    TestPicture target(3, 1, {0xFF000000, 0xFF0000FF, 0x00000000});
    TestPicture source(3, 1, {0x80FF0000, 0x00FF00FF, 0xFF00FF00});
    target.graphics.DrawImage(&source.bitmap, 0, 0);
    EXPECT_EQ(target.all(), row({0xFF800000, 0xFF0000FF, 0xFF00FF00}));
}

/// The two levels 80 and CC over 40, enlarged with the default settings at x = scale.
Row scaledPair(float scale)
{
    TestPicture target(8, 1, 0xFF404040);
    TestPicture source(2, 1, {0xFF808080, 0xFFCCCCCC});
    target.graphics.DrawImage(&source.bitmap, Gdiplus::RectF(scale, 0.0f, 2 * scale, scale), 0.0f, 0.0f, 2.0f, 1.0f,
                              UnitPixel);
    return target.row(0);
}

struct Scaled
{
    float scale;
    std::vector<int> levels;
};

TEST(DrawImage, EnlargingInterpolatesFromPixelCentresAndFadesOutAtTheRight)
{
    const Scaled cases[] = {
        {1.2f, {0x40, 0x40, 0xB2, 0x87, 0x40}},
        {1.5f, {0x40, 0x40, 0x99, 0xCC, 0x6F, 0x40}},
        {1.8f, {0x40, 0x40, 0x88, 0xB2, 0xAD, 0x5F, 0x40, 0x40}},
        {2.0f, {0x40, 0x40, 0x80, 0xA6, 0xCC, 0x86, 0x40, 0x40}},
        {2.5f, {0x40, 0x40, 0x40, 0x8F, 0xAD, 0xCC, 0x95, 0x5C}},
    };
    constexpr int kTolerance = 2;
    for (const Scaled& scaled : cases) {
        const Row result = scaledPair(scaled.scale);
        for (std::size_t x = 0; x < scaled.levels.size(); ++x) {
            if (scaled.scale == 1.8f && x == 5 && differsHere("last pixel of a scaled picture"))
                continue;
            const auto level = static_cast<std::uint32_t>(scaled.levels[x]);
            EXPECT_THAT(result[x], Near(0xFF000000 | level * 0x010101, kTolerance))
                << "scale " << scaled.scale << ", pixel " << x;
        }
    }
}

TEST(DrawImage, ShrinkingKeepsTheShiftByHalfAPixel)
{
    const Row result = scaledPair(0.8f);
    constexpr int kTolerance = 2;
    EXPECT_THAT(result[0], Near(0xFF404040, kTolerance));
    EXPECT_THAT(result[1], Near(0xFF939393, kTolerance));
    if (differsHere("last pixel of a scaled picture"))
        return;
    EXPECT_THAT(result[2], Near(0xFF868686, kTolerance));
    EXPECT_THAT(result[3], Near(0xFF404040, kTolerance));
}

TEST(DrawImage, EnlargedPictureFadesIntoTransparencyInBothModes)
{
    for (const auto mode : {Gdiplus::CompositingModeSourceOver, Gdiplus::CompositingModeSourceCopy}) {
        TestPicture target(8, 1);
        TestPicture source(2, 1, {0xFF808080, 0xFFCCCCCC});
        target.graphics.SetCompositingMode(mode);
        target.graphics.DrawImage(&source.bitmap, 2, 0, 4, 1);
        EXPECT_THAT(target.row(0),
                    testing::ElementsAre(Argb{0}, Argb{0}, Near(0xFF808080, 1), Near(0xFFA6A6A6, 1),
                                         Near(0xFFCCCCCC, 1), Near(0x7FCCCCCC, 2), Argb{0}, Argb{0}));
    }
}

TEST(DrawImage, NearestNeighborTakesWholePixels)
{
    TestPicture target(4, 1);
    TestPicture source(2, 1, {0xFFFF0000, 0xFF0000FF});
    target.graphics.SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);
    target.graphics.SetPixelOffsetMode(Gdiplus::PixelOffsetModeHalf);
    target.graphics.DrawImage(&source.bitmap, 0, 0, 4, 1);
    EXPECT_EQ(target.row(0), row({0xFFFF0000, 0xFFFF0000, 0xFF0000FF, 0xFF0000FF}));
}

TEST(DrawImage, PartOfAPictureAtAPoint)
{
    TestPicture target(5, 5);
    TestPicture source(3, 3);
    for (int i = 0; i < 9; ++i)
        source.set(i % 3, i / 3, 0xFF000000u + static_cast<std::uint32_t>(i));
    target.graphics.DrawImage(&source.bitmap, 1, 1, 1, 1, 2, 2, UnitPixel);
    EXPECT_EQ(target.find(0).count, 25 - 4);
    EXPECT_EQ(target.at(1, 1), Argb{0xFF000004});
    EXPECT_EQ(target.at(2, 1), Argb{0xFF000005});
    EXPECT_EQ(target.at(1, 2), Argb{0xFF000007});
    EXPECT_EQ(target.at(2, 2), Argb{0xFF000008});
}

/// Pixels with any alpha.
int drawnPixels(const TestPicture& picture)
{
    int count = 0;
    for (const Argb pixel : picture.all())
        count += pixel.value >> 24 != 0;
    return count;
}

TEST(DrawImage, PointFormsDrawInPhysicalSizeAndRectangleFormsDoNot)
{
    TestPicture source(2, 2, 0xFF00FF00);
    source.bitmap.SetResolution(48, 48);

    TestPicture atPoint(6, 6);
    atPoint.graphics.DrawImage(&source.bitmap, 1, 1);
    EXPECT_EQ(drawnPixels(atPoint), 16);

    TestPicture partAtPoint(6, 6);
    partAtPoint.graphics.DrawImage(&source.bitmap, 1, 1, 0, 0, 2, 2, UnitPixel);
    EXPECT_EQ(drawnPixels(partAtPoint), 16);

    TestPicture intoRectangle(6, 6);
    intoRectangle.graphics.DrawImage(&source.bitmap, Gdiplus::Rect(1, 1, 2, 2));
    EXPECT_EQ(intoRectangle.find(0xFF00FF00), (TestPicture::Found{1, 1, 2, 2, 4}));
}

TEST(DrawImage, OutsideOfThePictureIsTransparent)
{
    TestPicture target(4, 1, 0xFF0000FF);
    TestPicture source(2, 1, 0xFFFF0000);
    target.graphics.DrawImage(&source.bitmap, Gdiplus::Rect(0, 0, 4, 1), -1, 0, 4, 1, UnitPixel);
    EXPECT_EQ(target.row(0), row({0xFF0000FF, 0xFFFF0000, 0xFFFF0000, 0xFF0000FF}));
}

TEST(DrawImage, EmptyTargetRectangleDrawsNothing)
{
    TestPicture target(2, 2);
    TestPicture source(2, 2, 0xFFFF0000);
    EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, 0, 0, 0, 2), Gdiplus::Ok);
    EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, 0, 0, 2, 0), Gdiplus::Ok);
    EXPECT_EQ(target.find(0).count, 4);
}

TEST(DrawImage, NullOrBrokenPictureIsInvalidAndLeavesTheStatus)
{
    TestPicture target(2, 2);
    Gdiplus::Bitmap broken(0, 5, PixelFormat32bppARGB);
    EXPECT_EQ(target.graphics.DrawImage(nullptr, 0, 0), Gdiplus::InvalidParameter);
    EXPECT_EQ(target.graphics.GetLastStatus(), Gdiplus::InvalidParameter);
    EXPECT_EQ(target.graphics.GetLastStatus(), Gdiplus::Ok);
    EXPECT_EQ(target.graphics.DrawImage(&broken, Gdiplus::Rect(0, 0, 2, 2)), Gdiplus::InvalidParameter);
    EXPECT_EQ(target.find(0).count, 4);
}

TEST(DrawImage, LastFailureStaysUntilItIsRead)
{
    TestPicture target(2, 2);
    TestPicture source(1, 1, 0xFFFF0000);
    target.graphics.DrawImage(nullptr, 0, 0);
    EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, 0, 0), Gdiplus::Ok);
    EXPECT_EQ(target.graphics.GetLastStatus(), Gdiplus::InvalidParameter);
    EXPECT_EQ(target.graphics.GetLastStatus(), Gdiplus::Ok);
}

} // namespace
} // namespace vq::test
