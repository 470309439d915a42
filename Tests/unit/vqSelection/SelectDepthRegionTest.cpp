// SPDX-License-Identifier: MIT
// What shapes at and beyond the edges of the viewport take of what is visible, beside arithmetic in whole numbers.
#include "unit/vqSelection/Scene.h"

#include <gtest/gtest.h>

#include <random>

namespace selectDepthRegionTests {
namespace {

using namespace vq::test;

constexpr int kParts = 2; // of a pixel, from one point to the next
constexpr double kPart = 1.0 / kParts;
constexpr int kBeyond = 3;      // pixels, in which there are points too
constexpr int kDepthLevels = 8; // of which the buffer and the points have one each
constexpr double kStep = 1.0 / kDepthLevels;
constexpr int kLeast = -kBeyond * kParts;
constexpr int kMost = (kSize + kBeyond) * kParts;

/// Pixels of the screen, y downwards, from the corner of the viewport.
struct Rectangle
{
    int left, top, right, bottom;
};

/// A view of the square scene whose viewport lies somewhere in a window, and what its depth buffer holds.
class Scene
{
public:
    Scene(int left, int bottom) : m_left(left), m_bottom(bottom), m_levels(std::size_t{kSize} * kSize)
    {
        std::minstd_rand random(7);
        for (int& level : m_levels) // mostly near, so that single pixels decide what is around them
            level = random() % 10 == 0 ? static_cast<int>(random() % kDepthLevels) : 0;
        for (const int level : m_levels)
            m_depths.push_back(static_cast<float>(level * kStep));
        for (int y = kLeast; y <= kMost; ++y)
            for (int x = kLeast; x <= kMost; ++x) {
                m_pointLevels.push_back(static_cast<int>(random() % kDepthLevels));
                m_points.add(x * kPart, y * kPart, m_pointLevels.back() * kStep);
            }
    }

    std::vector<std::uint32_t> selectedOf(const CVQSelectionShape& shape) const
    {
        SVQGLVariables variables = pixelView();
        variables.m_iViewport[0] = m_left;
        variables.m_iViewport[1] = m_bottom;
        return vq::test::selectedOf(shape, m_points, SVQSelectionView::Of(variables, m_depths.data()));
    }

    /// @param has of a place in parts of a pixel, from the corner of the viewport
    template <typename Has>
    std::vector<std::uint32_t> expected(Has has) const
    {
        std::vector<std::uint32_t> indices;
        std::uint32_t index = 0;
        for (int y = kLeast; y <= kMost; ++y)
            for (int x = kLeast; x <= kMost; ++x, ++index)
                if (has(x, y) && isVisible(x, y, m_pointLevels[index]))
                    indices.push_back(index);
        return indices;
    }

    double windowX(int x) const { return x + m_left; }
    double windowY(int y) const { return y - m_bottom; }

private:
    bool isVisible(int x, int y, int level) const
    {
        const int up = kSize * kParts - y;
        if (x < 0 || up < 0 || x >= kSize * kParts || up >= kSize * kParts)
            return false;
        for (int row = up / kParts - 1; row <= up / kParts + 1; ++row)
            for (int column = x / kParts - 1; column <= x / kParts + 1; ++column)
                if (row >= 0 && column >= 0 && row < kSize && column < kSize &&
                    m_levels[static_cast<std::size_t>(row * kSize + column)] >= level)
                    return true;
        return false;
    }

