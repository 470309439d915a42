// SPDX-License-Identifier: MIT
// Filters that read neighbours: small pictures typed by hand.
#include "NeighbourhoodReference.h"
#include "Trial.h"
#include "support/Pictures.h"

namespace vq::test {
namespace {

constexpr ULONG grey(ULONG level)
{
    return 0xFF000000 | level * 0x010101;
}

/// Each number is the grey level of an opaque pixel.
Pixels greys(std::initializer_list<ULONG> levels)
{
    Pixels result;
    for (const ULONG level : levels)
        result.push_back(grey(level));
    return result;
}

void expectUnchangedBy(int width, int height, void (*act)(CVQDIB&))
{
    CVQDIB image(width, height);
    fillRandom(image, 1);
    const Pixels before = pixels(image);

    act(image);

    EXPECT_TRUE(shows(image, before)) << width << " x " << height;
}

TEST(CVQDIBSmooth3x3Edges, NeedThreeRowsAndColumns)
{
    for (const auto act : {+[](CVQDIB& i) { i.Smooth3x3(); }, +[](CVQDIB& i) { i.Smooth3x3(0, 99); },
                           +[](CVQDIB& i) { i.Smooth3x3(0, 0, 99, 99); }}) {
        expectUnchangedBy(9, 2, act);
        expectUnchangedBy(9, 1, act);
        expectUnchangedBy(2, 9, act);
        expectUnchangedBy(1, 9, act);
    }
}

TEST(CVQDIBSmooth3x3Edges, KeepTheFrameAndAlpha)
{
    CVQDIB image(9, 7);
    fillRandom(image, 1);
    const Pixels before = pixels(image);

    image.Smooth3x3(-1000, -1000, 1000, 1000);

    for (LONG y = 0; y < 7; ++y)
        for (LONG x = 0; x < 9; ++x) {
            const ULONG old = before[static_cast<std::size_t>(9 * y + x)];
            EXPECT_EQ(image(x, y) >> 24, old >> 24);
            if (x == 0 || y == 0 || x == 8 || y == 6) {
                EXPECT_EQ(image(x, y), old) << x << ' ' << y;
            }
        }
}

TEST(CVQDIBSmooth3x3Edges, DividesTheSumOfNineByNine)
{
    CVQDIB image(3, 3);
    paint(image, Pixels(9, 0xFFFFFFFF));
    image.Smooth3x3();
    EXPECT_EQ(image(1, 1), 0xFFFFFFFF);

    paint(image, greys({17, 0, 0, 0, 0, 0, 0, 0, 0}));
    image.Smooth3x3();
    EXPECT_TRUE(shows(image, greys({17, 0, 0, 0, 1, 0, 0, 0, 0})));
}

TEST(CVQDIBSmooth3x3Edges, ARectangleIsNotNormalisedAndEndsBeforeItsFarEdges)
{
    expectUnchangedBy(9, 9, [](CVQDIB& i) { i.Smooth3x3(CRect(7, 7, 2, 2)); });
    expectUnchangedBy(9, 9, [](CVQDIB& i) { i.Smooth3x3(CRect(3, 3, 3, 8)); });

    CVQDIB image(5, 3);
    paint(image, greys({90, 0, 0, 0, 90, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0}));
    image.Smooth3x3(1, 1, 2, 2);
    EXPECT_TRUE(shows(image, greys({90, 0, 0, 0, 90, 0, 10, 0, 0, 0, 0, 0, 0, 0, 0})));
}

TEST(CVQDIBSmoothEdges, RadiusZeroAndASinglePixelStayAsTheyAre)
{
    expectUnchangedBy(9, 7, [](CVQDIB& i) { i.Smooth(0); });
    expectUnchangedBy(1, 1, [](CVQDIB& i) { i.Smooth(0); });

    // Nine times a value by the float 1/9 may fall short of the value: no level does.
    CVQDIB image(1, 1);
    for (ULONG level = 0; level < 256; ++level) {
        paint(image, {level * 0x01010101});
        image.Smooth(1);
        EXPECT_TRUE(shows(image, {level * 0x01010101}));
    }
}

TEST(CVQDIBSmoothEdges, WrapsRoundAllEdges)
{
    CVQDIB image(4, 4);
    Pixels content(16, 0);
    content[0] = 0x09121B24; // 9, 18, 27, 36
    paint(image, content);

    image.Smooth(1);

    constexpr ULONG o = 0x01020304;
    EXPECT_TRUE(shows(image, {o, o, 0, o, //
                              o, o, 0, o, //
                              0, 0, 0, 0, //
                              o, o, 0, o}));
}

void expectSmoothed(int width, int height, reference::Content content, ULONG radius)
{
    reference::Picture expected = reference::picture(width, height, content, radius);
    CVQDIB image(width, height);
    paint(image, Pixels(expected.pixels.begin(), expected.pixels.end()));
    reference::smooth(expected, radius);

    image.Smooth(radius);

    ASSERT_TRUE(shows(image, Pixels(expected.pixels.begin(), expected.pixels.end())))
        << width << " x " << height << ", radius " << radius;
}

TEST(CVQDIBSmoothEdges, EqualsThePlainSumUpToTheRadiusWhereFloatsEnd)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {3, 2}, {9, 5}})
        for (const ULONG radius : {12u, 15u, 16u, 31u, 64u, 127u}) {
            expectSmoothed(width, height, reference::Content::Random, radius);
            expectSmoothed(width, height, reference::Content::Extremes, radius);
        }
    expectSmoothed(258, 1, reference::Content::Extremes, 127);
    expectSmoothed(1, 90, reference::Content::Random, 44);
    expectSmoothed(30, 30, reference::Content::Random, 20);
}

