// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

#include <array>
#include <memory>
#include <sstream>

namespace vq::test {
namespace {

using namespace Gdiplus;

constexpr ARGB kBlack = 0xFF000000;
constexpr ARGB kWhite = 0xFFFFFFFF;

/// The cells that are not smoothed: rows from the top as hexadecimal bytes, the highest bit on the left, set where the
/// foreground is.
struct Cell
{
    int style;
    const char* rows;
};

// clang-format off
constexpr std::array<Cell, 50> kCells{{
    {0, "ff 00 00 00 00 00 00 00"},
    {1, "80 80 80 80 80 80 80 80"},
    {4, "ff 80 80 80 80 80 80 80"},
    {6, "80 00 00 00 08 00 00 00"},
    {7, "80 00 08 00 80 00 08 00"},
    {8, "88 00 22 00 88 00 22 00"},
    {9, "88 22 88 22 88 22 88 22"},
    {10, "aa 44 aa 11 aa 44 aa 11"},
    {11, "aa 55 aa 51 aa 55 aa 15"},
    {12, "aa 55 aa 55 aa 55 aa 55"},
    {13, "ee 55 bb 55 ee 55 bb 55"},
    {14, "77 dd 77 dd 77 dd 77 dd"},
    {15, "77 ff dd ff 77 ff dd ff"},
    {16, "ef ff fe ff ef ff fe ff"},
    {17, "ff ff ff f7 ff ff ff 7f"},
    {18, "88 44 22 11 88 44 22 11"},
    {19, "11 22 44 88 11 22 44 88"},
    {20, "cc 66 33 99 cc 66 33 99"},
    {21, "33 66 cc 99 33 66 cc 99"},
    {22, "c1 e0 70 38 1c 0e 07 83"},
    {23, "83 07 0e 1c 38 70 e0 c1"},
    {24, "88 88 88 88 88 88 88 88"},
    {25, "ff 00 00 00 ff 00 00 00"},
    {26, "55 55 55 55 55 55 55 55"},
    {27, "ff 00 ff 00 ff 00 ff 00"},
    {28, "cc cc cc cc cc cc cc cc"},
    {29, "ff ff 00 00 ff ff 00 00"},
    {30, "00 00 88 44 22 11 00 00"},
    {31, "00 00 11 22 44 88 00 00"},
    {32, "f0 00 00 00 0f 00 00 00"},
    {33, "80 80 80 80 08 08 08 08"},
    {34, "80 08 40 02 10 01 20 04"},
    {35, "b1 30 03 1b d8 c0 0c 8d"},
    {36, "81 42 24 18 81 42 24 18"},
    {37, "00 18 25 c0 00 18 25 c0"},
    {38, "01 02 04 08 18 24 42 81"},
    {39, "ff 80 80 80 ff 08 08 08"},
    {40, "88 54 22 45 88 14 22 51"},
    {41, "aa 55 aa 55 f0 f0 f0 f0"},
    {42, "00 10 08 10 00 80 01 80"},
    {43, "aa 00 80 00 80 00 80 00"},
    {44, "80 00 22 00 08 00 22 00"},
    {45, "03 84 48 30 0c 02 01 01"},
    {46, "ff 66 ff 99 ff 66 ff 99"},
    {47, "77 89 8f 8f 77 98 f8 f8"},
    {48, "ff 88 88 88 ff 88 88 88"},
    {49, "99 66 66 99 99 66 66 99"},
    {50, "f0 f0 f0 f0 0f 0f 0f 0f"},
    {51, "82 44 28 10 28 44 82 01"},
    {52, "10 38 7c fe 7c 38 10 00"},
}};
// clang-format on

/// The smoothed ones: '+' is 234/255 of the foreground, ':' 64/255.
struct SmoothedCell
{
    HatchStyle style;
    std::array<const char*, 8> rows;
};

constexpr std::array<SmoothedCell, 3> kSmoothedCells{{
    {HatchStyleForwardDiagonal,
     {"+:.....:", ":+:.....", ".:+:....", "..:+:...", "...:+:..", "....:+:.", ".....:+:", ":.....:+"}},
    {HatchStyleBackwardDiagonal,
     {":.....:+", ".....:+:", "....:+:.", "...:+:..", "..:+:...", ".:+:....", ":+:.....", "+:.....:"}},
    {HatchStyleDiagonalCross,
     {"+:....:+", ":+:..:+:", ".:+::+:.", "..:++:..", "..:++:..", ".:+::+:.", ":+:..:+:", "+:....:+"}},
}};

void fillWhole(TestPicture& picture, const Brush& brush, int width, int height)
{
    ASSERT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, width, height), Ok);
}

TEST(HatchBrush, CrossIsBlackOnEveryEighthRowAndColumn)
{
    TestPicture picture(16, 16);
    fillWhole(picture, HatchBrush(HatchStyleCross, Color(kBlack), Color(kWhite)), 16, 16);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            EXPECT_EQ(picture.at(x, y), Argb{x % 8 == 0 || y % 8 == 0 ? kBlack : kWhite}) << x << ", " << y;
}

TEST(HatchBrush, StartsAtTheRenderingOrigin)
{
    TestPicture picture(16, 16);
    picture.graphics.SetRenderingOrigin(3, 6);
    fillWhole(picture, HatchBrush(HatchStyleCross, Color(kBlack), Color(kWhite)), 16, 16);
    for (int y = 0; y < 16; ++y)
        for (int x = 0; x < 16; ++x)
            EXPECT_EQ(picture.at(x, y), Argb{x % 8 == 3 || y % 8 == 6 ? kBlack : kWhite}) << x << ", " << y;
}

