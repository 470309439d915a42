// SPDX-License-Identifier: MIT
#include "support/Pictures.h"

#include <algorithm>

namespace vq::test {
namespace {

ULONG pasted(ULONG old, ULONG source)
{
    CVQDIB image(1, 1);
    CVQDIB brush(1, 1);
    paint(image, {old});
    paint(brush, {source});
    image.Paste(brush);
    return image[0];
}

/// Plain arithmetic, one channel after the other.
ULONG pastedPlainly(ULONG old, ULONG source)
{
    const int weight = static_cast<int>(source >> 24);
    ULONG result = static_cast<ULONG>(std::min(static_cast<int>(old >> 24) + weight, 255)) << 24;
    for (int shift = 0; shift < 24; shift += 8) {
        const int d = static_cast<int>(old >> shift & 0xFF);
        const int s = static_cast<int>(source >> shift & 0xFF);
        result |= static_cast<ULONG>(((s - d) * weight + d * 256) >> 8 & 0xFF) << shift;
    }
    return result;
}

TEST(CVQDIBPaste, OpaqueWhiteOverBlackStopsOneStepShortOfWhite)
{
    EXPECT_EQ(pasted(0xFF000000, 0xFFFFFFFF), 0xFFFEFEFEu);
}

TEST(CVQDIBPaste, TransparentPixelsLeaveWhatIsThere)
{
    EXPECT_EQ(pasted(0x64123456, 0x00FFFFFF), 0x64123456u);
    EXPECT_EQ(pasted(0x00123456, 0x00ABCDEF), 0x00123456u);
}

TEST(CVQDIBPaste, AlphasAddUpTo255AtMost)
{
    EXPECT_EQ(pasted(0xC8000000, 0x80000000), 0xFF000000u);
    EXPECT_EQ(pasted(0x64000000, 0x64000000), 0xC8000000u);
}

TEST(CVQDIBPaste, BlendsEveryWidthAsSinglePixels)
{
    for (const LONG width : {1, 2, 15, 16, 17, 31, 63, 64, 65, 127, 128, 129, 200}) {
        for (LONG start = 0; start < 5; ++start) {
            CVQDIB image(width + 10, 3);
            CVQDIB source(width + 10, 3);
            fillRandom(image, 1);
            fillRandom(source, 2);
            Pixels expected = pixels(image);
            for (LONG y = 0; y < 2; ++y) {
                for (LONG x = 0; x < width; ++x) {
                    ULONG& pixel = expected[static_cast<std::size_t>((y + 1) * (width + 10) + x + start)];
                    pixel = pastedPlainly(pixel, source(x + 3, y));
                }
            }

            image.Paste(source, start, 1, 3, 0, width, 2);

            ASSERT_TRUE(shows(image, expected)) << "width " << width << ", start " << start;
        }
    }
}

TEST(CVQDIBPaste, LeavesPixelsUnderRunsWithoutAlpha)
{
    CVQDIB image(300, 1);
    CVQDIB source(300, 1);
    fillRandom(image, 1);
    for (LONG x = 0; x < 300; ++x)
        source(x, 0) = x == 70 ? 0x80FFFFFF : 0x00FFFFFF;
    Pixels expected = pixels(image);
    expected[70] = pastedPlainly(expected[70], 0x80FFFFFF);

    image.Paste(&source);

    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBPaste, OverlappingBlocksGoRowByRowFromTheTop)
{
    constexpr std::pair<LONG, LONG> kMoves[] = {{3, 0}, {0, 3}, {0, 64}, {0, 63}, {65, 0}, {5, 5}, {0, 150}};
    for (const auto& [from, to] : kMoves) {
        for (const LONG down : {LONG{-1}, LONG{0}, LONG{1}}) {
            CVQDIB image(400, 9);
            fillRandom(image, 3);
            Pixels expected = pixels(image);
            for (LONG row = 3; row < 7; ++row) {
                const Pixels aside = expected;
                for (LONG x = 0; x < 230; ++x) {
                    ULONG& pixel = expected[static_cast<std::size_t>((row + down) * 400 + to + x)];
                    pixel = pastedPlainly(pixel, aside[static_cast<std::size_t>(row * 400 + from + x)]);
                }
            }

            image.Paste(image, to, 3 + down, from, 3, 230, 4);

            ASSERT_TRUE(shows(image, expected)) << from << " to " << to << ", " << down << " down";
        }
    }
}

TEST(CVQDIBPaste, EveryFormPastesTheSame)
{
    CVQDIB source(2, 2);
    source.Clear(BYTE{255}, BYTE{255}, BYTE{255}, BYTE{255});
    CVQDIB image(4, 4);

    image.Paste(source, 1, 1);
    EXPECT_EQ(image(1, 1), 0xFFFEFEFEu);
    EXPECT_EQ(image(0, 0), 0u);
    image.Paste(&source, 0, 0, 1, 1, 1, 1);
    EXPECT_EQ(image(0, 0), 0xFFFEFEFEu);
    image.Paste(&source, 2, 2);
    EXPECT_EQ(image(3, 3), 0xFFFEFEFEu);
    EXPECT_EQ(image(0, 3), 0u);
}

} // namespace
} // namespace vq::test
