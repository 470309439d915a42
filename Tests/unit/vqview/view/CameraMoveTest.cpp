// SPDX-License-Identifier: MIT
#include "unit/vqview/view/Looking.h"

#include <limits>
#include <random>

namespace vqview::test::cameraMoveTests {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNotANumber = std::numeric_limits<double>::quiet_NaN();

/// Looks at a box from somewhere in both projections.
class CameraMove : public testing::TestWithParam<bool>
{
public:
    CameraMove()
    {
        camera.setSize(640, 480);
        camera.setOrthographic(GetParam());
        camera.turn(100, 40);
        camera.fit(kBox);
    }

    Camera camera;
};

INSTANTIATE_TEST_SUITE_P(PerspectiveAndOrthographic, CameraMove, testing::Bool());

TEST_P(CameraMove, ZoomKeepsAKnownPointUnderTheMouse)
{
    for (const Point3& point : cornersOf(kBox)) {
        const Seen before = project(camera, point);
        for (const double steps : {1.0, 3.5, -2.0, 8.0, -10.5}) {
            camera.zoom(steps, before.x, before.y, point);
            EXPECT_NEAR(project(camera, point).x, before.x, 1e-6);
            EXPECT_NEAR(project(camera, point).y, before.y, 1e-6);
        }
    }
}

TEST_P(CameraMove, ZoomKeepsWhatIsAtTheTargetsDepthUnderTheMouse)
{
    const Seen mouse{50, 400, project(camera, kBoxCentre).depth};
    const auto [x, y, z] = unproject(camera, mouse);
    for (const double steps : {1.0, -2.5, 6.0}) {
        camera.zoom(steps, mouse.x, mouse.y);
        EXPECT_NEAR(project(camera, x, y, z).x, mouse.x, 1e-6);
        EXPECT_NEAR(project(camera, x, y, z).y, mouse.y, 1e-6);
    }
}

TEST_P(CameraMove, ZoomMakesThingsLargerByPositiveStepsAndBackBySoManyNegativeOnes)
{
    const auto heightOfOne = [this] { return project(camera, 2, 2, 2).y - project(camera, 2, 3, 2).y; };
    const double before = heightOfOne();
    camera.zoom(2, 320, 240);
    EXPECT_GT(heightOfOne(), 1.2 * before);
    camera.zoom(-2, 320, 240);
    EXPECT_NEAR(heightOfOne(), before, 1e-9);
}

TEST_P(CameraMove, ZoomComesToAnEndBothWays)
{
    for (const double steps : {1e8, -1e8}) {
        for (int time = 0; time < 10; ++time)
            camera.zoom(steps, 320, 240);
        const SVQGLVariables end = camera.variables();
        camera.zoom(steps, 320, 240);
        EXPECT_THAT(camera.variables().m_dModelView, testing::ElementsAreArray(end.m_dModelView));
        EXPECT_TRUE(isFinite(end));
    }
}

TEST_P(CameraMove, ZoomTakesAPointBehindTheViewerAsUnknown)
{
    camera.lookAlong(Side::Front);
    Camera other = camera;
    camera.zoom(1, 100, 100, {2, 3, 1e6F});
    other.zoom(1, 100, 100);
    EXPECT_THAT(camera.variables().m_dModelView, testing::ElementsAreArray(other.variables().m_dModelView));
    EXPECT_THAT(camera.variables().m_dProjection, testing::ElementsAreArray(other.variables().m_dProjection));
}

TEST_P(CameraMove, PanTakesTheTargetAlongWithTheMouse)
{
    const auto onTarget = unproject(camera, {10, 20, project(camera, kBoxCentre).depth});
    camera.pan(37.5, -12.25);
    EXPECT_NEAR(project(camera, kBoxCentre).x, 320 + 37.5, 1e-6);
    EXPECT_NEAR(project(camera, kBoxCentre).y, 240 - 12.25, 1e-6);
    EXPECT_NEAR(project(camera, onTarget[0], onTarget[1], onTarget[2]).x, 10 + 37.5, 1e-6);
    EXPECT_NEAR(project(camera, onTarget[0], onTarget[1], onTarget[2]).y, 20 - 12.25, 1e-6);
}

TEST_P(CameraMove, TurnKeepsTheTargetInPlace)
{
    camera.turn(123, -45);
    EXPECT_NEAR(project(camera, kBoxCentre).x, 320, 1e-9);
    EXPECT_NEAR(project(camera, kBoxCentre).y, 240, 1e-9);
}

TEST_P(CameraMove, TurnTakesTheFrontAlongWithTheMouse)
{
    camera.lookAlong(Side::Front);
    constexpr Point3 kInFront{2, 3, 7};
    camera.turn(30, 0);
    EXPECT_GT(project(camera, kInFront).x, 321);
    camera.turn(-30, 20);
    EXPECT_GT(project(camera, kInFront).y, 241);
}

TEST_P(CameraMove, AWholeTurnIsTwiceTheSmallerSide)
{
    const Seen before = project(camera, 5, 4, 7);
    camera.turn(480 * 2, 0);
    EXPECT_NEAR(project(camera, 5, 4, 7).x, before.x, 1e-9);
    EXPECT_NEAR(project(camera, 5, 4, 7).y, before.y, 1e-9);
}

TEST_P(CameraMove, UpStaysUpAndEndsAtThePoles)
{
    for (const double downwards : {1000.0, -3000.0, 1e8}) {
        camera.turn(13, downwards);
        const SVQGLVariables view = camera.variables();
        EXPECT_EQ(view.m_dModelView[4], 0);                      // up never leans to a side,
        EXPECT_GE(view.m_dModelView[5], 0);                      // nor hangs down
        EXPECT_EQ(view.m_dModelView[6], downwards > 0 ? 1 : -1); // here it points at the viewer, or away
    }
}

TEST_P(CameraMove, ProjectionsShowTheTargetsPlaneInTheSameSize)
{
    const double depth = project(camera, kBoxCentre).depth;
    const auto left = unproject(camera, {20, 40, depth});
    const auto right = unproject(camera, {600, 470, depth});
    camera.setOrthographic(!camera.isOrthographic());
    EXPECT_NEAR(project(camera, left[0], left[1], left[2]).x, 20, 1e-6);
    EXPECT_NEAR(project(camera, left[0], left[1], left[2]).y, 40, 1e-6);
    EXPECT_NEAR(project(camera, right[0], right[1], right[2]).x, 600, 1e-6);
    EXPECT_NEAR(project(camera, right[0], right[1], right[2]).y, 470, 1e-6);
}

TEST_P(CameraMove, AMoveThatIsNoNumberIsNotMade)
{
    const SVQGLVariables before = camera.variables();
    for (const double wrong : {kNotANumber, kInfinity, -kInfinity, 1e300}) {
        camera.turn(wrong, 0);
        camera.turn(0, wrong);
        camera.pan(0, wrong);
        camera.zoom(wrong, 1, 1);
        camera.zoom(1, wrong, 1);
        camera.zoom(1, 1, wrong, kBoxCentre);
    }
    EXPECT_THAT(camera.variables().m_dModelView, testing::ElementsAreArray(before.m_dModelView));
    EXPECT_THAT(camera.variables().m_dProjection, testing::ElementsAreArray(before.m_dProjection));
}

struct SideAxes
{
    Side side;
    std::array<double, 3> right, up, towardsViewer;
};

TEST(CameraLookAlong, SetsTheAxesExactly)
{
    constexpr SideAxes kSides[]{
        {Side::Front, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}},  {Side::Back, {-1, 0, 0}, {0, 1, 0}, {0, 0, -1}},
        {Side::Right, {0, 0, -1}, {0, 1, 0}, {1, 0, 0}}, {Side::Left, {0, 0, 1}, {0, 1, 0}, {-1, 0, 0}},
        {Side::Top, {1, 0, 0}, {0, 0, -1}, {0, 1, 0}},   {Side::Bottom, {1, 0, 0}, {0, 0, 1}, {0, -1, 0}},
    };
    Camera camera;
    camera.setSize(640, 480);
    for (const auto& [side, right, up, towardsViewer] : kSides) {
        camera.turn(77, 11);
        camera.lookAlong(side);
        const SVQGLVariables view = camera.variables();
        for (std::size_t axis = 0; axis < 3; ++axis) {
            EXPECT_EQ(view.m_dModelView[4 * axis], right[axis]);
            EXPECT_EQ(view.m_dModelView[4 * axis + 1], up[axis]);
            EXPECT_EQ(view.m_dModelView[4 * axis + 2], towardsViewer[axis]);
        }
    }
}

