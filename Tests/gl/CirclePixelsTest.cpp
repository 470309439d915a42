// SPDX-License-Identifier: MIT
#include "gl/Scene.h"

#include <numbers>

namespace vq::test::circlePixelsTests {
namespace {

constexpr int kCentreX = 80;
constexpr int kCentreY = 60;
constexpr int kRadius = 45;

class CirclePixels : public Scene
{
public:
    CirclePixels()
    {
        useInk(circle, 200);
        drag(circle, {kCentreX, kCentreY}, {kCentreX + 27, kCentreY - 36}); // 45 away
    }

    /// From a pixel's middle.
    static double radiusOf(int x, int y) { return std::hypot(x + 0.5 - kCentreX, y + 0.5 - kCentreY); }

    /// Whether the outline shows in one of the pixels near a place on the rim.
    bool isOnOutline(int x, int y)
    {
        for (int dy = -2; dy < 2; ++dy)
            if (at(x, y + dy).r > (over(kShapeInk, 50, kBackground).r + over(kShapeInk, 200, kBackground).r) / 2)
                return true;
        return false;
    }

    CVQDragCircle circle;
};

TEST_F(CirclePixels, AreFilledAtAQuarterOfTheAlpha)
{
    draw(circle);
    // Sides of 5 degrees lie within the circle by their sagitta; 2 pixels for the outline.
    const double inner = kRadius * std::cos(2.5 * std::numbers::pi / 180) - 2;
    int filled = 0;
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x)
            if (radiusOf(x, y) < inner) {
                ++filled;
                ASSERT_TRUE(shows(x, y, over(kShapeInk, 50, kBackground)));
            }
    EXPECT_GT(filled, 5000);
}

TEST_F(CirclePixels, LeaveAllOutsideUntouched)
{
    draw(circle);
    EXPECT_TRUE(isUntouchedWhere([](int x, int y) { return radiusOf(x, y) >= kRadius + 2; }));
}

TEST_F(CirclePixels, HaveAnOutlineOfFourOnAndFourOffFromTheTopClockwise)
{
    draw(circle);
    constexpr int kTop = kCentreY - kRadius;
    for (const int x : {1, 2, 9, 10})
        EXPECT_TRUE(isOnOutline(kCentreX + x, kTop)) << x;
    for (const int x : {5, 6})
        EXPECT_FALSE(isOnOutline(kCentreX + x, kTop)) << x;
}

TEST_F(CirclePixels, AreOnOutlineHalfTheWayRound)
{
    draw(circle);
    constexpr int kPlaces = 720;
    int lit = 0;
    for (int i = 0; i < kPlaces; ++i) {
        const double angle = 2 * std::numbers::pi * i / kPlaces;
        const auto x = static_cast<int>(kCentreX + kRadius * std::sin(angle));
        const auto y = static_cast<int>(kCentreY - kRadius * std::cos(angle));
        const Colour below = radiusOf(x, y) < kRadius ? over(kShapeInk, 50, kBackground) : kBackground;
        lit += share(x, y, 200, below) > 0.5;
    }
    EXPECT_NEAR(lit, kPlaces / 2, kPlaces / 10);
}

TEST_F(CirclePixels, LieAtTheCentreWithoutARadius)
{
    CPoint centre(kCentreX, kCentreY);
    circle.Start(centre);
    draw(circle);
    EXPECT_TRUE(isUntouchedWhere([](int x, int y) { return radiusOf(x, y) >= 2; }));
}

TEST_F(CirclePixels, AreNoneOfAnIdleCircleOrOfARadiusThatIsNoNumber)
{
    circle.End();
    draw(circle);
    EXPECT_TRUE(isUntouched());
    drag(circle, {0, 0}, {46341, 0});
    draw(circle);
    EXPECT_TRUE(isUntouched());
}

} // namespace
} // namespace vq::test::circlePixelsTests