TEST(CVQDIBSmoothEdges, AWhiteImageStaysWithinOneStepOfWhiteAtEveryRadius)
{
    for (ULONG radius = 1; radius <= 127; ++radius)
        expectSmoothed(1, 2, reference::Content::AllEqual, radius);
    for (const ULONG radius : {1u, 2u, 3u, 7u, 50u, 126u, 127u}) {
        CVQDIB image(3, 3);
        paint(image, Pixels(9, 0xFFFFFFFF));

        image.Smooth(radius);

        const ULONG result = image(0, 0);
        EXPECT_TRUE(result == 0xFFFFFFFF || result == 0xFEFEFEFE) << radius; // the float 1 / count may fall short
    }
}

TEST(CVQDIBSmooth2x2Edges, LeavesTheFirstRowAndOnePixelMore)
{
    CVQDIB image(3, 3);
    fillRandom(image, 1);
    const Pixels before = pixels(image);

    image.Smooth2x2();

    for (std::size_t i = 0; i <= 3; ++i)
        EXPECT_EQ(pixels(image)[i], before[i]) << i;
}

TEST(CVQDIBSmooth2x2Edges, AveragesAlphaAndWrapsToTheRowAbove)
{
    CVQDIB image(3, 3);
    paint(image, {0x00000000, 0x00000000, 0x40000000, //
                  0x80000000, 0x00000000, 0x00000000, //
                  0x00000000, 0xC0000000, 0x00000000});

    image.Smooth2x2();

    EXPECT_TRUE(shows(image, {0x00000000, 0x00000000, 0x40000000,    //
                              0x80000000, 0x20000000, 0x10000000,    //
                              0x30000000, 0x50000000, 0x00000000})); // of the last pixel only blue counts
}

TEST(CVQDIBSmooth2x2Edges, TheLastPixelSmoothsItsBlueOnly)
{
    CVQDIB image(2, 2);
    paint(image, {0x04040404, 0x08080808, 0x0C0C0C0C, 0x10101010});

    image.Smooth2x2();

    EXPECT_TRUE(shows(image, {0x04040404, 0x08080808, 0x0C0C0C0C, 0x1010100A}));
}

TEST(CVQDIBSmooth2x2Edges, ImagesOfOneRowOrOnePixelStay)
{
    expectUnchangedBy(1, 1, [](CVQDIB& i) { i.Smooth2x2(); });
    expectUnchangedBy(50, 1, [](CVQDIB& i) { i.Smooth2x2(); });
    expectUnchangedBy(1, 2, [](CVQDIB& i) { i.Smooth2x2(); });
}

TEST(CVQDIBAlphaSmooth3x3Edges, NeedsSixRowsAndColumns)
{
    expectUnchangedBy(5, 100, [](CVQDIB& i) { i.AlphaSmooth3x3(); });
    expectUnchangedBy(100, 5, [](CVQDIB& i) { i.AlphaSmooth3x3(); });
}

TEST(CVQDIBAlphaSmooth3x3Edges, ChangesAlphaUpToOneHundredOnly)
{
    CVQDIB image(6, 6);
    paint(image, Pixels(36, 0xFFABCDEF));
    image(0, 0) = 0x64123456; // 100
    image(3, 3) = 0x65123456; // 101

    image.AlphaSmooth3x3();

    // The 25 pixels around (0, 0) wrap round the edges: (0, 0) itself, 24 others, of which none is (3, 3).
    constexpr ULONG kMean = (24 * 255 + 100) / 25;
    EXPECT_EQ(image(0, 0), kMean << 24 | 0x123456);
    EXPECT_EQ(image(3, 3), 0x65123456u);
    EXPECT_EQ(image(1, 1), 0xFFABCDEFu);
}

TEST(CVQDIBMedianEdges, RedBecomesBlueInsideTheFrame)
{
    CVQDIB image(4, 3);
    paint(image, Pixels(12, 0x80FF0000));

    image.Median(nullptr);

    constexpr ULONG r = 0x80FF0000, b = 0x800000FF;
    EXPECT_TRUE(shows(image, {r, r, r, r, //
                              r, b, b, r, //
                              r, r, r, r}));
}

TEST(CVQDIBMedianEdges, AFlatGreyImageStays)
{
    CVQDIB image(9, 9);
    paint(image, Pixels(81, 0x40777777));

    image.Median(nullptr);

    EXPECT_TRUE(shows(image, Pixels(81, 0x40777777)));
}

