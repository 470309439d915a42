// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Jpeg.h"

#include "unit/Platform/gdiplus/codecs/JpegFiles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>

namespace vq::test {
namespace {

using gdiplus::decodeJpeg;
using gdiplus::encodeJpeg;
using gdiplus::PictureFormat;
using gdiplus::Pixel;

int largestDifference(Pixel left, Pixel right)
{
    int largest = 0;
    for (int shift = 0; shift < 32; shift += 8)
        largest = std::max(largest,
                           std::abs(static_cast<int>(left >> shift & 0xFF) - static_cast<int>(right >> shift & 0xFF)));
    return largest;
}

int largestDifference(const Pixels& left, const Pixels& right)
{
    EXPECT_EQ(left.size(), right.size());
    int largest = 0;
    for (std::size_t i = 0; i < std::min(left.size(), right.size()); ++i)
        largest = std::max(largest, largestDifference(left[i], right[i]));
    return largest;
}

/// Samples of one colour for a picture of 16 x 16.
Bytes flat(std::initializer_list<int> colour)
{
    Bytes samples;
    for (int i = 0; i < 16 * 16; ++i)
        for (const int channel : colour)
            samples.push_back(static_cast<std::uint8_t>(channel));
    return samples;
}

/// The first pixel of a decoded 16 x 16 file.
Pixel firstPixel(const Bytes& file)
{
    const auto picture = decodeJpeg(file);
    EXPECT_TRUE(picture && picture->width == 16 && picture->height == 16);
    return picture ? picture->view().row(0)[0] : 0;
}

/// Content of the segment whose marker is FF `code`; empty when there is none before the pixels.
Bytes segment(const Bytes& file, int code)
{
    std::size_t at = 2;
    while (at + 4 <= file.size() && file[at] == 0xFF && file[at + 1] != 0xDA) {
        const std::size_t length = file[at + 2] * 256u + file[at + 3];
        if (file[at + 1] == code)
            return {file.begin() + static_cast<std::ptrdiff_t>(at) + 4,
                    file.begin() + static_cast<std::ptrdiff_t>(at + 2 + length)};
        at += 2 + length;
    }
    return {};
}

constexpr int kBaselineFrame = 0xC0;
constexpr int kQuantisation = 0xDB;
constexpr int kJfif = 0xE0;

TEST(JpegDecode, AgreesWithPlainCallsOfTheLibraryOnEveryKindOfColourFile)
{
    for (const bool progressive : {false, true})
        for (const bool halved : {false, true})
            for (const J_COLOR_SPACE stored : {JCS_YCbCr, JCS_RGB}) {
                JpegContent content{.width = 37, .height = 21, .stored = stored, .quality = 85};
                content.samples = smoothSamples(37, 21, 3);
                content.progressive = progressive;
                content.halvedChroma = halved;
                const Bytes file = jpegFile(content);

                const auto picture = decodeJpeg(file);

                ASSERT_TRUE(picture);
                EXPECT_EQ(picture->format, PictureFormat::Rgb24);
                EXPECT_EQ(pixelsOf(*picture), pixelsByLibrary(file)) << progressive << halved << stored;
            }
}

TEST(JpegDecode, GreyComesAsIndexedWithEqualChannels)
{
    JpegContent content{.width = 5, .height = 3, .input = JCS_GRAYSCALE, .stored = JCS_GRAYSCALE};
    content.samples = smoothSamples(5, 3, 1);

    const auto picture = decodeJpeg(jpegFile(content));

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->format, PictureFormat::Indexed8);
    for (std::size_t i = 0; i < 15; ++i) {
        const Pixel pixel = pixelsOf(*picture)[i];
        EXPECT_EQ(pixel, 0xFF000000 | (pixel & 0xFF) * 0x010101);
        EXPECT_NEAR(static_cast<int>(pixel & 0xFF), content.samples[i], 1);
    }
}

TEST(JpegDecode, FlatColoursComeBackWithinTheRoundingOfTheColourTransform)
{
    for (const Pixel colour : {0xFF000000u, 0xFFFFFFFFu, 0xFFFF0000u, 0xFF00FF00u, 0xFF0000FFu, 0xFF4080C0u}) {
        const auto channel = [&](int shift) { return static_cast<int>(colour >> shift & 0xFF); };
        JpegContent content{.width = 16, .height = 16, .samples = flat({channel(16), channel(8), channel(0)})};
        EXPECT_LE(largestDifference(firstPixel(jpegFile(content)), colour), 2);
    }
}

TEST(JpegDecode, InksOfAdobeFilesAreStoredInverted)
{
    // Full cyan is 0, no black is 255.
    JpegContent content{.width = 16, .height = 16, .input = JCS_CMYK, .stored = JCS_CMYK};
    content.samples = flat({0, 255, 255, 255});
    EXPECT_LE(largestDifference(firstPixel(jpegFile(content)), 0xFF00FFFF), 2);

    content.samples = flat({255, 128, 64, 128}); // red 255 * 128 / 255, green 128 * 128 / 255, blue 64 * 128 / 255
    EXPECT_LE(largestDifference(firstPixel(jpegFile(content)), 0xFF804020), 2);

    content.stored = JCS_YCCK;
    EXPECT_LE(largestDifference(firstPixel(jpegFile(content)), 0xFF804020), 3);
    EXPECT_EQ(decodeJpeg(jpegFile(content))->format, PictureFormat::Rgb24);
}

TEST(JpegDecode, InksWithoutAdobesMarkerAreAmountsOfInk)
{
    JpegContent content{.width = 16, .height = 16, .input = JCS_CMYK, .stored = JCS_CMYK};
    content.adobeMarker = false;
    content.samples = flat({255, 0, 0, 0});
    EXPECT_LE(largestDifference(firstPixel(jpegFile(content)), 0xFF00FFFF), 2);

    content.samples = flat({0, 127, 191, 127});
    EXPECT_LE(largestDifference(firstPixel(jpegFile(content)), 0xFF804020), 2);
}

TEST(JpegDecode, IgnoresTheOrientationThatACameraNoted)
{
    JpegContent content{.width = 24, .height = 8, .samples = smoothSamples(24, 8, 3)};
    const Bytes upright = jpegFile(content);
    // "Exif", a little-endian directory of one entry: tag 0x0112, a short, 6 (turn clockwise).
    content.exif = fromHex("45 78 69 66 00 00  49 49 2A 00 08 00 00 00  01 00"
                           "12 01 03 00 01 00 00 00 06 00 00 00  00 00 00 00");

    const auto picture = decodeJpeg(jpegFile(content));

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->width, 24);
    EXPECT_EQ(pixelsOf(*picture), pixelsByLibrary(upright));
}

