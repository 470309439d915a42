// SPDX-License-Identifier: MIT
#include "unit/vqview/model/ScanFiles.h"

namespace {

using namespace vqview;
using namespace vqview::test;
using testing::ElementsAre;
using testing::IsEmpty;

Read readObj(std::string_view text)
{
    return readAs(ScanFormat::Obj, text);
}

TEST(ReadObj, TakesVerticesAndFacesAndPassesOverTheRest)
{
    const Read made = readObj("# a remark\nmtllib x.mtl\no thing\nv 1 2 3\nv -4.5 +5e-1 .25 1.0\n\nvt 0 0\n"
                              "v 7 8 9 0.1 0.2 0.3\nusemtl m\ns off\nl 1 2\nf 1 2 3\n");
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{1, 2, 3}, Point3{-4.5F, 0.5F, 0.25F}, Point3{7, 8, 9}));
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}));
}

TEST(ReadObj, TakesTheVertexOfEveryKindOfCorner)
{
    const Read made = readObj("v 0 0 0\nv 1 0 0\nv 0 1 0\nf 1/9 2/9/8 3//7 # end\n");
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}));
}

TEST(ReadObj, CountsNegativeIndicesBackFromTheLastVertex)
{
    const Read made = readObj("v 0 0 0\nv 1 0 0\nv 0 1 0\nf -3 -2 -1\nv 0 0 1\nf -1 -2 -3\n");
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}, Triangle{3, 2, 1}));
}

TEST(ReadObj, MakesPolygonsFansAroundTheFirstCorner)
{
    const Read made = readObj("f 1 2 3 4 5\n");
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}, Triangle{0, 2, 3}, Triangle{0, 3, 4}));
}

TEST(ReadObj, MarksIndicesThatCannotBe)
{
    const Read made = readObj("v 0 0 0\nf 0 1 -2\nf 1 4294967296 99999999999\n");
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{kNoIndex, 0, kNoIndex}, Triangle{0, kNoIndex, kNoIndex}));
}

TEST(ReadObj, GoesOnInTheNextLineAfterABackslash)
{
    const Read made = readObj("v 1 \\\n2 3\nf 1 \\\r\n 2 \\\r\n 3\r\nv 4 5 6\\");
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{1, 2, 3}, Point3{4, 5, 6}));
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}));
}

TEST(ReadObj, ReadsLinesOfEverySystem)
{
    const Read made = readObj("\tv\t1  2 3 \r\n  v 4 5 6\r\nf 1 2 1\r\n");
    EXPECT_EQ(made.failure, "");
    EXPECT_EQ(made.mesh.positions.size(), 2);
    EXPECT_EQ(made.mesh.triangles.size(), 1);
    const Read old = readObj("# remark\rv 1 2 3\rv 4 \\\r5 6\rf 1 2 1\r");
    EXPECT_EQ(old.failure, "");
    EXPECT_THAT(old.mesh.positions, ElementsAre(Point3{1, 2, 3}, Point3{4, 5, 6}));
    EXPECT_EQ(old.mesh.triangles.size(), 1);
}

TEST(ReadObj, KeepsNormals)
{
    const Read made = readObj("v 1 2 3\nvn 0 0 1\n");
    EXPECT_THAT(made.mesh.normals, ElementsAre(Point3{0, 0, 1}));
}

TEST(ReadObj, NamesTheLineThatIsDamaged)
{
    EXPECT_EQ(readObj("v 1 2 3\nv 1 2\n").failure, "line 2: a vertex is not three numbers");
    EXPECT_EQ(readObj("\nv 1 2 x\n").failure, "line 2: a vertex is not three numbers");
    EXPECT_EQ(readObj("v 1 \\\n2 \\\n\nv 1 1 1\n").failure, "line 3: a vertex is not three numbers");
    EXPECT_EQ(readObj("vn 1\n").failure, "line 1: a normal is not three numbers");
    EXPECT_EQ(readObj("f 1 2 a\n").failure, "line 1: a face has a corner that is no number");
    EXPECT_EQ(readObj("f 1 2 3.5\n").failure, "line 1: a face has a corner that is no number");
}

TEST(ReadObj, FindsNothingInNothing)
{
    EXPECT_THAT(readObj("").mesh.positions, IsEmpty());
    EXPECT_THAT(readObj("\\").mesh.positions, IsEmpty());
}

} // namespace
