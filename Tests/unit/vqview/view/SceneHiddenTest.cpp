// SPDX-License-Identifier: MIT
#include "unit/vqview/view/Looking.h"
#include "unit/vqview/view/ViewScene.h"

#include <cmath>

namespace vqview::test {
namespace {

class SceneHidden : public ViewScene
{
public:
    /// A small rectangle, positions 0 .. 3, far behind a larger one, 4 .. 7.
    void showOneBehindAnother()
    {
        scene->setModel(joined(*makeRectangle({50.5F, 40.5F, -50}, {70.5F, 60.5F, -50}),
                               *makeRectangle({30.5F, 20.5F, 0}, {90.5F, 80.5F, 0})));
    }
};

TEST_F(SceneHidden, SelectedPointsBehindAFaceAreHiddenByIt)
{
    showOneBehindAnother();
    scene->setSelected({0, 1, 2, 3});
    draw({.faces = true});
    EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 0);
    draw({.edges = true});
    EXPECT_GT(count(preferred(DPC_SELECTEDENTITY)), 4 * 9);
}

TEST_F(SceneHidden, EdgesAndVerticesBehindAFaceAreHiddenByIt)
{
    showOneBehindAnother();
    draw({.faces = true, .edges = true, .vertices = true});
    EXPECT_EQ(count(preferred(DPC_BODYEDGE), 60, 30, 80, 50), 0); // beside the front's diagonal
    EXPECT_GT(count(preferred(DPC_BODYEDGE), 30, 20, 91, 21), 60);
    draw({.edges = true, .vertices = true});
    EXPECT_GT(count(preferred(DPC_BODYEDGE), 60, 30, 80, 50), 10);
}

TEST_F(SceneHidden, WhatLiesOnALeaningFaceIsSeenWhole)
{
    scene->setModel(makeRectangle({20.5F, 20.5F, 60}, {100.5F, 80.5F, 0})); // by 45 degrees
    scene->setSelected({0, 1, 2, 3});
    for (const float scale : {1.0F, 2.0F, 3.0F}) {
        const int side = static_cast<int>(4 * scale);
        draw({.faces = true, .scale = scale});
        EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 4 * side * side);
    }
    scene->setSelected({});
    draw({.edges = true});
    const int ofWires = count(preferred(DPC_BODYEDGE));
    draw({.faces = true, .edges = true});
    EXPECT_EQ(count(preferred(DPC_BODYEDGE)), ofWires);
}

TEST_F(SceneHidden, PointsOnAFaceAreSeenWholeInBothProjectionsFromNearAndFar)
{
    const auto model = makeRectangle({-1, -1, 0}, {1, 1, 0});
    auto positions = model->positions;
    positions.push_back({0, 0, 0});
    scene->setModel(makeModel(positions, model->triangles));
    scene->setSelected({4});
    for (const bool isOrthographic : {false, true})
        for (const double steps : {-10.0, 0.0, 10.0, 20.0}) {
            Camera camera;
            camera.setSize(kWidth, kHeight);
            camera.turn(20, 20);
            camera.setOrthographic(isOrthographic);
            camera.fit(model->bounds);
            camera.zoom(steps, kWidth / 2.0, kHeight / 2.0);
            draw(camera.variables(), {.faces = true});
            EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 4 * 4) << isOrthographic << " " << steps;
            camera.lookAlong(Side::Back);
            draw(camera.variables(), {.faces = true});
            EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 4 * 4) << "a face has no thickness";
        }
}

TEST_F(SceneHidden, ThePointThatIsNearestOfAllIsSeenFromNearAndFar)
{
    scene->setModel(makeCloud({{0, 0, -1}, {0, 0, 1}}));
    scene->setSelected({1});
    for (const bool isOrthographic : {false, true})
        for (const double steps : {-20.0, 0.0, 2.0}) {
            Camera camera;
            camera.setSize(kWidth, kHeight);
            camera.setOrthographic(isOrthographic);
            camera.fit({{0, 0, -1}, {0, 0, 1}});
            camera.zoom(steps, kWidth / 2.0, kHeight / 2.0);
            draw(camera.variables(), {});
            EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 4 * 4) << isOrthographic << " " << steps;
        }
}

TEST_F(SceneHidden, DepthIsThatOfFacesRowByRowFromTheBottom)
{
    scene->setModel(makeRectangle({20, 10, 100}, {60, 40, 100}));
    scene->setSelected({0});
    draw({.faces = true, .edges = true, .vertices = true});
    std::vector<float> depth;
    scene->readDepth(pixelView, depth);
    ASSERT_EQ(depth.size(), std::size_t{kWidth} * kHeight);
    for (int y = 0; y < kHeight; ++y)
        for (int x = 0; x < kWidth; ++x) {
            const bool isFace = x >= 20 && x < 60 && y >= 10 && y < 40;
            ASSERT_NEAR(depth[static_cast<std::size_t>(y * kWidth + x)], isFace ? 0.45F : 1.0F, 1e-6F)
                << x << ", " << y;
        }
}

TEST_F(SceneHidden, DepthFindsThePointThatIsSeen)
{
    scene->setModel(makeRectangle({-3, -2, 1}, {3, 2, -1})); // the plane z = -y / 2
    Camera camera;
    camera.setSize(kWidth, kHeight);
    camera.turn(15, 10);
    camera.fit({{-3, -2, -1}, {3, 2, 1}});
    draw(camera.variables(), {.faces = true});
    std::vector<float> depth;
    scene->readDepth(camera.variables(), depth);
    for (const auto& [x, y] : {std::pair(80, 60), std::pair(60, 70), std::pair(100, 50)}) {
        const float seen = depth[static_cast<std::size_t>((kHeight - 1 - y) * kWidth + x)];
        const auto point = unproject(camera, {x + 0.5, y + 0.5, seen});
        EXPECT_NEAR(point[2], -point[1] / 2, 1e-4);
    }
}

TEST_F(SceneHidden, ACloudHasDepth)
{
    scene->setModel(makeCloud({{20, 20, 100}}));
    draw({});
    std::vector<float> depth;
    scene->readDepth(pixelView, depth);
    EXPECT_NEAR(depth[20 * kWidth + 20], 0.45F, 1e-6F);
    EXPECT_EQ(depth[20 * kWidth + 40], 1);
}

TEST_F(SceneHidden, EachFrameForgetsTheDepthOfTheOneBefore)
{
    scene->setModel(makeRectangle({20, 10, 100}, {60, 40, 100}));
    draw({.faces = true});
    scene->setModel(nullptr);
    draw({.faces = true});
    std::vector<float> depth;
    scene->readDepth(pixelView, depth);
    EXPECT_TRUE(std::ranges::all_of(depth, [](float value) { return value == 1; }));
}

} // namespace
} // namespace vqview::test
