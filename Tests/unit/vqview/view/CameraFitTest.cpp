// SPDX-License-Identifier: MIT
#include "unit/vqview/view/Looking.h"

#include <limits>
#include <numbers>

namespace vqview::test::cameraFitTests {
namespace {

constexpr float kInfinity = std::numeric_limits<float>::infinity();
constexpr float kNotANumber = std::numeric_limits<float>::quiet_NaN();
constexpr Bounds kEmpty{{kInfinity, kInfinity, kInfinity}, {-kInfinity, -kInfinity, -kInfinity}};

struct Window
{
    int width, height;
};

class Fit : public testing::TestWithParam<std::tuple<Window, bool, float>>
{
};

TEST_P(Fit, ShowsEveryCornerAndLeavesATwentiethOfTheSideFree)
{
    const auto [window, isOrthographic, size] = GetParam();
    const Bounds bounds{{-1 * size, 2 * size, -3 * size}, {5 * size, 4 * size, 7 * size}};
    Camera camera;
    camera.setSize(window.width, window.height);
    camera.setOrthographic(isOrthographic);
    for (int move = 0; move < 20; ++move) {
        camera.turn(move * 0.11 * window.width, move * 0.07 * window.height - 0.3 * window.height);
        camera.fit(bounds);
        double farthestOut = 0;
        for (const Point3& corner : cornersOf(bounds)) {
            farthestOut = std::max(farthestOut, reach(camera, corner));
            const double depth = project(camera, corner).depth;
            EXPECT_GT(depth, 0);
            EXPECT_LT(depth, 1);
        }
        EXPECT_NEAR(farthestOut, 0.9, 1e-9) << "move " << move;
    }
}

INSTANTIATE_TEST_SUITE_P(WindowsAndSizes, Fit,
                         testing::Combine(testing::Values(Window{1280, 800}, Window{300, 900}, Window{1, 1}),
                                          testing::Bool(), testing::Values(1.0F, 1e6F, 1e-6F)));

TEST(CameraFit, PutsTheCentreInTheMiddleOfTheWindow)
{
    Camera camera;
    camera.setSize(640, 480);
    camera.turn(17, 23);
    camera.fit(kBox);
    EXPECT_NEAR(project(camera, kBoxCentre).x, 320, 1e-9);
    EXPECT_NEAR(project(camera, kBoxCentre).y, 240, 1e-9);
}

TEST(CameraFit, KeepsTheDirection)
{
    Camera camera;
    camera.setSize(640, 480);
    camera.turn(17, 23);
    const SVQGLVariables before = camera.variables();
    camera.fit(kBox);
    const SVQGLVariables after = camera.variables();
    for (const int element : {0, 1, 2, 4, 5, 6, 8, 9, 10})
        EXPECT_EQ(before.m_dModelView[element], after.m_dModelView[element]);
}

TEST(CameraFit, SpansThirtyDegreesOverTheSmallerSide)
{
    Camera camera;
    camera.setSize(1000, 500);
    EXPECT_NEAR(camera.variables().m_dProjection[5], 1 / std::tan(std::numbers::pi / 12), 1e-12);
    EXPECT_NEAR(camera.variables().m_dProjection[0], 0.5 / std::tan(std::numbers::pi / 12), 1e-12);
    camera.setSize(500, 1000);
    EXPECT_NEAR(camera.variables().m_dProjection[0], 1 / std::tan(std::numbers::pi / 12), 1e-12);
    EXPECT_NEAR(camera.variables().m_dProjection[5], 0.5 / std::tan(std::numbers::pi / 12), 1e-12);
}

TEST(CameraFit, ShowsAUnitSphereRoundTheOriginForWhatHasNoSize)
{
    for (const Bounds& bounds : {kEmpty, Bounds{{-kInfinity, 0, 0}, {kInfinity, 1, 1}},
                                 Bounds{{0, 0, 0}, {kNotANumber, 1, 1}}, Bounds{{-1.1e15F, 0, 0}, {1.1e15F, 0, 0}}}) {
        Camera camera;
        camera.setSize(640, 480);
        camera.fit(bounds);
        ASSERT_TRUE(isFinite(camera.variables()));
        EXPECT_NEAR(project(camera, 0, 0, 0).x, 320, 1e-9);
        EXPECT_GT(project(camera, 0, 0, 1).depth, 0);
        EXPECT_LT(project(camera, 0, 0, -1).depth, 1);
    }
}

TEST(CameraFit, PutsASinglePointInTheMiddle)
{
    constexpr Point3 kPoint{1e6F, -2e6F, 3e6F};
    Camera camera;
    camera.setSize(640, 480);
    camera.fit({kPoint, kPoint});
    EXPECT_NEAR(project(camera, kPoint).x, 320, 1e-6);
    EXPECT_NEAR(project(camera, kPoint).y, 240, 1e-6);
    EXPECT_GT(project(camera, kPoint).depth, 0);
    EXPECT_LT(project(camera, kPoint).depth, 1);
}

TEST(CameraFit, StandsBeforeALineThatIsSeenEndOn)
{
    for (const bool isOrthographic : {false, true}) {
        Camera camera;
        camera.setSize(640, 480);
        camera.setOrthographic(isOrthographic);
        camera.fit({{0, 0, -4}, {0, 0, 4}});
        EXPECT_GT(project(camera, 0, 0, 4).depth, 0);
        EXPECT_LT(project(camera, 0, 0, -4).depth, 1);
        EXPECT_LT(reach(camera, {0, 0, 4}), 0.9);
    }
}

TEST(CameraFit, TakesTheWholeWindowAsViewport)
{
    Camera camera;
    camera.setSize(640, 480);
    const SVQGLVariables view = camera.variables();
    EXPECT_THAT(view.m_iViewport, testing::ElementsAre(0, 0, 640, 480));
    camera.setSize(0, -5);
    EXPECT_THAT(camera.variables().m_iViewport, testing::ElementsAre(0, 0, 1, 1));
}

} // namespace
} // namespace vqview::test::cameraFitTests
