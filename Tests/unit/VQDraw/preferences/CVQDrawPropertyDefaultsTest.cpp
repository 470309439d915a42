// SPDX-License-Identifier: MIT
#include "ExpectedPreferences.h"
#include "StoredPreferences.h"

namespace vq::test {
namespace {

using Store = CVQDrawProperty;

constexpr float kScribbled = 0.125f;

class PreferenceDefaults : public Preferences
{
protected:
    void SetUp() override
    {
        Preferences::SetUp();
        scribble();
    }
};

/// The defaults of a row, and behind them what stood there.
std::array<float, 4> overScribbled(const ExpectedSceneColour& row)
{
    std::array<float, 4> values;
    values.fill(kScribbled);
    std::copy_n(row.values.begin(), row.count, values.begin());
    return values;
}

TEST(PreferenceTables, CountTheirEntries)
{
    for (const auto& [count, number] : kExpectedCounts)
        EXPECT_EQ(count, number);
    EXPECT_EQ(std::size(kExpectedSceneColours), std::size(Store::m_fColor));
    EXPECT_EQ(std::size(kExpectedSizes), std::size(Store::m_fSize));
    EXPECT_EQ(std::size(kExpectedAlphas), std::size(Store::m_ucUICtrlAlpha));
    EXPECT_EQ(std::size(kExpectedControlColours), std::size(Store::m_UICtrlColor));
    EXPECT_EQ(std::size(kExpectedHistogramColours), std::size(Store::m_HistogramColor));
    EXPECT_EQ(std::size(kExpectedReportColours), std::size(Store::m_ReportColor));
    EXPECT_EQ(std::size(kExpectedMaterials), std::size(Store::m_Material));
    EXPECT_EQ(std::size(kExpectedFonts), std::size(Store::m_Font));
}

template <typename Rows>
void expectNumbers(const Rows& rows)
{
    int number = 0;
    for (const auto& row : rows) {
        EXPECT_EQ(row.id, row.number) << row.name;
        EXPECT_EQ(row.number, number++) << row.name;
    }
}

TEST(PreferenceTables, NumberTheirEntriesFromZero)
{
    expectNumbers(kExpectedSceneColours);
    expectNumbers(kExpectedSizes);
    expectNumbers(kExpectedAlphas);
    expectNumbers(kExpectedControlColours);
    expectNumbers(kExpectedHistogramColours);
    expectNumbers(kExpectedReportColours);
    expectNumbers(kExpectedMaterials);
    expectNumbers(kExpectedFonts);
}

TEST_F(PreferenceDefaults, ComeBackInEverySceneColour)
{
    Store::Initialize();
    for (const ExpectedSceneColour& row : kExpectedSceneColours)
        EXPECT_EQ(std::to_array(Store::m_fColor[row.id]), overScribbled(row)) << row.name;
}

TEST_F(PreferenceDefaults, OfLightsComeBackAlone)
{
    Store::InitLightProps();
    for (const ExpectedSceneColour& row : kExpectedSceneColours) {
        const auto expected =
            row.id <= DPC_LIGHT3POS ? row.values : std::array{kScribbled, kScribbled, kScribbled, kScribbled};
        EXPECT_EQ(std::to_array(Store::m_fColor[row.id]), expected) << row.name;
    }
}

TEST_F(PreferenceDefaults, ComeBackInEverySize)
{
    Store::Initialize();
    for (const ExpectedSize& row : kExpectedSizes)
        EXPECT_EQ(Store::m_fSize[row.id], row.value) << row.name;
}

TEST_F(PreferenceDefaults, ComeBackInEveryColourOfControls)
{
    Store::Initialize();
    for (const auto& row : kExpectedControlColours)
        EXPECT_EQ(Store::m_UICtrlColor[row.id], row.hasDefault ? row.value : CVQColor(1, 2, 3, 4)) << row.name;
    for (const auto& row : kExpectedAlphas)
        EXPECT_EQ(Store::m_ucUICtrlAlpha[row.id], row.value) << row.name;
    EXPECT_EQ(Store::m_ucFloatDialogAlpha, kExpectedFloatDialogAlpha);
}

TEST_F(PreferenceDefaults, ComeBackInHistogramsAndReports)
{
    Store::Initialize();
    for (const auto& row : kExpectedHistogramColours)
        EXPECT_EQ(Store::m_HistogramColor[row.id], row.value) << row.name;
    for (const auto& row : kExpectedReportColours)
        EXPECT_EQ(Store::m_ReportColor[row.id], row.value) << row.name;
}

void expectColour(const float (&colour)[4], std::array<float, 4> expected, const ExpectedMaterial& row)
{
    if (!row.setsAlphaOfColours)
        expected[3] = kScribbled;
    EXPECT_EQ(std::to_array(colour), expected) << row.name;
}

TEST_F(PreferenceDefaults, ComeBackInEveryMaterial)
{
    Store::Initialize();
    for (const ExpectedMaterial& row : kExpectedMaterials) {
        const CVQMaterial& material = Store::m_Material[row.id];
        expectColour(material.m_fAmbient, row.ambient, row);
        expectColour(material.m_fDiffuse, row.diffuse, row);
        expectColour(material.m_fSpecular, row.specular, row);
        EXPECT_EQ(material.m_fShininess, row.shininess) << row.name;
        EXPECT_EQ(material.m_fAlpha, row.alpha) << row.name;
    }
}

TEST_F(PreferenceDefaults, LeaveThePaletteAndItsCursor)
{
    Store::Initialize();
    EXPECT_EQ(Store::m_arrPalletMaterial.GetSize(), 1);
    EXPECT_EQ(Store::m_iMaterialCount, 7);
}

TEST_F(PreferenceDefaults, OfADocumentAreThePalettesCursorAndTheBendingWindow)
{
    StoredPreferences expected = StoredPreferences::now();
    expected.paletteCursor = 0;
    expected.sizes[DPS_3D_SKETCH_CURVE_BENDING_WINDOW] = 0;

    Store::InitializeByDoc();

    EXPECT_TRUE(StoredPreferences::now() == expected);
}

TEST_F(PreferenceDefaults, OfTextsOfDimensionsFollowTheSketch)
{
    Store::Initialize();
    EXPECT_EQ(Store::m_UICtrlColor[DPC_WG_DIM_TEXT], Store::GetDPCVQColor(DPC_2D_SKETCH_DIMENSION));
}

TEST_F(PreferenceDefaults, OfControlsFollowTheirBackground)
{
    const StoredPreferences before = StoredPreferences::now();
    Store::m_UICtrlColor[DPC_UI_CTRL_BG] = CVQColor(8, 0x20, 0xF0, 77);

    Store::SetUIColorRelatives();

    StoredPreferences expected = before; // red, green and blue end at 0 and 255, the alpha is the background's
    expected.controlColours[DPC_UI_CTRL_BG] = CVQColor(8, 0x20, 0xF0, 77);
    expected.controlColours[DPC_UI_EDIT_BG] = CVQColor(0, 0x10, 0xE0, 77);
    expected.controlColours[DPC_UI_BUTTON_BG] = CVQColor(0x28, 0x40, 0xFF, 77);
    expected.controlColours[DPC_UI_SCROLL_TH_BG] = CVQColor(0x28, 0x40, 0xFF, 77);
    EXPECT_TRUE(StoredPreferences::now() == expected);
}

} // namespace
} // namespace vq::test
