// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/text/TextSupport.h"

#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

namespace {

using namespace vq::test;

LOGFONTW logicalFont(LONG height, std::u16string_view face)
{
    LOGFONTW font{};
    font.lfHeight = height;
    font.lfWeight = 400;
    std::ranges::copy(face, font.lfFaceName);
    return font;
}

float emOf(LONG height)
{
    const auto font = openFont(describe(logicalFont(height, kSans)));
    return font ? font->em : 0;
}

TEST(LogicalFont, NegativeHeightIsTheEmExactly)
{
    EXPECT_EQ(emOf(-25), 25);
    EXPECT_EQ(emOf(-11), 11);
    EXPECT_EQ(emOf(-1), 1);
}

TEST(LogicalFont, PositiveHeightIsThatOfTheCellAndGivesAWholeEm)
{
    EXPECT_EQ(emOf(20), 17); // 20 * 2048 / (1901 + 483) = 17.18
    EXPECT_EQ(emOf(25), 21); // 21.48
    EXPECT_EQ(emOf(1), 1);   // 0.86
}

TEST(LogicalFont, HeightZeroIsTheDefaultCell)
{
    EXPECT_EQ(emOf(0), emOf(16));
}

TEST(LogicalFont, HeightsBeyondTheLimitAreRefused)
{
    EXPECT_EQ(emOf(-10000), 10000);
    EXPECT_EQ(emOf(-10001), 0);
    EXPECT_EQ(emOf(std::numeric_limits<LONG>::min()), 0);
    EXPECT_EQ(emOf(std::numeric_limits<LONG>::max()), 0);
}

TEST(LogicalFont, WeightAbove400IsBoldAndTheStylesAreTakenOver)
{
    LOGFONTW font = logicalFont(-12, kSans);
    EXPECT_FALSE(describe(font).bold);

    font.lfWeight = 401;
    font.lfItalic = 1;
    font.lfUnderline = 255;
    font.lfStrikeOut = 1;
    const FontDescription description = describe(font);

    EXPECT_TRUE(description.bold && description.italic && description.underline && description.strikeout);
    EXPECT_EQ(description.faceName(), kSans);
}

TEST(LogicalFont, AFaceNameWithoutTerminatorEndsWithTheRecord)
{
    LOGFONTW font = logicalFont(-12, u"");
    std::ranges::fill(font.lfFaceName, u'x');

    EXPECT_EQ(describe(font).faceName().size(), 32U);
    EXPECT_NE(openFont(describe(font)), nullptr);
}

TEST(OpenFont, TakesHeightsFromTheWindowsMetricsOfTheFace)
{
    const auto font = sans(16);

    ASSERT_NE(font, nullptr);
    ASSERT_EQ(font->family, "DejaVu Sans");
    EXPECT_EQ(font->metrics.unitsPerEm, 2048);
    EXPECT_EQ(font->metrics.ascent, 1901);
    EXPECT_EQ(font->metrics.descent, 483);
    EXPECT_EQ(font->metrics.lineSpacing, 2384); // as Wine answers for the same file
}

TEST(OpenFont, GivesTheSameFontForTheSameDescription)
{
    const auto first = sans(13);

    EXPECT_EQ(sans(13), first);
    EXPECT_NE(sans(14), first);
}

TEST(OpenFont, RefusesSizesThatAreNone)
{
    for (const float size : {0.0F, -1.0F, 10000.5F, std::numeric_limits<float>::infinity(), std::nanf("")})
        EXPECT_EQ(sans(size), nullptr) << size;
}

TEST(OpenFont, FindsSomethingForEveryFace)
{
    for (const std::u16string_view face :
         {u"", u"MS Shell Dlg", u"Tahoma", u"Segoe UI", u"Arial", u"Times New Roman", u"Courier New",
          u"Microsoft Sans Serif", u"@SimSun", u"no such face", u"\xD800\xFFFF\x1"})
        EXPECT_NE(openFont(described(face, 11)), nullptr);
}

TEST(OpenFont, TellsAFaceThatIsHeldFromOneThatStandsIn)
{
    EXPECT_TRUE(sans(11)->held);
    EXPECT_TRUE(openFont(described(u"dejavu SANS", 11))->held);
    EXPECT_FALSE(openFont(described(u"no such face", 11))->held);
    EXPECT_FALSE(openFont(described(u"", 11))->held);
}

TEST(OpenFont, KnowsFacesWhateverTheirCase)
{
    EXPECT_EQ(openFont(described(u"COURIER NEW", 11))->family, openFont(described(u"Courier New", 11))->family);
}

TEST(OpenFont, ReplacesAFixedPitchFaceByOne)
{
    const auto font = openFont(described(u"Courier New", 20));

    EXPECT_EQ(widthOf(*font, L"i"), widthOf(*font, L"W"));
}

TEST(OpenFont, ReplacesAnUnknownFaceByItsClass)
{
    FontDescription description = described(u"no such face", 20);
    description.fontClass = FontClass::Monospace;
    const auto font = openFont(description);

    EXPECT_EQ(widthOf(*font, L"i"), widthOf(*font, L"W"));
}

TEST(OpenFont, MakesABoldFontThatIsWiderThanTheRegularOne)
{
    FontDescription description = described(kSans, 20);
    description.bold = true;

    EXPECT_GT(widthOf(*openFont(description), L"mm"), widthOf(*sans(20), L"mm"));
}

TEST(RasterFaces, AreThoseThatWindowsHoldsAsBitmaps)
{
    EXPECT_TRUE(isRasterFace(u"System"));
    EXPECT_TRUE(isRasterFace(u"ms sans serif"));
    EXPECT_FALSE(isRasterFace(u"MS Shell Dlg"));
    EXPECT_FALSE(isRasterFace(u"Courier New"));
    EXPECT_FALSE(isRasterFace(u""));
}

} // namespace
