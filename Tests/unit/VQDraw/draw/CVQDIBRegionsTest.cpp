// SPDX-License-Identifier: MIT
#include "DrawnImage.h"
#include "parity/KnownDifferences.h"

namespace vq::test {
namespace {

constexpr ULONG kBefore = 0xFF405060;

std::vector<CPoint> triangle()
{
    return {{1, 1}, {11, 1}, {1, 11}};
}

/// A square within a square, in one line.
std::vector<CPoint> squareWithHole()
{
    return {{0, 0}, {8, 0}, {8, 8}, {0, 8}, {0, 0}, {2, 2}, {6, 2}, {6, 6}, {2, 6}, {2, 2}};
}

std::vector<CPoint> pentagram()
{
    return {{30, 2}, {47, 53}, {3, 21}, {57, 21}, {13, 53}};
}

TEST(FillRgn, CoversThePixelsWhoseCentreIsInside)
{
    HardImage image(14, 14);
    image.FillRgn(triangle().data(), 3, kRed, 255);
    for (LONG y = 0; y < 14; ++y)
        EXPECT_EQ(columnsDrawn(image, y), y >= 1 && y <= 10 ? fromTo(1, 11 - y) : Places()) << y;
    EXPECT_EQ(find(image, kRedPixel).count, 55);
}

TEST(FillRgn, LeavesOutWhatItCoversTwice)
{
    HardImage image(10, 10);
    image.FillRgn(squareWithHole().data(), 10, kRed, 255);
    EXPECT_EQ(drawn(image), rows({"########..", "########..", "##....##..", "##....##..", "##....##..", "##....##..",
                                  "########..", "########..", "..........", ".........."}));

    for (const bool smooth : {false, true}) {
        HardImage star(60, 60);
        star.EnableAntialias(smooth);
        star.FillRgn(pentagram().data(), 5, kRed, 255);
        EXPECT_EQ(at(star, 30, 30), 0u) << "its middle";
        EXPECT_EQ(at(star, 30, 12), kRedPixel) << "its upper ray";
        EXPECT_EQ(at(star, 12, 24), kRedPixel) << "its left ray";
    }
}

TEST(FillRgn, OfAlphaZeroChangesNothing)
{
    HardImage image(14, 14, kBefore);
    image.FillRgn(triangle().data(), 3, kRed, 0);
    EXPECT_EQ(find(image, kBefore).count, 14 * 14);
}

TEST(FillRgn, LeavesItsPointsAlone)
{
    HardImage image(14, 14);
    std::vector<CPoint> points = triangle();
    image.FillRgn(points.data(), 3, kRed, 255);
    image.DrawRgn(points.data(), 3, 2, kRed, 255);
    EXPECT_EQ(points, triangle());
}

TEST(DrawRgn, ClosesItsPolygon)
{
    HardImage image(14, 14);
    image.DrawRgn(triangle().data(), 3, 1, kRed, 255);
    EXPECT_EQ(columnsDrawn(image, 1), fromTo(1, 11));
    EXPECT_EQ(rowsDrawn(image, 1), fromTo(1, 11)) << "the edge from the last point to the first one";
    for (LONG y = 2; y < 11; ++y)
        EXPECT_EQ(columnsDrawn(image, y), (Places{1, 12 - y})) << y;
}

TEST(DrawRgn, HasAWidth)
{
    HardImage image(30, 30);
    std::vector<CPoint> square{{5, 5}, {20, 5}, {20, 20}, {5, 20}};
    image.DrawRgn(square.data(), 4, 3, kRed, 255);
    EXPECT_EQ(rowsDrawn(image, 12), (Places{4, 5, 6, 19, 20, 21}));
    EXPECT_EQ(columnsDrawn(image, 12), (Places{4, 5, 6, 19, 20, 21}));
}

TEST(DrawRgn, DoesNotDarkenWhereItCrossesItself)
{
    HardImage image(60, 60);
    image.DrawRgn(pentagram().data(), 5, 3, kRed, 128);
    EXPECT_GT(find(image, 0x80FF0000).count, 400);
    EXPECT_EQ(findDrawn(image).count, find(image, 0x80FF0000).count);
}

TEST(Regions, OfFewerThanThreePointsAreNothing)
{
    HardImage image(14, 14, kBefore);
    std::vector<CPoint> points = triangle();
    for (const int count : {2, 1, 0, -1, std::numeric_limits<int>::min()}) {
        image.FillRgn(points.data(), count, kRed, 255);
        image.DrawRgn(points.data(), count, 3, kRed, 255);
        image.ClearRgn(points.data(), count, kRed, 255);
        image.ClearRgnPath(points.data(), count, 3, kRed, 255);
    }
    EXPECT_EQ(find(image, kBefore).count, 14 * 14);
}

TEST(Regions, WithoutPointsAreNothing)
{
    HardImage image(14, 14, kBefore);
    image.FillRgn(nullptr, 3, kRed, 255);
    image.DrawRgn(nullptr, 3, 1, kRed, 255);
    image.ClearRgn(nullptr, 3, kRed, 255);
    image.ClearRgnPath(nullptr, 3, 1, kRed, 255);
    EXPECT_EQ(find(image, kBefore).count, 14 * 14);
}

TEST(ClearRgn, ReplacesColourAndAlpha)
{
    HardImage image(14, 14, kBefore);
    image.ClearRgn(triangle().data(), 3, kRed, 128);
    for (LONG y = 0; y < 14; ++y)
        for (LONG x = 0; x < 14; ++x) {
            const bool inside = x >= 1 && y >= 1 && x + y <= 11;
            EXPECT_EQ(at(image, x, y), inside ? 0x80FF0000u : kBefore) << x << ", " << y;
        }
}

TEST(ClearRgn, OfAlphaZeroClears)
{
    HardImage image(14, 14, kBefore);
    image.ClearRgn(triangle().data(), 3, kRed, 0);
    EXPECT_EQ(find(image, 0).count, 55);
    EXPECT_EQ(find(image, kBefore).count, 14 * 14 - 55);
}

TEST(ClearRgn, OfASmoothImageReplacesWhatItCoversWhole)
{
    SmoothImage image(20, 20, kBefore);
    std::vector<CPoint> square{{4, 4}, {14, 4}, {14, 14}, {4, 14}};
    image.ClearRgn(square.data(), 4, kRed, 128);
    for (LONG y = 5; y < 14; ++y)
        for (LONG x = 5; x < 14; ++x)
            EXPECT_EQ(at(image, x, y), 0x80FF0000u) << x << ", " << y;
    EXPECT_EQ(at(image, 3, 9), kBefore);
    EXPECT_EQ(at(image, 16, 9), kBefore);
}

TEST(ClearRgnPath, ReplacesColourAndAlphaAlongTheOutline)
{
    HardImage image(20, 20, kBefore);
    std::vector<CPoint> square{{4, 4}, {14, 4}, {14, 14}, {4, 14}};
    image.ClearRgnPath(square.data(), 4, 1, kRed, 128);
    EXPECT_EQ(find(image, 0x80FF0000), (Found{4, 4, 14, 14, 40}));
    if (differsHere("outlines under SourceCopy"))
        return;
    EXPECT_EQ(find(image, kBefore).count, 400 - 40);
    image.ClearRgnPath(square.data(), 4, 3, kRed, 0);
    EXPECT_EQ(find(image, 0), (Found{3, 3, 15, 15, 13 * 13 - 7 * 7}));
}

TEST(ClearRgn, LetsWhatFollowsBlendAgain)
{
    HardImage image(14, 14, 0xFF000000);
    std::vector<CPoint> points = triangle();
    image.ClearRgn(points.data(), 3, kRed, 255);
    image.ClearRgnPath(points.data(), 3, 1, kRed, 255);
    EXPECT_EQ(image.GetGraphics()->GetCompositingMode(), Gdiplus::CompositingModeSourceOver);
    image.FillRect(CRect(12, 12, 14, 14), kRed, LONG{128});
    EXPECT_TRUE(isNear(at(image, 13, 13), 0xFF800000, 1));
}

} // namespace
} // namespace vq::test
