// SPDX-License-Identifier: MIT
#include "unit/vqSelection/Scene.h"

#include <gmock/gmock.h>

#include <limits>

namespace vq::test::selectTests {
namespace {

using namespace vq::test;
using testing::ElementsAre;
using testing::IsEmpty;

const auto kBox = CVQSelectionShape::Box(10, 20, 30, 40);
constexpr float kNoNumber = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinite = std::numeric_limits<float>::infinity();

SVQSelectionView throughView()
{
    return SVQSelectionView::Of(pixelView());
}

TEST(Select, TakesTheBorderOfABoxAndNothingBeyond)
{
    const ScreenPoints points{{10, 20},   {30, 40},    {30, 20},    {20, 30},
                              {9.75, 30}, {30.25, 30}, {20, 19.75}, {20, 40.25}};
    EXPECT_THAT(selectedOf(kBox, points), ElementsAre(0, 1, 2, 3));
}

TEST(Select, TakesTheRimOfACircle)
{
    const ScreenPoints points{{105, 100}, {103, 104}, {100, 95}, {105.25, 100}, {104, 104}};
    EXPECT_THAT(selectedOf(CVQSelectionShape::Circle(100, 100, 5), points), ElementsAre(0, 1, 2));
}

TEST(Select, CombinesWithWhatWasSelectedAndCountsWhatChanged)
{
    struct Row
    {
        EVQSelectionMode mode;
        std::size_t changed;
        std::vector<std::uint32_t> selected;
    };
    const ScreenPoints points{{0, 0}, {20, 30}, {25, 30}, {100, 100}}; // the box has 1 and 2
    for (const Row& row : {Row{VQ_SELECT_REPLACE, 2, {1, 2}}, Row{VQ_SELECT_ADD, 1, {0, 1, 2}},
                           Row{VQ_SELECT_SUBTRACT, 1, {0}}, Row{VQ_SELECT_TOGGLE, 2, {0, 2}}}) {
        CVQSelectionSet set = setOf(4, {0, 1});
        EXPECT_EQ(CVQSelection::Select(kBox, throughView(), points.points(), row.mode, set), row.changed);
        EXPECT_EQ(indicesOf(set), row.selected) << row.mode;
    }
}

TEST(Select, LetsAnEmptyShapeReplaceOrAddNothing)
{
    const ScreenPoints points{{0, 0}, {20, 30}};
    CVQSelectionSet set = setOf(2, {1});
    for (const auto mode : {VQ_SELECT_ADD, VQ_SELECT_SUBTRACT, VQ_SELECT_TOGGLE})
        EXPECT_EQ(CVQSelection::Select({}, throughView(), points.points(), mode, set), 0u);
    EXPECT_EQ(set, setOf(2, {1}));
    EXPECT_EQ(CVQSelection::Select({}, throughView(), points.points(), VQ_SELECT_REPLACE, set), 1u);
    EXPECT_EQ(set, CVQSelectionSet(2));
}

TEST(Select, BringsTheSetToTheSizeOfThePoints)
{
    for (const std::size_t size : {0u, 1u, 63u, 64u, 65u, 511u, 512u, 513u}) {
        ScreenPoints points;
        for (std::size_t i = 0; i < size; ++i)
            points.add(20, 30);
        CVQSelectionSet set = setOf(100, {0, 99});
        CVQSelection::Select(kBox, throughView(), points.points(), VQ_SELECT_REPLACE, set);
        EXPECT_EQ(set.GetSize(), size);
        EXPECT_EQ(set.GetCount(), size);
        CVQSelectionSet all(size);
        all.SelectAll();
        EXPECT_EQ(set, all) << "no bit beyond the size";
    }
}

TEST(Select, LeavesEverythingWhenPointsAreNull)
{
    CVQSelectionSet set = setOf(5, {2});
    EXPECT_EQ(CVQSelection::Select(kBox, throughView(), {nullptr, 7}, VQ_SELECT_REPLACE, set), 0u);
    EXPECT_EQ(set, setOf(5, {2}));
    EXPECT_EQ(CVQSelection::Select(kBox, throughView(), {}, VQ_SELECT_REPLACE, set), 0u);
    EXPECT_EQ(set.GetSize(), 0u);
}

TEST(Select, NeverTakesWhatIsNotFinite)
{
    const std::vector<float> points{20,    kNoNumber, -0.5F,     20,        226,   kNoNumber, kNoNumber,
                                    226,   -0.5F,     kInfinite, 226,       -0.5F, 20,        -kInfinite,
                                    -0.5F, 20,        226,       kInfinite, 20,    226,       -0.5F};
    CVQSelectionSet set;
    const auto everywhere = CVQSelectionShape::Box(-1e30, -1e30, 1e30, 1e30);
    CVQSelection::Select(everywhere, throughView(), {points.data(), 7}, VQ_SELECT_REPLACE, set);
    EXPECT_THAT(indicesOf(set), ElementsAre(6));
}

TEST(Select, NeverTakesWhatIsBeforeTheNearOrBehindTheFarPlane)
{
    ScreenPoints points;
    for (const double depth : {0.0, 1.0, -0.001, 1.001})
        points.add(20, 30, depth);
    EXPECT_THAT(selectedOf(kBox, points), ElementsAre(0, 1));
}

TEST(Select, NeverTakesWhatIsBehindTheEye)
{
    const float points[] = {0, 0, -2, 0, 0, 2, 0, 0, 0, 0, 0, -0.5F, 0, 0, -3.5F};
    CVQSelectionSet set;
    CVQSelection::Select(CVQSelectionShape::Box(-1e9, -1e9, 1e9, 1e9), SVQSelectionView::Of(perspectiveView()),
                         {points, 5}, VQ_SELECT_REPLACE, set);
    EXPECT_THAT(indicesOf(set), ElementsAre(0));
}

TEST(Select, NeverTakesAnythingInAViewWithoutPixels)
{
    SVQGLVariables view = pixelView();
    view.m_iViewport[3] = 0;
    EXPECT_THAT(selectedOf(kBox, {{20, 30}}, SVQSelectionView::Of(view)), IsEmpty());
    view.m_iViewport[2] = -5;
    view.m_iViewport[3] = 100;
    EXPECT_THAT(selectedOf(kBox, {{20, 30}}, SVQSelectionView::Of(view)), IsEmpty());
}

TEST(Select, NeverTakesAnythingThroughMatricesThatAreNoNumbers)
{
    SVQGLVariables view = pixelView();
    view.m_dModelView[12] = std::numeric_limits<double>::quiet_NaN();
    EXPECT_THAT(selectedOf(kBox, {{20, 30}}, SVQSelectionView::Of(view)), IsEmpty());
}

TEST(Select, ReachesBeyondTheViewportWhereHiddenPointsCount)
{
    const ScreenPoints points{{-20, 30}, {300, 30}, {20, 300}, {20, -40}, {20, 30}};
    EXPECT_THAT(selectedOf(CVQSelectionShape::Box(-50, -50, 400, 400), points), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_THAT(selectedOf(CVQSelectionShape::Circle(100, 100, 400), points), ElementsAre(0, 1, 2, 3, 4));
    EXPECT_THAT(selectedOf(CVQSelectionShape::Band(-100, 100, 500, 100, 300), points), ElementsAre(0, 1, 2, 3, 4));
}

} // namespace
} // namespace vq::test::selectTests