TEST(JpegResolution, ComesPerInchOrPerCentimetreAndIs96Otherwise)
{
    JpegContent content{.samples = smoothSamples(8, 8, 3), .densityX = 300, .densityY = 150};
    const auto dpi = [&](int unit) {
        content.densityUnit = unit;
        const auto picture = decodeJpeg(jpegFile(content));
        return picture ? std::array{picture->dpiX, picture->dpiY} : std::array{0.0, 0.0};
    };
    EXPECT_EQ(dpi(0), (std::array{96.0, 96.0}));
    EXPECT_EQ(dpi(1), (std::array{300.0, 150.0}));
    EXPECT_EQ(dpi(2), (std::array{762.0, 381.0}));
    content.densityX = 0;
    EXPECT_EQ(dpi(1), (std::array{96.0, 96.0}));
}

TEST(JpegDecode, ShowsWhatThereIsOfAFileThatEndsEarly)
{
    JpegContent content{.width = 64, .height = 64, .samples = smoothSamples(64, 64, 3)};
    content.halvedChroma = false;
    const Bytes file = jpegFile(content);
    const Pixels whole = pixelsByLibrary(file);

    const auto picture = decodeJpeg(std::span(file).first(file.size() * 3 / 4));

    ASSERT_TRUE(picture);
    const Pixels pixels = pixelsOf(*picture);
    ASSERT_EQ(pixels.size(), whole.size());
    EXPECT_TRUE(std::equal(whole.begin(), whole.begin() + 64 * 24, pixels.begin()));
}

TEST(JpegDecode, RefusesAProgressiveFileOfMoreScansThanAnyEncoderMakes)
{
    JpegContent content{.input = JCS_GRAYSCALE, .stored = JCS_GRAYSCALE, .samples = smoothSamples(8, 8, 1)};
    content.progressive = true;
    EXPECT_TRUE(decodeJpeg(jpegFile(content)));
    content.scanPerCoefficient = true;
    EXPECT_FALSE(decodeJpeg(jpegFile(content)));
}

