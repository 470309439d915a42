// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Png.h"

#include "unit/Platform/gdiplus/codecs/PngFiles.h"

#include <gtest/gtest.h>

#include <tuple>

namespace vq::test {
namespace {

using gdiplus::decodePng;
using gdiplus::encodePng;
using gdiplus::Picture;
using gdiplus::PictureFormat;

TEST(PngRoundTrip, KeepsAllFourBytesOfEveryPixel)
{
    const Pixels pixels{0x00FF00FF, 0x01FF00FF, 0x80123456, 0xFF123456, 0x00000000, 0xFFFFFFFF};

    const auto file = encodePng(viewOf(pixels, 2));
    ASSERT_TRUE(file);
    const auto picture = decodePng(file->bytes());

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->width, 2);
    EXPECT_EQ(picture->height, 3);
    EXPECT_EQ(picture->format, PictureFormat::Argb32);
    EXPECT_EQ(pixelsOf(*picture), pixels);
}

TEST(PngRoundTrip, IsExactForRandomPicturesOfEveryShape)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 300}, {300, 1}, {17, 9}, {640, 41}}) {
        const Pixels pixels = randomPixels(static_cast<std::size_t>(width * height), static_cast<unsigned>(width));

        const auto file = encodePng(viewOf(pixels, width));
        ASSERT_TRUE(file);
        const auto picture = decodePng(file->bytes());

        ASSERT_TRUE(picture);
        EXPECT_EQ(pixelsOf(*picture), pixels) << width << " x " << height;
    }
}

TEST(PngRoundTrip, IsExactForLongRuns)
{
    Pixels pixels(1000 * 20, 0);
    for (std::size_t i = 3000; i < 11000; ++i)
        pixels[i] = 0x80FF0000;

    const auto file = encodePng(viewOf(pixels, 1000));
    ASSERT_TRUE(file);
    const auto picture = decodePng(file->bytes());

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), pixels);
    EXPECT_LT(file->size(), 1500u);
}

/// Rows are longer than what the compressor looks back: only the filter can see that they repeat.
TEST(PngEncode, StoresRowsThatRepeatAsOne)
{
    constexpr std::size_t kWidth = 10000;
    constexpr std::size_t kHeight = 20;
    const Pixels noise = randomPixels(kWidth, 7);
    Pixels pixels;
    for (std::size_t y = 0; y < kHeight; ++y)
        pixels.insert(pixels.end(), noise.begin(), noise.end());

    const auto file = encodePng(viewOf(pixels, static_cast<int>(kWidth)));
    ASSERT_TRUE(file);
    const auto picture = decodePng(file->bytes());

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), pixels);
    EXPECT_LT(file->size(), 2 * kWidth * sizeof(gdiplus::Pixel));
}

TEST(PngEncode, ReadsRowsThatRunUpwards)
{
    const Pixels pixels{0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004};
    const gdiplus::ConstPixelView bottomUp(reinterpret_cast<const std::uint8_t*>(&pixels[2]), -8, 2, 2);

    const auto file = encodePng(bottomUp);
    ASSERT_TRUE(file);
    const auto picture = decodePng(file->bytes());

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0xFF000003, 0xFF000004, 0xFF000001, 0xFF000002}));
}

/// libpng refuses a chunk whose checksum is wrong here, but not the last one.
TEST(PngEncode, GivesEveryChunkItsChecksum)
{
    const Pixels pixels = randomPixels(61 * 47, 1);
    const auto file = encodePng(viewOf(pixels, 61));
    ASSERT_TRUE(file);
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    ASSERT_TRUE(png_image_begin_read_from_memory(&image, file->data(), file->size())) << image.message;
    image.format = PNG_FORMAT_BGRA;
    Pixels decoded(pixels.size());
    EXPECT_TRUE(png_image_finish_read(&image, nullptr, decoded.data(), 0, nullptr)) << image.message;
    EXPECT_EQ(decoded, pixels);
    const Bytes end(file->bytes().end() - 12, file->bytes().end());
    EXPECT_EQ(end, (Bytes{0, 0, 0, 0, 'I', 'E', 'N', 'D', 0xAE, 0x42, 0x60, 0x82}));
}

