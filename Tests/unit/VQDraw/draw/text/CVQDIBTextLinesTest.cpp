// SPDX-License-Identifier: MIT
// Text line by line over backgrounds.
#include "unit/VQDraw/draw/text/TextPictures.h"

namespace vq::test::cvqdibTextLinesTests {
namespace {

constexpr LONG kEm = 16;
constexpr COLORREF kRed = RGB(255, 0, 0), kBlue = RGB(0, 0, 255), kNone = 0;
constexpr ULONG kRedPixel = 0xFFFF0000, kBluePixel = 0xFF0000FF;

using Colours = CArray<COLORREF, const COLORREF&>;

class CVQDIBTextLines : public testing::Test
{
protected:
    CVQDIBTextLines()
    {
        setSans(m_image, -kEm);
        m_height = m_image.GetTextSize(L"x").cy;
        m_image.SetTextColor(RGB(255, 255, 255), BYTE{0}); // backgrounds alone
    }

    void draw(const wchar_t* text, std::initializer_list<COLORREF> colours, RECT rect = {10, 20, 89, 25})
    {
        Colours list;
        for (const COLORREF colour : colours)
            list.Add(colour);
        m_image.DrawTextW(text, &rect, 0, list);
    }

    /// The rectangle of a colour.
    CRect of(ULONG pixel)
    {
        CVQDIB masked(m_image.GetWidth(), m_image.GetHeight());
        for (std::int64_t i = 0; i < m_image.GetSize(); ++i)
            masked[i] = m_image[i] == pixel ? pixel : 0;
        return inkOf(masked).value_or(CRect());
    }

