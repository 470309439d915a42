// SPDX-License-Identifier: MIT
#include "unit/VQDraw/draw/text/TextPictures.h"

#include <limits>

namespace vq::test::cvqdibTextBoxTests {
namespace {

constexpr LONG kEm = 16;
constexpr COLORREF kFill = RGB(200, 220, 240), kBorder = RGB(20, 30, 40);

class CVQDIBTextBox : public testing::Test
{
protected:
    CVQDIBTextBox()
    {
        for (CVQDIB* image : {&m_image, &m_expected}) {
            setSans(*image, -kEm);
            image->SetTextColor(RGB(0, 0, 0), BYTE{255});
        }
        m_size = m_image.GetTextSize(L"Text");
    }

    CVQDIB m_image{160, 90};
    CVQDIB m_expected{160, 90};
    CSize m_size;
};

TEST_F(CVQDIBTextBox, IsAsLargeAsTheTextAndItsMargins)
{
    const CRect box = m_image.TextBox(30, 20, L"Text", kFill, 255, kBorder, 1, 7, 5);
    EXPECT_EQ(box, CRect(30, 20, 30 + m_size.cx + 14, 20 + m_size.cy + 10));
    const auto ink = inkOf(m_image);
    ASSERT_TRUE(ink);
    EXPECT_EQ(*ink, CRect(box.left, box.top, box.right + 1, box.bottom + 1)) << "the outline lies on its edges";
}

TEST_F(CVQDIBTextBox, IsFilledThenOutlinedThenWrittenIn)
{
    m_image.TextBox(30, 20, L"Text", kFill, 128, kBorder, 2, 7, 5);
    const CRect box(30, 20, 30 + m_size.cx + 14, 20 + m_size.cy + 10);
    m_expected.FillRoundRect(box, 3, kFill, BYTE{128});
    m_expected.DrawRoundRect(box, 3, 2, kBorder, BYTE{255});
    m_expected.TextOutW(30 + 7 + 1, 20 + 5 + 1, L"Text");
    EXPECT_TRUE(sameImages(m_image, m_expected));
}

TEST_F(CVQDIBTextBox, TakesTheLowBitsOfTheBordersAlphaForItsWidth)
{
    for (const LONG width : {1, 3}) {
        m_image.Clear(Gdiplus::Color(0));
        m_image.TextBox(30, 20, L"Text", kFill, 0, kBorder, 256 + width, 7, 5);
        EXPECT_EQ(m_image(30 + 20, 20), 0xFF141E28U) << "the outline is opaque";
        EXPECT_EQ(m_image(30 + 20, 20 + 1), width == 3 ? 0xFF141E28U : 0U);
    }
}

TEST_F(CVQDIBTextBox, TakesTheLowBitsOfTheFillsAlpha)
{
    m_image.TextBox(30, 20, L"Text", kFill, 256 + 100, kBorder, 1, 7, 5);
    m_expected.TextBox(30, 20, L"Text", kFill, 100, kBorder, 1, 7, 5);
    EXPECT_TRUE(sameImages(m_image, m_expected));
}

TEST_F(CVQDIBTextBox, OfAnEmptyTextIsNothing)
{
    for (const wchar_t* text : {L"", static_cast<const wchar_t*>(nullptr)})
        EXPECT_EQ(m_image.TextBox(30, 20, text, kFill, 255, kBorder, 255, 7, 5), CRect(0, 0, 0, 0));
    EXPECT_TRUE(isBlank(m_image));
}

/// A box turned inside out: its text moves by half of what it lacks.
TEST_F(CVQDIBTextBox, OfNegativeMarginsIsSmallerThanItsText)
{
    const CRect box = m_image.TextBox(30, 20, L"Text", kFill, 255, kBorder, 1, -3, -4);
    EXPECT_EQ(box, CRect(30, 20, 30 + m_size.cx - 6, 20 + m_size.cy - 8));
    m_expected.FillRoundRect(box, 3, kFill, BYTE{255});
    m_expected.DrawRoundRect(box, 3, 1, kBorder, BYTE{255});
    m_expected.TextOutW(30 + 3 + 1, 20 + 4 + 1, L"Text");
    EXPECT_TRUE(sameImages(m_image, m_expected));
}

TEST_F(CVQDIBTextBox, BeyondAllCoordinatesEndsAtTheLastOne)
{
    if (differsHere("text far outside the picture"))
        return;
    constexpr LONG kHighest = std::numeric_limits<LONG>::max();
    EXPECT_EQ(m_image.TextBox(kHighest, 0, L"Text", kFill, 255, kBorder, 1, kHighest, 0).right, kHighest);
    EXPECT_EQ(m_image.TextBox(kHighest, 0, L"Text", kFill, 255, kBorder, 1, kHighest, 0).left, kHighest);
    EXPECT_TRUE(isBlank(m_image));
}

} // namespace
} // namespace vq::test::cvqdibTextBoxTests
