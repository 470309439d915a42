// SPDX-License-Identifier: MIT
#include "StoredPreferences.h"

#include <cstddef>
#include <limits>
#include <type_traits>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

static_assert(!std::is_default_constructible_v<Store> && !std::is_copy_constructible_v<Store>);
static_assert(std::is_copy_assignable_v<Store> && std::is_move_assignable_v<Store>);
static_assert(CVQDrawProperty::DPC_BACKGROUND == ::DPC_BACKGROUND);

/// Indices that a table of `count` rows does not have.
template <typename Index>
std::array<Index, 4> outside(int count)
{
    return {Index(-1), Index(count), Index(std::numeric_limits<int>::min()), Index(std::numeric_limits<int>::max())};
}

TEST_F(Preferences, OfScenesAreRowsOfFourFloats)
{
    for (int i = 0; i < DPC_END; ++i)
        EXPECT_EQ(Store::GetColor(eDrawPropertyColor(i)), Store::m_fColor[i]);
    for (const auto index : outside<eDrawPropertyColor>(DPC_END))
        EXPECT_EQ(Store::GetColor(index), nullptr);
}

TEST_F(Preferences, OfScenesAreColoursOfFourBytesToo)
{
    float colour[] = {0.5f, 2.0f, -1.0f, 0.25f};
    Store::SetColorARGB(DPC_GRID, colour);
    EXPECT_EQ(Store::GetDPCVQColor(DPC_GRID), CVQColor(127, 255, 0, 63)); // truncated and limited
    for (const auto index : outside<eDrawPropertyColor>(DPC_END))
        EXPECT_EQ(Store::GetDPCVQColor(index), CVQColor());
}

TEST_F(Preferences, OfScenesKeepTheirAlphaWhenThreeFloatsAreSet)
{
    float colour[] = {0.5f, 2.0f, -1.0f, 0.25f};
    Store::SetColorRGB(DPC_PREVIEW, colour);
    EXPECT_EQ(std::to_array(Store::m_fColor[DPC_PREVIEW]), (std::array{0.5f, 2.0f, -1.0f, 0.4f})); // 102 / 255
}

TEST_F(Preferences, OfScenesTakeFourFloatsInTheOrderOfTheRow)
{
    float colour[] = {0.5f, 2.0f, -1.0f, 0.25f};
    Store::SetColorARGB(DPC_SELECTION_TOOL, colour);
    EXPECT_EQ(std::to_array(Store::m_fColor[DPC_SELECTION_TOOL]), std::to_array(colour));
}

TEST_F(Preferences, StayAsTheyAreWhenAnIndexIsOutsideItsTable)
{
    float colour[] = {0.5f, 0.5f, 0.5f, 0.5f};
    CVQMaterial material;
    for (const auto index : outside<eDrawPropertyColor>(DPC_END)) {
        Store::SetColorRGB(index, colour);
        Store::SetColorARGB(index, colour);
        Store::GLApplyColor(index, -1.0f);
    }
    for (const auto index : outside<eDrawPropertySize>(DPS_END))
        Store::SetSize(index, 77);
    for (const auto index : outside<eControlDrawPropertyColor>(DPC_UI_COLOR_END))
        Store::SetVQColor(index, CVQColor(1, 2, 3));
    for (const auto index : outside<eDrawPropertyReportColor>(DPC_REPORT_COLOR_END))
        Store::SetReportColor(index, CVQColor(1, 2, 3));
    for (const auto index : outside<eDrawPropertyFont>(DPF_END)) {
        Store::SetFont(index, CVQFont());
        Store::InitFontInfo(index);
    }
    for (const auto index : outside<eDrawPropertyMaterial>(DPM_END))
        Store::SetDPMaterial(index, material);
    EXPECT_TRUE(StoredPreferences::now() == preferencesAtStart());
}

TEST_F(Preferences, StayAsTheyAreWhenThereIsNoColour)
{
    Store::SetColorRGB(DPC_GRID, nullptr);
    Store::SetColorARGB(DPC_GRID, nullptr);
    EXPECT_TRUE(StoredPreferences::now() == preferencesAtStart());
}

TEST_F(Preferences, OutsideTheirTablesAreDefaultConstructed)
{
    for (const auto index : outside<eDrawPropertySize>(DPS_END))
        EXPECT_EQ(Store::GetSize(index), 0.0f);
    for (const auto index : outside<eControlDrawPropertyColor>(DPC_UI_COLOR_END))
        EXPECT_EQ(Store::GetVQColor(index), CVQColor());
    for (const auto index : outside<eDrawPropertyReportColor>(DPC_REPORT_COLOR_END))
        EXPECT_EQ(Store::GetReportColor(index), CVQColor());
    for (const auto index : outside<eDrawPropertyFont>(DPF_END))
        EXPECT_TRUE(isSame(Store::GetFont(index), CVQFont()));
}

