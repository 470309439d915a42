// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

namespace vq::test {
namespace {

/// Two squares of 2 x 2, A0000000 and then A0FFFFFF, that share the middle pixel of 3 x 3.
void drawOverlappingSquares(TestPicture& picture)
{
    picture.fill(0xA0000000, 0, 0, 2, 2);
    picture.fill(0xA0FFFFFF, 1, 1, 2, 2);
}

TEST(Compositing, SourceOverBlendsTranslucentFills)
{
    TestPicture picture(3, 3);
    drawOverlappingSquares(picture);
    EXPECT_EQ(picture.at(0, 0), Argb{0xA0000000});
    EXPECT_EQ(picture.at(2, 2), Argb{0xA0FFFFFF});
    EXPECT_EQ(picture.at(2, 0), Argb{0});
    EXPECT_THAT(picture.at(1, 1), Near(0xDCB9B9B9, 1));
}

TEST(Compositing, SourceCopyReplacesColourAndAlpha)
{
    TestPicture picture(3, 3);
    picture.graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    drawOverlappingSquares(picture);
    EXPECT_EQ(picture.at(0, 0), Argb{0xA0000000});
    EXPECT_EQ(picture.at(1, 1), Argb{0xA0FFFFFF});
    EXPECT_EQ(picture.at(2, 0), Argb{0});
}

TEST(Compositing, HighQualityBlendsInLinearLight)
{
    if (differsHere("linear light"))
        return;
    for (const auto quality : {Gdiplus::CompositingQualityHighQuality, Gdiplus::CompositingQualityGammaCorrected}) {
        TestPicture picture(3, 3);
        picture.graphics.SetCompositingQuality(quality);
        drawOverlappingSquares(picture);
        // Windows gives 159, 219 and 159 for the alphas; 160 and 220 are the exact ones.
        EXPECT_THAT(picture.at(0, 0), Near(0x9F000000, 1));
        EXPECT_THAT(picture.at(1, 1), Near(0xDBDEDEDE, 1));
        EXPECT_THAT(picture.at(2, 2), Near(0x9FFFFFFF, 1));
        EXPECT_EQ(picture.at(2, 0), Argb{0});
    }
}

TEST(Compositing, OtherQualitiesBlendBytes)
{
    for (const auto quality : {Gdiplus::CompositingQualityHighSpeed, Gdiplus::CompositingQualityAssumeLinear}) {
        TestPicture picture(3, 3);
        picture.graphics.SetCompositingQuality(quality);
        drawOverlappingSquares(picture);
        EXPECT_THAT(picture.at(1, 1), Near(0xDCB9B9B9, 1));
    }
}

TEST(Compositing, OverOpaqueAndOverTransparentPixels)
{
    TestPicture picture(3, 1, {0xFF000000, 0x00000000, 0x40123456});
    picture.fill(0x80FF0000, 0, 0, 2, 1);
    picture.fill(0x00FF00FF, 2, 0, 1, 1);
    EXPECT_EQ(picture.row(0), row({0xFF800000, 0x80FF0000, 0x40123456}));
}

TEST(Compositing, SourceCopyOfTransparentFillWritesZero)
{
    TestPicture picture(1, 1, 0xFFFFFFFF);
    picture.graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
    picture.fill(0x00FF00FF, 0, 0, 1, 1);
    EXPECT_EQ(picture.at(0, 0), Argb{0});
}

TEST(Compositing, ClearReplacesEveryPixelInBothModes)
{
    for (const auto mode : {Gdiplus::CompositingModeSourceOver, Gdiplus::CompositingModeSourceCopy}) {
        TestPicture picture(2, 1, {0xFFFFFFFF, 0x40123456});
        picture.graphics.SetCompositingMode(mode);
        EXPECT_EQ(picture.graphics.Clear(Gdiplus::Color(0x80FF0000)), Gdiplus::Ok);
        EXPECT_EQ(picture.all(), row({0x80FF0000, 0x80FF0000}));
    }
}

} // namespace
} // namespace vq::test
