// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/text/TextSupport.h"

#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace vq::test::measureTextTests {
namespace {

using namespace vq::test;

constexpr float kEm = 48;
constexpr float kCell = kEm * (1901 + 483) / 2048;
constexpr float kMargins = kEm / 3;
constexpr float kNear = 0.001F;

class MeasureText : public testing::Test
{
protected:
    const std::shared_ptr<const Font> m_font = sans(kEm);

    TextMeasure measure(std::wstring_view text, FloatRect layout = kNoRect, TextFormat format = {}) const
    {
        return measured(*m_font, text, layout, format);
    }
    float width(std::wstring_view text) const { return widthOf(*m_font, text); }
};

TEST_F(MeasureText, LeavesASixthOfAnEmBeforeAndAfterTheText)
{
    EXPECT_NEAR(2 * width(L"W") - width(L"WW"), kMargins, kNear);
}

TEST_F(MeasureText, AddsUpUnhintedAdvances)
{
    EXPECT_NEAR(width(L"W"), kEm * 2025 / 2048 + kMargins, kNear); // DejaVu Sans: W advances 2025 units
    EXPECT_NEAR(width(L"AVAV"), 2 * (width(L"A") + width(L"V")) - 3 * kMargins, kNear); // no kerning
    EXPECT_NEAR(width(L"fi"), width(L"f") + width(L"i") - kMargins, kNear);             // no ligature
}

TEST_F(MeasureText, IsACellAndAnEighthOfAnEmHighAndALineSpacingMoreForEachLine)
{
    EXPECT_NEAR(measure(L"M").bounds.height, kCell + kEm / 8, kNear);
    EXPECT_NEAR(measure(L"M\nM").bounds.height, 2 * kCell + kEm / 8, kNear); // no external leading in this face
}

TEST_F(MeasureText, CountsLeadingButNotTrailingSpaces)
{
    EXPECT_EQ(width(L"a "), width(L"a"));
    EXPECT_GT(width(L" a"), width(L"a"));
    EXPECT_EQ(width(L" "), width(L"   "));
}

TEST_F(MeasureText, OfNothingIsEmptyAtTheOrigin)
{
    const TextMeasure result = measure(L"", {3, 4, 50, 60});

    EXPECT_EQ(result.bounds.x, 3);
    EXPECT_EQ(result.bounds.y, 4);
    EXPECT_EQ(result.bounds.width, 0);
    EXPECT_EQ(result.bounds.height, 0);
    EXPECT_EQ(result.charactersFitted, 0U);
    EXPECT_EQ(result.linesFilled, 0U);
}

TEST_F(MeasureText, CountsABreakAmongTheCharactersOfItsLine)
{
    const TextMeasure one = measure(L"M\n");
    EXPECT_EQ(one.linesFilled, 1U);
    EXPECT_EQ(one.charactersFitted, 2U);

    const TextMeasure two = measure(L"M\r\nM\rM");
    EXPECT_EQ(two.linesFilled, 3U);
    EXPECT_EQ(two.charactersFitted, 6U);
}

TEST_F(MeasureText, WrapsIntoTheMeasureOfAPart)
{
    const TextMeasure result = measure(L"M MM", {0, 0, width(L"M M"), 0});

    EXPECT_EQ(result.linesFilled, 2U);
    EXPECT_EQ(result.bounds.width, width(L"MM"));
}

TEST_F(MeasureText, FitsIntoItsOwnWidthAndNotIntoAHairLess)
{
    for (const wchar_t* text : {L"The quick brown fox", L"iiiiiiiii", L"0.1234"}) {
        EXPECT_EQ(measure(text, {0, 0, width(text), 0}).linesFilled, 1U);
        EXPECT_EQ(measure(text, {0, 0, width(text) - 0.005F, 0}).linesFilled, 2U);
    }
}

TEST_F(MeasureText, WithoutWrappingTellsWhereTheLineIsCut)
{
    TextFormat format;
    format.noWrap = true;

    const TextMeasure all = measure(L"MMM", {0, 0, width(L"MMM"), 0}, format);
    EXPECT_EQ(all.charactersFitted, 3U);
    const TextMeasure cut = measure(L"MMM", {0, 0, width(L"MMM") - 0.005F, 0}, format);
    EXPECT_EQ(cut.charactersFitted, 2U);
    EXPECT_EQ(cut.linesFilled, 1U);
    EXPECT_EQ(cut.bounds.width, width(L"MM"));
}

TEST_F(MeasureText, MovesCentredAndFarTextByTheFreeSpace)
{
    TextFormat format;
    format.alignment = TextAlignment::Center;
    format.lineAlignment = TextAlignment::Far;
    const TextMeasure result = measure(L"M", {100, 200, 300, 400}, format);

    EXPECT_NEAR(result.bounds.x, 100 + (300 - width(L"M")) / 2, kNear);
    EXPECT_NEAR(result.bounds.y, 200 + 400 - (kCell + kEm / 8), kNear);
}

TEST_F(MeasureText, MovesLeftAndUpFromARectangleWithoutSize)
{
    TextFormat format;
    format.alignment = TextAlignment::Far;
    format.lineAlignment = TextAlignment::Center;
    const TextMeasure result = measure(L"M", {100, 200, 0, 0}, format);

    EXPECT_NEAR(result.bounds.x, 100 - width(L"M"), kNear);
    EXPECT_NEAR(result.bounds.y, 200 - (kCell + kEm / 8) / 2, kNear);
}

TEST_F(MeasureText, IsClampedToTheRectangleUnlessNothingIsClipped)
{
    const FloatRect small{0, 0, 10, 10};
    EXPECT_EQ(measure(L"MMM", small).bounds.width, 10);
    EXPECT_EQ(measure(L"MMM", small).bounds.height, 10);

    TextFormat format;
    format.noClip = true;
    EXPECT_EQ(measure(L"MMM", small, format).bounds.width, width(L"M"));
    EXPECT_NEAR(measure(L"MMM", small, format).bounds.height, 3 * kCell + kEm / 8, kNear);
}

TEST_F(MeasureText, WithoutMarginsIsTheTextAlone)
{
    TextFormat format;
    format.margins = false;
    const TextMeasure result = measure(L"W", kNoRect, format);

    EXPECT_NEAR(result.bounds.width, kEm * 2025 / 2048, kNear);
    EXPECT_NEAR(result.bounds.height, kCell, kNear);
    EXPECT_EQ(measure(L"W", {0, 0, result.bounds.width, result.bounds.height}, format).linesFilled, 1U);
}

TEST_F(MeasureText, OfWholeLinesLeavesOutWhatTheLowerEdgeWouldCut)
{
    TextFormat format;
    format.wholeLines = true;
    for (const bool noClip : {false, true}) {
        format.noClip = noClip;
        EXPECT_EQ(measure(L"M\nM", {0, 0, 0, 2 * kCell - 1}, format).linesFilled, 1U);
        EXPECT_EQ(measure(L"M\nM", {0, 0, 0, 2 * kCell}, format).linesFilled, 2U);
        EXPECT_EQ(measure(L"M\nM", {0, 0, 0, kCell - 1}, format).linesFilled, 0U);
        EXPECT_EQ(measure(L"M\nM", kNoRect, format).linesFilled, 2U);
    }
}

TEST_F(MeasureText, FromTheRightHasItsNearSideThere)
{
    TextFormat format;
    format.rightToLeft = true;
    EXPECT_NEAR(measure(L"M", {100, 0, 300, 0}, format).bounds.x, 400 - width(L"M"), kNear);
    format.alignment = TextAlignment::Far;
    EXPECT_NEAR(measure(L"M", {100, 0, 300, 0}, format).bounds.x, 100, kNear);
    format.alignment = TextAlignment::Center;
    EXPECT_NEAR(measure(L"M", {100, 0, 300, 0}, format).bounds.x, 250 - width(L"M") / 2, kNear);
}

TEST_F(MeasureText, FillsTheLinesThatBeginInsideTheRectangle)
{
    const TextMeasure result = measure(L"M\nM\nM", {0, 0, 0, kCell + 1});

    EXPECT_EQ(result.linesFilled, 2U);
    EXPECT_EQ(result.charactersFitted, 4U);
    EXPECT_EQ(measure(L"M\nM", {0, 0, 0, kCell}).linesFilled, 1U);
}

TEST_F(MeasureText, TakesSizesThatAreNoneForUnlimited)
{
    const float noNumber = std::nanf("");
    for (const float side : {-5.0F, noNumber, std::numeric_limits<float>::infinity()}) {
        const TextMeasure result = measure(L"M M\nM", {0, 0, side, side});
        EXPECT_EQ(result.linesFilled, 2U) << side;
        EXPECT_NEAR(result.bounds.height, 2 * kCell + kEm / 8, kNear) << side;
    }
}

TEST_F(MeasureText, TakesAPairOfSurrogatesForTheCharacterThatItIs)
{
    const std::wstring pair{static_cast<wchar_t>(0xD835), static_cast<wchar_t>(0xDD04)};
    const std::wstring whole{static_cast<wchar_t>(0x1D504)};

    EXPECT_EQ(width(pair), width(whole));
    EXPECT_EQ(measure(pair).charactersFitted, 2U);
    EXPECT_EQ(measure(whole).charactersFitted, 1U);
}

TEST_F(MeasureText, TakesALoneSurrogateForTheReplacementCharacter)
{
    for (const int unit : {0xD800, 0xDBFF, 0xDC00, 0xDFFF, 0x110000, -1, 0xFFFF})
        EXPECT_EQ(width(std::wstring{static_cast<wchar_t>(unit)}), width(L"\xFFFD")) << unit;
}

TEST_F(MeasureText, GivesControlCharactersNoRoom)
{
    EXPECT_EQ(width(L"a\x01\x1B\x7F\x9F b"), width(L"a b"));
    EXPECT_EQ(width(std::wstring(L"a\0b", 3)), width(L"ab"));
}

TEST_F(MeasureText, PutsAccentsOverTheirLetter)
{
    EXPECT_EQ(width(L"e\x0301"), width(L"e"));
}

TEST_F(MeasureText, BreaksEastAsianTextBetweenItsCharactersButNotBeforeAFullStop)
{
    // Two characters wide: the full stop must not begin a line, so the character before it goes with it.
    const float two = width(L"\x4E00\x4E00");
    const TextMeasure result = measure(L"\x4E00\x4E00\x3002", {0, 0, two, 0});

    EXPECT_EQ(result.linesFilled, 2U);
    EXPECT_EQ(result.bounds.width, width(L"\x4E00\x3002"));
}

TEST_F(MeasureText, DoesNotBreakBehindAHyphen)
{
    const TextMeasure result = measure(L"M M-M", {0, 0, width(L"M M-"), 0});

    EXPECT_EQ(result.linesFilled, 2U);
    EXPECT_EQ(result.bounds.width, width(L"M-M"));
}

} // namespace
} // namespace vq::test::measureTextTests
