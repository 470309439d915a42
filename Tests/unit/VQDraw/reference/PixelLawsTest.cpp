// SPDX-License-Identifier: MIT
// What must hold whatever the pixels are. Nothing here knows how a routine computes.
#include "support/Pictures.h"

#include <utility>

namespace vq::test {
namespace {

constexpr ULONG kColours = 0x00FFFFFF;
constexpr ULONG kAlpha = 0xFF000000;

/// Three images of one size, over several sizes, with random content.
template <typename Law>
void forSeveralSizes(Law law)
{
    std::uint32_t seed = 1;
    for (const auto& [width, height] :
         {std::pair{1, 1}, {2, 2}, {3, 3}, {7, 5}, {16, 4}, {17, 9}, {40, 31}, {65, 8}, {131, 6}}) {
        CVQDIB a(width, height);
        CVQDIB b(width, height);
        CVQDIB c(width, height);
        fillRandom(a, seed++);
        fillRandom(b, seed++);
        fillRandom(c, seed++);
        law(a, b, c);
        if (testing::Test::HasFailure()) {
            ADD_FAILURE() << "at " << width << " x " << height;
            return;
        }
    }
}

void fillWith(CVQDIB& image, ULONG pixel)
{
    paint(image, Pixels(static_cast<std::size_t>(image.GetSize()), pixel));
}

Pixels masked(CVQDIB& image, ULONG mask)
{
    Pixels result = pixels(image);
    for (ULONG& pixel : result)
        pixel &= mask;
    return result;
}

/// Both images hold the first one's pixels; `one` is applied to the first and `other` to the second.
template <typename One, typename Other>
void expectSame(CVQDIB& a, CVQDIB& b, One one, Other other)
{
    b = a;
    one(a);
    other(b);
    EXPECT_TRUE(shows(a, pixels(b)));
}

TEST(PixelLaws, InvertingTwiceRestoresTheImage)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB&, CVQDIB&) {
        const Pixels before = pixels(a);
        a.Invert();
        EXPECT_NE(masked(a, kColours), Pixels(before.size()));
        a.Invert();
        EXPECT_TRUE(shows(a, before));
    });
}

TEST(PixelLaws, NothingComesOfAddingSubtractingOrDifferingFromZero)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& zero, CVQDIB&) {
        fillWith(zero, 0);
        const Pixels before = pixels(a);
        a.Add(zero);
        a.Subtract(zero);
        a.Difference(zero);
        for (const LONG level : {LONG{0}, LONG{100}, LONG{255}})
            a.Lighten(zero, level);
        EXPECT_TRUE(shows(a, before));
    });
}

TEST(PixelLaws, AddingAndThenSubtractingClampsBelowTheOriginal)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB&) {
        const Pixels before = pixels(a);
        a.Subtract(b);
        a.Add(b); // per channel the larger of both
        const Pixels after = pixels(a);
        for (std::size_t i = 0; i < after.size(); ++i)
            for (unsigned shift = 0; shift < 32; shift += 8)
                EXPECT_EQ(after[i] >> shift & 0xFF, std::max(before[i] >> shift & 0xFF, pixels(b)[i] >> shift & 0xFF));
    });
}

TEST(PixelLaws, AnImageLessItselfIsZeroAndItsDifferenceIsBlack)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB&) {
        const Pixels alpha = masked(a, kAlpha);
        b = a;
        b.Subtract(b);
        EXPECT_TRUE(shows(b, Pixels(alpha.size(), 0)));
        a.Difference(a);
        EXPECT_TRUE(shows(a, alpha));
    });
}

TEST(PixelLaws, TheOrderOfTwoImagesDoesNotMatterToTheColours)
{
    using TwoImages = void (*)(CVQDIB&, CVQDIB&);
    const TwoImages operations[] = {
        [](CVQDIB& d, CVQDIB& s) { d.Add(s); },          [](CVQDIB& d, CVQDIB& s) { d.Multiply(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Screen(s); },       [](CVQDIB& d, CVQDIB& s) { d.Difference(s); },
        [](CVQDIB& d, CVQDIB& s) { d.Lighten(s, 255); }, [](CVQDIB& d, CVQDIB& s) { d.Darken(s, 255); },
    };
    for (const TwoImages operation : operations)
        forSeveralSizes([operation](CVQDIB& a, CVQDIB& b, CVQDIB& c) {
            c = a;
            operation(a, b);
            operation(b, c);
            EXPECT_EQ(masked(a, kColours), masked(b, kColours));
        });
}

TEST(PixelLaws, ScreeningIsMultiplyingTheNegatives)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB& c) {
        c = a;
        a.Screen(b);
        c.Invert();
        b.Invert();
        c.Multiply(b);
        c.Invert();
        EXPECT_EQ(masked(a, kColours), masked(c, kColours));
    });
}

