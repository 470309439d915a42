// SPDX-License-Identifier: MIT
#include "vqSelection/VQSelection.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace vq::test::selectionShapeTests {
namespace {

constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kInfinite = std::numeric_limits<double>::infinity();
constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

template <typename Drag>
Drag dragged(CPoint from, CPoint to)
{
    Drag drag;
    drag.Start(from);
    drag.Drag(to);
    return drag;
}

CVQSelectionShape polygonOf(std::initializer_list<double> vertices)
{
    return CVQSelectionShape::Polygon(vertices.begin(), vertices.size() / 2);
}

TEST(CVQSelectionShape, IsEmptyAtFirst)
{
    EXPECT_TRUE(CVQSelectionShape().IsEmpty());
    EXPECT_FALSE(CVQSelectionShape().Contains(0, 0));
}

TEST(CVQSelectionShape, HasTheBordersOfABoxWhicheverWayItWasDragged)
{
    for (const auto& [from, to] : {std::pair(CPoint(10, 20), CPoint(30, 25)), std::pair(CPoint(30, 20), CPoint(10, 25)),
                                   std::pair(CPoint(30, 25), CPoint(10, 20))}) {
        const auto box = CVQSelectionShape::Of(dragged<CVQDragBox>(from, to));
        EXPECT_FALSE(box.IsEmpty());
        for (const double x : {10.0, 30.0})
            for (const double y : {20.0, 25.0})
                EXPECT_TRUE(box.Contains(x, y));
        EXPECT_FALSE(box.Contains(std::nextafter(10.0, 0.0), 22));
        EXPECT_FALSE(box.Contains(std::nextafter(30.0, 40.0), 22));
        EXPECT_FALSE(box.Contains(20, std::nextafter(20.0, 0.0)));
        EXPECT_FALSE(box.Contains(20, std::nextafter(25.0, 40.0)));
        EXPECT_FALSE(box.Contains(kNoNumber, 22));
    }
}

TEST(CVQSelectionShape, HasTheRimOfACircle)
{
    const auto circle = CVQSelectionShape::Of(dragged<CVQDragCircle>({100, 100}, {103, 104})); // radius 5
    EXPECT_TRUE(circle.Contains(103, 96));
    EXPECT_TRUE(circle.Contains(105, 100));
    EXPECT_FALSE(circle.Contains(105.001, 100));
    EXPECT_FALSE(circle.Contains(104, 104));
    EXPECT_FALSE(circle.Contains(100, kNoNumber));
}

TEST(CVQSelectionShape, HasABandOfItsWidthToEachSideOfALine)
{
    CVQDragLine line = dragged<CVQDragLine>({10, 50}, {110, 50});
    line.SetWidth(7);
    const auto band = CVQSelectionShape::Of(line);
    EXPECT_TRUE(band.Contains(60, 43.5));
    EXPECT_TRUE(band.Contains(10, 56.9));
    EXPECT_FALSE(band.Contains(60, 42.9));
    EXPECT_FALSE(band.Contains(60, 57.1));
    EXPECT_FALSE(band.Contains(9.9, 50)) << "its ends are straight";
    EXPECT_FALSE(band.Contains(110.1, 50));
}

TEST(CVQSelectionShape, HasTheCornersOfASlantedBand)
{
    const auto band = CVQSelectionShape::Band(0, 0, 30, 40, 5); // across it (-4, 3) and (4, -3)
    for (const auto& [x, y] : {std::pair(-4.0, 3.0), {4.0, -3.0}, {26.0, 43.0}, {34.0, 37.0}}) {
        const double towards = 0.001;
        EXPECT_TRUE(band.Contains(x + (15 - x) * towards, y + (20 - y) * towards));
        EXPECT_FALSE(band.Contains(x - (15 - x) * towards, y - (20 - y) * towards));
    }
}

TEST(CVQSelectionShape, FollowsABandThatWasMoved)
{
    CVQDragLine line = dragged<CVQDragLine>({10, 50}, {110, 50});
    line.SetWidth(7);
    line.Offset(0, 100);
    EXPECT_TRUE(CVQSelectionShape::Of(line).Contains(60, 150));
    EXPECT_FALSE(CVQSelectionShape::Of(line).Contains(60, 50));
}

TEST(CVQSelectionShape, HasTheVerticesOfALassoAndNotTheEndThatFollowsTheMouse)
{
    CVQDragPolygon lasso;
    for (CPoint vertex : {CPoint(10, 10), CPoint(50, 10), CPoint(50, 50), CPoint(10, 50)})
        lasso.AddPoint(vertex);
    CPoint end(100, 30);
    lasso.SetEnd(end);
    const auto shape = CVQSelectionShape::Of(lasso);
    EXPECT_TRUE(shape.Contains(30, 30));
    EXPECT_FALSE(shape.Contains(60, 30));
    EXPECT_EQ(lasso.GetCount(), 4u);
}

TEST(CVQSelectionShape, LeavesOutWhatItsOutlineGoesRoundTwice)
{
    const auto star = polygonOf({50, 0, 79, 90, 2, 35, 98, 35, 21, 90}); // five points, the outline crosses itself
    EXPECT_FALSE(star.Contains(50, 50));
    EXPECT_TRUE(star.Contains(50, 10));
    EXPECT_TRUE(star.Contains(10, 37));
    const auto twice = polygonOf({0, 0, 10, 0, 10, 10, 0, 10, 0, 0, 10, 0, 10, 10, 0, 10});
    EXPECT_FALSE(twice.Contains(5, 5));
}

TEST(CVQSelectionShape, GivesAPointOfACommonSideToOneOfTwoNeighbours)
{
    const auto left = polygonOf({0, 0, 10, 0, 10, 10, 0, 10});
    const auto right = polygonOf({10, 0, 20, 0, 20, 10, 10, 10});
    EXPECT_TRUE(left.Contains(0, 0));
    EXPECT_FALSE(left.Contains(10, 0));
    EXPECT_TRUE(right.Contains(10, 0));
    EXPECT_FALSE(left.Contains(5, 10));
    EXPECT_FALSE(left.Contains(0, 10));
}

TEST(CVQSelectionShape, IsEmptyWithoutAnArea)
{
    EXPECT_TRUE(CVQSelectionShape::Of(CVQDragBox()).IsEmpty());
    EXPECT_TRUE(CVQSelectionShape::Of(dragged<CVQDragBox>({3, 4}, {3, 9})).IsEmpty());
    EXPECT_TRUE(CVQSelectionShape::Of(dragged<CVQDragBox>({3, 4}, {9, 4})).IsEmpty());
    EXPECT_TRUE(CVQSelectionShape::Of(CVQDragCircle()).IsEmpty());
    EXPECT_TRUE(CVQSelectionShape::Circle(3, 4, -1).IsEmpty());
    EXPECT_TRUE(CVQSelectionShape::Of(dragged<CVQDragLine>({3, 4}, {30, 4})).IsEmpty()) << "a plain line";
    CVQDragLine noLength = dragged<CVQDragLine>({3, 4}, {3, 4});
    noLength.SetWidth(5);
    EXPECT_TRUE(CVQSelectionShape::Of(noLength).IsEmpty());
    EXPECT_TRUE(CVQSelectionShape::Band(0, 0, 10, 0, -3).IsEmpty());
    EXPECT_TRUE(CVQSelectionShape::Of(CVQDragPolygon()).IsEmpty());
    EXPECT_TRUE(polygonOf({0, 0, 10, 10}).IsEmpty());
    EXPECT_TRUE(CVQSelectionShape::Polygon(nullptr, 5).IsEmpty());
    EXPECT_FALSE(polygonOf({0, 0, 10, 10, 20, 20}).Contains(5, 5)) << "all on a line";
}

TEST(CVQSelectionShape, IsEmptyWithWhatIsNoNumber)
{
    for (const double bad : {kNoNumber, kInfinite, -kInfinite}) {
        EXPECT_TRUE(CVQSelectionShape::Box(bad, 0, 1, 1).IsEmpty());
        EXPECT_TRUE(CVQSelectionShape::Box(0, 0, 1, bad).IsEmpty());
        EXPECT_TRUE(CVQSelectionShape::Circle(0, bad, 1).IsEmpty());
        EXPECT_TRUE(CVQSelectionShape::Circle(0, 0, bad).IsEmpty());
        EXPECT_TRUE(CVQSelectionShape::Band(0, 0, bad, 1, 1).IsEmpty());
        EXPECT_TRUE(CVQSelectionShape::Band(0, 0, 1, 1, bad).IsEmpty());
        EXPECT_TRUE(polygonOf({0, 0, 10, 0, 0, bad}).IsEmpty());
    }
    EXPECT_TRUE(polygonOf({0, 0, 10, 0, 0, 1e10}).IsEmpty());
}

TEST(CVQSelectionShape, IsEmptyWhenTheRadiusOfADragWrapsRound)
{
    const auto circle = dragged<CVQDragCircle>({0, 0}, {40000, 30000}); // 2.5e9 is negative in 32 bits
    ASSERT_TRUE(std::isnan(circle.GetRadius()));
    EXPECT_TRUE(CVQSelectionShape::Of(circle).IsEmpty());
}

TEST(CVQSelectionShape, ReachesAsFarAsTheDragObjectsDo)
{
    const auto box = CVQSelectionShape::Of(dragged<CVQDragBox>({kLeast, kLeast}, {kMost, kMost}));
    EXPECT_TRUE(box.Contains(kMost, kLeast));
    EXPECT_FALSE(box.Contains(kMost + 1.0, 0));
    CVQDragLine line = dragged<CVQDragLine>({kLeast, 0}, {kMost, 0});
    line.SetWidth(kMost);
    EXPECT_TRUE(CVQSelectionShape::Of(line).Contains(0, 2147483000));
}

TEST(CVQSelectionShape, TakesADragThatMovedBeyond32BitsWhereItCameOut)
{
    auto box = dragged<CVQDragBox>({kMost - 5, 0}, {kMost - 2, 10});
    box.Offset(4, 0); // one corner stays, the other comes round
    EXPECT_TRUE(CVQSelectionShape::Of(box).Contains(0, 5));
}

} // namespace
} // namespace vq::test::selectionShapeTests
