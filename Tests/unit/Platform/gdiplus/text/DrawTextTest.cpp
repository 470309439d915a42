// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/text/TextSupport.h"

#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace vq::test::drawTextTests {
namespace {

using namespace vq::test;

constexpr float kEm = 24;
constexpr int kMargin = 4; // em / 6
constexpr float kCell = kEm * (1901 + 483) / 2048;

class DrawText : public testing::TestWithParam<GlyphRendering>
{
protected:
    const std::shared_ptr<const Font> m_font = sans(kEm);

    Recorder draw(std::wstring_view text, FloatRect layout = kNoRect, TextFormat format = {}) const
    {
        return drawn(*m_font, text, layout, format, GetParam());
    }
};

INSTANTIATE_TEST_SUITE_P(AllRenderings, DrawText,
                         testing::Values(GlyphRendering::TwoLevel, GlyphRendering::HintedGrey,
                                         GlyphRendering::SmoothGrey));

TEST_P(DrawText, BeginsASixthOfAnEmBesideThePointAndAtIt)
{
    const PixelRect box = draw(L"\x2588", {100, 200, 0, 0}).covered(); // FULL BLOCK: fills the advance, from -0.06 em

    EXPECT_NEAR(box.left, 100 + kMargin, 2);
    EXPECT_NEAR(box.top, 200, 3);
}

TEST_P(DrawText, StandsOnTheBaseline)
{
    const PixelRect box = draw(L"H", {100, 200, 0, 0}).covered();

    EXPECT_NEAR(box.bottom, 200 + kEm * 1901 / 2048, 1);     // H has no descender
    EXPECT_NEAR(box.bottom - box.top, kEm * 1493 / 2048, 2); // cap height
}

TEST_P(DrawText, PutsEveryGlyphAtItsMeasuredPlace)
{
    const std::wstring text(40, L'l');
    const Recorder recorder = draw(text, {10, 0, 0, 0});
    const double advance = (widthOf(*m_font, text) - kEm / 3) / 40;

    ASSERT_EQ(recorder.shapes.size(), 40U);
    for (std::size_t i = 0; i < 40; ++i)
        EXPECT_NEAR(recorder.shapes[i].x - recorder.shapes[0].x, static_cast<double>(i) * advance, 1.0) << i;
}

TEST_P(DrawText, DrawsNothingForSpacesAndControls)
{
    EXPECT_TRUE(draw(L" \t\n \x01\x200D\x202E").shapes.empty());
}

TEST_P(DrawText, IsClippedToItsRectangle)
{
    const Recorder recorder = draw(L"MMMM\nMMMM", {10, 20, 30, 40});
    const PixelRect box = recorder.covered();

    EXPECT_GE(box.left, 10);
    EXPECT_GE(box.top, 20);
    EXPECT_LE(box.right, 40);
    EXPECT_LE(box.bottom, 60);
    EXPECT_FALSE(recorder.shapes.empty());
}

TEST_P(DrawText, LeavesOutLinesThatBeginBelowTheRectangle)
{
    EXPECT_EQ(draw(L"M\nM\nM", {0, 0, 100, kCell + 8}).shapes.size(), 2U);

    TextFormat format;
    format.noClip = true;
    EXPECT_EQ(draw(L"M\nM\nM", {0, 0, 100, kCell + 8}, format).shapes.size(), 3U);
}

TEST_P(DrawText, LimitsOnlyTheSideThatHasASize)
{
    EXPECT_GT(draw(L"Mg", {0, 0, 0, 10}).covered().right, 30);
    EXPECT_LE(draw(L"Mg", {0, 0, 0, 10}).covered().bottom, 10);
}

TEST_P(DrawText, AlignsTheBlockOfLinesWithoutTheExtraHeight)
{
    TextFormat format;
    format.alignment = TextAlignment::Far;
    format.lineAlignment = TextAlignment::Far;
    const PixelRect far = draw(L"H", {0, 0, 200, 100}, format).covered();
    EXPECT_NEAR(far.bottom, 100 - kEm * 483 / 2048, 1);
    EXPECT_NEAR(far.right, 200 - kMargin - kEm * 201 / 2048, 2); // DejaVu Sans: H ends 201 units before its advance

    format.alignment = TextAlignment::Center;
    format.lineAlignment = TextAlignment::Center;
    const PixelRect centre = draw(L"H", {0, 0, 200, 100}, format).covered();
    EXPECT_NEAR((centre.left + centre.right) / 2.0, 100, 1);
    EXPECT_NEAR(centre.bottom, 50 - kCell / 2 + kEm * 1901 / 2048, 1);
}

TEST_P(DrawText, ShowsHebrewFromTheRight)
{
    const Recorder alef = draw(L"\x05D0");
    const Recorder bet = draw(L"\x05D1");
    ASSERT_FALSE(alef.shapes[0].looksLike(bet.shapes[0]));

    if (GetParam() == GlyphRendering::SmoothGrey)
        return; // shapes depend on where in their pixel they stand
    const Recorder both = draw(L"\x05D0\x05D1");
    ASSERT_EQ(both.shapes.size(), 2U);
    EXPECT_TRUE(both.shapes[0].looksLike(bet.shapes[0]));
    EXPECT_TRUE(both.shapes[1].looksLike(alef.shapes[0]));
    EXPECT_LT(both.shapes[0].x, both.shapes[1].x);
}

TEST_P(DrawText, JoinsArabicLetters)
{
    if (GetParam() == GlyphRendering::SmoothGrey)
        return;
    const Recorder alone = draw(L"\x0628");
    const Recorder joined = draw(L"\x0628\x0628");

    for (const Recorder::Shape& shape : joined.shapes)
        EXPECT_FALSE(shape.looksLike(alone.shapes[0]));
}

TEST_P(DrawText, ShowsTheBoxForWhatNoFontHas)
{
    EXPECT_EQ(draw(L"\xFFF00").shapes.size(), 1U);
}

TEST_P(DrawText, UnderlinesAndStrikesOutTheTextOfEachLine)
{
    FontDescription description = described(kSans, kEm);
    description.underline = true;
    description.strikeout = true;
    const auto font = openFont(description);
    const Recorder recorder = drawn(*font, L"HH \nH", {10, 20, 0, 0}, {}, GetParam());
    const PixelRect letters = drawn(*m_font, L"HH", {10, 20, 0, 0}, {}, GetParam()).covered();

    ASSERT_EQ(recorder.strokes.size(), 4U);
    const PixelRect& underline = recorder.strokes[0];
    const PixelRect& strikeout = recorder.strokes[1];
    EXPECT_EQ(underline.left, 10 + kMargin);
    EXPECT_NEAR(underline.right, 10 + widthOf(*font, L"HH") - kMargin, 1);
    EXPECT_GE(underline.top, letters.bottom);
    EXPECT_LE(underline.bottom, 20 + kCell + 1);
    EXPECT_GT(strikeout.top, letters.top);
    EXPECT_LT(strikeout.bottom, letters.bottom);
    EXPECT_LT(recorder.strokes[2].right, underline.right);
}

TEST_P(DrawText, UnderlinesSingleCharacters)
{
    const std::wstring text{L'H', static_cast<wchar_t>(0xD835), static_cast<wchar_t>(0xDD04), L'i', L'H', L'i'};
    const std::size_t letters[] = {0, 4}; // wide characters; the pair of surrogates is two
    Recorder recorder;
    drawText(recorder, *m_font, text, {10, 20, 0, 0}, {}, {GetParam(), 4, kCanvas, letters});

    ASSERT_EQ(recorder.strokes.size(), 2U);
    const float before = widthOf(*m_font, text.substr(0, 4)) - 2 * kMargin;
    EXPECT_EQ(recorder.strokes[0].left, 10 + kMargin);
    EXPECT_NEAR(recorder.strokes[0].right, 10 + kMargin + kEm * 1540 / 2048, 1); // the advance of H
    EXPECT_NEAR(recorder.strokes[1].left, 10 + kMargin + before, 1);
    EXPECT_GE(recorder.strokes[1].top, 20 + kEm * 1901 / 2048);
}

TEST_P(DrawText, SynthesisesStylesThatAFamilyLacks)
{
    // DejaVu Sans Mono has no italic in the smallest package, and leans when it has.
    FontDescription description = described(u"DejaVu Sans Mono", kEm);
    description.italic = true;
    const auto upright = openFont(described(u"DejaVu Sans Mono", kEm));
    const auto leaning = openFont(description);

    const PixelRect straight = drawn(*upright, L"H", kNoRect, {}, GetParam()).covered();
    const PixelRect slanted = drawn(*leaning, L"H", kNoRect, {}, GetParam()).covered();
    EXPECT_GT(slanted.right - slanted.left, straight.right - straight.left);
}

TEST_P(DrawText, StaysInsideWhatIsVisible)
{
    Recorder recorder;
    const PixelRect visible{12, 3, 20, 9};
    drawText(recorder, *m_font, L"MMMMMMM", kNoRect, {}, {GetParam(), 4, visible});

    ASSERT_FALSE(recorder.shapes.empty());
    for (const auto& shape : recorder.shapes) {
        EXPECT_GE(shape.x, visible.left);
        EXPECT_GE(shape.y, visible.top);
        EXPECT_LE(shape.x + shape.width, visible.right);
        EXPECT_LE(shape.y + shape.height, visible.bottom);
    }
}

TEST_P(DrawText, OfHugeGlyphsGivesTheVisiblePart)
{
    const auto font = sans(9000);
    const Recorder recorder = drawn(*font, L"\x2588\x2588", {-3000, -3000, 0, 0}, {}, GetParam());

    ASSERT_FALSE(recorder.shapes.empty());
    EXPECT_EQ(recorder.covered().right, kCanvas.right);
    EXPECT_EQ(recorder.covered().left, kCanvas.left);
    EXPECT_EQ(recorder.partlyCovered(), 0U); // the middle of a block
}

TEST_P(DrawText, SurvivesPlacesThatAreNone)
{
    const float none = std::nanf("");
    const float far = std::numeric_limits<float>::max();
    for (const float place : {none, far, -far, std::numeric_limits<float>::infinity(), 3e9F})
        for (const TextAlignment alignment : {TextAlignment::Near, TextAlignment::Center, TextAlignment::Far}) {
            TextFormat format;
            format.alignment = alignment;
            format.lineAlignment = alignment;
            EXPECT_TRUE(draw(L"M\nM", {place, 0, 50, 50}, format).shapes.empty());
            EXPECT_TRUE(draw(L"M\nM", {0, place, far, far}, format).shapes.empty());
        }
}

TEST(TwoLevelText, CoversAPixelInFullOrNotAtAll)
{
    EXPECT_EQ(drawn(*sans(11), L"Sphinx of black quartz, judge my vow 0123456789").partlyCovered(), 0U);
}

TEST(TwoLevelText, StandsOnWholePixelsWhereverItIsDrawn)
{
    const auto font = sans(11);
    const Recorder here = drawn(*font, L"S", {10.2F, 10.2F, 0, 0});
    const Recorder there = drawn(*font, L"S", {20.9F, 30.4F, 0, 0});

    EXPECT_TRUE(here.shapes[0].looksLike(there.shapes[0]));
    EXPECT_EQ(here.shapes[0].x, std::lround(10.2 + 11 / 6.0) + here.shapes[0].x - 12);
}

TEST(SmoothText, MovesInQuartersOfAPixel)
{
    const auto font = sans(24); // a margin of 4 whole pixels
    const auto at = [&font](float x) { return drawn(*font, L"l", {x, 0, 0, 0}, {}, GlyphRendering::SmoothGrey); };

    EXPECT_FALSE(at(10.0F).shapes[0].looksLike(at(10.5F).shapes[0]));
    EXPECT_FALSE(at(10.0F).shapes[0].looksLike(at(10.25F).shapes[0]));
    EXPECT_TRUE(at(10.25F).shapes[0].looksLike(at(10.3F).shapes[0]));
    EXPECT_TRUE(at(10.0F).shapes[0].looksLike(at(11.0F).shapes[0]));
}

TEST(GreyText, CoversMoreWithHigherContrast)
{
    const auto font = sans(24);
    std::size_t previous = 0;
    for (const unsigned contrast : {0U, 4U, 12U, 1000U}) {
        Recorder recorder;
        drawText(recorder, *font, L"S", kNoRect, {}, {GlyphRendering::SmoothGrey, contrast, kCanvas});
        std::size_t sum = 0;
        for (const Channel c : recorder.shapes[0].coverage)
            sum += c;
        EXPECT_GE(sum, previous) << contrast;
        previous = sum;
    }
}

TEST(RenderingOfHint, FollowsTheTableOfHints)
{
    EXPECT_EQ(renderingOfHint(0), GlyphRendering::TwoLevel);
    EXPECT_EQ(renderingOfHint(1), GlyphRendering::TwoLevel);
    EXPECT_EQ(renderingOfHint(2), GlyphRendering::TwoLevel);
    EXPECT_EQ(renderingOfHint(3), GlyphRendering::HintedGrey);
    EXPECT_EQ(renderingOfHint(4), GlyphRendering::SmoothGrey);
    EXPECT_EQ(renderingOfHint(5), GlyphRendering::HintedGrey);
}

} // namespace
} // namespace vq::test::drawTextTests