TEST(PixelLaws, MinimumMaximumAndDifferenceAgree)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB& c) {
        c = a;
        CVQDIB distance(a);
        distance = a;
        a.Lighten(b, 255);
        c.Darken(b, 255);
        distance.Difference(b);
        a.Subtract(c);
        EXPECT_EQ(masked(a, kColours), masked(distance, kColours));
    });
}

TEST(PixelLaws, MultiplyingByZeroClears)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& zero, CVQDIB&) {
        fillWith(zero, 0);
        a.Multiply(zero);
        EXPECT_TRUE(shows(a, pixels(zero)));
    });
}

TEST(PixelLaws, DarkeningStepByStepIsDarkeningAtOnce)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB&) {
        expectSame(
            a, b,
            [](CVQDIB& i) {
                i.Darken(LONG{30});
                i.Darken(LONG{41});
            },
            [](CVQDIB& i) { i.Darken(LONG{71}); });
    });
}

TEST(PixelLaws, WhatIsQuantizedOrEqualizedOrAMosaicStaysSo)
{
    using OneImage = void (*)(CVQDIB&);
    const OneImage operations[] = {
        [](CVQDIB& i) { i.Quantize(3); },
        [](CVQDIB& i) { i.Equalize(); },
        [](CVQDIB& i) { i.Mosaic(3); },
        [](CVQDIB& i) { i.ConvertToGray(CRect(0, 0, 1000, 1000)); },
    };
    for (const OneImage operation : operations)
        forSeveralSizes([operation](CVQDIB& a, CVQDIB&, CVQDIB&) {
            operation(a);
            const Pixels once = pixels(a);
            operation(a);
            EXPECT_TRUE(shows(a, once));
        });
}

TEST(PixelLaws, TransparentPixelsPasteNothing)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB&) {
        const Pixels before = pixels(a);
        b.ClearAlpha(BYTE{0});
        a.Paste(b);
        a.Blend(b);
        a.Paste(b, -1, 2);
        EXPECT_TRUE(shows(a, before));
    });
}

TEST(PixelLaws, WeightZeroBlendsNothing)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB&) {
        const Pixels before = pixels(a);
        a.Blend(b, LONG{0});
        a.Blend(LONG{1}, LONG{2}, LONG{3}, LONG{0});
        a.Blend(COLORREF{0x123456}, LONG{0});
        EXPECT_TRUE(shows(a, before));
    });
}

TEST(PixelLaws, BlendingIsPastingTheWhole)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB& source) {
        expectSame(
            a, b, [&](CVQDIB& i) { i.Blend(source); }, [&](CVQDIB& i) { i.Paste(source); });
    });
}

TEST(PixelLaws, BlendingAnImageOfOneColourIsBlendingTheColour)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB& source) {
        fillWith(source, 0x00123456);
        expectSame(
            a, b, [&](CVQDIB& i) { i.Blend(source, LONG{77}); },
            [](CVQDIB& i) { i.Blend(LONG{0x12}, LONG{0x34}, LONG{0x56}, LONG{77}); });
        expectSame(
            a, b, [&](CVQDIB& i) { i.Blend(source, LONG{200}); },
            [](CVQDIB& i) { i.Blend(COLORREF{0x563412}, LONG{200}); });
    });
}

TEST(PixelLaws, ACopyThereAndBackRestoresABlock)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB&) {
        const Pixels before = pixels(a);
        b.Copy(a);
        a.Clear(COLORREF{0});
        a.Copy(b, 0, 0, 0, 0, a.GetWidth(), a.GetHeight());
        EXPECT_TRUE(shows(a, before));
    });
}

TEST(PixelLaws, QuartersCopiedOneByOneMakeTheWhole)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB&) {
        const LONG w = a.GetWidth() / 2;
        const LONG h = a.GetHeight() / 2;
        for (const LONG x : {LONG{0}, w})
            for (const LONG y : {LONG{0}, h})
                b.Copy(a, x, y, x, y, a.GetWidth() - w, a.GetHeight() - h);
        EXPECT_TRUE(shows(b, pixels(a)));
    });
}