    CVQDIB m_image{120, 140};
    LONG m_height = 0;
};

TEST_F(CVQDIBTextLines, StandOnBackgroundsOfTheirHeightMovedByOneAndTwo)
{
    draw(L"one\ntwo", {kRed, kBlue});
    EXPECT_EQ(of(kRedPixel), CRect(11, 22, 90, 22 + m_height));
    EXPECT_EQ(of(kBluePixel), CRect(11, 22 + m_height, 90, 22 + 2 * m_height));
}

TEST_F(CVQDIBTextLines, ReachFarToBothSides)
{
    using Limits = std::numeric_limits<LONG>;
    for (const auto& [left, right] : {std::pair<LONG, LONG>(-5, Limits::max() - 10), {-5, Limits::max() - 2},
                                      {Limits::min() + 2, 130}, {Limits::min() + 2, Limits::max() - 2}}) {
        m_image.Clear(0);
        draw(L"one\ntwo", {kRed, kBlue}, {left, 20, right, 25});
        EXPECT_EQ(of(kRedPixel), CRect(0, 22, 120, 22 + m_height)) << left << " to " << right;
        EXPECT_EQ(of(kBluePixel), CRect(0, 22 + m_height, 120, 22 + 2 * m_height)) << left << " to " << right;
    }
}

TEST_F(CVQDIBTextLines, OfColour0HaveNoBackground)
{
    draw(L"one\ntwo\nthree", {kRed, kNone, kBlue});
    EXPECT_EQ(of(kRedPixel), CRect(11, 22, 90, 22 + m_height));
    EXPECT_EQ(of(kBluePixel), CRect(11, 22 + 2 * m_height, 90, 22 + 3 * m_height));
    EXPECT_EQ(m_image(50, 22 + m_height + m_height / 2), 0U);
}

TEST_F(CVQDIBTextLines, WithoutColoursHaveNoBackgrounds)
{
    draw(L"one\ntwo", {});
    EXPECT_TRUE(isBlank(m_image));
}

TEST_F(CVQDIBTextLines, LeaveOutEmptyOnes)
{
    draw(L"\n\none\n\n\ntwo\n", {kRed, kBlue});
    EXPECT_EQ(of(kRedPixel), CRect(11, 22, 90, 22 + m_height));
    EXPECT_EQ(of(kBluePixel), CRect(11, 22 + m_height, 90, 22 + 2 * m_height));
}

TEST_F(CVQDIBTextLines, AreDrawnOneByOneInTheirRectangles)
{
    m_image.SetTextColor(RGB(0, 255, 0), BYTE{255});
    CVQDIB expected(120, 140);
    setSans(expected, -kEm);
    expected.SetTextColor(RGB(0, 255, 0), BYTE{255});
    RECT first{11, 22, 90, 22 + m_height};
    RECT second{11, 22 + m_height, 90, 22 + 2 * m_height};
    expected.DrawTextW(L"one", &first, 1);
    expected.DrawTextW(L"two", &second, 1);

    RECT rect{10, 20, 89, 25};
    m_image.DrawTextW(L"one\ntwo", &rect, 1, Colours());

    EXPECT_FALSE(isBlank(m_image));
    EXPECT_TRUE(sameImages(m_image, expected));
}

TEST_F(CVQDIBTextLines, LieOverTheirBackgrounds)
{
    m_image.SetTextColor(RGB(0, 255, 0), BYTE{254});
    draw(L"\u2588", {kRed});
    const ULONG pixel = m_image(11 + kEm / 6 + kEm / 3, 22 + m_height / 2);
    EXPECT_NEAR(pixel >> 8 & 0xFF, 254, 1);
    EXPECT_NEAR(pixel >> 16 & 0xFF, 1, 1);
}

TEST_F(CVQDIBTextLines, NeedAColourEach)
{
    const auto drawTooMany = [this] { draw(L"one\ntwo\nthree", {kRed, kBlue}); };
    bool thrown = false;
    try {
        drawTooMany();
    } catch (CInvalidArgException* exception) {
        exception->Delete();
        thrown = true;
    }
    EXPECT_TRUE(thrown);
    EXPECT_EQ(of(kRedPixel), CRect(11, 22, 90, 22 + m_height)) << "the lines before are drawn";
    EXPECT_EQ(of(kBluePixel), CRect(11, 22 + m_height, 90, 22 + 2 * m_height));
}

TEST_F(CVQDIBTextLines, MayHaveMoreColoursThanNeeded)
{
    draw(L"one", {kRed, kBlue, kBlue});
    EXPECT_EQ(of(kBluePixel), CRect());
    EXPECT_NE(of(kRedPixel), CRect());
}

TEST_F(CVQDIBTextLines, FromRightToLeftHaveABackgroundUnderTheFirstOnly)
{
    draw(L"one\ntwo", {kRed, kBlue}, {89, 20, 10, 25});
    EXPECT_EQ(of(kRedPixel), CRect(11, 22, 90, 22 + m_height));
    EXPECT_EQ(of(kBluePixel), CRect());
}

TEST_F(CVQDIBTextLines, LeaveAntialiasingAsItWas)
{
    for (const bool on : {true, false}) {
        m_image.EnableAntialias(on);
        const auto mode = m_image.GetGraphics()->GetSmoothingMode();
        draw(L"one\ntwo", {kRed, kBlue});
        EXPECT_EQ(m_image.IsEnableAntialias(), on);
        EXPECT_EQ(m_image.GetGraphics()->GetSmoothingMode(), mode);
        EXPECT_EQ(of(kBluePixel), CRect(11, 22 + m_height, 90, 22 + 2 * m_height)) << "with hard edges";
    }
}

TEST_F(CVQDIBTextLines, LeaveTheRectangleAndTheTextAlone)
{
    RECT rect{10, 20, 89, 25};
    const CString text(L"one\ntwo");
    m_image.DrawTextW(text, &rect, 0, Colours());
    EXPECT_EQ(CRect(rect), CRect(10, 20, 89, 25));
    EXPECT_EQ(text, L"one\ntwo");
}

} // namespace
} // namespace vq::test::cvqdibTextLinesTests
