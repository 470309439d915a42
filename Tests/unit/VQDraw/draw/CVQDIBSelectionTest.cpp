// SPDX-License-Identifier: MIT
#include "DrawnImage.h"
#include "parity/KnownDifferences.h"
#include "support/ImageAccess.h"

#include <string>

namespace vq::test {
namespace {

using Access = VQTestAccess;

constexpr COLORREF kWhite = RGB(255, 255, 255);
constexpr ULONG kBlack = 0xFF000000;
constexpr ULONG kWhitePixel = 0xFFFFFFFF;

void select(CVQDIB& image, CPoint p1, CPoint p2, LONG alpha = 64, bool guides = false)
{
    image.DrawSelection(p1, p2, kBlue, alpha, guides);
}

/// Black, with hard edges, on which labels cannot be seen.
class Unlabelled : public HardImage
{
public:
    Unlabelled(int width, int height) : HardImage(width, height, kBlack)
    {
        Access::textBrush(*this)->SetColor(Gdiplus::Color(0));
    }
};

TEST(Selection, HasTicksOfSixPixelsAtItsCorners)
{
    Unlabelled image(50, 40);
    select(image, {10, 8}, {40, 32});
    for (LONG i = 0; i <= 5; ++i) {
        EXPECT_EQ(at(image, 10 + i, 8), kWhitePixel) << i;
        EXPECT_EQ(at(image, 10, 8 + i), kWhitePixel) << i;
        EXPECT_EQ(at(image, 40 - i, 8), kWhitePixel) << i;
        EXPECT_EQ(at(image, 40, 8 + i), kWhitePixel) << i;
        EXPECT_EQ(at(image, 10 + i, 32), kWhitePixel) << i;
        EXPECT_EQ(at(image, 10, 32 - i), kWhitePixel) << i;
        EXPECT_EQ(at(image, 40 - i, 32), kWhitePixel) << i;
        EXPECT_EQ(at(image, 40, 32 - i), kWhitePixel) << i;
    }
    EXPECT_EQ(find(image, kWhitePixel).count, 4 * 11);
}

TEST(Selection, IsFilledAndDashed)
{
    Unlabelled image(50, 40);
    select(image, {10, 8}, {40, 32}, 64);
    EXPECT_TRUE(isNear(at(image, 25, 20), 0xFF000040, 1));
    const LONG dashes[] = {16, 18, 19, 20, 22, 23, 24}; // three pixels of four from column 10 on
    for (const LONG x : dashes) {
        EXPECT_TRUE(isNear(at(image, x, 8), 0xFF8080A0, 2)) << x;  // white over the fill
        EXPECT_TRUE(isNear(at(image, x, 32), 0xFF808080, 2)) << x; // the fill ends above
    }
    for (const LONG x : {LONG{17}, LONG{21}, LONG{25}}) {
        EXPECT_TRUE(isNear(at(image, x, 8), 0xFF000040, 1)) << x;
        EXPECT_EQ(at(image, x, 32), kBlack) << x;
    }
    for (const LONG y : {LONG{14}, LONG{16}, LONG{17}, LONG{18}, LONG{20}})
        EXPECT_TRUE(isNear(at(image, 40, y), 0xFF808080, 2)) << y;
    EXPECT_EQ(at(image, 40, 15), kBlack);
}

TEST(Selection, HasGuidesOnlyWhenAskedFor)
{
    Unlabelled without(50, 40);
    select(without, {10, 8}, {40, 32});
    EXPECT_EQ(findIf(without, [](ULONG pixel) { return pixel != kBlack; }), (Found{10, 8, 40, 32, 31 * 25 - 5 - 3}))
        << "its box, but for the gaps of the lower and the right edge";

    Unlabelled with(50, 40);
    select(with, {10, 8}, {40, 32}, 64, true);
    for (const LONG x : {LONG{0}, LONG{5}, LONG{45}, LONG{49}})
        for (const LONG y : {LONG{8}, LONG{32}})
            EXPECT_TRUE(isNear(at(with, x, y), 0xFF202020, 1)) << x << ", " << y;
    for (const LONG y : {LONG{0}, LONG{5}, LONG{35}, LONG{39}})
        for (const LONG x : {LONG{10}, LONG{40}})
            EXPECT_TRUE(isNear(at(with, x, y), 0xFF202020, 1)) << x << ", " << y;
    EXPECT_EQ(at(with, 5, 5), kBlack);
}

TEST(Selection, IsTheSameFromEveryCorner)
{
    SmoothImage expected(120, 90, kBlack);
    CPoint p1(20, 30);
    CPoint p2(100, 80);
    expected.DrawSelection(p1, p2, kBlue, 64, true);
    for (auto [first, second] : {std::pair(CPoint(100, 80), CPoint(20, 30)), std::pair(CPoint(100, 30), CPoint(20, 80)),
                                 std::pair(CPoint(20, 80), CPoint(100, 30))}) {
        SmoothImage image(120, 90, kBlack);
        const CPoint before = first;
        image.DrawSelection(first, second, kBlue, 64, true);
        EXPECT_TRUE(showsTheSame(image, expected));
        EXPECT_EQ(first, before) << "the points stay";
    }
}

struct Label
{
    const wchar_t* text;
    LONG x, y;
};

/// A selection equals one without labels over the labels given.
void expectLabels(CPoint p1, CPoint p2, const std::vector<Label>& labels, int width = 200, int height = 120)
{
    HardImage image(width, height, kBlack);
    select(image, p1, p2);
    HardImage expected(width, height, kBlack);
    for (const Label& label : labels)
        expected.TextOutW(label.x, label.y, label.text);
    Access::textBrush(expected)->SetColor(Gdiplus::Color(0));
    select(expected, p1, p2);
    EXPECT_TRUE(showsTheSame(image, expected));
}

CSize sizeOf(const wchar_t* text)
{
    HardImage image(1, 1);
    return image.GetTextSize(text);
}

TEST(SelectionLabels, StandAboveAndAtTheRight)
{
    const CSize wide = sizeOf(L"100");
    const CSize high = sizeOf(L"60");
    ASSERT_GT(wide.cx, 0);
    ASSERT_LT(wide.cx, 100);
    ASSERT_LT(high.cy, 38);
    expectLabels({30, 40}, {130, 100},
                 {{L"100", 30 + (100 - wide.cx) / 2, 40 - wide.cy - 2}, {L"60", 132, 40 + (60 - high.cy) / 2}});
}

TEST(SelectionLabels, MoveInsideAtTheEdgesOfTheImage)
{
    const CSize wide = sizeOf(L"100");
    const CSize high = sizeOf(L"60");
    expectLabels({30, 1}, {130, 61}, {{L"100", 30 + (100 - wide.cx) / 2, 1 + 4}, {L"60", 132, 1 + (60 - high.cy) / 2}});
    expectLabels(
        {95, 40}, {195, 100},
        {{L"100", 95 + (100 - wide.cx) / 2, 40 - wide.cy - 2}, {L"60", 195 - high.cx - 2, 40 + (60 - high.cy) / 2}});
}

TEST(SelectionLabels, AreLeftOutWhereThereIsNoRoom)
{
    const CSize one = sizeOf(L"1");
    ASSERT_GT(one.cx, 1);
    expectLabels({30, 40}, {31, 41}, {});
    expectLabels({30, 40}, {30, 40}, {});
    const CSize high = sizeOf(L"60");
    expectLabels({30, 40}, {31, 100}, {{L"60", 33, 40 + (60 - high.cy) / 2}});
    const CSize wide = sizeOf(L"100");
    expectLabels({30, 40}, {130, 41}, {{L"100", 30 + (100 - wide.cx) / 2, 40 - wide.cy - 2}});
}

/// The first number of pixels from 5 on that is as long as its own text.
LONG asWideAsItsText(LONG CSize::*side)
{
    for (LONG i = 5; i < 100; ++i)
        if (sizeOf(std::to_wstring(i).c_str()).*side == i)
            return i;
    return 0;
}

TEST(SelectionLabels, NeedMoreRoomThanTheyTake)
{
    const LONG width = asWideAsItsText(&CSize::cx);
    const LONG height = asWideAsItsText(&CSize::cy);
    ASSERT_GT(height, 0);
    if (width > 0) {
        expectLabels({30, 40}, {30 + width, 41}, {});
    }
    expectLabels({30, 40}, {31, 40 + height}, {});
    const std::wstring taller = std::to_wstring(height + 1);
    expectLabels({30, 40}, {31, 41 + height}, {{taller.c_str(), 33, 40}});
}

TEST(SelectionLabels, StayOutsideDownToTheVeryEdgesOfTheImage)
{
    const CSize wide = sizeOf(L"100");
    const CSize high = sizeOf(L"60");
    const LONG top = wide.cy + 2;
    const LONG down = (60 - high.cy) / 2;
    const LONG across = 30 + (100 - wide.cx) / 2;
    const int width = 132 + high.cx;
    expectLabels({30, top}, {130, top + 60}, {{L"100", across, 0}, {L"60", 132, top + down}}, width + 1);
    expectLabels({30, top - 1}, {130, top + 59}, {{L"100", across, top + 3}, {L"60", 132, top - 1 + down}}, width + 1);
    expectLabels({30, top}, {130, top + 60}, {{L"100", across, 0}, {L"60", 128 - high.cx, top + down}}, width);
}

TEST(SelectionLabels, LieBelowTheFill)
{
    HardImage image(200, 120, kBlack);
    select(image, {30, 1}, {130, 61}, 255); // its width label is inside
    for (LONG y = 2; y <= 60; ++y)
        for (LONG x = 31; x <= 129; ++x)
            ASSERT_EQ(at(image, x, y), kBluePixel) << x << ", " << y;
}

TEST(CircleSelection, IsCalledThroughItsSlot)
{
    EXPECT_EQ(CVQDIB::DrawCircleSelection, Access::circleSelectionDefault());
    HardImage expected(60, 60);
    CVQDIB::DrawCircleSelection(&expected, 30, 30, 42, 39, kBlue, 64);
    EXPECT_GT(findDrawn(expected).count, 600);
    for (CVQDIB::CircleRoutine* const routine : {Access::circleSelectionDefault(), Access::circleSelectionSse2()}) {
        HardImage image(60, 60);
        routine(&image, 30, 30, 42, 39, kBlue, 64);
        EXPECT_TRUE(showsTheSame(image, expected));
    }
}

TEST(CircleSelection, FillsADiscOfTheWholeRadius)
{
    HardImage image(60, 60);
    CVQDIB::DrawCircleSelection(&image, 30, 30, 42, 39, kBlue, 64); // 15
    EXPECT_EQ(at(image, 30, 20), 0x400000FFu);
    EXPECT_EQ(at(image, 22, 34), 0x400000FFu);
    const Found found = findDrawn(image);
    EXPECT_NEAR(found.left, 15, 1);
    EXPECT_NEAR(found.top, 15, 1);
    EXPECT_NEAR(found.right, 45, 1);
    EXPECT_NEAR(found.bottom, 45, 1);
    EXPECT_NEAR(found.count, 3.14159 * 15 * 15, 60);
}

TEST(CircleSelection, HasASquareHandleAtBothEnds)
{
    HardImage image(60, 60);
    CVQDIB::DrawCircleSelection(&image, 20, 30, 40, 30, kBlue, 100);
    constexpr ULONG kLine = 0x84FFFFFF; // 32 more
    for (LONG i = -2; i <= 2; ++i)
        EXPECT_EQ(at(image, 42, 30 + i), kLine) << i;
    for (const LONG y : {LONG{28}, LONG{32}})
        EXPECT_EQ(at(image, 41, y), kLine);
    EXPECT_NE(at(image, 18, 28), at(image, 17, 28)) << "the handle over the fill";
    EXPECT_EQ(at(image, 18, 28), at(image, 22, 32));
    EXPECT_EQ(at(image, 19, 29), 0x640000FFu) << "open inside";
    EXPECT_EQ(at(image, 30, 30), at(image, 18, 28)) << "the radius has the colour of the handles";
    EXPECT_EQ(at(image, 30, 31), 0x640000FFu);
}

TEST(CircleSelection, LimitsTheAlphaOfItsLines)
{
    for (const LONG alpha : {LONG{223}, LONG{240}, LONG{255}, LONG{1000}, std::numeric_limits<LONG>::max()}) {
        HardImage image(60, 60);
        CVQDIB::DrawCircleSelection(&image, 20, 30, 40, 30, kBlue, alpha);
        EXPECT_EQ(at(image, 42, 30), kWhitePixel) << alpha;
        EXPECT_EQ(at(image, 18, 28), kWhitePixel) << alpha;
        EXPECT_EQ(at(image, 30, 30), kWhitePixel) << alpha;
    }
    for (const LONG alpha : {LONG{-32}, LONG{-256}, std::numeric_limits<LONG>::min()}) {
        HardImage image(60, 60);
        CVQDIB::DrawCircleSelection(&image, 20, 30, 40, 30, kBlue, alpha);
        EXPECT_EQ(at(image, 42, 30), 0u) << alpha;
    }
    HardImage image(60, 60);
    CVQDIB::DrawCircleSelection(&image, 20, 30, 40, 30, kBlue, -22);
    EXPECT_EQ(at(image, 42, 30), 0x0AFFFFFFu);
    EXPECT_EQ(at(image, 30, 25), 0xEA0000FFu) << "the fill takes the low 8 bits";
}

TEST(CircleSelection, HasADashedOutline)
{
    HardImage image(120, 120);
    CVQDIB::DrawCircleSelection(&image, 60, 60, 100, 60, kBlue, 0);
    const int handlesAndRadius = 2 * 16 + 41 - 4;
    const double outline = findDrawn(image).count - handlesAndRadius;
    EXPECT_NEAR(outline, 0.4 * 228, 20); // a thin circle of radius 40 has about 228 pixels
}

TEST(CircleSelection, OfNoImageIsHarmless)
{
    CVQDIB::DrawCircleSelection(nullptr, 1, 2, 3, 4, kBlue, 64);
}

TEST(LineHSSE2, DrawsNothing)
{
    HardImage image(10, 10);
    CVQDIB::LineHSSE2(&image, 1, 8, 5, kWhite, 255);
    CVQDIB::LineHSSE2(nullptr, 1, 8, 5, kWhite, 255);
    EXPECT_EQ(findDrawn(image).count, 0);
}

} // namespace
} // namespace vq::test