TEST(PixelLaws, ExchangingRedAndBlueBeforeOrAfterIsTheSame)
{
    using OneImage = void (*)(CVQDIB&);
    const OneImage operations[] = {
        [](CVQDIB& i) { i.Invert(); },  [](CVQDIB& i) { i.Quantize(5); },      [](CVQDIB& i) { i.Smooth3x3(); },
        [](CVQDIB& i) { i.Smooth(2); }, [](CVQDIB& i) { i.Median(nullptr); },  [](CVQDIB& i) { i.AlphaSmooth3x3(); },
        [](CVQDIB& i) { i.Mosaic(2); }, [](CVQDIB& i) { i.Darken(LONG{50}); },
    };
    for (const OneImage operation : operations)
        forSeveralSizes([operation](CVQDIB& a, CVQDIB& b, CVQDIB&) {
            expectSame(
                a, b,
                [operation](CVQDIB& i) {
                    i.ExchangeRB();
                    operation(i);
                },
                [operation](CVQDIB& i) {
                    operation(i);
                    i.ExchangeRB();
                });
        });
}

TEST(PixelLaws, FiltersDoNotKnowUpFromDown)
{
    using OneImage = void (*)(CVQDIB&);
    const OneImage operations[] = {
        [](CVQDIB& i) { i.Smooth3x3(); },      [](CVQDIB& i) { i.Smooth(3); },    [](CVQDIB& i) { i.Median(nullptr); },
        [](CVQDIB& i) { i.AlphaSmooth3x3(); }, [](CVQDIB& i) { i.Laplacian(1); }, [](CVQDIB& i) { i.Equalize(); },
    };
    for (const OneImage operation : operations)
        forSeveralSizes([operation](CVQDIB& a, CVQDIB& b, CVQDIB&) {
            expectSame(
                a, b,
                [operation](CVQDIB& i) {
                    i.FlipVertical();
                    operation(i);
                },
                [operation](CVQDIB& i) {
                    operation(i);
                    i.FlipVertical();
                });
        });
}

/// Moves every pixel on the torus: by a third of the width to the right and a row down.
void turnTorus(CVQDIB& image)
{
    const LONG width = image.GetWidth();
    const LONG height = image.GetHeight();
    const Pixels old = pixels(image);
    for (LONG y = 0; y < height; ++y)
        for (LONG x = 0; x < width; ++x)
            image((x + width / 3) % width, (y + 1) % height) = old[static_cast<std::size_t>(y * width + x)];
}

TEST(PixelLaws, FiltersThatWrapRoundHaveNoEdges)
{
    using OneImage = void (*)(CVQDIB&);
    const OneImage operations[] = {
        [](CVQDIB& i) { i.Smooth(1); },
        [](CVQDIB& i) { i.Smooth(5); },
        [](CVQDIB& i) { i.Laplacian(0); },
        [](CVQDIB& i) { i.AlphaSmooth3x3(); },
    };
    for (const OneImage operation : operations)
        forSeveralSizes([operation](CVQDIB& a, CVQDIB& b, CVQDIB&) {
            expectSame(
                a, b,
                [operation](CVQDIB& i) {
                    turnTorus(i);
                    operation(i);
                },
                [operation](CVQDIB& i) {
                    operation(i);
                    turnTorus(i);
                });
        });
}

TEST(PixelLaws, TheMedianOfTheNegativeIsTheNegativeOfTheMedian)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB&) {
        expectSame(
            a, b,
            [](CVQDIB& i) {
                i.Invert();
                i.Median(nullptr);
            },
            [](CVQDIB& i) {
                i.Median(nullptr);
                i.Invert();
            });
    });
}

TEST(PixelLaws, ColourFiltersKeepAlpha)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB& b, CVQDIB&) {
        const Pixels alpha = masked(a, kAlpha);
        a.Invert();
        a.ConvertToGray();
        a.Darken(LONG{3});
        a.Darken(b, 99);
        a.Lighten(b, 99);
        a.Screen(b);
        a.Difference(b);
        a.Smooth3x3();
        a.Median(nullptr);
        a.Equalize();
        EXPECT_EQ(masked(a, kAlpha), alpha);
    });
}

TEST(PixelLaws, AlphaSmoothingKeepsColours)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB&, CVQDIB&) {
        const Pixels colours = masked(a, kColours);
        a.AlphaSmooth3x3();
        EXPECT_EQ(masked(a, kColours), colours);
    });
}

TEST(PixelLaws, SmoothingAFlatImageChangesNothingThatItAverages)
{
    forSeveralSizes([](CVQDIB& a, CVQDIB&, CVQDIB&) {
        fillWith(a, 0x40C08041);
        a.Smooth3x3();
        a.Smooth2x2();
        a.AlphaSmooth3x3();
        EXPECT_TRUE(shows(a, Pixels(static_cast<std::size_t>(a.GetSize()), 0x40C08041)));
    });
}

} // namespace
} // namespace vq::test
