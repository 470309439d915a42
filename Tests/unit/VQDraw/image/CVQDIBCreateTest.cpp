// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <limits>

namespace vq::test::cvqdibCreateTests {
namespace {

using Access = VQTestAccess;
using vq::platform::ScopedAllocationFailure;

constexpr int kIntMax = std::numeric_limits<int>::max();
constexpr int kIntMin = std::numeric_limits<int>::min();

struct Size
{
    int width, height;
};

bool isEmpty(CVQDIB& image)
{
    return Access::pixelBuffer(image) == nullptr && Access::bitmap(image) == nullptr &&
           Access::graphics(image) == nullptr && Access::rowOffsets(image) == nullptr && Access::width(image) == 0 &&
           Access::height(image) == 0 && Access::pixelCount(image) == 0 && Access::byteSize(image) == 0;
}

bool isComplete(CVQDIB& image, LONG width, LONG height)
{
    return Access::pixelBuffer(image) != nullptr && Access::bitmap(image) != nullptr &&
           Access::graphics(image) != nullptr && Access::rowOffsets(image) != nullptr &&
           Access::width(image) == width && Access::height(image) == height &&
           Access::pixelCount(image) == std::int64_t{width} * height &&
           Access::byteSize(image) == std::int64_t{width} * height * 4;
}

TEST(CVQDIBCreate, GivesOneAndACompleteClearedImage)
{
    CVQDIB image(1, 1);

    EXPECT_EQ(Access::create(image, 5, 4), 1);

    EXPECT_TRUE(isComplete(image, 5, 4));
    EXPECT_TRUE(shows(image, Pixels(20, 0)));
}

TEST(CVQDIBCreate, DiscardsThePreviousPixels)
{
    CVQDIB image(5, 4);
    fillRandom(image, 1);

    EXPECT_EQ(Access::create(image, 5, 4), 1);

    EXPECT_TRUE(shows(image, Pixels(20, 0)));
}

TEST(CVQDIBCreate, ClearsEveryByteWhateverTheSize)
{
    CVQDIB image(1, 1);
    for (const Size size : {Size{1, 1}, Size{3, 1}, Size{1, 3}, Size{17, 5}, Size{640, 480}, Size{1023, 257}}) {
        // Blocks of the same size are what an allocator hands out again: dirty one first.
        Access::create(image, size.width, size.height);
        paint(image, Pixels(static_cast<std::size_t>(image.GetSize()), 0xFFFFFFFF));
        Access::create(image, size.width, size.height);

        EXPECT_TRUE(shows(image, Pixels(static_cast<std::size_t>(image.GetSize()), 0)))
            << size.width << " x " << size.height;
    }
}

TEST(CVQDIBCreate, RaisesSizesBelowOneToOne)
{
    CVQDIB image(4, 4);

    EXPECT_EQ(Access::create(image, -5, 3), 1);
    EXPECT_TRUE(isComplete(image, 1, 3));
    EXPECT_EQ(Access::create(image, 3, 0), 1);
    EXPECT_TRUE(isComplete(image, 3, 1));
    EXPECT_EQ(Access::create(image, 0, 0), 1);
    EXPECT_TRUE(isComplete(image, 1, 1));
    EXPECT_EQ(Access::create(image, kIntMin, kIntMin), 1);
    EXPECT_TRUE(isComplete(image, 1, 1));
    EXPECT_EQ(Access::create(image, -1, 70000), 1);
    EXPECT_TRUE(isComplete(image, 1, 70000));
}

TEST(CVQDIBCreate, AlignsTheBufferTo16Bytes)
{
    CVQDIB image(1, 1);
    for (int width = 1; width <= 40; ++width) {
        ASSERT_EQ(Access::create(image, width, 3), 1);
        EXPECT_EQ(reinterpret_cast<std::uintptr_t>(image.GetImageBuffer()) % 16, 0u) << "width " << width;
    }
}

TEST(CVQDIBCreate, TabulatesTheByteOffsetOfEveryRow)
{
    CVQDIB image(1, 1);
    for (const Size size : {Size{1, 1}, Size{7, 5}, Size{1000, 3}, Size{3, 1000}}) {
        ASSERT_EQ(Access::create(image, size.width, size.height), 1);
        for (std::int64_t row = 0; row < size.height; ++row)
            ASSERT_EQ(Access::rowOffsets(image)[row], row * size.width * 4) << "row " << row;
    }
}

TEST(CVQDIBCreate, KeepsTheRowTableInStepWithANewWidth)
{
    CVQDIB image(4, 4);

    Access::create(image, 9, 4);

    EXPECT_EQ(Access::rowOffsets(image)[3], 3 * 9 * 4);
}

TEST(CVQDIBCreate, RefusesMorePixelsThan31BitsCount)
{
    constexpr Size kTooLarge[] = {
        {65536, 65536},     // 2^32 pixels: a product of 32 bits is 0
        {46341, 46341},     // the first square above 2^31 - 1
        {65536, 32768},     // exactly 2^31
        {65537, 65536},     // a product of 32 bits is small and positive
        {92682, 92682},     // a product of 32 bits is positive again
        {32768, 65536},     // 2^31 the other way
        {kIntMax, 2},       // one row more
        {2, kIntMax},       // one column more
        {kIntMax, kIntMax}, // nearly 2^62
    };
    CVQDIB image(1, 1);
    for (const Size size : kTooLarge) {
        ASSERT_EQ(Access::create(image, 2, 2), 1);

        EXPECT_EQ(Access::create(image, size.width, size.height), 0) << size.width << " x " << size.height;

        EXPECT_TRUE(isEmpty(image)) << size.width << " x " << size.height;
    }
}

TEST(CVQDIBCreate, RefusesARowOfMoreThan31BitsOfBytes)
{
    CVQDIB image(1, 1);

    EXPECT_EQ(Access::create(image, kIntMax, 1), 0);
    EXPECT_TRUE(isEmpty(image));
    EXPECT_EQ(Access::create(image, 536870912, 1), 0); // 2^31 bytes
    EXPECT_TRUE(isEmpty(image));
    EXPECT_EQ(Access::create(image, 1073741824, 0), 0); // 2^32 bytes: a product of 32 bits is 0
    EXPECT_TRUE(isEmpty(image));
}

TEST(CVQDIBCreate, TooLargeAConstructionLeavesTheImageEmptyAndUsable)
{
    CVQDIB image(65536, 65536);
    EXPECT_TRUE(isEmpty(image));

    EXPECT_EQ(image.Resize(2, 3), 1);

    EXPECT_TRUE(isComplete(image, 2, 3));
}

TEST(CVQDIBCreate, GivesZeroAndAnEmptyImageWhenMemoryIsShort)
{
    CVQDIB image(5, 4);
    {
        const ScopedAllocationFailure memoryIsShort;
        EXPECT_EQ(Access::create(image, 6, 7), 0);
    }

    EXPECT_TRUE(isEmpty(image));
    EXPECT_EQ(Access::create(image, 6, 7), 1);
    EXPECT_TRUE(isComplete(image, 6, 7));
}

TEST(CVQDIBCreate, IsAllOrNothingAtWhicheverAllocationMemoryRunsOut)
{
    for (int succeedFirst = 0; succeedFirst < 6; ++succeedFirst) {
        CVQDIB image(5, 4);
        int created = -1;
        {
            const ScopedAllocationFailure memoryIsShort(succeedFirst);
            created = Access::create(image, 6, 7);
        }
        EXPECT_TRUE(created == 1 ? isComplete(image, 6, 7) : isEmpty(image)) << succeedFirst << " allocations succeed";
        EXPECT_TRUE(created == 0 || created == 1);
    }
}

TEST(CVQDIBCreate, AConstructorWithoutMemoryLeavesTheImageEmpty)
{
    const ScopedAllocationFailure memoryIsShort;

    CVQDIB image(5, 4);

    EXPECT_TRUE(isEmpty(image));
}

TEST(CVQDIBCreate, KeepsTheStateOfTheObject)
{
    CVQDIB image(2, 2);
    Access::flags(image) = 5;
    Access::shadowColour(image) = 0x010203;
    Access::printX(image) = 11;
    Access::shadowY(image) = -3;
    Access::font(image).lfHeight = -31;
    const Gdiplus::SolidBrush* brush = Access::textBrush(image);

    Access::create(image, 9, 9);

    EXPECT_EQ(Access::flags(image), 5u);
    EXPECT_EQ(Access::shadowColour(image), 0x010203u);
    EXPECT_EQ(Access::printX(image), 11);
    EXPECT_EQ(Access::shadowY(image), -3);
    EXPECT_EQ(Access::font(image).lfHeight, -31);
    EXPECT_EQ(Access::textBrush(image), brush);
}

TEST(CVQDIBDestroy, LeavesNoStaleValueBehind)
{
    CVQDIB image(5, 4);

    Access::destroy(image);

    EXPECT_TRUE(isEmpty(image));
    EXPECT_EQ(image.GetWidth(), 0);
    EXPECT_EQ(image.GetHeight(), 0);
    EXPECT_EQ(image.GetSize(), 0);
    EXPECT_EQ(image.GetSizeInByte(), 0);
    EXPECT_EQ(image.GetImageBuffer(), nullptr);
    EXPECT_EQ(image.GetByteImageBuffer(), nullptr);
    EXPECT_EQ(image.GetBitmap(), nullptr);
    EXPECT_EQ(image.GetGraphics(), nullptr);
}

TEST(CVQDIBDestroy, KeepsTextStateFlagsAndBrush)
{
    CVQDIB image(5, 4);
    Access::flags(image) = 3;
    Access::shadowColour(image) = 0x445566;
    Access::spareWord(image) = 8;
    Access::printY(image) = 7;
    Access::shadowX(image) = 4;
    Access::font(image).lfWeight = 700;
    const Gdiplus::SolidBrush* brush = Access::textBrush(image);
    ASSERT_NE(brush, nullptr);

    Access::destroy(image);

    EXPECT_EQ(Access::flags(image), 3u);
    EXPECT_EQ(Access::shadowColour(image), 0x445566u);
    EXPECT_EQ(Access::spareWord(image), 8u);
    EXPECT_EQ(Access::printY(image), 7);
    EXPECT_EQ(Access::shadowX(image), 4);
    EXPECT_EQ(Access::font(image).lfWeight, 700);
    EXPECT_EQ(Access::textBrush(image), brush);
}

TEST(CVQDIBDestroy, MayBeRepeatedAndFollowedByCreate)
{
    CVQDIB image(5, 4);

    Access::destroy(image);
    Access::destroy(image);
    EXPECT_TRUE(isEmpty(image));

    EXPECT_EQ(Access::create(image, 2, 2), 1);
    EXPECT_TRUE(isComplete(image, 2, 2));
}

} // namespace
} // namespace vq::test::cvqdibCreateTests
