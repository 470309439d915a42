// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Bmp.h"

#include "unit/Platform/gdiplus/codecs/BmpFiles.h"

#include <gtest/gtest.h>

namespace vq::test {
namespace {

using gdiplus::decodeBmp;
using gdiplus::encodeBmp;
using gdiplus::PictureFormat;

void expectPicture(const Bytes& file, int width, PictureFormat format, const Pixels& pixels)
{
    const auto picture = decodeBmp(file);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->width, width);
    EXPECT_EQ(picture->height, static_cast<int>(pixels.size()) / width);
    EXPECT_EQ(picture->format, format);
    EXPECT_EQ(pixelsOf(*picture), pixels);
}

TEST(BmpEncode, WritesThisFile)
{
    const Pixels pixels{0x80112233, 0x00FF00FF, 0xFF445566, 0x01000000};

    const auto file = encodeBmp(viewOf(pixels, 2));

    ASSERT_TRUE(file);
    EXPECT_EQ(bytesOf(*file), fromHex("42 4D  46 00 00 00  00 00 00 00  36 00 00 00"
                                      "28 00 00 00  02 00 00 00  02 00 00 00  01 00  20 00  00 00 00 00"
                                      "10 00 00 00  C4 0E 00 00  C4 0E 00 00  00 00 00 00  00 00 00 00"
                                      "66 55 44 FF  00 00 00 01"
                                      "33 22 11 80  FF 00 FF 00"));
}

TEST(BmpEncode, ReadsBackOpaqueWithoutAlpha)
{
    const Pixels pixels{0x80112233, 0x00FF00FF, 0xFF445566, 0x01000000};
    const auto file = encodeBmp(viewOf(pixels, 2), 150, 300);
    ASSERT_TRUE(file);

    expectPicture(bytesOf(*file), 2, PictureFormat::Rgb32, {0xFF112233, 0xFFFF00FF, 0xFF445566, 0xFF000000});
    EXPECT_NEAR(decodeBmp(file->bytes())->dpiX, 5906 * 0.0254, 1e-9);
    EXPECT_NEAR(decodeBmp(file->bytes())->dpiY, 11811 * 0.0254, 1e-9);
}

TEST(BmpEncode, RefusesWhatTheFormatCannotHold)
{
    const Pixels pixels{1};
    const auto* memory = reinterpret_cast<const std::uint8_t*>(pixels.data());
    EXPECT_FALSE(encodeBmp({memory, 4, 0, 1}));
    EXPECT_FALSE(encodeBmp({memory, 4, 1, -1}));
    EXPECT_FALSE(encodeBmp({memory, 0, 32768, 32768})); // 4 GiB of pixels alone
    EXPECT_FALSE(encodeBmp({memory, 0, 0x7FFFFFFF, 0x7FFFFFFF}));
}

TEST(BmpDecode, TwentyFourBits)
{
    expectPicture(bmp24(), 3, PictureFormat::Rgb24, kBmp24Pixels);
    EXPECT_NEAR(decodeBmp(bmp24())->dpiX, 96.012, 1e-9);
}

TEST(BmpDecode, ANegativeHeightPutsTheTopRowFirst)
{
    Bytes file = bmp24();
    put32(file, 22, static_cast<std::uint32_t>(-2));
    expectPicture(file, 3, PictureFormat::Rgb24,
                  {0xFF000000, 0xFFFFFFFF, 0xFF102030, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF});
}

TEST(BmpDecode, PixelsBeginWhereTheHeaderSays)
{
    Bytes file = bmp24();
    put32(file, 10, 60);
    file.insert(file.begin() + 54, 6, 0xAA);
    expectPicture(file, 3, PictureFormat::Rgb24, kBmp24Pixels);
}

TEST(BmpDecode, OnlyThePaddingOfTheLastRowMayBeMissing)
{
    Bytes file = bmp24();
    file.resize(file.size() - 3);
    expectPicture(file, 3, PictureFormat::Rgb24, kBmp24Pixels);
    file.resize(file.size() - 1);
    EXPECT_FALSE(decodeBmp(file));
}

TEST(BmpDecode, OneBitWithThePixelsFromTheHighBitOn)
{
    const Bytes file = bmpHeader(10, 2, 1, 0, 62) + fromHex("33 22 11 00  FF EE DD 00") + fromHex("00 40 00 00") +
                       fromHex("A5 80 00 00");
    const gdiplus::Pixel o = 0xFF112233;
    const gdiplus::Pixel x = 0xFFDDEEFF;
    expectPicture(file, 10, PictureFormat::Indexed1, {x, o, x, o, o, x, o, x, x, o, o, o, o, o, o, o, o, o, o, x});
}

TEST(BmpDecode, FourBitsWithTheLeftPixelInTheHighHalf)
{
    const Bytes file = bmpHeader(3, 1, 4, 0, 70, 4) + fourColours() + fromHex("12 30 00 00");
    expectPicture(file, 3, PictureFormat::Indexed4, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF});
}

