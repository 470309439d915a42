// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <utility>

namespace vq::test {
namespace {

using Access = VQTestAccess;
using Gdiplus::RotateFlipType;

struct Picture
{
    LONG width, height;
    Pixels content;

    ULONG at(LONG x, LONG y) const { return content[static_cast<std::size_t>(y * width + x)]; }
};

Picture turnedClockwise(const Picture& source)
{
    Picture result{source.height, source.width, {}};
    for (LONG y = 0; y < result.height; ++y) {
        for (LONG x = 0; x < result.width; ++x)
            result.content.push_back(source.at(y, source.height - 1 - x));
    }
    return result;
}

Picture mirroredLeftToRight(const Picture& source)
{
    Picture result{source.width, source.height, {}};
    for (LONG y = 0; y < result.height; ++y) {
        for (LONG x = 0; x < result.width; ++x)
            result.content.push_back(source.at(source.width - 1 - x, y));
    }
    return result;
}

/// The type's two low bits count quarter turns clockwise, the third asks for a mirror image after them.
Picture rotated(Picture picture, int type)
{
    for (int turn = 0; turn < type % 4; ++turn)
        picture = turnedClockwise(picture);
    return type < 4 ? picture : mirroredLeftToRight(picture);
}

Pixels opaque(std::initializer_list<ULONG> numbers)
{
    Pixels result;
    for (const ULONG number : numbers)
        result.push_back(0xFF000000 | number);
    return result;
}

void expectRotated(int type, const Picture& source)
{
    SCOPED_TRACE(testing::Message() << source.width << " x " << source.height << ", type " << type);
    CVQDIB image(source.width, source.height);
    paint(image, source.content);

    image.Rotate(static_cast<RotateFlipType>(type));

    const Picture expected = rotated(source, type);
    ASSERT_EQ(image.GetWidth(), expected.width);
    ASSERT_EQ(image.GetHeight(), expected.height);
    ASSERT_TRUE(shows(image, expected.content));
}

TEST(CVQDIBRotate, TurnsThreeByTwoPixelsAsDocumented)
{
    const struct
    {
        RotateFlipType type;
        LONG width, height;
        Pixels expected;
    } cases[] = {
        {Gdiplus::RotateNoneFlipNone, 3, 2, opaque({0, 1, 2, 3, 4, 5})},
        {Gdiplus::Rotate90FlipNone, 2, 3, opaque({3, 0, 4, 1, 5, 2})},
        {Gdiplus::Rotate180FlipNone, 3, 2, opaque({5, 4, 3, 2, 1, 0})},
        {Gdiplus::Rotate270FlipNone, 2, 3, opaque({2, 5, 1, 4, 0, 3})},
        {Gdiplus::RotateNoneFlipX, 3, 2, opaque({2, 1, 0, 5, 4, 3})},
        {Gdiplus::Rotate90FlipX, 2, 3, opaque({0, 3, 1, 4, 2, 5})},
        {Gdiplus::Rotate180FlipX, 3, 2, opaque({3, 4, 5, 0, 1, 2})},
        {Gdiplus::Rotate270FlipX, 2, 3, opaque({5, 2, 4, 1, 3, 0})},
    };
    for (const auto& [type, width, height, expected] : cases) {
        CVQDIB image(3, 2);
        paint(image, opaque({0, 1, 2, //
                             3, 4, 5}));

        image.Rotate(type);

        EXPECT_EQ(image.GetWidth(), width) << "type " << type;
        EXPECT_EQ(image.GetHeight(), height) << "type " << type;
        EXPECT_TRUE(shows(image, expected)) << "type " << type;
    }
}

TEST(CVQDIBRotate, PutsEveryPixelOfAnySizeAtItsPlace)
{
    const std::pair<LONG, LONG> sizes[] = {{1, 1},   {1, 7},   {7, 1},   {2, 3},   {8, 8},     {15, 16},   {17, 33},
                                           {64, 65}, {63, 64}, {129, 5}, {3, 130}, {127, 129}, {257, 300}, {1000, 3}};
    for (const auto& [width, height] : sizes) {
        const Picture source{width, height,
                             sturdyPixels(static_cast<std::size_t>(width * height), static_cast<std::uint32_t>(width))};
        for (int type = 0; type < 8; ++type)
            expectRotated(type, source);
    }
}

TEST(CVQDIBRotate, KeepsStraightColoursOfEveryAlphaButZero)
{
    Picture source{32, 24, randomPixels(32 * 24, 5)};
    for (std::size_t i = 0; i < source.content.size(); ++i) {
        const auto alpha = static_cast<ULONG>(i % 255 + 1);
        source.content[i] = (source.content[i] & 0x00FFFFFF) | alpha << 24;
    }
    for (int type = 0; type < 8; ++type)
        expectRotated(type, source);
}

TEST(CVQDIBRotate, ForgetsTheColoursOfTransparentPixels)
{
    for (int type = 0; type < 8; ++type) {
        CVQDIB image(3, 2);
        paint(image, {0x00FFFFFF, 0x00000001, 0x00FF00FF, 0x00123456, 0x00800000, 0x0000FF00});

        image.Rotate(static_cast<RotateFlipType>(type));

        EXPECT_TRUE(shows(image, Pixels(6, 0))) << "type " << type;
    }
}

TEST(CVQDIBRotate, LeavesACompleteImage)
{
    CVQDIB image(5, 3);

    image.Rotate(Gdiplus::Rotate90FlipNone);

    EXPECT_EQ(image.GetSize(), 15);
    EXPECT_EQ(image.GetSizeInByte(), 60);
    EXPECT_EQ(reinterpret_cast<std::uintptr_t>(image.GetImageBuffer()) % 16, 0u);
    for (LONG row = 0; row < 5; ++row)
        EXPECT_EQ(Access::rowOffsets(image)[row], row * 3 * 4);
    ASSERT_NE(image.GetBitmap(), nullptr);
    EXPECT_EQ(image.GetBitmap()->GetWidth(), 3u);
    EXPECT_EQ(image.GetBitmap()->GetHeight(), 5u);
    Gdiplus::Color colour;
    image(2, 4) = 0xFF123456;
    EXPECT_EQ(image.GetBitmap()->GetPixel(2, 4, &colour), Gdiplus::Ok);
    EXPECT_EQ(colour.GetValue(), 0xFF123456u);
}

TEST(CVQDIBRotate, LeavesTheGraphicsBlendingAsUsual)
{
    CVQDIB fresh(2, 2);
    fresh.GetGraphics()->SetCompositingQuality(Gdiplus::CompositingQualityDefault);
    CVQDIB image(5, 3);
    image.EnableAntialias(false);

    image.Rotate(Gdiplus::Rotate270FlipX);

    ASSERT_NE(image.GetGraphics(), nullptr);
    EXPECT_EQ(image.GetGraphics()->GetCompositingMode(), Gdiplus::CompositingModeSourceOver);
    EXPECT_EQ(image.GetGraphics()->GetCompositingQuality(), fresh.GetGraphics()->GetCompositingQuality());
    EXPECT_EQ(image.GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeNone);
}

TEST(CVQDIBRotate, FourQuarterTurnsChangeNothing)
{
    CVQDIB image(19, 30);
    const Pixels content = sturdyPixels(19 * 30, 6);
    paint(image, content);

    for (int turn = 0; turn < 4; ++turn)
        image.Rotate(Gdiplus::Rotate90FlipNone);

    EXPECT_EQ(image.GetWidth(), 19);
    EXPECT_TRUE(shows(image, content));
}

TEST(CVQDIBRotate, AValueThatNamesNoTurnMovesNothing)
{
    for (const int type : {-1, 8, 1000}) {
        CVQDIB image(3, 2);
        const Pixels content = sturdyPixels(6, 7);
        paint(image, content);

        image.Rotate(static_cast<RotateFlipType>(type));

        EXPECT_EQ(image.GetWidth(), 3) << "type " << type;
        EXPECT_TRUE(shows(image, content)) << "type " << type;
    }
}

TEST(CVQDIBRotate, WithoutMemoryLeavesTheImageWholeOrEmpty)
{
    for (int succeedFirst = 0; succeedFirst < 6; ++succeedFirst) {
        const Picture source{3, 2, sturdyPixels(6, 8)};
        CVQDIB image(3, 2);
        paint(image, source.content);
        {
            const vq::platform::ScopedAllocationFailure memoryIsShort(succeedFirst);
            image.Rotate(Gdiplus::Rotate90FlipNone);
        }
        const bool empty = image.GetImageBuffer() == nullptr && image.GetSize() == 0;
        const bool asBefore = image.GetWidth() == 3 && shows(image, source.content);
        const bool turned = image.GetWidth() == 2 && shows(image, rotated(source, 1).content);
        EXPECT_TRUE(empty || asBefore || turned) << succeedFirst << " allocations succeed";
    }
}

} // namespace
} // namespace vq::test
