// SPDX-License-Identifier: MIT
#include "Platform/FaceName.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace {

using vq::platform::setFaceName;

std::u16string units(const LOGFONTW& font)
{
    return {std::begin(font.lfFaceName), std::end(font.lfFaceName)};
}

/// `name` and zeros behind it.
std::u16string padded(std::u16string name)
{
    name.resize(LF_FACESIZE);
    return name;
}

TEST(FaceNameInARecord, HasZerosBehindIt)
{
    LOGFONTW font{};
    setFaceName(font, std::wstring(40, L'x'));
    EXPECT_EQ(units(font), padded(std::u16string(31, u'x')));
    setFaceName(font, L"Segoe UI");
    EXPECT_EQ(units(font), padded(u"Segoe UI"));
    setFaceName(font, L"");
    EXPECT_EQ(units(font), padded(u""));
}

TEST(FaceNameInARecord, EndsAtANullCharacter)
{
    LOGFONTW font{};
    setFaceName(font, std::wstring_view(L"ab\0cd", 5));
    EXPECT_EQ(units(font), padded(u"ab"));
}

TEST(FaceNameInARecord, HasNoHalfPairOfSurrogates)
{
    LOGFONTW font{};
    setFaceName(font, std::wstring(30, L'x') + L"\U0001F600" + L"y");
    EXPECT_EQ(units(font), padded(std::u16string(30, u'x')));
    setFaceName(font, std::wstring(29, L'x') + L"\U0001F600" + L"y");
    EXPECT_EQ(units(font), padded(std::u16string(29, u'x') + u"\U0001F600"));
}

TEST(FaceNameInARecord, IsReadUpToItsTerminator)
{
    LOGFONTW font{};
    EXPECT_EQ(vq::platform::faceName(font), L"");
    setFaceName(font, L"G\u00FCnther");
    font.lfFaceName[20] = 'x';
    EXPECT_EQ(vq::platform::faceName(font), L"G\u00FCnther");
    std::fill(std::begin(font.lfFaceName), std::end(font.lfFaceName), u'x');
    EXPECT_EQ(vq::platform::faceName(font), std::wstring(32, L'x'));
}

} // namespace
