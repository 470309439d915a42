// SPDX-License-Identifier: MIT
#include "ExpectedPreferences.h"
#include "StoredPreferences.h"

#include "vqCommonBase/VQDisplayAPI.h"

#include <string>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

class PreferredFonts : public Preferences
{
protected:
    void TearDown() override
    {
        CVQDisplayAPI::SetScaleFactor(m_scale);
        Preferences::TearDown();
    }

private:
    float m_scale = CVQDisplayAPI::GetScaleFactor();
};

int resolution()
{
    return CWindowDC().GetDeviceCaps(LOGPIXELSY);
}

LOGFONTW systemFont()
{
    LOGFONTW font{};
    EXPECT_NE(GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font), 0);
    return font;
}

std::wstring faceOf(const LOGFONTW& font)
{
    const auto end = std::find(std::begin(font.lfFaceName), std::end(font.lfFaceName), 0);
    return {std::begin(font.lfFaceName), end};
}

/// What a default says nothing of is that of the system's font.
void expectSegoe(const CVQFont& font, const ExpectedFont& row, std::size_t resolution)
{
    const LOGFONTW system = systemFont();
    const LOGFONTW& record = font.m_LogFont;
    EXPECT_EQ(record.lfHeight, row.heights[resolution]) << row.name;
    EXPECT_EQ(record.lfWeight, row.weight) << row.name;
    EXPECT_EQ(faceOf(record), L"Segoe UI") << row.name;
    EXPECT_EQ(record.lfItalic, 0) << row.name;
    EXPECT_EQ(record.lfCharSet, 0) << row.name;
    EXPECT_EQ(record.lfPitchAndFamily, 0x22) << row.name;
    EXPECT_EQ(record.lfWidth, system.lfWidth) << row.name;
    EXPECT_EQ(record.lfEscapement, system.lfEscapement) << row.name;
    EXPECT_EQ(record.lfOrientation, system.lfOrientation) << row.name;
    EXPECT_EQ(record.lfUnderline, system.lfUnderline) << row.name;
    EXPECT_EQ(record.lfStrikeOut, system.lfStrikeOut) << row.name;
    EXPECT_EQ(record.lfOutPrecision, system.lfOutPrecision) << row.name;
    EXPECT_EQ(record.lfClipPrecision, system.lfClipPrecision) << row.name;
    EXPECT_EQ(record.lfQuality, system.lfQuality) << row.name;
    EXPECT_EQ(font.m_iNominalSize, row.nominalSize) << row.name;
}

void expectSystem(const CVQFont& font, const char* where)
{
    const LOGFONTW system = systemFont();
    EXPECT_EQ(font.m_LogFont.lfHeight, system.lfHeight) << where;
    EXPECT_EQ(font.m_LogFont.lfWeight, system.lfWeight) << where;
    EXPECT_EQ(font.m_LogFont.lfItalic, system.lfItalic) << where;
    EXPECT_EQ(font.m_LogFont.lfCharSet, system.lfCharSet) << where;
    EXPECT_EQ(font.m_LogFont.lfPitchAndFamily, system.lfPitchAndFamily) << where;
    EXPECT_EQ(faceOf(font.m_LogFont), faceOf(system)) << where;
    EXPECT_EQ(font.m_iNominalSize, system.lfHeight) << where;
    EXPECT_FALSE(font.m_bShadow) << where;
}

TEST_F(PreferredFonts, SuitTheResolutionOfTheScreen)
{
    for (const int dotsPerInch : kResolutions) {
        CVQDisplayAPI::SetScaleFactor(static_cast<float>(dotsPerInch) / 96); // where the screen is not the system's
        const auto column = std::ranges::find(kResolutions, resolution());
        ASSERT_NE(column, kResolutions.end()) << "no figures for " << resolution();
        scribble();

        Store::Initialize();

        for (const ExpectedFont& row : kExpectedFonts) {
            const CVQFont& font = Store::m_Font[row.id];
            if (row.isSystemFont)
                expectSystem(font, "after start-up");
            else
                expectSegoe(font, row, static_cast<std::size_t>(column - kResolutions.begin()));
            EXPECT_EQ(font.m_uiColor, row.colour) << row.name;
            EXPECT_EQ(font.m_bShadow, row.shadow) << row.name;
            EXPECT_EQ(font.m_iPointHeight, 99) << row.name << ": as it was";
        }
    }
}

TEST_F(PreferredFonts, OfDimensionsAreElevenPixelsHighAt96DotsPerInch)
{
    CVQDisplayAPI::SetScaleFactor(1);
    if (resolution() != 96)
        return;
    Store::Initialize();
    EXPECT_EQ(Store::GetFont(DPF_WG_DIM_FONT).m_LogFont.lfHeight, -11);
    EXPECT_EQ(Store::GetFont(DPF_WG_DIM_FONT).m_iNominalSize, -11);
    EXPECT_EQ(Store::GetFont(DPF_WG_PF_FONT).m_LogFont.lfHeight, -11);
    EXPECT_EQ(Store::GetFont(DPF_WG_PF_FONT).m_iNominalSize, -13);
    EXPECT_EQ(Store::GetFont(DPF_GDT_ANNOT_FONT).m_iNominalSize, -16);
}

TEST_F(PreferredFonts, AreResetToTheSystemsOneByOne)
{
    for (int i = 0; i < DPF_END; ++i) {
        scribble();
        StoredPreferences expected = StoredPreferences::now();

        Store::InitFontInfo(eDrawPropertyFont(i));

        const CVQFont font = Store::m_Font[i];
        expectSystem(font, "one by one");
        EXPECT_EQ(font.m_LogFont.lfWidth, 0x55555555) << "as it was";
        EXPECT_EQ(font.m_LogFont.lfUnderline, 0x55) << "as it was";
        EXPECT_EQ(font.m_iPointHeight, 99) << "as it was";
        EXPECT_EQ(font.m_uiColor, i == DPF_MEASUREMENT_FONT ? 0x1F1F1Fu : 0u); // 0.125 * 255 = 31.875
        expected.fonts[static_cast<std::size_t>(i)] = font;
        EXPECT_TRUE(StoredPreferences::now() == expected);
    }
}

TEST_F(PreferredFonts, OfColourBarsHaveAResetOfTheirOwn)
{
    scribble();
    StoredPreferences expected = StoredPreferences::now();

    Store::InitColorbarFont();

    const CVQFont font = Store::m_Font[DPF_COLORBAR_FONT];
    expectSystem(font, "colour bar");
    EXPECT_EQ(font.m_uiColor, 0u);
    expected.fonts[DPF_COLORBAR_FONT] = font;
    EXPECT_TRUE(StoredPreferences::now() == expected);
}

} // namespace
} // namespace vq::test