TEST(CVQDIBMedianEdges, TakesTheFifthOfNine)
{
    CVQDIB image(3, 3);
    paint(image, greys({9, 1, 8, 2, 0, 3, 7, 6, 5}));

    image.Median(nullptr);

    EXPECT_TRUE(shows(image, greys({9, 1, 8, 2, 5, 3, 7, 6, 5})));
}

CRect medianArea(int width, int height, CRect area)
{
    CVQDIB image(width, height);
    image.Median(&area);
    return area;
}

TEST(CVQDIBMedianEdges, WritesTheRectangleBack)
{
    EXPECT_EQ(medianArea(20, 20, CRect(9, 8, 3, 2)), CRect(3, 2, 9, 8));
    EXPECT_EQ(medianArea(20, 20, CRect(-5, -5, 99, 99)), CRect(1, 1, 18, 18));
    EXPECT_EQ(medianArea(20, 20, CRect(30, 30, 40, 40)), CRect(18, 18, 18, 18));
    EXPECT_EQ(medianArea(20, 40, CRect(2, 2, 5, 19)), CRect(2, 2, 5, 38)); // beyond the last column but one
    EXPECT_EQ(medianArea(40, 20, CRect(2, 2, 5, 30)), CRect(2, 2, 5, 30)); // outside the image
    EXPECT_EQ(medianArea(20, 20, CRect(2, -9, 5, -7)), CRect(2, 1, 5, 1));
}

TEST(CVQDIBMedianEdges, SmallerImagesLeaveTheRectangleAlone)
{
    EXPECT_EQ(medianArea(2, 9, CRect(9, 8, 3, -2)), CRect(9, 8, 3, -2));
    EXPECT_EQ(medianArea(9, 2, CRect(9, 8, 3, -2)), CRect(9, 8, 3, -2));
}

TEST(CVQDIBMedianEdges, ARectangleThatReachesOutsideVisitsTheInteriorOnly)
{
    CVQDIB image(40, 6);
    paint(image, Pixels(240, 0x80FF0000));
    CRect area(2, 2, 3, 30);

    image.Median(&area);

    Pixels expected(240, 0x80FF0000);
    for (const std::size_t y : {2u, 3u, 4u})
        for (const std::size_t x : {2u, 3u})
            expected[40 * y + x] = 0x800000FF;
    EXPECT_TRUE(shows(image, expected));
    EXPECT_EQ(area, CRect(2, 2, 3, 30));
}

TEST(CVQDIBLaplacianEdges, FlatAreasAreMiddleGreyAlphaToo)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 5}, {5, 1}, {2, 2}, {33, 7}}) {
        CVQDIB image(width, height);
        image.Clear(BYTE{1}, BYTE{200}, BYTE{255}, BYTE{0});

        image.Laplacian(2);

        EXPECT_TRUE(shows(image, Pixels(static_cast<std::size_t>(width * height), 0x7F7F7F7F))) << width;
    }
}

TEST(CVQDIBLaplacianEdges, ReadsTheChosenByteAndRoundsDown)
{
    for (const LONG number : {LONG{0}, LONG{1}, LONG{2}, LONG{3}, LONG{7}, LONG{-1}}) {
        CVQDIB image(5, 5);
        image(2, 2) = ULONG{255} << (8 * (number & 3));

        image.Laplacian(number);

        EXPECT_EQ(image(2, 2), 0xFFFFFFFFu) << number;
        EXPECT_EQ(image(1, 1), 0x6F6F6F6Fu) << number; // -255 >> 3 = -32, (223) >> 1 = 111
        EXPECT_EQ(image(0, 0), 0x7F7F7F7Fu) << number;
    }
}

TEST(CVQDIBMosaicEdges, FillsWholeBlocksAndLeavesTheStrips)
{
    CVQDIB image(10, 10);
    fillRandom(image, 1);
    const Pixels before = pixels(image);
    Pixels expected = before;
    for (std::size_t y = 0; y < 8; ++y)
        for (std::size_t x = 0; x < 8; ++x)
            expected[10 * y + x] = before[10 * (y / 4 * 4) + x / 4 * 4];

    image.Mosaic(4);

    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBMosaicEdges, SizesThatLeaveNothingToDoChangeNothing)
{
    expectUnchangedBy(10, 10, [](CVQDIB& i) { i.Mosaic(10); });
    expectUnchangedBy(10, 10, [](CVQDIB& i) { i.Mosaic(1); });
    expectUnchangedBy(10, 10, [](CVQDIB& i) { i.Mosaic(0); });
    expectUnchangedBy(10, 10, [](CVQDIB& i) { i.Mosaic(-4); });
    expectUnchangedBy(30, 4, [](CVQDIB& i) { i.Mosaic(4); });
    expectUnchangedBy(1, 30, [](CVQDIB& i) { i.Mosaic(2); });
    expectUnchangedBy(2, 2, [](CVQDIB& i) { i.Mosaic(2); });
}

} // namespace
} // namespace vq::test
