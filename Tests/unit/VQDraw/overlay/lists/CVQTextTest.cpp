// SPDX-License-Identifier: MIT
#include "VQDraw/VQText.h"

#include "VQDraw/VQDIB.h"
#include "vqCommonBase/VQUnit.h"

#include <gtest/gtest.h>

#include <limits>

namespace vq::test {
namespace {

CString textOfValue(int kind, double value)
{
    CVQText labels;
    labels.Add(static_cast<EVQTextType>(kind), 0, 0, 0, value);
    return labels[0].m_strText;
}

TEST(CVQText, FormatsAValueAsItsKindSays)
{
    const auto text = CVQUnit::GetDeciPointedString;
    EXPECT_EQ(textOfValue(0, 12.5), text(12.5, false, eVQUnit{1}, false, false, true, -1));
    EXPECT_EQ(textOfValue(1, 12.5), text(12.5, true, eVQUnit{1}, false, true, true, -1));
    EXPECT_EQ(textOfValue(2, 12.5), text(12.5, true, eVQUnit{0}, false, true, true, -1));
    EXPECT_EQ(textOfValue(3, 12.5), text(12.5, false, eVQUnit{1}, false, false, true, -1) + L"%");
    EXPECT_EQ(textOfValue(4, 12.5), text(12.5, true, eVQUnit{2}, false, true, true, -1));
    EXPECT_EQ(textOfValue(5, 12.5), text(12.5, true, eVQUnit{3}, false, true, true, -1));
}

TEST(CVQText, ShowsUnitsWithTheirDecimals)
{
    EXPECT_EQ(textOfValue(VQ_TEXT_NUMBER, -1234.5), L"-1234.50");
    EXPECT_EQ(textOfValue(VQ_TEXT_LENGTH, 0.0625), L"0.062 mm");
    EXPECT_EQ(textOfValue(VQ_TEXT_ANGLE, 45), L"45.00\u00B0");
    EXPECT_EQ(textOfValue(VQ_TEXT_PERCENT, 12.5), L"12.50%");
    EXPECT_EQ(textOfValue(VQ_TEXT_AREA, 2), L"2.000 mm\u00B2");
    EXPECT_EQ(textOfValue(VQ_TEXT_VOLUME, 2), L"2.000 mm\u00B3");
}

TEST(CVQText, ReadsTheKindFromTheLowSixteenBits)
{
    EXPECT_EQ(textOfValue(VQ_TEXT_PERCENT | VQ_TEXT_ONCE, 1), L"1.00%");
    EXPECT_EQ(textOfValue(0x7FFF0003, 1), L"1.00%");
    EXPECT_EQ(textOfValue(static_cast<int>(0x80000003u), 1), L"1.00%");
}

TEST(CVQText, AValueOfAFurtherKindIsALabelWithoutText)
{
    for (const int kind : {6, 7, 0xFFFF, 0x10006, -1}) {
        CVQText labels;
        labels.Add(static_cast<EVQTextType>(kind), 1, 2, 3, 12.5);
        ASSERT_EQ(labels.GetCount(), 1) << kind;
        EXPECT_TRUE(labels[0].m_strText.IsEmpty()) << kind;
        EXPECT_EQ(labels[0].m_eType, static_cast<EVQTextType>(kind));
    }
}

TEST(CVQText, KeepsAnchorTextAndKind)
{
    CVQText labels;
    labels.Add(VQ_TEXT_LENGTH | VQ_TEXT_ONCE, 1.5f, -2.5f, 3.5f, 1.0);
    labels.Add(VQ_TEXT_FREE, 4, 5, 6, L"%s %d of %d", L"point", 1, 2);

    ASSERT_EQ(labels.GetCount(), 2);
    EXPECT_EQ(labels[0].m_fX, 1.5f);
    EXPECT_EQ(labels[0].m_fY, -2.5f);
    EXPECT_EQ(labels[0].m_fZ, 3.5f);
    EXPECT_EQ(labels[0].m_eType, 0x10001);
    EXPECT_EQ(labels[1].m_strText, L"point 1 of 2");
    EXPECT_EQ(labels[1].m_eType, VQ_TEXT_FREE);
}

TEST(CVQText, FormatsFreeTextWhateverTheKind)
{
    CVQText labels;
    const CString name(L"plane");
    labels.Add(VQ_TEXT_PERCENT, 0, 0, 0, L"%s: %.2f%%", name, 2.5);
    labels.Add(VQ_TEXT_NUMBER, 0, 0, 0, L"plain");
    labels.Add(VQ_TEXT_NUMBER, 0, 0, 0, static_cast<const wchar_t*>(nullptr));
    EXPECT_EQ(labels[0].m_strText, L"plane: 2.50%");
    EXPECT_EQ(labels[1].m_strText, L"plain");
    EXPECT_TRUE(labels[2].m_strText.IsEmpty());
}

TEST(CVQText, RemovesLabelsAndKeepsTheOrderOfTheRest)
{
    CVQText labels;
    for (const int value : {0, 1, 2, 3})
        labels.Add(VQ_TEXT_NUMBER, 0, 0, 0, L"%d", value);
    labels.RemoveAt(1);
    ASSERT_EQ(labels.GetCount(), 3);
    EXPECT_EQ(labels[0].m_strText, L"0");
    EXPECT_EQ(labels[1].m_strText, L"2");
    EXPECT_EQ(labels[2].m_strText, L"3");
    labels.RemoveAll();
    EXPECT_EQ(labels.GetCount(), 0);
    EXPECT_EQ(labels.GetData(), nullptr);
}

template <typename Call>
bool isRefused(Call call)
{
    try {
        call();
    } catch (CInvalidArgException* error) {
        error->Delete();
        return true;
    }
    return false;
}

TEST(CVQText, RefusesIndicesThatDoNotExist)
{
    CVQText labels;
    labels.Add(VQ_TEXT_NUMBER, 0, 0, 0, 1.0);
    EXPECT_TRUE(isRefused([&] { labels[1]; }));
    EXPECT_TRUE(isRefused([&] { labels[-1]; }));
    EXPECT_TRUE(isRefused([&] { labels.RemoveAt(2); }));
    EXPECT_TRUE(isRefused([&] { labels.RemoveAt(-1); }));
    EXPECT_EQ(labels.GetCount(), 1);
}

} // namespace
} // namespace vq::test
