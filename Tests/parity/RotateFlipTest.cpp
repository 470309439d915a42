// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

namespace vq::test {
namespace {

struct Turned
{
    Gdiplus::RotateFlipType type;
    UINT width;
    std::initializer_list<std::uint32_t> order; ///< of the pixels 0 1 2 over 3 4 5
};

void expectTurned(const Turned& turned)
{
    TestPicture picture(3, 2, {0xFF000000, 0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004, 0xFF000005});
    const Row original = picture.all();
    EXPECT_EQ(picture.bitmap.RotateFlip(turned.type), Gdiplus::Ok);

    EXPECT_EQ(picture.bitmap.GetWidth(), turned.width) << turned.type;
    EXPECT_EQ(picture.bitmap.GetHeight(), 6 / turned.width) << turned.type;
    Row expected = row(turned.order);
    for (Argb& pixel : expected)
        pixel.value |= 0xFF000000;
    EXPECT_EQ(TestPicture::pixelsOf(picture.bitmap), expected) << turned.type;
    EXPECT_EQ(picture.all(), original) << "the caller's memory, " << turned.type;
}

TEST(RotateFlip, TurnsClockwiseAndMirrorsAfterwards)
{
    using namespace Gdiplus;
    const Turned turns[] = {
        {RotateNoneFlipNone, 3, {0, 1, 2, 3, 4, 5}}, {Rotate90FlipNone, 2, {3, 0, 4, 1, 5, 2}},
        {Rotate180FlipNone, 3, {5, 4, 3, 2, 1, 0}},  {Rotate270FlipNone, 2, {2, 5, 1, 4, 0, 3}},
        {RotateNoneFlipX, 3, {2, 1, 0, 5, 4, 3}},    {Rotate180FlipX, 3, {3, 4, 5, 0, 1, 2}},
    };
    for (const Turned& turned : turns)
        expectTurned(turned);
}

TEST(RotateFlip, QuarterTurnAndMirrorTransposes)
{
    if (differsHere("transposing turns"))
        return;
    expectTurned({Gdiplus::Rotate90FlipX, 2, {0, 3, 1, 4, 2, 5}});
    expectTurned({Gdiplus::Rotate270FlipX, 2, {5, 2, 4, 1, 3, 0}});
}

TEST(RotateFlip, DrawingGoesOnInTheNewSize)
{
    Gdiplus::Bitmap bitmap(3, 2, PixelFormat32bppARGB);
    bitmap.RotateFlip(Gdiplus::Rotate90FlipNone);
    Gdiplus::Graphics graphics(&bitmap);
    EXPECT_EQ(graphics.Clear(Gdiplus::Color(0xFF112233)), Gdiplus::Ok);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), Row(6, Argb{0xFF112233}));
}

} // namespace
} // namespace vq::test
