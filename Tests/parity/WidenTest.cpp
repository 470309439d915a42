// SPDX-License-Identifier: MIT
/// @file
/// The outlines of strokes, from Windows' own widened paths.
#include "parity/Drawn.h"
#include "parity/KnownDifferences.h"
#include "parity/Paths.h"

#include <memory>

namespace vq::test::widenTests {
namespace {

using namespace Gdiplus;

constexpr double kTolerance = 0.01; // pixels

/// A line of a pen, widened.
std::unique_ptr<GraphicsPath> widened(const Pen& pen, int x1, int y1, int x2, int y2)
{
    auto path = std::make_unique<GraphicsPath>();
    path->AddLine(x1, y1, x2, y2);
    EXPECT_EQ(path->Widen(&pen), Ok);
    return path;
}

/// How many figures have this extent.
int figuresWithin(const GraphicsPath& path, const Extent& extent)
{
    int count = 0;
    for (const PathPoints& figure : figuresOf(path))
        count += extentOf(figure).isNear(extent, kTolerance) ? 1 : 0;
    return count;
}

/// Whether there is a figure with these corners, in any order.
bool hasTriangle(const GraphicsPath& path, const PathPoints& corners)
{
    const auto isCorner = [&](const PathPoint& point) {
        return std::ranges::any_of(corners, [&](const PathPoint& corner) { return isNear(point, corner, kTolerance); });
    };
    for (const PathPoints& figure : figuresOf(path)) {
        const bool isAllThere = std::ranges::all_of(corners, [&](const PathPoint& corner) {
            return std::ranges::any_of(figure,
                                       [&](const PathPoint& point) { return isNear(point, corner, kTolerance); });
        });
        if (isAllThere && std::ranges::all_of(figure, isCorner))
            return true;
    }
    return false;
}

std::string pointsText(const GraphicsPath& path)
{
    return testing::PrintToString(pointsOf(path));
}

TEST(Widen, OfALineIsARectangle)
{
    const Pen pen{Color(kRed), 10};
    const auto path = widened(pen, 5, 10, 50, 10);
    const std::vector<PathPoints> figures = figuresOf(*path);
    ASSERT_EQ(figures.size(), 1u);
    EXPECT_TRUE(extentOf(figures[0]).isNear({5, 5, 50, 15}, kTolerance)) << pointsText(*path);
    EXPECT_EQ(figures[0].back().type & kClose, kClose);
    for (const PathPoint& point : figures[0]) {
        EXPECT_TRUE(std::abs(point.x - 5) < kTolerance || std::abs(point.x - 50) < kTolerance);
        EXPECT_TRUE(std::abs(point.y - 5) < kTolerance || std::abs(point.y - 15) < kTolerance);
    }
}

TEST(Widen, OfADashedLineIsARectangleForEveryDash)
{
    Pen pen{Color(kRed), 10};
    pen.SetDashStyle(DashStyleDash);
    const auto path = widened(pen, 5, 5, 50, 5);
    EXPECT_EQ(figuresOf(*path).size(), 2u) << pointsText(*path);
    EXPECT_EQ(figuresWithin(*path, {5, 0, 35, 10}), 1) << pointsText(*path);
    EXPECT_EQ(figuresWithin(*path, {45, 0, 50, 10}), 1) << pointsText(*path);
}

TEST(Widen, OfAPenBelowOneHasDashesOfWholeUnits)
{
    if (differsHere("widening by less than one"))
        return;
    Pen pen{Color(kRed), 0.5f};
    pen.SetDashStyle(DashStyleDash);
    const auto path = widened(pen, 5, 5, 12, 5);
    EXPECT_EQ(figuresWithin(*path, {5, 4.75f, 8, 5.25f}), 1) << pointsText(*path);
    EXPECT_EQ(figuresWithin(*path, {9, 4.75f, 12, 5.25f}), 1) << pointsText(*path);
}

TEST(Widen, ArrowIsATriangleWithItsTipAtTheEnd)
{
    Pen pen{Color(kRed), 10};
    pen.SetLineCap(LineCapArrowAnchor, LineCapArrowAnchor, DashCapFlat);
    const auto path = widened(pen, 5, 10, 50, 10);
    EXPECT_TRUE(hasTriangle(*path, {{5, 10}, {22.3205f, 0}, {22.3205f, 20}})) << pointsText(*path);
    EXPECT_TRUE(hasTriangle(*path, {{50, 10}, {32.6795f, 20}, {32.6795f, 0}})) << pointsText(*path);
    if (differsHere("body of an arrow"))
        return;
    EXPECT_EQ(figuresWithin(*path, {15, 5, 40, 15}), 1) << pointsText(*path);
}

TEST(Widen, AnchorsAreMadeForPensOfTwoAtLeast)
{
    Pen pen{Color(kRed), 1};
    pen.SetEndCap(LineCapArrowAnchor);
    const auto path = widened(pen, 5, 10, 50, 10);
    EXPECT_TRUE(hasTriangle(*path, {{50, 10}, {46.5359f, 8}, {46.5359f, 12}})) << pointsText(*path);
}

TEST(Widen, CapsReachBeyondTheEnds)
{
    const struct
    {
        LineCap cap;
        Extent extent;
    } caps[] = {
        {LineCapFlat, {5, 5, 50, 15}},         {LineCapSquare, {0, 5, 55, 15}},
        {LineCapRound, {0, 5, 55, 15}},        {LineCapTriangle, {0, 5, 55, 15}},
        {LineCapNoAnchor, {5, 5, 50, 15}},     {LineCapSquareAnchor, {-2.0711f, 2.9289f, 57.0711f, 17.0711f}},
        {LineCapRoundAnchor, {-5, 0, 60, 20}}, {LineCapDiamondAnchor, {-5, 0, 60, 20}},
        {LineCapArrowAnchor, {5, 0, 50, 20}},
    };
    for (const auto& [cap, extent] : caps) {
        Pen pen{Color(kRed), 10};
        pen.SetLineCap(cap, cap, DashCapFlat);
        const auto path = widened(pen, 5, 10, 50, 10);
        EXPECT_TRUE(extentOf(pointsOf(*path)).isNear(extent, kTolerance)) << cap << ": " << pointsText(*path);
    }
}

TEST(Widen, CapsOfTheTwoEndsAreIndependent)
{
    Pen pen{Color(kRed), 10};
    pen.SetStartCap(LineCapSquare);
    EXPECT_TRUE(extentOf(pointsOf(*widened(pen, 5, 10, 50, 10))).isNear({0, 5, 50, 15}, kTolerance));
    pen.SetStartCap(LineCapFlat);
    pen.SetEndCap(LineCapRound);
    EXPECT_TRUE(extentOf(pointsOf(*widened(pen, 5, 10, 50, 10))).isNear({5, 5, 55, 15}, kTolerance));
}

TEST(Widen, OfARectangleIsARing)
{
    const Pen pen{Color(kRed), 2};
    GraphicsPath path;
    path.AddRectangle(Rect(5, 5, 10, 12));
    EXPECT_EQ(path.Widen(&pen), Ok);
    EXPECT_EQ(figuresWithin(path, {4, 4, 16, 18}), 1) << pointsText(path);
    path.SetFillMode(FillModeWinding);
    const SolidBrush brush{Color(kRed)};
    TestPicture picture(20, 20);
    picture.graphics.FillPath(&brush, &path);
    EXPECT_EQ(picture.find(kRed), (Found{4, 4, 15, 17, 12 * 14 - 8 * 10}));
}

TEST(Widen, ThenFilledIsWhatThePenDraws)
{
    const SolidBrush brush{Color(kRed)};
    const Pen pen{Color(kRed), 5};
    GraphicsPath path;
    const Point corners[] = {{8, 8}, {40, 12}, {30, 36}, {12, 28}};
    path.AddPolygon(corners, 4);
    TestPicture outlined(50, 50);
    outlined.graphics.DrawPath(&pen, &path);
    path.Widen(&pen);
    path.SetFillMode(FillModeWinding);
    TestPicture filled(50, 50);
    filled.graphics.FillPath(&brush, &path);
    EXPECT_EQ(drawn(filled), drawn(outlined));
}

TEST(Widen, NeedsAPenAndSomethingToWiden)
{
    const Pen pen{Color(kRed), 10};
    GraphicsPath path;
    EXPECT_EQ(path.Widen(&pen), OutOfMemory) << "an empty path";
    path.AddLine(5, 10, 50, 10);
    EXPECT_EQ(path.Widen(nullptr), InvalidParameter);
    EXPECT_EQ(path.GetPointCount(), 2);
}

} // namespace
} // namespace vq::test::widenTests
