// SPDX-License-Identifier: MIT
// Whatever bytes a reader is given, it answers, and what is made of them keeps what a model promises.
#include "vqview/model/Finish.h"

#include "unit/vqview/model/ScanFiles.h"

#include <cmath>
#include <random>

namespace {

using namespace vqview;
using namespace vqview::test;

struct Sample
{
    const char* name;
    ScanFormat format;
    std::string bytes;
};

constexpr std::string_view kPlyElements = "element vertex 4\nproperty float x\nproperty float y\nproperty float z\n"
                                          "element face 2\nproperty list uchar int vertex_indices\nend_header\n";

std::string binaryPly()
{
    std::string bytes = "ply\nformat binary_little_endian 1.0\n" + std::string(kPlyElements);
    for (const float i : {0.F, 1.F, 2.F, 3.F})
        bytes += littleEndian(i, i * i, -i);
    return bytes + littleEndian(std::uint8_t{3}, 0, 1, 2, std::uint8_t{3}, 1, 2, 3);
}

std::string binaryStl()
{
    std::string bytes = std::string(80, ' ') + littleEndian(std::uint32_t{2});
    for (const float z : {0.F, 1.F})
        bytes += littleEndian(0.F, 0.F, 1.F, 0.F, 0.F, z, 1.F, 0.F, z, 0.F, 1.F, z, std::uint16_t{0});
    return bytes;
}

/// A small whole file of each kind.
std::vector<Sample> samples()
{
    return {
        {"obj", ScanFormat::Obj, "# x\nv 0 0 0\nv 1 0.5 -1e1\nv 0 1 0\nv 0 0 1 \\\n1\nvn 0 0 1\nf 1/1 2//3 3/1/2 -1\n"},
        {"off", ScanFormat::Off,
         "NOFF\n4 2 0\n0 0 0 1 0 0\n1 0 0 0 1 0\n0 1 0 0 0 1\n0 0 1 1 0 0\n3 0 1 2\n4 0 1 3 2\n"},
        {"xyz", ScanFormat::Xyz, "x y z\n0 0 0 1 0 0\n1.5;2,5;3;0;1;0\n1,2,3,0,0,1\n"},
        {"ascii ply", ScanFormat::Ply,
         "ply\nformat ascii 1.0\n" + std::string(kPlyElements) + "0 0 0\n1 0 0\n0 1 0\n0 0 1\n3 0 1 2\n3 1 2 3\n"},
        {"binary ply", ScanFormat::Ply, binaryPly()},
        {"ascii stl", ScanFormat::Stl,
         "solid a\nfacet normal 0 0 1\nouter loop\nvertex 0 0 0\nvertex 1 0 0\nvertex 0 1 0\nendloop\nendfacet\n"
         "endsolid\n"},
        {"binary stl", ScanFormat::Stl, binaryStl()},
    };
}

void expectSound(const Model& model)
{
    for (const Point3& point : model.positions)
        ASSERT_TRUE(std::isfinite(point.x) && std::isfinite(point.y) && std::isfinite(point.z));
    for (const Triangle& triangle : model.triangles)
        for (const std::uint32_t corner : triangle)
            ASSERT_LT(corner, model.positions.size());
    for (const auto& [smaller, larger] : model.edges)
        ASSERT_TRUE(smaller < larger && larger < model.positions.size());
    ASSERT_TRUE(model.normals.empty() || model.normals.size() == model.positions.size());
    for (const Point3& normal : model.normals)
        ASSERT_NEAR(std::hypot(normal.x, normal.y, normal.z), 1, 1e-5);
}

void expectSoundAnswer(ScanFormat format, const std::string& bytes)
{
    Progress progress;
    // A block of exactly this size: a reader that goes one byte too far is seen by a sanitizer.
    const std::vector<char> block(bytes.begin(), bytes.end());
    const std::string_view view(block.data(), block.size());
    formatOfContent(view);
    Read made = readAs(format, view);
    expectSound(*finish(std::move(made.mesh), "", progress).model);
}

TEST(HostileScans, WholeSamplesAreRead)
{
    for (const Sample& sample : samples()) {
        const Read made = readAs(sample.format, sample.bytes);
        EXPECT_EQ(made.failure, "") << sample.name;
        EXPECT_GE(made.mesh.positions.size(), 3) << sample.name;
        EXPECT_EQ(formatOfContent(sample.bytes), sample.format) << sample.name;
    }
}

TEST(HostileScans, TruncatedAtEveryByteAreAnswered)
{
    for (const Sample& sample : samples())
        for (std::size_t size = 0; size <= sample.bytes.size(); ++size) {
            SCOPED_TRACE(std::string(sample.name) + " of " + std::to_string(size) + " bytes");
            expectSoundAnswer(sample.format, sample.bytes.substr(0, size));
        }
}

TEST(HostileScans, FilesThatSayHowMuchTheyHoldMissNothingSilently)
{
    for (const Sample& sample : samples()) {
        if (sample.format == ScanFormat::Obj || sample.format == ScanFormat::Xyz)
            continue;
        const std::size_t shortest = sample.bytes.size() - 3; // beyond, maybe only a line's end is missing
        for (std::size_t size = 0; size < shortest; ++size)
            EXPECT_NE(readAs(sample.format, std::string_view(sample.bytes).substr(0, size)).failure, "")
                << sample.name << " of " << size << " bytes";
    }
}

TEST(HostileScans, MutationsAreAnswered)
{
    const unsigned seed = 20'231;
    std::mt19937 random(seed);
    constexpr std::string_view kTelling = "0123456789.-+e#\n\r \\/,;vfnN\xFF";
    for (const Sample& sample : samples())
        for (int round = 0; round < 4000; ++round) {
            SCOPED_TRACE(std::string(sample.name) + ", seed " + std::to_string(seed) + ", round " +
                         std::to_string(round));
            std::string bytes = sample.bytes;
            for (unsigned count = 1 + random() % 4; count > 0; --count) {
                const std::size_t at = random() % bytes.size();
                const bool isTelling = random() % 2 == 0;
                bytes[at] = isTelling ? kTelling[random() % kTelling.size()] : static_cast<char>(random());
                if (random() % 8 == 0)
                    bytes.insert(at, bytes.substr(random() % bytes.size(), random() % 20));
            }
            expectSoundAnswer(sample.format, bytes);
        }
}

} // namespace
