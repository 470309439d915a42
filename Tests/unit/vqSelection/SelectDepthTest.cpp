// SPDX-License-Identifier: MIT
#include "unit/vqSelection/Scene.h"

#include <gmock/gmock.h>

#include <cmath>

namespace {

using namespace vq::test;
using testing::ElementsAre;
using testing::IsEmpty;

const auto kEverywhere = CVQSelectionShape::Box(-1000, -1000, 1000, 1000);

/// The depth buffer of `pixelView`, 1 everywhere at first; pixels counted from the top.
class Depths
{
public:
    Depths() : m_depths(std::size_t{kSize} * kSize, 1.0F) {}

    void set(int x, int y, float depth) { m_depths[static_cast<std::size_t>((kSize - 1 - y) * kSize + x)] = depth; }
    void fill(int left, int top, int right, int bottom, float depth)
    {
        for (int y = top; y < bottom; ++y)
            for (int x = left; x < right; ++x)
                set(x, y, depth);
    }
    SVQSelectionView view() const { return SVQSelectionView::Of(pixelView(), m_depths.data()); }

private:
    std::vector<float> m_depths;
};

TEST(SelectByDepth, TakesOnlyWhatNothingHides)
{
    Depths depths;
    depths.fill(10, 20, 30, 40, 0.25F);
    ScreenPoints points;
    points.add(20.5, 30.5, 0.2);
    points.add(20.5, 30.5, 0.3);
    points.add(100.5, 100.5, 0.9);
    EXPECT_THAT(selectedOf(kEverywhere, points, depths.view()), ElementsAre(0, 2));
    EXPECT_THAT(selectedOf(kEverywhere, points), ElementsAre(0, 1, 2)) << "without a depth buffer";
}

TEST(SelectByDepth, LetsPointsBeALittleBehindTheirOwnSurface)
{
    Depths depths;
    depths.fill(0, 0, kSize, kSize, 0.5F);
    ScreenPoints points;
    points.add(20.5, 30.5, 0.5 + 0.99 / 65536);
    points.add(20.5, 30.5, 0.5 + 1.01 / 65536);
    EXPECT_THAT(selectedOf(kEverywhere, points, depths.view()), ElementsAre(0));
    SVQSelectionView view = depths.view();
    view.m_dTolerance = 0.01;
    EXPECT_THAT(selectedOf(kEverywhere, points, view), ElementsAre(0, 1));
}

TEST(SelectByDepth, KeepsTheSilhouetteOfASurface)
{
    Depths depths;
    depths.fill(10, 20, 30, 40, 0.25F); // behind it is nothing: the neighbours of its border are at 1
    ScreenPoints points;
    for (const double x : {10.5, 29.5, 11.5, 28.5})
        points.add(x, 30.5, 0.6);
    points.add(29.5, 39.5, 0.6);
    points.add(20.5, 20.5, 0.6);
    EXPECT_THAT(selectedOf(kEverywhere, points, depths.view()), ElementsAre(0, 1, 4, 5));
}

TEST(SelectByDepth, LooksAtNoPixelBeyondTheViewport)
{
    Depths depths;
    depths.fill(0, 0, kSize, kSize, 0.25F);
    const double last = kSize - 0.25;
    ScreenPoints points;
    for (const auto& [x, y] : {std::pair(0.25, 0.25), {last, 0.25}, {0.25, last}, {last, last}}) {
        points.add(x, y, 0.2);
        points.add(x, y, 0.3);
    }
    EXPECT_THAT(selectedOf(kEverywhere, points, depths.view()), ElementsAre(0, 2, 4, 6));
}

TEST(SelectByDepth, NeverTakesWhatIsOutsideTheViewport)
{
    const Depths depths;
    const ScreenPoints points{{-0.25, 30}, {kSize, 30}, {20, -0.25}, {20, kSize + 0.25},
                              {0, 30},     {20, kSize}, {20, 30}};
    EXPECT_THAT(selectedOf(kEverywhere, points, depths.view()), ElementsAre(4, 5, 6));
    const double corners[] = {-500, -500, 500, -500, 500, 500, -500, 500};
    EXPECT_THAT(selectedOf(CVQSelectionShape::Polygon(corners, 4), points, depths.view()), ElementsAre(4, 5, 6));
}

TEST(SelectByDepth, ReadsTheBufferOfAViewportThatDoesNotBeginAtTheOrigin)
{
    SVQGLVariables variables = pixelView();
    variables.m_iViewport[0] = 100;
    variables.m_iViewport[1] = 40;
    std::vector<float> depths(std::size_t{kSize} * kSize, 1.0F);
    depths[2 * kSize + 5] = 0.1F; // the pixel 5 from the left and 2 from below, and what surrounds it
    for (std::size_t y = 1; y <= 3; ++y)
        for (std::size_t x = 4; x <= 6; ++x)
            depths[y * kSize + x] = 0.1F;
    ScreenPoints points;
    points.add(5.5, kSize - 2.5, 0.5);
    points.add(7.5, kSize - 2.5, 0.5);
    const auto view = SVQSelectionView::Of(variables, depths.data());
    EXPECT_THAT(selectedOf(kEverywhere, points, view), ElementsAre(1));
    const auto right = CVQSelectionShape::Box(107, kSize - 43, 108, kSize - 42); // 2.5 + 40 above the window's bottom
    EXPECT_THAT(selectedOf(right, points, view), ElementsAre(1));
}

TEST(SelectByDepth, TakesNothingWhereTheBufferHoldsNoNumbers)
{
    Depths depths;
    depths.fill(0, 0, kSize, kSize, std::nanf(""));
    EXPECT_THAT(selectedOf(kEverywhere, {{20, 30}}, depths.view()), IsEmpty());
}

} // namespace
