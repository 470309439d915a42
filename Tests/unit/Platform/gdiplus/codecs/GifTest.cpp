// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/codecs/Gif.h"

#include "Platform/gdiplus/codecs/Halftone.h"
#include "unit/Platform/gdiplus/codecs/GifFiles.h"

#include <gtest/gtest.h>

#include <cstdlib>

namespace vq::test::gifTests {
namespace {

using gdiplus::decodeGif;
using gdiplus::encodeGif;
using gdiplus::Picture;
using gdiplus::PictureFormat;
using gdiplus::Pixel;

GifContent fourColours()
{
    return {.indices = {0, 1, 2, 3}, .palette = fourGifColours()};
}

TEST(GifDecode, GivesTheColoursOfThePaletteAsEightBits)
{
    const auto picture = decodeGif(gifFile(fourColours()));

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->width, 2);
    EXPECT_EQ(picture->height, 2);
    EXPECT_EQ(picture->format, PictureFormat::Indexed8);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0xFF000000, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF}));
    EXPECT_EQ(picture->dpiX, 96.0);
    EXPECT_EQ(picture->dpiY, 96.0);
}

TEST(GifDecode, ReadsAPaletteOfTheFrame)
{
    GifContent content = fourColours();
    content.paletteIsLocal = true;

    const auto picture = decodeGif(gifFile(content));

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0xFF000000, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF}));
}

TEST(GifDecode, ReadsTheOlderVersion)
{
    Bytes file = gifFile(fourColours());
    file.at(4) = '7';

    EXPECT_TRUE(decodeGif(file));
}

TEST(GifDecode, TransparentPixelsKeepTheColourOfThePalette)
{
    GifContent content = fourColours();
    content.transparent = 2;

    const auto picture = decodeGif(gifFile(content));

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->format, PictureFormat::Indexed8Alpha);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0xFF000000, 0xFFFF0000, 0x0000FF00, 0xFF0000FF}));
}

TEST(GifDecode, WithoutAPaletteTheSecondColourIsWhite)
{
    const auto picture = decodeGif(gifFile({.indices = {0, 1, 2, 3}}));

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0xFF000000, 0xFFFFFFFF, 0xFF000000, 0xFF000000}));
}

TEST(GifDecode, IndicesBeyondThePaletteAreBlack)
{
    GifContent content = fourColours();
    content.palette.resize(6); // two colours; an index has two bits at least

    const auto picture = decodeGif(gifFile(content));

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0xFF000000, 0xFFFF0000, 0xFF000000, 0xFF000000}));
}

TEST(GifDecode, PutsRowsOfAnInterlacedFrameInOrder)
{
    for (int height = 1; height <= 20; ++height) {
        GifContent content{.screenWidth = 3, .screenHeight = height, .width = 3, .height = height, .interlaced = true};
        Pixels expected;
        for (int i = 0; i < 3 * height; ++i) {
            content.indices.push_back(static_cast<std::uint8_t>(i));
            expected.push_back(0xFF000000u | static_cast<Pixel>(i) * 0x010101);
        }
        for (int i = 0; i < 64; ++i)
            content.palette.insert(content.palette.end(), 3, static_cast<std::uint8_t>(i));

        const auto picture = decodeGif(gifFile(content));

        ASSERT_TRUE(picture) << height;
        EXPECT_EQ(pixelsOf(*picture), expected) << height;
    }
}

TEST(GifDecode, FrameStandsAtItsPlaceOnATransparentScreen)
{
    GifContent content = fourColours();
    content.screenWidth = 4;
    content.screenHeight = 3;
    content.left = 1;
    content.top = 1;

    const auto picture = decodeGif(gifFile(content));

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->width, 4);
    EXPECT_EQ(picture->height, 3);
    EXPECT_EQ(picture->format, PictureFormat::Indexed8Alpha);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0, 0, 0, 0,                   //
                                          0, 0xFF000000, 0xFFFF0000, 0, //
                                          0, 0xFF00FF00, 0xFF0000FF, 0}));
}

