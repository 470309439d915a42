// SPDX-License-Identifier: MIT
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <limits>

namespace vq::test::cvqdibCopyTests {
namespace {

constexpr LONG kMax = std::numeric_limits<LONG>::max();
constexpr LONG kMin = std::numeric_limits<LONG>::min();

/// Pixels that name their place: 0xFF00yyxx.
void paintPlaces(CVQDIB& image)
{
    for (LONG y = 0; y < image.GetHeight(); ++y) {
        for (LONG x = 0; x < image.GetWidth(); ++x)
            image(x, y) = static_cast<ULONG>(0xFF000000 | y << 8 | x);
    }
}

TEST(CVQDIBCopy, ANegativeDestinationCutsTheLeftOfTheBlock)
{
    CVQDIB source(20, 1);
    CVQDIB image(20, 1);
    paintPlaces(source);

    image.Copy(source, -3, 0, 0, 0, 10, 1);

    Pixels expected(20, 0);
    for (ULONG x = 0; x < 7; ++x)
        expected[x] = 0xFF000000 | (x + 3);
    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBCopy, ANegativeSourceShortensTheBlockAndDoesNotMoveIt)
{
    CVQDIB source(20, 1);
    CVQDIB image(20, 1);
    paintPlaces(source);

    image.Copy(source, 5, 0, -3, 0, 10, 1);

    Pixels expected(20, 0);
    for (ULONG x = 0; x < 7; ++x)
        expected[x + 5] = 0xFF000000 | x;
    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBCopy, RowsAreCutLikeColumns)
{
    CVQDIB source(1, 20);
    CVQDIB image(1, 20);
    paintPlaces(source);

    image.Copy(source, 0, -3, 0, 0, 1, 10);
    image.Copy(source, 0, 12, 0, -3, 1, 10);

    Pixels expected(20, 0);
    for (ULONG y = 0; y < 7; ++y) {
        expected[y] = 0xFF000000 | (y + 3) << 8;
        expected[y + 12] = 0xFF000000 | y << 8;
    }
    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBCopy, BlocksOutsideOrOfNoSizeChangeNothing)
{
    struct Block
    {
        LONG dx, dy, sx, sy, w, h;
    };
    constexpr Block kBlocks[] = {
        {8, 0, 0, 0, 4, 4},        {0, 6, 0, 0, 4, 4},          {0, 0, 5, 0, 4, 4},       {0, 0, 0, 7, 4, 4},
        {-4, 0, 0, 0, 4, 4},       {0, 0, -4, 0, 4, 4},         {0, 0, 0, 0, 0, 4},       {0, 0, 0, 0, 4, -1},
        {kMin, 0, 0, 0, kMax, 4},  {kMin, kMin, kMax, 0, 4, 4}, {0, 0, kMin, 0, kMax, 4}, {kMax, 0, 0, 0, kMax, 4},
        {0, 0, kMax, 0, kMax, 4},  {kMin, 0, kMin, 0, kMin, 4}, {0, 0, kMin, 0, kMin, 4}, {0, kMin, 0, kMin, 4, kMin},
        {-1, 0, kMax, 0, kMax, 4}, {0, 0, 0, 0, kMin, kMin},    {1, 1, 0, kMax, kMin, 4},
    };
    CVQDIB source(5, 7);
    fillRandom(source, 1);
    CVQDIB image(8, 6);
    fillRandom(image, 2);
    const Pixels before = pixels(image);
    for (const Block& block : kBlocks) {
        image.Copy(source, block.dx, block.dy, block.sx, block.sy, block.w, block.h);
        image.Paste(source, block.dx, block.dy, block.sx, block.sy, block.w, block.h);
        ASSERT_TRUE(shows(image, before)) << "block " << &block - kBlocks;
    }
}

TEST(CVQDIBCopy, AHugeBlockIsCutToBothImages)
{
    CVQDIB source(5, 7);
    paintPlaces(source);
    CVQDIB image(8, 6);

    image.Copy(source, 0, 0, 0, 0, kMax, kMax);

    for (LONG y = 0; y < 6; ++y) {
        for (LONG x = 0; x < 8; ++x)
            ASSERT_EQ(image(x, y), x < 5 ? source(x, y) : 0u) << x << ", " << y;
    }
}

TEST(CVQDIBCopy, EveryFormCopiesTheSame)
{
    CVQDIB source(5, 7);
    fillRandom(source, 1);
    CVQDIB image(5, 7);

    image.Copy(source);
    EXPECT_TRUE(shows(image, pixels(source)));
    image.Clear(COLORREF{0});
    image.Copy(&source);
    EXPECT_TRUE(shows(image, pixels(source)));
    image.Clear(COLORREF{0});
    image.Copy(source, 2, 3);
    EXPECT_EQ(image(2, 3), source(0, 0));
    image.Copy(&source, 1, 1);
    EXPECT_EQ(image(1, 1), source(0, 0));
    image.Copy(&source, 4, 4, 3, 2, 1, 1);
    EXPECT_EQ(image(4, 4), source(3, 2));
}

TEST(CVQDIBCopy, NullAndEmptySourcesChangeNothing)
{
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    CVQDIB image(3, 3);
    fillRandom(image, 4);
    const Pixels before = pixels(image);
    for (CVQDIB* source : {static_cast<CVQDIB*>(nullptr), &empty}) {
        image.Copy(source);
        image.Copy(source, 1, 1);
        image.Copy(source, 1, 1, 0, 0, 2, 2);
        image.Paste(source);
        image.Paste(source, 1, 1);
        image.Paste(source, 1, 1, 0, 0, 2, 2);
    }
    empty.Copy(image);
    empty.Copy(image, -1, -1, 0, 0, 9, 9);
    empty.Paste(image);

    EXPECT_TRUE(shows(image, before));
    EXPECT_EQ(empty.GetImageBuffer(), nullptr);
}

/// Row by row from the top, each source row copied aside first.
Pixels movedPlainly(Pixels image, LONG width, LONG height, LONG dx, LONG dy, LONG sx, LONG sy, LONG w, LONG h)
{
    for (LONG row = 0; row < h && sy + row < height && dy + row < height; ++row) {
        const Pixels before = image;
        for (LONG x = 0; x < w && sx + x < width && dx + x < width; ++x)
            image[static_cast<std::size_t>((dy + row) * width + dx + x)] =
                before[static_cast<std::size_t>((sy + row) * width + sx + x)];
    }
    return image;
}

TEST(CVQDIBCopy, OverlappingBlocksGoRowByRowFromTheTop)
{
    constexpr std::pair<LONG, LONG> kMoves[] = {{3, 0}, {0, 3}, {3, 2}, {2, 3}, {70, 1}, {1, 70}};
    for (const auto& [from, to] : kMoves) {
        for (const LONG down : {LONG{-1}, LONG{0}, LONG{1}}) {
            CVQDIB image(200, 9);
            fillRandom(image, 3);
            const Pixels expected = movedPlainly(pixels(image), 200, 9, to, 3 + down, from, 3, 120, 5);

            image.Copy(image, to, 3 + down, from, 3, 120, 5);

            ASSERT_TRUE(shows(image, expected)) << from << " to " << to << ", " << down << " down";
        }
    }
}

} // namespace
} // namespace vq::test::cvqdibCopyTests
