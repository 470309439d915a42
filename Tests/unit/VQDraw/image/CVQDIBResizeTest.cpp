// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace vq::test::cvqdibResizeTests {
namespace {

using Access = VQTestAccess;

struct Size
{
    LONG width, height;
};

/// The source position of every destination position along one axis: a single-precision step, added up.
std::vector<LONG> sourcePositions(LONG oldLength, LONG newLength)
{
    std::vector<LONG> positions;
    const float step = static_cast<float>(oldLength) / static_cast<float>(newLength);
    float position = 0.0F;
    for (LONG i = 0; i < newLength; ++i) {
        const auto whole = static_cast<LONG>(std::trunc(position));
        positions.push_back(std::min(whole, oldLength - 1));
        const float next = position + step;
        position = next;
    }
    return positions;
}

Pixels resampled(const Pixels& source, Size from, Size to)
{
    Pixels result;
    const auto columns = sourcePositions(from.width, to.width);
    for (const LONG row : sourcePositions(from.height, to.height)) {
        for (const LONG column : columns)
            result.push_back(source[static_cast<std::size_t>(row * from.width + column)]);
    }
    return result;
}

void expectNearestNeighbour(Size from, Size to)
{
    SCOPED_TRACE(testing::Message() << from.width << " x " << from.height << " to " << to.width << " x " << to.height);
    const Pixels content =
        randomPixels(static_cast<std::size_t>(from.width) * static_cast<std::size_t>(from.height), 7);
    CVQDIB image(from.width, from.height);
    paint(image, content);

    ASSERT_EQ(image.Resize(to.width, to.height, true, false), 1);

    ASSERT_EQ(image.GetWidth(), to.width);
    ASSERT_EQ(image.GetHeight(), to.height);
    ASSERT_TRUE(shows(image, resampled(content, from, to)));
}

TEST(CVQDIBResize, WithoutContentIsAPlainCreate)
{
    const CSize size(4, 2);
    for (int form = 0; form < 4; ++form) {
        CVQDIB image(2, 2);
        fillRandom(image, 3);
        const int result = form == 0   ? image.Resize(4, 2)
                           : form == 1 ? image.Resize(size)
                           : form == 2 ? image.Resize(4, 2, false, true)
                                       : image.Resize(size, false, false);

        EXPECT_EQ(result, 1) << "form " << form;
        EXPECT_EQ(image.GetWidth(), 4) << "form " << form;
        EXPECT_EQ(image.GetHeight(), 2) << "form " << form;
        EXPECT_TRUE(shows(image, Pixels(8, 0))) << "form " << form;
    }
}

TEST(CVQDIBResize, WithoutContentClearsAlsoAtTheSameSize)
{
    CVQDIB image(3, 2);
    fillRandom(image, 4);

    EXPECT_EQ(image.Resize(3, 2, false, false), 1);

    EXPECT_TRUE(shows(image, Pixels(6, 0)));
}

TEST(CVQDIBResize, ToTheSameSizeWithContentGivesZeroAndChangesNothing)
{
    CVQDIB image(3, 2);
    fillRandom(image, 5);
    const Pixels before = pixels(image);
    const ULONG* buffer = image.GetImageBuffer();

    EXPECT_EQ(image.Resize(3, 2, true, false), 0);
    EXPECT_EQ(image.Resize(CSize(3, 2), true, true), 0);

    EXPECT_TRUE(shows(image, before));
    EXPECT_EQ(image.GetImageBuffer(), buffer);
}

TEST(CVQDIBResize, HalvingTakesEverySecondColumnAndRow)
{
    CVQDIB image(4, 4);
    paint(image, {0x00, 0x01, 0x02, 0x03, //
                  0x10, 0x11, 0x12, 0x13, //
                  0x20, 0x21, 0x22, 0x23, //
                  0x30, 0x31, 0x32, 0x33});

    EXPECT_EQ(image.Resize(2, 2, true, false), 1);

    EXPECT_TRUE(shows(image, {0x00, 0x02, //
                              0x20, 0x22}));
}

TEST(CVQDIBResize, DoublingRepeatsEveryPixel)
{
    CVQDIB image(2, 2);
    paint(image, {1, 2, //
                  3, 4});

    EXPECT_EQ(image.Resize(CSize(4, 4), true, false), 1);

    EXPECT_TRUE(shows(image, {1, 1, 2, 2, //
                              1, 1, 2, 2, //
                              3, 3, 4, 4, //
                              3, 3, 4, 4}));
}

TEST(CVQDIBResize, TheSecondFlagHasNoEffect)
{
    CVQDIB one(5, 3);
    CVQDIB other(5, 3);
    fillRandom(one, 6);
    fillRandom(other, 6);

    one.Resize(3, 7, true, false);
    other.Resize(3, 7, true, true);

    EXPECT_TRUE(shows(one, pixels(other)));
}

TEST(CVQDIBResize, MayChangeOneSideOnly)
{
    expectNearestNeighbour({7, 5}, {7, 9});
    expectNearestNeighbour({7, 5}, {3, 5});
}

TEST(CVQDIBResize, StepsInSinglePrecisionForEverySmallLength)
{
    for (LONG from = 1; from <= 24; ++from) {
        for (LONG to = 1; to <= 64; ++to) {
            if (from != to)
                expectNearestNeighbour({from, 2}, {to, 3});
        }
    }
}

TEST(CVQDIBResize, AddsTheStepUpOverLongRowsAndColumns)
{
    // Long sums drift from the exact quotient: a product in place of the sum gives other pixels.
    const Size lengths[] = {{1000, 999}, {999, 1000}, {3, 4099}, {4099, 7}, {1920, 1280}, {640, 1999}, {49, 1000}};
    for (const Size length : lengths) {
        expectNearestNeighbour({length.width, 2}, {length.height, 3});
        expectNearestNeighbour({2, length.width}, {3, length.height});
    }
}

TEST(CVQDIBResize, TakesTheLastColumnWhereTheStepsRunPastTheOldSize)
{
    // Lengths whose rounded step overtakes the old size before the last destination pixel.
    for (const Size length : {Size{1, 8194}, Size{3, 8790}, Size{7, 8391}, Size{10, 8397}}) {
        const float step = static_cast<float>(length.width) / static_cast<float>(length.height);
        float last = 0.0F;
        for (LONG i = 1; i < length.height; ++i)
            last += step;
        ASSERT_GE(last, static_cast<float>(length.width));

        expectNearestNeighbour({length.width, 1}, {length.height, 2});
        expectNearestNeighbour({1, length.width}, {2, length.height});
    }
}

TEST(CVQDIBResize, KeepsRandomPicturesOfRandomSizes)
{
    std::mt19937 generator(20240229);
    for (int round = 0; round < 60; ++round) {
        const auto side = [&] { return static_cast<LONG>(1 + generator() % 150); };
        const Size from{side(), side()};
        const Size to{side(), side()};
        if (from.width != to.width || from.height != to.height)
            expectNearestNeighbour(from, to);
    }
}

TEST(CVQDIBResize, ToASizeBelowOneWithContentWalksNothing)
{
    const Size requests[] = {{0, 3}, {3, 0}, {-4, 3}, {3, -4}, {0, 0}, {std::numeric_limits<LONG>::min(), 2}};
    for (const Size request : requests) {
        CVQDIB image(2, 2);
        paint(image, Pixels(4, 0xFF123456));

        EXPECT_EQ(image.Resize(request.width, request.height, true, false), 1);

        const LONG width = std::max<LONG>(request.width, 1);
        const LONG height = std::max<LONG>(request.height, 1);
        EXPECT_EQ(image.GetWidth(), width);
        EXPECT_EQ(image.GetHeight(), height);
        EXPECT_TRUE(shows(image, Pixels(static_cast<std::size_t>(width * height), 0)));
    }
}

TEST(CVQDIBResize, OfOnePixelToBelowOneClearsIt)
{
    // The request differs from 1 x 1, so the image is made anew and nothing is walked.
    CVQDIB image(1, 1);
    paint(image, {0xFF123456});

    EXPECT_EQ(image.Resize(0, 1, true, false), 1);

    EXPECT_TRUE(shows(image, {0}));
}

TEST(CVQDIBResize, WithContentOfAnEmptyImageIsAPlainCreate)
{
    CVQDIB image(static_cast<CVQDIB*>(nullptr));

    EXPECT_EQ(image.Resize(3, 2, true, false), 1);

    EXPECT_TRUE(shows(image, Pixels(6, 0)));
}

TEST(CVQDIBResize, TooLargeGivesZeroAndAnEmptyImage)
{
    for (const bool keepContent : {false, true}) {
        CVQDIB image(2, 2);

        EXPECT_EQ(image.Resize(65536, 65536, keepContent, false), 0);

        EXPECT_EQ(image.GetImageBuffer(), nullptr);
        EXPECT_EQ(image.GetWidth(), 0);
    }
}

TEST(CVQDIBResize, WithoutMemoryGivesZeroAndNoHalfImage)
{
    for (int succeedFirst = 0; succeedFirst < 6; ++succeedFirst) {
        CVQDIB image(3, 3);
        fillRandom(image, 9);
        const Pixels before = pixels(image);
        int result = -1;
        {
            const vq::platform::ScopedAllocationFailure memoryIsShort(succeedFirst);
            result = image.Resize(2, 5, true, false);
        }
        SCOPED_TRACE(testing::Message() << succeedFirst << " allocations succeed");
        if (result == 1)
            EXPECT_TRUE(shows(image, resampled(before, {3, 3}, {2, 5})));
        else if (image.GetImageBuffer() == nullptr)
            EXPECT_EQ(image.GetSize(), 0);
        else
            EXPECT_TRUE(shows(image, before));
        EXPECT_TRUE(succeedFirst > 0 || result == 0);
    }
}

TEST(CVQDIBResize, KeepsTheFlagsAndAppliesThemToTheNewGraphics)
{
    CVQDIB image(2, 2);
    image.EnableAntialias(false);

    image.Resize(5, 5, true, false);

    EXPECT_FALSE(image.IsEnableAntialias());
    EXPECT_EQ(image.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeNone);
}

} // namespace
} // namespace vq::test::cvqdibResizeTests
