// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace vq::test::cvqdibClearTests {
namespace {

constexpr LONG kMax = std::numeric_limits<LONG>::max();
constexpr LONG kMin = std::numeric_limits<LONG>::min();

/// Whether a rectangle with both edges inside covers the pixel, once its corners are in order and cut to the image.
bool covers(const CRect& rect, LONG x, LONG y, LONG width, LONG height)
{
    const LONG left = std::max<LONG>(std::min(rect.left, rect.right), 0);
    const LONG right = std::min<LONG>(std::max(rect.left, rect.right), width - 1);
    const LONG top = std::max<LONG>(std::min(rect.top, rect.bottom), 0);
    const LONG bottom = std::min<LONG>(std::max(rect.top, rect.bottom), height - 1);
    return left <= x && x <= right && top <= y && y <= bottom;
}

Pixels filled(const Pixels& before, LONG width, LONG height, const CRect& rect, ULONG colourBits, ULONG keptBits)
{
    Pixels result = before;
    for (LONG y = 0; y < height; ++y) {
        for (LONG x = 0; x < width; ++x) {
            ULONG& pixel = result[static_cast<std::size_t>(y * width + x)];
            if (covers(rect, x, y, width, height))
                pixel = (pixel & keptBits) | colourBits;
        }
    }
    return result;
}

std::vector<CRect> interestingRects()
{
    std::vector<CRect> rects = {
        CRect(0, 0, 0, 0),       CRect(2, 3, 2, 3),       CRect(0, 0, 100, 100),         CRect(-3, -3, 2, 2),
        CRect(5, 5, 1, 1),       CRect(-10, 2, -1, 3),    CRect(12, 0, 20, 4),           CRect(0, 9, 12, 20),
        CRect(3, -9, 5, -1),     CRect(11, 8, 30, 30),    CRect(kMin, kMin, kMax, kMax), CRect(kMax, kMax, kMin, kMin),
        CRect(kMin, 0, kMin, 5), CRect(kMax, 0, kMax, 5), CRect(0, kMax, 5, kMin),       CRect(4, 7, -4, 2),
    };
    std::mt19937 generator(17);
    const auto coordinate = [&] { return static_cast<LONG>(generator() % 30) - 9; };
    for (int i = 0; i < 200; ++i) {
        const LONG left = coordinate();
        const LONG top = coordinate();
        const LONG right = coordinate();
        const LONG bottom = coordinate();
        rects.emplace_back(left, top, right, bottom);
    }
    return rects;
}

std::string name(const CRect& rect)
{
    std::ostringstream text;
    text << '(' << rect.left << ", " << rect.top << ", " << rect.right << ", " << rect.bottom << ')';
    return text.str();
}

constexpr std::pair<int, int> kSizes[] = {{1, 1},  {2, 1},  {3, 1},  {5, 3},   {15, 1},
                                          {16, 2}, {17, 3}, {63, 5}, {257, 31}};

TEST(CVQDIBClear, FourBytesAreRedGreenBlueAlpha)
{
    CVQDIB image(3, 2);

    image.Clear(BYTE{0x10}, BYTE{0x20}, BYTE{0x30}, BYTE{0x40});

    EXPECT_TRUE(shows(image, Pixels(6, 0x40102030)));
}

TEST(CVQDIBClear, AColourIsOpaque)
{
    CVQDIB image(3, 2);

    image.Clear(COLORREF{RGB(0x10, 0x20, 0x30)});

    EXPECT_TRUE(shows(image, Pixels(6, 0xFF102030)));
}

TEST(CVQDIBClear, AColourTakesItsAlphaFromTheArgument)
{
    CVQDIB image(3, 2);

    image.Clear(COLORREF{RGB(0x10, 0x20, 0x30)}, BYTE{0x55});

    EXPECT_TRUE(shows(image, Pixels(6, 0x55102030)));
}

TEST(CVQDIBClear, IgnoresTheTopByteOfAColour)
{
    CVQDIB opaque(2, 1);
    CVQDIB faint(2, 1);
    CVQDIB block(2, 1);

    opaque.Clear(COLORREF{0xEE302010});
    faint.Clear(COLORREF{0xEE302010}, BYTE{7});
    block.Clear(CRect(0, 0, 1, 0), COLORREF{0xEE302010}, 0);

    EXPECT_TRUE(shows(opaque, Pixels(2, 0xFF102030)));
    EXPECT_TRUE(shows(faint, Pixels(2, 0x07102030)));
    EXPECT_TRUE(shows(block, Pixels(2, 0x00102030)));
}

TEST(CVQDIBClear, AGdiplusColourIsStoredAsItIs)
{
    CVQDIB image(3, 2);

    image.Clear(Gdiplus::Color(0x00ABCDEF));

    EXPECT_TRUE(shows(image, Pixels(6, 0x00ABCDEF)));
}

TEST(CVQDIBClear, FourBytesAndAColourWithAlphaGiveTheSamePixels)
{
    CVQDIB bytes(1, 1);
    CVQDIB colour(1, 1);
    for (const ULONG value : randomPixels(300, 3)) {
        const auto byte = [&](int place) { return static_cast<BYTE>(value >> (8 * place)); };
        bytes.Clear(byte(0), byte(1), byte(2), byte(3));
        colour.Clear(COLORREF{value}, byte(3));
        ASSERT_EQ(bytes[0], colour[0]);
    }
}

TEST(CVQDIBClear, FillsEveryPixelOfEverySize)
{
    for (const auto& [width, height] : kSizes) {
        CVQDIB image(width, height);
        const auto count = static_cast<std::size_t>(image.GetSize());
        fillRandom(image, 1);

        image.Clear(BYTE{1}, BYTE{2}, BYTE{3}, BYTE{4});
        EXPECT_TRUE(shows(image, Pixels(count, 0x04010203)));
        image.Clear(COLORREF{0x030201});
        EXPECT_TRUE(shows(image, Pixels(count, 0xFF010203)));
        image.Clear(COLORREF{0x030201}, BYTE{9});
        EXPECT_TRUE(shows(image, Pixels(count, 0x09010203)));
        image.Clear(Gdiplus::Color(0x80FFFFFF));
        EXPECT_TRUE(shows(image, Pixels(count, 0x80FFFFFF)));
    }
}

TEST(CVQDIBClearRect, IncludesBothEdges)
{
    CVQDIB image(12, 12);

    image.Clear(CRect(0, 0, 10, 10), COLORREF{0x0000FF}, 255);

    const Pixels result = pixels(image);
    EXPECT_EQ(std::count(result.begin(), result.end(), 0xFFFF0000u), 11 * 11);
    EXPECT_EQ(image(10, 10), 0xFFFF0000u);
    EXPECT_EQ(image(11, 10), 0u);
    EXPECT_EQ(image(10, 11), 0u);
}

TEST(CVQDIBClearRect, CutsTheRectangleToTheImageAndClampsAlpha)
{
    CVQDIB image(4, 4);

    image.Clear(CRect(-3, -3, 2, 2), COLORREF{RGB(1, 2, 3)}, 300);

    constexpr ULONG c = 0xFF010203;
    EXPECT_TRUE(shows(image, {c, c, c, 0, //
                              c, c, c, 0, //
                              c, c, c, 0, //
                              0, 0, 0, 0}));
}

TEST(CVQDIBClearRect, PutsReversedCornersInOrder)
{
    CVQDIB image(7, 7);
    const Pixels before = pixels(image);

    image.Clear(CRect(5, 5, 1, 1), COLORREF{RGB(1, 2, 3)}, 255);

    EXPECT_TRUE(shows(image, filled(before, 7, 7, CRect(1, 1, 5, 5), 0xFF010203, 0)));
    EXPECT_EQ(image(1, 1), 0xFF010203u);
    EXPECT_EQ(image(5, 5), 0xFF010203u);
    EXPECT_EQ(image(0, 1), 0u);
    EXPECT_EQ(image(6, 5), 0u);
}

TEST(CVQDIBClearRect, ClampsAlphaAtBothEnds)
{
    const std::pair<LONG, ULONG> alphas[] = {{-5, 0},    {0, 0},     {1, 1},     {254, 254},  {255, 255},
                                             {256, 255}, {300, 255}, {384, 255}, {kMax, 255}, {kMin, 0}};
    CVQDIB image(2, 2);
    for (const auto& [alpha, stored] : alphas) {
        image.Clear(CRect(0, 0, 1, 1), COLORREF{RGB(0x11, 0x22, 0x33)}, alpha);
        EXPECT_TRUE(shows(image, Pixels(4, stored << 24 | 0x112233))) << "alpha " << alpha;
    }
}

TEST(CVQDIBClearRect, EqualsAPlainFillForAnyRectangle)
{
    for (const CRect& rect : interestingRects()) {
        CVQDIB image(12, 9);
        fillRandom(image, 2);
        const Pixels before = pixels(image);

        image.Clear(rect, COLORREF{RGB(0xAB, 0xCD, 0xEF)}, 0x12);

        ASSERT_TRUE(shows(image, filled(before, 12, 9, rect, 0x12ABCDEF, 0))) << name(rect);
    }
}

TEST(CVQDIBClearRect, LeavesTheCallersRectangleAlone)
{
    CVQDIB image(4, 4);
    const CRect rect(9, 9, -9, -9);

    image.Clear(rect, COLORREF{0}, 255);
    image.ClearAlpha(rect, 1);

    EXPECT_EQ(name(rect), "(9, 9, -9, -9)");
}

TEST(CVQDIBClearAlpha, SetsAlphaAndKeepsColours)
{
    for (const auto& [width, height] : kSizes) {
        for (const BYTE alpha : {BYTE{0}, BYTE{1}, BYTE{0x7F}, BYTE{0x80}, BYTE{0xFF}}) {
            CVQDIB image(width, height);
            fillRandom(image, alpha);
            Pixels expected = pixels(image);
            for (ULONG& pixel : expected)
                pixel = (pixel & 0x00FFFFFF) | static_cast<ULONG>(alpha) << 24;

            image.ClearAlpha(alpha);

            ASSERT_TRUE(shows(image, expected)) << width << " x " << height << ", alpha " << int{alpha};
        }
    }
}

TEST(CVQDIBClearAlphaRect, LimitsAlphaAboveOnly)
{
    const std::pair<ULONG, ULONG> alphas[] = {{0, 0},     {1, 1},     {255, 255},        {256, 255},
                                              {300, 255}, {384, 255}, {0x80000000, 255}, {0xFFFFFFFF, 255}};
    CVQDIB image(2, 2);
    for (const auto& [alpha, stored] : alphas) {
        paint(image, Pixels(4, 0x55112233));

        image.ClearAlpha(CRect(0, 0, 1, 1), alpha);

        EXPECT_TRUE(shows(image, Pixels(4, stored << 24 | 0x112233))) << "alpha " << alpha;
    }
}

TEST(CVQDIBClearAlphaRect, EqualsAPlainFillForAnyRectangle)
{
    for (const CRect& rect : interestingRects()) {
        CVQDIB image(12, 9);
        fillRandom(image, 5);
        const Pixels before = pixels(image);

        image.ClearAlpha(rect, 0x9A);

        ASSERT_TRUE(shows(image, filled(before, 12, 9, rect, 0x9A000000, 0x00FFFFFF))) << name(rect);
    }
}

TEST(CVQDIBClearScanlineAlpha, SetsAlphaOfOneRow)
{
    for (LONG row = 0; row < 4; ++row) {
        CVQDIB image(37, 4);
        fillRandom(image, 6);
        const Pixels before = pixels(image);

        image.ClearScanlineAlpha(row, BYTE{0x21});

        EXPECT_TRUE(shows(image, filled(before, 37, 4, CRect(0, row, 36, row), 0x21000000, 0x00FFFFFF)));
    }
}

TEST(CVQDIBClearScanlineAlpha, DoesNothingOutsideTheImage)
{
    CVQDIB image(3, 4);
    fillRandom(image, 7);
    const Pixels before = pixels(image);
    for (const LONG row : {LONG{-1}, LONG{4}, kMin, kMax})
        image.ClearScanlineAlpha(row, BYTE{0x21});

    EXPECT_TRUE(shows(image, before));
}

} // namespace
} // namespace vq::test::cvqdibClearTests