TEST(BmpDecode, EightBits)
{
    const Bytes file = bmpHeader(3, 1, 8, 0, 70, 4) + fourColours() + fromHex("03 01 02 00");
    expectPicture(file, 3, PictureFormat::Indexed8, {0xFF0000FF, 0xFFFF0000, 0xFF00FF00});
}

TEST(BmpDecode, IndicesBeyondThePaletteAreBlack)
{
    const Bytes file = bmpHeader(3, 1, 8, 0, 70, 4) + fourColours() + fromHex("03 04 FF 00");
    expectPicture(file, 3, PictureFormat::Indexed8, {0xFF0000FF, 0xFF000000, 0xFF000000});
}

TEST(BmpDecode, ThePaletteEndsWhereThePixelsBegin)
{
    // The header counts 256 colours, but there is room for four.
    const Bytes file = bmpHeader(3, 1, 8, 0, 70, 256) + fourColours() + fromHex("03 04 01 00");
    expectPicture(file, 3, PictureFormat::Indexed8, {0xFF0000FF, 0xFF000000, 0xFFFF0000});
}

TEST(BmpDecode, SixteenBitsAreFivePerChannelWithoutMasks)
{
    const Bytes file = bmpHeader(4, 1, 16, 0, 54) + fromHex("00 7C  E0 03  1F 80  10 42");
    expectPicture(file, 4, PictureFormat::Rgb555, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFF848484});
}

TEST(BmpDecode, SixteenBitsWithMasksOfFiveSixFive)
{
    const Bytes masks = fromHex("00 F8 00 00  E0 07 00 00  1F 00 00 00");
    const Bytes file = bmpHeader(4, 1, 16, kBitFields, 66) + masks + fromHex("00 F8  E0 07  1F 00  10 84");
    expectPicture(file, 4, PictureFormat::Rgb565, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFF848284});
}

TEST(BmpDecode, SixteenBitsWithFourBitsOfAlpha)
{
    const Bytes masks = fromHex("00 0F 00 00  F0 00 00 00  0F 00 00 00  00 F0 00 00");
    const Bytes file = bmpHeader(2, 1, 16, kAlphaBitFields, 70) + masks + fromHex("F8 07  0F F0");
    expectPicture(file, 2, PictureFormat::Argb32, {0x0077FF88, 0xFF0000FF});
}

TEST(BmpDecode, ThirtyTwoBitsWithoutMasksAreOpaqueWhateverTheFourthByte)
{
    const Bytes file = bmpHeader(2, 1, 32, 0, 54) + fromHex("33 22 11 00  66 55 44 80");
    expectPicture(file, 2, PictureFormat::Rgb32, {0xFF112233, 0xFF445566});
}

TEST(BmpDecode, ThirtyTwoBitsWithMasksInAnotherOrder)
{
    const Bytes masks = fromHex("FF 00 00 00  00 FF 00 00  00 00 FF 00");
    const Bytes file = bmpHeader(1, 1, 32, kBitFields, 66) + masks + fromHex("11 22 33 80");
    expectPicture(file, 1, PictureFormat::Rgb32, {0xFF112233});
}

TEST(BmpDecode, ThirtyTwoBitsWithTenBitsPerChannelKeepTheUpperEight)
{
    const Bytes masks = fromHex("00 00 F0 3F  00 FC 0F 00  FF 03 00 00");
    // red 0x200 << 20, green 0x3FF << 10, blue 0x003
    const Bytes file = bmpHeader(1, 1, 32, kBitFields, 66) + masks + fromHex("03 FC 0F 20");
    expectPicture(file, 1, PictureFormat::Rgb32, {0xFF80FF00});
}

TEST(BmpDecode, AnAlphaMaskGivesStraightAlphaWithTheColoursKept)
{
    expectPicture(bmpV5(), 2, PictureFormat::Argb32, kV5Pixels);
}

TEST(BmpDecode, MasksOfScatteredBitsAreRefused)
{
    const Bytes masks = fromHex("00 00 FF 00  00 FF 00 00  F5 00 00 00");
    EXPECT_FALSE(decodeBmp(bmpHeader(1, 1, 32, kBitFields, 66) + masks + fromHex("11 22 33 80")));
}

