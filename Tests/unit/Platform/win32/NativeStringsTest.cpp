// SPDX-License-Identifier: MIT
#include "Platform/win32/Strings.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace {

using namespace vq::win32;

TEST(ToUtf8, WritesEveryCodePoint)
{
    EXPECT_EQ(toUtf8(L""), "");
    EXPECT_EQ(toUtf8(L"a\u00E9\u20AC\U0001F600\U0010FFFF"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\xF4\x8F\xBF\xBF");
    EXPECT_EQ(toUtf8(std::wstring_view(L"a\0b", 3)), std::string("a\0b", 3));
}

TEST(ToUtf8, JoinsPairsOfSurrogatesAndReplacesWhatIsNoCodePoint)
{
    const wchar_t units[]{0xD83D, 0xDE00, 0xDE00, 0xD83D, L'x', 0x110000, static_cast<wchar_t>(-1), 0xD800};
    EXPECT_EQ(toUtf8({units, std::size(units)}),
              "\xF0\x9F\x98\x80\xEF\xBF\xBD\xEF\xBF\xBDx\xEF\xBF\xBD\xEF\xBF\xBD\xEF\xBF\xBD");
}

TEST(FromUtf8, ReadsEveryCodePointBack)
{
    std::wstring all;
    for (wchar_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint)
        if (codePoint < 0xD800 || codePoint > 0xDFFF)
            all.push_back(codePoint);
    EXPECT_TRUE(fromUtf8(toUtf8(all)) == all);
}

TEST(FromUtf8, ReplacesWhatIsInvalid)
{
    EXPECT_EQ(fromUtf8("\xED\xA0\x80"), L"\uFFFD\uFFFD\uFFFD");           // a surrogate
    EXPECT_EQ(fromUtf8("\xF4\x90\x80\x80"), L"\uFFFD\uFFFD\uFFFD\uFFFD"); // past the last code point
    EXPECT_EQ(fromUtf8("\xE0\x80\x80"), L"\uFFFD\uFFFD\uFFFD");           // longer than needed
    EXPECT_EQ(fromUtf8("a\xE2"), L"a\uFFFD");
}

TEST(FaceName, ComesBackAsItWasSet)
{
    LOGFONTW font{};
    setFaceName(font, L"Segoe UI");
    EXPECT_EQ(faceName(font), L"Segoe UI");
    setFaceName(font, L"\uAD74\uB9BC \U0001F600");
    EXPECT_EQ(faceName(font), L"\uAD74\uB9BC \U0001F600");
    EXPECT_EQ(font.lfFaceName[3], 0xD83D);
    EXPECT_EQ(font.lfFaceName[4], 0xDE00);
}

TEST(FaceName, IsCutAt31UnitsAndTheRestIsZero)
{
    LOGFONTW font{};
    setFaceName(font, std::wstring(40, L'x'));
    EXPECT_EQ(faceName(font), std::wstring(31, L'x'));
    EXPECT_EQ(font.lfFaceName[31], 0);

    setFaceName(font, L"ab");
    for (int i = 2; i < LF_FACESIZE; ++i)
        EXPECT_EQ(font.lfFaceName[i], 0) << i;
}

TEST(FaceName, NeverHoldsHalfAPairOfSurrogates)
{
    LOGFONTW font{};
    setFaceName(font, std::wstring(30, L'x') + L"\U0001F600" + L"y");
    EXPECT_EQ(faceName(font), std::wstring(30, L'x'));
    EXPECT_EQ(font.lfFaceName[30], 0);

    setFaceName(font, std::wstring(29, L'x') + L"\U0001F600" + L"y");
    EXPECT_EQ(faceName(font), std::wstring(29, L'x') + L"\U0001F600");
}

TEST(FaceName, IsReadWithoutItsTerminatorAndWithLoneSurrogates)
{
    LOGFONTW font{};
    for (char16_t& unit : font.lfFaceName)
        unit = u'z';
    EXPECT_EQ(faceName(font), std::wstring(32, L'z'));
    font.lfFaceName[1] = 0xDC00;
    font.lfFaceName[2] = 0;
    EXPECT_EQ(faceName(font), L"z\uFFFD");
}

TEST(FaceName, EndsAtTheFirstZero)
{
    LOGFONTW font{};
    setFaceName(font, std::wstring_view(L"ab\0cd", 5));
    EXPECT_EQ(faceName(font), L"ab");
}

} // namespace
