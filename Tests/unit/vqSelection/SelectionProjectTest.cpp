// SPDX-License-Identifier: MIT
#include "unit/vqSelection/Scene.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using namespace vq::test;
using testing::ElementsAre;

TEST(Project, CountsDownwardsFromTheTopOfTheView)
{
    const float point[] = {10, 20, -0.25F};
    double at[3] = {};
    EXPECT_TRUE(CVQSelection::Project(SVQSelectionView::Of(pixelView()), point, at));
    EXPECT_THAT(at, ElementsAre(10, kSize - 20, 0.25));
}

TEST(Project, DividesByTheDistanceInPerspective)
{
    const float point[] = {1, 0.5F, -2}; // at twice the near plane's distance the view is 4 units wide
    double at[3] = {};
    EXPECT_TRUE(CVQSelection::Project(SVQSelectionView::Of(perspectiveView()), point, at));
    EXPECT_DOUBLE_EQ(at[0], 128 + 64);
    EXPECT_DOUBLE_EQ(at[1], 128 - 32);
    EXPECT_DOUBLE_EQ(at[2], 0.75); // far (z - near) / (z (far - near)) at z = 2
}

TEST(Project, TakesTheViewportAsGluProjectDoes)
{
    SVQGLVariables view = pixelView();
    view.m_iViewport[0] = 100;
    view.m_iViewport[1] = 40;
    const float point[] = {10, 20, -0.25F};
    double at[3] = {};
    EXPECT_TRUE(CVQSelection::Project(SVQSelectionView::Of(view), point, at));
    EXPECT_THAT(at, ElementsAre(110, kSize - 60, 0.25)); // gluProject: 110, 60
}

TEST(Project, TellsDepthsBeyondTheNearAndFarPlane)
{
    double at[3] = {};
    const float front[] = {0, 0, 1};
    EXPECT_TRUE(CVQSelection::Project(SVQSelectionView::Of(pixelView()), front, at));
    EXPECT_EQ(at[2], -1);
    const float back[] = {0, 0, -2};
    EXPECT_TRUE(CVQSelection::Project(SVQSelectionView::Of(pixelView()), back, at));
    EXPECT_EQ(at[2], 2);
}

TEST(Project, RefusesWhatIsBehindTheEyeOrNotFinite)
{
    const auto view = SVQSelectionView::Of(perspectiveView());
    double at[3] = {1, 2, 3};
    for (const float z :
         {0.0F, 1.0F, std::numeric_limits<float>::quiet_NaN(), -std::numeric_limits<float>::infinity()}) {
        const float point[] = {0, 0, z};
        EXPECT_FALSE(CVQSelection::Project(view, point, at)) << z;
    }
    EXPECT_THAT(at, ElementsAre(1, 2, 3));
}

TEST(Project, RefusesNullPointers)
{
    const float point[] = {0, 0, -2};
    double at[3] = {1, 2, 3};
    EXPECT_FALSE(CVQSelection::Project(SVQSelectionView::Of(perspectiveView()), nullptr, at));
    EXPECT_FALSE(CVQSelection::Project(SVQSelectionView::Of(perspectiveView()), point, nullptr));
}

} // namespace
