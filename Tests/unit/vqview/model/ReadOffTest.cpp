// SPDX-License-Identifier: MIT
#include "unit/vqview/model/ScanFiles.h"

namespace {

using namespace vqview;
using namespace vqview::test;
using testing::ElementsAre;

Read readOff(std::string_view text)
{
    return readAs(ScanFormat::Off, text);
}

constexpr std::string_view kBody = "3 1 0\n0 0 0\n1 0 0 # corner\n\n# remark\n0 1 0\n3 0 1 2 255 0 0\n";

void expectTriangle(const Read& made)
{
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{0, 0, 0}, Point3{1, 0, 0}, Point3{0, 1, 0}));
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}));
}

TEST(ReadOff, TakesCountsInTheLineOfTheWordOrTheNextOrWithoutTheWord)
{
    const std::string body(kBody);
    expectTriangle(readOff("OFF\n" + body));
    expectTriangle(readOff("# remark\n\nOFF " + body));
    expectTriangle(readOff(body));
    expectTriangle(readOff("COFF\r\n" + body));
    std::string old = "# remark\nOFF\n" + body;
    std::ranges::replace(old, '\n', '\r');
    expectTriangle(readOff(old));
}

TEST(ReadOff, TakesNormalsWhereTheWordSaysSo)
{
    const Read made = readOff("NOFF\n2 0 0\n1 2 3 0 0 1\n4 5 6 0 1 0\n");
    EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{1, 2, 3}, Point3{4, 5, 6}));
    EXPECT_THAT(made.mesh.normals, ElementsAre(Point3{0, 0, 1}, Point3{0, 1, 0}));
}

TEST(ReadOff, MakesPolygonsFans)
{
    const Read made = readOff("OFF\n1 2 0\n0 0 0\n4 0 1 2 3\n2 0 1\n");
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}, Triangle{0, 2, 3}));
}

TEST(ReadOff, SaysWhatIsMissing)
{
    EXPECT_EQ(readOff("").failure, "it has no header");
    EXPECT_EQ(readOff("OFF\n").failure, "it has no counts");
    EXPECT_EQ(readOff("OFF\n-1 0 0\n").failure, "line 2: there are no counts of vertices and faces");
    EXPECT_EQ(readOff("OFF\n2 0 0\n1 2 3\n").failure, "it ends after 1 of 2 vertices");
    EXPECT_EQ(readOff("OFF\n1 2 0\n1 2 3\n3 0 0 0\n").failure, "it ends after 1 of 2 faces");
    EXPECT_EQ(readOff("OFF\n1 0 0\n1 2\n").failure, "line 3: a vertex is not three numbers");
    EXPECT_EQ(readOff("OFF\n1 1 0\n1 2 3\n3 0 0\n").failure, "line 4: a face is not a count and as many vertices");
    EXPECT_EQ(readOff("OFF BINARY\n1 1 0\n").failure, "its binary form is unknown here");
    EXPECT_EQ(readOff("4OFF\n1 1 0\n").failure, "its points have other than three coordinates");
}

} // namespace
