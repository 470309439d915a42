// SPDX-License-Identifier: MIT
#include "ShapeAccess.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vq::test::cvqDragCircleTests {
namespace {

using Data = VQTestAccess::ShapeData<CVQDragCircle>;
using Limits = std::numeric_limits<int>;

void drag(CVQDragCircle& circle, CPoint from, CPoint to)
{
    circle.Start(from);
    circle.Drag(to);
}

TEST(CVQDragCircle, HasTheDistanceAsRadius)
{
    CVQDragCircle circle;
    drag(circle, {100, 100}, {103, 104});
    EXPECT_EQ(circle.GetRadius(), 5.0);
    EXPECT_EQ(circle.GetRect(), CRect(95, 95, 105, 105));
    double radius = 0;
    circle.GetRadius(&radius);
    EXPECT_EQ(radius, 5.0);
    circle.GetRadius(nullptr);
}

TEST(CVQDragCircle, TellsItsCentreInEveryForm)
{
    CVQDragCircle circle;
    drag(circle, {100, -50}, {103, -46});
    EXPECT_EQ(circle.GetCenter(), CPoint(100, -50));
    CPoint centre;
    circle.GetCenter(&centre);
    EXPECT_EQ(centre, CPoint(100, -50));
    circle.GetCenter(nullptr);
    EXPECT_EQ(circle.GetCenterX(), 100);
    EXPECT_EQ(circle.GetCenterY(), -50);
}

TEST(CVQDragCircle, CutsItsRadiusForTheRectangle)
{
    CVQDragCircle circle;
    drag(circle, {100, 100}, {102, 102}); // 2.83
    EXPECT_EQ(circle.GetRect(), CRect(98, 98, 102, 102));
    Data::radius(circle) = 2.9;
    EXPECT_EQ(circle.GetRect(), CRect(98, 98, 102, 102));
}

TEST(CVQDragCircle, StartsWithoutRadius)
{
    CVQDragCircle circle;
    drag(circle, {0, 0}, {30, 40});
    CPoint centre(5, 6);
    circle.Start(centre);
    EXPECT_EQ(circle.GetRadius(), 0);
    EXPECT_EQ(circle.GetRect(), CRect(5, 6, 5, 6));
    EXPECT_EQ(circle.GetEnd(), centre);
}

TEST(CVQDragCircle, KeepsWithinItsLimits)
{
    CVQDragCircle circle;
    drag(circle, {0, 0}, {0, 12});
    circle.End();
    CPoint distant(25, 0);
    EXPECT_FALSE(circle.Drag(distant, 10.0, 20.0));
    EXPECT_EQ(circle.GetEnd(), CPoint(0, 12));
    EXPECT_EQ(circle.GetRadius(), 12.0);
    EXPECT_FALSE(circle.CheckSelection()) << "refused, it stays idle";

    for (const int accepted : {10, 15, 20}) {
        circle.End();
        CPoint point(-accepted, 0);
        EXPECT_TRUE(circle.Drag(point, 10.0, 20.0)) << accepted;
        EXPECT_EQ(circle.GetRadius(), accepted);
        EXPECT_EQ(circle.GetEnd(), point);
        EXPECT_TRUE(circle.CheckSelection());
    }
    for (const int refused : {0, 9, 21}) {
        CPoint point(0, refused);
        EXPECT_FALSE(circle.Drag(point, 10.0, 20.0)) << refused;
        EXPECT_EQ(circle.GetRadius(), 20.0);
    }
    CPoint diagonal(7, 7); // 9.899...
    EXPECT_FALSE(circle.Drag(diagonal, std::nextafter(std::sqrt(98.0), 10), 20.0));
    EXPECT_TRUE(circle.Drag(diagonal, std::sqrt(98.0), std::sqrt(98.0)));
}

TEST(CVQDragCircle, RefusesLimitsThatAreNoNumbers)
{
    CVQDragCircle circle;
    CPoint point(10, 0);
    const double noNumber = std::nan("");
    EXPECT_FALSE(circle.Drag(point, noNumber, 20.0));
    EXPECT_FALSE(circle.Drag(point, 0.0, noNumber));
    EXPECT_TRUE(circle.Drag(point, -HUGE_VAL, HUGE_VAL));
}

TEST(CVQDragCircle, SumsSquaresIn32Bits)
{
    CVQDragCircle circle;
    drag(circle, {0, 0}, {65536, 0}); // 2^32
    EXPECT_EQ(circle.GetRadius(), 0);
    drag(circle, {0, 0}, {65536, 5}); // 2^32 + 25
    EXPECT_EQ(circle.GetRadius(), 5);
    drag(circle, {0, 0}, {46340, 0}); // the largest square below 2^31
    EXPECT_EQ(circle.GetRadius(), 46340);
    drag(circle, {Limits::min(), 0}, {Limits::max(), 0}); // the difference is -1
    EXPECT_EQ(circle.GetRadius(), 1);
}

TEST(CVQDragCircle, HasNoRadiusWhereTheSumTurnsNegative)
{
    CVQDragCircle circle;
    drag(circle, {10, 20}, {10 + 46341, 20}); // the first square beyond 2^31
    EXPECT_TRUE(std::isnan(circle.GetRadius()));
    EXPECT_TRUE(circle.CheckSelection());
    EXPECT_EQ(circle.GetEnd(), CPoint(10 + 46341, 20));
    EXPECT_EQ(circle.GetRect(), CRect(10, 20, 10, 20));

    CVQDragCircle limited;
    CPoint point(46341, 0);
    EXPECT_FALSE(limited.Drag(point, -HUGE_VAL, HUGE_VAL));
    EXPECT_EQ(limited.GetRadius(), 0);
}

TEST(CVQDragCircle, HasARectangleAtTheEndOfTheCoordinates)
{
    CVQDragCircle circle;
    drag(circle, {Limits::max() - 3, Limits::min() + 3}, {Limits::max() - 13, Limits::min() + 3});
    EXPECT_EQ(circle.GetRadius(), 10);
    EXPECT_EQ(circle.GetRect(), CRect(Limits::max() - 13, Limits::min(), Limits::max(), Limits::min() + 13));
}

TEST(CVQDragCircle, IsMovedByItsCentre)
{
    CVQDragCircle circle;
    drag(circle, {100, 100}, {103, 104});
    circle.Move(10, 20);
    EXPECT_EQ(circle.GetCenter(), CPoint(10, 20));
    EXPECT_EQ(circle.GetEnd(), CPoint(13, 24));
    EXPECT_EQ(circle.GetRadius(), 5.0);
    CPoint centre(-1, -2);
    circle.Move(centre);
    EXPECT_EQ(circle.GetCenter(), CPoint(-1, -2));
    EXPECT_EQ(circle.GetEnd(), CPoint(2, 2));
    circle.Offset(1, 2);
    EXPECT_EQ(circle.GetCenter(), CPoint(0, 0));
    EXPECT_EQ(circle.GetEnd(), CPoint(3, 4));
    EXPECT_EQ(circle.GetRadius(), 5.0);
}

TEST(CVQDragCircle, CarriesPointsUntilItIsReset)
{
    CVQDragCircle circle;
    auto& points = Data::points(circle);
    points.SetAtGrow(0, CVQPoint(1, 2, 3));
    points.SetAtGrow(1, CVQPoint(4, 5, 6));
    drag(circle, {0, 0}, {3, 4});
    circle.End();
    EXPECT_EQ(points.GetSize(), 2u);

    CVQDragCircle copy(circle);
    circle.Reset();
    EXPECT_EQ(points.GetSize(), 0u);
    ASSERT_EQ(Data::points(copy).GetSize(), 2u);
    EXPECT_EQ(Data::points(copy).GetAt(1).z, 6);
    EXPECT_EQ(copy.GetRadius(), 5);
}

} // namespace
} // namespace vq::test::cvqDragCircleTests
