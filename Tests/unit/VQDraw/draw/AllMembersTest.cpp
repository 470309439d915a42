// SPDX-License-Identifier: MIT
// What holds for every member that draws.
#include "AllMembers.h"
#include "DrawnImage.h"
#include "parity/KnownDifferences.h"
#include "support/ImageAccess.h"

namespace vq::test {
namespace {

using Access = VQTestAccess;

constexpr LONG kWidth = 41;
constexpr LONG kHeight = 31;
constexpr Corners kBox{8, 6, 32, 24};

TEST(EveryDrawingMember, LeavesAnEmptyImageAlone)
{
    for (const Member& member : kAllMembers) {
        CVQDIB image(4, 3);
        Access::destroy(image);

        member.draw(image, kBox);

        EXPECT_EQ(image.GetImageBuffer(), nullptr) << member.name;
        EXPECT_EQ(image.GetGraphics(), nullptr) << member.name;
        EXPECT_EQ(Access::flags(image), 6u) << member.name;
    }
}

TEST(EveryDrawingMember, DrawsSomething)
{
    for (const Member& member : kAllMembers) {
        SmoothImage smooth(kWidth, kHeight);
        member.draw(smooth, kBox);
        EXPECT_GT(findDrawn(smooth).count, 0) << member.name;

        HardImage hard(kWidth, kHeight);
        member.draw(hard, kBox);
        EXPECT_GT(findDrawn(hard).count, 0) << member.name;
    }
}

TEST(EveryDrawingMember, KeepsTheGraphicsSettings)
{
    for (const Member& member : kAllMembers)
        for (const bool smooth : {false, true}) {
            SmoothImage image(kWidth, kHeight);
            image.EnableAntialias(smooth);

            member.draw(image, kBox);

            const Gdiplus::Graphics& graphics = *image.GetGraphics();
            EXPECT_EQ(image.IsEnableAntialias(), smooth) << member.name;
            EXPECT_EQ(graphics.GetSmoothingMode(),
                      smooth ? Gdiplus::SmoothingModeAntiAlias : Gdiplus::SmoothingModeNone)
                << member.name;
            EXPECT_EQ(graphics.GetCompositingMode(), Gdiplus::CompositingModeSourceOver) << member.name;
            EXPECT_EQ(graphics.GetCompositingQuality(), Gdiplus::CompositingQualityDefault) << member.name;
            EXPECT_EQ(graphics.GetLastStatus(), Gdiplus::Ok) << member.name;
        }
}

/// A graphics whose device context is out refuses to draw.
TEST(EveryDrawingMember, LeavesARefusalInTheGraphics)
{
    for (const Member& member : kAllMembers) {
        SmoothImage image(kWidth, kHeight);
        const HDC lent = image.GetGraphics()->GetHDC();
        member.draw(image, kBox);
        image.GetGraphics()->ReleaseHDC(lent);

        EXPECT_EQ(image.GetGraphics()->GetLastStatus(), Gdiplus::ObjectBusy) << member.name;
        const bool hasText = std::string_view(member.name) == "DrawSelection";
        if (!hasText || !differsHere("text while a context is lent")) {
            EXPECT_EQ(findDrawn(image).count, 0) << member.name;
        }

        member.draw(image, kBox);
        EXPECT_GT(findDrawn(image).count, 0) << member.name << " goes on after a refusal";
    }
}

TEST(EveryDrawingMember, TakesItsBoxByAnyTwoCorners)
{
    for (const Member& member : kAllMembers) {
        if (member.extent == Extent::WholeImage || member.mirrors != Mirrors::Exactly)
            continue;
        const std::string_view name = member.name;
        if (name.starts_with("LineH") || name.starts_with("LineV") || name.ends_with("radius"))
            continue; // they use one of the corners
        HardImage image(kWidth, kHeight);
        member.draw(image, kBox);
        HardImage opposite(kWidth, kHeight);
        member.draw(opposite, {kBox.x2, kBox.y2, kBox.x1, kBox.y1});
        EXPECT_TRUE(showsTheSame(opposite, image)) << member.name << '\n' << drawn(opposite) << drawn(image);
    }
}

/// Nothing but what the pen's width and the half pixel of smooth edges reach.
TEST(EveryDrawingMember, StaysInItsBox)
{
    for (const Member& member : kAllMembers) {
        if (member.extent == Extent::WholeImage || std::string_view(member.name).ends_with("radius"))
            continue;
        const LONG beyond = member.extent == Extent::Box ? 0 : 4;
        for (const bool smooth : {false, true}) {
            SmoothImage image(kWidth, kHeight);
            image.EnableAntialias(smooth);
            member.draw(image, kBox);
            const Found found = findDrawn(image);
            EXPECT_GE(found.left, kBox.x1 - beyond) << member.name;
            EXPECT_GE(found.top, kBox.y1 - beyond) << member.name;
            EXPECT_LE(found.right, kBox.x2 + beyond) << member.name;
            EXPECT_LE(found.bottom, kBox.y2 + beyond) << member.name;
        }
    }
}

/// Smooth coverage knows no direction.
TEST(EveryDrawingMember, DrawsMirroredInputMirrored)
{
    if (differsHere("smoothed outlines"))
        return;
    for (const Member& member : kAllMembers) {
        if (member.mirrors != Mirrors::Exactly || std::string_view(member.name) == "FillRect")
            continue; // fills with hard edges have their left edges inside and their right ones outside
        SmoothImage image(kWidth, kHeight);
        member.draw(image, kBox);
        SmoothImage mirrored(kWidth, kHeight);
        member.draw(mirrored, {kWidth - 1 - kBox.x1, kBox.y1, kWidth - 1 - kBox.x2, kBox.y2});
        for (LONG y = 0; y < kHeight; ++y)
            for (LONG x = 0; x < kWidth; ++x)
                ASSERT_TRUE(isNear(mirrored(kWidth - 1 - x, y), image(x, y), 2))
                    << member.name << " at " << x << ", " << y;
    }
}

/// The low 8 bits of an alpha count: 384 is 128.
TEST(DrawingMembers, TakeTheLowBitsOfAnAlpha)
{
    HardImage image(12, 3);
    image.LineH(0, 2, 1, kRed, 384);
    image.LineStipple(4, 1, 6, 1, 256 + 255, 0, 0, 384);
    image.FillRect(CRect(8, 1, 10, 2), kRed | 0x7F000000, 384 - 512);

    EXPECT_EQ(at(image, 1, 1), 0x80FF0000u);
    EXPECT_EQ(at(image, 4, 1), 0x80FF0000u);
    EXPECT_EQ(at(image, 9, 1), 0x80FF0000u);
}

TEST(DrawingMembers, BlendByAlpha)
{
    HardImage image(9, 3, 0xFF000000);
    image.LineH(0, 2, 1, kRed, 128);
    image.FillRect(CRect(4, 1, 6, 2), kRed, 128);

    EXPECT_TRUE(isNear(at(image, 1, 1), 0xFF800000, 1));
    EXPECT_TRUE(isNear(at(image, 4, 1), 0xFF800000, 1));
}

TEST(DrawingMembers, OfAlphaZeroChangeNothing)
{
    HardImage image(20, 20, 0x40123456);
    CRect rect(2, 2, 12, 12);
    CPoint triangle[] = {{1, 1}, {11, 1}, {1, 11}};
    image.Line(0, 0, 19, 19, kRed, 0, 3, true);
    image.DrawRect(rect, kRed, 0);
    image.FillRect(rect, kRed, LONG{0});
    image.FillRgn(triangle, 3, kRed, 0);
    image.FillCircle(rect, kRed, BYTE{0});

    EXPECT_EQ(find(image, 0x40123456).count, 400);
}

} // namespace
} // namespace vq::test
