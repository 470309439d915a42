// SPDX-License-Identifier: MIT
#include "unit/VQDraw/draw/text/TextPictures.h"

#include <cstring>

namespace vq::test {
namespace {

using Access = VQTestAccess;

bool same(const LOGFONTW& a, const LOGFONTW& b)
{
    return std::memcmp(&a, &b, sizeof a) == 0;
}

LOGFONTW stockFont(int index)
{
    LOGFONTW font{};
    GetObjectW(GetStockObject(index), sizeof font, &font);
    return font;
}

class CVQDIBTextState : public testing::Test
{
protected:
    BYTE brushAlpha()
    {
        Gdiplus::Color colour;
        Access::textBrush(m_image)->GetColor(&colour);
        return colour.GetA();
    }

    CVQDIB m_image{4, 4};
};

TEST_F(CVQDIBTextState, BeginsWithTheSystemsFontInOpaqueWhiteWithoutShadow)
{
    EXPECT_TRUE(same(m_image.GetFont(), stockFont(DEFAULT_GUI_FONT)));
    EXPECT_EQ(m_image.GetTextColor(), RGB(255, 255, 255));
    EXPECT_EQ(brushAlpha(), 255);
    EXPECT_EQ(Access::flags(m_image) & 1U, 0U);
    EXPECT_EQ(Access::flags(m_image) & 4U, 4U);
    EXPECT_EQ(Access::shadowX(m_image), 1);
    EXPECT_EQ(Access::shadowY(m_image), 1);
}

TEST_F(CVQDIBTextState, TakesTheFontOfAStockObject)
{
    m_image.SetFont(ANSI_FIXED_FONT);
    EXPECT_TRUE(same(m_image.GetFont(), stockFont(ANSI_FIXED_FONT)));
}

TEST_F(CVQDIBTextState, KeepsItsFontWhenAStockObjectIsNone)
{
    const LOGFONTW before = m_image.GetFont();
    for (const int object : {BLACK_PEN, WHITE_BRUSH, -1, 1000}) {
        m_image.SetFont(object);
        EXPECT_TRUE(same(m_image.GetFont(), before)) << object;
    }
}

TEST_F(CVQDIBTextState, TakesACopyOfARecord)
{
    LOGFONTW font = logicalFont(-17, "DejaVu Sans");
    m_image.SetTextFont(font);
    font.lfHeight = 5;
    EXPECT_EQ(m_image.GetFontSize(), -17);
    EXPECT_TRUE(same(m_image.GetFont(), logicalFont(-17, "DejaVu Sans")));
}

TEST_F(CVQDIBTextState, TakesTheRecordOfAFontObject)
{
    const LOGFONTW record = logicalFont(-19, "DejaVu Sans");
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&record));
    m_image.SetTextFont(&font);
    EXPECT_TRUE(same(m_image.GetFont(), record));
}

TEST_F(CVQDIBTextState, KeepsItsFontWhenAFontObjectIsNullOrEmpty)
{
    const LOGFONTW before = m_image.GetFont();
    CFont empty;
    m_image.SetTextFont(&empty);
    m_image.SetTextFont(static_cast<CFont*>(nullptr));
    EXPECT_TRUE(same(m_image.GetFont(), before));
}

TEST_F(CVQDIBTextState, KeepsTheFontSizeAsItIs)
{
    for (const LONG size : {12, -12, 0}) {
        m_image.SetFontSize(size);
        EXPECT_EQ(m_image.GetFontSize(), size);
        EXPECT_EQ(m_image.GetFont().lfHeight, size);
    }
}

TEST_F(CVQDIBTextState, SetsWeightsOf700And400AndCallsEverythingAbove400Bold)
{
    m_image.SetBoldFont(true);
    EXPECT_EQ(m_image.GetFont().lfWeight, 700);
    EXPECT_TRUE(m_image.IsBoldFont());
    m_image.SetBoldFont(false);
    EXPECT_EQ(m_image.GetFont().lfWeight, 400);
    EXPECT_FALSE(m_image.IsBoldFont());
    Access::font(m_image).lfWeight = 401;
    EXPECT_TRUE(m_image.IsBoldFont());
}

