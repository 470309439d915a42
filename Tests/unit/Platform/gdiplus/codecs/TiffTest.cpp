// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Tiff.h"

#include "unit/Platform/gdiplus/codecs/TiffFiles.h"

#include <gtest/gtest.h>

#include <tuple>

namespace vq::test {
namespace {

using gdiplus::decodeTiff;
using gdiplus::Picture;
using gdiplus::PictureFormat;
using gdiplus::Pixel;

void expectPicture(const Bytes& file, PictureFormat format, const Pixels& pixels)
{
    const auto picture = decodeTiff(file);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->format, format);
    EXPECT_EQ(pixelsOf(*picture), pixels);
}

TiffContent rgb(const Bytes& samples, int width = 1)
{
    return {.width = width, .samples = 3, .photometric = PHOTOMETRIC_RGB, .blocks = {samples}};
}

TiffContent rgba(const Bytes& samples, int extraSample)
{
    return {.samples = 4, .photometric = PHOTOMETRIC_RGB, .extraSample = extraSample, .blocks = {samples}};
}

TEST(TiffDecode, ColoursOfEightBitsAreExact)
{
    expectPicture(tiffFile(rgb({1, 2, 3, 0xFF, 0x80, 0}, 2)), PictureFormat::Rgb24, {0xFF010203, 0xFFFF8000});
}

TEST(TiffDecode, BothByteOrdersAreRead)
{
    TiffContent content = rgb({1, 2, 3});
    content.bigEndian = true;
    content.resolutionX = 300;
    content.resolutionY = 150;
    const auto picture = decodeTiff(tiffFile(content));

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), Pixels{0xFF010203});
    EXPECT_EQ(picture->dpiX, 300.0);
    EXPECT_EQ(picture->dpiY, 150.0);
}

TEST(TiffDecode, StraightAlphaIsExact)
{
    expectPicture(tiffFile(rgba({0xFF, 0, 0xFF, 0}, EXTRASAMPLE_UNASSALPHA)), PictureFormat::Argb32, {0x00FF00FF});
    expectPicture(tiffFile(rgba({0x12, 0x34, 0x56, 1}, EXTRASAMPLE_UNASSALPHA)), PictureFormat::Argb32, {0x01123456});
}

TEST(TiffDecode, AFourthSampleOfWhichNothingIsSaidIsAlpha)
{
    expectPicture(tiffFile(rgba({0x12, 0x34, 0x56, 0x78}, -1)), PictureFormat::Argb32, {0x78123456});
    expectPicture(tiffFile(rgba({0x12, 0x34, 0x56, 0x78}, EXTRASAMPLE_UNSPECIFIED)), PictureFormat::Argb32,
                  {0x78123456});
}

TEST(TiffDecode, PremultipliedColoursAreMadeStraight)
{
    // As GDI+ does: p * floor(0xFF0000 / a) / 65536, cut off.
    expectPicture(tiffFile(rgba({0x1A, 0x11, 0x09, 0x80}, EXTRASAMPLE_ASSOCALPHA)), PictureFormat::Argb32,
                  {0x80332111});
    expectPicture(tiffFile(rgba({9, 9, 9, 0}, EXTRASAMPLE_ASSOCALPHA)), PictureFormat::Argb32, {0});
    expectPicture(tiffFile(rgba({9, 200, 9, 255}, EXTRASAMPLE_ASSOCALPHA)), PictureFormat::Argb32, {0xFF09C809});
}

TEST(TiffDecode, FurtherSamplesAreIgnored)
{
    TiffContent content = rgb({1, 2, 3, 40, 50, 4, 5, 6, 60, 70}, 2);
    content.samples = 5;
    content.extraSample = EXTRASAMPLE_UNSPECIFIED;
    expectPicture(tiffFile(content), PictureFormat::Rgb24, {0xFF010203, 0xFF040506});
}