TEST(BmpDecode, TheFirstHeaderOfOs2HasShortSizesAndPaletteEntriesOfThreeBytes)
{
    const Bytes file = fromHex("42 4D  28 00 00 00  00 00 00 00  20 00 00 00"
                               "0C 00 00 00  09 00  01 00  01 00  01 00"
                               "33 22 11  FF EE DD"
                               "80 80 00 00");
    const gdiplus::Pixel o = 0xFF112233;
    const gdiplus::Pixel x = 0xFFDDEEFF;
    expectPicture(file, 9, PictureFormat::Indexed1, {x, o, o, o, o, o, o, o, x});
    EXPECT_EQ(decodeBmp(file)->dpiX, 96.0);
}

TEST(BmpRunLength, EightBits)
{
    expectPicture(bmpRle8(), 4, PictureFormat::Indexed8, kRunLengthPixels);
}

TEST(BmpRunLength, FourBits)
{
    expectPicture(bmpRle4(), 4, PictureFormat::Indexed4, kRunLengthPixels);
}

TEST(BmpRunLength, ARunOfFourBitsAlternatesBetweenItsTwoColours)
{
    const Bytes file = bmpHeader(5, 1, 4, kRle4, 70, 4) + fourColours() + fromHex("05 12  00 01");
    expectPicture(file, 5, PictureFormat::Indexed4, {0xFFFF0000, 0xFF00FF00, 0xFFFF0000, 0xFF00FF00, 0xFFFF0000});
}

TEST(BmpRunLength, LiteralPixelsArePaddedToTwoBytes)
{
    const Bytes file = bmpHeader(4, 1, 8, kRle8, 70, 4) + fourColours() + fromHex("00 03 01 02 03 00  01 01  00 01");
    expectPicture(file, 4, PictureFormat::Indexed8, {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFF0000});
}

TEST(BmpRunLength, SkippedPixelsTakeTheFirstColour)
{
    Bytes colours = fourColours();
    colours[1] = 0x40; // first entry: dark green
    // One pixel, then one to the right and one line up; one pixel; end.
    const Bytes file = bmpHeader(3, 2, 8, kRle8, 70, 4) + colours + fromHex("01 01  00 02 01 01  01 03  00 01");
    const gdiplus::Pixel skipped = 0xFF004000;
    expectPicture(file, 3, PictureFormat::Indexed8, {skipped, skipped, 0xFF0000FF, 0xFFFF0000, skipped, skipped});
}

TEST(BmpRunLength, RunsAreCutAtTheEndOfTheirRow)
{
    const Bytes file = bmpHeader(2, 2, 8, kRle8, 70, 4) + fourColours() + fromHex("FF 01  00 00  01 02  FF 03  00 01");
    expectPicture(file, 2, PictureFormat::Indexed8, {0xFF00FF00, 0xFF0000FF, 0xFFFF0000, 0xFFFF0000});
}

TEST(BmpRunLength, TheMarkAtTheEndMayBeMissingWhenThePictureIsComplete)
{
    Bytes file = bmpRle8();
    file.resize(file.size() - 2);
    expectPicture(file, 4, PictureFormat::Indexed8, kRunLengthPixels);
    file.resize(file.size() - 2);
    EXPECT_FALSE(decodeBmp(file));
}

TEST(BmpDecode, RefusesHeadersThatCannotBe)
{
    const auto changed = [](std::size_t offset, std::uint32_t value) {
        Bytes file = bmp24();
        put32(file, offset, value);
        return file;
    };
    EXPECT_FALSE(decodeBmp(changed(14, 41))) << "no header has that size";
    EXPECT_FALSE(decodeBmp(changed(14, 0xFFFFFFFF))) << "no header has that size";
    EXPECT_FALSE(decodeBmp(changed(18, 0))) << "no width";
    EXPECT_FALSE(decodeBmp(changed(18, 0x80000003))) << "negative width";
    EXPECT_FALSE(decodeBmp(changed(22, 0))) << "no height";
    EXPECT_FALSE(decodeBmp(changed(22, 0x80000000))) << "a height that cannot be negated";
    EXPECT_FALSE(decodeBmp(changed(10, 53))) << "pixels inside the header";
    EXPECT_FALSE(decodeBmp(changed(10, 0xFFFFFFFF))) << "pixels behind the file";
    EXPECT_FALSE(decodeBmp(changed(26, 0x00170001))) << "23 bits per pixel";
    EXPECT_FALSE(decodeBmp(changed(30, 1))) << "run lengths of 24 bits";
    EXPECT_FALSE(decodeBmp(changed(30, 4))) << "a JPEG inside";
}

} // namespace
} // namespace vq::test