TEST(GifDecode, ScreenGrowsToHoldTheFrame)
{
    GifContent content = fourColours();
    content.screenWidth = 0;
    content.screenHeight = 1;
    content.left = 1;

    const auto picture = decodeGif(gifFile(content));

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->width, 3);
    EXPECT_EQ(picture->height, 2);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0, 0xFF000000, 0xFFFF0000, 0, 0xFF00FF00, 0xFF0000FF}));
}

TEST(GifDecode, OfAnAnimationOnlyTheFirstFrameIsReadAs32Bits)
{
    GifContent content = fourColours();
    content.frames = 2;
    Bytes file = gifFile(content);

    const auto picture = decodeGif(file);
    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->format, PictureFormat::Argb32);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0xFF000000, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF}));

    file.resize(file.size() - 6); // in the data of the second
    EXPECT_TRUE(decodeGif(file));
}

TEST(GifDecode, IgnoresWhatFollowsTheFirstFrame)
{
    Bytes file = gifFile(fourColours());
    file.pop_back();
    append(file, Bytes(50, 0xAB));

    const auto picture = decodeGif(file);

    ASSERT_TRUE(picture);
    EXPECT_EQ(picture->format, PictureFormat::Indexed8);
}

TEST(GifDecode, RefusesDataThatAreCutOrImpossible)
{
    const Bytes file = gifFile(fourColours());
    const auto data = static_cast<std::ptrdiff_t>(file.size()) - 6; // length, four bytes, end of data; end of file
    Bytes cut(file.begin(), file.end() - 3);
    EXPECT_FALSE(decodeGif(cut));

    Bytes early = file; // clear, end of information
    early.at(static_cast<std::size_t>(data)) = 0x2C;
    EXPECT_FALSE(decodeGif(early));

    Bytes impossible = file; // clear, a code that is not in the table yet
    impossible.at(static_cast<std::size_t>(data)) = 0x3C;
    EXPECT_FALSE(decodeGif(impossible));
}

TEST(GifDecode, RefusesAFileWithoutAFrame)
{
    Bytes file = gifFile(fourColours());
    file.resize(25);
    file.push_back(0x3B);
    EXPECT_FALSE(decodeGif(file));

    GifContent empty = fourColours();
    empty.width = 0;
    EXPECT_FALSE(decodeGif(gifFile(empty)));
}

/// As a reader of its own sees the encoder's output.
struct Encoded
{
    ReadGif gif;
    Pixels pixels; ///< transparent ones are 0
    std::string version;
};

Encoded encoded(const Pixels& pixels, int width)
{
    const auto file = encodeGif(viewOf(pixels, width));
    EXPECT_TRUE(file);
    if (!file)
        return {};
    const Bytes bytes = bytesOf(*file);
    Encoded result{readGif(bytes), {}, std::string(bytes.begin(), bytes.begin() + 6)};
    for (const std::uint8_t index : result.gif.indices)
        result.pixels.push_back(index == result.gif.transparent ? 0 : result.gif.palette.at(index));
    return result;
}

TEST(GifEncode, ColoursOfThePaletteAreExact)
{
    Pixels pixels;
    for (Pixel red = 0; red < 256; red += 51)
        for (Pixel green = 0; green < 256; green += 51)
            for (Pixel blue = 0; blue < 256; blue += 51)
                pixels.push_back(0xFF000000u | red << 16 | green << 8 | blue);
    for (const Pixel system : {0xC0C0C0u, 0x808080u, 0x800000u, 0x008000u, 0x000080u, 0x808000u, 0x800080u, 0x008080u})
        pixels.push_back(0xFF000000u | system);

    EXPECT_EQ(encoded(pixels, 16).pixels, pixels);
    EXPECT_EQ(encoded(pixels, 1).pixels, pixels);
}

TEST(GifEncode, OtherColoursAreMixedFromTheirNeighbours)
{
    for (const Pixel grey : {1u, 25u, 26u, 52u, 100u, 200u, 254u}) {
        const Encoded result = encoded(Pixels(16 * 16, 0xFF000000u | grey * 0x010101), 16);
        Pixel sum = 0;
        for (const Pixel pixel : result.pixels) {
            const Pixel value = pixel & 0xFF;
            EXPECT_EQ(pixel, 0xFF000000u | value * 0x010101) << "greys stay grey";
            EXPECT_LT(std::abs(static_cast<int>(value) - static_cast<int>(grey)), 51) << grey;
            sum += value;
        }
        EXPECT_NEAR(sum / 256.0, grey, 51.0 / 128) << "64 shades from one level to the next";
    }
}

