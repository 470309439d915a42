// SPDX-License-Identifier: MIT
#include "ShapeAccess.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

namespace vq::test::cvqDragLineTests {
namespace {

using Data = VQTestAccess::ShapeData<CVQDragLine>;
using Corners = std::array<std::array<double, 2>, 4>;

Corners cornersOf(CVQDragLine& line)
{
    Corners corners{};
    for (std::size_t i = 0; i < corners.size(); ++i)
        corners[i] = {Data::corners(line)[i][0], Data::corners(line)[i][1]};
    return corners;
}

void drag(CVQDragLine& line, CPoint from, CPoint to)
{
    line.Start(from);
    line.Drag(to);
}

TEST(CVQDragLine, HasABandAtBothSides)
{
    CVQDragLine line;
    drag(line, {0, 0}, {10, 0});
    line.SetWidth(3);
    EXPECT_EQ(cornersOf(line), (Corners{{{0, 3}, {10, 3}, {0, -3}, {10, -3}}}));
    EXPECT_EQ(line.GetWidth(), 3);
}

TEST(CVQDragLine, HasABandInAnyDirection)
{
    CVQDragLine line;
    drag(line, {1, 2}, {1 + 30, 2 - 40}); // length 50
    line.SetWidth(5);
    EXPECT_EQ(cornersOf(line), (Corners{{{1 + 4, 2 + 3}, {31 + 4, -38 + 3}, {1 - 4, 2 - 3}, {31 - 4, -38 - 3}}}));
}

TEST(CVQDragLine, MeasuresItsLengthInSinglePrecision)
{
    CVQDragLine line;
    drag(line, {0, 0}, {1, 1});
    line.SetWidth(1);
    const double normal = 1 / static_cast<double>(std::sqrt(2.0F));
    EXPECT_EQ(cornersOf(line),
              (Corners{{{-normal, normal}, {1 - normal, 1 + normal}, {normal, -normal}, {1 + normal, 1 - normal}}}));
    EXPECT_NE(normal, 1 / std::sqrt(2.0));
}

TEST(CVQDragLine, ComputesItsBandWithEveryDragAndAtTheEnd)
{
    CVQDragLine line;
    drag(line, {0, 0}, {10, 0});
    line.SetWidth(2);
    CPoint end(0, 10);
    line.Drag(end);
    EXPECT_EQ(cornersOf(line)[1], (std::array<double, 2>{-2, 10}));
    line.Offset(100, 100);
    EXPECT_EQ(cornersOf(line)[1], (std::array<double, 2>{-2, 10})) << "moving leaves the band behind";
    line.End();
    EXPECT_EQ(cornersOf(line)[1], (std::array<double, 2>{98, 110}));
}

TEST(CVQDragLine, LosesItsWidthAtTheStartAndKeepsTheCorners)
{
    CVQDragLine line;
    drag(line, {0, 0}, {10, 0});
    line.SetWidth(3);
    const Corners former = cornersOf(line);
    drag(line, {5, 5}, {50, 50});
    EXPECT_EQ(line.GetWidth(), 0);
    EXPECT_EQ(cornersOf(line), former);
    line.SetWidth(-4);
    EXPECT_EQ(line.GetWidth(), -4);
    EXPECT_EQ(cornersOf(line), former);
}

TEST(CVQDragLine, IsResetWithWidthAndFlag)
{
    CVQDragLine line;
    drag(line, {1, 2}, {10, 20});
    line.SetWidth(3);
    Data::flag(line) = true;
    CVQDragLine copy(line);
    EXPECT_TRUE(Data::flag(copy));
    EXPECT_EQ(copy.GetWidth(), 3);
    EXPECT_EQ(cornersOf(copy), cornersOf(line));
    line.Reset();
    EXPECT_FALSE(Data::flag(line));
    EXPECT_EQ(line.GetWidth(), 0);
    EXPECT_EQ(line.GetRect(), CRect(0, 0, 0, 0));
}

TEST(CVQDragLine, HasARectangleWithoutItsWidth)
{
    CVQDragLine line;
    drag(line, {30, 40}, {10, 50});
    line.SetWidth(8);
    EXPECT_EQ(line.GetRect(), CRect(10, 40, 30, 50));
}

TEST(CVQDragLine, OfNoLengthHasCornersThatAreNoNumbers)
{
    CVQDragLine line;
    CPoint point(7, 8);
    line.Start(point);
    line.SetWidth(3);
    for (const auto& corner : cornersOf(line)) {
        EXPECT_FALSE(std::isfinite(corner[0]));
        EXPECT_FALSE(std::isfinite(corner[1]));
    }
}

TEST(CVQDragLine, SpansAllCoordinates)
{
    using Limits = std::numeric_limits<int>;
    CVQDragLine line;
    drag(line, {Limits::min(), 0}, {Limits::max(), 0});
    line.SetWidth(10);
    const Corners corners = cornersOf(line);
    EXPECT_NEAR(corners[0][1], 10, 1e-5);
    EXPECT_EQ(corners[0][0], -2147483648.0);
    EXPECT_EQ(corners[3][0], 2147483647.0);
}

} // namespace
} // namespace vq::test::cvqDragLineTests
