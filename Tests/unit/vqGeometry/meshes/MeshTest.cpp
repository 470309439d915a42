// SPDX-License-Identifier: MIT
#include "vqGeometry/meshes/Mesh.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <map>
#include <set>
#include <utility>

namespace vq::test {
namespace {

struct Vector
{
    double x, y, z;
};

Vector vectorOf(const float (&numbers)[3])
{
    return {numbers[0], numbers[1], numbers[2]};
}

double dot(const Vector& a, const Vector& b)
{
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

Vector cross(const Vector& a, const Vector& b)
{
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

Vector difference(const Vector& a, const Vector& b)
{
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}

struct Triangle
{
    Vector a, b, c;
    Vector normal; // the sum of its vertices' normals

    /// Towards the side from which it is counterclockwise, twice its area long.
    Vector facing() const { return cross(difference(b, a), difference(c, a)); }
};

std::vector<Triangle> trianglesOf(const Mesh& mesh)
{
    std::vector<Triangle> triangles;
    for (std::size_t i = 0; i + 2 < mesh.triangles.size(); i += 3) {
        const MeshVertex& a = mesh.vertices.at(mesh.triangles[i]);
        const MeshVertex& b = mesh.vertices.at(mesh.triangles[i + 1]);
        const MeshVertex& c = mesh.vertices.at(mesh.triangles[i + 2]);
        triangles.push_back(
            {vectorOf(a.position),
             vectorOf(b.position),
             vectorOf(c.position),
             {double{a.normal[0]} + b.normal[0] + c.normal[0], double{a.normal[1]} + b.normal[1] + c.normal[1],
              double{a.normal[2]} + b.normal[2] + c.normal[2]}});
    }
    return triangles;
}

/// How often each edge is walked, and in which direction.
std::map<std::pair<std::uint32_t, std::uint32_t>, int> edgesOf(const Mesh& mesh)
{
    std::map<std::pair<std::uint32_t, std::uint32_t>, int> edges;
    for (std::size_t i = 0; i + 2 < mesh.triangles.size(); i += 3)
        for (std::size_t corner = 0; corner < 3; ++corner)
            ++edges[{mesh.triangles[i + corner], mesh.triangles[i + (corner + 1) % 3]}];
    return edges;
}

struct Divisions
{
    int slices, stacks;
};

constexpr Divisions kDivisions[] = {{3, 2}, {4, 2}, {3, 3}, {8, 8}, {18, 18}, {36, 36}, {5, 11}, {40, 3}};

TEST(SphereMesh, HasTwoPolesAndItsRings)
{
    for (const auto [slices, stacks] : kDivisions) {
        const Mesh mesh = sphereMesh(slices, stacks);
        EXPECT_EQ(mesh.vertices.size(), static_cast<std::size_t>(2 + slices * (stacks - 1)));
        EXPECT_EQ(mesh.triangles.size(), static_cast<std::size_t>(3 * 2 * slices * (stacks - 1)));
    }
}

TEST(SphereMesh, LiesOnTheSphereWithNormalsOfLengthOne)
{
    for (const auto [slices, stacks] : kDivisions)
        for (const MeshVertex& vertex : sphereMesh(slices, stacks).vertices) {
            const Vector position = vectorOf(vertex.position);
            const Vector normal = vectorOf(vertex.normal);
            EXPECT_NEAR(dot(position, position), 1, 3e-7);
            EXPECT_NEAR(dot(normal, normal), 1, 3e-7);
            EXPECT_NEAR(dot(position, normal), 1, 3e-7) << "normals point outwards";
        }
}

/// Closed: each edge belongs to two triangles, which walk it in opposite directions. One piece without a handle:
/// vertices - edges + triangles = 2.
TEST(SphereMesh, IsAClosedSurface)
{
    for (const auto [slices, stacks] : kDivisions) {
        const Mesh mesh = sphereMesh(slices, stacks);
        const auto edges = edgesOf(mesh);
        for (const auto& [edge, walks] : edges) {
            ASSERT_EQ(walks, 1);
            ASSERT_TRUE(edges.contains({edge.second, edge.first}));
        }
        EXPECT_EQ(mesh.vertices.size() + mesh.triangles.size() / 3, edges.size() / 2 + 2);
    }
}

TEST(SphereMesh, IsCounterclockwiseFromOutside)
{
    for (const auto [slices, stacks] : kDivisions)
        for (const Triangle& triangle : trianglesOf(sphereMesh(slices, stacks)))
            ASSERT_GT(dot(triangle.facing(), triangle.normal), 0) << slices << " x " << stacks;
}

/// The signed volume of the tetrahedra over all faces, which counts on the faces' direction.
TEST(SphereMesh, FillsTheSphereTheBetterTheFinerItIs)
{
    const double sphere = 4.18879020478639098; // 4 pi / 3
    double last = 0;
    for (const int parts : {3, 8, 18, 36, 200}) {
        double volume = 0;
        for (const Triangle& triangle : trianglesOf(sphereMesh(parts, parts)))
            volume += dot(triangle.a, cross(triangle.b, triangle.c)) / 6;
        EXPECT_GT(volume, last);
        EXPECT_LT(volume, sphere);
        last = volume;
    }
    EXPECT_GT(last, 0.999 * sphere);
}

TEST(SphereMesh, LimitsItsDivisions)
{
    constexpr int kLeast = std::numeric_limits<int>::min();
    constexpr int kMost = std::numeric_limits<int>::max();
    EXPECT_EQ(sphereMesh(0, 0).triangles, sphereMesh(3, 2).triangles);
    EXPECT_EQ(sphereMesh(kLeast, kLeast).triangles, sphereMesh(3, 2).triangles);
    EXPECT_EQ(sphereMesh(kMost, 2).triangles, sphereMesh(1024, 2).triangles);
    EXPECT_EQ(sphereMesh(3, kMost).triangles, sphereMesh(3, 1024).triangles);
}

TEST(DiskMesh, IsAFanWithItsNormalsAlongZ)
{
    for (const int slices : {3, 8, 100}) {
        const Mesh mesh = diskMesh(slices);
        ASSERT_EQ(mesh.vertices.size(), static_cast<std::size_t>(slices + 1));
        EXPECT_EQ(mesh.triangles.size(), static_cast<std::size_t>(3 * slices));
        EXPECT_EQ(dot(vectorOf(mesh.vertices[0].position), vectorOf(mesh.vertices[0].position)), 0);
        for (std::size_t i = 0; i < mesh.vertices.size(); ++i) {
            const Vector position = vectorOf(mesh.vertices[i].position);
            EXPECT_EQ(mesh.vertices[i].normal[0], 0.0f);
            EXPECT_EQ(mesh.vertices[i].normal[1], 0.0f);
            EXPECT_EQ(mesh.vertices[i].normal[2], 1.0f);
            EXPECT_EQ(position.z, 0);
            EXPECT_NEAR(dot(position, position), i == 0 ? 0 : 1, 3e-7);
        }
        double area = 0;
        for (const Triangle& triangle : trianglesOf(mesh)) {
            EXPECT_GT(triangle.facing().z, 0);
            area += triangle.facing().z / 2;
        }
        EXPECT_NEAR(area, slices * std::sin(2 * 3.14159265358979324 / slices) / 2, 1e-6);
    }
}

TEST(DiskMesh, HasOneRim)
{
    const Mesh mesh = diskMesh(8);
    const auto edges = edgesOf(mesh);
    std::set<std::uint32_t> rim;
    for (const auto& [edge, walks] : edges)
        if (!edges.contains({edge.second, edge.first}))
            rim.insert(edge.first);
    EXPECT_EQ(rim.size(), 8u);
    EXPECT_FALSE(rim.contains(0));
}

TEST(DiskMesh, LimitsItsDivisions)
{
    EXPECT_EQ(diskMesh(-5).triangles, diskMesh(3).triangles);
    EXPECT_EQ(diskMesh(1 << 30).triangles, diskMesh(1024).triangles);
}

} // namespace
} // namespace vq::test
