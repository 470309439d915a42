// SPDX-License-Identifier: MIT
#include "unit/VQDraw/draw/text/TextPictures.h"

#include <cmath>
#include <limits>

namespace vq::test::cvqdibTextLayoutTests {
namespace {

constexpr LONG kEm = 16;
constexpr LONG kLine = 18; // a cell of 18.6 pixels
constexpr UINT kCentred = 1, kRight = 2, kMiddle = 4, kBottom = 8, kUnbroken = 32;

class CVQDIBTextLayout : public testing::Test
{
protected:
    CVQDIBTextLayout()
    {
        for (CVQDIB* image : {&m_image, &m_expected})
            setSans(*image, -kEm);
    }

    CRect drawn(const wchar_t* text, RECT rect, UINT format)
    {
        m_image.Clear(Gdiplus::Color(0));
        m_image.DrawTextW(text, &rect, format);
        return inkOf(m_image).value_or(CRect());
    }

    void expectAs(const Gdiplus::RectF& layout, UINT format, Gdiplus::StringAlignment across,
                  Gdiplus::StringAlignment down, INT flags = 0)
    {
        RECT rect{10, 5, 109, 84};
        drawn(kText, rect, format);
        Gdiplus::StringFormat stringFormat(flags);
        stringFormat.SetAlignment(across);
        stringFormat.SetLineAlignment(down);
        Gdiplus::TextRenderingHint hint{};
        CVQDIB::GetRenderingHint(hint);
        const Gdiplus::SolidBrush brush(Gdiplus::Color(255, 255, 255, 255));
        m_expected.Clear(Gdiplus::Color(0));
        m_expected.GetGraphics()->SetTextRenderingHint(hint);
        m_expected.GetGraphics()->DrawString(kText, -1, m_font.get(), layout, &stringFormat, &brush);
        EXPECT_FALSE(isBlank(m_image));
        EXPECT_TRUE(sameImages(m_image, m_expected)) << "format " << format;
    }

