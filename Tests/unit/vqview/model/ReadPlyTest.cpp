// SPDX-License-Identifier: MIT
#include "unit/vqview/model/ScanFiles.h"

namespace {

using namespace vqview;
using namespace vqview::test;
using testing::ElementsAre;
using testing::IsEmpty;

Read readPly(std::string_view bytes)
{
    return readAs(ScanFormat::Ply, bytes);
}

std::string header(std::string_view format, std::string_view elements)
{
    return "ply\nformat " + std::string(format) + " 1.0\ncomment a remark\n" + std::string(elements) + "end_header\n";
}

constexpr std::string_view kTriangle = "element vertex 3\nproperty float x\nproperty float y\nproperty float z\n"
                                       "element face 1\nproperty list uchar int vertex_indices\n";

/// Properties of many types, in an order of their own, among them some that nobody asks for.
constexpr std::string_view kMixed =
    "element vertex 2\nproperty uchar red\nproperty double z\nproperty list uchar short x\nproperty short y\n"
    "property int8 x\nproperty float32 nz\nproperty float nx\nproperty float ny\n"
    "element other 2\nproperty uint16 a\nproperty list int float b\n"
    "element face 2\nproperty uint flags\nproperty list ushort uint vertex_index\n";

void expectMixed(const Read& made)
{
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{-3, 2, 1.5F}, Point3{4, -5, -0.25F}));
    EXPECT_THAT(made.mesh.normals, ElementsAre(Point3{0, 0, 1}, Point3{1, 0, 0}));
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 0}, Triangle{1, 0, 1}, Triangle{1, 1, 7}));
}

template <std::endian kOrder>
std::string mixedBytes()
{
    using u8 = std::uint8_t;
    using i8 = std::int8_t;
    using i16 = std::int16_t;
    using u16 = std::uint16_t;
    using i32 = std::int32_t;
    using u32 = std::uint32_t;
    return bytesOf<kOrder>(u8{9}, 1.5, u8{2}, i16{77}, i16{78}, i16{2}, i8{-3}, 1.F, 0.F, 0.F) +
           bytesOf<kOrder>(u8{9}, -0.25, u8{0}, i16{-5}, i8{4}, 0.F, 1.F, 0.F) +
           bytesOf<kOrder>(u16{5}, i32{1}, 6.F, u16{5}, i32{0}) +
           bytesOf<kOrder>(u32{1}, u16{3}, u32{0}, u32{1}, u32{0}) +
           bytesOf<kOrder>(u32{1}, u16{4}, u32{1}, u32{0}, u32{1}, u32{7});
}

TEST(ReadPly, TakesText)
{
    const Read made = readPly(header("ascii", kTriangle) + "0 0 0\n1 0 0\n0 1e0 0\n3 0 1 2\n");
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{0, 0, 0}, Point3{1, 0, 0}, Point3{0, 1, 0}));
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}));
}

TEST(ReadPly, TakesEveryTypeInEveryForm)
{
    expectMixed(readPly(header("ascii", kMixed) + "9 1.5 2 77 78 2 -3 1 0 0\n9 -0.25 0 -5 4 0 1 0\n5 1 6\n5 0\n"
                                                  "1 3 0 1 0\n1 4 1 0 1 7\n"));
    expectMixed(readPly(header("binary_little_endian", kMixed) + mixedBytes<std::endian::little>()));
    expectMixed(readPly(header("binary_big_endian", kMixed) + mixedBytes<std::endian::big>()));
}

TEST(ReadPly, TakesHeadersOfEverySystem)
{
    std::string text = header("ascii", kTriangle);
    for (std::size_t at = 0; (at = text.find('\n', at)) != std::string::npos; at += 2)
        text.replace(at, 1, "\r\n");
    EXPECT_EQ(readPly(text + "0 0 0\r\n1 0 0\r\n0 1 0\r\n3 0 1 2\r\n").mesh.triangles.size(), 1);
    std::erase(text, '\n');
    EXPECT_EQ(readPly(text + "0 0 0\r1 0 0\r0 1 0\r3 0 1 2\r").mesh.triangles.size(), 1);
    EXPECT_EQ(readPly(text + "0 0 0\r1 x 0\r0 1\r").failure,
              "line 12: an element \"vertex\" is not what the header says");
}

