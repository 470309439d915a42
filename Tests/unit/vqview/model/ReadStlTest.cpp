// SPDX-License-Identifier: MIT
#include "unit/vqview/model/ScanFiles.h"

namespace {

using namespace vqview;
using namespace vqview::test;
using testing::ElementsAre;
using testing::IsEmpty;

Read readStl(std::string_view bytes)
{
    return readAs(ScanFormat::Stl, bytes);
}

/// Two triangles under a header that begins with a word.
std::string binaryStl(std::string header)
{
    header.resize(80, ' ');
    std::string bytes = header + littleEndian(std::uint32_t{2});
    for (const float z : {0.5F, -2.0F})
        bytes += littleEndian(0.F, 0.F, 1.F, 0.F, 0.F, z, 1.F, 0.F, z, 0.F, 1.F, z, std::uint16_t{0});
    return bytes;
}

constexpr std::string_view kText = "solid thing\n facet normal 0 0 1\n  outer loop\n   vertex 0 0 0\n"
                                   "   VERTEX 1e0 0 0\r\n   vertex 0 1 0\n  endloop\n endfacet\nendsolid thing\n";

TEST(ReadStl, TakesTriangles)
{
    for (const char* const header : {"binary", "solid"}) { // some programs begin binary files so
        const Read made = readStl(binaryStl(header));
        EXPECT_EQ(made.failure, "");
        EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{0, 0, 0.5F}, Point3{1, 0, 0.5F}, Point3{0, 1, 0.5F},
                                                     Point3{0, 0, -2}, Point3{1, 0, -2}, Point3{0, 1, -2}));
        EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}, Triangle{3, 4, 5}));
    }
}

TEST(ReadStl, TakesTextWithLettersOfAnyCase)
{
    const Read made = readStl(kText);
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{0, 0, 0}, Point3{1, 0, 0}, Point3{0, 1, 0}));
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}));
}

TEST(ReadStl, TakesTextInWhichOnlyCarriageReturnsEndLines)
{
    std::string text(kText);
    std::erase(text, '\r');
    std::ranges::replace(text, '\n', '\r');
    const Read made = readStl(text);
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}));
}

TEST(ReadStl, PassesOverBytesAfterTheLastTriangle)
{
    for (const char* const header : {"binary", "solid"}) {
        const Read made = readStl(binaryStl(header) + "more");
        EXPECT_EQ(made.failure, "") << header;
        EXPECT_EQ(made.mesh.triangles.size(), 2) << header;
    }
}

TEST(ReadStl, TakesForTextWhatIsTooShortForItsCountOrHasNoZeroByte)
{
    const std::string bytes = binaryStl("solid");
    EXPECT_EQ(readStl(bytes.substr(0, bytes.size() - 1)).failure, "line 1: it ends before its \"endsolid\"");
    const std::string longName = "solid " + std::string(200, 'x') + std::string(kText.substr(kText.find('\n')));
    EXPECT_EQ(readStl(longName).mesh.triangles.size(), 1);
}

TEST(ReadStl, SaysWhatIsMissing)
{
    const std::string bytes = binaryStl("binary");
    EXPECT_EQ(readStl(bytes.substr(0, 83)).failure, "it ends within its header");
    EXPECT_EQ(readStl(bytes.substr(0, bytes.size() - 1)).failure, "it ends after 1 of 2 triangles");
    EXPECT_EQ(readStl(kText.substr(0, kText.find("endsolid"))).failure, "line 8: it ends before its \"endsolid\"");
    EXPECT_EQ(readStl("solid\nvertex 1 2\n").failure, "line 2: a vertex is not three numbers");
}

TEST(ReadStl, BelievesNoCount)
{
    const Read made = readStl(std::string(80, 'x') + littleEndian(std::uint32_t{4'000'000'000}));
    EXPECT_EQ(made.failure, "it ends after 0 of 4000000000 triangles");
    EXPECT_THAT(made.mesh.positions, IsEmpty());
}

} // namespace