TEST(GifEncode, EachChannelIsMixedOnItsOwn)
{
    const Encoded result = encoded(Pixels(8 * 8, 0xFF4D00B2), 8); // 77 and 178: half-way between two levels each
    int reds = 0;
    for (const Pixel pixel : result.pixels) {
        EXPECT_EQ(pixel >> 8 & 0xFF, 0u);
        reds += (pixel >> 16 & 0xFF) == 102;
    }
    EXPECT_NEAR(reds, 32, 1);
}

TEST(GifEncode, AlphaBelowHalfIsTransparentTheRestOpaque)
{
    const Encoded result = encoded({0x7FFF0000, 0x80FF0000, 0x00FF0000, 0xFFFF0000}, 2);

    EXPECT_EQ(result.pixels, (Pixels{0, 0xFFFF0000, 0, 0xFFFF0000}));
    EXPECT_EQ(result.version, "GIF89a");
}

TEST(GifEncode, OpaquePicturesHaveNoTransparentColour)
{
    const Encoded result = encoded({0xFFFF0000}, 1);

    EXPECT_EQ(result.gif.transparent, -1);
    EXPECT_EQ(result.version, "GIF87a");
}

TEST(GifEncode, ReadsRowsThatRunUpwards)
{
    const Pixels pixels{0xFF000000, 0xFF0000FF, 0xFF00FF00, 0xFFFF0000};
    const auto file = encodeGif({reinterpret_cast<const std::uint8_t*>(&pixels[2]), -8, 2, 2});
    ASSERT_TRUE(file);
    const auto picture = decodeGif(file->bytes());

    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), (Pixels{0xFF00FF00, 0xFFFF0000, 0xFF000000, 0xFF0000FF}));
}

TEST(GifEncode, RefusesSizesThatTheFormatCannotHold)
{
    const Pixels pixels(70000, 0xFF000000);
    EXPECT_TRUE(encodeGif(viewOf(Pixels(65535, 0xFF000000), 65535)));
    EXPECT_FALSE(encodeGif(viewOf(pixels, 70000)));
    EXPECT_FALSE(encodeGif(viewOf(pixels, 1)));
    EXPECT_FALSE(encodeGif({reinterpret_cast<const std::uint8_t*>(pixels.data()), 8, 0, 2}));
    EXPECT_FALSE(encodeGif({reinterpret_cast<const std::uint8_t*>(pixels.data()), 8, 2, -1}));
}

TEST(GifRoundTrip, GivesWhatAReaderOfItsOwnSees)
{
    for (const auto& [width, height] : {std::pair{1, 1}, {1, 300}, {300, 1}, {17, 9}, {640, 41}}) {
        const Pixels pixels = randomPixels(static_cast<std::size_t>(width * height), static_cast<unsigned>(width));
        const auto file = encodeGif(viewOf(pixels, width));
        ASSERT_TRUE(file);
        const auto picture = decodeGif(file->bytes());

        ASSERT_TRUE(picture);
        EXPECT_EQ(picture->width, width);
        EXPECT_EQ(picture->height, height);
        EXPECT_EQ(pixelsOf(*picture), encoded(pixels, width).pixels);
    }
}

TEST(GifRoundTrip, PicturesOfOnePaletteStayWhatTheyAre)
{
    Pixels pixels(1000 * 30, 0xFF336699);
    for (std::size_t i = 0; i < pixels.size(); i += 3)
        pixels[i] = i % 2 == 0 ? 0xFFCC0033 : 0;

    const auto first = encodeGif(viewOf(pixels, 1000));
    ASSERT_TRUE(first);
    const auto picture = decodeGif(first->bytes());
    ASSERT_TRUE(picture);
    EXPECT_EQ(pixelsOf(*picture), pixels);
    const auto second = encodeGif(picture->view());
    ASSERT_TRUE(second);
    EXPECT_EQ(bytesOf(*second), bytesOf(*first));
}

} // namespace
} // namespace vq::test::gifTests