TEST(TiffDecode, GreysOfEveryDepthAreScaledToTheFullRange)
{
    using Case = std::tuple<int, Bytes, PictureFormat, Pixels>;
    const Case cases[] = {
        {1, {0x50}, PictureFormat::Indexed1, {0xFF000000, 0xFFFFFFFF, 0xFF000000, 0xFFFFFFFF}},
        {2, {0x1B}, PictureFormat::Indexed8, {0xFF000000, 0xFF555555, 0xFFAAAAAA, 0xFFFFFFFF}},
        {4, {0x01, 0xEF}, PictureFormat::Indexed8, {0xFF000000, 0xFF111111, 0xFFEEEEEE, 0xFFFFFFFF}},
        {8, {0, 1, 254, 255}, PictureFormat::Indexed8, {0xFF000000, 0xFF010101, 0xFFFEFEFE, 0xFFFFFFFF}},
        {16,
         {0x80, 0, 0x81, 0, 0x7E, 0xFF, 0xFF, 0xFF},
         PictureFormat::Argb32,
         {0xFF000000, 0xFF010101, 0xFFFEFEFE, 0xFFFFFFFF}}, // 128 is nearer to 0 than to 257, 129 is not
    };
    for (const auto& [bits, samples, format, pixels] : cases) {
        SCOPED_TRACE(bits);
        expectPicture(tiffFile({.width = 4, .bits = bits, .blocks = {samples}}), format, pixels);
    }
}

TEST(TiffDecode, WhiteMayBeZero)
{
    expectPicture(tiffFile({.width = 2, .photometric = PHOTOMETRIC_MINISWHITE, .blocks = {{0, 0xF0}}}),
                  PictureFormat::Indexed8, {0xFFFFFFFF, 0xFF0F0F0F});
    expectPicture(tiffFile({.width = 2, .bits = 1, .photometric = PHOTOMETRIC_MINISWHITE, .blocks = {{0x40}}}),
                  PictureFormat::Indexed1, {0xFFFFFFFF, 0xFF000000});
}

TEST(TiffDecode, GreyMayHaveAlpha)
{
    expectPicture(tiffFile({.samples = 2, .extraSample = EXTRASAMPLE_UNASSALPHA, .blocks = {{0x40, 0x80}}}),
                  PictureFormat::Argb32, {0x80404040});
    expectPicture(tiffFile({.samples = 2, .extraSample = EXTRASAMPLE_UNSPECIFIED, .blocks = {{0x40, 0x80}}}),
                  PictureFormat::Indexed8, {0xFF404040});
}

std::vector<std::uint16_t> fourColours(std::uint16_t full, std::size_t count)
{
    std::vector<std::uint16_t> palette(3 * count);
    palette[1] = full;             // red
    palette[count + 2] = full;     // green
    palette[2 * count + 3] = full; // blue
    return palette;
}

TEST(TiffDecode, PalettesOfEveryDepthAreLookedUp)
{
    const Pixels colours{0xFF000000, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF};
    TiffContent content{.width = 4, .photometric = PHOTOMETRIC_PALETTE};
    for (const auto& [bits, samples, format] : {std::tuple{2, Bytes{0x1B}, PictureFormat::Indexed4},
                                                {4, Bytes{0x01, 0x23}, PictureFormat::Indexed4},
                                                {8, Bytes{0, 1, 2, 3}, PictureFormat::Indexed8}}) {
        SCOPED_TRACE(bits);
        content.bits = bits;
        content.blocks = {samples};
        content.palette = fourColours(0xFFFF, std::size_t{1} << bits);
        expectPicture(tiffFile(content), format, colours);
        content.palette = fourColours(0x00FF, std::size_t{1} << bits); // written as if entries had 8 bits
        expectPicture(tiffFile(content), format, colours);
    }
    content.bits = 1;
    content.blocks = {{0x50}};
    content.palette = {0x1000, 0x4000, 0x2000, 0x5000, 0x3000, 0x6000};
    expectPicture(tiffFile(content), PictureFormat::Indexed1, {0xFF102030, 0xFF405060, 0xFF102030, 0xFF405060});
}