TEST(ReadPly, TakesBytesBehindAHeaderInWhichOnlyCarriageReturnsEndLines)
{
    std::string text = header("binary_little_endian", "element vertex 2\nproperty uchar x\nproperty uchar y\n"
                                                      "property uchar z\n");
    std::ranges::replace(text, '\n', '\r');
    const Read made = readPly(text + "\n\r\n\r\n\r"); // 10 and 13
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{10, 13, 10}, Point3{13, 10, 13}));
}

TEST(ReadPly, TakesCloudsWithoutFaces)
{
    const Read made = readPly(header("ascii", "element vertex 1\nproperty double x\nproperty double y\n"
                                              "property double z\n") +
                              "1 2 3");
    EXPECT_EQ(made.failure, "");
    EXPECT_THAT(made.mesh.positions, ElementsAre(Point3{1, 2, 3}));
    EXPECT_THAT(made.mesh.triangles, IsEmpty());
}

TEST(ReadPly, TakesStripsWithTrianglesTurnedEverySecondTime)
{
    const Read made = readPly(header("ascii", "element vertex 1\nproperty float x\nproperty float y\nproperty float z\n"
                                              "element tristrips 1\nproperty list int int vertex_indices\n") +
                              "0 0 0\n8 0 1 2 3 -1 4 5 6\n");
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{0, 1, 2}, Triangle{2, 1, 3}, Triangle{4, 5, 6}));
}

TEST(ReadPly, TakesIndicesThatCannotBeForNone)
{
    const Read made =
        readPly(header("ascii", "element face 1\nproperty list uchar float vertex_indices\n") + "3 -1 0.5 1e20\n");
    EXPECT_THAT(made.mesh.triangles, ElementsAre(Triangle{kNoIndex, kNoIndex, kNoIndex}));
}

TEST(ReadPly, SaysWhatIsWrongWithItsHeader)
{
    EXPECT_EQ(readPly("plyx\n").failure, "it does not begin with \"ply\"");
    EXPECT_EQ(readPly("ply\nformat ascii 1.0\n").failure, "its header does not end");
    EXPECT_EQ(readPly("ply\nend_header\n").failure, "its header names no format");
    EXPECT_EQ(readPly(header("binary", "")).failure, "line 2: the format is none of ascii and both binary ones");
    EXPECT_EQ(readPly(header("ascii", "element vertex -1\n")).failure, "line 4: an element is not a name and a count");
    EXPECT_EQ(readPly(header("ascii", "property float x\n")).failure, "line 4: a property is not a type and a name");
    EXPECT_EQ(readPly(header("ascii", "element vertex 1\nproperty half x\n")).failure,
              "line 5: a property is not a type and a name");
    EXPECT_EQ(readPly(header("ascii", "element vertex 1\nproperty float x\nproperty float y\n") + "1 2").failure,
              "its vertices have no x, y and z");
}

TEST(ReadPly, SaysWhereItEndsOrIsDamaged)
{
    const std::string head = header("ascii", kTriangle);
    EXPECT_EQ(readPly(head + "0 0 0\n1 0 0\n0 1\n").failure, "it ends after 2 of 3 elements \"vertex\"");
    EXPECT_EQ(readPly(head + "0 0 0\n1 x 0\n0 1\n").failure,
              "line 12: an element \"vertex\" is not what the header says");
    EXPECT_EQ(readPly(head + "0 0 0\n1 0 0\n0 1 0\n3 0 1").failure, "it ends after 0 of 1 elements \"face\"");
    EXPECT_EQ(readPly(header("binary_big_endian", kTriangle) + bigEndian(1.F, 2.F, 3.F, 4.F)).failure,
              "it ends after 1 of 3 elements \"vertex\"");
}

TEST(ReadPly, BelievesNoCount)
{
    for (const char* const format : {"ascii", "binary_little_endian"}) {
        const Read made = readPly(header(format, "element nothing 9000000000000000000\n"
                                                 "element vertex 9000000000000000000\nproperty float x\n"
                                                 "property float y\nproperty float z\n"));
        EXPECT_EQ(made.failure, "it ends after 0 of 9000000000000000000 elements \"vertex\"");
    }
    const std::string list = header("binary_little_endian", "element face 1\nproperty list double uchar "
                                                            "vertex_indices\n");
    EXPECT_EQ(readPly(list + littleEndian(1e300)).failure, "it ends after 0 of 1 elements \"face\"");
    EXPECT_NE(readPly(list + littleEndian(-1.0)).failure, "");
}

} // namespace