TEST(PngEncode, RefusesAPictureWithoutPixels)
{
    const Pixels pixels{1, 2, 3, 4};
    EXPECT_FALSE(encodePng({reinterpret_cast<const std::uint8_t*>(pixels.data()), 8, 0, 2}));
    EXPECT_FALSE(encodePng({reinterpret_cast<const std::uint8_t*>(pixels.data()), 8, 2, 0}));
    EXPECT_FALSE(encodePng({reinterpret_cast<const std::uint8_t*>(pixels.data()), 8, -1, -1}));
}

TEST(PngResolution, NinetySixDpiAreStoredAs3780PixelsPerMetreAndReadBackAs96Point012)
{
    const Pixels pixels{0};

    const auto file = encodePng(viewOf(pixels, 1));
    ASSERT_TRUE(file);
    const std::size_t chunk = positionOf(bytesOf(*file), "pHYs");
    const Bytes content(file->bytes().begin() + static_cast<std::ptrdiff_t>(chunk) + 4,
                        file->bytes().begin() + static_cast<std::ptrdiff_t>(chunk) + 13);
    const auto picture = decodePng(file->bytes());

    EXPECT_EQ(content, fromHex("00 00 0E C4  00 00 0E C4  01"));
    ASSERT_TRUE(picture);
    EXPECT_NEAR(picture->dpiX, 96.012, 1e-9);
    EXPECT_NEAR(picture->dpiY, 96.012, 1e-9);
}

TEST(PngResolution, BothDirectionsAreKeptApart)
{
    const Pixels pixels{0};

    const auto file = encodePng(viewOf(pixels, 1), 300, 150);
    ASSERT_TRUE(file);
    const auto picture = decodePng(file->bytes());

    ASSERT_TRUE(picture);
    EXPECT_NEAR(picture->dpiX, 11811 * 0.0254, 1e-9); // 300 / 0.0254 = 11811.02
    EXPECT_NEAR(picture->dpiY, 5906 * 0.0254, 1e-9);  // 150 / 0.0254 = 5905.51
}

TEST(PngResolution, WhatIsNoResolutionIsStoredAs96Dpi)
{
    const Pixels pixels{0};
    for (const double dpi : {0.0, -72.0, std::numeric_limits<double>::quiet_NaN()}) {
        const auto file = encodePng(viewOf(pixels, 1), dpi, dpi);
        ASSERT_TRUE(file);
        const auto picture = decodePng(file->bytes());
        ASSERT_TRUE(picture);
        EXPECT_NEAR(picture->dpiX, 96.012, 1e-9);
    }
}

TEST(PngResolution, AnAspectRatioOrAZeroIsNoResolution)
{
    PngContent content{.rows = {{1, 2, 3}}, .hasResolution = true, .resolutionX = 1000, .resolutionY = 2000};
    content.resolutionUnit = PNG_RESOLUTION_UNKNOWN;
    const auto ratio = decodePng(pngFile(content));
    content.resolutionUnit = PNG_RESOLUTION_METER;
    content.resolutionX = 0;
    const auto zero = decodePng(pngFile(content));

    ASSERT_TRUE(ratio && zero);
    EXPECT_EQ(ratio->dpiX, 96.0);
    EXPECT_EQ(ratio->dpiY, 96.0);
    EXPECT_EQ(zero->dpiX, 96.0);
    EXPECT_NEAR(zero->dpiY, 2000 * 0.0254, 1e-9);
}

TEST(PngDecode, DoesNotApplyGamma)
{
    const auto picture = decodePng(pngFile({.rows = {{0x10, 0x80, 0xC0}}, .gamma = 1.0}));

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), Pixels{0xFF1080C0});
}

TEST(PngDecode, PassesOverChunksOfAnyLength)
{
    const auto picture = decodePng(pngFile({.rows = {{0x10, 0x80, 0xC0}}, .textBytes = 9'000'000}));

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), Pixels{0xFF1080C0});
}

TEST(PngDecode, IgnoresWhatFollowsTheEndOfTheFile)
{
    Bytes file = pngFile({.rows = {{0x10, 0x80, 0xC0}}});
    file.insert(file.end(), 100, 0xAB);

    EXPECT_TRUE(decodePng(file));
}