TEST_F(CVQDIBTextState, TellsItalicsByAnythingBut0)
{
    m_image.SetItalicFont(true);
    EXPECT_TRUE(m_image.IsItalicFont());
    m_image.SetItalicFont(false);
    EXPECT_FALSE(m_image.IsItalicFont());
    EXPECT_EQ(m_image.GetFont().lfItalic, 0);
    Access::font(m_image).lfItalic = 255;
    EXPECT_TRUE(m_image.IsItalicFont());
}

TEST_F(CVQDIBTextState, StoresOpaqueTextWithAnAlphaOf254)
{
    m_image.SetTextColor(RGB(10, 20, 30), BYTE{255});
    EXPECT_EQ(m_image.GetTextColor(), RGB(10, 20, 30));
    EXPECT_EQ(brushAlpha(), 254);
}

TEST_F(CVQDIBTextState, StoresOtherAlphasAsTheyAre)
{
    for (const BYTE alpha : {BYTE{0}, BYTE{1}, BYTE{128}, BYTE{253}, BYTE{254}}) {
        m_image.SetTextColor(RGB(1, 2, 3), alpha);
        EXPECT_EQ(brushAlpha(), alpha);
        EXPECT_EQ(m_image.GetTextColor(), RGB(1, 2, 3));
    }
}