TEST(TiffDecode, ColoursOfOtherDepthsAreScaled)
{
    TiffContent content = rgb({0b10100000});
    content.bits = 1;
    expectPicture(tiffFile(content), PictureFormat::Rgb24, {0xFFFF00FF});
    content.bits = 4;
    content.blocks = {{0x1F, 0x80}};
    expectPicture(tiffFile(content), PictureFormat::Rgb24, {0xFF11FF88});
    content.bits = 16;
    content.blocks = {{0x34, 0x12, 0x00, 0x80, 0xFF, 0xFF}};
    expectPicture(tiffFile(content), PictureFormat::Rgb48, {0xFF1280FF}); // 1234 / 257 = 18.13, 8000 / 257 = 127.5
}

TEST(TiffDecode, SixteenBitsWithAlphaKeepIt)
{
    TiffContent content = rgba({0xFF, 0xFF, 0, 0, 0, 0, 0x01, 0x80}, EXTRASAMPLE_UNASSALPHA);
    content.bits = 16;
    expectPicture(tiffFile(content), PictureFormat::Argb32, {0x80FF0000});
    content.extraSample = -1;
    expectPicture(tiffFile(content), PictureFormat::Rgb48, {0xFFFF0000});
}

TEST(TiffDecode, SamplesMayLieInPlanes)
{
    TiffContent content{.width = 2, .height = 2, .samples = 4, .photometric = PHOTOMETRIC_RGB};
    content.planes = PLANARCONFIG_SEPARATE;
    content.extraSample = EXTRASAMPLE_UNASSALPHA;
    content.rowsPerStrip = 1;
    content.blocks = {{1, 2}, {3, 4}, {11, 12}, {13, 14}, {21, 22}, {23, 24}, {31, 32}, {33, 34}};
    expectPicture(tiffFile(content), PictureFormat::Argb32, {0x1F010B15, 0x20020C16, 0x21030D17, 0x22040E18});
}

TEST(TiffDecode, StripsAndTilesArePutTogether)
{
    Pixels expected;
    for (int y = 0; y < 21; ++y)
        for (int x = 0; x < 35; ++x)
            expected.push_back(0xFF000000u | static_cast<Pixel>(y) << 16 | static_cast<Pixel>(x) << 8 | 7);
    const auto block = [](int left, int top, int width, int height) {
        Bytes samples;
        for (int y = top; y < top + height; ++y)
            for (int x = left; x < left + width; ++x)
                for (const int sample : {y, x, 7})
                    samples.push_back(static_cast<std::uint8_t>(sample));
        return samples;
    };
    TiffContent content{.width = 35, .height = 21, .samples = 3, .photometric = PHOTOMETRIC_RGB};
    content.rowsPerStrip = 8;
    content.blocks = {block(0, 0, 35, 8), block(0, 8, 35, 8), block(0, 16, 35, 5)};
    expectPicture(tiffFile(content), PictureFormat::Rgb24, expected);
    content.tileWidth = 16;
    content.tileHeight = 16;
    content.blocks.clear();
    for (const int top : {0, 16})
        for (const int left : {0, 16, 32})
            content.blocks.push_back(block(left, top, 16, 16));
    expectPicture(tiffFile(content), PictureFormat::Rgb24, expected);
    content.compression = COMPRESSION_LZW;
    content.predictor = PREDICTOR_HORIZONTAL;
    expectPicture(compressedTiffFile(content), PictureFormat::Rgb24, expected);
}

TEST(TiffDecode, EveryLosslessCompressionGivesTheSamePicture)
{
    TiffContent content{.width = 31, .height = 17, .samples = 4, .photometric = PHOTOMETRIC_RGB};
    content.extraSample = EXTRASAMPLE_UNASSALPHA;
    content.blocks = {randomBytes(31 * 17 * 4, 1)};
    Pixels expected;
    for (std::size_t i = 0; i < content.blocks[0].size(); i += 4)
        expected.push_back(Pixel{content.blocks[0][i + 3]} << 24 | Pixel{content.blocks[0][i]} << 16 |
                           Pixel{content.blocks[0][i + 1]} << 8 | content.blocks[0][i + 2]);
    for (const int compression :
         {COMPRESSION_NONE, COMPRESSION_PACKBITS, COMPRESSION_LZW, COMPRESSION_ADOBE_DEFLATE, COMPRESSION_DEFLATE}) {
        SCOPED_TRACE(compression);
        content.compression = compression;
        expectPicture(compressedTiffFile(content), PictureFormat::Argb32, expected);
    }
}

