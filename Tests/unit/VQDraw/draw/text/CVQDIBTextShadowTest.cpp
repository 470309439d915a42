// SPDX-License-Identifier: MIT
#include "unit/VQDraw/draw/text/TextPictures.h"

namespace vq::test::cvqdibTextShadowTests {
namespace {

using Access = VQTestAccess;

constexpr LONG kEm = 24;

class CVQDIBTextShadow : public testing::Test
{
protected:
    CVQDIBTextShadow() { setSans(m_image, -kEm); }

    /// The image after a shadow alone.
    void drop(const wchar_t* text = L"Text", Gdiplus::PointF origin = {20, 10})
    {
        Access::dropTextShadow(m_image, *m_font, origin, text);
    }

    /// The colour of the shadow under text of a grey: that of its pixels, without alpha.
    ULONG colourUnder(COLORREF textColour)
    {
        m_image.Clear(Gdiplus::Color(0));
        m_image.SetTextColor(textColour, BYTE{255});
        drop();
        const auto ink = inkOf(m_image);
        if (!ink)
            return 0xFFFFFFFF;
        for (LONG x = ink->left; x < ink->right; ++x) {
            if (const ULONG pixel = m_image(x, ink->top))
                return pixel & 0xFFFFFF;
        }
        return 0xFFFFFFFF;
    }

    CVQDIB m_image{120, 60};
    std::unique_ptr<Gdiplus::Font> m_font = sansFont(-kEm);
};

/// The alpha of several layers of alpha 32, one over the other.
ULONG alphaOfLayers(int layers)
{
    ULONG alpha = 0;
    for (int i = 0; i < layers; ++i)
        alpha = (32 * 255 + alpha * (255 - 32) + 127) / 255;
    return alpha;
}

TEST_F(CVQDIBTextShadow, IsTheTextNineTimesAroundTheOffset)
{
    if (differsHere("text hints"))
        return;
    CVQDIB text(120, 60);
    setSans(text, -kEm);
    text.TextOutW(20, 10, L"Text");
    m_image.SetTextShadowOffset(4, -3);
    drop();

    int deepest = 0;
    for (LONG y = 5; y < 55; ++y) {
        for (LONG x = 5; x < 115; ++x) {
            int layers = 0;
            for (LONG down = -1; down <= 1; ++down)
                for (LONG right = -1; right <= 1; ++right)
                    layers += text(x - 4 + right, y + 3 + down) != 0 ? 1 : 0;
            ASSERT_EQ(m_image(x, y) >> 24, alphaOfLayers(layers)) << x << ", " << y;
            deepest = std::max(deepest, layers);
        }
    }
    EXPECT_GE(deepest, 6) << "the thickest strokes of the letters";
}

TEST_F(CVQDIBTextShadow, OfAFullBlockIsNineLayersDeep)
{
    drop(L"\u2588", {20, 10});
    const int tolerance = differsHere("source-over rounding") ? 9 : 0; // 1 a layer
    EXPECT_NEAR(m_image(20 + kEm / 6 + kEm / 3 + 1, 10 + kEm / 2) >> 24, alphaOfLayers(9), tolerance);
}

/// Grey g has the luminance (480 g + 255) / 510: 60 for 64, 61 for 65.
TEST_F(CVQDIBTextShadow, IsWhiteBelowALuminanceOf61AndBlackFromThereOn)
{
    EXPECT_EQ(colourUnder(RGB(64, 64, 64)), 0xFFFFFFU);
    EXPECT_EQ(colourUnder(RGB(65, 65, 65)), 0x000000U);
    EXPECT_EQ(colourUnder(RGB(0, 0, 0)), 0xFFFFFFU);
    EXPECT_EQ(colourUnder(RGB(255, 255, 255)), 0x000000U);
    EXPECT_EQ(colourUnder(RGB(255, 0, 0)), 0x000000U) << "a luminance of 120";
    EXPECT_EQ(colourUnder(RGB(0, 0, 100)), 0xFFFFFFU) << "a luminance of 47";
}

TEST_F(CVQDIBTextShadow, HasAGivenColourWhateverTheText)
{
    m_image.SetTextColorShadow(RGB(255, 0, 255));
    EXPECT_EQ(colourUnder(RGB(0, 0, 0)), 0xFF00FFU);
    EXPECT_EQ(colourUnder(RGB(255, 255, 255)), 0xFF00FFU);
}

TEST_F(CVQDIBTextShadow, LiesUnderTheText)
{
    CVQDIB expected(120, 60);
    setSans(expected, -kEm);
    for (CVQDIB* image : {&m_image, &expected}) {
        image->SetTextColor(RGB(255, 128, 0), BYTE{255});
        image->SetTextShadowOffset(2, 3);
    }
    m_image.EnableTextShadow(true);
    m_image.TextOutW(20, 10, L"Text");
    Access::dropTextShadow(expected, *m_font, Gdiplus::PointF(20, 10), L"Text");
    expected.TextOutW(20, 10, L"Text");
    EXPECT_TRUE(sameImages(m_image, expected));

    m_image.Clear(Gdiplus::Color(0));
    m_image.EnableTextShadow(false);
    m_image.TextOutW(20, 10, L"Text");
    EXPECT_LT(sumOfAlpha(m_image), sumOfAlpha(expected));
}

TEST_F(CVQDIBTextShadow, InARectangleIsThatOfTheLaidOutText)
{
    CVQDIB expected(120, 60);
    setSans(expected, -kEm);
    RECT rect{3, 4, 110, 50};
    Gdiplus::StringFormat format;
    format.SetAlignment(Gdiplus::StringAlignmentFar);
    m_image.EnableTextShadow(true);
    m_image.DrawTextW(L"Ab", &rect, 2);
    Access::dropTextShadow(expected, *m_font, Gdiplus::RectF(3, 4, 108, 47), format, L"Ab");
    EXPECT_FALSE(isBlank(expected));
    expected.DrawTextW(L"Ab", &rect, 2);
    EXPECT_TRUE(sameImages(m_image, expected));
}

TEST_F(CVQDIBTextShadow, OfNothingIsNothing)
{
    drop(L"");
    drop(nullptr);
    const Gdiplus::StringFormat format;
    Access::dropTextShadow(m_image, *m_font, Gdiplus::RectF(0, 0, 50, 50), format, nullptr);
    EXPECT_TRUE(isBlank(m_image));
    Access::destroy(m_image);
    drop();
    Access::dropTextShadow(m_image, *m_font, Gdiplus::RectF(0, 0, 50, 50), format, L"x");
}

} // namespace
} // namespace vq::test::cvqdibTextShadowTests