TEST_F(CVQDIBTextState, IgnoresTheTopByteOfATextColour)
{
    m_image.SetTextColor(0xAB030201, BYTE{77});
    EXPECT_EQ(m_image.GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(brushAlpha(), 77);
}

TEST_F(CVQDIBTextState, IgnoresTheLastTwoOfThreeColourArguments)
{
    m_image.SetTextColor(RGB(9, 8, 7), ULONG{3}, ULONG{4});
    EXPECT_EQ(m_image.GetTextColor(), RGB(9, 8, 7));
    EXPECT_EQ(brushAlpha(), 254);
}

TEST_F(CVQDIBTextState, EndsTheAutomaticShadowColourWithAGivenOne)
{
    m_image.SetTextColorShadow(RGB(1, 2, 3));
    EXPECT_EQ(Access::shadowColour(m_image), RGB(1, 2, 3));
    EXPECT_EQ(Access::flags(m_image), 2U);
}

TEST_F(CVQDIBTextState, SwitchesTheShadowWithoutTouchingOtherFlags)
{
    m_image.EnableTextShadow(true);
    EXPECT_EQ(Access::flags(m_image), 7U);
    m_image.EnableTextShadow(true);
    EXPECT_EQ(Access::flags(m_image), 7U);
    m_image.EnableTextShadow(false);
    EXPECT_EQ(Access::flags(m_image), 6U);
}

TEST_F(CVQDIBTextState, KeepsTheShadowsOffset)
{
    m_image.SetTextShadowOffset(-3, 70000);
    EXPECT_EQ(Access::shadowX(m_image), -3);
    EXPECT_EQ(Access::shadowY(m_image), 70000);
}

TEST_F(CVQDIBTextState, MovesThePrintCursor)
{
    m_image.GotoXY(5, 6);
    EXPECT_EQ(Access::printX(m_image), 5);
    EXPECT_EQ(Access::printY(m_image), 6);
    m_image.GotoX(-2);
    EXPECT_EQ(Access::printX(m_image), -2);
    EXPECT_EQ(Access::printY(m_image), 6);
}

TEST_F(CVQDIBTextState, SharesOneRenderingHintThatTellsTheFormerOne)
{
    Gdiplus::TextRenderingHint hint{};
    CVQDIB::GetRenderingHint(hint);
    EXPECT_EQ(hint, Gdiplus::TextRenderingHintSingleBitPerPixelGridFit);
    {
        const ScopedHint scoped(Gdiplus::TextRenderingHintAntiAlias);
        CVQDIB::GetRenderingHint(hint);
        EXPECT_EQ(hint, Gdiplus::TextRenderingHintAntiAlias);
        EXPECT_EQ(CVQDIB::SetRenderingHint(Gdiplus::TextRenderingHintAntiAlias), Gdiplus::TextRenderingHintAntiAlias);
    }
    CVQDIB::GetRenderingHint(hint);
    EXPECT_EQ(hint, Gdiplus::TextRenderingHintSingleBitPerPixelGridFit);
}

TEST_F(CVQDIBTextState, TakesTheRenderingHintWithTheNextText)
{
    CVQDIB image(40, 40);
    const ScopedHint scoped(Gdiplus::TextRenderingHintAntiAliasGridFit);
    EXPECT_EQ(image.GetGraphics()->GetTextRenderingHint(), Gdiplus::TextRenderingHintSingleBitPerPixelGridFit);
    setSans(image, -11);
    image.TextOutW(0, 0, L"x");
    EXPECT_EQ(image.GetGraphics()->GetTextRenderingHint(), Gdiplus::TextRenderingHintAntiAliasGridFit);
}

void changeEverything(CVQDIB& image)
{
    setSans(image, -21);
    image.SetTextColor(RGB(1, 2, 3), BYTE{40});
    image.SetTextColorShadow(RGB(4, 5, 6));
    image.SetTextShadowOffset(7, 8);
    image.EnableTextShadow(true);
    image.GotoXY(9, 10);
}

TEST_F(CVQDIBTextState, OutlivesTheImagesPixels)
{
    changeEverything(m_image);
    Access::destroy(m_image);
    EXPECT_EQ(m_image.Resize(7, 7), 1);
    EXPECT_EQ(m_image.GetFontSize(), -21);
    EXPECT_EQ(m_image.GetTextColor(), RGB(1, 2, 3));
    EXPECT_EQ(brushAlpha(), 40);
    EXPECT_EQ(Access::shadowColour(m_image), RGB(4, 5, 6));
    EXPECT_EQ(Access::shadowX(m_image), 7);
    EXPECT_EQ(Access::flags(m_image), 3U);
    EXPECT_EQ(Access::printX(m_image), 9);
    EXPECT_EQ(Access::printY(m_image), 10);
}

TEST_F(CVQDIBTextState, IsAssignedButForFontTextColourAndCursor)
{
    CVQDIB source(2, 2);
    changeEverything(source);
    m_image = source;
    EXPECT_EQ(Access::flags(m_image), 3U);
    EXPECT_EQ(Access::shadowColour(m_image), RGB(4, 5, 6));
    EXPECT_EQ(Access::shadowX(m_image), 7);
    EXPECT_EQ(Access::shadowY(m_image), 8);
    EXPECT_TRUE(same(m_image.GetFont(), stockFont(DEFAULT_GUI_FONT)));
    EXPECT_EQ(m_image.GetTextColor(), RGB(255, 255, 255));
    EXPECT_EQ(Access::printX(m_image), 0);
    EXPECT_EQ(Access::printY(m_image), 0);
}

TEST_F(CVQDIBTextState, MakesABrushThatIsMissingWhenItIsNeeded)
{
    delete Access::textBrush(m_image);
    Access::textBrush(m_image) = nullptr;
    EXPECT_EQ(m_image.GetTextColor(), 0U);
    setSans(m_image, -11);
    m_image.TextOutW(-2, -2, L"\u2588");
    EXPECT_EQ(m_image.GetTextColor(), RGB(255, 255, 255));
    EXPECT_FALSE(isBlank(m_image));

    delete Access::textBrush(m_image);
    Access::textBrush(m_image) = nullptr;
    m_image.SetTextColor(RGB(1, 2, 3), BYTE{4});
    EXPECT_EQ(m_image.GetTextColor(), RGB(1, 2, 3));
}

} // namespace
} // namespace vq::test
