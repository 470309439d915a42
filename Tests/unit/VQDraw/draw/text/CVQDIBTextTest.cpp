// SPDX-License-Identifier: MIT
#include "unit/VQDraw/draw/text/TextPictures.h"

#include <cstdlib>
#include <limits>

namespace vq::test::cvqdibTextTests {
namespace {

constexpr LONG kEm = 24;

class CVQDIBText : public testing::Test
{
protected:
    CVQDIBText()
    {
        for (CVQDIB* image : {&m_image, &m_expected})
            setSans(*image, -kEm);
    }

    CVQDIB m_image{160, 50};
    CVQDIB m_expected{160, 50};
};

TEST_F(CVQDIBText, BeginsASixthOfAnEmBesideItsPlace)
{
    m_image.TextOutW(30, 10, L"\u2588"); // FULL BLOCK: fills its advance and the cell
    const auto ink = inkOf(m_image);
    ASSERT_TRUE(ink);
    EXPECT_NEAR(ink->left, 30 + kEm / 6, 2);
    EXPECT_NEAR(ink->top, 10, 2);
}

TEST_F(CVQDIBText, OfOneBitAPixelHasTheTextsColourAndAlphaEverywhere)
{
    m_image.SetTextColor(RGB(10, 20, 30), BYTE{255});
    m_image.TextOutW(5, 5, L"Text");
    EXPECT_FALSE(isBlank(m_image));
    if (differsHere("text hints"))
        return;
    for (const ULONG pixel : pixels(m_image))
        ASSERT_TRUE(pixel == 0 || pixel == 0xFE0A141E) << std::hex << pixel;
}

TEST_F(CVQDIBText, IsTheSameOfBothKindsOfStrings)
{
    CString text(L"Text");
    m_image.TextOutW(5, 5, text);
    m_expected.TextOutW(5, 5, L"Text");
    EXPECT_FALSE(isBlank(m_image));
    EXPECT_TRUE(sameImages(m_image, m_expected));
}

TEST_F(CVQDIBText, OfNothingDrawsNothing)
{
    m_image.EnableTextShadow(true);
    CString empty;
    m_image.TextOutW(5, 5, empty);
    m_image.TextOutW(5, 5, L"");
    m_image.TextOutW(5, 5, static_cast<const wchar_t*>(nullptr));
    EXPECT_TRUE(isBlank(m_image));
}

TEST_F(CVQDIBText, OutsideTheImageDrawsNothing)
{
    constexpr LONG kFarthest = std::numeric_limits<LONG>::max();
    for (const LONG place : {LONG{1000}, LONG{-1000}, kFarthest, -kFarthest}) {
        if (std::abs(place) > 1000 && differsHere("text far outside the picture"))
            continue;
        m_image.TextOutW(place, 0, L"Text");
        m_image.TextOutW(0, place, L"Text");
    }
    EXPECT_TRUE(isBlank(m_image));
}

TEST_F(CVQDIBText, IsThatOfGdiplus)
{
    const auto font = sansFont(-kEm);
    const Gdiplus::SolidBrush brush(Gdiplus::Color(254, 200, 100, 50));
    m_image.SetTextColor(RGB(200, 100, 50), BYTE{255});
    for (const auto hint : {Gdiplus::TextRenderingHintSingleBitPerPixelGridFit,
                            Gdiplus::TextRenderingHintAntiAliasGridFit, Gdiplus::TextRenderingHintClearTypeGridFit}) {
        const ScopedHint scoped(hint);
        m_expected.GetGraphics()->SetTextRenderingHint(hint);
        m_image.TextOutW(7, 3, L"Text");
        m_expected.GetGraphics()->DrawString(L"Text", -1, font.get(), Gdiplus::PointF(7, 3), &brush);
        EXPECT_TRUE(sameImages(m_image, m_expected));
    }
}

TEST_F(CVQDIBText, SmoothedWithoutHintsIsDrawnTwiceToLookHeavier)
{
    const ScopedHint scoped(Gdiplus::TextRenderingHintAntiAlias);
    const auto font = sansFont(-kEm);
    const Gdiplus::SolidBrush brush(Gdiplus::Color(100, 200, 100, 50));
    const Gdiplus::SolidBrush second(Gdiplus::Color(128, 200, 100, 50));
    m_expected.GetGraphics()->SetTextRenderingHint(Gdiplus::TextRenderingHintAntiAlias);
    m_expected.GetGraphics()->DrawString(L"Text", -1, font.get(), Gdiplus::PointF(7, 3), &brush);
    const std::int64_t once = sumOfAlpha(m_expected);
    m_expected.GetGraphics()->DrawString(L"Text", -1, font.get(), Gdiplus::PointF(7, 3), &second);

    m_image.SetTextColor(RGB(200, 100, 50), BYTE{100});
    m_image.TextOutW(7, 3, L"Text");

    EXPECT_TRUE(sameImages(m_image, m_expected));
    EXPECT_GT(sumOfAlpha(m_image), once);
}

TEST_F(CVQDIBText, OfHints0And2IsThatOfHint1)
{
    m_expected.TextOutW(7, 3, L"Text");
    for (const auto hint : {Gdiplus::TextRenderingHintSystemDefault, Gdiplus::TextRenderingHintSingleBitPerPixel}) {
        const ScopedHint scoped(hint);
        CVQDIB image(160, 50);
        setSans(image, -kEm);
        image.TextOutW(7, 3, L"Text");
        EXPECT_TRUE(sameImages(image, m_expected)) << hint;
    }
}

TEST_F(CVQDIBText, FollowsEveryChangeOfTheFont)
{
    const auto drawn = [&] {
        m_image.Clear(Gdiplus::Color(0));
        m_image.TextOutW(0, 0, L"Text");
        return pixels(m_image);
    };
    const Pixels plain = drawn();
    m_image.SetItalicFont(true);
    EXPECT_NE(drawn(), plain);
    m_image.SetItalicFont(false);
    m_image.SetBoldFont(true);
    EXPECT_NE(drawn(), plain);
    m_image.SetBoldFont(false);
    m_image.SetFontSize(-12);
    EXPECT_NE(drawn(), plain);
    m_image.SetFontSize(-kEm);
    EXPECT_EQ(drawn(), plain);
}

TEST_F(CVQDIBText, InAFontThatGdiplusRefusesLeavesItsStatus)
{
    if (differsHere("raster fonts"))
        return;
    LOGFONTW raster = logicalFont(-12, "Fixedsys");
    m_image.SetTextFont(raster);
    m_image.TextOutW(0, 0, L"Text");
    EXPECT_TRUE(isBlank(m_image));
    EXPECT_NE(m_image.GetGraphics()->GetLastStatus(), Gdiplus::Ok);
    setSans(m_image, -kEm);
    m_image.TextOutW(0, 0, L"Text");
    EXPECT_FALSE(isBlank(m_image));
}

TEST_F(CVQDIBText, DoesNotDependOnAntialiasing)
{
    m_expected.EnableAntialias(false);
    m_image.TextOutW(7, 3, L"Text");
    m_expected.TextOutW(7, 3, L"Text");
    EXPECT_TRUE(sameImages(m_image, m_expected));
    EXPECT_TRUE(m_image.IsEnableAntialias());
    EXPECT_FALSE(m_expected.IsEnableAntialias());
}

} // namespace
} // namespace vq::test::cvqdibTextTests