TEST(PngDecode, AcceptsAWrongChecksumOfAChunkAsWindowsDoes)
{
    Bytes file = pngFile({.rows = {{0x10, 0x80, 0xC0}}});
    file.at(29) ^= 0xFF; // of the header chunk

    const auto picture = decodePng(file);

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), Pixels{0xFF1080C0});
}

TEST(PngDecode, RefusesAWrongChecksumOverThePixels)
{
    Bytes file = pngFile({.rows = {{0x10, 0x80, 0xC0}}});
    const std::size_t end = positionOf(file, "IEND"); // behind: length, checksum of the chunk, checksum of the pixels
    file.at(end - 9) ^= 0x01;

    EXPECT_FALSE(decodePng(file));
}

TEST(PngDecode, PaletteEntriesThatTheFileLacksAreBlack)
{
    PngContent content{.width = 2, .colourType = PNG_COLOR_TYPE_PALETTE, .rows = {{0, 1}}};
    content.palette = {{10, 20, 30}, {40, 50, 60}};
    Bytes file = pngFile(content);
    const std::size_t palette = positionOf(file, "PLTE");
    putBigEndian32(file, palette - 4, 3); // one entry instead of two
    file.erase(file.begin() + static_cast<std::ptrdiff_t>(palette) + 7,
               file.begin() + static_cast<std::ptrdiff_t>(palette) + 10);

    const auto picture = decodePng(file);

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0xFF0A141E, 0xFF000000}));
}

/// Colour type, depth, with transparency, interlaced.
class PngKinds : public testing::TestWithParam<std::tuple<std::pair<int, int>, bool, bool>>
{
protected:
    int colourType() const { return std::get<0>(GetParam()).first; }
    int depth() const { return std::get<0>(GetParam()).second; }
    bool transparent() const { return std::get<1>(GetParam()); }
    bool interlaced() const { return std::get<2>(GetParam()); }

    bool isPalette() const { return colourType() == PNG_COLOR_TYPE_PALETTE; }
    bool isGrey() const { return colourType() == PNG_COLOR_TYPE_GRAY || colourType() == PNG_COLOR_TYPE_GRAY_ALPHA; }
    bool hasAlphaSamples() const { return (colourType() & PNG_COLOR_MASK_ALPHA) != 0; }
    int channels() const { return isPalette() ? 1 : (isGrey() ? 1 : 3) + (hasAlphaSamples() ? 1 : 0); }

    /// Random content of that kind; half of its palette, or the colour of its first pixel, is transparent.
    PngContent content(int width, int height) const
    {
        PngContent result{.width = width, .height = height, .colourType = colourType(), .depth = depth()};
        result.interlaced = interlaced();
        const auto rowBytes = static_cast<std::size_t>((width * channels() * depth() + 7) / 8);
        for (int y = 0; y < height; ++y)
            result.rows.push_back(randomBytes(rowBytes, static_cast<std::uint32_t>(1000 * depth() + y)));
        if (isPalette()) {
            const std::size_t count = std::size_t{1} << depth();
            const Bytes colours = randomBytes(3 * count, 5);
            for (std::size_t i = 0; i < count; ++i)
                result.palette.push_back({colours[3 * i], colours[3 * i + 1], colours[3 * i + 2]});
            if (transparent())
                result.paletteAlpha = randomBytes((count + 1) / 2, 6);
        } else if (transparent() && !hasAlphaSamples()) {
            const auto at = [&](int channel) { return static_cast<png_uint_16>(sample(result, 0, 0, channel)); };
            result.transparentColour =
                isGrey() ? png_color_16{0, 0, 0, 0, at(0)} : png_color_16{0, at(0), at(1), at(2), 0};
        }
        return result;
    }

    int sample(const PngContent& content, int x, int y, int channel) const
    {
        const Bytes& row = content.rows[static_cast<std::size_t>(y)];
        const auto bit = static_cast<std::size_t>((x * channels() + channel) * depth());
        if (depth() == 16)
            return row[bit / 8] * 256 + row[bit / 8 + 1];
        return row[bit / 8] >> (8 - depth() - static_cast<int>(bit % 8)) & ((1 << depth()) - 1);
    }

