// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"
#include "parity/TextSupport.h"

#include <cstring>
#include <memory>

namespace vq::test::textTests {
namespace {

using namespace Gdiplus;

constexpr REAL kEm = 48;
constexpr REAL kCell = kEm * (1901 + 483) / 2048; // DejaVu Sans: winAscent and winDescent of 2048 units
constexpr REAL kHundredth = kEm / 100;

class MeasureString : public testing::Test
{
protected:
    RectF measure(const WCHAR* text, const RectF& layout = RectF(), const StringFormat* format = nullptr)
    {
        RectF bounds;
        EXPECT_EQ(
            m_picture.graphics.MeasureString(text, -1, m_font.get(), layout, format, &bounds, &m_fitted, &m_lines), Ok);
        return bounds;
    }
    REAL width(const WCHAR* text) { return measure(text).Width; }

    TestPicture m_picture{1, 1};
    std::unique_ptr<Font> m_font = sansFont(-static_cast<LONG>(kEm));
    INT m_fitted = -1;
    INT m_lines = -1;
};

TEST_F(MeasureString, LeavesASixthOfAnEmBeforeAndAfterTheText)
{
    EXPECT_NEAR(2 * width(L"W") - width(L"WW"), kEm / 3, kHundredth);
}

TEST_F(MeasureString, AddsUpUnhintedAdvances)
{
    EXPECT_NEAR(width(L"WWWWWWWWWW") - width(L"W"), 9 * kEm * 2025 / 2048, 9 * 0.5); // W advances 2025 units
}

TEST_F(MeasureString, OfNothingIsEmptyAtTheOrigin)
{
    const RectF bounds = measure(L"", RectF(3, 4, 50, 60));
    EXPECT_TRUE(bounds.Equals(RectF(3, 4, 0, 0)));
    EXPECT_EQ(m_fitted, 0);
    EXPECT_EQ(m_lines, 0);
}

TEST_F(MeasureString, IsACellAndAnEighthOfAnEmHighAndALineSpacingMoreForEachLine)
{
    const REAL one = measure(L"M").Height;
    EXPECT_NEAR(measure(L"M\nM\nM").Height - one, 2 * kCell, 1); // the face has no external leading
    if (differsHere("height of measured text"))
        return;
    EXPECT_NEAR(one, kCell + kEm / 8, kHundredth);
}

TEST_F(MeasureString, CountsLeadingButNotTrailingSpaces)
{
    EXPECT_GT(width(L" a"), width(L"a") + 1);
    if (differsHere("spaces at the end of a line"))
        return;
    EXPECT_NEAR(width(L"a "), width(L"a"), kHundredth);
    EXPECT_NEAR(width(L" "), width(L"   "), kHundredth);
}

TEST_F(MeasureString, CountsTrailingSpacesWhenTheFormatSaysSo)
{
    const StringFormat format(StringFormatFlagsMeasureTrailingSpaces);
    EXPECT_NEAR(measure(L"a ", RectF(), &format).Width - width(L"a"), kEm * 651 / 2048, 1); // the space's advance
}

TEST_F(MeasureString, CountsABreakAmongTheCharactersOfItsLine)
{
    measure(L"M\r\nM");
    EXPECT_EQ(m_lines, 2);
    EXPECT_EQ(m_fitted, 4);
    measure(L"M\n");
    EXPECT_EQ(m_lines, 1);
    if (differsHere("line breaks among fitted characters"))
        return;
    EXPECT_EQ(m_fitted, 2);
}

TEST_F(MeasureString, WrapsAtSpacesAndTheSpaceIsNotMeasured)
{
    const RectF bounds = measure(L"M MM", RectF(0, 0, width(L"M M") + 1, 0));
    EXPECT_EQ(m_lines, 2);
    EXPECT_EQ(m_fitted, 4);
    EXPECT_NEAR(bounds.Width, width(L"MM"), kHundredth);
}

TEST_F(MeasureString, BreaksAWordThatIsWiderThanTheLine)
{
    measure(L"MMMM", RectF(0, 0, width(L"MM") + 1, 0));
    EXPECT_EQ(m_lines, 2);
}

TEST_F(MeasureString, WithoutWrappingTellsWhereTheLineIsCut)
{
    const StringFormat format(StringFormatFlagsNoWrap);
    const RectF bounds = measure(L"MMMM", RectF(0, 0, width(L"MM") + 1, 0), &format);
    EXPECT_EQ(m_lines, 1);
    EXPECT_EQ(m_fitted, 2);
    EXPECT_NEAR(bounds.Width, width(L"MM"), kHundredth);
}

TEST_F(MeasureString, IsClampedToTheRectangle)
{
    const RectF bounds = measure(L"MM\nMM", RectF(0, 0, 20, 30));
    EXPECT_LE(bounds.Width, 20);
    EXPECT_LE(bounds.Height, 30);
}

TEST_F(MeasureString, CentredAndFarTextMovesByTheFreeSpace)
{
    StringFormat format;
    format.SetAlignment(StringAlignmentCenter);
    format.SetLineAlignment(StringAlignmentFar);
    const RectF bounds = measure(L"M", RectF(100, 200, 300, 400), &format);
    EXPECT_NEAR(bounds.Width, width(L"M"), kHundredth);
    if (differsHere("place of measured text"))
        return;
    EXPECT_NEAR(bounds.X, 100 + (300 - bounds.Width) / 2, kHundredth);
    EXPECT_NEAR(bounds.GetBottom(), 600, kHundredth);
    const RectF beside = measure(L"M", RectF(100, 200, 0, 0), &format);
    EXPECT_NEAR(beside.X, 100 - bounds.Width / 2, kHundredth);
}

TEST_F(MeasureString, TakesAsManyCharactersAsItIsTold)
{
    RectF part;
    EXPECT_EQ(m_picture.graphics.MeasureString(L"WWW", 2, m_font.get(), PointF(5, 6), &part), Ok);
    EXPECT_NEAR(part.Width, width(L"WW"), kHundredth);
    EXPECT_EQ(part.X, 5);
    EXPECT_EQ(part.Y, 6);
    EXPECT_EQ(m_picture.graphics.MeasureString(L"WWW", 0, m_font.get(), PointF(5, 6), &part), Ok);
    EXPECT_TRUE(part.Equals(RectF(5, 6, 0, 0)));
}

TEST_F(MeasureString, HasFormsForPointsAndSizes)
{
    const RectF expected = measure(L"M");
    RectF bounds;
    EXPECT_EQ(m_picture.graphics.MeasureString(L"M", -1, m_font.get(), RectF(), &bounds), Ok);
    EXPECT_TRUE(bounds.Equals(expected));
    EXPECT_EQ(m_picture.graphics.MeasureString(L"M", -1, m_font.get(), PointF(), nullptr, &bounds), Ok);
    EXPECT_TRUE(bounds.Equals(expected));
    SizeF size;
    EXPECT_EQ(m_picture.graphics.MeasureString(L"M", -1, m_font.get(), SizeF(), nullptr, &size), Ok);
    EXPECT_TRUE(size.Equals(SizeF(expected.Width, expected.Height)));
}

TEST_F(MeasureString, RefusesWhatIsMissing)
{
    Graphics& graphics = m_picture.graphics;
    RectF bounds;
    EXPECT_EQ(graphics.MeasureString(nullptr, -1, m_font.get(), PointF(), &bounds), InvalidParameter);
    EXPECT_EQ(graphics.MeasureString(L"M", -1, nullptr, PointF(), &bounds), InvalidParameter);
    EXPECT_EQ(graphics.MeasureString(L"M", -1, m_font.get(), PointF(), nullptr), InvalidParameter);
    EXPECT_EQ(graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(graphics.MeasureString(L"M", -1, m_font.get(), SizeF(), nullptr, static_cast<SizeF*>(nullptr)),
              InvalidParameter);
}

TEST_F(MeasureString, WorksOnAFreshMemoryContext)
{
    const HDC context = CreateCompatibleDC(nullptr);
    {
        const auto font = sansFont(-static_cast<LONG>(kEm), context);
        Graphics graphics(context);
        graphics.SetTextRenderingHint(TextRenderingHintSingleBitPerPixelGridFit);
        RectF bounds;
        EXPECT_EQ(graphics.MeasureString(L"Measure", -1, font.get(), PointF(), &bounds), Ok);
        EXPECT_NEAR(bounds.Width, width(L"Measure"), 1);
        EXPECT_GT(bounds.Height, kEm);
    }
    DeleteDC(context);
}

constexpr std::uint32_t kRed = 0xFFFF0000;

class DrawString : public testing::TestWithParam<TextRenderingHint>
{
protected:
    DrawString() { m_picture.graphics.SetTextRenderingHint(GetParam()); }

    Status draw(const WCHAR* text, const RectF& layout, const StringFormat* format = nullptr)
    {
        return m_picture.graphics.DrawString(text, -1, m_font.get(), layout, format, &m_brush);
    }
    /// Around all pixels that are not as they were.
    TestPicture::Found touched() const { return m_picture.findOther(0); }

    TestPicture m_picture{200, 100};
    std::unique_ptr<Font> m_font = sansFont(-24);
    SolidBrush m_brush{Color(kRed)};
};

INSTANTIATE_TEST_SUITE_P(AllHints, DrawString,
                         testing::Values(TextRenderingHintSystemDefault, TextRenderingHintSingleBitPerPixelGridFit,
                                         TextRenderingHintSingleBitPerPixel, TextRenderingHintAntiAliasGridFit,
                                         TextRenderingHintAntiAlias, TextRenderingHintClearTypeGridFit));

TEST_P(DrawString, BeginsASixthOfAnEmBesideThePointAndStandsOnTheBaseline)
{
    EXPECT_EQ(m_picture.graphics.DrawString(L"H", -1, m_font.get(), PointF(20, 30), &m_brush), Ok);
    const auto found = touched();
    // DejaVu Sans of em 24: the ascent is 22.3, H is 17.5 high and its left stem begins at 2.4.
    EXPECT_NEAR(found.left, 20 + 4 + 2, 2);
    EXPECT_NEAR(found.bottom + 1, 30 + 22.3, 2);
    EXPECT_NEAR(found.bottom + 1 - found.top, 17.5, 2);
}

TEST_P(DrawString, OfNothingIsNothing)
{
    EXPECT_EQ(draw(L"", RectF(0, 0, 50, 50)), Ok);
    EXPECT_EQ(m_picture.graphics.DrawString(L"H", 0, m_font.get(), PointF(20, 30), &m_brush), Ok);
    EXPECT_EQ(touched().count, 0);
}

TEST_P(DrawString, DrawsAsManyCharactersAsItIsTold)
{
    EXPECT_EQ(m_picture.graphics.DrawString(L"HH", 1, m_font.get(), PointF(20, 30), nullptr, &m_brush), Ok);
    const auto one = touched();
    TestPicture other(200, 100);
    other.graphics.SetTextRenderingHint(GetParam());
    EXPECT_EQ(other.graphics.DrawString(L"H", -1, m_font.get(), PointF(20, 30), &m_brush), Ok);
    EXPECT_GT(one.count, 0);
    EXPECT_EQ(m_picture.all(), other.all());
}

TEST_P(DrawString, StaysInItsRectangleUnlessNothingIsClipped)
{
    if (differsHere("text and its rectangle"))
        return;
    draw(L"MMMM\nMMMM", RectF(20, 30, 40, 30));
    auto found = touched();
    EXPECT_GT(found.count, 0);
    EXPECT_GE(found.left, 20);
    EXPECT_GE(found.top, 30);
    EXPECT_LT(found.right, 60);
    EXPECT_LT(found.bottom, 60);

    StringFormat format(StringFormatFlagsNoClip | StringFormatFlagsNoWrap);
    format.SetTrimming(StringTrimmingNone);
    draw(L"MMMM", RectF(20, 30, 40, 30), &format);
    EXPECT_GT(touched().right, 80);
}

TEST_P(DrawString, AlignsInItsRectangle)
{
    StringFormat format;
    format.SetAlignment(StringAlignmentCenter);
    format.SetLineAlignment(StringAlignmentCenter);
    draw(L"H", RectF(0, 0, 200, 100), &format);
    auto found = touched();
    EXPECT_NEAR((found.left + found.right + 1) / 2.0, 100, 2);
    EXPECT_NEAR(found.bottom + 1, 50 - 14 + 22.3, 2); // the cell is 28 high

    m_picture.graphics.Clear(Color(0));
    format.SetAlignment(StringAlignmentFar);
    format.SetLineAlignment(StringAlignmentFar);
    draw(L"H", RectF(0, 0, 200, 100), &format);
    found = touched();
    EXPECT_LT(found.right, 200);
    EXPECT_GT(found.right, 200 - 4 - 2 - 4); // a margin of 4 at most, and 2.4 beside the right stem
    EXPECT_NEAR(found.bottom + 1, 100 - 5.7, 2);
}

TEST_P(DrawString, TakesNoNoticeOfSmoothing)
{
    TestPicture other(200, 100);
    other.graphics.SetTextRenderingHint(GetParam());
    other.graphics.SetSmoothingMode(SmoothingModeAntiAlias);
    draw(L"Ag", RectF(3, 4, 0, 0));
    EXPECT_EQ(other.graphics.DrawString(L"Ag", -1, m_font.get(), PointF(3, 4), &m_brush), Ok);
    EXPECT_EQ(m_picture.all(), other.all());
}

TEST_P(DrawString, RefusesWhatIsMissing)
{
    Graphics& graphics = m_picture.graphics;
    const RectF layout(0, 0, 50, 50);
    EXPECT_EQ(graphics.DrawString(nullptr, -1, m_font.get(), layout, nullptr, &m_brush), InvalidParameter);
    EXPECT_EQ(graphics.DrawString(L"H", -1, nullptr, layout, nullptr, &m_brush), InvalidParameter);
    EXPECT_EQ(graphics.DrawString(L"H", -1, m_font.get(), layout, nullptr, nullptr), InvalidParameter);
    EXPECT_EQ(graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(touched().count, 0);
}

TEST_P(DrawString, FailsUnderSourceCopyAndDrawsNothing)
{
    if (differsHere("text under SourceCopy"))
        return;
    m_picture.graphics.SetCompositingMode(CompositingModeSourceCopy);
    EXPECT_EQ(draw(L"H", RectF()), InvalidParameter);
    EXPECT_EQ(touched().count, 0);
}

TEST(TwoLevelText, GivesEveryTouchedPixelTheColourOfTheBrush)
{
    if (differsHere("text hints"))
        return;
    for (const auto hint : {TextRenderingHintSingleBitPerPixelGridFit, TextRenderingHintSingleBitPerPixel}) {
        TestPicture picture(200, 40);
        picture.graphics.SetTextRenderingHint(hint);
        const SolidBrush brush{Color(0x80336699)};
        picture.graphics.DrawString(L"Sphinx 0.5 &", -1, sansFont(-20).get(), PointF(2.5f, 3.3f), &brush);
        const int count = picture.find(0x80336699).count;
        EXPECT_GT(count, 100);
        EXPECT_EQ(picture.findOther(0).count, count);
    }
}

TEST(GreyText, CoversTheEdgesOfGlyphsInPart)
{
    for (const auto hint : {TextRenderingHintAntiAliasGridFit, TextRenderingHintAntiAlias}) {
        TestPicture picture(60, 60);
        picture.graphics.SetTextRenderingHint(hint);
        const SolidBrush brush{Color(kRed)};
        picture.graphics.DrawString(L"O", -1, sansFont(-40).get(), PointF(), &brush);
        const int full = picture.find(kRed).count;
        EXPECT_GT(full, 50);
        EXPECT_GT(picture.findOther(0).count, full + 20);
    }
}

TEST(TextOnAContext, ReachesTheSelectedBitmap)
{
    const HDC context = CreateCompatibleDC(nullptr);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = 60;
    info.bmiHeader.biHeight = -40;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    void* bits = nullptr;
    const HBITMAP bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
    const HGDIOBJ before = SelectObject(context, bitmap);
    std::memset(bits, 0xFF, 60 * 40 * 4);
    {
        Graphics graphics(context);
        graphics.SetTextRenderingHint(TextRenderingHintAntiAliasGridFit);
        const SolidBrush brush{Color(0xFF000000)};
        EXPECT_EQ(graphics.DrawString(L"\x2588", -1, sansFont(-24).get(), PointF(4, 4), &brush), Ok);
    }
    const auto* pixels = static_cast<const std::uint32_t*>(bits);
    EXPECT_EQ(pixels[20 * 60 + 14] & 0xFFFFFF, 0u) << "in the middle of the block";
    EXPECT_EQ(pixels[20 * 60 + 50] & 0xFFFFFF, 0xFFFFFFu);
    SelectObject(context, before);
    DeleteObject(bitmap);
    DeleteDC(context);
}

} // namespace
} // namespace vq::test::textTests
