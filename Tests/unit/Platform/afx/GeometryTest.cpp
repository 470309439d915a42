// SPDX-License-Identifier: MIT
#include "Platform/afx/Geometry.h"
#include "Platform/afx/Rect.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace vq::test::geometryTests {
namespace {

constexpr LONG kMost = std::numeric_limits<LONG>::max();
constexpr LONG kLeast = std::numeric_limits<LONG>::min();

TEST(CPointOperators, AddAndSubtract)
{
    const CPoint point(3, 4);

    EXPECT_EQ(point + CSize(1, 2), CPoint(4, 6));
    EXPECT_EQ(point - CSize(1, 2), CPoint(2, 2));
    EXPECT_EQ(point + CPoint(1, 2), CPoint(4, 6));
    EXPECT_EQ(point - CPoint(1, 1), CSize(2, 3)) << "two points differ by a size";
    EXPECT_EQ(-point, CPoint(-3, -4));
    CPoint changed(1, 1);
    changed += CSize(2, 3);
    changed -= CPoint(1, 1);
    changed.Offset(10, 20);
    EXPECT_EQ(changed, CPoint(12, 23));
    EXPECT_NE(changed, POINT(point));
}

TEST(CPointOperators, MoveRectangles)
{
    const CRect rect(0, 0, 2, 3);

    EXPECT_EQ(CPoint(5, 6) + &rect, CRect(5, 6, 7, 9));
    EXPECT_EQ(CPoint(5, 6) - &rect, CRect(-5, -6, -3, -3));
    EXPECT_EQ(CSize(5, 6) + &rect, CRect(5, 6, 7, 9));
    EXPECT_EQ(CSize(5, 6) - &rect, CRect(-5, -6, -3, -3));
}

TEST(CPointMaking, UnpacksSignedHalves)
{
    EXPECT_EQ(CPoint(LPARAM{0x0005FFFE}), CPoint(-2, 5));
    EXPECT_EQ(CSize(DWORD{0xFFFE0007}), CSize(7, -2));
    EXPECT_EQ(CPoint(SIZE{1, 2}), CPoint(1, 2));
    EXPECT_EQ(CPoint(), CPoint(0, 0));
}

TEST(CSizeOperators, AddAndSubtract)
{
    EXPECT_EQ(CSize(1, 2) + CSize(3, 4), CSize(4, 6));
    EXPECT_EQ(CSize(1, 2) - CSize(3, 4), CSize(-2, -2));
    EXPECT_EQ(-CSize(1, 2), CSize(-1, -2));
    EXPECT_EQ(CSize(1, 2) + CPoint(3, 4), CPoint(4, 6));
    EXPECT_EQ(CSize(5, 5) - CPoint(3, 4), CPoint(2, 1));
    CSize size;
    size.SetSize(2, 3);
    EXPECT_EQ(size, CSize(2, 3));
}

TEST(GeometryLimits, SumsWrapRound)
{
    EXPECT_EQ(CPoint(kMost, kLeast) + CSize(1, -1), CPoint(kLeast, kMost));
    EXPECT_EQ(-CSize(kLeast, 0), CSize(kLeast, 0));
    EXPECT_EQ(CRect(kLeast, 0, kMost, 0).Width(), -1);
    CRect rect(kMost, kLeast, 0, 0);
    rect.InflateRect(-1, 1);
    EXPECT_EQ(rect, CRect(kLeast, kMost, -1, 1));
}

TEST(CRectMaking, FromCornersSizesAndRecords)
{
    const RECT record{1, 2, 3, 4};

    EXPECT_EQ(CRect(), CRect(0, 0, 0, 0));
    EXPECT_EQ(CRect(record), CRect(1, 2, 3, 4));
    EXPECT_EQ(CRect(&record), record);
    EXPECT_EQ(CRect(CPoint(1, 2), CSize(2, 2)), record);
    EXPECT_EQ(CRect(CPoint(1, 2), CPoint(3, 4)), record);
}

TEST(CRectMeasures, AreThoseOfTheEdges)
{
    const CRect rect(1, 2, 6, 9);

    EXPECT_EQ(rect.Width(), 5);
    EXPECT_EQ(rect.Height(), 7);
    EXPECT_EQ(rect.Size(), CSize(5, 7));
    EXPECT_EQ(rect.CenterPoint(), CPoint(3, 5));
    EXPECT_EQ(CRect(-3, -3, 0, 0).CenterPoint(), CPoint(-1, -1));
    EXPECT_EQ(rect.TopLeft(), CPoint(1, 2));
    EXPECT_EQ(rect.BottomRight(), CPoint(6, 9));
}

TEST(CRectMeasures, CornersMayBeWritten)
{
    CRect rect(1, 2, 6, 9);

    rect.TopLeft() = CPoint(0, 1);
    rect.BottomRight().x += 10;
    rect.BottomRight().Offset(1, 1);

    EXPECT_EQ(rect, CRect(0, 1, 17, 10));
}

TEST(CRectQuestions, EmptyNullInside)
{
    EXPECT_TRUE(CRect(5, 5, 5, 9).IsRectEmpty());
    EXPECT_TRUE(CRect(5, 5, 4, 9).IsRectEmpty());
    EXPECT_FALSE(CRect(5, 5, 6, 6).IsRectEmpty());
    EXPECT_TRUE(CRect().IsRectNull());
    EXPECT_FALSE(CRect(1, 1, 1, 1).IsRectNull());
    const CRect rect(1, 1, 3, 3);
    EXPECT_TRUE(rect.PtInRect(CPoint(1, 1)));
    EXPECT_TRUE(rect.PtInRect(CPoint(2, 2)));
    EXPECT_FALSE(rect.PtInRect(CPoint(3, 2)));
    EXPECT_FALSE(rect.PtInRect(CPoint(2, 3)));
    EXPECT_FALSE(rect.PtInRect(CPoint(0, 2)));
    EXPECT_TRUE(rect.EqualRect(CRect(1, 1, 3, 3)));
}

TEST(CRectChanges, NormaliseExchangesReversedEdgesOnly)
{
    CRect rect(5, 6, 1, 2);
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(1, 2, 5, 6));
    rect.NormalizeRect();
    EXPECT_EQ(rect, CRect(1, 2, 5, 6));
    CRect half(5, 2, 1, 6);
    half.NormalizeRect();
    EXPECT_EQ(half, CRect(1, 2, 5, 6));
}

