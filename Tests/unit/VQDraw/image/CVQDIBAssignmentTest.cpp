// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <utility>

namespace vq::test {
namespace {

using Access = VQTestAccess;

TEST(CVQDIBAssignment, TakesSizeAndPixels)
{
    CVQDIB source(3, 2);
    CVQDIB target(7, 7);
    const Pixels content = {0xFF000001, 0x00FFFFFF, 0x80123456, 0, 0x01FF00FF, 0xFFFFFFFF};
    paint(source, content);
    paint(target, Pixels(49, 0xFFFFFFFF));

    CVQDIB& result = (target = source);

    EXPECT_EQ(&result, &target);
    EXPECT_EQ(target.GetWidth(), 3);
    EXPECT_EQ(target.GetHeight(), 2);
    EXPECT_EQ(target.GetSize(), 6);
    EXPECT_TRUE(shows(target, content));
}

TEST(CVQDIBAssignment, DuplicatesThePixels)
{
    CVQDIB source(2, 2);
    CVQDIB target(1, 1);
    fillRandom(source, 1);
    const Pixels content = pixels(source);

    target = source;
    paint(source, Pixels(4, 0));

    EXPECT_NE(target.GetImageBuffer(), source.GetImageBuffer());
    EXPECT_TRUE(shows(target, content));
}

TEST(CVQDIBAssignment, CopiesRandomPicturesOfManySizesExactly)
{
    CVQDIB target(1, 1);
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 17}, {33, 1}, {64, 64}, {129, 127}, {500, 3}}) {
        CVQDIB source(width, height);
        fillRandom(source, static_cast<std::uint32_t>(width * 1000 + height));

        target = source;

        EXPECT_TRUE(shows(target, pixels(source))) << width << " x " << height;
    }
}

TEST(CVQDIBAssignment, TakesFlagsShadowAndSpareWord)
{
    CVQDIB source(2, 2);
    CVQDIB target(2, 2);
    Access::flags(source) = 1;
    Access::shadowColour(source) = 0x00AABBCC;
    Access::spareWord(source) = 77;
    Access::shadowX(source) = -2;
    Access::shadowY(source) = 5;

    target = source;

    EXPECT_EQ(Access::flags(target), 1u);
    EXPECT_EQ(Access::shadowColour(target), 0x00AABBCCu);
    EXPECT_EQ(Access::spareWord(target), 77u);
    EXPECT_EQ(Access::shadowX(target), -2);
    EXPECT_EQ(Access::shadowY(target), 5);
}

TEST(CVQDIBAssignment, AppliesTheNewFlagsToTheGraphics)
{
    CVQDIB source(2, 2);
    CVQDIB target(2, 2);
    source.EnableAntialias(false);

    target = source;

    EXPECT_FALSE(target.IsEnableAntialias());
    EXPECT_EQ(target.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeNone);
}

TEST(CVQDIBAssignment, LeavesFontCursorAndTextColour)
{
    CVQDIB source(2, 2);
    CVQDIB target(2, 2);
    Access::font(source).lfHeight = -99;
    Access::font(target).lfHeight = -11;
    Access::printX(source) = Access::printY(source) = 50;
    Access::printX(target) = 3;
    Access::printY(target) = 4;
    Access::textBrush(source)->SetColor(Gdiplus::Color(0xFF00FF00));
    Gdiplus::SolidBrush* brush = Access::textBrush(target);

    target = source;

    EXPECT_EQ(Access::font(target).lfHeight, -11);
    EXPECT_EQ(Access::printX(target), 3);
    EXPECT_EQ(Access::printY(target), 4);
    EXPECT_EQ(Access::textBrush(target), brush);
    Gdiplus::Color colour(0);
    EXPECT_EQ(brush->GetColor(&colour), Gdiplus::Ok);
    EXPECT_EQ(colour.GetValue(), 0xFFFFFFFFu);
}

TEST(CVQDIBAssignment, FromItselfChangesNothing)
{
    CVQDIB image(4, 3);
    fillRandom(image, 2);
    const Pixels before = pixels(image);
    const ULONG* buffer = image.GetImageBuffer();
    Gdiplus::Graphics* graphics = image.GetGraphics();
    CVQDIB& sameImage = image;

    image = sameImage;

    EXPECT_TRUE(shows(image, before));
    EXPECT_EQ(image.GetImageBuffer(), buffer);
    EXPECT_EQ(image.GetGraphics(), graphics);
}

TEST(CVQDIBAssignment, FromItselfLeavesAnEmptyImageEmpty)
{
    CVQDIB image(static_cast<CVQDIB*>(nullptr));
    CVQDIB& sameImage = image;

    image = sameImage;

    EXPECT_EQ(image.GetImageBuffer(), nullptr);
    EXPECT_EQ(image.GetWidth(), 0);
}

TEST(CVQDIBAssignment, FromAnEmptyImageGivesOneClearedPixel)
{
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    Access::flags(empty) = 4;
    CVQDIB target(5, 5);
    fillRandom(target, 3);

    target = empty;

    EXPECT_EQ(target.GetWidth(), 1);
    EXPECT_EQ(target.GetHeight(), 1);
    EXPECT_TRUE(shows(target, {0}));
    EXPECT_EQ(Access::flags(target), 4u);
}

TEST(CVQDIBAssignment, ToAnEmptyImageMakesIt)
{
    CVQDIB source(2, 3);
    fillRandom(source, 4);
    CVQDIB target(static_cast<CVQDIB*>(nullptr));

    target = source;

    EXPECT_TRUE(shows(target, pixels(source)));
    EXPECT_EQ(target.GetHeight(), 3);
}

TEST(CVQDIBAssignment, WithoutMemoryLeavesTheTargetEmpty)
{
    CVQDIB source(2, 3);
    CVQDIB target(4, 4);
    {
        const vq::platform::ScopedAllocationFailure memoryIsShort;
        target = source;
    }

    EXPECT_EQ(target.GetImageBuffer(), nullptr);
    EXPECT_EQ(target.GetGraphics(), nullptr);
    EXPECT_EQ(target.GetWidth(), 0);
    EXPECT_EQ(target.GetSize(), 0);
    EXPECT_EQ(source.GetWidth(), 2);
}

} // namespace
} // namespace vq::test
