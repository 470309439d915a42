// SPDX-License-Identifier: MIT
/// @file
/// Paths and polygons, filled and outlined.
#include "parity/Drawn.h"
#include "parity/KnownDifferences.h"

namespace vq::test {
namespace {

using namespace Gdiplus;

/// Row y of 1 .. 10 has columns 1 .. 11 - y.
void expectTriangle(const TestPicture& picture)
{
    for (int y = 0; y < heightOf(picture); ++y)
        EXPECT_EQ(columnsDrawn(picture, y), y >= 1 && y <= 10 ? fromTo(1, 11 - y) : Places{}) << y;
    expectOnly(picture, kRed);
}

TEST(FillPath, LightsThePixelsWhoseCentresAreInside)
{
    const SolidBrush brush{Color(kRed)};
    const Point corners[] = {{1, 1}, {11, 1}, {1, 11}};
    const PointF realCorners[] = {{1, 1}, {11, 1}, {1, 11}};
    GraphicsPath path;
    path.AddPolygon(corners, 3);
    TestPicture filled(14, 14);
    EXPECT_EQ(filled.graphics.FillPath(&brush, &path), Ok);
    expectTriangle(filled);
    TestPicture polygon(14, 14);
    EXPECT_EQ(polygon.graphics.FillPolygon(&brush, corners, 3), Ok);
    expectTriangle(polygon);
    TestPicture realPolygon(14, 14);
    EXPECT_EQ(realPolygon.graphics.FillPolygon(&brush, realCorners, 3, FillModeWinding), Ok);
    expectTriangle(realPolygon);
}

TEST(FillPath, TakesAnOpenFigureAsClosed)
{
    const SolidBrush brush{Color(kRed)};
    GraphicsPath path;
    path.AddLine(1, 1, 11, 1);
    path.AddLine(11, 1, 1, 11);
    TestPicture picture(14, 14);
    EXPECT_EQ(picture.graphics.FillPath(&brush, &path), Ok);
    expectTriangle(picture);
}

TEST(FillPath, AsksForTheCentresThatThePixelOffsetGives)
{
    if (differsHere("fractional rectangles"))
        return;
    const SolidBrush brush{Color(kRed)};
    const PointF corners[] = {{2.25f, 3.75f}, {6.25f, 3.75f}, {6.25f, 8.75f}, {2.25f, 8.75f}};
    TestPicture whole(12, 12);
    whole.graphics.FillPolygon(&brush, corners, 4);
    EXPECT_EQ(whole.find(kRed), (Found{3, 4, 6, 8, 20}));
    for (const auto mode : {PixelOffsetModeHalf, PixelOffsetModeHighQuality}) {
        TestPicture half(12, 12);
        half.graphics.SetPixelOffsetMode(mode);
        half.graphics.FillPolygon(&brush, corners, 4);
        EXPECT_EQ(half.find(kRed), (Found{2, 4, 5, 8, 20})) << mode;
    }
}

TEST(FillPath, OfTouchingShapesLightsEveryPixelOnce)
{
    const SolidBrush brush{Color(0x80FF0000)};
    const Point upper[] = {{1, 1}, {13, 1}, {1, 11}};
    const Point lower[] = {{13, 1}, {13, 11}, {1, 11}};
    TestPicture picture(15, 13);
    picture.graphics.FillPolygon(&brush, upper, 3);
    picture.graphics.FillPolygon(&brush, lower, 3);
    EXPECT_EQ(picture.find(0x80FF0000), (Found{1, 1, 12, 10, 120}));
    expectOnly(picture, 0x80FF0000);
}

// A square of 8 and one of 4 within it, walked in one go and in the same direction.
constexpr int kSquaresPoints = 10;
const Point kSquares[kSquaresPoints] = {{0, 0}, {8, 0}, {8, 8}, {0, 8}, {0, 0}, {2, 2}, {6, 2}, {6, 6}, {2, 6}, {2, 2}};

TEST(FillPath, AlternateLeavesWhatIsWoundTwice)
{
    const SolidBrush brush{Color(kRed)};
    GraphicsPath path(FillModeAlternate);
    path.AddPolygon(kSquares, kSquaresPoints);
    TestPicture picture(14, 14);
    EXPECT_EQ(picture.graphics.FillPath(&brush, &path), Ok);
    for (int y = 0; y < 14; ++y)
        EXPECT_EQ(columnsDrawn(picture, y), y > 7            ? Places{}
                                            : y < 2 || y > 5 ? fromTo(0, 7)
                                                             : (Places{0, 1, 6, 7}))
            << y;
    TestPicture polygon(14, 14);
    EXPECT_EQ(polygon.graphics.FillPolygon(&brush, kSquares, kSquaresPoints), Ok);
    EXPECT_EQ(drawn(polygon), drawn(picture)) << "the default of FillPolygon";
}

TEST(FillPath, WindingFillsWhatIsWoundTwice)
{
    const SolidBrush brush{Color(kRed)};
    GraphicsPath path(FillModeWinding);
    path.AddPolygon(kSquares, kSquaresPoints);
    TestPicture picture(14, 14);
    EXPECT_EQ(picture.graphics.FillPath(&brush, &path), Ok);
    EXPECT_EQ(picture.find(kRed), (Found{0, 0, 7, 7, 64}));
    TestPicture polygon(14, 14);
    EXPECT_EQ(polygon.graphics.FillPolygon(&brush, kSquares, kSquaresPoints, FillModeWinding), Ok);
    EXPECT_EQ(drawn(polygon), drawn(picture));
}

TEST(FillPath, FiguresOfOnePathCutHolesIntoEachOther)
{
    const SolidBrush brush{Color(kRed)};
    GraphicsPath path;
    path.AddRectangle(Rect(1, 1, 10, 8));
    path.AddRectangle(Rect(4, 3, 4, 3));
    TestPicture picture(12, 10);
    picture.graphics.FillPath(&brush, &path);
    EXPECT_EQ(picture.find(kRed), (Found{1, 1, 10, 8, 80 - 12}));
    EXPECT_EQ(columnsDrawn(picture, 4), (Places{1, 2, 3, 8, 9, 10}));
}

TEST(Polygons, OfFewerThanThreePointsAreInvalid)
{
    const Pen pen{Color(kRed)};
    const SolidBrush brush{Color(kRed)};
    const Point points[] = {{1, 1}, {9, 9}};
    TestPicture picture(12, 12);
    for (const INT count : {2, 1, 0}) {
        EXPECT_EQ(picture.graphics.FillPolygon(&brush, points, count), InvalidParameter) << count;
        EXPECT_EQ(picture.graphics.DrawPolygon(&pen, points, count), InvalidParameter) << count;
    }
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

TEST(EmptyPath, IsNothing)
{
    const SolidBrush brush{Color(kRed)};
    const Pen pen{Color(kRed)};
    const Pen wide{Color(kRed), 5};
    const GraphicsPath path;
    TestPicture picture(8, 8);
    EXPECT_EQ(picture.graphics.FillPath(&brush, &path), Ok);
    EXPECT_EQ(picture.graphics.DrawPath(&pen, &path), Ok);
    EXPECT_EQ(picture.graphics.DrawPath(&wide, &path), Ok);
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

TEST(DrawPolygon, IsClosed)
{
    const Pen pen{Color(kRed)};
    const Point corners[] = {{1, 1}, {8, 1}, {8, 8}};
    const PointF realCorners[] = {{1, 1}, {8, 1}, {8, 8}};
    const std::string expected = rows({
        "..........",
        ".########.",
        "..#.....#.",
        "...#....#.",
        "....#...#.",
        ".....#..#.",
        "......#.#.",
        ".......##.",
        "........#.",
        "..........",
    });
    TestPicture whole(10, 10);
    EXPECT_EQ(whole.graphics.DrawPolygon(&pen, corners, 3), Ok);
    EXPECT_EQ(drawn(whole), expected);
    TestPicture real(10, 10);
    EXPECT_EQ(real.graphics.DrawPolygon(&pen, realCorners, 3), Ok);
    EXPECT_EQ(drawn(real), expected);
    TestPicture path(10, 10);
    GraphicsPath triangle;
    triangle.AddPolygon(corners, 3);
    EXPECT_EQ(path.graphics.DrawPath(&pen, &triangle), Ok);
    EXPECT_EQ(drawn(path), expected);
}

TEST(DrawPath, DrawsOpenFiguresOpen)
{
    const Pen pen{Color(kRed)};
    GraphicsPath path;
    path.AddLine(1, 1, 6, 1);
    path.AddLine(6, 1, 6, 4);
    path.StartFigure();
    path.AddLine(1, 3, 4, 3);
    TestPicture picture(8, 6);
    EXPECT_EQ(picture.graphics.DrawPath(&pen, &path), Ok);
    EXPECT_EQ(drawn(picture), rows({
                                  "........",
                                  ".######.",
                                  "......#.",
                                  ".####.#.",
                                  "......#.",
                                  "........",
                              }));
}

TEST(DrawPath, OfAWidePenHasMiteredCorners)
{
    const Pen pen{Color(kRed), 4};
    const Point corners[] = {{4, 4}, {14, 4}, {14, 14}, {4, 14}};
    TestPicture picture(20, 20);
    picture.graphics.DrawPolygon(&pen, corners, 4);
    EXPECT_EQ(picture.find(kRed), (Found{2, 2, 15, 15, 14 * 14 - 6 * 6}));
    expectOnly(picture, kRed);
}

/// Four quarters of a circle of radius 6 in the corners of a box from (1, 1) to (13, 11).
void addRoundedBox(GraphicsPath& path)
{
    path.AddArc(1, 1, 6, 6, 180.0f, 90.0f);
    path.AddArc(7, 1, 6, 6, 270.0f, 90.0f);
    path.AddArc(7, 5, 6, 6, 0.0f, 90.0f);
    path.AddArc(1, 5, 6, 6, 90.0f, 90.0f);
    path.CloseFigure();
}

TEST(DrawPath, RoundedRectangleHasStraightSidesAndNoCorners)
{
    const Pen pen{Color(kRed)};
    GraphicsPath path;
    addRoundedBox(path);
    TestPicture picture(16, 16);
    EXPECT_EQ(picture.graphics.DrawPath(&pen, &path), Ok);
    for (int x = 4; x <= 10; ++x) {
        EXPECT_EQ(picture.at(x, 1), Argb{kRed}) << x;
        EXPECT_EQ(picture.at(x, 11), Argb{kRed}) << x;
    }
    for (int y = 4; y <= 8; ++y) {
        EXPECT_EQ(picture.at(1, y), Argb{kRed}) << y;
        EXPECT_EQ(picture.at(13, y), Argb{kRed}) << y;
    }
    for (const auto& [x, y] : {std::pair{1, 1}, {13, 1}, {1, 11}, {13, 11}})
        EXPECT_EQ(picture.at(x, y), Argb{0}) << x << ", " << y;
    const Found found = picture.find(kRed);
    EXPECT_EQ((Found{found.left, found.top, found.right, found.bottom, 0}), (Found{1, 1, 13, 11, 0}));
}

TEST(DrawPath, RoundedRectangleOfNoRadiusIsEmpty)
{
    if (differsHere("arcs of no size"))
        return;
    const Pen pen{Color(kRed)};
    GraphicsPath path;
    path.AddArc(1, 1, 0, 0, 180.0f, 90.0f);
    path.AddArc(13, 1, 0, 0, 270.0f, 90.0f);
    path.AddArc(13, 11, 0, 0, 0.0f, 90.0f);
    path.AddArc(1, 11, 0, 0, 90.0f, 90.0f);
    path.CloseFigure();
    EXPECT_EQ(path.GetPointCount(), 0);
    TestPicture picture(16, 16);
    EXPECT_EQ(picture.graphics.DrawPath(&pen, &path), Ok);
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

TEST(Paths, NeedAPenOrABrushAndAPath)
{
    TestPicture picture(8, 8);
    const Pen pen{Color(kRed)};
    const SolidBrush brush{Color(kRed)};
    GraphicsPath path;
    path.AddRectangle(Rect(1, 1, 5, 5));
    const Point corners[] = {{1, 1}, {6, 1}, {6, 6}};
    const PointF realCorners[] = {{1, 1}, {6, 1}, {6, 6}};
    EXPECT_EQ(picture.graphics.DrawPath(nullptr, &path), InvalidParameter);
    EXPECT_EQ(picture.graphics.FillPath(nullptr, &path), InvalidParameter);
    EXPECT_EQ(picture.graphics.FillPath(&brush, nullptr), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawPolygon(nullptr, corners, 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawPolygon(nullptr, realCorners, 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawPolygon(&pen, static_cast<const PointF*>(nullptr), 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.FillPolygon(nullptr, corners, 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.FillPolygon(nullptr, realCorners, 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.FillPolygon(&brush, static_cast<const PointF*>(nullptr), 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

TEST(Shapes, PathsAndArraysMustBeThere)
{
    if (differsHere("missing arguments"))
        return;
    TestPicture picture(8, 8);
    const Pen pen{Color(kRed)};
    const SolidBrush brush{Color(kRed)};
    const Point* const none = nullptr;
    EXPECT_EQ(picture.graphics.DrawPath(&pen, nullptr), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawLines(&pen, none, 2), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawBeziers(&pen, none, 4), InvalidParameter);
    EXPECT_EQ(picture.graphics.DrawPolygon(&pen, none, 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.FillPolygon(&brush, none, 3), InvalidParameter);
    EXPECT_EQ(picture.graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(pixelsDrawn(picture), 0);
}

} // namespace
} // namespace vq::test