class RandomWalk : public testing::TestWithParam<unsigned>
{
};

INSTANTIATE_TEST_SUITE_P(Seeds, RandomWalk, testing::Range(0U, 8U));

TEST_P(RandomWalk, OnlyGivesMatricesOfFiniteNumbersThatCanBeInverted)
{
    std::mt19937 random(GetParam());
    std::uniform_real_distribution<double> even(-1, 1);
    const float sizes[]{1, 1e6F, 1e-6F, 0};
    Camera camera;
    const auto any = [&] { return even(random) * std::pow(10, 5 * even(random)); };
    for (int step = 0; step < 4000; ++step) {
        switch (random() % 8) {
        case 0:
            camera.setSize(static_cast<int>(random() % 2000), static_cast<int>(random() % 2000));
            break;
        case 1:
            camera.turn(any(), any());
            break;
        case 2:
            camera.pan(any(), any());
            break;
        case 3:
            camera.zoom(any(), any(), any());
            break;
        case 4:
            camera.zoom(even(random), any(), any(), {static_cast<float>(any()), 0, static_cast<float>(any())});
            break;
        case 5:
            camera.setOrthographic(random() % 2 == 0);
            break;
        case 6:
            camera.lookAlong(static_cast<Side>(random() % 6));
            break;
        default: {
            const float size = sizes[random() % 4];
            if (step % 50 == 0)
                camera.fit({{-size, 0, 2 * size}, {size, size, 3 * size}});
        }
        }
        ASSERT_TRUE(isFinite(camera.variables())) << "step " << step;
        const auto point = unproject(camera, {1, 1, 0.5});
        ASSERT_TRUE(std::isfinite(point[0] + point[1] + point[2])) << "step " << step;
    }
}

} // namespace
} // namespace vqview::test::cameraMoveTests
