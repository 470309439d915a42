// SPDX-License-Identifier: MIT
#include "unit/vqview/view/Looking.h"
#include "unit/vqview/view/ViewScene.h"

#include <cmath>
#include <limits>
#include <numbers>

namespace vqview::test {
namespace {

using SceneColours = ViewScene;

constexpr int kLeft = 0, kRight = ViewScene::kWidth - 1, kUpper = ViewScene::kHeight - 1;

TEST_F(SceneColours, TheBackgroundGoesFromItsColourAThirdOfTheWayToWhite)
{
    setColour(DPC_BACKGROUND, 0.25F, 0.5F, 0.75F);
    draw({});
    for (const int x : {kLeft, kRight}) {
        EXPECT_TRUE(shows(x, 0, {0.25 * 255, 0.5 * 255, 0.75 * 255}));
        EXPECT_TRUE(shows(x, kUpper / 2, {0.375 * 255, 255 * (0.5 + 0.5 / 6), 255 * (0.75 + 0.25 / 6)}));
        EXPECT_TRUE(shows(x, kUpper, {0.5 * 255, 255 * (0.5 + 0.5 / 3), 255 * (0.75 + 0.25 / 3)}));
    }
}

TEST_F(SceneColours, AChangedPreferenceIsSeenInTheNextFrame)
{
    setSimpleLight(0.5F, 0.25F, 1);
    scene->setModel(makeRectangle({20, 20, 0}, {60, 60, 0}));
    draw({.faces = true});
    EXPECT_TRUE(shows(40, 40, {0.5 * 255, 0.25 * 255, 255}));
    setSimpleLight(1, 0.5F, 0.25F);
    setColour(DPC_BACKGROUND, 0, 1, 0);
    draw({.faces = true});
    EXPECT_TRUE(shows(40, 40, {255, 0.5 * 255, 0.25 * 255}));
    EXPECT_TRUE(shows(0, 0, {0, 255, 0}));
}

/// Of `rings` times twice as many rectangles, each cut in two.
std::shared_ptr<Model> makeSphere(Point3 centre, float radius, std::uint32_t rings)
{
    std::vector<Point3> positions, normals;
    std::vector<std::array<std::uint32_t, 3>> triangles;
    const std::uint32_t around = 2 * rings;
    for (std::uint32_t ring = 0; ring <= rings; ++ring)
        for (std::uint32_t step = 0; step <= around; ++step) {
            const float polar = std::numbers::pi_v<float> * static_cast<float>(ring) / static_cast<float>(rings);
            const float turn = 2 * std::numbers::pi_v<float> * static_cast<float>(step) / static_cast<float>(around);
            const Point3 out{std::sin(polar) * std::sin(turn), std::cos(polar), std::sin(polar) * std::cos(turn)};
            normals.push_back(out);
            positions.push_back({centre.x + radius * out.x, centre.y + radius * out.y, centre.z + radius * out.z});
            const std::uint32_t here = ring * (around + 1) + step, below = here + around + 1;
            if (ring < rings && step < around) {
                triangles.push_back({here, below, here + 1});
                triangles.push_back({here + 1, below, below + 1});
            }
        }
    auto sphere = makeModel(std::move(positions), std::move(triangles));
    sphere->normals = std::move(normals);
    return sphere;
}

TEST_F(SceneColours, ASphereIsLitByLambertsCosineAndTheLightsAmbientShare)
{
    setSimpleLight(0.9F, 0.6F, 0.3F);
    setColour(DPC_LIGHT0DIFFUSE, 0.8F, 0.8F, 0.8F);
    setColour(DPC_LIGHT0POS, 1, 2, 2);
    setColour(DPC_LIGHT2AMBIENT, 0.5F, 0.5F, 0.5F);
    CVQMaterial material;
    CVQDrawProperty::GetDPMaterial(DPM_BODY, material);
    material.m_fAmbient[2] = 0.4F;
    CVQDrawProperty::SetDPMaterial(DPM_BODY, material);

    constexpr double kRadius = 50;
    scene->setModel(makeSphere({80, 60, 0}, static_cast<float>(kRadius), 90));
    draw({.faces = true});
    for (int y = 15; y < 105; y += 3)
        for (int x = 35; x < 125; x += 3) {
            const double across = (x + 0.5 - 80) / kRadius, up = (y + 0.5 - 60) / kRadius;
            if (across * across + up * up > 0.9)
                continue;
            const double towardsViewer = std::sqrt(1 - across * across - up * up);
            const double light = 0.8 * std::max(0.0, (across + 2 * up + 2 * towardsViewer) / 3);
            EXPECT_TRUE(shows(x, y, {255 * 0.9 * light, 255 * 0.6 * light, 255 * (0.3 * light + 0.5 * 0.4)}, 2.5));
        }
}

TEST_F(SceneColours, TheLightsTurnWithTheViewer)
{
    setSimpleLight(1, 1, 1);
    setColour(DPC_LIGHT0POS, 1, 1, 0);
    const auto sphere = makeSphere({0, 0, 0}, 1, 60);
    scene->setModel(sphere);
    Camera camera;
    camera.setSize(kWidth, kHeight);
    camera.fit(sphere->bounds);
    for (const Side side : {Side::Front, Side::Left, Side::Top}) {
        camera.lookAlong(side);
        draw(camera.variables(), {.faces = true});
        EXPECT_GT(at(100, 80).red, 100);
        EXPECT_LT(at(60, 40).red, 1);
    }
}

TEST_F(SceneColours, AFaceIsSeenFromBehindInAColourOfItsOwn)
{
    setSimpleLight(0, 1, 0);
    setColour(DPC_BACKFACE_USERDEFINE, 0.5F, 0.25F, 0.75F);
    auto model = makeModel({{20, 20, 0}, {20, 100, 0}, {100, 20, 0}}, {{0, 1, 2}}); // clockwise
    model->normals.assign(3, {0, 0, -1});
    scene->setModel(model);
    draw({.faces = true});
    EXPECT_TRUE(shows(40, 40, {0.5 * 255, 0.25 * 255, 0.75 * 255}));
}

TEST_F(SceneColours, EdgesLieOverFacesInTheirWidthTimesTheScale)
{
    scene->setModel(makeRectangle({20.5F, 20.5F, 0}, {80.5F, 80.5F, 0}));
    draw({.faces = true, .edges = true});
    EXPECT_EQ(count(preferred(DPC_BODYEDGE), 10, 40, 30, 41), 1);
    EXPECT_TRUE(shows(20, 40, preferred(DPC_BODYEDGE)));
    EXPECT_TRUE(shows(50, 50, preferred(DPC_BODYEDGE))); // the diagonal
    draw({.faces = true, .edges = true, .scale = 3});
    EXPECT_EQ(count(preferred(DPC_BODYEDGE), 10, 40, 30, 41), 3);
    CVQDrawProperty::SetSize(DPS_FACEEDGE, 2.5F);
    draw({.edges = true, .scale = 2});
    EXPECT_EQ(count(preferred(DPC_BODYEDGE), 10, 40, 30, 41), 5);
    draw({.faces = true});
    EXPECT_EQ(count(preferred(DPC_BODYEDGE)), 0);
}

TEST_F(SceneColours, VerticesAreSquaresOfTheirSizeTimesTheScale)
{
    scene->setModel(makeRectangle({20, 20, 0}, {80, 80, 0}));
    draw({.faces = true, .vertices = true});
    EXPECT_EQ(count(preferred(DPC_BODYEDGE)), 4 * 2 * 2);
    EXPECT_EQ(count(preferred(DPC_BODYEDGE), 19, 19, 21, 21), 2 * 2);
    draw({.vertices = true, .scale = 3});
    EXPECT_EQ(count(preferred(DPC_BODYEDGE)), 4 * 6 * 6);
    draw({.faces = true});
    EXPECT_EQ(count(preferred(DPC_BODYEDGE)), 0);
}

TEST_F(SceneColours, SelectedPointsLieOverVerticesInTheSizeOfPickedOnes)
{
    scene->setModel(makeRectangle({20, 20, 0}, {80, 80, 0}));
    scene->setSelected({1, 3});
    draw({.faces = true, .vertices = true});
    EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 2 * 4 * 4);
    EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY), 78, 18, 82, 22), 4 * 4);
    EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY), 18, 78, 22, 82), 4 * 4);
    draw({.faces = true, .scale = 2});
    EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 2 * 8 * 8);
    scene->setSelected({});
    draw({.faces = true});
    EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 0);
}

