// SPDX-License-Identifier: MIT
#include "vqview/window/Layout.h"

#include <gmock/gmock.h>

#include <limits>

namespace {

using vqview::Layout;

TEST(Layout, LeavesToTheViewWhatBarAndPanelDoNotTake)
{
    const Layout layout{.width = 1280, .height = 800, .barHeight = 60, .panelWidth = 400};

    EXPECT_EQ(layout.viewWidth(), 880);
    EXPECT_EQ(layout.viewHeight(), 740);
}

TEST(Layout, LeavesTheViewAPixelInAWindowThatIsTooSmall)
{
    const Layout layout{.width = 300, .height = 50, .barHeight = 60, .panelWidth = 400};

    EXPECT_EQ(layout.viewWidth(), 1);
    EXPECT_EQ(layout.viewHeight(), 1);
}

TEST(Layout, CountsTheViewsPixelsFromBelowTheBar)
{
    const Layout layout{.width = 1280, .height = 800, .barHeight = 60};

    EXPECT_EQ(layout.toView(10, 60), CPoint(10, 0));
    EXPECT_EQ(layout.toView(10, 59), CPoint(10, -1));
}

TEST(Layout, FindsThePixelUnderTheMouseAtFractionalScales)
{
    const Layout layout{
        .width = 1600, .height = 1000, .pixelsPerUnitX = 1.25f, .pixelsPerUnitY = 1.25f, .barHeight = 75};

    EXPECT_EQ(layout.toView(100, 100), CPoint(125, 50));
    EXPECT_EQ(layout.toView(101, 101), CPoint(126, 51)) << "126.25 lies in pixel 126";
    EXPECT_EQ(layout.toView(-0.1, 60), CPoint(-1, 0)) << "left of the window";
}

TEST(Layout, KnowsWhichPixelsAreTheViews)
{
    const Layout layout{.width = 1280, .height = 800, .barHeight = 60, .panelWidth = 400};

    EXPECT_TRUE(layout.isInView({0, 0}));
    EXPECT_TRUE(layout.isInView({879, 739}));
    EXPECT_FALSE(layout.isInView({880, 0}));
    EXPECT_FALSE(layout.isInView({0, 740}));
    EXPECT_FALSE(layout.isInView({0, -1}));
    EXPECT_FALSE(layout.isInView({-1, 0}));
}

TEST(Layout, KeepsFarPositionsWithinPixels)
{
    const Layout layout{.width = 1280, .height = 800};

    EXPECT_FALSE(layout.isInView(layout.toView(1e300, 0)));
    EXPECT_FALSE(layout.isInView(layout.toView(0, -std::numeric_limits<double>::infinity())));
}

} // namespace
