// SPDX-License-Identifier: MIT
#include "ShapeAccess.h"

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace vq::test::cvqDragPolygonTests {
namespace {

using Data = VQTestAccess::ShapeData<CVQDragPolygon>;

std::vector<std::pair<LONG, LONG>> verticesOf(CVQDragPolygon& polygon)
{
    std::vector<std::pair<LONG, LONG>> vertices;
    for (std::uint64_t i = 0; i < polygon.GetPoints()->GetSize(); ++i)
        vertices.emplace_back(polygon.GetPoints()->GetAt(i).x, polygon.GetPoints()->GetAt(i).y);
    return vertices;
}
using Vertices = std::vector<std::pair<LONG, LONG>>;

void add(CVQDragPolygon& polygon, std::initializer_list<CPoint> points)
{
    for (CPoint point : points)
        polygon.AddPoint(point);
}

TEST(CVQDragPolygon, ShowsItsVerticesAndNoButtonAtFirst)
{
    CVQDragPolygon polygon;
    EXPECT_TRUE(Data::drawPoints(polygon));
    EXPECT_FALSE(polygon.CheckButtonPressed());
    EXPECT_EQ(polygon.GetCount(), 0u);
    polygon.SetDrawPoints(false);
    EXPECT_FALSE(Data::drawPoints(polygon));
    polygon.Reset();
    EXPECT_FALSE(Data::drawPoints(polygon)) << "that is no state of the drag";
}

TEST(CVQDragPolygon, GrowsWithEveryNewPosition)
{
    CVQDragPolygon polygon;
    CPoint point(10, 20);
    polygon.Start(point);
    polygon.Drag(point);
    EXPECT_EQ(polygon.GetCount(), 1u);
    point = {11, 20};
    polygon.Drag(point);
    polygon.Drag(point);
    EXPECT_EQ(verticesOf(polygon), (Vertices{{10, 20}, {11, 20}}));
    point = {10, 20};
    polygon.Drag(point);
    EXPECT_EQ(polygon.GetCount(), 3u) << "an earlier vertex is a new position";
}

TEST(CVQDragPolygon, DoesNotSelectByDraggingToItsEnd)
{
    CVQDragPolygon polygon;
    CPoint origin(0, 0);
    polygon.Drag(origin);
    EXPECT_FALSE(polygon.CheckSelection());
    EXPECT_EQ(polygon.GetCount(), 0u);
}

TEST(CVQDragPolygon, AddsPointsThatAreTheSame)
{
    CVQDragPolygon polygon;
    add(polygon, {{5, 6}, {5, 6}});
    EXPECT_EQ(polygon.GetCount(), 2u);
    EXPECT_EQ(polygon.GetEnd(), CPoint(5, 6));
    EXPECT_TRUE(polygon.CheckSelection());
    EXPECT_FALSE(polygon.CheckButtonPressed());
}

TEST(CVQDragPolygon, FollowsTheMouseWithoutAVertex)
{
    CVQDragPolygon polygon;
    CPoint point(5, 6);
    polygon.SetEnd(point);
    EXPECT_FALSE(polygon.CheckSelection());
    EXPECT_EQ(polygon.GetEnd(), point);
    EXPECT_EQ(polygon.GetCount(), 0u);
    polygon.Drag(point);
    EXPECT_EQ(polygon.GetCount(), 0u) << "it is the end already";
}

TEST(CVQDragPolygon, HoldsTheButtonFromStartToEnd)
{
    CVQDragPolygon polygon;
    CPoint point(5, 6);
    polygon.Start(point);
    EXPECT_TRUE(polygon.CheckButtonPressed());
    polygon.End();
    EXPECT_FALSE(polygon.CheckButtonPressed());
    polygon.SetButtonPressed(true);
    EXPECT_TRUE(polygon.CheckButtonPressed());
    polygon.Reset();
    EXPECT_FALSE(polygon.CheckButtonPressed());
}

TEST(CVQDragPolygon, StartsAnewWithOneVertex)
{
    CVQDragPolygon polygon;
    add(polygon, {{1, 1}, {2, 2}, {3, 3}});
    CPoint point(7, 8);
    polygon.Start(point);
    EXPECT_EQ(verticesOf(polygon), (Vertices{{7, 8}}));
    EXPECT_EQ(polygon.GetStart(), point);
    EXPECT_EQ(polygon.GetEnd(), point);
}

TEST(CVQDragPolygon, StartsAtOneOfItsOwnVertices)
{
    CVQDragPolygon polygon;
    add(polygon, {{1, 1}, {2, 2}});
    polygon.Start(polygon.GetPoints()->GetAt(1));
    EXPECT_EQ(verticesOf(polygon), (Vertices{{2, 2}}));
    polygon.AddPoint(polygon.GetPoints()->GetAt(0));
    EXPECT_EQ(verticesOf(polygon), (Vertices{{2, 2}, {2, 2}}));
}

TEST(CVQDragPolygon, HandsOutItsOwnVertices)
{
    CVQDragPolygon polygon;
    polygon.GetPoints()->SetAtGrow(0, CPoint(3, 4));
    EXPECT_EQ(polygon.GetCount(), 1u);
    EXPECT_EQ(polygon.GetStart(), CPoint(3, 4));
    EXPECT_EQ(polygon.GetPoints(), &Data::points(polygon));
}

TEST(CVQDragPolygon, MovesVerticesAndEnd)
{
    CVQDragPolygon polygon;
    add(polygon, {{1, 2}, {30, 40}});
    CPoint end(50, 60);
    polygon.SetEnd(end);
    polygon.Offset(10, -10);
    EXPECT_EQ(verticesOf(polygon), (Vertices{{11, -8}, {40, 30}}));
    EXPECT_EQ(polygon.GetEnd(), CPoint(60, 50));
    CPoint back(-10, 10);
    polygon.Offset(back);
    EXPECT_EQ(verticesOf(polygon), (Vertices{{1, 2}, {30, 40}}));
}

TEST(CVQDragPolygon, ComparesColumnsWithItsBottom)
{
    CVQDragPolygon polygon;
    add(polygon, {{0, 0}, {10, 5}, {4, 20}}); // 4 does not exceed 5
    EXPECT_EQ(polygon.GetRect(), CRect(0, 0, 10, 5));
    add(polygon, {{6, 30}}); // 6 does
    EXPECT_EQ(polygon.GetRect(), CRect(0, 0, 10, 30));
    add(polygon, {{31, 1}}); // and takes a smaller y
    EXPECT_EQ(polygon.GetRect(), CRect(0, 0, 31, 1));
}

TEST(CVQDragPolygon, NormalisesWhatItsBottomTurnsRound)
{
    CVQDragPolygon polygon;
    add(polygon, {{10, -20}, {-30, -10}}); // top -20; the bottom becomes -20, then -30 does not exceed it
    EXPECT_EQ(polygon.GetRect(), CRect(-30, -20, 10, -20));

    CVQDragPolygon distant;
    const int leastThatExceeds = -std::numeric_limits<int>::max();
    add(distant, {{leastThatExceeds, 7}}); // does not exceed the first bottom, which is that number
    EXPECT_EQ(distant.GetRect(), CRect(leastThatExceeds, leastThatExceeds, leastThatExceeds, 7));
}

TEST(CVQDragPolygon, LeavesTheEndOutOfItsRectangle)
{
    CVQDragPolygon polygon;
    add(polygon, {{1, 2}, {30, 40}});
    CPoint end(500, 600);
    polygon.SetEnd(end);
    EXPECT_EQ(polygon.GetRect(), CRect(1, 2, 30, 40));
}

TEST(CVQDragPolygon, HasTheWidestRectangleWithoutVertices)
{
    constexpr LONG kMost = std::numeric_limits<LONG>::max();
    EXPECT_EQ(CVQDragPolygon().GetRect(), CRect(-kMost, -kMost, kMost, kMost));
}

TEST(CVQDragPolygon, KeepsManyVertices)
{
    CVQDragPolygon polygon;
    CPoint point(0, 0);
    polygon.Start(point);
    for (int i = 1; i < 100000; ++i) {
        point = {i, i % 1000};
        polygon.Drag(point);
    }
    ASSERT_EQ(polygon.GetCount(), 100000u);
    const CVQDragPolygon copy(polygon);
    polygon.Reset();
    EXPECT_EQ(polygon.GetCount(), 0u);
    EXPECT_EQ(copy.GetCount(), 100000u);
    EXPECT_EQ(copy.GetRect().right, 99999);
}

} // namespace
} // namespace vq::test::cvqDragPolygonTests
