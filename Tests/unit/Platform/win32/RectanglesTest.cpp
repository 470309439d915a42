// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <gmock/gmock.h>
#include <limits>
#include <ostream>

namespace vq::test::rectanglesTests {
namespace {

constexpr LONG kMost = std::numeric_limits<LONG>::max();
constexpr LONG kLeast = std::numeric_limits<LONG>::min();
constexpr RECT kSquare{0, 0, 10, 10};
constexpr RECT kThin{3, 3, 3, 9}; // no width
constexpr RECT kUntouched{7, 7, 7, 7};

::testing::Matcher<const RECT&> Is(const RECT& rect)
{
    return ::testing::AllOf(
        ::testing::Field("left", &RECT::left, rect.left), ::testing::Field("top", &RECT::top, rect.top),
        ::testing::Field("right", &RECT::right, rect.right), ::testing::Field("bottom", &RECT::bottom, rect.bottom));
}

TEST(Rectangles, AreSetCopiedAndEmptied)
{
    RECT rect = kUntouched;
    EXPECT_TRUE(SetRect(&rect, 1, 2, 3, 4));
    EXPECT_THAT(rect, Is({1, 2, 3, 4}));

    RECT copy{};
    EXPECT_TRUE(CopyRect(&copy, &rect));
    EXPECT_TRUE(EqualRect(&copy, &rect));

    EXPECT_TRUE(SetRectEmpty(&rect));
    EXPECT_THAT(rect, Is({0, 0, 0, 0}));
    EXPECT_FALSE(EqualRect(&copy, &rect));
}

TEST(Rectangles, GrowOnAllSidesAndMove)
{
    RECT rect{1, 2, 3, 4};
    EXPECT_TRUE(InflateRect(&rect, 10, -1));
    EXPECT_THAT(rect, Is({-9, 3, 13, 3}));
    EXPECT_TRUE(OffsetRect(&rect, 9, -3));
    EXPECT_THAT(rect, Is({0, 0, 22, 0}));
}

TEST(Rectangles, WrapRoundBeyond32Bits)
{
    RECT rect{kMost, 0, kMost, 0};
    InflateRect(&rect, 1, -1);
    EXPECT_THAT(rect, Is({kMost - 1, 1, kLeast, -1}));

    OffsetRect(&rect, kLeast, 0);
    EXPECT_THAT(rect, Is({-2, 1, 0, -1}));
}

TEST(Rectangles, AreEmptyWithoutWidthOrHeight)
{
    const RECT reversed{5, 5, 4, 9};
    EXPECT_TRUE(IsRectEmpty(&kThin));
    EXPECT_TRUE(IsRectEmpty(&reversed));
    EXPECT_TRUE(IsRectEmpty(nullptr));
    EXPECT_FALSE(IsRectEmpty(&kSquare));
}

TEST(Rectangles, HoldTheirLeftAndTopEdgesOnly)
{
    EXPECT_TRUE(PtInRect(&kSquare, {0, 0}));
    EXPECT_TRUE(PtInRect(&kSquare, {9, 9}));
    EXPECT_FALSE(PtInRect(&kSquare, {10, 5}));
    EXPECT_FALSE(PtInRect(&kSquare, {5, 10}));
    EXPECT_FALSE(PtInRect(&kSquare, {-1, 5}));
    EXPECT_FALSE(PtInRect(nullptr, {0, 0}));
}

TEST(IntersectRect, GivesTheCommonPart)
{
    const RECT other{5, -5, 20, 20};
    RECT common = kUntouched;
    EXPECT_TRUE(IntersectRect(&common, &kSquare, &other));
    EXPECT_THAT(common, Is({5, 0, 10, 10}));
}

TEST(IntersectRect, GivesZerosWhereNothingIsShared)
{
    const RECT beside{10, 0, 20, 10};
    RECT common = kUntouched;
    EXPECT_FALSE(IntersectRect(&common, &kSquare, &beside));
    EXPECT_THAT(common, Is({0, 0, 0, 0}));

    common = kUntouched;
    EXPECT_FALSE(IntersectRect(&common, &kSquare, &kThin));
    EXPECT_THAT(common, Is({0, 0, 0, 0}));
}

TEST(UnionRect, SurroundsBothAndPassesOverEmptyOnes)
{
    const RECT other{20, -3, 25, 4};
    RECT all = kUntouched;
    EXPECT_TRUE(UnionRect(&all, &kSquare, &other));
    EXPECT_THAT(all, Is({0, -3, 25, 10}));
    EXPECT_TRUE(UnionRect(&all, &kThin, &kSquare));
    EXPECT_THAT(all, Is(kSquare));
    EXPECT_TRUE(UnionRect(&all, &kSquare, &kThin));
    EXPECT_THAT(all, Is(kSquare));
    EXPECT_FALSE(UnionRect(&all, &kThin, &kThin));
    EXPECT_THAT(all, Is({0, 0, 0, 0}));
}

TEST(SubtractRect, TakesAwayWholeSidesOnly)
{
    struct Case
    {
        RECT taken;
        RECT rest;
    };
    constexpr Case kCases[]{
        {{5, 0, 20, 10}, {0, 0, 5, 10}},   // right side
        {{-5, -1, 3, 11}, {3, 0, 10, 10}}, // left side
        {{-1, -1, 11, 7}, {0, 7, 10, 10}}, // top
        {{0, 6, 10, 12}, {0, 0, 10, 6}},   // bottom
        {{2, 2, 4, 4}, {0, 0, 10, 10}},    // a hole
        {{-1, 3, 11, 7}, {0, 0, 10, 10}},  // a band across
        {{4, -1, 7, 17}, {0, 0, 10, 10}},  // a band down
        {{5, 5, 20, 20}, {0, 0, 10, 10}},  // a corner
        {{30, 0, 40, 10}, {0, 0, 10, 10}}, // elsewhere
    };
    for (const Case& c : kCases) {
        RECT rest = kUntouched;
        EXPECT_TRUE(SubtractRect(&rest, &kSquare, &c.taken));
        EXPECT_THAT(rest, Is(c.rest));
    }
}

TEST(SubtractRect, LeavesZerosWhenNothingRemains)
{
    RECT rest = kUntouched;
    EXPECT_FALSE(SubtractRect(&rest, &kSquare, &kSquare));
    EXPECT_THAT(rest, Is({0, 0, 0, 0}));
    rest = kUntouched;
    EXPECT_FALSE(SubtractRect(&rest, &kThin, &kSquare));
    EXPECT_THAT(rest, Is({0, 0, 0, 0}));
}

TEST(Rectangles, RefuseNullWithoutHarm)
{
    RECT rect = kUntouched;
    EXPECT_FALSE(SetRect(nullptr, 1, 1, 1, 1));
    EXPECT_FALSE(SetRectEmpty(nullptr));
    EXPECT_FALSE(CopyRect(nullptr, &rect));
    EXPECT_FALSE(CopyRect(&rect, nullptr));
    EXPECT_FALSE(OffsetRect(nullptr, 1, 1));
    EXPECT_FALSE(InflateRect(nullptr, 1, 1));
    EXPECT_FALSE(IntersectRect(&rect, nullptr, &rect));
    EXPECT_FALSE(UnionRect(nullptr, &rect, &rect));
    EXPECT_FALSE(SubtractRect(nullptr, &rect, &rect));
    EXPECT_FALSE(EqualRect(nullptr, &rect));
    EXPECT_THAT(rect, Is(kUntouched));
}

} // namespace
} // namespace vq::test::rectanglesTests
