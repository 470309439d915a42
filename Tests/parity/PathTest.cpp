// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Paths.h"

#include <memory>

namespace vq::test {
namespace {

using namespace Gdiplus;

TEST(Path, StartsEmpty)
{
    const GraphicsPath path;
    EXPECT_EQ(path.GetLastStatus(), Ok);
    EXPECT_EQ(path.GetFillMode(), FillModeAlternate);
    EXPECT_EQ(path.GetPointCount(), 0);
    RectF bounds(1, 2, 3, 4);
    EXPECT_EQ(path.GetBounds(&bounds), Ok);
    EXPECT_TRUE(bounds.Equals(RectF(0, 0, 0, 0)));
    EXPECT_EQ(GraphicsPath(FillModeWinding).GetFillMode(), FillModeWinding);
}

TEST(Path, LinesFollowEachOther)
{
    GraphicsPath path;
    EXPECT_EQ(path.AddLine(1, 2, 3, 4), Ok);
    EXPECT_EQ(path.AddLine(5.0f, 6.0f, 7.0f, 8.0f), Ok);
    EXPECT_EQ(path.AddLine(Point(9, 10), Point(11, 12)), Ok);
    EXPECT_EQ(path.AddLine(PointF(13, 14), PointF(15, 16)), Ok);
    expectPoints(path, {{1, 2, kStart},
                        {3, 4, kLine},
                        {5, 6, kLine},
                        {7, 8, kLine},
                        {9, 10, kLine},
                        {11, 12, kLine},
                        {13, 14, kLine},
                        {15, 16, kLine}});
}

TEST(Path, LineFromTheLastPointAddsItsEndOnly)
{
    GraphicsPath path;
    path.AddLine(1, 2, 3, 4);
    path.AddLine(3, 4, 5, 6);
    const Point more[] = {{5, 6}, {7, 8}, {9, 9}};
    EXPECT_EQ(path.AddLines(more, 3), Ok);
    expectPoints(path, {{1, 2, kStart}, {3, 4, kLine}, {5, 6, kLine}, {7, 8, kLine}, {9, 9, kLine}});
}

TEST(Path, ArraysOfLines)
{
    const Point whole[] = {{1, 2}, {3, 4}, {5, 6}};
    const PointF real[] = {{7.5f, 8}, {9, 10.25f}};
    GraphicsPath path;
    EXPECT_EQ(path.AddLines(whole, 3), Ok);
    EXPECT_EQ(path.AddLines(real, 2), Ok);
    expectPoints(path, {{1, 2, kStart}, {3, 4, kLine}, {5, 6, kLine}, {7.5f, 8, kLine}, {9, 10.25f, kLine}});
    EXPECT_EQ(path.AddLines(whole, 0), InvalidParameter);
    EXPECT_EQ(path.AddLines(static_cast<const PointF*>(nullptr), 2), InvalidParameter);
    EXPECT_EQ(path.GetPointCount(), 5);
}

TEST(Path, ArrayOfOnePointStartsAFigure)
{
    const Point point[] = {{1, 2}};
    GraphicsPath path;
    EXPECT_EQ(path.AddLines(point, 1), Ok);
    path.AddLine(3, 4, 5, 6);
    expectPoints(path, {{1, 2, kStart}, {3, 4, kLine}, {5, 6, kLine}});
}

TEST(Path, FiguresAreStartedAndClosed)
{
    GraphicsPath path;
    path.AddLine(0, 0, 10, 0);
    EXPECT_EQ(path.StartFigure(), Ok);
    path.AddLine(0, 5, 10, 5);
    path.AddLine(10, 6, 0, 6);
    EXPECT_EQ(path.CloseFigure(), Ok);
    path.AddLine(0, 9, 10, 9);
    expectPoints(path, {{0, 0, kStart},
                        {10, 0, kLine},
                        {0, 5, kStart},
                        {10, 5, kLine},
                        {10, 6, kLine},
                        {0, 6, kLine | kClose},
                        {0, 9, kStart},
                        {10, 9, kLine}});
    EXPECT_EQ(path.CloseAllFigures(), Ok);
    const int last = differsHere("closing all figures") ? kLine : kLine | kClose;
    expectPoints(path, {{0, 0, kStart},
                        {10, 0, kLine | kClose},
                        {0, 5, kStart},
                        {10, 5, kLine},
                        {10, 6, kLine},
                        {0, 6, kLine | kClose},
                        {0, 9, kStart},
                        {10, 9, last}});
    path.AddLine(1, 1, 2, 2);
    EXPECT_EQ(pointsOf(path)[8].type, kStart);
}

TEST(Path, StartingAFigureTwiceAddsNothing)
{
    GraphicsPath path;
    EXPECT_EQ(path.StartFigure(), Ok);
    EXPECT_EQ(path.StartFigure(), Ok);
    EXPECT_EQ(path.CloseFigure(), Ok);
    EXPECT_EQ(path.CloseAllFigures(), Ok);
    EXPECT_EQ(path.GetPointCount(), 0);
    path.AddLine(1, 2, 3, 4);
    expectPoints(path, {{1, 2, kStart}, {3, 4, kLine}});
}

TEST(Path, RectangleIsAClosedFigureOfFourPoints)
{
    GraphicsPath path;
    EXPECT_EQ(path.AddRectangle(Rect(5, 6, 10, 20)), Ok);
    EXPECT_EQ(path.AddRectangle(RectF(1.5f, 2.5f, 3, 4)), Ok);
    expectPoints(path, {{5, 6, kStart},
                        {15, 6, kLine},
                        {15, 26, kLine},
                        {5, 26, kLine | kClose},
                        {1.5f, 2.5f, kStart},
                        {4.5f, 2.5f, kLine},
                        {4.5f, 6.5f, kLine},
                        {1.5f, 6.5f, kLine | kClose}});
}

TEST(Path, NegativeOrEmptyRectangleAddsNothing)
{
    GraphicsPath path;
    EXPECT_EQ(path.AddRectangle(Rect(5, 6, 0, 20)), Ok);
    EXPECT_EQ(path.AddRectangle(Rect(5, 6, 10, 0)), Ok);
    EXPECT_EQ(path.AddRectangle(RectF(5, 6, 0, 0)), Ok);
    EXPECT_EQ(path.AddRectangle(RectF(5, 6, -3, 4)), Ok);
    EXPECT_EQ(path.GetPointCount(), 0);
}

TEST(Path, PolygonIsClosed)
{
    const Point whole[] = {{1, 2}, {3, 4}, {5, 0}};
    const PointF real[] = {{1, 2}, {3, 4.5f}, {5, 0}, {2, 1}};
    GraphicsPath path;
    EXPECT_EQ(path.AddPolygon(whole, 3), Ok);
    EXPECT_EQ(path.AddPolygon(real, 4), Ok);
    path.AddLine(7, 7, 8, 8);
    expectPoints(path, {{1, 2, kStart},
                        {3, 4, kLine},
                        {5, 0, kLine | kClose},
                        {1, 2, kStart},
                        {3, 4.5f, kLine},
                        {5, 0, kLine},
                        {2, 1, kLine | kClose},
                        {7, 7, kStart},
                        {8, 8, kLine}});
}

TEST(Path, PolygonNeedsThreePoints)
{
    const Point points[] = {{1, 2}, {3, 4}, {5, 0}};
    const PointF realPoints[] = {{1, 2}, {3, 4}, {5, 0}};
    GraphicsPath path;
    for (const INT count : {2, 1, 0, -1}) {
        EXPECT_EQ(path.AddPolygon(points, count), InvalidParameter) << count;
        EXPECT_EQ(path.AddPolygon(realPoints, count), InvalidParameter) << count;
    }
    EXPECT_EQ(path.AddPolygon(static_cast<const PointF*>(nullptr), 3), InvalidParameter);
    EXPECT_EQ(path.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(path.GetPointCount(), 0);
}

TEST(Path, BeziersShareTheirEnds)
{
    GraphicsPath path;
    EXPECT_EQ(path.AddBezier(1, 2, 3, 4, 5, 6, 7, 8), Ok);
    EXPECT_EQ(path.AddBezier(7.0f, 8.0f, 9.0f, 10.0f, 11.0f, 12.0f, 13.0f, 14.0f), Ok);
    EXPECT_EQ(path.AddBezier(Point(20, 20), Point(21, 22), Point(23, 24), Point(25, 26)), Ok);
    EXPECT_EQ(path.AddBezier(PointF(25, 26), PointF(1, 2), PointF(3, 4), PointF(5, 6)), Ok);
    expectPoints(path, {{1, 2, kStart},
                        {3, 4, kBezier},
                        {5, 6, kBezier},
                        {7, 8, kBezier},
                        {9, 10, kBezier},
                        {11, 12, kBezier},
                        {13, 14, kBezier},
                        {20, 20, kLine},
                        {21, 22, kBezier},
                        {23, 24, kBezier},
                        {25, 26, kBezier},
                        {1, 2, kBezier},
                        {3, 4, kBezier},
                        {5, 6, kBezier}});
}

TEST(Path, ArrayOfBeziersHasThreePointsEachAndOneMore)
{
    const Point whole[] = {{1, 2}, {3, 4}, {5, 6}, {7, 8}, {9, 10}, {11, 12}, {13, 14}};
    const PointF real[] = {{1, 2}, {3, 4}, {5, 6}, {7, 8}};
    GraphicsPath path;
    EXPECT_EQ(path.AddBeziers(whole, 7), Ok);
    EXPECT_EQ(path.GetPointCount(), 7);
    EXPECT_EQ(path.AddBeziers(real, 4), Ok);
    EXPECT_EQ(path.GetPointCount(), 11);
    for (const INT count : {6, 5, 3, 2, 0, -1})
        EXPECT_EQ(path.AddBeziers(whole, count), InvalidParameter) << count;
    EXPECT_EQ(path.AddBeziers(static_cast<const PointF*>(nullptr), 4), InvalidParameter);
    EXPECT_EQ(path.GetPointCount(), 11);
}

TEST(Path, ArraysMustBeThere)
{
    if (differsHere("missing arguments"))
        return;
    GraphicsPath path;
    EXPECT_EQ(path.AddLines(static_cast<const Point*>(nullptr), 2), InvalidParameter);
    EXPECT_EQ(path.AddPolygon(static_cast<const Point*>(nullptr), 3), InvalidParameter);
    EXPECT_EQ(path.AddBeziers(static_cast<const Point*>(nullptr), 4), InvalidParameter);
    EXPECT_EQ(path.GetPointCount(), 0);
    path.AddLine(1, 2, 3, 4);
    EXPECT_EQ(path.GetPathPoints(static_cast<PointF*>(nullptr), 2), InvalidParameter);
    EXPECT_EQ(path.GetPathPoints(static_cast<Point*>(nullptr), 2), InvalidParameter);
    EXPECT_EQ(path.GetPathTypes(nullptr, 2), InvalidParameter);
}

TEST(Path, AnotherPathIsAppendedOrConnected)
{
    GraphicsPath other;
    other.AddLine(10, 11, 12, 13);
    GraphicsPath apart;
    apart.AddLine(1, 2, 3, 4);
    EXPECT_EQ(apart.AddPath(&other, FALSE), Ok);
    expectPoints(apart, {{1, 2, kStart}, {3, 4, kLine}, {10, 11, kStart}, {12, 13, kLine}});
    GraphicsPath connected;
    connected.AddLine(1, 2, 3, 4);
    EXPECT_EQ(connected.AddPath(&other, TRUE), Ok);
    expectPoints(connected, {{1, 2, kStart}, {3, 4, kLine}, {10, 11, kLine}, {12, 13, kLine}});
    EXPECT_EQ(connected.AddPath(nullptr, TRUE), InvalidParameter);
    EXPECT_EQ(connected.GetPointCount(), 4);
    GraphicsPath empty;
    EXPECT_EQ(empty.AddPath(&other, TRUE), Ok);
    EXPECT_EQ(pointsOf(empty)[0].type, kStart);
    if (differsHere("going on with a closed figure"))
        return;
    GraphicsPath closed;
    closed.AddRectangle(Rect(0, 0, 1, 1));
    EXPECT_EQ(closed.AddPath(&other, TRUE), Ok);
    EXPECT_EQ(pointsOf(closed)[4].type, kStart);
}

TEST(Path, IsClonedAndReset)
{
    GraphicsPath path(FillModeWinding);
    path.AddRectangle(Rect(1, 2, 3, 4));
    const std::unique_ptr<GraphicsPath> clone(path.Clone());
    ASSERT_TRUE(clone);
    EXPECT_EQ(path.Reset(), Ok);
    EXPECT_EQ(path.GetPointCount(), 0);
    EXPECT_EQ(path.GetFillMode(), FillModeAlternate);
    EXPECT_EQ(clone->GetPointCount(), 4);
    EXPECT_EQ(clone->GetFillMode(), FillModeWinding);
    path.AddLine(1, 2, 3, 4);
    EXPECT_EQ(pointsOf(path)[0].type, kStart);
}

TEST(Path, KeepsItsFillMode)
{
    GraphicsPath path;
    EXPECT_EQ(path.SetFillMode(FillModeWinding), Ok);
    EXPECT_EQ(path.GetFillMode(), FillModeWinding);
    EXPECT_EQ(path.SetFillMode(FillModeAlternate), Ok);
    EXPECT_EQ(path.GetFillMode(), FillModeAlternate);
}

TEST(Path, GivesItsDataAndItsLastPoint)
{
    GraphicsPath path;
    path.AddLine(1.5f, 2.0f, 3.0f, 4.25f);
    PointF last;
    EXPECT_EQ(path.GetLastPoint(&last), Ok);
    EXPECT_EQ(last.X, 3.0f);
    EXPECT_EQ(last.Y, 4.25f);
    path.AddRectangle(Rect(5, 19, 50, 50));
    path.GetLastPoint(&last);
    EXPECT_EQ(last.X, 5.0f);
    EXPECT_EQ(last.Y, 69.0f);

    PathData data;
    ASSERT_EQ(path.GetPathData(&data), Ok);
    ASSERT_EQ(data.Count, 6);
    EXPECT_EQ(data.Points[1].Y, 4.25f);
    EXPECT_EQ(data.Points[4].X, 55.0f);
    EXPECT_EQ(data.Types[2], kStart);
    EXPECT_EQ(data.Types[5], kLine | kClose);

    EXPECT_EQ(path.GetPathData(nullptr), InvalidParameter);
    EXPECT_EQ(path.GetLastPoint(nullptr), InvalidParameter);
}

TEST(Path, GivesItsPointsWhenThereIsRoom)
{
    GraphicsPath path;
    path.AddLine(1.25f, 2.75f, 3.0f, 4.0f);
    path.AddLine(5, 6, 7, 8);
    Point rounded[4];
    EXPECT_EQ(path.GetPathPoints(rounded, 4), Ok);
    EXPECT_TRUE(rounded[0].Equals(Point(1, 3)));
    PointF points[8];
    BYTE types[8];
    EXPECT_EQ(path.GetPathPoints(points, 8), Ok);
    EXPECT_EQ(path.GetPathTypes(types, 8), Ok);
    EXPECT_EQ(path.GetPathPoints(points, 3), InsufficientBuffer);
    EXPECT_EQ(path.GetPathTypes(types, 3), InsufficientBuffer);
}

TEST(Path, BoundsAreThoseOfItsPoints)
{
    GraphicsPath path;
    path.AddLine(3.5f, 10.0f, 7.0f, -2.25f);
    RectF bounds;
    EXPECT_EQ(path.GetBounds(&bounds), Ok);
    EXPECT_TRUE(bounds.Equals(RectF(3.5f, -2.25f, 3.5f, 12.25f)));
    path.Reset();
    path.AddEllipse(10, 20, 30, 40);
    EXPECT_EQ(path.GetBounds(&bounds), Ok);
    EXPECT_NEAR(bounds.X, 10, 1e-4);
    EXPECT_NEAR(bounds.Y, 20, 1e-4);
    EXPECT_NEAR(bounds.Width, 30, 1e-4);
    EXPECT_NEAR(bounds.Height, 40, 1e-4);
    Rect whole;
    EXPECT_EQ(path.GetBounds(&whole), Ok);
    EXPECT_TRUE(whole.Equals(Rect(10, 20, 30, 40)));
    EXPECT_EQ(path.GetBounds(static_cast<RectF*>(nullptr)), InvalidParameter);
}

TEST(Path, BoundsForAPenHoldTheStroke)
{
    GraphicsPath path;
    path.AddLine(10, 20, 50, 20);
    const Pen pen{Color(0xFF000000), 8};
    RectF bounds;
    EXPECT_EQ(path.GetBounds(&bounds, nullptr, &pen), Ok);
    EXPECT_LE(bounds.X, 10);
    EXPECT_GE(bounds.GetRight(), 50);
    EXPECT_LE(bounds.Y, 16);
    EXPECT_GE(bounds.GetBottom(), 24);
}

} // namespace
} // namespace vq::test
