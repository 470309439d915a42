// SPDX-License-Identifier: MIT
#include "vqview/overlay/VertexValues.h"
#include "vqview/overlay/ColourRamp.h"

#include "vqview/model/Model.h"

#include <gmock/gmock.h>

#include <cmath>
#include <limits>

namespace vqview {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::FloatNear;
using testing::IsNan;

/// The corners of an octahedron round a centre, with the normals of its sphere.
Model octahedron(float radius, Point3 centre, float outwards = 1)
{
    Model model;
    for (const Point3& axis :
         {Point3{1, 0, 0}, Point3{-1, 0, 0}, Point3{0, 1, 0}, Point3{0, -1, 0}, Point3{0, 0, 1}, Point3{0, 0, -1}}) {
        model.positions.push_back({centre.x + radius * axis.x, centre.y + radius * axis.y, centre.z + radius * axis.z});
        model.normals.push_back({outwards * axis.x, outwards * axis.y, outwards * axis.z});
    }
    for (std::uint32_t first = 0; first < 6; ++first)
        for (std::uint32_t second = first + 1; second < 6; ++second)
            if (second / 2 != first / 2)
                model.edges.push_back({first, second});
    model.bounds = boundsOf(model.positions);
    return model;
}

std::vector<float> valuesOf(const Model& model, VertexValue value)
{
    std::vector<float> values{7, 7};
    valuesOf(model, value, values);
    return values;
}

TEST(VertexValues, OfHeightAreTheYs)
{
    EXPECT_THAT(valuesOf(octahedron(2, {0, 10, 0}), VertexValue::Height), ElementsAre(10, 10, 12, 8, 10, 10));
}

TEST(VertexValues, OfDistanceAreFromTheMiddleOfTheBounds)
{
    EXPECT_THAT(valuesOf(octahedron(2, {5, 10, -3}), VertexValue::Distance), Each(FloatNear(2, 1e-6F)));
    Model pair;
    pair.positions = {{0, 0, 0}, {3, 4, 12}, {0, 0, 12}};
    pair.bounds = boundsOf(pair.positions);
    EXPECT_THAT(valuesOf(pair, VertexValue::Distance), ElementsAre(6.5F, 6.5F, 6.5F)); // 13 / 2: corners of the box
}

TEST(VertexValues, OfCurvatureAreOneByTheRadiusOfASphere)
{
    EXPECT_THAT(valuesOf(octahedron(4, {1, 2, 3}), VertexValue::Curvature), Each(FloatNear(0.25F, 1e-6F)));
}

TEST(VertexValues, OfCurvatureAreNegativeInAHollow)
{
    EXPECT_THAT(valuesOf(octahedron(4, {0, 0, 0}, -1), VertexValue::Curvature), Each(FloatNear(-0.25F, 1e-6F)));
}

TEST(VertexValues, OfCurvatureAreZeroOnAPlane)
{
    Model plane;
    plane.positions = {{0, 0, 0}, {1, 0, 0}, {0, 0, 1}};
    plane.normals.assign(3, {0, 1, 0});
    plane.edges = {{0, 1}, {1, 2}, {0, 2}};
    EXPECT_THAT(valuesOf(plane, VertexValue::Curvature), ElementsAre(0, 0, 0));
}

TEST(VertexValues, AreNoNumbersWhereNothingCanBeTold)
{
    Model model = octahedron(1, {0, 0, 0});
    model.normals.clear();
    EXPECT_THAT(valuesOf(model, VertexValue::Curvature), Each(IsNan()));
    Model cloud = octahedron(1, {0, 0, 0});
    cloud.edges.clear();
    EXPECT_THAT(valuesOf(cloud, VertexValue::Curvature), Each(IsNan()));
    EXPECT_EQ(valuesOf(cloud, VertexValue::Curvature).size(), 6u);
}

TEST(VertexValues, PassOverEdgesWithoutLengthAndWithoutPoints)
{
    Model model = octahedron(4, {0, 0, 0});
    model.edges.push_back({0, 0});
    model.edges.push_back({1, 99});
    EXPECT_THAT(valuesOf(model, VertexValue::Curvature), Each(FloatNear(0.25F, 1e-6F)));
}

TEST(VertexValues, OfNoPointsAreNone)
{
    for (const VertexValueRow& row : kVertexValues)
        EXPECT_TRUE(valuesOf(Model(), row.id).empty()) << row.name;
}

TEST(VertexValues, HaveTheirRowsInOrder)
{
    for (std::size_t i = 0; i < kVertexValues.size(); ++i) {
        EXPECT_EQ(kVertexValues[i].id, static_cast<VertexValue>(i));
        EXPECT_STRNE(kVertexValues[i].name, "");
    }
    EXPECT_STREQ(rowOf(VertexValue::Height).unit, "mm");
}

TEST(ColourRamp, RunsFromBlueByGreenToRed)
{
    const CVQColor least = rampColour(0);
    const CVQColor middle = rampColour(0.5F);
    const CVQColor most = rampColour(1);
    EXPECT_GT(least.b, std::max(least.r, least.g));
    EXPECT_GT(middle.g, std::max(middle.r, middle.b));
    EXPECT_GT(most.r, std::max(most.g, most.b));
}

TEST(ColourRamp, HoldsItsEndsAndHasNoSteps)
{
    EXPECT_EQ(rampColour(-3), rampColour(0));
    EXPECT_EQ(rampColour(std::numeric_limits<float>::infinity()), rampColour(1));
    const CVQColor unknown = rampColour(std::numeric_limits<float>::quiet_NaN());
    EXPECT_TRUE(unknown.r == unknown.g && unknown.g == unknown.b);
    for (int i = 0; i < 1000; ++i) {
        const CVQColor a = rampColour(static_cast<float>(i) / 1000);
        const CVQColor b = rampColour(static_cast<float>(i + 1) / 1000);
        ASSERT_LE(std::max({std::abs(a.r - b.r), std::abs(a.g - b.g), std::abs(a.b - b.b)}), 2) << i;
    }
}

} // namespace
} // namespace vqview
