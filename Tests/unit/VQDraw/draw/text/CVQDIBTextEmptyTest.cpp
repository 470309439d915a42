// SPDX-License-Identifier: MIT
#include "unit/VQDraw/draw/text/TextPictures.h"

namespace vq::test {
namespace {

using Access = VQTestAccess;

class CVQDIBTextOfAnEmptyImage : public testing::Test
{
protected:
    CVQDIBTextOfAnEmptyImage()
    {
        Access::destroy(m_image);
        setSans(m_image, -12);
    }

    CVQDIB m_image{4, 4};
};

TEST_F(CVQDIBTextOfAnEmptyImage, IsNotDrawn)
{
    const ScopedHint scoped(Gdiplus::TextRenderingHintAntiAliasGridFit);
    m_image.EnableTextShadow(true);
    CString text(L"Text");
    RECT rect{0, 0, 99, 19};
    CArray<COLORREF, const COLORREF&> colours;
    colours.Add(RGB(1, 2, 3));

    m_image.TextOutW(0, 0, L"Text");
    m_image.TextOutW(0, 0, text);
    m_image.DrawTextW(text, &rect, 4);
    m_image.DrawTextW(text, &rect, 4, colours);
    m_image.DrawTextW(L"more lines\nthan\ncolours", &rect, 4, colours);

    EXPECT_EQ(m_image.GetImageBuffer(), nullptr);
    EXPECT_EQ(m_image.GetGraphics(), nullptr);
    EXPECT_EQ(m_image.GetWidth(), 0);
}

TEST_F(CVQDIBTextOfAnEmptyImage, HasNoBox)
{
    EXPECT_EQ(m_image.TextBox(1, 2, L"Text", RGB(1, 2, 3), 255, RGB(4, 5, 6), 255, 3, 3), CRect(0, 0, 0, 0));
}

TEST_F(CVQDIBTextOfAnEmptyImage, DoesNotMoveTheCursor)
{
    m_image.GotoXY(3, 4);
    m_image.print(L"one");
    m_image.print(L"two\n");
    EXPECT_EQ(Access::printX(m_image), 3);
    EXPECT_EQ(Access::printY(m_image), 4);
}

TEST_F(CVQDIBTextOfAnEmptyImage, IsMeasured)
{
    EXPECT_EQ(m_image.GetTextSize(L"Text"), CVQDIB::GetTextSize(m_image.GetFont(), L"Text"));
    EXPECT_GT(m_image.GetTextSize(L"Text").cx, 0);
}

TEST_F(CVQDIBTextOfAnEmptyImage, KeepsItsSettingsForALaterOne)
{
    m_image.SetTextColor(RGB(1, 2, 3), BYTE{255});
    m_image.Resize(60, 30);
    m_image.TextOutW(0, 0, L"Text");
    EXPECT_FALSE(isBlank(m_image));
    EXPECT_EQ(m_image.GetTextColor(), RGB(1, 2, 3));
}

} // namespace
} // namespace vq::test
