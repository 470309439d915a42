// SPDX-License-Identifier: MIT
// The quick way through plain PNG files, and the filters it shares with the encoder.
#include "Platform/gdiplus/codecs/PngRows.h"
#include "Platform/gdiplus/codecs/Png.h"
#include "Platform/gdiplus/codecs/PngFilters.h"

#include "unit/Platform/gdiplus/codecs/PngFiles.h"

#include <gtest/gtest.h>

#include <random>
#include <utility>

namespace vq::test {
namespace {

using namespace gdiplus::png;

constexpr int kEdges[] = {0, 1, 2, 127, 128, 129, 254, 255};

Word repeated(int byte)
{
    return static_cast<Word>(byte) * 0x01010101u;
}

TEST(PngFilters, WorkByteByByte)
{
    for (const int a : kEdges)
        for (const int b : kEdges) {
            EXPECT_EQ(bytesAdded(repeated(a), repeated(b)), repeated((a + b) & 0xFF));
            EXPECT_EQ(bytesSubtracted(repeated(a), repeated(b)), repeated((a - b) & 0xFF));
            EXPECT_EQ(bytesAveraged(repeated(a), repeated(b)), repeated((a + b) / 2));
        }
    EXPECT_EQ(bytesAdded(0xFF00FF80, 0x01020304), 0x00020284u);
    EXPECT_EQ(bytesSubtracted(0x00020284, 0x01020304), 0xFF00FF80u);
    EXPECT_EQ(bytesAveraged(0xFF000104, 0xFF010203), 0xFF000103u);
}

TEST(PngFilters, PaethTakesTheNearestOfThree)
{
    EXPECT_EQ(paethOfByte(10, 20, 10), 20);
    EXPECT_EQ(paethOfByte(10, 20, 20), 10);
    EXPECT_EQ(paethOfByte(10, 20, 15), 15);
    EXPECT_EQ(paethOfByte(7, 7, 7), 7);
    EXPECT_EQ(paethOfByte(0, 255, 255), 0);
    EXPECT_EQ(paethOfByte(1, 3, 2), 2) << "both are one off, the corner is met exactly";
}

TEST(PngFilters, PaethOfFourBytesIsThatOfEach)
{
    std::mt19937 random(1);
    for (int round = 0; round < 200'000; ++round) {
        const auto a = static_cast<Word>(random());
        const auto b = static_cast<Word>(random());
        const auto c = round % 3 == 0 ? a ^ (static_cast<Word>(random()) & 0x03030303) : static_cast<Word>(random());
        ASSERT_EQ(paeth(a, b, c), paethPortable(a, b, c)) << a << ' ' << b << ' ' << c;
    }
    for (const int a : kEdges)
        for (const int b : kEdges)
            for (const int c : kEdges)
                ASSERT_EQ(paeth(repeated(a), repeated(b), repeated(c)), repeated(paethOfByte(a, b, c)));
}

/// A file of random samples, some rows alike, and its pixels.
std::pair<PngContent, Pixels> plainContent(int width, int height, bool hasAlpha)
{
    const std::size_t channels = hasAlpha ? 4 : 3;
    PngContent content{.width = width, .height = height};
    content.colourType = hasAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB;
    Pixels pixels;
    for (int y = 0; y < height; ++y) {
        Bytes row = randomBytes(static_cast<std::size_t>(width) * channels, static_cast<std::uint32_t>(y / 2));
        for (std::size_t i = 0; i < row.size(); i += channels)
            pixels.push_back((hasAlpha ? row[i + 3] : 255u) << 24 | static_cast<std::uint32_t>(row[i]) << 16 |
                             static_cast<std::uint32_t>(row[i + 1]) << 8 | row[i + 2]);
        content.rows.push_back(std::move(row));
    }
    return {content, pixels};
}

/// From the first chunk of pixels on.
std::span<const std::uint8_t> pixelChunks(const Bytes& file)
{
    const std::string_view text(reinterpret_cast<const char*>(file.data()), file.size());
    return std::span(file).subspan(text.find("IDAT") - 4);
}

Pixels readQuickly(const PngContent& content, const Bytes& file, bool& isRead)
{
    Pixels pixels(static_cast<std::size_t>(content.width * content.height), 0x55555555);
    const gdiplus::PixelView view{reinterpret_cast<std::uint8_t*>(pixels.data()),
                                  content.width * std::ptrdiff_t{sizeof(std::uint32_t)}, content.width, content.height};
    const auto samples = content.colourType == PNG_COLOR_TYPE_RGB ? Samples::Rgb : Samples::Rgba;
    isRead = readPlainPixels(pixelChunks(file), samples, view);
    return pixels;
}

TEST(PlainPng, IsExactForEveryFilterAndWidth)
{
    for (const bool hasAlpha : {false, true})
        for (const int filter :
             {PNG_FILTER_NONE, PNG_FILTER_SUB, PNG_FILTER_UP, PNG_FILTER_AVG, PNG_FILTER_PAETH, PNG_ALL_FILTERS})
            for (const int width : {1, 2, 3, 4, 5, 17, 300}) {
                auto [content, pixels] = plainContent(width, 6, hasAlpha);
                content.filters = filter;
                bool isRead = false;
                EXPECT_EQ(readQuickly(content, pngFile(content), isRead), pixels) << filter << ", width " << width;
                EXPECT_TRUE(isRead);
            }
}

TEST(PlainPng, MayComeInManyChunks)
{
    for (const std::size_t chunkBytes : {std::size_t{6}, std::size_t{7}, std::size_t{100}}) {
        auto [content, pixels] = plainContent(30, 20, true);
        content.chunkBytes = chunkBytes;
        bool isRead = false;
        EXPECT_EQ(readQuickly(content, pngFile(content), isRead), pixels) << chunkBytes;
        EXPECT_TRUE(isRead);
    }
}

TEST(PlainPng, IsLeftAloneWhenItIsUnusual)
{
    const auto [content, pixels] = plainContent(9, 5, true);
    const Bytes whole = pngFile(content);
    const auto expectLeft = [&](const Bytes& file, const PngContent& claimed, const char* why) {
        bool isRead = true;
        readQuickly(claimed, file, isRead);
        EXPECT_FALSE(isRead) << why;
    };
    Bytes cut = whole;
    cut.resize(cut.size() - 12);
    expectLeft(cut, content, "no end");
    PngContent taller = content;
    ++taller.height;
    expectLeft(whole, taller, "too few rows");
    PngContent shorter = content;
    --shorter.height;
    expectLeft(whole, shorter, "too many rows");
    Bytes critical = whole;
    const Bytes stranger{0, 0, 0, 0, 'A', 'b', 'c', 'd', 0, 0, 0, 0};
    critical.insert(critical.end() - 12, stranger.begin(), stranger.end());
    expectLeft(critical, content, "an unknown chunk that matters");
    Bytes ancillary = whole;
    const Bytes remark{0, 0, 0, 1, 'a', 'b', 'c', 'd', 9, 0, 0, 0, 0};
    ancillary.insert(ancillary.end() - 12, remark.begin(), remark.end());
    bool isRead = false;
    EXPECT_EQ(readQuickly(content, ancillary, isRead), pixels);
    EXPECT_TRUE(isRead) << "one that does not";
}

TEST(PlainPng, IsTheSamePictureAsAnInterlacedOne)
{
    for (const bool hasAlpha : {false, true}) {
        const auto [content, pixels] = plainContent(31, 17, hasAlpha);
        const Bytes file = pngFile(content);
        const auto picture = gdiplus::decodePng(file);
        ASSERT_TRUE(picture);
        EXPECT_EQ(pixelsOf(*picture), pixels);
        PngContent interlaced = content;
        interlaced.interlaced = true;
        const auto patient = gdiplus::decodePng(pngFile(interlaced));
        ASSERT_TRUE(patient);
        EXPECT_EQ(pixelsOf(*patient), pixels);
    }
}

} // namespace
} // namespace vq::test