TEST(JpegEncode, WritesWhatTheDocumentedDefaultsSay)
{
    const Pixels pixels = randomPixels(64, 1);

    const auto encoded = encodeJpeg(viewOf(pixels, 8));
    ASSERT_TRUE(encoded);
    const Bytes file = bytesOf(*encoded);

    // JFIF 1.1, unit inches, 96 x 96, no thumbnail.
    EXPECT_EQ(segment(file, kJfif), fromHex("4A 46 49 46 00 01 01 01 00 60 00 60 00 00"));
    // The first entry of the standard's luminance table is 16; quality 75 halves it.
    EXPECT_EQ(segment(file, kQuantisation).at(1), 8);
}

TEST(JpegEncode, HalvesChromaBothWaysAtEveryQuality)
{
    const Pixels pixels = randomPixels(64, 1);
    for (const int quality : {1, 50, 75, 90, 100}) {
        const auto file = encodeJpeg(viewOf(pixels, 8), quality);
        ASSERT_TRUE(file);
        // 8 bits, 8 x 8, three components: number, sampling factors, table.
        EXPECT_EQ(segment(bytesOf(*file), kBaselineFrame), fromHex("08 0008 0008 03  01 22 00  02 11 01  03 11 01"));
    }
}

TEST(JpegEncode, DropsAlphaAndStoresTheColourBytesAsTheyAre)
{
    const Pixels pixels(256, 0x00000000);
    const Pixels hidden(256, 0x00FFFFFF);
    const Pixels translucent(256, 0x804080C0);
    EXPECT_EQ(firstPixel(bytesOf(*encodeJpeg(viewOf(pixels, 16)))), 0xFF000000);
    EXPECT_EQ(firstPixel(bytesOf(*encodeJpeg(viewOf(hidden, 16)))), 0xFFFFFFFF);
    EXPECT_LE(largestDifference(firstPixel(bytesOf(*encodeJpeg(viewOf(translucent, 16), 100))), 0xFF4080C0), 2);
}

TEST(JpegEncode, EqualsPlainCallsOfTheLibrary)
{
    JpegContent content{.width = 33, .height = 18, .samples = smoothSamples(33, 18, 3), .quality = 90};
    content.densityUnit = 1;
    content.densityX = content.densityY = 96;
    Pixels pixels;
    for (std::size_t i = 0; i < content.samples.size(); i += 3)
        pixels.push_back(Pixel{content.samples[i]} << 16 | Pixel{content.samples[i + 1]} << 8 | content.samples[i + 2]);

    const auto file = encodeJpeg(viewOf(pixels, 33), 90);

    ASSERT_TRUE(file);
    EXPECT_EQ(bytesOf(*file), jpegFile(content));
}

TEST(JpegEncode, HigherQualityGivesALargerFileNearerToThePicture)
{
    Pixels pixels;
    for (int y = 0; y < 64; ++y)
        for (int x = 0; x < 64; ++x)
            pixels.push_back(0xFF000000u | static_cast<Pixel>((x * x + y * 7) % 256) * 0x010101);
    const auto low = encodeJpeg(viewOf(pixels, 64), 10);
    const auto high = encodeJpeg(viewOf(pixels, 64), 100);
    ASSERT_TRUE(low && high);

    EXPECT_GT(high->size(), 2 * low->size());
    EXPECT_LE(largestDifference(pixelsOf(*decodeJpeg(high->bytes())), pixels), 4);
}

TEST(JpegEncode, ClampsQualityAndResolution)
{
    const Pixels pixels = randomPixels(64, 1);
    EXPECT_EQ(bytesOf(*encodeJpeg(viewOf(pixels, 8), -5)), bytesOf(*encodeJpeg(viewOf(pixels, 8), 1)));
    EXPECT_EQ(bytesOf(*encodeJpeg(viewOf(pixels, 8), 1000)), bytesOf(*encodeJpeg(viewOf(pixels, 8), 100)));
    const Bytes file = bytesOf(*encodeJpeg(viewOf(pixels, 8), 75, 1e9, 299.6));
    EXPECT_EQ(segment(file, kJfif), fromHex("4A 46 49 46 00 01 01 01 FF FF 01 2C 00 00"));
}

TEST(JpegEncode, RefusesSizesThatTheFormatCannotHold)
{
    const Pixels pixels(65501, 0);
    EXPECT_FALSE(encodeJpeg(viewOf(pixels, 65501)));
    EXPECT_FALSE(encodeJpeg(viewOf(pixels, 1)));
    EXPECT_FALSE(encodeJpeg({reinterpret_cast<const std::uint8_t*>(pixels.data()), 4, 0, 1}));
    const Pixels longest(65500, 0);
    EXPECT_TRUE(encodeJpeg(viewOf(longest, 65500)));
}

} // namespace
} // namespace vq::test
