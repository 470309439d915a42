// SPDX-License-Identifier: MIT
// Polygons beside the alternate rule in whole numbers, where a point is exactly on, left or right of a side.
#include "unit/vqSelection/Scene.h"

#include <gmock/gmock.h>

#include <cmath>
#include <numbers>
#include <random>

namespace {

using namespace vq::test;

constexpr int kParts = 4; // of a pixel

struct Vertex
{
    std::int64_t x, y; // parts of a pixel
};

bool isRightOf(const Vertex& place, Vertex from, Vertex to)
{
    if (from.y > to.y)
        std::swap(from, to);
    return (place.x - from.x) * (to.y - from.y) >= (to.x - from.x) * (place.y - from.y);
}

bool isInside(const Vertex& place, const std::vector<Vertex>& polygon)
{
    int crossings = 0;
    for (std::size_t i = 0; i < polygon.size(); ++i) {
        const Vertex& from = polygon[i];
        const Vertex& to = polygon[(i + 1) % polygon.size()];
        const bool spans = std::min(from.y, to.y) <= place.y && place.y < std::max(from.y, to.y);
        if (spans && !isRightOf(place, from, to))
            ++crossings;
    }
    return crossings % 2 == 1;
}

CVQSelectionShape shapeOf(const std::vector<Vertex>& polygon)
{
    std::vector<double> numbers;
    for (const Vertex& vertex : polygon) {
        numbers.push_back(static_cast<double>(vertex.x) / kParts);
        numbers.push_back(static_cast<double>(vertex.y) / kParts);
    }
    return CVQSelectionShape::Polygon(numbers.data(), polygon.size());
}

/// Places `step` parts apart, in a range that may go beyond the view.
void expectExact(const std::vector<Vertex>& polygon, std::int64_t first, std::int64_t last, std::int64_t step)
{
    ScreenPoints points;
    std::vector<std::uint32_t> expected;
    std::uint32_t index = 0;
    for (std::int64_t y = first; y <= last; y += step)
        for (std::int64_t x = first; x <= last; x += step, ++index) {
            points.add(static_cast<double>(x) / kParts, static_cast<double>(y) / kParts);
            if (isInside({x, y}, polygon))
                expected.push_back(index);
        }
    EXPECT_EQ(selectedOf(shapeOf(polygon), points), expected);
}

constexpr std::int64_t kEnd = std::int64_t{kSize} * kParts;

TEST(SelectByOutline, IsExactAlongPlainOutlines)
{
    expectExact({{40, 40}, {200, 40}, {200, 120}, {40, 120}}, 36, 204, 1);
    expectExact({{40, 40}, {200, 40}, {40, 200}}, 36, 204, 1);
    expectExact({{40, 120}, {120, 40}, {200, 120}, {120, 200}}, 36, 204, 1);
    expectExact({{40, 40}, {41, 40}, {41, 41}, {40, 41}}, 30, 50, 1);      // a quarter of a pixel wide
    expectExact({{40, 40}, {44, 40}, {44, 44}, {40, 44}}, 30, 50, 1);      // a pixel
    expectExact({{0, 0}, {kEnd, 0}, {kEnd, kEnd}, {0, kEnd}}, 0, kEnd, 8); // the whole view
}

TEST(SelectByOutline, IsExactWhereTheOutlineCrossesAndRepeatsItself)
{
    expectExact({{50, 0}, {79, 90}, {2, 35}, {98, 35}, {21, 90}}, 0, 100, 1);
    expectExact({{0, 0}, {80, 80}, {80, 0}, {0, 80}}, 0, 84, 1);
    expectExact({{10, 10}, {10, 10}, {90, 10}, {90, 10}, {90, 50}, {10, 50}}, 4, 96, 1);
    expectExact({{10, 10}, {90, 10}, {90, 50}, {10, 50}, {10, 10}, {90, 10}, {90, 50}, {10, 50}}, 4, 96, 1);
    expectExact({{10, 10}, {60, 10}, {60, 80}, {60, 10}, {110, 10}, {110, 40}, {10, 40}}, 4, 116, 1); // there and back
}

TEST(SelectByOutline, IsExactForRandomOutlines)
{
    std::minstd_rand random(5);
    for (int trial = 0; trial < 60; ++trial) {
        std::vector<Vertex> polygon(3 + random() % 40);
        const std::int64_t grid = trial % 2 == 0 ? kParts : 1; // vertices at corners of pixels, or anywhere
        const std::int64_t beyond = trial % 3 == 0 ? 100 * kParts : 0;
        for (Vertex& vertex : polygon)
            for (std::int64_t* place : {&vertex.x, &vertex.y})
                *place = static_cast<std::int64_t>(random() % (kEnd + 2 * beyond) / grid) * grid - beyond;
        expectExact(polygon, -beyond - 40, kEnd + beyond + 40, 14 - trial % 9);
    }
}

TEST(SelectByOutline, IsExactForScribbles)
{
    std::minstd_rand random(6);
    for (int trial = 0; trial < 10; ++trial) {
        std::vector<Vertex> lasso{{300, 300}};
        while (lasso.size() < 2048)
            lasso.push_back(
                {std::clamp<std::int64_t>(lasso.back().x + static_cast<int>(random() % 33) - 16, 200, 500),
                 std::clamp<std::int64_t>(lasso.back().y + static_cast<int>(random() % 33) - 16, 200, 500)});
        expectExact(lasso, 195, 505, 5 - trial % 2);
    }
}

TEST(SelectByOutline, IsExactForOutlinesThatReachFarBeyondTheView)
{
    const std::int64_t distant = (std::int64_t{1} << 28) * kParts; // the products above stay within 64 bits
    expectExact({{-distant, -distant}, {distant, -distant}, {distant, distant}, {-distant, distant}}, -2000, 3000, 50);
    expectExact({{-distant, 300}, {distant, 300}, {distant, 500}, {-distant, 500}}, 290, 510, 5);
    expectExact({{-distant, -distant}, {distant, distant}, {-distant, distant}}, -200, 1200, 20);
    expectExact({{100, 100}, {distant, 200}, {300, distant}}, 90, 1500, 30);
}

TEST(SelectByOutline, IsWhatTheShapeSaysOfEveryPlaceInPerspective)
{
    std::minstd_rand random(7);
    std::uniform_real_distribution<float> across(-4, 4);
    std::uniform_real_distribution<float> along(-3.5F, 0.5F);
    std::vector<float> points;
    for (int i = 0; i < 20000; ++i)
        points.insert(points.end(), {across(random), across(random), along(random)});
    std::uniform_real_distribution<double> place(-300, 600);
    std::vector<double> vertices(2 * 200);
    for (double& number : vertices)
        number = place(random);
    const auto shape = CVQSelectionShape::Polygon(vertices.data(), vertices.size() / 2);

    const auto view = SVQSelectionView::Of(perspectiveView());
    CVQSelectionSet set;
    CVQSelection::Select(shape, view, {points.data(), points.size() / 3}, VQ_SELECT_REPLACE, set);
    for (std::size_t i = 0; i < set.GetSize(); ++i) {
        double at[3];
        const bool isSeen = CVQSelection::Project(view, &points[3 * i], at) && at[2] >= 0 && at[2] <= 1;
        ASSERT_EQ(set.IsSelected(i), isSeen && shape.Contains(at[0], at[1])) << i;
    }
}

/// What `Select` finds is what the shape says place by place.
void expectAgreement(const CVQSelectionShape& shape)
{
    ScreenPoints points;
    std::vector<std::uint32_t> expected;
    std::uint32_t index = 0;
    for (int y = -20; y < kSize + 20; y += 7)
        for (int x = -20; x < kSize + 20; x += 7, ++index) {
            points.add(x + 0.25, y);
            if (shape.Contains(x + 0.25, y))
                expected.push_back(index);
        }
    EXPECT_EQ(selectedOf(shape, points), expected);
}

TEST(SelectByOutline, CopesWithCoordinatesAsLargeAsMousePositionsGet)
{
    std::minstd_rand random(8);
    std::uniform_real_distribution<double> place(-1073741824, 1073741824);
    for (const std::size_t count : {3u, 4u, 50u, 500u}) {
        std::vector<double> vertices(2 * count);
        for (double& number : vertices)
            number = std::round(place(random));
        expectAgreement(CVQSelectionShape::Polygon(vertices.data(), count));
    }
}

TEST(SelectByOutline, CopesWithMoreSidesInTheViewThanCellsCanList)
{
    std::vector<double> vertices; // each side goes through the whole view, so that at pixels there would be 19 million
    for (int i = 0; i < 25000; ++i)
        vertices.insert(vertices.end(), {-1e6, -1e6 + 7.0 * i, 1e6, 1e6 - 5.0 * i});
    expectAgreement(CVQSelectionShape::Polygon(vertices.data(), vertices.size() / 2));
}

} // namespace
