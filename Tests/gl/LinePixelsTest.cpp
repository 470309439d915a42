// SPDX-License-Identifier: MIT
#include "gl/Scene.h"

namespace vq::test::linePixelsTests {
namespace {

constexpr LONG kAlpha = 200;

/// Lines are smoothed: how much ink each pixel is given is up to the driver, how much they are given together is not.
class LinePixels : public Scene
{
public:
    LinePixels() { useInk(line, kAlpha); }

    /// The shares of a column's or a row's pixels together: how thick a line is there.
    double shareOfColumn(int x, int top, int bottom)
    {
        double sum = 0;
        for (int y = top; y <= bottom; ++y)
            sum += share(x, y, kAlpha);
        return sum;
    }

    CVQDragLine line;
};

TEST_F(LinePixels, OfAPlainLineAreTwoWideWithoutAGap)
{
    drag(line, {20, 60}, {120, 60});
    draw(line);
    for (int x = 26; x < 118; ++x)
        ASSERT_NEAR(shareOfColumn(x, 55, 64), 2, 0.3) << x;
}

TEST_F(LinePixels, OfAPlainSlopingLineAreTwoWideAcross)
{
    drag(line, {20, 20}, {110, 110});
    draw(line);
    for (int x = 28; x < 108; ++x)
        ASSERT_NEAR(shareOfColumn(x, x - 6, x + 6), 2 * std::sqrt(2.0), 0.4) << x;
}

TEST_F(LinePixels, OfAPlainLineHaveASquareAtTheStartOnly)
{
    drag(line, {40, 60}, {120, 60});
    draw(line);
    // Its edges, 4 apart, cover one pixel on either side; the line crosses the one at the right.
    for (const int x : {39, 40})
        for (const int y : {58, 62})
            EXPECT_NEAR(shareOfColumn(x, y - 1, y), 2, 0.4) << x << ", " << y;
    EXPECT_GT(share(38, 60, kAlpha), 0.7);
    EXPECT_GT(share(37, 60, kAlpha), 0.7);
    EXPECT_TRUE(isUntouched(39, 59)) << "it is not filled";
    EXPECT_TRUE(isUntouchedWhere([](int x, int y) {
        const bool inSquare = x >= 36 && x < 44 && y >= 56 && y < 64;
        const bool onLine = x >= 40 && x <= 121 && y >= 58 && y < 62;
        return !inSquare && !onLine;
    }));
}

TEST_F(LinePixels, OfABandAreFilledAtAQuarterOfTheAlpha)
{
    drag(line, {40, 20}, {100, 100}); // 100 long: its normal is (-0.8, 0.6)
    line.SetWidth(15);
    draw(line);
    int filled = 0;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            const double dx = x + 0.5 - 40;
            const double dy = y + 0.5 - 20;
            const double along = 0.6 * dx + 0.8 * dy;
            const double across = -0.8 * dx + 0.6 * dy;
            const double outside = std::max({-along, along - 100, std::fabs(across) - 15});
            if (outside < -2.5) {
                ++filled;
                ASSERT_TRUE(shows(x, y, over(kShapeInk, kAlpha / 4, kBackground)));
            }
            if (outside > 2.5) {
                ASSERT_TRUE(isUntouched(x, y)) << x << ", " << y;
            }
        }
    EXPECT_GT(filled, 2200);
}

TEST_F(LinePixels, OfABandHaveAnOutlineOfFourOnAndFourOff)
{
    drag(line, {30, 60}, {130, 60});
    line.SetWidth(10);
    draw(line);
    const Colour filled = over(kShapeInk, kAlpha / 4, kBackground);
    for (int step = 5; step < 95; ++step) { // the first edge is the lower one, from the left
        if (step % 4 == 0 || step % 4 == 3)
            continue;
        const bool on = step / 4 % 2 == 0;
        const int x = 30 + step;
        ASSERT_NEAR(share(x, 70, kAlpha), on ? 1 : 0, 0.2) << step;
        ASSERT_NEAR(share(x, 69, kAlpha, filled), on ? 1 : 0, 0.2) << step;
    }
}

TEST_F(LinePixels, AreTheSameForEveryWidthThatIsNone)
{
    drag(line, {20, 20}, {110, 90});
    draw(line);
    EXPECT_TRUE(isUntouched(60, 70));
    CVQDragLine narrow(line);
    narrow.SetWidth(-3);
    std::vector<Colour> expected;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            expected.push_back(at(x, y));
    draw(narrow);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            ASSERT_EQ(distance(at(x, y), expected[static_cast<std::size_t>(y * kWidth + x)]), 0) << x << ", " << y;
}

TEST_F(LinePixels, AreNoneOfAnIdleLine)
{
    drag(line, {20, 20}, {110, 90});
    line.SetWidth(9);
    line.End();
    draw(line);
    EXPECT_TRUE(isUntouched());
}

} // namespace
} // namespace vq::test::linePixelsTests
