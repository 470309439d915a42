// SPDX-License-Identifier: MIT
#include "vqview/model/Finish.h"

#include "unit/vqview/model/ScanFiles.h"

#include <cmath>
#include <limits>
#include <random>
#include <set>

namespace vq::test::finishTests {
namespace {

using namespace vqview;
using testing::ElementsAre;
using testing::IsEmpty;

constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
constexpr float kInfinity = std::numeric_limits<float>::infinity();

FinishedModel finished(std::vector<Point3> positions, std::vector<Triangle> triangles, std::vector<Point3> normals = {})
{
    Progress progress;
    return finish({std::move(positions), std::move(normals), std::move(triangles)}, "title", progress);
}

/// Six squares of two triangles each, every corner on its own, seen from outside counterclockwise.
RawMesh cube()
{
    RawMesh mesh;
    const auto addSquare = [&mesh](Point3 corner, Point3 a, Point3 b) {
        const auto at = [&](float u, float v) {
            return Point3{corner.x + u * a.x + v * b.x, corner.y + u * a.y + v * b.y, corner.z + u * a.z + v * b.z};
        };
        const auto first = static_cast<std::uint32_t>(mesh.positions.size());
        for (const Point3& point : {at(0, 0), at(1, 0), at(1, 1), at(0, 0), at(1, 1), at(0, 1)})
            mesh.positions.push_back(point);
        mesh.triangles.push_back({first, first + 1, first + 2});
        mesh.triangles.push_back({first + 3, first + 4, first + 5});
    };
    addSquare({-1, -1, 1}, {2, 0, 0}, {0, 2, 0});
    addSquare({-1, -1, -1}, {0, 2, 0}, {2, 0, 0});
    addSquare({1, -1, -1}, {0, 2, 0}, {0, 0, 2});
    addSquare({-1, -1, -1}, {0, 0, 2}, {0, 2, 0});
    addSquare({-1, 1, -1}, {0, 0, 2}, {2, 0, 0});
    addSquare({-1, -1, -1}, {2, 0, 0}, {0, 0, 2});
    return mesh;
}

TEST(Finish, JoinsEqualCornersInTheOrderOfTheirFirst)
{
    const auto made = finished({{1, 0, 0}, {0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {-0.F, 0, -0.F}}, {{2, 3, 4}});
    EXPECT_THAT(made.model->positions, ElementsAre(Point3{1, 0, 0}, Point3{0, 0, 0}, Point3{0, 1, 0}));
    EXPECT_THAT(made.model->triangles, ElementsAre(Triangle{0, 2, 1}));
    EXPECT_EQ(made.droppedPoints + made.droppedTriangles, 0);
    EXPECT_EQ(made.model->title, "title");
}

TEST(Finish, JoinsNothingThatIsOnlyNear)
{
    const float next = std::nextafter(1.F, 2.F);
    EXPECT_EQ(finished({{1, 0, 0}, {next, 0, 0}, {0, 1, 0}, {0, 0, 1}}, {}).model->positions.size(), 4);
}

TEST(Finish, DropsWhatCannotBeShownAndCountsIt)
{
    const auto made = finished({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {kNan, 0, 0}, {0, kInfinity, 0}, {0, 0, -kInfinity}},
                               {{0, 1, 2}, {0, 1, 3}, {0, 1, 6}, {0, kNoIndex, 1}, {0, 0, 1}});
    EXPECT_EQ(made.model->positions.size(), 3);
    EXPECT_THAT(made.model->triangles, ElementsAre(Triangle{0, 1, 2}));
    EXPECT_EQ(made.droppedPoints, 3);
    EXPECT_EQ(made.droppedTriangles, 4);
}

TEST(Finish, GivesACubeItsEulerCharacteristicBoundsAndDiagonalNormals)
{
    Progress progress;
    const auto model = finish(cube(), "cube", progress).model;
    EXPECT_EQ(model->positions.size(), 8);
    EXPECT_EQ(model->edges.size(), 18) << "12 edges and 6 diagonals";
    EXPECT_EQ(model->triangles.size(), 12);
    EXPECT_EQ(model->bounds.least, (Point3{-1, -1, -1}));
    EXPECT_EQ(model->bounds.most, (Point3{1, 1, 1}));
    for (std::size_t i = 0; i < 8; ++i) { // however a square is cut, each of the three has a right angle there
        EXPECT_NEAR(model->normals[i].x, model->positions[i].x / std::sqrt(3.F), 1e-6F);
        EXPECT_NEAR(model->normals[i].y, model->positions[i].y / std::sqrt(3.F), 1e-6F);
        EXPECT_NEAR(model->normals[i].z, model->positions[i].z / std::sqrt(3.F), 1e-6F);
    }
}

TEST(Finish, GivesEveryPositionOfAMeshAUnitNormal)
{
    const auto made = finished(
        {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {5, 5, 5}, {3e38F, 0, 0}, {0, 3e38F, 0}, {1e-40F, 0, 0}, {0, 1e-40F, 0}},
        {{0, 1, 2}, {0, 4, 5}, {0, 7, 6}});
    for (const Point3& normal : made.model->normals)
        EXPECT_NEAR(std::hypot(normal.x, normal.y, normal.z), 1, 1e-6);
    EXPECT_EQ(made.model->normals[5], (Point3{0, 0, 1}));
    EXPECT_EQ(made.model->normals[7], (Point3{0, 0, -1}));
}

TEST(Finish, KeepsACloudsNormalsAndMakesThemUnitVectors)
{
    const auto made = finished({{1, 0, 0}, {1, 0, 0}, {kNan, 0, 0}, {2, 0, 0}, {3, 0, 0}}, {},
                               {{0, 5, 0}, {1, 0, 0}, {1, 0, 0}, {0, 0, 0}, {kNan, 0, 0}});
    EXPECT_TRUE(made.model->isCloud());
    EXPECT_THAT(made.model->normals, ElementsAre(Point3{0, 1, 0}, Point3{0, 0, 1}, Point3{0, 0, 1}));
    EXPECT_THAT(made.model->edges, IsEmpty());
    EXPECT_THAT(finished({{1, 0, 0}, {2, 0, 0}}, {}, {{0, 1, 0}}).model->normals, IsEmpty()) << "one is missing";
}

TEST(Finish, ListsEachEdgeOnceAsASetDoes)
{
    std::mt19937 random(7);
    std::vector<Point3> positions;
    for (int i = 0; i < 60; ++i)
        positions.push_back({static_cast<float>(i), 0, 0});
    std::vector<Triangle> triangles;
    std::set<std::array<std::uint32_t, 2>> expected;
    for (int i = 0; i < 500; ++i) {
        const Triangle triangle{static_cast<std::uint32_t>(random() % 20),
                                static_cast<std::uint32_t>(20 + random() % 20),
                                static_cast<std::uint32_t>(40 + random() % 20)};
        triangles.push_back({triangle[2], triangle[0], triangle[1]});
        expected.insert({triangle[0], triangle[1]});
        expected.insert({triangle[1], triangle[2]});
        expected.insert({triangle[0], triangle[2]});
    }
    EXPECT_THAT(finished(positions, triangles).model->edges, testing::ElementsAreArray(expected));
}

TEST(Finish, StopsWhenCancelled)
{
    Progress progress;
    progress.cancel();
    EXPECT_FALSE(finish(cube(), "cube", progress).model);
}

} // namespace
} // namespace vq::test::finishTests