TEST(HatchBrush, ANegativeRenderingOriginCountsTheSame)
{
    TestPicture picture(16, 1);
    picture.graphics.SetRenderingOrigin(-5, -8);
    fillWhole(picture, HatchBrush(HatchStyleVertical, Color(kBlack), Color(kWhite)), 16, 1);
    for (int x = 0; x < 16; ++x)
        EXPECT_EQ(picture.at(x, 0), Argb{x % 8 == 3 ? kBlack : kWhite}) << x;
}

TEST(HatchBrush, DoesNotStartAtTheRectangle)
{
    TestPicture picture(16, 16, kWhite);
    const HatchBrush brush(HatchStyleVertical, Color(kBlack), Color(kWhite));
    picture.graphics.FillRectangle(&brush, 3, 1, 7, 3);
    EXPECT_EQ(picture.find(kBlack), (TestPicture::Found{8, 1, 8, 3, 3}));
}

TEST(HatchBrush, EveryStyleHasItsCell)
{
    for (const Cell& cell : kCells) {
        TestPicture picture(16, 16);
        fillWhole(picture, HatchBrush(static_cast<HatchStyle>(cell.style), Color(kBlack), Color(kWhite)), 16, 16);
        std::istringstream rows(cell.rows);
        for (int y = 0; y < 8; ++y) {
            int bits = 0;
            rows >> std::hex >> bits;
            for (int x = 0; x < 16; ++x) {
                const Argb expected{bits >> (7 - x % 8) & 1 ? kBlack : kWhite};
                ASSERT_EQ(picture.at(x, y), expected) << "style " << cell.style << " at " << x << ", " << y;
                ASSERT_EQ(picture.at(x, y + 8), expected) << "style " << cell.style << " at " << x << ", " << y + 8;
            }
        }
    }
}

TEST(HatchBrush, DiagonalLinesAreSmoothed)
{
    for (const SmoothedCell& cell : kSmoothedCells) {
        TestPicture picture(16, 16);
        fillWhole(picture, HatchBrush(cell.style, Color(kBlack), Color(kWhite)), 16, 16);
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x) {
                const char kind = cell.rows[static_cast<std::size_t>(y % 8)][x % 8];
                const std::uint32_t expected = kind == '+' ? 0xFF151515 : kind == ':' ? 0xFFBFBFBF : kWhite;
                ASSERT_THAT(picture.at(x, y), Near(expected, 1)) << "style " << cell.style << " at " << x << ", " << y;
            }
    }
}

TEST(HatchBrush, SmoothedLinesOverNothingHaveTheColourOfTheForeground)
{
    TestPicture picture(8, 8);
    fillWhole(picture, HatchBrush(HatchStyleForwardDiagonal, Color(0xFFFF8040), Color(0)), 8, 8);
    EXPECT_THAT(picture.at(3, 3), Near(0xEAFF8040, 1));
    EXPECT_THAT(picture.at(4, 3), Near(0x40FF8040, 1));
    EXPECT_EQ(picture.at(6, 3), Argb{0});
}

TEST(HatchBrush, TransparentBackgroundLeavesThePictureAsItIs)
{
    TestPicture picture(8, 8, 0x40123456);
    fillWhole(picture, HatchBrush(HatchStyleHorizontal, Color(0xFFFF0000), Color(0)), 8, 8);
    EXPECT_EQ(picture.row(0), Row(8, Argb{0xFFFF0000}));
    EXPECT_EQ(picture.row(1), Row(8, Argb{0x40123456}));
}

TEST(HatchBrush, TellsItsStyleAndColours)
{
    const HatchBrush brush(HatchStyleLargeGrid, Color(0x80123456));
    Color colour;
    EXPECT_EQ(brush.GetType(), BrushTypeHatchFill);
    EXPECT_EQ(brush.GetHatchStyle(), HatchStyleCross);
    EXPECT_EQ(brush.GetForegroundColor(&colour), Ok);
    EXPECT_EQ(colour.GetValue(), 0x80123456U);
    EXPECT_EQ(brush.GetBackgroundColor(&colour), Ok);
    EXPECT_EQ(colour.GetValue(), kBlack);
    EXPECT_EQ(brush.GetForegroundColor(nullptr), InvalidParameter);
    EXPECT_EQ(brush.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(brush.GetLastStatus(), Ok);
}

TEST(HatchBrush, CloneDrawsTheSame)
{
    const HatchBrush brush(HatchStyleWave, Color(0xFF102030), Color(0xFF80FF00));
    const std::unique_ptr<Brush> clone(brush.Clone());
    TestPicture first(8, 8);
    TestPicture second(8, 8);
    fillWhole(first, brush, 8, 8);
    fillWhole(second, *clone, 8, 8);
    EXPECT_EQ(first.all(), second.all());
}

TEST(HatchBrush, UnknownStyleIsInvalidAndFillsNothing)
{
    for (const int style : {-1, 53, 1000}) {
        HatchBrush brush(static_cast<HatchStyle>(style), Color(kBlack));
        EXPECT_EQ(brush.GetLastStatus(), InvalidParameter) << style;
        EXPECT_EQ(brush.Clone(), nullptr);
        TestPicture picture(2, 2);
        EXPECT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, 2, 2), InvalidParameter);
        EXPECT_EQ(picture.find(0).count, 4);
    }
    EXPECT_EQ(int{HatchStyleTotal}, 53);
    EXPECT_EQ(int{HatchStyleMin}, 0);
    EXPECT_EQ(int{HatchStyleMax}, 52);
}

} // namespace
} // namespace vq::test