TEST_F(Preferences, OfSizesAreReadAndWrittenRowByRow)
{
    for (int i = 0; i < DPS_END; ++i) {
        Store::SetSize(eDrawPropertySize(i), static_cast<float>(i) + 0.5f);
        EXPECT_EQ(Store::GetSize(eDrawPropertySize(i)), static_cast<float>(i) + 0.5f);
        EXPECT_EQ(Store::m_fSize[i], static_cast<float>(i) + 0.5f);
    }
}

TEST_F(Preferences, OfControlsAndReportsAreReadAndWrittenRowByRow)
{
    for (int i = 0; i < DPC_UI_COLOR_END; ++i) {
        const CVQColor colour(static_cast<BYTE>(i), 2, 3, 4);
        Store::SetVQColor(eControlDrawPropertyColor(i), colour);
        EXPECT_EQ(Store::GetVQColor(eControlDrawPropertyColor(i)), colour);
        EXPECT_EQ(Store::m_UICtrlColor[i], colour);
    }
    for (int i = 0; i < DPC_REPORT_COLOR_END; ++i) {
        const CVQColor colour(static_cast<BYTE>(i), 5, 6, 7);
        Store::SetReportColor(eDrawPropertyReportColor(i), colour);
        EXPECT_EQ(Store::GetReportColor(eDrawPropertyReportColor(i)), colour);
        EXPECT_EQ(Store::m_ReportColor[i], colour);
    }
}

TEST_F(Preferences, OfControlsDoNotDeriveColoursByThemselves)
{
    Store::SetVQColor(DPC_UI_CTRL_BG, CVQColor::White);
    EXPECT_EQ(Store::GetVQColor(DPC_UI_EDIT_BG), CVQColor(60, 60, 59));
}

TEST_F(Preferences, OfFontsAreCopiedWhole)
{
    CVQFont font;
    platform::setFaceName(font.m_LogFont, L"DejaVu Sans");
    font.m_LogFont.lfHeight = -20;
    font.m_iPointHeight = 15;
    font.m_uiColor = 0x123456;
    font.m_bShadow = true;
    font.m_iNominalSize = -18;
    for (int i = 0; i < DPF_END; ++i) {
        Store::SetFont(eDrawPropertyFont(i), font);
        EXPECT_TRUE(isSame(Store::GetFont(eDrawPropertyFont(i)), font));
        EXPECT_TRUE(isSame(Store::m_Font[i], font));
        ++font.m_LogFont.lfWeight;
    }
}

TEST_F(Preferences, OfMaterialsAreReadAndWrittenRowByRow)
{
    CVQMaterial material;
    for (int i = 0; i < DPM_END; ++i) {
        material.m_fDiffuse[1] = static_cast<float>(i);
        Store::SetDPMaterial(eDrawPropertyMaterial(i), material);
        CVQMaterial read;
        Store::GetDPMaterial(eDrawPropertyMaterial(i), read);
        EXPECT_EQ(read, material);
        EXPECT_EQ(Store::m_Material[i], material);
    }
}

TEST_F(Preferences, OfMaterialsOutsideTheirTableLeaveTheArgument)
{
    CVQMaterial material;
    material.m_fShininess = 5;
    const CVQMaterial before = material;
    for (const auto index : outside<eDrawPropertyMaterial>(DPM_END))
        Store::GetDPMaterial(index, material);
    EXPECT_EQ(material, before);
}

TEST(CVQFont, LiesInMemoryAsDocumentsHoldIt)
{
    EXPECT_EQ(sizeof(CVQFont), 108u);
    EXPECT_EQ(offsetof(CVQFont, m_LogFont), 0u);
    EXPECT_EQ(offsetof(CVQFont, m_iPointHeight), 92u);
    EXPECT_EQ(offsetof(CVQFont, m_uiColor), 96u);
    EXPECT_EQ(offsetof(CVQFont, m_bShadow), 100u);
    EXPECT_EQ(offsetof(CVQFont, m_iNominalSize), 104u);
}

TEST(CVQFont, StartsBlackWithoutAShadow)
{
    const CVQFont font;
    EXPECT_EQ(font.m_uiColor, 0u);
    EXPECT_FALSE(font.m_bShadow);
}

} // namespace
} // namespace vq::test