TEST(TiffDecode, FaxesAreRead)
{
    TiffContent content{.width = 35, .height = 20, .bits = 1, .photometric = PHOTOMETRIC_MINISWHITE};
    content.blocks = {randomBytes(5 * 20, 3)};
    Pixels expected;
    for (std::size_t i = 0; i < 35 * 20; ++i) {
        const unsigned byte = content.blocks[0][i / 35 * 5 + i % 35 / 8];
        expected.push_back((byte >> (7 - i % 35 % 8) & 1) != 0 ? 0xFF000000 : 0xFFFFFFFF);
    }
    for (const int compression : {COMPRESSION_CCITTRLE, COMPRESSION_CCITTFAX3, COMPRESSION_CCITTFAX4}) {
        SCOPED_TRACE(compression);
        content.compression = compression;
        expectPicture(compressedTiffFile(content), PictureFormat::Indexed1, expected);
    }
}

TEST(TiffDecode, AnEmptyPageOfAFaxIsNoLie)
{
    TiffContent content{.width = 3508, .height = 4961, .bits = 1, .photometric = PHOTOMETRIC_MINISWHITE};
    content.compression = COMPRESSION_CCITTFAX4;
    content.blocks = {Bytes(439 * 4961)};
    const auto picture = decodeTiff(compressedTiffFile(content));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->pixels[0], 0xFFFFFFFF);
    EXPECT_EQ(picture->pixels[3508 * 4961 - 1], 0xFFFFFFFF);
}

TEST(TiffDecode, KindsThatTheLibraryConvertsAreRead)
{
    TiffContent inks{.width = 2, .samples = 4, .photometric = PHOTOMETRIC_SEPARATED};
    inks.blocks = {{0, 0, 0, 0, 0, 255, 255, 0}};
    expectPicture(tiffFile(inks), PictureFormat::Rgb24, {0xFFFFFFFF, 0xFFFF0000});

    TiffContent photograph{.width = 16, .height = 16, .samples = 3, .photometric = PHOTOMETRIC_YCBCR};
    photograph.compression = COMPRESSION_JPEG;
    photograph.blocks = {Bytes(16 * 16 * 3, 0x80)};
    const auto picture = decodeTiff(compressedTiffFile(photograph));
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->format, PictureFormat::Rgb24);
    for (const Pixel pixel : pixelsOf(*picture)) {
        EXPECT_NEAR(pixel & 0xFF, 0x80, 2);
        EXPECT_NEAR(pixel >> 16 & 0xFF, 0x80, 2);
        EXPECT_EQ(pixel >> 24, 0xFFu);
    }
}

TEST(TiffDecode, OrientationIsCarriedOut)
{
    // Stored 1 2 / 3 4 / 5 6. The tag names the sides where the stored row 0 and column 0 are to be seen.
    const std::tuple<int, int, Bytes> cases[] = {
        {1, 2, {1, 2, 3, 4, 5, 6}}, // top, left
        {2, 2, {2, 1, 4, 3, 6, 5}}, // top, right
        {3, 2, {6, 5, 4, 3, 2, 1}}, // bottom, right
        {4, 2, {5, 6, 3, 4, 1, 2}}, // bottom, left
        {5, 3, {1, 3, 5, 2, 4, 6}}, // left, top
        {6, 3, {5, 3, 1, 6, 4, 2}}, // right, top
        {7, 3, {6, 4, 2, 5, 3, 1}}, // right, bottom
        {8, 3, {2, 4, 6, 1, 3, 5}}, // left, bottom
    };
    for (const auto& [orientation, width, greys] : cases) {
        SCOPED_TRACE(orientation);
        TiffContent content{.width = 2, .height = 3, .blocks = {{1, 2, 3, 4, 5, 6}}};
        content.orientation = orientation;
        content.resolutionX = 100;
        content.resolutionY = 200;
        const auto picture = decodeTiff(tiffFile(content));
        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->width, width);
        EXPECT_EQ(picture->dpiX, width == 2 ? 100.0 : 200.0);
        EXPECT_EQ(picture->dpiY, width == 2 ? 200.0 : 100.0);
        Pixels expected;
        for (const std::uint8_t grey : greys)
            expected.push_back(0xFF000000u | grey * 0x010101u);
        EXPECT_EQ(pixelsOf(*picture), expected);
    }
}

