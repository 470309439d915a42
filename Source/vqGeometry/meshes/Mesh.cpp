// SPDX-License-Identifier: MIT
#include "vqGeometry/meshes/Mesh.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vq {
namespace {

constexpr int kMostParts = 1024;

MeshVertex vertexOfSphere(double x, double y, double z)
{
    const float position[]{static_cast<float>(x), static_cast<float>(y), static_cast<float>(z)};
    return {{position[0], position[1], position[2]}, {position[0], position[1], position[2]}};
}

double partOf(double whole, int part, int parts)
{
    return whole * part / parts;
}

void addTriangle(Mesh& mesh, std::uint32_t a, std::uint32_t b, std::uint32_t c)
{
    mesh.triangles.insert(mesh.triangles.end(), {a, b, c});
}

/// One vertex joined with each edge of a ring of `slices` vertices, which is counterclockwise seen from it.
void addFan(Mesh& mesh, std::uint32_t tip, std::uint32_t ring, std::uint32_t slices)
{
    for (std::uint32_t slice = 0; slice < slices; ++slice)
        addTriangle(mesh, tip, ring + slice, ring + (slice + 1) % slices);
}

/// Two triangles for each pair of edges of two neighbouring rings.
void addBand(Mesh& mesh, std::uint32_t upper, std::uint32_t lower, std::uint32_t slices)
{
    for (std::uint32_t slice = 0; slice < slices; ++slice) {
        const std::uint32_t next = (slice + 1) % slices;
        addTriangle(mesh, upper + slice, lower + slice, lower + next);
        addTriangle(mesh, upper + slice, lower + next, upper + next);
    }
}

/// The fan of the lower pole: seen from below, the ring runs clockwise.
void addFanBelow(Mesh& mesh, std::uint32_t tip, std::uint32_t ring, std::uint32_t slices)
{
    for (std::uint32_t slice = 0; slice < slices; ++slice)
        addTriangle(mesh, tip, ring + (slice + 1) % slices, ring + slice);
}

} // namespace

Mesh sphereMesh(int slices, int stacks)
{
    slices = std::clamp(slices, 3, kMostParts);
    stacks = std::clamp(stacks, 2, kMostParts);
    Mesh mesh;
    mesh.vertices.push_back(vertexOfSphere(0, 0, 1));
    for (int stack = 1; stack < stacks; ++stack) {
        const double polar = partOf(std::numbers::pi, stack, stacks);
        for (int slice = 0; slice < slices; ++slice) {
            const double around = partOf(2 * std::numbers::pi, slice, slices);
            mesh.vertices.push_back(vertexOfSphere(std::sin(polar) * std::cos(around),
                                                   std::sin(polar) * std::sin(around), std::cos(polar)));
        }
    }
    mesh.vertices.push_back(vertexOfSphere(0, 0, -1));

    const auto ringLength = static_cast<std::uint32_t>(slices);
    const auto lowerPole = static_cast<std::uint32_t>(mesh.vertices.size() - 1);
    addFan(mesh, 0, 1, ringLength);
    for (std::uint32_t ring = 1; ring + ringLength < lowerPole; ring += ringLength)
        addBand(mesh, ring, ring + ringLength, ringLength);
    addFanBelow(mesh, lowerPole, lowerPole - ringLength, ringLength);
    return mesh;
}

Mesh diskMesh(int slices)
{
    slices = std::clamp(slices, 3, kMostParts);
    Mesh mesh;
    mesh.vertices.push_back({{0, 0, 1}, {0, 0, 0}});
    for (int slice = 0; slice < slices; ++slice) {
        const double around = partOf(2 * std::numbers::pi, slice, slices);
        mesh.vertices.push_back(
            {{0, 0, 1}, {static_cast<float>(std::cos(around)), static_cast<float>(std::sin(around)), 0}});
    }
    addFan(mesh, 0, 1, static_cast<std::uint32_t>(slices));
    return mesh;
}

} // namespace vq
