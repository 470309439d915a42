// SPDX-License-Identifier: MIT
// Scaled transfers are GDI+ calls: the same calls, made by hand on a twin, must give the same pixels.
#include "Trial.h"
#include "support/Pictures.h"

namespace vq::test {
namespace {

using reference::Dice;

struct Place
{
    LONG x, y, w, h;
};

void drawByHand(CVQDIB& image, CVQDIB& source, Gdiplus::CompositingMode mode, const Gdiplus::RectF& place)
{
    Gdiplus::Graphics& graphics = *image.GetGraphics();
    graphics.SetCompositingMode(mode);
    graphics.SetCompositingQuality(Gdiplus::CompositingQualityHighQuality);
    graphics.DrawImage(source.GetBitmap(), place);
    graphics.SetCompositingQuality(Gdiplus::CompositingQualityDefault);
    graphics.SetCompositingMode(Gdiplus::CompositingModeSourceOver);
}

Gdiplus::RectF wide(const Place& place)
{
    return {static_cast<Gdiplus::REAL>(place.x), static_cast<Gdiplus::REAL>(place.y),
            static_cast<Gdiplus::REAL>(place.w), static_cast<Gdiplus::REAL>(place.h)};
}

/// Compares a member with the calls by hand at places in, across and beside the image.
template <typename Member>
void expectAsByHand(Gdiplus::CompositingMode mode, Member member)
{
    Dice dice(1);
    for (std::uint32_t round = 0; round < 60; ++round) {
        CVQDIB image(dice.between(1, 40), dice.between(1, 30));
        CVQDIB source(dice.between(1, 20), dice.between(1, 20));
        fillRandom(image, round);
        fillRandom(source, round + 1000);
        const Pixels sourceBefore = pixels(source);
        CVQDIB twin(image);
        twin = image;
        const Place place{dice.between(-10, 45), dice.between(-10, 35), dice.between(0, 60), dice.between(0, 60)};

        member(image, source, place);
        drawByHand(twin, source, mode, wide(place));

        ASSERT_TRUE(shows(image, pixels(twin))) << place.x << ' ' << place.y << ' ' << place.w << " x " << place.h;
        ASSERT_TRUE(shows(source, sourceBefore));
    }
}

TEST(CVQDIBCopyWithScale, DrawsTheWholeSourceIntoTheRectangle)
{
    expectAsByHand(Gdiplus::CompositingModeSourceCopy,
                   [](CVQDIB& i, CVQDIB& s, const Place& p) { i.CopyWithScale(&s, p.x, p.y, p.w, p.h); });
}

TEST(CVQDIBPasteWithScale, BlendsTheWholeSourceIntoTheRectangle)
{
    expectAsByHand(Gdiplus::CompositingModeSourceOver,
                   [](CVQDIB& i, CVQDIB& s, const Place& p) { i.PasteWithScale(&s, p.x, p.y, p.w, p.h); });
}

TEST(CVQDIBPasteWithScaleFloat, BlendsAsTheIntegerFormAtWholeCoordinates)
{
    expectAsByHand(Gdiplus::CompositingModeSourceOver, [](CVQDIB& i, CVQDIB& s, const Place& p) {
        const Gdiplus::RectF r = wide(p);
        i.PasteWithScaleFloat(&s, r.X, r.Y, r.Width, r.Height);
    });
}

TEST(CVQDIBPasteWithScaleFloat, TakesFractionsOfPixels)
{
    Dice dice(2);
    const auto quarter = [&](LONG from, LONG to) { return static_cast<float>(dice.between(4 * from, 4 * to)) / 4; };
    for (std::uint32_t round = 0; round < 40; ++round) {
        CVQDIB image(24, 20);
        CVQDIB source(7, 5);
        fillRandom(image, round);
        fillRandom(source, round + 1000);
        CVQDIB twin(image);
        twin = image;
        const Gdiplus::RectF place(quarter(-5, 20), quarter(-5, 16), quarter(0, 30), quarter(0, 30));

        image.PasteWithScaleFloat(&source, place.X, place.Y, place.Width, place.Height);
        drawByHand(twin, source, Gdiplus::CompositingModeSourceOver, place);

        ASSERT_TRUE(shows(image, pixels(twin))) << round;
    }
}

TEST(ScaledTransfers, WithoutARectangleFillTheImage)
{
    CVQDIB source(5, 4);
    fillRandom(source, 1);
    CVQDIB whole(11, 9);
    CVQDIB withRectangle(11, 9);
    fillRandom(whole, 2);
    fillRandom(withRectangle, 2);

    whole.CopyWithScale(&source);
    withRectangle.CopyWithScale(&source, 0, 0, 11, 9);
    EXPECT_TRUE(shows(whole, pixels(withRectangle)));

    whole.PasteWithScale(&source);
    withRectangle.PasteWithScale(&source, 0, 0, 11, 9);
    EXPECT_TRUE(shows(whole, pixels(withRectangle)));
}

TEST(ScaledTransfers, AtTheSourcesOwnSizeACopyIsExact)
{
    CVQDIB image(13, 7);
    CVQDIB source(13, 7);
    fillRandom(image, 1);
    paint(source, sturdyPixels(13 * 7, 2));

    image.CopyWithScale(&source);

    EXPECT_TRUE(shows(image, pixels(source)));
}

TEST(ScaledTransfers, AtTheSourcesOwnSizeOpaquePixelsPasteExactly)
{
    CVQDIB image(6, 5);
    CVQDIB source(3, 2);
    fillRandom(image, 1);
    fillRandom(source, 2);
    source.ClearAlpha(BYTE{255});
    CVQDIB expected(image);
    expected = image;
    expected.Copy(source, 2, 1);

    image.PasteWithScale(&source, 2, 1, 3, 2);

    EXPECT_TRUE(shows(image, pixels(expected)));
}

/// Sampling starts at the first source pixel's centre and fades out behind the last.
TEST(ScaledTransfers, InterpolateBetweenPixels)
{
    CVQDIB image(7, 1);
    CVQDIB source(2, 1);
    paint(source, {0xFF808080, 0xFFCCCCCC});

    image.CopyWithScale(&source, 2, 0, 4, 1);

    EXPECT_TRUE(shows(image, {0, 0, 0xFF808080, 0xFFA6A6A6, 0xFFCCCCCC, 0x7FCCCCCC, 0}));
}

TEST(ScaledTransfers, UseTheInterpolationThatTheGraphicsHas)
{
    CVQDIB image(4, 1);
    CVQDIB source(2, 1);
    paint(source, {0xFF102030, 0xFFE0E0E0});
    image.GetGraphics()->SetInterpolationMode(Gdiplus::InterpolationModeNearestNeighbor);

    image.CopyWithScale(&source);

    EXPECT_EQ(image.GetGraphics()->GetInterpolationMode(), Gdiplus::InterpolationModeNearestNeighbor);
    EXPECT_EQ(image(0, 0), 0xFF102030u);
    EXPECT_TRUE(image(1, 0) == 0xFF102030u || image(1, 0) == 0xFFE0E0E0u);
}

TEST(ScaledTransfers, LeaveTheGraphicsInItsDefaults)
{
    CVQDIB image(4, 4);
    CVQDIB source(2, 2);
    Gdiplus::Graphics& graphics = *image.GetGraphics();
    const auto expectDefaults = [&] {
        EXPECT_EQ(graphics.GetCompositingMode(), Gdiplus::CompositingModeSourceOver);
        EXPECT_EQ(graphics.GetCompositingQuality(), Gdiplus::CompositingQualityDefault);
    };
    for (CVQDIB* from : {&source, static_cast<CVQDIB*>(nullptr)}) {
        image.CopyWithScale(from);
        expectDefaults();
        image.PasteWithScale(from);
        expectDefaults();
        image.PasteWithScaleFloat(from, 0, 0, 1, 1);
        expectDefaults();
    }
}

} // namespace
} // namespace vq::test
