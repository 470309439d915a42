// SPDX-License-Identifier: MIT
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <limits>

namespace vq::test::cvqdibAccessorsTests {
namespace {

using Access = VQTestAccess;

constexpr LONG kMax = std::numeric_limits<LONG>::max();
constexpr LONG kMin = std::numeric_limits<LONG>::min();
constexpr std::int64_t kTwoTo32 = std::int64_t{1} << 32;

/// What 32-bit arithmetic makes of a value.
std::int64_t cutTo32Bits(std::int64_t value)
{
    const std::int64_t low = ((value % kTwoTo32) + kTwoTo32) % kTwoTo32;
    return low >= kTwoTo32 / 2 ? low - kTwoTo32 : low;
}

/// One wrap of a coordinate, never two.
std::int64_t wrappedOnce(std::int64_t position, std::int64_t length)
{
    if (position < 0)
        return position + length;
    if (position >= length)
        return position - length;
    return position;
}

TEST(CVQDIBAccessors, TellTheSize)
{
    CVQDIB image(7, 5);

    EXPECT_EQ(image.GetWidth(), 7);
    EXPECT_EQ(image.GetHeight(), 5);
    EXPECT_EQ(image.GetSize(), 35);
    EXPECT_EQ(image.GetSizeInByte(), 140);
}

TEST(CVQDIBAccessors, CountInsideSixtyFourBits)
{
    static_assert(sizeof(CVQDIB(1, 1).GetSize()) == 8);
    static_assert(sizeof(CVQDIB(1, 1).GetSizeInByte()) == 8);
    static_assert(sizeof(ULONG) == 4 && sizeof(LONG) == 4);
}

TEST(CVQDIBAccessors, BothBuffersAreTheSameMemory)
{
    CVQDIB image(2, 1);
    paint(image, {0xAA112233, 0xBB445566});

    const BYTE* bytes = image.GetByteImageBuffer();

    EXPECT_EQ(static_cast<const void*>(bytes), static_cast<const void*>(image.GetImageBuffer()));
    const BYTE expected[] = {0x33, 0x22, 0x11, 0xAA, 0x66, 0x55, 0x44, 0xBB}; // blue, green, red, alpha
    for (std::size_t i = 0; i < sizeof expected; ++i)
        EXPECT_EQ(bytes[i], expected[i]) << "byte " << i;
}

TEST(CVQDIBAccessors, EveryFormFindsTheSamePixel)
{
    CVQDIB image(5, 4);
    fillRandom(image, 1);
    for (LONG y = 0; y < 4; ++y) {
        for (LONG x = 0; x < 5; ++x) {
            const std::int64_t index = y * 5 + x;
            ULONG* pixel = image.GetImageBuffer() + index;
            EXPECT_EQ(image.GetImageBuffer(x, y), pixel);
            EXPECT_EQ(static_cast<void*>(image.GetByteImageBuffer(x, y)), static_cast<void*>(pixel));
            EXPECT_EQ(&image(x, y), pixel);
            EXPECT_EQ(&image[index], pixel);
            EXPECT_EQ(image.GetOffset(x, y), index);
            EXPECT_EQ(image.GetByteOffset(x, y), index * 4);
            EXPECT_EQ(image.GetClippedOffset(x, y), index);
            EXPECT_EQ(image.GetClippedByteOffset(x, y), index * 4);
            EXPECT_EQ(image.GetColor(x, y), *pixel);
        }
    }
}

TEST(CVQDIBAccessors, WriteThrough)
{
    CVQDIB image(2, 2);

    image(1, 0) = 0x11111111;
    image[2] = 0x22222222;
    *image.GetImageBuffer(1, 1) = 0x33333333;
    image.GetByteImageBuffer(0, 0)[3] = 0x44;

    EXPECT_TRUE(shows(image, {0x44000000, 0x11111111, 0x22222222, 0x33333333}));
}

TEST(CVQDIBAccessors, ReadChannelsByTheirPlaceInMemory)
{
    CVQDIB image(2, 1);
    paint(image, {0, 0xFF102030});

    EXPECT_EQ(image.GetR(1, 0), 0x30); // byte 0, the blue channel
    EXPECT_EQ(image.GetG(1, 0), 0x20);
    EXPECT_EQ(image.GetB(1, 0), 0x10); // byte 2, the red channel
    EXPECT_EQ(image.GetA(1, 0), 0xFF);
    EXPECT_EQ(image.GetColor(1, 0), 0xFF102030u);
}

TEST(CVQDIBAccessors, OffsetsAreNotClipped)
{
    CVQDIB image(10, 4);

    EXPECT_EQ(image.GetOffset(-3, 1), 7);
    EXPECT_EQ(image.GetOffset(12, 1), 22);
    EXPECT_EQ(image.GetByteOffset(-3, 1), 28);
    EXPECT_EQ(image.GetByteOffset(12, 1), 88);
    EXPECT_EQ(image.GetOffset(kMax, 3), std::int64_t{kMax} + 30);
    EXPECT_EQ(image.GetOffset(kMin, 0), std::int64_t{kMin});
}

TEST(CVQDIBAccessors, OffsetsOfRowsOutsideContinueTheCount)
{
    CVQDIB image(10, 4);
    for (const LONG y : {LONG{-1}, LONG{4}, LONG{5}, LONG{-1000000}, LONG{1000000}, kMax, kMin}) {
        EXPECT_EQ(image.GetOffset(3, y), std::int64_t{y} * 10 + 3) << "row " << y;
        EXPECT_EQ(image.GetByteOffset(3, y), std::int64_t{y} * 40 + 12) << "row " << y;
    }
}

TEST(CVQDIBAccessors, ByteOffsetsComputeTheColumnIn32Bits)
{
    CVQDIB image(10, 4);
    for (const LONG x : {LONG{0x1FFFFFFF}, LONG{0x20000000}, LONG{0x3FFFFFFF}, LONG{0x40000000}, LONG{0x40000001}, kMax,
                         kMin, LONG{-0x20000000}, LONG{-0x20000001}, LONG{-0x40000000}, LONG{-1}}) {
        EXPECT_EQ(image.GetByteOffset(x, 2), 80 + cutTo32Bits(std::int64_t{x} * 4)) << "column " << x;
    }
    EXPECT_EQ(image.GetByteOffset(0x40000000, 1), 40);
    EXPECT_EQ(image.GetByteOffset(0x20000000, 0), -2147483648LL);
}

TEST(CVQDIBAccessors, ClippedOffsetsWrapOnce)
{
    CVQDIB image(10, 4);

    EXPECT_EQ(image.GetClippedOffset(-1, 4), 9); // the last column of the first row
    EXPECT_EQ(image.GetClippedOffset(10, -1), 30);
    EXPECT_EQ(image.GetClippedOffset(-10, 0), 0);
    EXPECT_EQ(image.GetClippedOffset(19, 7), 39);
    EXPECT_EQ(image.GetClippedByteOffset(-1, 4), 36);
    EXPECT_EQ(image.GetClippedByteOffset(10, -1), 120);
}

TEST(CVQDIBAccessors, ClippedOffsetsStayOutsideBeyondOneWrap)
{
    CVQDIB image(10, 4);

    EXPECT_EQ(image.GetClippedOffset(-11, 0), -1);
    EXPECT_EQ(image.GetClippedOffset(20, 0), 10);
    EXPECT_EQ(image.GetClippedOffset(0, -5), -10);
    EXPECT_EQ(image.GetClippedOffset(0, 8), 40);
    EXPECT_EQ(image.GetClippedByteOffset(-11, 0), -4);
    EXPECT_EQ(image.GetClippedByteOffset(0, -5), -40);
}

TEST(CVQDIBAccessors, ClippedOffsetsFollowTheWrapRuleEverywhere)
{
    CVQDIB image(3, 5);
    const LONG positions[] = {kMin, kMin + 1, -100, -7, -6, -5, -4, -3, -2, -1, 0,        1,   2,
                              3,    4,        5,    6,  7,  8,  9,  10, 11, 99, kMax - 1, kMax};
    for (const LONG y : positions) {
        for (const LONG x : positions) {
            const std::int64_t column = wrappedOnce(x, 3);
            const std::int64_t row = wrappedOnce(y, 5);
            ASSERT_EQ(image.GetClippedOffset(x, y), row * 3 + column) << x << ", " << y;
            ASSERT_EQ(image.GetClippedByteOffset(x, y), row * 12 + cutTo32Bits(column * 4)) << x << ", " << y;
        }
    }
}

TEST(CVQDIBAccessors, AnswerForAnEmptyImage)
{
    CVQDIB image(static_cast<CVQDIB*>(nullptr));

    EXPECT_EQ(image.GetWidth(), 0);
    EXPECT_EQ(image.GetHeight(), 0);
    EXPECT_EQ(image.GetSize(), 0);
    EXPECT_EQ(image.GetSizeInByte(), 0);
    EXPECT_EQ(image.GetImageBuffer(), nullptr);
    EXPECT_EQ(image.GetByteImageBuffer(), nullptr);
    EXPECT_EQ(image.GetBitmap(), nullptr);
    EXPECT_EQ(image.GetGraphics(), nullptr);
    EXPECT_TRUE(image.IsEnableAntialias());
}

TEST(CVQDIBAccessors, OffsetsInAnEmptyImageCountColumnsOnly)
{
    CVQDIB image(static_cast<CVQDIB*>(nullptr));

    EXPECT_EQ(image.GetOffset(3, 5), 3);
    EXPECT_EQ(image.GetByteOffset(3, 5), 12);
    EXPECT_EQ(image.GetClippedOffset(3, 5), 3);
    EXPECT_EQ(image.GetClippedByteOffset(-3, -5), -12);
}

} // namespace
} // namespace vq::test::cvqdibAccessorsTests
