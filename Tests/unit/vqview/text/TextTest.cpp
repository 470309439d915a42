// SPDX-License-Identifier: MIT
#include "vqview/text/Text.h"

#include <gmock/gmock.h>

namespace {

using namespace vqview;

TEST(Text, GoesToUtf8AndBack)
{
    EXPECT_EQ(utf8Of(std::wstring_view(L"\u00C4\u03A9\u20AC")), "\xC3\x84\xCE\xA9\xE2\x82\xAC");
    EXPECT_EQ(wideOf("\xC3\x84\xCE\xA9\xE2\x82\xAC"), L"\u00C4\u03A9\u20AC");
}

TEST(Text, MayBeEmpty)
{
    EXPECT_EQ(utf8Of(std::wstring_view()), "");
    EXPECT_EQ(wideOf(""), L"");
}

TEST(Text, NamesFilesBeyondAscii)
{
    EXPECT_EQ(utf8Of(pathOf("/scans/H\xC3\xBClle.obj")), "/scans/H\xC3\xBClle.obj");
    EXPECT_STREQ(textOfPath(pathOf("H\xC3\xBClle.obj")).GetString(), L"H\u00FClle.obj");
}

TEST(Text, OfAPathThatIsNoUnicodeThrowsNothing)
{
    const std::string broken = "scan-\xFF\xFE\xC3.obj";
    EXPECT_NO_THROW(EXPECT_FALSE(utf8Of(pathOf(broken)).empty()));
    EXPECT_NO_THROW(EXPECT_FALSE(textOfPath(pathOf(broken)).IsEmpty()));
}

TEST(Counted, HasACommaBeforeEveryThreeDigits)
{
    EXPECT_EQ(counted(0), "0");
    EXPECT_EQ(counted(999), "999");
    EXPECT_EQ(counted(1000), "1,000");
    EXPECT_EQ(counted(1234567), "1,234,567");
}

} // namespace
