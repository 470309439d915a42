// SPDX-License-Identifier: MIT
#include "ExpectedPreferences.h"

#include <gtest/gtest.h>

#include <climits>

namespace vq::test {
namespace {

using Store = CVQDrawProperty;
using Lookup = int (*)(CString);

template <typename Rows>
void expectFound(Lookup lookup, const Rows& rows)
{
    for (const auto& row : rows) {
        EXPECT_EQ(lookup(row.name), row.number) << row.name;
        EXPECT_EQ(lookup(CString(row.name).MakeLower()), -1) << row.name;
        EXPECT_EQ(lookup(CString(row.name) + L" "), -1) << row.name;
        EXPECT_EQ(lookup(CString(row.name).Mid(1)), -1) << row.name;
    }
}

TEST(PreferenceNames, LeadToTheirNumbers)
{
    expectFound(Store::GetDPCEnumStringToEnumNo, kExpectedSceneColours);
    expectFound(Store::GetDPSEnumStringToEnumNo, kExpectedSizes);
    expectFound(Store::GetUICtrlAlphaEnumStringToEnumNo, kExpectedAlphas);
    expectFound(Store::GetUICtrlDPCEnumStringToEnumNo, kExpectedControlColours);
    expectFound(Store::GetDPMEnumStringToEnumNo, kExpectedMaterials);
    expectFound(Store::GetReportDPCEnumStringToEnumNo, kExpectedReportColours);
    expectFound(Store::GetDPFEnumStringToEnumNo, kExpectedFonts);
    EXPECT_EQ(Store::GetDPCEnumStringToEnumNo(L"DPC_BACKGROUND"), 16);
}

template <typename Rows>
void expectNamed(CString (*nameOf)(int), const Rows& rows)
{
    for (const auto& row : rows)
        EXPECT_EQ(nameOf(row.number), CString(row.name));
    for (const int outside : {-1, static_cast<int>(std::size(rows)), INT_MAX, INT_MIN})
        EXPECT_TRUE(nameOf(outside).IsEmpty()) << outside;
}

TEST(PreferenceNames, AreFoundByTheirNumbers)
{
    expectNamed(Store::GetDPCEnumNoToEnumString, kExpectedSceneColours);
    expectNamed(Store::GetDPSEnumNoToEnumString, kExpectedSizes);
    expectNamed(Store::GetUICtrlAlphaEnumNoToEnumString, kExpectedAlphas);
    expectNamed(Store::GetUICtrlDPCEnumNoToEnumString, kExpectedControlColours);
    expectNamed(Store::GetDPMEnumNoToEnumString, kExpectedMaterials);
    expectNamed(Store::GetReportDPCEnumNoToEnumString, kExpectedReportColours);
    expectNamed(Store::GetDPFEnumNoToEnumString, kExpectedFonts);
}

TEST(PreferenceNames, OfCountsLeadNowhere)
{
    EXPECT_EQ(Store::GetDPCEnumStringToEnumNo(L"DPC_END"), -1);
    EXPECT_EQ(Store::GetDPCEnumStringToEnumNo(L"dpc_end"), -1);
    EXPECT_EQ(Store::GetDPSEnumStringToEnumNo(L"DPS_END"), -1);
    EXPECT_EQ(Store::GetUICtrlAlphaEnumStringToEnumNo(L"DPC_UI_ALPHA_END"), -1);
    EXPECT_EQ(Store::GetUICtrlDPCEnumStringToEnumNo(L"DPC_UI_COLOR_END"), -1);
    EXPECT_EQ(Store::GetDPMEnumStringToEnumNo(L"DPM_END"), -1);
    EXPECT_EQ(Store::GetReportDPCEnumStringToEnumNo(L"DPC_REPORT_COLOR_END"), -1);
    EXPECT_EQ(Store::GetDPFEnumStringToEnumNo(L"DPF_END"), -1);
}

TEST(PreferenceNames, OfNothingAndOfOtherTablesLeadNowhere)
{
    for (const Lookup lookup :
         {Store::GetDPCEnumStringToEnumNo, Store::GetDPSEnumStringToEnumNo, Store::GetUICtrlAlphaEnumStringToEnumNo,
          Store::GetUICtrlDPCEnumStringToEnumNo, Store::GetDPMEnumStringToEnumNo, Store::GetReportDPCEnumStringToEnumNo,
          Store::GetDPFEnumStringToEnumNo}) {
        EXPECT_EQ(lookup(L""), -1);
        EXPECT_EQ(lookup(L"DPC_HIST_AVERAGE"), -1);
    }
    EXPECT_EQ(Store::GetDPCEnumStringToEnumNo(L"DPC_UI_CTRL_BG"), -1);
    EXPECT_EQ(Store::GetUICtrlDPCEnumStringToEnumNo(L"DPC_BACKGROUND"), -1);
}

} // namespace
} // namespace vq::test
