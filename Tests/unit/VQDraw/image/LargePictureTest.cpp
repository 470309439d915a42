// SPDX-License-Identifier: MIT
// Large pictures are gone through in another order than small ones: the result is that of their bands, one by one.
#include "support/Pictures.h"

#include <functional>
#include <span>
#include <string>

namespace vq::test::largePictureTests {
namespace {

// More than a million pixels and no whole number of blocks or pages.
constexpr LONG kWidth = 1031;
constexpr LONG kBandHeight = 47;
constexpr LONG kBands = 23;
constexpr LONG kHeight = kBands * kBandHeight;
static_assert(kWidth * kHeight > 1 << 20);

using Operation = std::function<void(CVQDIB& image, CVQDIB& source)>;

struct Case
{
    std::string name;
    Operation operation;
};

void PrintTo(const Case& testCase, std::ostream* stream)
{
    *stream << testCase.name;
}

void paint(CVQDIB& image, std::span<const ULONG> content)
{
    std::copy(content.begin(), content.end(), image.GetImageBuffer());
}

Pixels doneInBands(const Pixels& content, const Pixels& sourceContent, const Operation& operation)
{
    constexpr std::size_t kBandPixels = std::size_t{kWidth} * kBandHeight;
    CVQDIB band(kWidth, kBandHeight);
    CVQDIB source(kWidth, kBandHeight);
    Pixels result;
    for (std::size_t begin = 0; begin < content.size(); begin += kBandPixels) {
        paint(band, std::span(content).subspan(begin, kBandPixels));
        paint(source, std::span(sourceContent).subspan(begin, kBandPixels));
        operation(band, source);
        result.insert(result.end(), band.GetImageBuffer(), band.GetImageBuffer() + kBandPixels);
    }
    return result;
}

class LargePicture : public testing::TestWithParam<Case>
{
};

TEST_P(LargePicture, ComesOutAsItsBandsDo)
{
    constexpr std::size_t kPixels = std::size_t{kWidth} * kHeight;
    const Pixels content = randomPixels(kPixels, 1);
    Pixels sourceContent = randomPixels(kPixels, 2);
    for (std::size_t i = 0; i < kPixels; i += 2048) // transparent stretches, whole blocks and parts of them
        std::fill_n(sourceContent.begin() + static_cast<std::ptrdiff_t>(i), std::min<std::size_t>(1000, kPixels - i),
                    ULONG{0x00123456});
    CVQDIB image(kWidth, kHeight);
    CVQDIB source(kWidth, kHeight);
    paint(image, content);
    paint(source, sourceContent);
    GetParam().operation(image, source);
    EXPECT_TRUE(shows(image, doneInBands(content, sourceContent, GetParam().operation)));
}

INSTANTIATE_TEST_SUITE_P(
    All, LargePicture,
    testing::Values(Case{"ClearAlpha", [](CVQDIB& image, CVQDIB&) { image.ClearAlpha(BYTE{7}); }},
                    Case{"Saturate", [](CVQDIB& image, CVQDIB&) { image.SaturateAlphaChannel(99); }},
                    Case{"ExchangeRB", [](CVQDIB& image, CVQDIB&) { image.ExchangeRB(); }},
                    Case{"Copy", [](CVQDIB& image, CVQDIB& source) { image.Copy(source); }},
                    Case{"Paste", [](CVQDIB& image, CVQDIB& source) { image.Paste(source); }},
                    Case{"PasteOfItself", [](CVQDIB& image, CVQDIB&) { image.Paste(image); }},
                    Case{"Blend", [](CVQDIB& image, CVQDIB& source) { image.Blend(source); }},
                    Case{"BlendByWeight", [](CVQDIB& image, CVQDIB& source) { image.Blend(source, 77); }},
                    Case{"BlendByMore", [](CVQDIB& image, CVQDIB& source) { image.Blend(source, 1077); }},
                    Case{"BlendColour", [](CVQDIB& image, CVQDIB&) { image.Blend(200, 100, 50, 31); }},
                    Case{"BlendWideColour", [](CVQDIB& image, CVQDIB&) { image.Blend(-200, 1000, 50, 31); }},
                    Case{"Add", [](CVQDIB& image, CVQDIB& source) { image.Add(source); }},
                    Case{"AddToItself", [](CVQDIB& image, CVQDIB&) { image.Add(); }},
                    Case{"Subtract", [](CVQDIB& image, CVQDIB& source) { image.Subtract(source); }},
                    Case{"Multiply", [](CVQDIB& image, CVQDIB& source) { image.Multiply(source); }},
                    Case{"Screen", [](CVQDIB& image, CVQDIB& source) { image.Screen(source); }},
                    Case{"Lighten", [](CVQDIB& image, CVQDIB& source) { image.Lighten(source, 100); }},
                    Case{"Darken", [](CVQDIB& image, CVQDIB& source) { image.Darken(source, 100); }},
                    Case{"Difference", [](CVQDIB& image, CVQDIB& source) { image.Difference(source); }},
                    Case{"DarkenByLevel", [](CVQDIB& image, CVQDIB&) { image.Darken(40); }},
                    Case{"Brighten", [](CVQDIB& image, CVQDIB&) { image.Darken(-40); }},
                    Case{"Invert", [](CVQDIB& image, CVQDIB&) { image.Invert(); }},
                    Case{"ConvertToGray", [](CVQDIB& image, CVQDIB&) { image.ConvertToGray(); }},
                    Case{"Quantize", [](CVQDIB& image, CVQDIB&) { image.Quantize(3); }}),
    [](const auto& test) { return test.param.name; });

/// One byte of the range in the first pixels, one in the last: everything is looked at.
TEST(LargePictureEqualize, FindsTheDarkestAndTheBrightestPixelWhereverTheyAre)
{
    for (const LONG place : {LONG{0}, LONG{31}, LONG{4096}, LONG{70'000}, kWidth * kHeight - 1}) {
        CVQDIB image(kWidth, kHeight);
        image.Clear(RGB(1, 2, 100), BYTE{9});
        image[place] = 0x09020150;                        // blue 80
        image[kWidth * kHeight - 1 - place] = 0x090201B4; // blue 180
        image.Equalize();
        Pixels expected(std::size_t{kWidth} * kHeight, 0x09333333); // 20 * 255 / 100
        expected[static_cast<std::size_t>(place)] = 0x09000000;
        expected[static_cast<std::size_t>(kWidth * kHeight - 1 - place)] = 0x09FFFFFF;
        EXPECT_TRUE(shows(image, expected)) << place;
    }
}

/// From four million pixels on memory is filled past the caches.
TEST(LargePictureClear, FillsEveryPixel)
{
    CVQDIB image(2053, 2049);
    image.Clear(RGB(1, 2, 3), BYTE{4});
    EXPECT_TRUE(shows(image, Pixels(std::size_t{2053} * 2049, 0x04010203)));
    image.Clear(Gdiplus::Color(5, 6, 7, 8));
    EXPECT_TRUE(shows(image, Pixels(std::size_t{2053} * 2049, 0x05060708)));
}

} // namespace
} // namespace vq::test::largePictureTests