TEST_F(SceneColours, SelectedPointsBeyondTheModelsLastAreNotDrawn)
{
    scene->setModel(makeRectangle({20, 20, 0}, {80, 80, 0}));
    scene->setSelected({3, 4, 0xFFFFFFFF});
    draw({});
    EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 4 * 4);
}

TEST_F(SceneColours, OfANewModelNothingIsSelected)
{
    scene->setModel(makeRectangle({20, 20, 0}, {80, 80, 0}));
    scene->setSelected({0, 1});
    scene->setModel(makeRectangle({30, 30, 0}, {70, 70, 0}));
    draw({});
    EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 0);
}

TEST_F(SceneColours, ACloudIsAlwaysShownInTheColourOfMeasuredPoints)
{
    scene->setModel(makeCloud({{20, 20, 0}, {80, 80, 5}}));
    for (const Parts& parts : {Parts{}, Parts{true, true, true, 1}}) {
        draw(parts);
        EXPECT_EQ(count(preferred(DPC_PROBEPOINT)), 2 * 2 * 2);
        EXPECT_EQ(count(preferred(DPC_PROBEPOINT), 79, 79, 81, 81), 2 * 2);
    }
    draw({.scale = 2});
    EXPECT_EQ(count(preferred(DPC_PROBEPOINT)), 2 * 4 * 4);
}

