// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Tiff.h"

#include "unit/Platform/gdiplus/codecs/TiffFiles.h"

#include <gtest/gtest.h>

#include <limits>

namespace vq::test::tiffEncodeTests {
namespace {

using gdiplus::decodeTiff;
using gdiplus::encodeTiff;
using gdiplus::PictureFormat;
using gdiplus::Pixel;
using gdiplus::TiffSamples;

Bytes encoded(const Pixels& pixels, int width, TiffSamples samples = TiffSamples::Rgba)
{
    const auto file = encodeTiff(viewOf(pixels, width), samples);
    EXPECT_TRUE(file);
    return file ? bytesOf(*file) : Bytes{};
}

TEST(TiffRoundTrip, KeepsAllFourBytesOfEveryPixel)
{
    const Pixels pixels{0x00FF00FF, 0x01FF00FF, 0x80123456, 0xFF123456, 0x00000000, 0xFFFFFFFF};
    const auto picture = decodeTiff(encoded(pixels, 2));

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->width, 2);
    EXPECT_EQ(picture->height, 3);
    EXPECT_EQ(picture->format, PictureFormat::Argb32);
    EXPECT_EQ(pixelsOf(*picture), pixels);
}

TEST(TiffRoundTrip, IsExactForRandomPicturesOfEveryShape)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 300}, {300, 1}, {17, 9}, {640, 141}, {20000, 3}}) {
        Pixels pixels = randomPixels(static_cast<std::size_t>(width * height), static_cast<unsigned>(width));
        const auto straight = decodeTiff(encoded(pixels, width));
        ASSERT_TRUE(straight);
        EXPECT_EQ(pixelsOf(*straight), pixels) << width << " x " << height;

        const auto opaque = decodeTiff(encoded(pixels, width, TiffSamples::Rgb));
        ASSERT_TRUE(opaque);
        EXPECT_EQ(opaque->format, PictureFormat::Rgb24);
        for (Pixel& pixel : pixels)
            pixel |= 0xFF000000;
        EXPECT_EQ(pixelsOf(*opaque), pixels) << width << " x " << height;
    }
}

TEST(TiffEncode, WritesWhatAReaderOfItsOwnSees)
{
    Pixels pixels = randomPixels(123 * 77, 5);
    std::fill_n(pixels.begin() + 3000, 4000, 0x80FF0000);
    for (const auto& [samples, count] : {std::pair{TiffSamples::Rgba, 4}, {TiffSamples::Rgb, 3}}) {
        Bytes expected;
        for (const Pixel pixel : pixels) {
            expected.push_back(static_cast<std::uint8_t>(pixel >> 16));
            expected.push_back(static_cast<std::uint8_t>(pixel >> 8));
            expected.push_back(static_cast<std::uint8_t>(pixel));
            if (count == 4)
                expected.push_back(static_cast<std::uint8_t>(pixel >> 24));
        }
        EXPECT_EQ(tiffSamples(encoded(pixels, 123, samples)), expected) << count;
    }
}

TEST(TiffEncode, SaysWhatItWrote)
{
    const auto file = encodeTiff(viewOf({1, 2, 3, 4, 5, 6}, 3), TiffSamples::Rgba, 300, 96.5);
    ASSERT_TRUE(file);
    auto tags = tiffTags(bytesOf(*file));
    using Values = std::vector<std::uint32_t>;
    EXPECT_EQ(tags[TIFFTAG_IMAGEWIDTH], Values{3});
    EXPECT_EQ(tags[TIFFTAG_IMAGELENGTH], Values{2});
    EXPECT_EQ(tags[TIFFTAG_BITSPERSAMPLE], (Values{8, 8, 8, 8}));
    EXPECT_EQ(tags[TIFFTAG_COMPRESSION], Values{COMPRESSION_LZW});
    EXPECT_EQ(tags[TIFFTAG_PHOTOMETRIC], Values{PHOTOMETRIC_RGB});
    EXPECT_EQ(tags[TIFFTAG_SAMPLESPERPIXEL], Values{4});
    EXPECT_EQ(tags[TIFFTAG_EXTRASAMPLES], Values{EXTRASAMPLE_UNASSALPHA});
    EXPECT_EQ(tags[TIFFTAG_RESOLUTIONUNIT], Values{RESUNIT_INCH});
    EXPECT_EQ(tags[TIFFTAG_XRESOLUTION], (Values{300, 1}));
    EXPECT_EQ(tags[TIFFTAG_YRESOLUTION], (Values{193, 2}));
    EXPECT_FALSE(tiffTags(encoded({1}, 1, TiffSamples::Rgb)).contains(TIFFTAG_EXTRASAMPLES));
}

TEST(TiffEncode, IsSmallForLongRuns)
{
    EXPECT_LT(encoded(Pixels(1000 * 200, 0x80FF0000), 1000).size(), 20'000u);
}

TEST(TiffEncode, ReadsRowsThatRunUpwards)
{
    const Pixels pixels{0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004};
    const gdiplus::ConstPixelView bottomUp(reinterpret_cast<const std::uint8_t*>(&pixels[2]), -8, 2, 2);
    const auto file = encodeTiff(bottomUp, TiffSamples::Rgb);
    ASSERT_TRUE(file);
    const auto picture = decodeTiff(file->bytes());

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0xFF000003, 0xFF000004, 0xFF000001, 0xFF000002}));
}

TEST(TiffEncode, ResolutionIsKept)
{
    for (const auto& [given, kept] : {std::pair{96.0, 96.0},
                                      {72.5, 72.5},
                                      {96.012, 96.012},
                                      {1200.0, 1200.0},
                                      {0.0, 96.0},
                                      {-1.0, 96.0},
                                      {1e30, 96.0},
                                      {std::numeric_limits<double>::quiet_NaN(), 96.0},
                                      {std::numeric_limits<double>::infinity(), 96.0}}) {
        const auto file = encodeTiff(viewOf({0}, 1), TiffSamples::Rgb, given, 96);
        ASSERT_TRUE(file);
        const auto picture = decodeTiff(file->bytes());
        ASSERT_TRUE(picture);
        EXPECT_NEAR(picture->dpiX, kept, 1e-5);
        EXPECT_EQ(picture->dpiY, 96.0);
    }
}

TEST(TiffEncode, RefusesAPictureWithoutPixels)
{
    const Pixels pixels{1, 2, 3, 4};
    EXPECT_FALSE(encodeTiff({reinterpret_cast<const std::uint8_t*>(pixels.data()), 8, 0, 2}, TiffSamples::Rgb));
    EXPECT_FALSE(encodeTiff({reinterpret_cast<const std::uint8_t*>(pixels.data()), 8, 2, 0}, TiffSamples::Rgb));
    EXPECT_FALSE(encodeTiff({reinterpret_cast<const std::uint8_t*>(pixels.data()), 8, -1, -1}, TiffSamples::Rgb));
}

} // namespace
} // namespace vq::test::tiffEncodeTests
