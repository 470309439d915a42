// SPDX-License-Identifier: MIT
// What a host finds when it has loaded the library.
#include "ExpectedPreferences.h"
#include "StoredPreferences.h"

namespace vq::test {
namespace {

TEST(PreferencesAtStart, AreTheDefaults)
{
    const StoredPreferences& start = preferencesAtStart();
    for (const auto& row : kExpectedSceneColours)
        EXPECT_EQ(start.colours[row.id], row.values) << row.name;
    for (const auto& row : kExpectedSizes)
        EXPECT_EQ(start.sizes[row.id], row.value) << row.name;
    for (const auto& row : kExpectedControlColours)
        EXPECT_EQ(start.controlColours[row.id], row.value) << row.name;
    for (const auto& row : kExpectedAlphas)
        EXPECT_EQ(start.controlAlphas[row.id], row.value) << row.name;
    EXPECT_EQ(start.floatDialogAlpha, kExpectedFloatDialogAlpha);
    for (const auto& row : kExpectedHistogramColours)
        EXPECT_EQ(start.histogramColours[row.id], row.value) << row.name;
    for (const auto& row : kExpectedReportColours)
        EXPECT_EQ(start.reportColours[row.id], row.value) << row.name;
}

TEST(PreferencesAtStart, HaveAlphaOneInMaterialsThatAreGivenNone)
{
    for (const eDrawPropertyMaterial id : {DPM_BODY, DPM_SURF_BODY}) {
        const CVQMaterial& material = preferencesAtStart().materials[id];
        EXPECT_EQ(material.m_fAmbient[3], 1.0f);
        EXPECT_EQ(material.m_fDiffuse[3], 1.0f);
        EXPECT_EQ(material.m_fSpecular[3], 1.0f);
    }
}

TEST(PreferencesAtStart, HaveNoPalette)
{
    EXPECT_TRUE(preferencesAtStart().palette.empty());
    EXPECT_EQ(preferencesAtStart().paletteCursor, 0);
}

TEST(PreferencesAtStart, AreWhatInitializeMakesOfThem)
{
    CVQDrawProperty::Initialize();
    EXPECT_TRUE(StoredPreferences::now() == preferencesAtStart());
}

} // namespace
} // namespace vq::test
