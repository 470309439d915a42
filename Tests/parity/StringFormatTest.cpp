// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <gtest/gtest.h>

#include <memory>

namespace vq::test {
namespace {

using namespace Gdiplus;

void expectFresh(const StringFormat& format)
{
    EXPECT_EQ(format.GetFormatFlags(), 0);
    EXPECT_EQ(format.GetAlignment(), StringAlignmentNear);
    EXPECT_EQ(format.GetLineAlignment(), StringAlignmentNear);
    EXPECT_EQ(format.GetTrimming(), StringTrimmingCharacter);
    EXPECT_EQ(format.GetHotkeyPrefix(), HotkeyPrefixNone);
    EXPECT_EQ(format.GetLastStatus(), Ok);
}

TEST(StringFormat, FreshOneIsThatOfPlainText)
{
    expectFresh(StringFormat());
    expectFresh(*StringFormat::GenericDefault());
}

TEST(StringFormat, TypographicOneClipsAndTrimsNothingAndTakesWholeLines)
{
    const StringFormat* format = StringFormat::GenericTypographic();
    EXPECT_EQ(format->GetFormatFlags(),
              StringFormatFlagsNoFitBlackBox | StringFormatFlagsLineLimit | StringFormatFlagsNoClip);
    EXPECT_EQ(format->GetTrimming(), StringTrimmingNone);
    EXPECT_EQ(format->GetAlignment(), StringAlignmentNear);
    EXPECT_EQ(StringFormat::GenericTypographic(), format);
}

TEST(StringFormat, KeepsWhatIsSetAndSoDoCopies)
{
    StringFormat format(StringFormatFlagsNoWrap);
    EXPECT_EQ(format.GetFormatFlags(), StringFormatFlagsNoWrap);
    EXPECT_EQ(format.SetFormatFlags(StringFormatFlagsNoClip | StringFormatFlagsLineLimit), Ok);
    EXPECT_EQ(format.SetAlignment(StringAlignmentCenter), Ok);
    EXPECT_EQ(format.SetLineAlignment(StringAlignmentFar), Ok);
    EXPECT_EQ(format.SetTrimming(StringTrimmingEllipsisPath), Ok);
    EXPECT_EQ(format.SetHotkeyPrefix(HotkeyPrefixShow), Ok);

    const StringFormat copy(&format);
    const std::unique_ptr<StringFormat> clone(format.Clone());
    ASSERT_TRUE(clone);
    for (const StringFormat* same :
         {static_cast<const StringFormat*>(&format), &copy, static_cast<const StringFormat*>(clone.get())}) {
        EXPECT_EQ(same->GetFormatFlags(), StringFormatFlagsNoClip | StringFormatFlagsLineLimit);
        EXPECT_EQ(same->GetAlignment(), StringAlignmentCenter);
        EXPECT_EQ(same->GetLineAlignment(), StringAlignmentFar);
        EXPECT_EQ(same->GetTrimming(), StringTrimmingEllipsisPath);
        EXPECT_EQ(same->GetHotkeyPrefix(), HotkeyPrefixShow);
    }
}

TEST(StringFormat, CopyOfNothingIsInvalid)
{
    EXPECT_EQ(StringFormat(static_cast<const StringFormat*>(nullptr)).GetLastStatus(), InvalidParameter);
}

TEST(StringFormat, NumbersThatAreNoHotkeyPrefixAreInvalid)
{
    StringFormat format;
    EXPECT_EQ(format.SetHotkeyPrefix(static_cast<HotkeyPrefix>(3)), InvalidParameter);
    EXPECT_EQ(format.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(format.GetLastStatus(), Ok) << "asking forgets it";
    EXPECT_EQ(format.GetHotkeyPrefix(), HotkeyPrefixNone);
}

} // namespace
} // namespace vq::test
