// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/DrawImage.h"

#include "CompositorPictures.h"

#include <array>
#include <limits>

namespace vq::gdiplus {

namespace {

using test::Picture;
using test::Pixels;
using test::shows;

FloatRect whole(const Picture& picture)
{
    return {0, 0, static_cast<float>(picture.width), static_cast<float>(picture.height)};
}

void draw(Picture& canvas, FloatRect target, const Picture& image, FloatRect source, Blend blend,
          Sampling sampling = Sampling::Bilinear)
{
    EXPECT_TRUE(drawImage(canvas.view(), target, image.view(), source, sampling, blend, false));
}

const Picture kFour(4, 1, Pixels{0xFF000000, 0xFF404040, 0xFF808080, 0xFFC0C0C0});

} // namespace

TEST(DrawImage, CopiesPixelForPixelAndAlphaZeroWithoutColour)
{
    Picture canvas(2, 2, 0xFFFFFFFF);
    const Picture image(2, 2, Pixels{0x00000000, 0xFFFF0000, 0x00000000, 0x00FF00FF});

    draw(canvas, {0, 0, 2, 2}, image, {0, 0, 2, 2}, Blend::SourceCopy);

    EXPECT_TRUE(shows(canvas, {0, 0xFFFF0000, 0, 0}));
}

TEST(DrawImage, KeepsEveryStraightColourThatIsVisible)
{
    Picture canvas(64, 64, 0x12345678);
    Picture image(64, 64, test::randomPixels(64 * 64, 1));
    for (Pixel& pixel : image.pixels)
        pixel |= 0x01000000;

    draw(canvas, whole(canvas), image, whole(image), Blend::SourceCopy);

    EXPECT_TRUE(shows(canvas, image.pixels));
}

TEST(DrawImage, TakesAPartOfTheImage)
{
    Picture canvas(5, 5);
    const Picture image(3, 3, test::opaquePixels(9, 2));

    draw(canvas, {1, 1, 2, 2}, image, {1, 1, 2, 2}, Blend::SourceOver);

    Picture expected(5, 5);
    for (int y = 1; y < 3; ++y)
        for (int x = 1; x < 3; ++x)
            expected.at(x, y) = image.at(x, y);
    EXPECT_TRUE(shows(canvas, expected.pixels));
}

TEST(DrawImage, BlendsPixelForPixel)
{
    Picture canvas(3, 1, Pixels{0xFF000000, 0x00000000, 0x40123456});
    const Picture image(3, 1, Pixels{0x80FF0000, 0x80FF0000, 0x00FF00FF});

    draw(canvas, {0, 0, 3, 1}, image, {0, 0, 3, 1}, Blend::SourceOver);

    EXPECT_TRUE(shows(canvas, {0xFF800000, 0x80FF0000, 0x40123456}));
}

TEST(DrawImage, BlendsInLinearLight)
{
    Picture canvas(1, 1, 0xA0000000);
    const Picture image(1, 1, 0xA0FFFFFF);

    draw(canvas, {0, 0, 1, 1}, image, {0, 0, 1, 1}, Blend::SourceOverLinearLight);

    EXPECT_TRUE(shows(canvas, {0xDBDEDEDE}, 1));
}

struct Enlargement
{
    float scale;
    std::array<Pixel, 8> greys; // of the canvas, 0 .. 7
};

class DrawImageScaled : public testing::TestWithParam<Enlargement>
{
};

/// Two pixels 80 CC on 40, drawn at x = 1 under a scale: what Windows gives, within 2 levels.
TEST_P(DrawImageScaled, ShiftsByHalfAPixelAndFadesOut)
{
    const float scale = GetParam().scale;
    Picture canvas(8, 1, 0xFF404040);
    const Picture image(2, 1, Pixels{0xFF808080, 0xFFCCCCCC});

    draw(canvas, {scale, 0, 2 * scale, scale}, image, whole(image), Blend::SourceOver);

    Pixels expected;
    for (const Pixel grey : GetParam().greys)
        expected.push_back(0xFF000000 | grey * 0x010101);
    EXPECT_TRUE(shows(canvas, expected, 2));
}

INSTANTIATE_TEST_SUITE_P(Scales, DrawImageScaled,
                         testing::Values(Enlargement{0.8F, {0x40, 0x93, 0x86, 0x40, 0x40, 0x40, 0x40, 0x40}},
                                         Enlargement{1.2F, {0x40, 0x40, 0xB2, 0x87, 0x40, 0x40, 0x40, 0x40}},
                                         Enlargement{1.5F, {0x40, 0x40, 0x99, 0xCC, 0x6F, 0x40, 0x40, 0x40}},
                                         Enlargement{1.8F, {0x40, 0x40, 0x88, 0xB2, 0xAD, 0x5F, 0x40, 0x40}},
                                         Enlargement{2.0F, {0x40, 0x40, 0x80, 0xA6, 0xCC, 0x86, 0x40, 0x40}},
                                         Enlargement{2.5F, {0x40, 0x40, 0x40, 0x8F, 0xAD, 0xCC, 0x95, 0x5C}}));

TEST(DrawImage, FadesOutOverNothingInBothModes)
{
    const Picture image(2, 1, Pixels{0xFF808080, 0xFFCCCCCC});
    for (const Blend blend : {Blend::SourceCopy, Blend::SourceOver, Blend::SourceOverLinearLight}) {
        Picture canvas(7, 1);
        draw(canvas, {2, 0, 4, 1}, image, whole(image), blend);
        EXPECT_TRUE(shows(canvas, {0, 0, 0xFF808080, 0xFFA6A6A6, 0xFFCCCCCC, 0x7FCCCCCC, 0}));
    }
}

TEST(DrawImage, DoesNotTintFromTransparentNeighbours)
{
    Picture canvas(4, 1);
    const Picture image(2, 1, Pixels{0xFFFF0000, 0x0000FF00});

    draw(canvas, {0, 0, 4, 1}, image, whole(image), Blend::SourceCopy);

    EXPECT_TRUE(shows(canvas, {0xFFFF0000, 0x7FFF0000, 0, 0}));
}

TEST(DrawImage, PicksEverySecondPixelAtHalfSize)
{
    Picture canvas(2, 2);
    const Picture image(4, 4, test::opaquePixels(16, 4));

    draw(canvas, whole(canvas), image, whole(image), Blend::SourceCopy);

    EXPECT_TRUE(shows(canvas, {image.at(0, 0), image.at(2, 0), image.at(0, 2), image.at(2, 2)}));
}

TEST(DrawImage, NearestTakesTheRoundedPositionAndNothingBeyondTheLastPixel)
{
    Picture over(10, 1, 0xFF223344);
    Picture copy(10, 1, 0x11223344);

    draw(over, {1, 0, 8, 1}, kFour, whole(kFour), Blend::SourceOver, Sampling::Nearest);
    draw(copy, {1, 0, 8, 1}, kFour, whole(kFour), Blend::SourceCopy, Sampling::Nearest);

    EXPECT_TRUE(shows(over, {0xFF223344, 0xFF000000, 0xFF404040, 0xFF404040, 0xFF808080, 0xFF808080, 0xFFC0C0C0,
                             0xFFC0C0C0, 0xFF223344, 0xFF223344}));
    EXPECT_TRUE(shows(copy, {0x11223344, 0xFF000000, 0xFF404040, 0xFF404040, 0xFF808080, 0xFF808080, 0xFFC0C0C0,
                             0xFFC0C0C0, 0x00000000, 0x11223344}));
}

TEST(DrawImage, NearestWithHalfPixelOffsetRepeatsPixels)
{
    Picture canvas(10, 1, 0x11223344);

    drawImage(canvas.view(), {1, 0, 8, 1}, kFour.view(), whole(kFour), Sampling::Nearest, Blend::SourceCopy, true);

    EXPECT_TRUE(shows(canvas, {0x11223344, 0xFF000000, 0xFF000000, 0xFF404040, 0xFF404040, 0xFF808080, 0xFF808080,
                               0xFFC0C0C0, 0xFFC0C0C0, 0x11223344}));
}

TEST(DrawImage, BilinearWithHalfPixelOffsetFadesOnBothSidesAlike)
{
    Picture canvas(6, 2, 0x11223344);
    const Picture image(2, 1, Pixels{0xFF808080, 0xFF808080});

    drawImage(canvas.view(), {1, 0, 4, 1}, image.view(), whole(image), Sampling::Bilinear, Blend::SourceCopy, true);

    const Pixel edge = 0xBF808080; // three quarters of 255
    EXPECT_TRUE(shows(canvas, {0x11223344, edge, 0xFF808080, 0xFF808080, edge, 0x11223344, 0x11223344, 0x11223344,
                               0x11223344, 0x11223344, 0x11223344, 0x11223344}));
}

TEST(DrawImage, ReachesPixelsBesideTheSourceRectangleButNotBesideTheImage)
{
    Picture canvas(5, 2);

    draw(canvas, {0, 0, 4, 2}, kFour, {1, 0, 2, 1}, Blend::SourceCopy);

    EXPECT_TRUE(shows(canvas, {0xFF404040, 0xFF606060, 0xFF808080, 0xFFA0A0A0, 0, //
                               0x7F404040, 0x7F606060, 0x7F808080, 0x7FA0A0A0, 0}));
}

TEST(DrawImage, TakesWhatIsOutsideTheImageAsTransparent)
{
    Picture left(10, 1, 0x11223344);
    Picture right(6, 1, 0x11223344);
    Picture over(6, 1, 0xFF223344);

    draw(left, {1, 0, 8, 1}, kFour, {-1, 0, 4, 1}, Blend::SourceCopy);
    draw(right, {1, 0, 4, 1}, kFour, {2, 0, 4, 1}, Blend::SourceCopy);
    draw(over, {1, 0, 4, 1}, kFour, {2, 0, 4, 1}, Blend::SourceOver);

    EXPECT_TRUE(shows(left, {0x11223344, 0, 0x7F000000, 0xFF000000, 0xFF202020, 0xFF404040, 0xFF606060, 0xFF808080,
                             0xFFA0A0A0, 0x11223344}));
    EXPECT_TRUE(shows(right, {0x11223344, 0xFF808080, 0xFFC0C0C0, 0, 0, 0x11223344}));
    EXPECT_TRUE(shows(over, {0xFF223344, 0xFF808080, 0xFFC0C0C0, 0xFF223344, 0xFF223344, 0xFF223344}));
}

TEST(DrawImage, MirrorsForANegativeWidth)
{
    Picture target(6, 1, 0x11223344);
    Picture source(6, 1, 0x11223344);
    const Pixels mirrored{0x11223344, 0, 0xFFC0C0C0, 0xFF808080, 0xFF404040, 0x11223344};

    draw(target, {5, 0, -4, 1}, kFour, {0, 0, 4, 1}, Blend::SourceCopy);
    draw(source, {1, 0, 4, 1}, kFour, {4, 0, -4, 1}, Blend::SourceCopy);

    EXPECT_TRUE(shows(target, mirrored));
    EXPECT_TRUE(shows(source, mirrored));
}

TEST(DrawImage, ClipsToTheCanvasOnEverySide)
{
    Picture canvas(4, 4);
    const Picture image(8, 8, test::opaquePixels(64, 5));

    draw(canvas, {-2, -3, 8, 8}, image, whole(image), Blend::SourceOver);

    for (int y = 0; y < 4; ++y)
        for (int x = 0; x < 4; ++x)
            ASSERT_EQ(canvas.at(x, y), image.at(x + 2, y + 3));
}

TEST(DrawImage, OntoItselfInItsPlaceBlendsEachPixelWithItself)
{
    Picture picture(2, 1, Pixels{0x80FF0000, 0xFF123456});

    drawImage(picture.view(), {0, 0, 2, 1}, picture.view(), {0, 0, 2, 1}, Sampling::Bilinear, Blend::SourceOver, false);

    EXPECT_TRUE(shows(picture, {0xC0FF0000, 0xFF123456}));
}

TEST(DrawImage, DrawsNothingForRectanglesWithoutExtentOrNumber)
{
    constexpr float kNan = std::numeric_limits<float>::quiet_NaN();
    constexpr float kInfinity = std::numeric_limits<float>::infinity();
    const FloatRect good{0, 0, 4, 4};
    const Picture image(4, 4, test::opaquePixels(16, 6));
    Picture canvas(4, 4, 0x11223344);
    for (const FloatRect bad :
         {FloatRect{0, 0, 0, 4}, FloatRect{0, 0, 4, 0}, FloatRect{kNan, 0, 4, 4}, FloatRect{0, kInfinity, 4, 4},
          FloatRect{0, 0, -kInfinity, 4}, FloatRect{0, 0, 4, kNan}})
        for (const Sampling sampling : {Sampling::Nearest, Sampling::Bilinear}) {
            draw(canvas, bad, image, good, Blend::SourceCopy, sampling);
            draw(canvas, good, image, bad, Blend::SourceCopy, sampling);
        }
    EXPECT_TRUE(shows(canvas, Pixels(16, 0x11223344)));
}

TEST(DrawImage, SurvivesRectanglesOfAnySize)
{
    constexpr float kHuge = std::numeric_limits<float>::max();
    constexpr float kTiny = std::numeric_limits<float>::denorm_min();
    const Picture image(4, 4, 0xFF4080C0);
    const std::array<float, 11> numbers{-kHuge, -3e9F, -5, -kTiny, 0, kTiny, 0.25F, 3, 3e9F, kHuge, 16777216};
    for (const float position : numbers)
        for (const float length : numbers)
            for (const float other : numbers)
                for (const Sampling sampling : {Sampling::Nearest, Sampling::Bilinear})
                    for (const bool half : {false, true}) {
                        Picture canvas(5, 5);
                        drawImage(canvas.view(), {position, position, length, length}, image.view(),
                                  {other, other, length, position}, sampling, Blend::SourceOver, half);
                        for (const Pixel pixel : canvas.pixels)
                            ASSERT_TRUE(pixel == 0 || test::distance(pixel | kAlphaBits, 0xFF4080C0) <= 1);
                    }
}

TEST(DrawImage, DrawsNothingWithAnEmptyPicture)
{
    Picture canvas(2, 2, 0x11223344);
    const ConstPixelView nothing(nullptr, 0, 0, 0);

    EXPECT_TRUE(
        drawImage(canvas.view(), {0, 0, 2, 2}, nothing, {0, 0, 2, 2}, Sampling::Bilinear, Blend::SourceCopy, false));
    EXPECT_TRUE(drawImage({nullptr, 0, 0, 0}, {0, 0, 2, 2}, canvas.view(), {0, 0, 2, 2}, Sampling::Bilinear,
                          Blend::SourceCopy, false));

    EXPECT_TRUE(shows(canvas, Pixels(4, 0x11223344)));
}

TEST(DrawImage, FollowsRowsThatRunUpwards)
{
    Picture canvas(2, 2);
    Picture image(2, 2, Pixels{0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004});
    PixelView upwards = image.view();
    upwards.top += upwards.stride;
    upwards.stride = -upwards.stride;

    drawImage(canvas.view(), {0, 0, 2, 2}, upwards, {0, 0, 2, 2}, Sampling::Bilinear, Blend::SourceCopy, false);

    EXPECT_TRUE(shows(canvas, {0xFF000003, 0xFF000004, 0xFF000001, 0xFF000002}));
}

} // namespace vq::gdiplus
