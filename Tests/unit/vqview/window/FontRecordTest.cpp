// SPDX-License-Identifier: MIT
#include "vqview/window/FontRecord.h"

#include <gmock/gmock.h>

namespace {

using namespace vqview;

/// Reading nothing from no file changes nothing but the heights, which it sets for the screen.
constexpr const wchar_t* kNothing = L"nothing";
constexpr const wchar_t* kNoFile = L"/there/is/no/such.file";

TEST(FontRecord, TakesAFaceBeyondAscii)
{
    CVQFont font;

    setFace(font, "Gr\xC3\xB6\xC3\x9F"
                  "e");

    EXPECT_EQ(faceOf(font), "Gr\xC3\xB6\xC3\x9F"
                            "e");
}

TEST(FontRecord, CutsAFaceThatIsTooLong)
{
    CVQFont font;

    setFace(font, std::string(40, 'f'));

    EXPECT_EQ(faceOf(font), std::string(31, 'f')) << "32 units with the terminator";
}

TEST(FontRecord, KeepsAHeightWithoutRegardToTheScreen)
{
    CVQFont font;

    setHeight(font, 24);

    EXPECT_EQ(font.m_iNominalSize, -24);
    EXPECT_EQ(heightOf(font), 24);
}

TEST(FontRecord, SetsTheHeightsAsAPreferenceFileThatIsReadDoes)
{
    CVQFont font, read;
    setHeight(font, 24);

    read.m_iNominalSize = -24;
    read.ReadFromFile(kNothing, kNoFile);

    EXPECT_EQ(font.m_LogFont.lfHeight, read.m_LogFont.lfHeight);
    EXPECT_EQ(font.m_iPointHeight, read.m_iPointHeight);
}

TEST(FontRecord, HasAHeightOfAPixelAtLeast)
{
    CVQFont font;

    setHeight(font, 0);

    EXPECT_EQ(heightOf(font), 1);
}

TEST(FontRecord, ShowsItsColourAndTakesItBack)
{
    CVQFont font;
    font.m_uiColor = RGB(1, 128, 254);

    setFontColour(font, fontColourOf(font));

    EXPECT_EQ(font.m_uiColor, RGB(1, 128, 254));
}

TEST(FontRecord, AllOfThePreferencesFollowTheScreensResolution)
{
    CVQDrawProperty::Initialize();
    std::vector<LONG> heights, expected;
    for (CVQFont font : CVQDrawProperty::m_Font) {
        font.ReadFromFile(kNothing, kNoFile);
        expected.push_back(font.m_LogFont.lfHeight);
    }

    followScreenResolution();

    for (const CVQFont& font : CVQDrawProperty::m_Font)
        heights.push_back(font.m_LogFont.lfHeight);
    EXPECT_EQ(heights, expected);
}

} // namespace
