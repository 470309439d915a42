// SPDX-License-Identifier: MIT
/// @file
/// The sampler against its rule in double precision, pixel by pixel, for many sizes and positions.
#include "Platform/gdiplus/compositor/DrawImage.h"

#include "CompositorPictures.h"

#include <array>
#include <cmath>

namespace vq::gdiplus {

namespace {

using test::Picture;
using test::Pixels;

struct Premultiplied
{
    double alpha = 0;                // 0 .. 255
    std::array<double, 3> colours{}; // 0 .. 255 * 255
};

Premultiplied sampleAt(const Picture& image, int x, int y)
{
    Premultiplied sample;
    if (x < 0 || x >= image.width || y < 0 || y >= image.height)
        return sample;
    const Pixel pixel = image.at(x, y);
    sample.alpha = test::channelOf(pixel, 24);
    for (std::size_t i = 0; i < 3; ++i)
        sample.colours[i] = sample.alpha * test::channelOf(pixel, static_cast<int>(8 * i));
    return sample;
}

/// The four pixels around (u, v), each weighted by what the others leave.
Premultiplied interpolated(const Picture& image, double u, double v)
{
    const int left = static_cast<int>(std::floor(u));
    const int top = static_cast<int>(std::floor(v));
    Premultiplied sum;
    for (int y = top; y <= top + 1; ++y)
        for (int x = left; x <= left + 1; ++x) {
            const double share = (1 - std::abs(u - x)) * (1 - std::abs(v - y));
            const Premultiplied sample = sampleAt(image, x, y);
            sum.alpha += share * sample.alpha;
            for (std::size_t i = 0; i < 3; ++i)
                sum.colours[i] += share * sample.colours[i];
        }
    return sum;
}

bool isNear(Pixel pixel, const Premultiplied& exact, double tolerance)
{
    if (std::abs(test::channelOf(pixel, 24) - exact.alpha) > tolerance)
        return false;
    if (pixel >> 24 == 0)
        return pixel == 0;
    for (std::size_t i = 0; i < 3; ++i)
        if (std::abs(test::channelOf(pixel, static_cast<int>(8 * i)) - exact.colours[i] / exact.alpha) > tolerance)
            return false;
    return true;
}

/// What lies over an opaque pixel, in real values.
Premultiplied over(Pixel destination, const Premultiplied& source)
{
    Premultiplied result;
    result.alpha = 255;
    for (std::size_t i = 0; i < 3; ++i)
        result.colours[i] =
            source.colours[i] + test::channelOf(destination, static_cast<int>(8 * i)) * (255 - source.alpha);
    return result;
}

struct Drawing
{
    FloatRect target;
    FloatRect source;
    bool halfPixelOffset;
};

/// Draws and compares: every pixel of the target with the rule, every other one with what was there.
void expectFollowsTheRule(const Picture& image, const Drawing& drawing, Blend blend)
{
    const double centre = drawing.halfPixelOffset ? 0.5 : 0;
    const FloatRect& t = drawing.target;
    const FloatRect& s = drawing.source;
    const Picture before(97, 33, test::opaquePixels(97 * 33, 77));
    Picture canvas = before;

    ASSERT_TRUE(drawImage(canvas.view(), t, image.view(), s, Sampling::Bilinear, blend, drawing.halfPixelOffset));

    for (int y = 0; y < canvas.height; ++y)
        for (int x = 0; x < canvas.width; ++x) {
            const double column = x + centre - double{t.x};
            const double row = y + centre - double{t.y};
            const bool isCovered = column >= 0 && column < double{t.width} && row >= 0 && row < double{t.height};
            if (!isCovered) {
                ASSERT_EQ(canvas.at(x, y), before.at(x, y)) << x << ", " << y;
                continue;
            }
            const double u = double{s.x} + column * double{s.width} / double{t.width} - centre;
            const double v = double{s.y} + row * double{s.height} / double{t.height} - centre;
            const Premultiplied exact = interpolated(image, u, v);
            if (blend == Blend::SourceCopy)
                ASSERT_TRUE(isNear(canvas.at(x, y), exact, 1))
                    << x << ", " << y << ": " << std::hex << canvas.at(x, y) << ", alpha " << exact.alpha;
            else // of a source that has been rounded to bytes
                ASSERT_TRUE(isNear(canvas.at(x, y), over(before.at(x, y), exact), 1.6)) << x << ", " << y;
        }
}

std::vector<Drawing> drawings(const Picture& image)
{
    const FloatRect all{0, 0, static_cast<float>(image.width), static_cast<float>(image.height)};
    std::vector<Drawing> result{
        {{0, 0, 97, 33}, all, false},
        {{0, 0, 97, 33}, all, true},
        {{0, 0, 2 * all.width, 2 * all.height}, all, false},
        {{5, 3, all.width * 1.5F, all.height * 0.7F}, all, false},
        {{-20, -10, 300, 200}, all, false},
        {{4, 2, all.width, all.height}, {-3, -2, all.width + 5, all.height + 7}, false},
    };
    std::mt19937 generator(9);
    std::uniform_real_distribution<float> position(-30, 60);
    std::uniform_real_distribution<float> length(0.5F, 120);
    for (int i = 0; i < 40; ++i)
        result.push_back(
            {{position(generator), position(generator) / 3, length(generator), length(generator) / 2},
             {position(generator) / 8, position(generator) / 8, length(generator) / 3, length(generator) / 4},
             i % 4 == 0});
    return result;
}

void expectFollowsTheRuleEverywhere(const Picture& image)
{
    for (const Drawing& drawing : drawings(image))
        for (const Blend blend : {Blend::SourceCopy, Blend::SourceOver}) {
            SCOPED_TRACE(testing::Message()
                         << "target " << drawing.target.x << ' ' << drawing.target.y << ' ' << drawing.target.width
                         << ' ' << drawing.target.height << ", source " << drawing.source.x << ' ' << drawing.source.y
                         << ' ' << drawing.source.width << ' ' << drawing.source.height << ", half "
                         << drawing.halfPixelOffset);
            expectFollowsTheRule(image, drawing, blend);
        }
}

} // namespace

TEST(BilinearSampling, IsWithinOneOfTheRuleForOpaquePictures)
{
    expectFollowsTheRuleEverywhere(Picture(31, 17, test::opaquePixels(31 * 17, 1)));
}

TEST(BilinearSampling, IsWithinOneOfTheRuleForTransparentPictures)
{
    expectFollowsTheRuleEverywhere(Picture(31, 17, test::overlayPixels(31 * 17, 2)));
}

TEST(BilinearSampling, IsWithinOneOfTheRuleForNearlyInvisiblePictures)
{
    Picture image(31, 17, test::randomPixels(31 * 17, 3));
    for (Pixel& pixel : image.pixels)
        pixel &= 0x03FFFFFF;
    expectFollowsTheRuleEverywhere(image);
}

TEST(BilinearSampling, IsWithinOneOfTheRuleForTheSmallestPictures)
{
    expectFollowsTheRuleEverywhere(Picture(1, 1, Pixels{0xFF4080C0}));
    expectFollowsTheRuleEverywhere(Picture(2, 1, Pixels{0xFF4080C0, 0x80FF0000}));
    expectFollowsTheRuleEverywhere(Picture(1, 2, Pixels{0xFF4080C0, 0xFFFF0000}));
}

TEST(BilinearSampling, KeepsConstantPicturesConstantUpToTheFadingEdge)
{
    for (const Pixel colour : {0xFF000000U, 0xFFFFFFFFU, 0xFF010203U, 0xFF7F80FEU, 0x80FF7F01U, 0x01FFFE03U})
        for (const int size : {53, 61, 97, 150}) {
            const Picture image(31, 17, colour);
            Picture canvas(size, size);
            const auto length = static_cast<float>(size);
            drawImage(canvas.view(), {0, 0, length, length}, image.view(), {0, 0, 31, 17}, Sampling::Bilinear,
                      Blend::SourceCopy, false);
            for (int y = 0; y * 17 <= 16 * size; ++y)
                for (int x = 0; x * 31 <= 30 * size; ++x)
                    ASSERT_EQ(canvas.at(x, y), colour) << size << ": " << x << ", " << y;
        }
}

TEST(BilinearSampling, IsExactOnPixelCentres)
{
    const Picture image(31, 17, test::opaquePixels(31 * 17, 4));
    Picture canvas(93, 68);
    drawImage(canvas.view(), {0, 0, 93, 68}, image.view(), {0, 0, 31, 17}, Sampling::Bilinear, Blend::SourceCopy,
              false);
    for (int y = 0; y < 17; ++y)
        for (int x = 0; x < 31; ++x)
            ASSERT_EQ(canvas.at(3 * x, 4 * y), image.at(x, y)) << x << ", " << y;
}

TEST(BilinearSampling, DoesNotDependOnWhereTheCanvasIsCut)
{
    const Picture image(300, 5, test::overlayPixels(1500, 6));
    Picture all(1200, 9);
    drawImage(all.view(), {0, 0, 1200, 9}, image.view(), {0, 0, 300, 5}, Sampling::Bilinear, Blend::SourceCopy, false);
    for (const int cut : {1, 63, 64, 65, 511, 700, 1199}) {
        Picture right(1200 - cut, 9);
        drawImage(right.view(), {static_cast<float>(-cut), 0, 1200, 9}, image.view(), {0, 0, 300, 5},
                  Sampling::Bilinear, Blend::SourceCopy, false);
        for (int y = 0; y < 9; ++y)
            for (int x = 0; x < right.width; ++x)
                ASSERT_EQ(right.at(x, y), all.at(x + cut, y)) << cut << ": " << x << ", " << y;
    }
}

} // namespace vq::gdiplus