TEST_F(SceneColours, ACloudWithNormalsIsLitAsABodyIs)
{
    setSimpleLight(1, 0.5F, 0);
    auto cloud = makeCloud({{20, 20, 0}, {80, 80, 5}});
    cloud->normals = {{0, 0, 1}, {0, 0.8F, 0.6F}};
    scene->setModel(cloud);
    draw({});
    EXPECT_EQ(count({255, 0.5 * 255, 0}), 2 * 2);
    EXPECT_EQ(count({0.6 * 255, 0.3 * 255, 0}), 2 * 2);
}

TEST_F(SceneColours, WithoutAModelOrPointsThereIsTheBackgroundOnly)
{
    const auto isBackground = [this] {
        for (int y = 0; y < kHeight; ++y)
            for (int x = 1; x < kWidth; ++x)
                if (!shows(x, y, at(0, y), 0))
                    return false;
        return true;
    };
    constexpr Parts kAll{true, true, true, 1};
    draw(kAll);
    EXPECT_TRUE(isBackground());
    scene->setModel(std::make_shared<Model>());
    scene->setSelected({0, 1});
    draw(kAll);
    EXPECT_TRUE(isBackground());
    scene->setModel(makeRectangle({20, 20, 0}, {80, 80, 0}));
    scene->setModel(nullptr);
    scene->setSelected({0, 1});
    draw(kAll);
    EXPECT_TRUE(isBackground());
}

TEST_F(SceneColours, APreferenceThatIsNoSizeIsAPixel)
{
    scene->setModel(makeRectangle({20.5F, 20.5F, 0}, {80.5F, 80.5F, 0}));
    scene->setSelected({0});
    for (const float wrong : {-1.0F, 0.0F, std::numeric_limits<float>::quiet_NaN()}) {
        CVQDrawProperty::SetSize(DPS_PICKEDVERTEX, wrong);
        CVQDrawProperty::SetSize(DPS_FACEEDGE, wrong);
        draw({.edges = true});
        EXPECT_EQ(count(preferred(DPC_SELECTEDENTITY)), 1);
        EXPECT_EQ(count(preferred(DPC_BODYEDGE), 10, 40, 30, 41), 1);
    }
}

TEST_F(SceneColours, AMeshWithoutNormalsIsShownUnlit)
{
    auto model = makeRectangle({20, 20, 0}, {80, 80, 0});
    model->normals.clear();
    scene->setModel(model);
    draw({.faces = true});
    EXPECT_TRUE(shows(50, 40, preferred(DPC_PROBEPOINT)));
}

} // namespace
} // namespace vqview::test