    /// Nearest value of 8 bits; exact below 16.
    gdiplus::Pixel scaled(int value) const
    {
        const int most = (1 << depth()) - 1;
        return static_cast<gdiplus::Pixel>((value * 255 * 2 + most) / (2 * most));
    }

    gdiplus::Pixel expected(const PngContent& content, int x, int y) const
    {
        const auto at = [&](int channel) { return sample(content, x, y, channel); };
        if (isPalette()) {
            const auto index = static_cast<std::size_t>(at(0));
            const gdiplus::Pixel alpha = index < content.paletteAlpha.size() ? content.paletteAlpha[index] : 255;
            const png_color& colour = content.palette[index];
            return alpha << 24 | gdiplus::Pixel{colour.red} << 16 | gdiplus::Pixel{colour.green} << 8 | colour.blue;
        }
        const int green = isGrey() ? 0 : 1;
        const int blue = isGrey() ? 0 : 2;
        gdiplus::Pixel alpha = hasAlphaSamples() ? scaled(at(channels() - 1)) : 255;
        if (const auto& hidden = content.transparentColour) {
            const bool hides = isGrey() ? at(0) == hidden->gray
                                        : at(0) == hidden->red && at(1) == hidden->green && at(2) == hidden->blue;
            alpha = hides ? 0 : 255;
        }
        return alpha << 24 | scaled(at(0)) << 16 | scaled(at(green)) << 8 | scaled(at(blue));
    }

    /// What Wine's conformance tests, which pass on Windows, list.
    PictureFormat expectedFormat() const
    {
        if (transparent() || hasAlphaSamples())
            return PictureFormat::Argb32;
        if (depth() == 1)
            return PictureFormat::Indexed1;
        if (colourType() == PNG_COLOR_TYPE_RGB && depth() == 8)
            return PictureFormat::Rgb24;
        if (isPalette() && depth() == 4)
            return PictureFormat::Indexed4;
        if (isPalette() && depth() == 8)
            return PictureFormat::Indexed8;
        return PictureFormat::Argb32;
    }
};

TEST_P(PngKinds, ComeOutAsTheirSamplesScaledTo8Bits)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {2, 5}, {9, 8}, {33, 3}}) {
        const PngContent written = content(width, height);

        const auto picture = decodePng(pngFile(written));

        ASSERT_TRUE(picture) << width << " x " << height;
        EXPECT_EQ(picture->format, expectedFormat());
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x)
                ASSERT_EQ(picture->view().row(y)[x], expected(written, x, y)) << "at " << x << ", " << y;
    }
}

INSTANTIATE_TEST_SUITE_P(
    AllTypes, PngKinds,
    testing::Combine(testing::Values(std::pair{PNG_COLOR_TYPE_GRAY, 1}, std::pair{PNG_COLOR_TYPE_GRAY, 2},
                                     std::pair{PNG_COLOR_TYPE_GRAY, 4}, std::pair{PNG_COLOR_TYPE_GRAY, 8},
                                     std::pair{PNG_COLOR_TYPE_GRAY, 16}, std::pair{PNG_COLOR_TYPE_RGB, 8},
                                     std::pair{PNG_COLOR_TYPE_RGB, 16}, std::pair{PNG_COLOR_TYPE_PALETTE, 1},
                                     std::pair{PNG_COLOR_TYPE_PALETTE, 2}, std::pair{PNG_COLOR_TYPE_PALETTE, 4},
                                     std::pair{PNG_COLOR_TYPE_PALETTE, 8}, std::pair{PNG_COLOR_TYPE_GRAY_ALPHA, 8},
                                     std::pair{PNG_COLOR_TYPE_GRAY_ALPHA, 16}, std::pair{PNG_COLOR_TYPE_RGB_ALPHA, 8},
                                     std::pair{PNG_COLOR_TYPE_RGB_ALPHA, 16}),
                     testing::Bool(), testing::Bool()));

} // namespace
} // namespace vq::test
