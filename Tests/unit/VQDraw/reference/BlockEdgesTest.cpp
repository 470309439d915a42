// SPDX-License-Identifier: MIT
// Copy, paste and blend: values and places typed by hand.
#include "BlockReference.h"
#include "RoutineAccess.h"
#include "Trial.h"
#include "support/Pictures.h"

namespace vq::test {
namespace {

using Routines = VQTestAccess::PixelRoutines<CVQDIB>;

/// Pixel (x, y) is 0xFFyyyxxx: each says where it came from.
void number(CVQDIB& image)
{
    for (LONG y = 0; y < image.GetHeight(); ++y)
        for (LONG x = 0; x < image.GetWidth(); ++x)
            image(x, y) = 0xFF000000 | static_cast<ULONG>(y) << 12 | static_cast<ULONG>(x);
}

TEST(CVQDIBCopyEdges, NegativeDestinationCutsTheBlocksLeftSide)
{
    CVQDIB image(40, 1);
    CVQDIB source(40, 1);
    number(source);

    image.Copy(source, -3, 0, 0, 0, 10, 1);

    Pixels expected(40, 0);
    for (std::size_t x = 0; x <= 6; ++x)
        expected[x] = pixels(source)[x + 3];
    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBCopyEdges, NegativeSourceShortensTheBlockAndDoesNotMoveIt)
{
    CVQDIB image(40, 1);
    CVQDIB source(40, 1);
    number(source);

    image.Copy(source, 5, 0, -3, 0, 10, 1);

    Pixels expected(40, 0);
    for (std::size_t x = 0; x <= 6; ++x)
        expected[x + 5] = pixels(source)[x];
    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBCopyEdges, NegativeSourceRowsShortenTheBlockAndDoNotMoveIt)
{
    CVQDIB image(1, 12);
    CVQDIB source(1, 12);
    number(source);

    image.Copy(source, 0, 2, 0, -4, 1, 6);

    Pixels expected(12, 0);
    expected[2] = pixels(source)[0];
    expected[3] = pixels(source)[1];
    EXPECT_TRUE(shows(image, expected));
}

TEST(CVQDIBCopyEdges, BlocksThatBeginBeyondEitherImageChangeNothing)
{
    const struct
    {
        LONG dx, dy, sx, sy;
    } cases[] = {{8, 0, 0, 0}, {0, 6, 0, 0}, {0, 0, 7, 0}, {0, 0, 0, 5}, {900, 0, 0, 0}, {-8, 0, 0, 0}, {0, 0, -9, 0}};
    CVQDIB source(7, 5);
    number(source);
    for (const auto& [dx, dy, sx, sy] : cases) {
        CVQDIB image(8, 6);
        fillRandom(image, 1);
        const Pixels before = pixels(image);

        image.Copy(source, dx, dy, sx, sy, 7, 5);
        image.Paste(source, dx, dy, sx, sy, 7, 5);

        EXPECT_TRUE(shows(image, before)) << dx << ' ' << dy << ' ' << sx << ' ' << sy;
    }
}

TEST(CVQDIBCopyEdges, BlocksOfNoWidthOrHeightChangeNothing)
{
    CVQDIB image(8, 6);
    CVQDIB source(8, 6);
    fillRandom(image, 1);
    fillRandom(source, 2);
    const Pixels before = pixels(image);
    constexpr LONG kMin = std::numeric_limits<LONG>::min();

    for (const LONG size : {LONG{0}, LONG{-1}, LONG{-1000}, kMin}) {
        image.Copy(source, 0, 0, 0, 0, size, 6);
        image.Copy(source, 0, 0, 0, 0, 8, size);
        image.Copy(source, -1, -1, -1, -1, size, size);
        image.Paste(source, 0, 0, 0, 0, size, 6);
        image.Paste(source, 0, 0, 0, 0, 8, size);
        image.Paste(source, -1, -1, -1, -1, size, size);
    }

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBCopyEdges, ACopyOfTheWholeReplacesAlphaToo)
{
    CVQDIB image(5, 4);
    CVQDIB source(5, 4);
    fillRandom(image, 1);
    fillRandom(source, 2);

    image.Copy(source);

    EXPECT_TRUE(shows(image, pixels(source)));
}

TEST(CVQDIBCopyEdges, ABlockOfOneImageMovesWithinItRowByRowFromTheTop)
{
    CVQDIB image(2, 4);
    paint(image, {1, 2, 3, 4, 5, 6, 7, 8});

    image.Copy(image, 0, 1, 0, 0, 2, 3);

    EXPECT_TRUE(shows(image, {1, 2, 1, 2, 1, 2, 1, 2})); // each row reads what the row before has become
}

TEST(CVQDIBCopyEdges, ARowThatOverlapsItselfIsReadBeforeItIsWritten)
{
    for (const LONG shift : {LONG{1}, LONG{3}, LONG{17}}) {
        CVQDIB image(70, 1);
        number(image);
        const Pixels before = pixels(image);

        image.Copy(image, shift, 0, 0, 0, 70, 1);

        Pixels expected = before;
        std::copy(before.begin(), before.end() - shift, expected.begin() + shift);
        EXPECT_TRUE(shows(image, expected)) << shift;
    }
}

TEST(CVQDIBPasteEdges, WhiteOverBlackStaysOneStepBelowWhite)
{
    CVQDIB image(1, 1);
    CVQDIB source(1, 1);
    paint(image, {0xFF000000});
    paint(source, {0xFFFFFFFF});

    image.Paste(source);

    EXPECT_TRUE(shows(image, {0xFFFEFEFE}));
}

TEST(CVQDIBPasteEdges, AddsAlphaUpToOpaque)
{
    CVQDIB image(2, 1);
    CVQDIB source(2, 1);
    paint(image, {0x64123456, 0xC8000000});
    paint(source, {0x00FFFFFF, 0x80000000});

    image.Paste(source);

    EXPECT_TRUE(shows(image, {0x64123456, 0xFF000000}));
}

TEST(CVQDIBPasteEdges, AWideBlockIsItsColumnsOneByOne)
{
    for (const LONG width : {LONG{15}, LONG{16}, LONG{17}, LONG{31}, LONG{33}, LONG{65}}) {
        CVQDIB atOnce(width, 2);
        CVQDIB byColumns(width, 2);
        CVQDIB source(width, 2);
        fillRandom(atOnce, 1);
        fillRandom(byColumns, 1);
        fillRandom(source, 2);

        atOnce.Paste(source);
        for (LONG x = 0; x < width; ++x)
            byColumns.Paste(source, x, 0, x, 0, 1, 2);

        EXPECT_TRUE(shows(atOnce, pixels(byColumns))) << width;
    }
}

TEST(CVQDIBBlendEdges, ASourceOfAnotherSizeChangesNothing)
{
    CVQDIB image(6, 4);
    fillRandom(image, 1);
    const Pixels before = pixels(image);
    for (const CSize size : {CSize(4, 6), CSize(6, 5), CSize(7, 4), CSize(24, 1), CSize(1, 1)}) {
        CVQDIB source(size.cx, size.cy);
        fillRandom(source, 2);

        image.Blend(source);
        image.Blend(&source);
        image.Blend(source, LONG{200});
        image.Blend(&source, LONG{200});

        EXPECT_TRUE(shows(image, before)) << size.cx << " x " << size.cy;
    }
}

TEST(CVQDIBBlendEdges, RedAtHalfWeightOverBlack)
{
    CVQDIB image(1, 1);
    paint(image, {0xFF000000});

    image.Blend(COLORREF{RGB(255, 0, 0)}, LONG{128});

    EXPECT_TRUE(shows(image, {0xFF7F0000}));
}

TEST(CVQDIBBlendEdges, TheTopByteOfAColourJoinsTheWeight)
{
    CVQDIB image(1, 1);
    paint(image, {0x10000000});

    image.Blend(COLORREF{0x800000FF}, LONG{256}); // 256 counts as 0

    EXPECT_TRUE(shows(image, {0x907F0000}));
}

TEST(CVQDIBBlendEdges, AlphaSumsFromTwoHundredFiftySixOnAreOpaque)
{
    CVQDIB image(3, 1);
    paint(image, {0xFF000000, 0x80000000, 0x7F000000});

    image.Blend(LONG{0}, LONG{0}, LONG{0}, LONG{128});

    EXPECT_TRUE(shows(image, {0xFF000000, 0xFF000000, 0xFF000000}));
}

struct Clipped
{
    int answer;
    LONG dx, dy, sx, sy, w, h;