TEST(TiffDecode, OrientationOfConvertedKindsIsCarriedOutOnce)
{
    TiffContent inks{.width = 2, .samples = 4, .photometric = PHOTOMETRIC_SEPARATED};
    inks.blocks = {{0, 0, 0, 0, 0, 255, 255, 0}};
    inks.orientation = ORIENTATION_BOTRIGHT;
    expectPicture(tiffFile(inks), PictureFormat::Rgb24, {0xFFFF0000, 0xFFFFFFFF});
}

TEST(TiffDecode, ResolutionIsReadInInchesAndCentimetres)
{
    TiffContent content = rgb({1, 2, 3});
    content.resolutionX = 200;
    content.resolutionY = 100;
    const auto dpiOf = [&](int unit) {
        content.resolutionUnit = unit;
        const auto picture = decodeTiff(tiffFile(content));
        return picture ? std::pair(picture->dpiX, picture->dpiY) : std::pair(0.0, 0.0);
    };
    EXPECT_EQ(dpiOf(0), std::pair(200.0, 100.0)) << "inches when the file does not say";
    EXPECT_EQ(dpiOf(RESUNIT_INCH), std::pair(200.0, 100.0));
    EXPECT_EQ(dpiOf(RESUNIT_CENTIMETER), std::pair(508.0, 254.0));
    EXPECT_EQ(dpiOf(RESUNIT_NONE), std::pair(96.0, 96.0));
    content.resolutionY = 0;
    EXPECT_EQ(dpiOf(RESUNIT_INCH), std::pair(96.0, 96.0));
    content.resolutionX = content.resolutionY = 0xFFFFFFFF;
    EXPECT_EQ(dpiOf(RESUNIT_INCH), std::pair(96.0, 96.0));
}

TEST(TiffDecode, OfSeveralPicturesTheFirstIsRead)
{
    Bytes file = tiffFile(rgb({1, 2, 3}));
    put32(file, file.size() - 4, 4); // the next directory would be in the header
    expectPicture(file, PictureFormat::Rgb24, {0xFF010203});
}

TEST(TiffDecode, RefusesKindsThatGdiplusHasNoFormatFor)
{
    TiffContent content = rgb(Bytes(12));
    content.bits = 24;
    EXPECT_FALSE(decodeTiff(tiffFile(content)));
    content.bits = 32;
    content.sampleFormat = SAMPLEFORMAT_IEEEFP;
    EXPECT_FALSE(decodeTiff(tiffFile(content)));
    content.bits = 8;
    EXPECT_FALSE(decodeTiff(tiffFile(content)));
    content.sampleFormat = SAMPLEFORMAT_UINT;
    EXPECT_TRUE(decodeTiff(tiffFile(content)));
    content.compression = COMPRESSION_LZMA;
    EXPECT_FALSE(decodeTiff(tiffFile(content)));
    EXPECT_FALSE(decodeTiff(tiffFile({.photometric = PHOTOMETRIC_MASK, .blocks = {{0}}})));
    EXPECT_FALSE(decodeTiff(tiffFile({.photometric = PHOTOMETRIC_RGB, .blocks = {{0}}})));
    EXPECT_FALSE(decodeTiff(tiffFile({.bits = 4, .photometric = PHOTOMETRIC_PALETTE, .blocks = {{0}}})))
        << "no palette";
}

} // namespace
} // namespace vq::test