TEST(CRectChanges, InflateDeflateOffsetMove)
{
    CRect rect(10, 10, 20, 20);
    rect.InflateRect(1, 2);
    EXPECT_EQ(rect, CRect(9, 8, 21, 22));
    rect.DeflateRect(CSize(1, 2));
    EXPECT_EQ(rect, CRect(10, 10, 20, 20));
    rect.InflateRect(1, 2, 3, 4);
    EXPECT_EQ(rect, CRect(9, 8, 23, 24));
    rect.DeflateRect(CRect(1, 2, 3, 4));
    EXPECT_EQ(rect, CRect(10, 10, 20, 20));
    rect.OffsetRect(CPoint(1, -1));
    EXPECT_EQ(rect, CRect(11, 9, 21, 19));
    rect.MoveToXY(0, 100);
    EXPECT_EQ(rect, CRect(0, 100, 10, 110));
    rect.MoveToX(5);
    rect.MoveToY(6);
    EXPECT_EQ(rect, CRect(5, 6, 15, 16));
    rect.SetRectEmpty();
    EXPECT_TRUE(rect.IsRectNull());
    rect.SetRect(CPoint(1, 2), CPoint(3, 4));
    CRect copy;
    copy.CopyRect(rect);
    EXPECT_EQ(copy, CRect(1, 2, 3, 4));
}

TEST(CRectOperators, MoveAndInflate)
{
    CRect rect(0, 0, 10, 10);
    EXPECT_EQ(rect + CPoint(1, 2), CRect(1, 2, 11, 12));
    EXPECT_EQ(rect - CPoint(1, 2), CRect(-1, -2, 9, 8));
    EXPECT_EQ(rect + CSize(1, 2), CRect(1, 2, 11, 12));
    EXPECT_EQ(rect - CSize(1, 2), CRect(-1, -2, 9, 8));
    const CRect by(1, 2, 3, 4);
    EXPECT_EQ(rect + static_cast<LPCRECT>(by), CRect(-1, -2, 13, 14));
    EXPECT_EQ(rect - static_cast<LPCRECT>(by), CRect(1, 2, 7, 6));
    rect += CPoint(1, 1);
    rect -= CSize(2, 2);
    rect += static_cast<LPCRECT>(by);
    rect -= static_cast<LPCRECT>(by);
    EXPECT_EQ(rect, CRect(-1, -1, 9, 9));
}

TEST(CRectOperators, IntersectUniteSubtract)
{
    const CRect first(0, 0, 10, 10), second(5, 5, 20, 20);
    EXPECT_EQ(first & second, CRect(5, 5, 10, 10));
    EXPECT_EQ(first | second, CRect(0, 0, 20, 20));
    EXPECT_EQ(first & CRect(10, 0, 20, 10), CRect()) << "edges that touch have nothing in common";
    EXPECT_EQ(first | CRect(50, 50, 50, 60), first) << "an empty rectangle counts as nothing";
    CRect rect(first);
    rect &= second;
    EXPECT_EQ(rect, CRect(5, 5, 10, 10));
    rect |= CRect(0, 0, 1, 1);
    EXPECT_EQ(rect, CRect(0, 0, 10, 10));
    EXPECT_TRUE(rect.SubtractRect(first, CRect(0, 0, 4, 10)));
    EXPECT_EQ(rect, CRect(4, 0, 10, 10));
    EXPECT_TRUE(rect.SubtractRect(first, second)) << "the corner cannot be cut off";
    EXPECT_EQ(rect, first);
    EXPECT_FALSE(rect.IntersectRect(first, CRect(100, 100, 101, 101)));
}

TEST(CRectOperators, MulDivRoundsEachCoordinate)
{
    EXPECT_EQ(CRect(1, 2, 3, 5).MulDiv(3, 2), CRect(2, 3, 5, 8));
    EXPECT_EQ(CRect(1, 2, 3, 4).MulDiv(1, 0), CRect(-1, -1, -1, -1));
}

TEST(CRectConversion, ServesSystemCalls)
{
    CRect rect;
    ::SetRect(rect, 1, 2, 3, 4);
    EXPECT_TRUE(::EqualRect(rect, CRect(1, 2, 3, 4)));
    const std::vector<CPoint> points{CPoint(1, 2), CPoint(3, 4)};
    EXPECT_EQ(points[1], POINT(CPoint(3, 4)));
}

} // namespace
} // namespace vq::test::geometryTests
