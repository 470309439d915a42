// SPDX-License-Identifier: MIT
#include "unit/vqview/model/ScanFiles.h"

namespace {

using namespace vqview;
using namespace vqview::test;
using testing::ElementsAre;
using testing::IsEmpty;

Read readXyz(std::string_view text)
{
    return readAs(ScanFormat::Xyz, text);
}

TEST(ReadXyz, TakesAPointALine)
{
    const Read made = readXyz("# remark\n1 2 3\n\n// remark\n  4\t5 6 \r\n7 8 9");
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{1, 2, 3}, Point3{4, 5, 6}, Point3{7, 8, 9}));
    EXPECT_THAT(made.mesh.normals, IsEmpty());
}

TEST(ReadXyz, TakesAPointALineWhereOnlyCarriageReturnsEndLines)
{
    std::string text = "# remark\r";
    for (int i = 0; i < 30'000; ++i) // several times what is looked into for the first line end
        text += std::to_string(i) + " 2 3\r";
    const Read made = readXyz(text);
    EXPECT_EQ(made.failure, "");
    ASSERT_EQ(made.mesh.positions.size(), 30'000);
    EXPECT_EQ(made.mesh.positions.back(), (Point3{29'999, 2, 3}));
    EXPECT_EQ(readXyz("1 2 3\r4 5\r").failure, "line 2: a point is not three numbers");
}

TEST(ReadXyz, TakesCommasAndSemicolonsBetweenNumbers)
{
    EXPECT_THAT(readXyz("1.5,2,3\n4, 5, 6\n").mesh.positions, ElementsAre(Point3{1.5F, 2, 3}, Point3{4, 5, 6}));
    EXPECT_THAT(readXyz("1.5;2;3\n4; 5; 6\n").mesh.positions, ElementsAre(Point3{1.5F, 2, 3}, Point3{4, 5, 6}));
}

TEST(ReadXyz, TakesACommaForADecimalPointWhereSemicolonsPart)
{
    EXPECT_THAT(readXyz("1,5;2,25;-3\n").mesh.positions, ElementsAre(Point3{1.5F, 2.25F, -3}));
}

TEST(ReadXyz, TakesColumnsForNormalsThatAreUnitVectorsInEveryLine)
{
    const Read made = readXyz("0 0 0 0 0 1 255 0 0\n1 1 1 0.6 0 -0.8 0 255 0\n2 2 2 0 0 0 1 1 1\n");
    EXPECT_THAT(made.mesh.normals, ElementsAre(Point3{0, 0, 1}, Point3{0.6F, 0, -0.8F}, Point3{0, 0, 0}));
}

TEST(ReadXyz, TakesOtherColumnsForNoNormals)
{
    EXPECT_THAT(readXyz("0 0 0 0 0 1\n1 1 1 255 128 0\n").mesh.normals, IsEmpty());
    EXPECT_THAT(readXyz("0 0 0 0 0 1\n1 1 1\n").mesh.normals, IsEmpty());
    EXPECT_THAT(readXyz("0 0 0 0 0 0\n1 1 1 0 0 0\n").mesh.normals, IsEmpty()) << "black";
    EXPECT_THAT(readXyz("0 0 0 17\n").mesh.normals, IsEmpty());
}

TEST(ReadXyz, PassesOverHeadings)
{
    EXPECT_THAT(readXyz("X Y Z\n2\n1 2 3\n4 5 6\n").mesh.positions, ElementsAre(Point3{1, 2, 3}, Point3{4, 5, 6}));
}

TEST(ReadXyz, NamesTheLineThatIsDamaged)
{
    EXPECT_EQ(readXyz("1 2 3\n1 2\n").failure, "line 2: a point is not three numbers");
    EXPECT_EQ(readXyz("1 2 3\n\n1 2 3x\n").failure, "line 3: a point is not three numbers");
    std::string prose;
    for (int i = 0; i < 30; ++i)
        prose += "many words\n";
    EXPECT_EQ(readXyz(prose).failure, "line 21: a point is not three numbers");
}

} // namespace