    int m_left, m_bottom;
    std::vector<int> m_levels, m_pointLevels;
    std::vector<float> m_depths;
    ScreenPoints m_points;
};

void expectBox(const Scene& scene, const Rectangle& box)
{
    const auto has = [&box](int x, int y) {
        return x >= box.left * kParts && x <= box.right * kParts && y >= box.top * kParts && y <= box.bottom * kParts;
    };
    const auto shape = CVQSelectionShape::Box(scene.windowX(box.left), scene.windowY(box.top), scene.windowX(box.right),
                                              scene.windowY(box.bottom));
    EXPECT_EQ(scene.selectedOf(shape), scene.expected(has)) << "box at " << box.left << ", " << box.top;
}

void expectPolygon(const Scene& scene, const Rectangle& box)
{
    const auto has = [&box](int x, int y) {
        return x >= box.left * kParts && x < box.right * kParts && y >= box.top * kParts && y < box.bottom * kParts;
    };
    const double left = scene.windowX(box.left);
    const double top = scene.windowY(box.top);
    const double right = scene.windowX(box.right);
    const double bottom = scene.windowY(box.bottom);
    const double corners[] = {left, top, right, top, right, bottom, left, bottom};
    EXPECT_EQ(scene.selectedOf(CVQSelectionShape::Polygon(corners, 4)), scene.expected(has))
        << "polygon at " << box.left << ", " << box.top;
}

/// As wide as the box and about its left upper corner.
void expectCircle(const Scene& scene, const Rectangle& box)
{
    const std::int64_t parts = std::int64_t{box.right - box.left} * kParts / 2;
    const auto has = [&](int x, int y) {
        const std::int64_t dx = x - std::int64_t{box.left} * kParts;
        const std::int64_t dy = y - std::int64_t{box.top} * kParts;
        return dx * dx + dy * dy <= parts * parts;
    };
    const auto shape =
        CVQSelectionShape::Circle(scene.windowX(box.left), scene.windowY(box.top), (box.right - box.left) / 2.0);
    EXPECT_EQ(scene.selectedOf(shape), scene.expected(has)) << "circle about " << box.left << ", " << box.top;
}

void expectAll(const Scene& scene, const Rectangle& box)
{
    expectBox(scene, box);
    expectPolygon(scene, box);
    expectCircle(scene, box);
}

class SelectByDepthAtEdges : public testing::TestWithParam<std::pair<int, int>>
{
protected:
    const Scene m_scene{GetParam().first, GetParam().second};
};

TEST_P(SelectByDepthAtEdges, TakesShapesOfOnePixelAtEveryEdgeAndCorner)
{
    for (const int left : {-1, 0, kSize / 2, kSize - 1, kSize})
        for (const int top : {-1, 0, kSize / 2, kSize - 1, kSize})
            expectAll(m_scene, {left, top, left + 1, top + 1});
}

TEST_P(SelectByDepthAtEdges, TakesWhatIsInTheViewportOfShapesThatReachBeyond)
{
    constexpr int kFar = 100000;
    for (const Rectangle& box : {Rectangle{-40, -30, 20, 10},
                                 {240, 100, 300, 140},
                                 {100, -50, 130, 3},
                                 {100, 250, 130, 400},
                                 {-1, -1, kSize + 1, kSize + 1},
                                 {-kFar, 77, kFar, 78},
                                 {31, -kFar, 32, kFar},
                                 {-kFar, -kFar, kFar, kFar}})
        expectAll(m_scene, box);
}

TEST_P(SelectByDepthAtEdges, TakesNothingOfShapesOutside)
{
    for (const Rectangle& box : {Rectangle{-50, 10, -10, 40},
                                 {300, 10, 340, 40},
                                 {10, -90, 40, -50},
                                 {10, 300, 40, 330},
                                 {-90, -90, -50, -50},
                                 {300, 300, 340, 340},
                                 {1 << 20, 1 << 20, 1 << 21, 1 << 21}})
        expectAll(m_scene, box);
}

INSTANTIATE_TEST_SUITE_P(OfViewports, SelectByDepthAtEdges, testing::Values(std::pair(0, 0), std::pair(-30, 40)));

TEST(SelectByDepth, TakesOfCirclesBeyondExactNumbersWhatTheyContain)
{
    const Scene scene(0, 0);
    const auto everything = [](int, int) { return true; };
    // Their distances are rounded by more than a pixel, or overflow: positions right of them count as on the rim.
    EXPECT_EQ(scene.selectedOf(CVQSelectionShape::Circle(-1e20, 128, 1e20)), scene.expected(everything));
    EXPECT_EQ(scene.selectedOf(CVQSelectionShape::Circle(1e180, 128, 1e160)), scene.expected(everything));
}

} // namespace
} // namespace selectDepthRegionTests
