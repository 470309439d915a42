// SPDX-License-Identifier: MIT
#include "support/GdiplusEnvironment.h"
#include "unit/VQDraw/draw/text/TextPictures.h"

#include <thread>

namespace vq::test::cvqdibTextSizeTests {
namespace {

constexpr LONG kEm = 24;
constexpr wchar_t kNumber[] = L"123.456";

LOGFONTW sans()
{
    return logicalFont(-kEm, "DejaVu Sans");
}

bool isEmpty(const CSize& size)
{
    return size.cx == 0 && size.cy == 0;
}

TEST(CVQDIBTextSize, OfAnEmptyTextIsNothing)
{
    CVQDIB image(2, 2);
    CString empty;
    CFont font;
    const LOGFONTW record = sans();
    font.CreateFontIndirect(&record);
    EXPECT_TRUE(isEmpty(image.GetTextSize(empty)));
    EXPECT_TRUE(isEmpty(image.GetTextSize(L"")));
    EXPECT_TRUE(isEmpty(image.GetTextSize(static_cast<const wchar_t*>(nullptr))));
    EXPECT_TRUE(isEmpty(CVQDIB::GetTextSize(record, empty)));
    EXPECT_TRUE(isEmpty(CVQDIB::GetTextSize(record, static_cast<const wchar_t*>(nullptr))));
    EXPECT_TRUE(isEmpty(CVQDIB::GetTextSize(font, empty)));
    EXPECT_TRUE(isEmpty(CVQDIB::GetTextSize(font, static_cast<const wchar_t*>(nullptr))));
}

TEST(CVQDIBTextSize, IsTheSameByEveryWay)
{
    CVQDIB image(2, 2);
    CString text(kNumber);
    CFont font;
    LOGFONTW record = sans();
    font.CreateFontIndirect(&record);
    image.SetTextFont(record);
    const CSize size = image.GetTextSize(kNumber);
    EXPECT_FALSE(isEmpty(size));
    EXPECT_EQ(image.GetTextSize(text), size);
    EXPECT_EQ(CVQDIB::GetTextSize(record, kNumber), size);
    EXPECT_EQ(CVQDIB::GetTextSize(record, text), size);
    EXPECT_EQ(CVQDIB::GetTextSize(font, kNumber), size);
    EXPECT_EQ(CVQDIB::GetTextSize(font, text), size);
}

/// Six digits of 1303 units and a point of 651, of 2048 to the em, and a sixth of an em on either side: 107.2 pixels.
/// A cell of 2384 units and an eighth of an em: 30.9.
TEST(CVQDIBTextSize, IsThatOfTheAdvancesAndTheRoomAroundRoundedDown)
{
    const CSize size = CVQDIB::GetTextSize(sans(), kNumber);
    if (!differsHere("width of measured text")) {
        EXPECT_EQ(size.cx, 107);
    }
    if (!differsHere("height of measured text")) {
        EXPECT_EQ(size.cy, 30);
    }
}

TEST(CVQDIBTextSize, GrowsByALineWithEveryLineFeed)
{
    const CSize one = CVQDIB::GetTextSize(sans(), L"Ag");
    const CSize two = CVQDIB::GetTextSize(sans(), L"Ag\nAg");
    EXPECT_EQ(two.cx, one.cx);
    EXPECT_NEAR(two.cy - one.cy, kEm * 2384 / 2048, 1);
    if (!differsHere("line breaks among fitted characters")) {
        EXPECT_EQ(CVQDIB::GetTextSize(sans(), L"Ag\n"), one);
    }
}

TEST(CVQDIBTextSize, EndsAtANullCharacter)
{
    EXPECT_EQ(CVQDIB::GetTextSize(sans(), CString(L"ab\0cd", 5)), CVQDIB::GetTextSize(sans(), L"ab"));
}

TEST(CVQDIBTextSize, FollowsTheImagesFont)
{
    CVQDIB image(2, 2);
    setSans(image, -10);
    const CSize small = image.GetTextSize(L"MM");
    image.SetFontSize(-20);
    const CSize large = image.GetTextSize(L"MM");
    if (!differsHere("width of measured text")) {
        EXPECT_NEAR(large.cx, 2 * small.cx, 1);
    }
    EXPECT_GT(large.cx, small.cx);
    image.SetBoldFont(true);
    EXPECT_GT(image.GetTextSize(L"MM").cx, large.cx);
    image.SetBoldFont(false);
    image.SetFontSize(-10);
    EXPECT_EQ(image.GetTextSize(L"MM"), small);
}

TEST(CVQDIBTextSize, OfTwoFontsInTurnStaysTheSame)
{
    const LOGFONTW other = logicalFont(-40, "DejaVu Sans");
    const CSize first = CVQDIB::GetTextSize(sans(), kNumber);
    const CSize second = CVQDIB::GetTextSize(other, kNumber);
    EXPECT_LT(first.cx, second.cx);
    for (int i = 0; i < 3; ++i) {
        EXPECT_EQ(CVQDIB::GetTextSize(sans(), kNumber), first);
        EXPECT_EQ(CVQDIB::GetTextSize(other, kNumber), second);
    }
}

TEST(CVQDIBTextSize, InAFontThatGdiplusRefusesIsNothing)
{
    if (differsHere("raster fonts"))
        return;
    EXPECT_TRUE(isEmpty(CVQDIB::GetTextSize(logicalFont(-12, "Fixedsys"), kNumber)));
    EXPECT_TRUE(isEmpty(CVQDIB::GetTextSize(CFont(), kNumber)));
    EXPECT_FALSE(isEmpty(CVQDIB::GetTextSize(sans(), kNumber)));
}

TEST(CVQDIBTextSize, HoldsTheInk)
{
    for (const auto hint : {Gdiplus::TextRenderingHintSingleBitPerPixelGridFit,
                            Gdiplus::TextRenderingHintAntiAliasGridFit, Gdiplus::TextRenderingHintAntiAlias}) {
        const ScopedHint scoped(hint);
        for (const wchar_t* text : {L"123.456", L"Aq", L"WWWW", L"one\ntwo lines", L"\u0434\u0430 \u03A9"}) {
            CVQDIB image(300, 120);
            setSans(image, -kEm);
            image.TextOutW(20, 10, text);
            const CSize size = image.GetTextSize(text);
            const auto ink = inkOf(image);
            ASSERT_TRUE(ink);
            EXPECT_GE(ink->left, 20);
            EXPECT_GE(ink->top, 10);
            EXPECT_LE(ink->right, 20 + size.cx + 1);
            EXPECT_LE(ink->bottom, 10 + size.cy + 1);
            EXPECT_GE(ink->Width(), size.cx - kEm / 3 - kEm / 4) << "much of the width is not used";
        }
    }
}

TEST(CVQDIBTextSize, DoesNotNeedPixelsAndDoesNotTouchThem)
{
    CVQDIB image(20, 20);
    setSans(image, -11);
    const CSize size = image.GetTextSize(L"abc");
    EXPECT_TRUE(isBlank(image));
    VQTestAccess::destroy(image);
    EXPECT_EQ(image.GetTextSize(L"abc"), size);
}

TEST(CVQDIBTextSize, MayBeAskedByThreadsAtTheSameTime)
{
    const CSize expected = CVQDIB::GetTextSize(sans(), kNumber);
    const auto ask = [&] {
        for (int i = 0; i < 200; ++i)
            ASSERT_EQ(CVQDIB::GetTextSize(sans(), kNumber), expected);
    };
    std::thread other(ask);
    ask();
    other.join();
}

TEST(CVQDIBTextSize, IsKnownAgainAfterARestartOfGdiplus)
{
    const CSize expected = CVQDIB::GetTextSize(sans(), kNumber);
    for (int i = 0; i < 3; ++i) {
        const GdiplusStopped stopped;
    }
    EXPECT_EQ(CVQDIB::GetTextSize(sans(), kNumber), expected);
}

TEST(CVQDIBTextSize, IsKnownWhenTheHostHasStartedGdiplusByItself)
{
    const CSize expected = CVQDIB::GetTextSize(sans(), kNumber);
    const GdiplusStopped stopped;
    for (int i = 0; i < 2; ++i) {
        ULONG_PTR token = 0;
        const Gdiplus::GdiplusStartupInput input;
        ASSERT_EQ(Gdiplus::GdiplusStartup(&token, &input, nullptr), Gdiplus::Ok);
        EXPECT_EQ(CVQDIB::GetTextSize(sans(), kNumber), expected);
        EXPECT_EQ(CVQDIB::GetTextSize(sans(), kNumber), expected);
        Gdiplus::GdiplusShutdown(token);
    }
}

} // namespace
} // namespace vq::test::cvqdibTextSizeTests
