// SPDX-License-Identifier: MIT
// Text through the classes of GDI+: what is our own or cannot be compared with Wine.
#include "parity/Pixels.h"
#include "parity/TextSupport.h"
#include "support/SharedLibrary.h"
#include "unit/Platform/gdiplus/GdiplusSession.h"

#include <cmath>
#include <limits>
#include <memory>
#include <string>

namespace vq::test {
namespace {

using namespace Gdiplus;

constexpr const WCHAR* kSans = L"DejaVu Sans";
constexpr std::uint32_t kBlack = 0xFF000000;

class Text : public GdiplusTest
{
protected:
    RectF measure(const Font& font, const WCHAR* text, const StringFormat* format = nullptr,
                  const RectF& layout = RectF())
    {
        RectF bounds;
        EXPECT_EQ(m_picture.graphics.MeasureString(text, -1, &font, layout, format, &bounds, &m_fitted, &m_lines), Ok);
        return bounds;
    }
    Status draw(const Font& font, const WCHAR* text, const RectF& layout, const StringFormat* format = nullptr)
    {
        return m_picture.graphics.DrawString(text, -1, &font, layout, format, &m_brush);
    }

    TestPicture m_picture{200, 100};
    SolidBrush m_brush{Color(kBlack)};
    INT m_fitted = -1;
    INT m_lines = -1;
};

TEST_F(Text, EndsAtANullHoweverLongItIsSaidToBe)
{
    const auto font = sansFont(-20);
    RectF bounds;
    INT fitted = 0;
    EXPECT_EQ(m_picture.graphics.MeasureString(L"W\0WW", 4, font.get(), RectF(), nullptr, &bounds, &fitted), Ok);
    EXPECT_TRUE(bounds.Equals(measure(*font, L"W")));
    EXPECT_EQ(fitted, 1);
    EXPECT_EQ(m_picture.graphics.MeasureString(L"W", 1 << 30, font.get(), PointF(), &bounds), Ok);
    EXPECT_TRUE(bounds.Equals(measure(*font, L"W")));
    EXPECT_EQ(m_picture.graphics.MeasureString(L"W", -2, font.get(), PointF(), &bounds), InvalidParameter);
    EXPECT_EQ(m_picture.graphics.DrawString(L"W", -2, font.get(), PointF(), &m_brush), InvalidParameter);
}

TEST_F(Text, OfABrokenFontIsInvalid)
{
    const Font font(L"No such family", 12);
    RectF bounds;
    EXPECT_EQ(draw(font, L"W", RectF()), InvalidParameter);
    EXPECT_EQ(m_picture.graphics.MeasureString(L"W", -1, &font, PointF(), &bounds), InvalidParameter);
}

TEST_F(Text, GrowsWithThePage)
{
    // One unit is 2 * 96 / 25.4 pixels: a font of 3 units is one of 22.677 pixels, and so are the places.
    constexpr REAL kFactor = 2 * 96 / 25.4f;
    const Font inUnits(kSans, 3, FontStyleRegular, UnitWorld);
    const Font inPixels(kSans, 3 * kFactor, FontStyleRegular, UnitPixel);
    const RectF layout(2, 1, 12, 6);
    const RectF expected = measure(inPixels, L"W WWWW");
    EXPECT_EQ(draw(inPixels, L"W WWWW", RectF(2 * kFactor, kFactor, 12 * kFactor, 6 * kFactor)), Ok);

    TestPicture scaled(200, 100);
    scaled.graphics.SetPageUnit(UnitMillimeter);
    scaled.graphics.SetPageScale(2);
    EXPECT_EQ(scaled.graphics.DrawString(L"W WWWW", -1, &inUnits, layout, nullptr, &m_brush), Ok);
    EXPECT_GT(scaled.find(kBlack).count, 100);
    EXPECT_EQ(scaled.all(), m_picture.all());
    RectF bounds;
    EXPECT_EQ(scaled.graphics.MeasureString(L"W WWWW", -1, &inUnits, PointF(), &bounds), Ok);
    EXPECT_NEAR(bounds.Width, expected.Width / kFactor, 1e-3);
    EXPECT_NEAR(bounds.Height, expected.Height / kFactor, 1e-3);
    EXPECT_NEAR(inUnits.GetHeight(&scaled.graphics), 3.0 * 2384 / 2048, 1e-5);
    LOGFONTW record{};
    EXPECT_EQ(inUnits.GetLogFontW(&scaled.graphics, &record), Ok);
    EXPECT_EQ(record.lfHeight, -23);
}

TEST_F(Text, OfAFontInPointsKeepsItsSizeOnEveryPageUnit)
{
    const Font font(kSans, 12, FontStyleRegular, UnitPoint);
    const RectF pixels = measure(font, L"W");
    EXPECT_TRUE(pixels.Equals(measure(Font(kSans, 16, FontStyleRegular, UnitPixel), L"W")));
    EXPECT_TRUE(pixels.Equals(measure(*sansFont(-16), L"W")));
    m_picture.graphics.SetPageUnit(UnitInch);
    EXPECT_NEAR(measure(font, L"W").Width * 96, pixels.Width, 1e-3);
    EXPECT_NEAR(font.GetHeight(&m_picture.graphics) * 96, 16.0 * 2384 / 2048, 1e-3);
}

TEST_F(Text, TypographicFormatLeavesNoRoomAround)
{
    const auto font = sansFont(-24);
    const RectF plain = measure(*font, L"W");
    const RectF bare = measure(*font, L"W", StringFormat::GenericTypographic());
    EXPECT_NEAR(bare.Width, 24.0 * 2025 / 2048, 1e-3); // the advance of W
    EXPECT_NEAR(bare.Height, 24.0 * 2384 / 2048, 1e-3);
    EXPECT_NEAR(plain.Width - bare.Width, 24.0 / 3, 1e-3);
    EXPECT_NEAR(plain.Height - bare.Height, 24.0 / 8, 1e-3);
    draw(*font, L"H", RectF(50, 0, 0, 0), StringFormat::GenericTypographic());
    EXPECT_NEAR(m_picture.findOther(0).left, 52, 1); // the stem begins 201 units behind the place
}

TEST_F(Text, LineLimitLeavesOutLinesThatWouldBeCut)
{
    const auto font = sansFont(-24);
    const StringFormat format(StringFormatFlagsLineLimit);
    measure(*font, L"M\nM\nM", &format, RectF(0, 0, 0, 28 + 27));
    EXPECT_EQ(m_lines, 1);
    measure(*font, L"M\nM\nM", nullptr, RectF(0, 0, 0, 28 + 27));
    EXPECT_EQ(m_lines, 2);
    const REAL three = measure(*font, L"M\nM\nM").Height;
    measure(*font, L"M\nM\nM", &format, RectF(0, 0, 0, three));
    EXPECT_EQ(m_lines, 3);
    EXPECT_TRUE(measure(*font, L"M", &format, RectF(5, 6, 0, 27)).Equals(RectF(5, 6, 0, 0)));
    EXPECT_EQ(m_fitted, 0);
}

TEST_F(Text, RunsFromTheRightWhereTheFormatSaysSo)
{
    const auto font = sansFont(-24);
    const StringFormat format(StringFormatFlagsDirectionRightToLeft);
    draw(*font, L"H", RectF(0, 0, 200, 50), &format);
    EXPECT_NEAR(m_picture.findOther(0).right + 1, 200 - 4 - 2.4, 2);
    EXPECT_NEAR(measure(*font, L"H", &format, RectF(0, 0, 200, 0)).GetRight(), 200, 1e-3);

    // A full stop behind the text of a paragraph that runs to the left stands left of it.
    m_picture.graphics.Clear(Color(0));
    draw(*font, L"H.", RectF(0, 0, 200, 50), &format);
    TestPicture mirrored(200, 100);
    mirrored.graphics.DrawString(L".H", -1, font.get(), RectF(0, 0, measure(*font, L".H").Width, 50), nullptr,
                                 &m_brush);
    const int shift = m_picture.findOther(0).left - mirrored.findOther(0).left;
    EXPECT_NEAR(shift, 200 - measure(*font, L".H").Width, 1);
}

TEST_F(Text, HotkeysAreHiddenOrUnderlined)
{
    const auto font = sansFont(-24);
    StringFormat format;
    const RectF marked = measure(*font, L"&H&&H");
    EXPECT_GT(marked.Width, measure(*font, L"H&H").Width);
    for (const HotkeyPrefix prefix : {HotkeyPrefixHide, HotkeyPrefixShow}) {
        format.SetHotkeyPrefix(prefix);
        EXPECT_TRUE(measure(*font, L"&H&&H", &format).Equals(measure(*font, L"H&H"))) << prefix;
        measure(*font, L"&H&&H", &format);
        EXPECT_EQ(m_fitted, 5);
        EXPECT_TRUE(measure(*font, L"H&", &format).Equals(measure(*font, L"H"))) << prefix;
    }
    measure(*font, L"&M&MM", &format, RectF(0, 0, measure(*font, L"MM").Width, 20));
    EXPECT_EQ(m_fitted, 4) << "two letters and their marks";

    draw(*font, L"i&Hi", RectF(0, 0, 200, 50), &format);
    TestPicture plain(200, 100);
    plain.graphics.DrawString(L"iHi", -1, font.get(), PointF(), &m_brush);
    const auto underline = m_picture.find(kBlack);
    EXPECT_GT(underline.bottom, plain.find(kBlack).bottom) << "the letters stand on the baseline, the line below";
    int length = 0;
    for (const Argb pixel : m_picture.row(underline.bottom))
        length += pixel.value == kBlack ? 1 : 0;
    EXPECT_NEAR(length, 24.0 * 1540 / 2048, 1) << "the advance of H";
    EXPECT_GT(underline.right, 4 + 24.0 * (569 + 1540) / 2048) << "the last letter is behind the line";
}

TEST_F(Text, PicturesOfEmojiAreAsTransparentAsTheBrush)
{
    const auto font = sansFont(-40);
    const auto highestAlpha = [&](std::uint32_t colour) {
        TestPicture picture(80, 80);
        picture.graphics.SetTextRenderingHint(TextRenderingHintAntiAlias);
        const SolidBrush brush{Color(colour)};
        EXPECT_EQ(picture.graphics.DrawString(L"\x1F600", -1, font.get(), PointF(), &brush), Ok);
        std::uint32_t highest = 0;
        for (const Argb pixel : picture.all())
            highest = std::max(highest, pixel.value >> 24);
        return highest;
    };
    EXPECT_EQ(highestAlpha(0xFFFF0000), 255u);
    EXPECT_EQ(highestAlpha(0x80FF0000), 128u);
    EXPECT_EQ(highestAlpha(0x00FF0000), 0u);
}

TEST_F(Text, IsFilledByAnyBrush)
{
    const auto font = sansFont(-40);
    TestPicture picture(200, 60);
    const LinearGradientBrush gradient(PointF(0, 0), PointF(200, 0), Color(0xFFFF0000), Color(0xFF0000FF));
    EXPECT_EQ(picture.graphics.DrawString(L"\x2588\x2588\x2588", -1, font.get(), PointF(), &gradient), Ok);
    TestPicture filled(200, 60);
    filled.graphics.FillRectangle(&gradient, 0, 0, 200, 60);
    for (const int x : {12, 40, 70})
        EXPECT_EQ(picture.at(x, 24), filled.at(x, 24)) << "inside a block";
    EXPECT_EQ(picture.at(190, 24), Argb{0}) << "behind the text";

    const HatchBrush hatch(HatchStyleVertical, Color(0xFF00FF00), Color(0x00000000));
    TestPicture hatched(200, 60);
    EXPECT_EQ(hatched.graphics.DrawString(L"\x2588", -1, font.get(), PointF(), &hatch), Ok);
    EXPECT_EQ(hatched.at(16, 24), Argb{0xFF00FF00});
    EXPECT_EQ(hatched.at(17, 24), Argb{0});
}

TEST_F(Text, PicturesOfEmojiHaveTheBrushsAlphaPixelByPixel)
{
    TestPicture picture(80, 80);
    const HatchBrush hatch(HatchStyleVertical, Color(0xFF00FF00), Color(0x00000000));
    EXPECT_EQ(picture.graphics.DrawString(L"\x1F600", -1, sansFont(-40).get(), PointF(), &hatch), Ok);
    const auto found = picture.findOther(0);
    EXPECT_GT(found.count, 0);
    for (int y = found.top; y <= found.bottom; ++y)
        for (int x = found.left; x <= found.right; ++x)
            EXPECT_TRUE(picture.at(x, y) == Argb{0} || x % 8 == 0) << x << ", " << y;
}

TEST_F(Text, IsUnderlinedAndStruckOutByItsFont)
{
    const Font plain(kSans, 24, FontStyleRegular, UnitPixel);
    const Font lined(kSans, 24, FontStyleUnderline | FontStyleStrikeout, UnitPixel);
    draw(plain, L"H", RectF());
    const auto without = m_picture.find(kBlack);
    draw(lined, L"H", RectF());
    const auto with = m_picture.find(kBlack);
    EXPECT_GT(with.bottom, without.bottom);
    EXPECT_LT(with.left, without.left);
    EXPECT_GT(with.count, without.count);
}

TEST_F(Text, TakesAnyNumbers)
{
    const auto font = sansFont(-12);
    const REAL numbers[] = {0, -1, 1e-30f, 1e30f, -1e30f, std::numeric_limits<REAL>::infinity(), std::nanf("")};
    RectF bounds;
    for (const REAL x : numbers)
        for (const REAL width : numbers) {
            EXPECT_EQ(draw(*font, L"W\nW", RectF(x, x, width, width)), Ok);
            EXPECT_EQ(m_picture.graphics.MeasureString(L"W W", -1, font.get(), RectF(x, x, width, width), &bounds), Ok);
        }
    for (const REAL size : numbers)
        Font(kSans, size, FontStyleRegular, UnitPixel);
    m_picture.graphics.SetPageScale(std::nanf(""));
    EXPECT_EQ(draw(*font, L"W", RectF()), InvalidParameter);
    m_picture.graphics.SetPageScale(1e9f);
    EXPECT_EQ(draw(*font, L"W", RectF()), InvalidParameter) << "no font is that large";
}

TEST_F(Text, ReachesPicturesWithoutStraightAlpha)
{
    for (const PixelFormat format : {PixelFormat24bppRGB, PixelFormat32bppRGB, PixelFormat32bppPARGB}) {
        Bitmap bitmap(40, 40, format);
        Graphics graphics(&bitmap);
        const SolidBrush white{Color(0xFFFFFFFF)};
        EXPECT_EQ(graphics.DrawString(L"\x2588", -1, sansFont(-24).get(), PointF(), &white), Ok);
        Color colour;
        bitmap.GetPixel(12, 14, &colour);
        EXPECT_EQ(colour.GetValue(), 0xFFFFFFFF) << format;
    }
}

TEST_F(Text, DrawnAgainTakesNoMemory)
{
    const HDC context = CreateCompatibleDC(nullptr);
    const LOGFONTW record = logicalFont(-11, "DejaVu Sans");
    const auto drawLabels = [&] {
        for (int i = 0; i < 200; ++i) {
            const Font font(context, &record);
            m_picture.graphics.DrawString(L"Label 1", -1, &font, PointF(static_cast<REAL>(i), 50), &m_brush);
        }
    };
    drawLabels();
    const std::size_t before = bytesInUse();
    drawLabels();
    EXPECT_LE(bytesInUse(), before);
    DeleteDC(context);
}

TEST_F(Text, FacesOfWindowsHaveStandInsUnderTheirNames)
{
    for (const WCHAR* name : {L"Arial", L"Times New Roman", L"Courier New", L"Tahoma", L"Microsoft Sans Serif"}) {
        const FontFamily family(name);
        EXPECT_EQ(family.GetLastStatus(), Ok) << name;
        WCHAR answer[LF_FACESIZE] = L"";
        EXPECT_EQ(family.GetFamilyName(answer), Ok);
        EXPECT_EQ(std::wstring(answer), name);
        EXPECT_EQ(Font(name, 12).GetLastStatus(), Ok);
    }
}

TEST_F(Text, NamesThatCanBeNoFamilysAreNotFound)
{
    for (const WCHAR* name : {L"", L"Courier", L"System", L"a name of more than thirty-one characters"})
        EXPECT_EQ(FontFamily(name).GetLastStatus(), FontFamilyNotFound) << name;
}

TEST_F(Text, FontsNeedAContext)
{
    const LOGFONTW record = logicalFont(-11, "DejaVu Sans");
    const HDC context = CreateCompatibleDC(nullptr);
    EXPECT_EQ(Font(context, static_cast<const LOGFONTW*>(nullptr)).GetLastStatus(), NotTrueTypeFont) << "its own font";
    DeleteDC(context);
    EXPECT_EQ(Font(context, &record).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Font(static_cast<HDC>(nullptr)).GetLastStatus(), InvalidParameter);
}

TEST_F(Text, RasterNamesAreNoOutlineFonts)
{
    for (const char* face : {"System", "courier", "MS Sans Serif", "Terminal"})
        EXPECT_EQ(fontFrom(logicalFont(-12, face))->GetLastStatus(), NotTrueTypeFont) << face;
    const HDC context = CreateCompatibleDC(nullptr);
    SelectObject(context, GetStockObject(OEM_FIXED_FONT));
    EXPECT_EQ(Font(context).GetLastStatus(), NotTrueTypeFont) << "Terminal";
    DeleteDC(context);
    EXPECT_EQ(fontFrom(logicalFont(-12, ""))->GetLastStatus(), Ok) << "the user interface's";
}

TEST_F(Text, UnitsAndSizesThatAreNoneMakeNoFont)
{
    EXPECT_EQ(Font(kSans, 12, FontStyleRegular, UnitDisplay).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Font(kSans, 12, FontStyleRegular, static_cast<Unit>(7)).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Font(kSans, 0).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Font(kSans, 10001).GetLastStatus(), InvalidParameter);
}

TEST_F(Text, SettingsThatAreNoneLeaveAFormatAsItWas)
{
    StringFormat format;
    EXPECT_EQ(format.SetAlignment(static_cast<StringAlignment>(3)), InvalidParameter);
    EXPECT_EQ(format.SetLineAlignment(static_cast<StringAlignment>(-1)), InvalidParameter);
    EXPECT_EQ(format.SetTrimming(static_cast<StringTrimming>(6)), InvalidParameter);
    EXPECT_EQ(format.GetAlignment(), StringAlignmentNear);
    EXPECT_EQ(format.GetLineAlignment(), StringAlignmentNear);
    EXPECT_EQ(format.GetTrimming(), StringTrimmingCharacter);
}

TEST(TextBeforeStartup, IsNotInitialized)
{
    EXPECT_EQ(Font(kSans, 12).GetLastStatus(), GdiplusNotInitialized);
    EXPECT_EQ(FontFamily(kSans).GetLastStatus(), GdiplusNotInitialized);
    EXPECT_EQ(StringFormat().GetLastStatus(), GdiplusNotInitialized);
}

TEST(TextAfterShutdown, GivesBackWhatWasKeptOfFontsAndGlyphs)
{
    std::size_t drawn = 0;
    {
        const GdiplusSession session;
        TestPicture picture(100, 30);
        const SolidBrush brush{Color(kBlack)};
        EXPECT_EQ(picture.graphics.DrawString(L"Label", -1, sansFont(-11).get(), PointF(), &brush), Ok);
        drawn = bytesInUse();
    }
    constexpr std::size_t kLeast = 32 * 1024; // the lists of fonts alone are more
    EXPECT_TRUE(drawn == 0 || bytesInUse() + kLeast < drawn) << "0 where memory is not counted";
}

TEST(TextAfterShutdown, FontsCanBeDeletedAndUsedAgain)
{
    std::unique_ptr<Font> font;
    {
        const GdiplusSession session;
        font = sansFont(-12);
    }
    EXPECT_FALSE(font->Clone());
    EXPECT_EQ(font->GetLastStatus(), GdiplusNotInitialized);
    const GdiplusSession session;
    EXPECT_EQ(font->GetSize(), 12);
}

} // namespace
} // namespace vq::test