    static constexpr const wchar_t* kText = L"several words in some lines";
    CVQDIB m_image{160, 120};
    CVQDIB m_expected{160, 120};
    std::unique_ptr<Gdiplus::Font> m_font = sansFont(-kEm);
};

constexpr auto kNear = Gdiplus::StringAlignmentNear;
constexpr auto kCenter = Gdiplus::StringAlignmentCenter;
constexpr auto kFar = Gdiplus::StringAlignmentFar;

TEST_F(CVQDIBTextLayout, LaysOutInARectangleWithBothEdgesInside)
{
    expectAs({10, 5, 100, 80}, 0, kNear, kNear);
}

TEST_F(CVQDIBTextLayout, FollowsTheFormatsBits)
{
    const Gdiplus::RectF layout(10, 5, 100, 80);
    expectAs(layout, kCentred, kCenter, kNear);
    expectAs(layout, kRight, kFar, kNear);
    expectAs(layout, kCentred | kRight, kFar, kNear);
    expectAs(layout, kMiddle, kNear, kCenter);
    expectAs(layout, kBottom, kNear, kFar);
    expectAs(layout, kMiddle | kBottom, kNear, kFar);
    expectAs(layout, kUnbroken, kNear, kNear, Gdiplus::StringFormatFlagsNoWrap);
    expectAs(layout, kCentred | kMiddle | kUnbroken, kCenter, kCenter, Gdiplus::StringFormatFlagsNoWrap);
}

TEST_F(CVQDIBTextLayout, IgnoresOtherBits)
{
    const Gdiplus::RectF layout(10, 5, 100, 80);
    expectAs(layout, 16 | 64 | 0xFFFFFF00, kNear, kNear);
    expectAs(layout, 16 | 256 | kRight, kFar, kNear);
}

TEST_F(CVQDIBTextLayout, WrapsWordsUnlessItIsForbidden)
{
    const RECT rect{0, 0, 79, 119};
    EXPECT_GT(drawn(kText, rect, 0).Height(), 2 * kLine);
    EXPECT_LT(drawn(kText, rect, kUnbroken).Height(), kLine);
}

TEST_F(CVQDIBTextLayout, CentresEveryLine)
{
    const RECT rect{10, 0, 149, 119};
    const CRect wide = drawn(L"WWWW", rect, kCentred);
    const CRect narrow = drawn(L"ii", rect, kCentred);
    EXPECT_NEAR(wide.left + wide.right, 160, 3);
    EXPECT_NEAR(narrow.left + narrow.right, 160, 3);
    EXPECT_GT(drawn(L"WWWW\nii", rect, kCentred).Height(), kLine);
    EXPECT_NEAR(wide.left, drawn(L"WWWW\nii", rect, kCentred).left, 1);
}

TEST_F(CVQDIBTextLayout, PutsLinesToTheRightUpToTheMargin)
{
    const RECT rect{10, 0, 149, 119};
    for (const wchar_t* text : {L"HHH", L"H", L"H\nHHHH"}) {
        const LONG right = drawn(text, rect, kRight).right;
        EXPECT_LE(right, 150);
        EXPECT_GE(right, 150 - kEm / 6 - 4) << "beyond the margin of a sixth of an em";
    }
}

TEST_F(CVQDIBTextLayout, PutsTheBlockOfLinesInTheMiddleOrAtTheBottom)
{
    const RECT rect{0, 10, 149, 109};
    const CRect top = drawn(L"H", rect, 0);
    const CRect middle = drawn(L"H", rect, kMiddle);
    const CRect bottom = drawn(L"H", rect, kBottom);
    EXPECT_NEAR(middle.top - top.top, (100 - kLine) / 2, 2);
    EXPECT_NEAR(bottom.top - top.top, 100 - kLine, 2);
    const CRect two = drawn(L"H\nH", rect, kBottom);
    EXPECT_EQ(two.bottom, bottom.bottom);
    EXPECT_NEAR(two.top, bottom.top - kLine, 2);
}

TEST_F(CVQDIBTextLayout, CentresHintedGreyTextFromAWholePixelOn)
{
    const ScopedHint scoped(Gdiplus::TextRenderingHintAntiAliasGridFit);
    for (const UINT format : {kMiddle, kMiddle | kBottom}) {
        Gdiplus::StringFormat measuring;
        measuring.SetLineAlignment(kCenter);
        CDC context;
        context.CreateCompatibleDC(nullptr);
        Gdiplus::Graphics graphics(context.m_hDC);
        Gdiplus::RectF bounds;
        graphics.MeasureString(kText, -1, m_font.get(), Gdiplus::RectF(10, 5, 100, 80), &measuring, &bounds);
        const float top = std::trunc(5 + (80 - bounds.Height) * 0.5F);
        expectAs({10, top, 100, bounds.Height}, format, kNear, kNear);
    }
}

TEST_F(CVQDIBTextLayout, IsCutToTheRectangle)
{
    if (differsHere("text and its rectangle"))
        return;
    const CRect ink = drawn(L"\u2588\u2588\u2588\u2588\u2588\u2588\u2588\u2588\u2588\u2588", {20, 10, 59, 19}, 0);
    EXPECT_EQ(ink.bottom, 20);
    EXPECT_LE(ink.right, 60);
    EXPECT_GE(ink.left, 20);
}

TEST_F(CVQDIBTextLayout, IsDrawnTwiceWhenItIsSmoothedWithoutHints)
{
    const ScopedHint scoped(Gdiplus::TextRenderingHintAntiAlias);
    RECT rect{10, 5, 109, 84};
    m_image.SetTextColor(RGB(0, 0, 0), BYTE{10});
    m_image.DrawTextW(L"Text", &rect, 0);
    ULONG highest = 0;
    for (const ULONG pixel : pixels(m_image))
        highest = std::max(highest, pixel >> 24);
    EXPECT_GE(highest, 129U) << "10 and 128 over it";
    EXPECT_LE(highest, 134U);
}

TEST_F(CVQDIBTextLayout, OfNothingOrInNoRectangleDrawsNothing)
{
    RECT rect{0, 0, 99, 19};
    m_image.EnableTextShadow(true);
    m_image.DrawTextW(CString(), &rect, 0);
    m_image.DrawTextW(L"Text", nullptr, 0);
    const CArray<COLORREF, const COLORREF&> none;
    m_image.DrawTextW(L"Text", nullptr, 0, none);
    m_image.DrawTextW(CString(), &rect, 0, none);
    EXPECT_TRUE(isBlank(m_image));
}

TEST_F(CVQDIBTextLayout, TakesEveryRectangle)
{
    if (differsHere("text far outside the picture"))
        return;
    constexpr LONG kLowest = std::numeric_limits<LONG>::min();
    constexpr LONG kHighest = std::numeric_limits<LONG>::max();
    const RECT rects[] = {{kLowest, kLowest, kHighest, kHighest},
                          {kHighest, kHighest, kLowest, kLowest},
                          {kHighest, kHighest, kHighest, kHighest},
                          {0, 0, kHighest, kHighest},
                          {50, 50, 0, 0},
                          {0, 0, -1, -1}};
    CArray<COLORREF, const COLORREF&> colours;
    colours.Add(RGB(1, 2, 3));
    colours.Add(RGB(1, 2, 3));
    for (const auto hint : {Gdiplus::TextRenderingHintSingleBitPerPixelGridFit,
                            Gdiplus::TextRenderingHintAntiAliasGridFit, Gdiplus::TextRenderingHintAntiAlias}) {
        const ScopedHint scoped(hint);
        for (RECT rect : rects) {
            for (UINT format = 0; format < 64; ++format) {
                m_image.DrawTextW(L"Some text\nand more", &rect, format);
                m_image.DrawTextW(L"Some text\nand more", &rect, format, colours);
            }
        }
    }
}

} // namespace
} // namespace vq::test::cvqdibTextLayoutTests