    bool operator==(const Clipped&) const = default;
    friend std::ostream& operator<<(std::ostream& out, const Clipped& c)
    {
        return out << c.answer << ": " << c.w << " x " << c.h << " from " << c.sx << ' ' << c.sy << " to " << c.dx
                   << ' ' << c.dy;
    }
};

Clipped clipped(CVQDIB& dst, CVQDIB& src, Clipped block)
{
    block.answer = Routines::clip(dst, block.dx, block.dy, src, block.sx, block.sy, block.w, block.h);
    return block;
}

TEST(RectangularRegionClip, FollowsItsSteps)
{
    CVQDIB dst(20, 10);
    CVQDIB src(12, 8);

    EXPECT_EQ(clipped(dst, src, {0, 2, 3, 4, 5, 6, 2}), (Clipped{1, 2, 3, 4, 5, 6, 2}));
    EXPECT_EQ(clipped(dst, src, {0, -3, -1, 0, 0, 10, 4}), (Clipped{1, 0, 0, 3, 1, 7, 3}));
    EXPECT_EQ(clipped(dst, src, {0, 5, 5, -3, -2, 10, 4}), (Clipped{1, 5, 5, 0, 0, 7, 2}));
    EXPECT_EQ(clipped(dst, src, {0, 15, 8, 0, 0, 99, 99}), (Clipped{1, 15, 8, 0, 0, 5, 2}));
    EXPECT_EQ(clipped(dst, src, {0, 0, 0, 9, 6, 99, 99}), (Clipped{1, 0, 0, 9, 6, 3, 2}));
    EXPECT_EQ(clipped(dst, src, {0, 20, 0, 0, 0, 1, 1}).answer, 0);
    EXPECT_EQ(clipped(dst, src, {0, 0, 10, 0, 0, 1, 1}).answer, 0);
    EXPECT_EQ(clipped(dst, src, {0, 0, 0, 12, 0, 1, 1}).answer, 0);
    EXPECT_EQ(clipped(dst, src, {0, 0, 0, 0, 8, 1, 1}).answer, 0);
}

/// For arguments at the ends of 32 bits only what is left to transfer counts.
TEST(RectangularRegionClip, LeavesTheReferencesBlockForAllArguments)
{
    using namespace reference;
    CVQDIB dst(20, 10);
    CVQDIB src(12, 8);
    Trial trial;
    trial.width = 20;
    trial.height = 10;
    Dice dice(5);
    for (int round = 0; round < 20'000; ++round) {
        LONG a[6];
        for (LONG& each : a)
            each = choose::column(dice, trial);
        Block expected{a[0], a[1], a[2], a[3], a[4], a[5]};
        const bool something = clip(expected, Picture(20, 10), Picture(12, 8)) && !expected.isNothing();

        const Clipped got = clipped(dst, src, {0, a[0], a[1], a[2], a[3], a[4], a[5]});

        ASSERT_EQ(got.answer == 1 && got.w > 0 && got.h > 0, something) << got;
        if (something) {
            const bool same = got.dx == expected.dx && got.dy == expected.dy && got.sx == expected.sx &&
                              got.sy == expected.sy && got.w == expected.w && got.h == expected.h;
            ASSERT_TRUE(same) << got;
        }
    }
}

} // namespace
} // namespace vq::test
