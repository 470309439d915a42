// SPDX-License-Identifier: MIT
// Coordinates far beyond an image cost no time and no memory, and hurt nothing.
#include "AllMembers.h"
#include "DrawnImage.h"
#include "parity/KnownDifferences.h"

#include <array>
#include <chrono>
#include <limits>

namespace vq::test {
namespace {

using Clock = std::chrono::steady_clock;

/// "At once": a call that went over all pixels between its coordinates would take seconds.
constexpr std::chrono::milliseconds kAtOnce{500};

void expectAtOnce(CVQDIB& image, const Member& member, const Corners& box)
{
    const auto begin = Clock::now();
    member.draw(image, box);
    EXPECT_LT(Clock::now() - begin, kAtOnce)
        << member.name << ' ' << box.x1 << ", " << box.y1 << ", " << box.x2 << ", " << box.y2;
}

/// Four bits choose each coordinate from a pair.
Corners choose(unsigned bits, LONG low, LONG high)
{
    const auto one = [&](unsigned bit) { return bits >> bit & 1 ? high : low; };
    return {one(0), one(1), one(2), one(3)};
}

void drawAllWith(LONG low, LONG high)
{
    if (differsHere("lines from afar"))
        return;
    unsigned choice = 0; // half of them with smooth edges, and the other half on a single pixel
    for (const auto& [width, height] : {std::pair(1, 1), std::pair(64, 48)}) {
        CVQDIB image(width, height);
        for (const Member& member : kAllMembers) {
            image.EnableAntialias(++choice % 2 == 0);
            for (unsigned bits = 0; bits < 16; ++bits)
                expectAtOnce(image, member, choose(bits, low, high));
        }
        image.FillRect(CRect(0, 0, width, height), kRed, LONG{255});
        EXPECT_EQ(find(image, kRedPixel).count, width * height) << "it can still be drawn on";
    }
}

constexpr LONG kFar = 1 << 30;

TEST(FarCoordinates, OnBothSidesEndAtOnce)
{
    drawAllWith(-kFar, kFar);
}

TEST(FarCoordinates, OnOneSideEndAtOnce)
{
    drawAllWith(-kFar, 3);
    drawAllWith(3, kFar);
}

TEST(FarCoordinates, AtTheEndsOfTheirRangeEndAtOnce)
{
    using Limits = std::numeric_limits<LONG>;
    drawAllWith(Limits::min(), Limits::max());
    drawAllWith(0, Limits::max());
    drawAllWith(Limits::min(), 5);
}

TEST(FarCoordinates, OfLinesAlongAxesAreExact)
{
    if (differsHere("lines from afar"))
        return;
    HardImage image(8, 6);
    image.LineH(-kFar, kFar, 2, kRed, 255);
    image.LineV(kFar, -kFar, 5, kRed, 255);
    EXPECT_EQ(drawn(image), rows({".....#..", ".....#..", "########", ".....#..", ".....#..", ".....#.."}));
}

TEST(FarCoordinates, OfRectanglesLeaveTheirOtherEdgesInPlace)
{
    HardImage outlined(8, 6);
    CRect rect(-kFar, 2, 5, kFar);
    outlined.DrawRect(rect, kRed, 255);
    EXPECT_EQ(rect, CRect(-kFar, 2, 5, kFar));
    EXPECT_EQ(drawn(outlined), rows({"........", "........", "######..", ".....#..", ".....#..", ".....#.."}));

    HardImage filled(8, 6);
    filled.FillRect(CRect(kFar, kFar, 3, -kFar), kRed, LONG{255});
    EXPECT_EQ(find(filled, kRedPixel), (Found{3, 0, 7, 5, 30}));
    filled.FillRect(CRect(std::numeric_limits<LONG>::min(), 4, 2, std::numeric_limits<LONG>::max()), kBlue, LONG{255});
    EXPECT_EQ(find(filled, kBluePixel), (Found{0, 4, 1, 5, 4}));
}

TEST(FarCoordinates, OfPixelsAreOutside)
{
    HardImage image(3, 3);
    for (const int x : {-(1 << 30), 1 << 30, std::numeric_limits<int>::min(), std::numeric_limits<int>::max()}) {
        image.Pixel(x, 1, kRed, 255);
        image.Pixel(1, x, LONG{1}, LONG{2}, LONG{3}, LONG{255});
    }
    EXPECT_EQ(findDrawn(image).count, 0);
}

TEST(FarCoordinates, OfACircleThatPassesTheImageDrawAnAlmostStraightLine)
{
    if (differsHere("lines from afar"))
        return;
    HardImage image(9, 9);
    image.DrawCircle(4 - 1000000, 4, LONG{1000000}, kRed, LONG{255}, LONG{1});
    EXPECT_EQ(rowsDrawn(image, 4), fromTo(0, 8));
    EXPECT_EQ(findDrawn(image).count, 9);
}

TEST(FarCoordinates, OfACircleSelectionDrawNothingInSight)
{
    if (differsHere("lines from afar"))
        return;
    using Limits = std::numeric_limits<LONG>;
    for (const LONG x : {Limits::min(), Limits::min() + 1, Limits::min() + 2, Limits::max() - 2, Limits::max() - 1,
                         Limits::max()}) {
        HardImage across(64, 48);
        CVQDIB::DrawCircleSelection(&across, x, 20, x, 20, kRed, 100);
        EXPECT_EQ(findDrawn(across).count, 0) << x;
        HardImage down(64, 48);
        CVQDIB::DrawCircleSelection(&down, 20, x, 20, x, kRed, 100);
        EXPECT_EQ(findDrawn(down).count, 0) << x;
    }
}

TEST(FarCoordinates, OfHugePensEndAtOnce)
{
    if (differsHere("lines from afar"))
        return;
    SmoothImage image(16, 16);
    const auto begin = Clock::now();
    for (const LONG width : {kFar, std::numeric_limits<LONG>::max(), std::numeric_limits<LONG>::min()}) {
        image.Line(3, 3, 12, 9, kRed, 255, width, true);
        image.DrawCircle(8, 8, LONG{5}, kRed, LONG{255}, width);
        image.DrawRoundRect(CRect(2, 2, 12, 12), width, width, kRed, BYTE{255});
        CPoint points[] = {{1, 1}, {11, 1}, {1, 11}};
        image.DrawRgn(points, 3, width, kRed, 255);
    }
    EXPECT_LT(Clock::now() - begin, kAtOnce);
}

TEST(FarCoordinates, OfNumbersThatAreNoneOrBeyondAllEndAtOnce)
{
    if (differsHere("lines from afar"))
        return;
    SmoothImage image(16, 16);
    const auto begin = Clock::now();
    constexpr float kInfinite = std::numeric_limits<float>::infinity();
    for (const float number : {std::numeric_limits<float>::quiet_NaN(), kInfinite, -kInfinite, 3e38F, -3e38F}) {
        image.LineH(3, kRed, 255, number);
        image.LineV(3, kRed, 255, number);
        image.DrawBorder(kRed, 255, number);
        image.DrawCircle(Gdiplus::Rect(2, 2, 9, 9), Gdiplus::Color(kRedPixel), number, true);
        image.DrawCircle(CRect(2, 2, 9, 9), kRed, BYTE{255}, number, false);
        image.FillGradientRoundRect(CRect(2, 2, 9, 9), 3, {number, 0}, {5, number}, kRed, kBlue, 255, 255);
    }
    image.DrawCircle(CRect(2, 2, 9, 9), kRed, BYTE{255}, 1e300, false); // beyond single precision
    EXPECT_LT(Clock::now() - begin, kAtOnce);
    image.FillRect(CRect(0, 0, 16, 16), kRed, LONG{255});
    EXPECT_EQ(find(image, kRedPixel).count, 16 * 16) << "it can still be drawn on";
}

} // namespace
} // namespace vq::test
