// SPDX-License-Identifier: MIT
#include "gl/Scene.h"

#include <initializer_list>

namespace vq::test::polygonPixelsTests {
namespace {

constexpr LONG kAlpha = 200;

class PolygonPixels : public Scene
{
public:
    PolygonPixels()
    {
        useInk(polygon, kAlpha);
        polygon.SetDrawPoints(false);
    }

    void click(std::initializer_list<CPoint> vertices, CPoint end)
    {
        polygon.Reset();
        for (CPoint vertex : vertices)
            polygon.AddPoint(vertex);
        polygon.SetEnd(end);
        draw(polygon);
    }

    /// How much of the way between two points the outline covers, 0 .. 1, without the surroundings of both.
    double coverageBetween(CPoint from, CPoint to)
    {
        constexpr int kSamples = 400;
        int lit = 0;
        for (int i = kSamples / 10; i < kSamples * 9 / 10; ++i) {
            const double part = static_cast<double>(i) / kSamples;
            lit += share(static_cast<int>(from.x + (to.x - from.x) * part),
                         static_cast<int>(from.y + (to.y - from.y) * part), kAlpha) > 0.5;
        }
        return lit / (0.8 * kSamples);
    }

    /// Shares of all pixels that are near a point, together: its dot's pixels.
    double dotAt(CPoint point)
    {
        double sum = 0;
        for (int y = point.y - 5; y < point.y + 5; ++y)
            for (int x = point.x - 5; x < point.x + 5; ++x)
                sum += share(x, y, kAlpha);
        return sum;
    }

    CVQDragPolygon polygon;
};

constexpr CPoint kA(20, 20);
constexpr CPoint kB(140, 30);
constexpr CPoint kC(120, 100);
constexpr CPoint kEnd(30, 90);
constexpr double kStippled = 0.5;
constexpr double kHowMuch = 0.15;

TEST_F(PolygonPixels, OfOneVertexAreNone)
{
    click({kA}, kEnd);
    EXPECT_EQ(coverageBetween(kA, kEnd), 0);
}

TEST_F(PolygonPixels, OfTwoVerticesAreOpen)
{
    click({kA, kB}, kEnd);
    EXPECT_NEAR(coverageBetween(kA, kB), kStippled, kHowMuch);
    EXPECT_NEAR(coverageBetween(kB, kEnd), kStippled, kHowMuch);
    EXPECT_EQ(coverageBetween(kEnd, kA), 0);
}

TEST_F(PolygonPixels, OfThreeVerticesCloseThroughTheEnd)
{
    click({kA, kB, kC}, kEnd);
    EXPECT_NEAR(coverageBetween(kA, kB), kStippled, kHowMuch);
    EXPECT_NEAR(coverageBetween(kB, kC), kStippled, kHowMuch);
    EXPECT_NEAR(coverageBetween(kC, kEnd), kStippled, kHowMuch);
    EXPECT_NEAR(coverageBetween(kEnd, kA), kStippled, kHowMuch);
    EXPECT_EQ(coverageBetween(kC, kA), 0);
    EXPECT_TRUE(isUntouchedWhere([](int x, int y) { return x >= 40 && x < 110 && y >= 40 && y < 80; }))
        << "it is never filled";
}

TEST_F(PolygonPixels, HaveDotsOfFivePixelsAtVerticesAndEnd)
{
    polygon.SetDrawPoints(true);
    click({kA}, kEnd);
    for (const CPoint& point : {kA, kEnd}) {
        EXPECT_NEAR(dotAt(point), 25, 0.5);
        EXPECT_TRUE(shows(point.x, point.y, over(kShapeInk, kAlpha, kBackground)));
        EXPECT_TRUE(isUntouched(point.x - 4, point.y));
        EXPECT_TRUE(isUntouched(point.x, point.y + 4));
    }
    EXPECT_EQ(dotAt(kB), 0);
    polygon.SetDrawPoints(false);
    draw(polygon);
    EXPECT_EQ(dotAt(kA), 0);
}

TEST_F(PolygonPixels, ShowALassoAsItIsDrawn)
{
    polygon.Reset();
    CPoint point(30, 30);
    polygon.Start(point);
    for (int i = 0; i < 90; ++i) {
        point = CPoint(30 + i, 30);
        polygon.Drag(point);
    }
    draw(polygon);
    EXPECT_TRUE(isUntouchedWhere([](int x, int y) { return x < 27 || x >= 123 || y < 27 || y >= 33; }));
    double sum = 0;
    for (int x = 30; x < 119; ++x)
        sum += share(x, 30, kAlpha);
    EXPECT_GT(sum, 30);
}

TEST_F(PolygonPixels, AreNoneOfAnIdlePolygon)
{
    polygon.SetDrawPoints(true);
    CPoint point = kA;
    polygon.Start(point);
    point = kB;
    polygon.Drag(point);
    polygon.End();
    draw(polygon);
    EXPECT_TRUE(isUntouched());
}

} // namespace
} // namespace vq::test::polygonPixelsTests
