// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"
#include "parity/TextSupport.h"

#include <memory>
#include <string>

namespace vq::test {
namespace {

using namespace Gdiplus;

constexpr const WCHAR* kSans = L"DejaVu Sans";

/// A memory context in which a font can be selected.
class FontContext
{
public:
    FontContext() : m_context(CreateCompatibleDC(nullptr)), m_before(GetCurrentObject(m_context, OBJ_FONT)) {}
    ~FontContext()
    {
        SelectObject(m_context, m_before);
        DeleteDC(m_context);
    }
    FontContext(const FontContext&) = delete;
    FontContext& operator=(const FontContext&) = delete;

    HDC handle() const { return m_context; }
    void select(HGDIOBJ font) { SelectObject(m_context, font); }

private:
    HDC m_context;
    HGDIOBJ m_before;
};

std::wstring familyNameOf(const Font& font)
{
    FontFamily family;
    WCHAR name[LF_FACESIZE] = L"";
    EXPECT_EQ(font.GetFamily(&family), Ok);
    EXPECT_EQ(family.GetFamilyName(name), Ok);
    return name;
}

TEST(FontFromARecord, IsOfWorldUnitsAndANegativeHeightIsItsSize)
{
    const auto font = sansFont(-25);
    EXPECT_TRUE(font->IsAvailable());
    EXPECT_EQ(font->GetSize(), 25);
    EXPECT_EQ(font->GetUnit(), UnitWorld);
    EXPECT_EQ(font->GetStyle(), FontStyleRegular);
    EXPECT_EQ(familyNameOf(*font), kSans);
}

TEST(FontFromARecord, PositiveHeightIsThatOfTheCellAndGivesAWholeSize)
{
    const REAL size = sansFont(29)->GetSize(); // 29 * 2048 / (1901 + 483) = 24.9
    EXPECT_NEAR(size, 25, 1);
    EXPECT_EQ(size, static_cast<REAL>(static_cast<int>(size)));
}

TEST(FontFromARecord, WeightAbove400IsBoldAndTheStylesAreTakenOver)
{
    LOGFONTW record = logicalFont(-25, "DejaVu Sans");
    record.lfWeight = FW_BOLD;
    EXPECT_EQ(fontFrom(record)->GetStyle(), FontStyleBold);
    record.lfItalic = 1;
    EXPECT_EQ(fontFrom(record)->GetStyle(), FontStyleBoldItalic);
    record.lfUnderline = 1;
    record.lfStrikeOut = 1;
    EXPECT_EQ(fontFrom(record)->GetStyle(), FontStyleBoldItalic | FontStyleUnderline | FontStyleStrikeout);
}

TEST(FontFromARecord, WidthAndAnglesDoNotMatter)
{
    LOGFONTW record = logicalFont(-25, "DejaVu Sans");
    record.lfWidth = 40;
    record.lfEscapement = 900;
    record.lfOrientation = 900;
    const auto font = fontFrom(record);
    EXPECT_EQ(font->GetSize(), 25);

    TestPicture picture(1, 1);
    RectF odd;
    RectF plain;
    picture.graphics.MeasureString(L"WW", -1, font.get(), PointF(), &odd);
    picture.graphics.MeasureString(L"WW", -1, sansFont(-25).get(), PointF(), &plain);
    EXPECT_TRUE(odd.Equals(plain));
}

TEST(FontOfAContext, IsTheOneThatIsSelected)
{
    FontContext context;
    LOGFONTW record = logicalFont(-25, "DejaVu Sans");
    record.lfWeight = FW_BOLD;
    const HFONT selected = CreateFontIndirectW(&record);
    context.select(selected);
    const Font font(context.handle());
    EXPECT_EQ(font.GetLastStatus(), Ok);
    EXPECT_EQ(font.GetSize(), 25);
    EXPECT_EQ(font.GetUnit(), UnitWorld);
    EXPECT_EQ(font.GetStyle(), FontStyleBold);

    const LOGFONTW other = logicalFont(-25, "DejaVu Sans");
    const HFONT handle = CreateFontIndirectW(&other);
    EXPECT_EQ(Font(context.handle(), handle).GetStyle(), FontStyleRegular);
    EXPECT_EQ(Font(context.handle(), static_cast<HFONT>(nullptr)).GetStyle(), FontStyleBold);
    context.select(GetStockObject(SYSTEM_FONT));
    DeleteObject(selected);
    DeleteObject(handle);
}

TEST(FontOfAContext, RasterFontsAreNone)
{
    if (differsHere("raster fonts"))
        return;
    FontContext context;
    EXPECT_EQ(Font(context.handle()).GetLastStatus(), NotTrueTypeFont) << "a fresh context";
    for (const int stock : {SYSTEM_FONT, ANSI_VAR_FONT, ANSI_FIXED_FONT}) {
        context.select(GetStockObject(stock));
        const Font font(context.handle());
        EXPECT_EQ(font.GetLastStatus(), NotTrueTypeFont);
        EXPECT_FALSE(font.IsAvailable());
    }
}

TEST(FontOfAContext, TheUserInterfacesFontIsOne)
{
    if (differsHere("faces of Windows"))
        return;
    FontContext context;
    context.select(GetStockObject(DEFAULT_GUI_FONT));
    const Font font(context.handle());
    EXPECT_EQ(font.GetLastStatus(), Ok);
    EXPECT_EQ(font.GetSize(), 11);
}

TEST(FontByName, HasSizeStyleAndUnitAsAskedFor)
{
    const Font font(kSans, 12, FontStyleBold | FontStyleUnderline, UnitPoint);
    EXPECT_EQ(font.GetLastStatus(), Ok);
    EXPECT_EQ(font.GetSize(), 12);
    EXPECT_EQ(font.GetStyle(), FontStyleBold | FontStyleUnderline);
    EXPECT_EQ(font.GetUnit(), UnitPoint);
    EXPECT_EQ(familyNameOf(font), kSans);
    EXPECT_EQ(Font(kSans, 12).GetUnit(), UnitPoint);
}

TEST(FontByName, UnknownFamiliesAreNotFound)
{
    const Font font(L"No such family", 12);
    EXPECT_EQ(font.GetLastStatus(), FontFamilyNotFound);
    EXPECT_FALSE(font.IsAvailable());
    EXPECT_EQ(FontFamily(L"No such family").GetLastStatus(), FontFamilyNotFound);
    EXPECT_FALSE(FontFamily(L"No such family").IsAvailable());
}

TEST(FontByName, RefusesWhatIsMissing)
{
    EXPECT_EQ(Font(static_cast<const WCHAR*>(nullptr), 12).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Font(static_cast<const FontFamily*>(nullptr), 12).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Font(kSans, -1).GetLastStatus(), InvalidParameter);
}

TEST(FontHeight, IsItsSizeTimesLineSpacingOverEmHeight)
{
    TestPicture picture(1, 1);
    const REAL expected = 25.0f * 2384 / 2048;
    EXPECT_NEAR(sansFont(-25)->GetHeight(&picture.graphics), expected, 0.001);
    EXPECT_NEAR(sansFont(-25)->GetHeight(300.0f), expected, 0.001) << "world units do not depend on resolution";
    EXPECT_NEAR(Font(kSans, 12, FontStyleRegular, UnitPixel).GetHeight(192.0f), 12.0 * 2384 / 2048, 0.001);
    EXPECT_NEAR(Font(kSans, 12, FontStyleRegular, UnitPoint).GetHeight(96.0f), 16.0 * 2384 / 2048, 0.001);
    EXPECT_NEAR(Font(kSans, 12, FontStyleRegular, UnitPoint).GetHeight(192.0f), 32.0 * 2384 / 2048, 0.001);
    EXPECT_NEAR(Font(kSans, 1, FontStyleRegular, UnitInch).GetHeight(96.0f), 96.0 * 2384 / 2048, 0.001);
}

TEST(FontClone, IsTheSameFont)
{
    const auto font = sansFont(-25);
    const std::unique_ptr<Font> clone(font->Clone());
    ASSERT_TRUE(clone);
    EXPECT_EQ(clone->GetSize(), 25);
    EXPECT_EQ(clone->GetUnit(), UnitWorld);
    EXPECT_EQ(familyNameOf(*clone), kSans);
}

TEST(FontRecord, IsThatOfTheFont)
{
    TestPicture picture(1, 1);
    const Font font(kSans, 12, FontStyleBoldItalic | FontStyleUnderline, UnitPoint);
    LOGFONTW record{};
    EXPECT_EQ(font.GetLogFontW(&picture.graphics, &record), Ok);
    EXPECT_EQ(record.lfHeight, -16);
    EXPECT_EQ(record.lfWeight, FW_BOLD);
    EXPECT_TRUE(record.lfItalic);
    EXPECT_TRUE(record.lfUnderline);
    EXPECT_FALSE(record.lfStrikeOut);
    EXPECT_TRUE(std::equal(kSans, kSans + 12, record.lfFaceName)) << "the terminator too";
    EXPECT_EQ(font.GetLogFontW(&picture.graphics, nullptr), InvalidParameter);
}

TEST(FontFamilyMetrics, AreTheFacesWindowsMetrics)
{
    const FontFamily family(kSans);
    ASSERT_EQ(family.GetLastStatus(), Ok);
    EXPECT_EQ(family.GetEmHeight(FontStyleRegular), 2048);
    EXPECT_EQ(family.GetCellAscent(FontStyleRegular), 1901);
    EXPECT_EQ(family.GetCellDescent(FontStyleRegular), 483);
    EXPECT_EQ(family.GetLineSpacing(FontStyleRegular), 2384);
    EXPECT_EQ(family.GetEmHeight(FontStyleBoldItalic), 2048);
    EXPECT_TRUE(family.IsStyleAvailable(FontStyleRegular));
    EXPECT_TRUE(family.IsStyleAvailable(FontStyleBold));
}

TEST(FontFamilyName, HasTheSpellingOfTheFamily)
{
    const FontFamily family(L"dejavu SANS");
    WCHAR name[LF_FACESIZE] = L"";
    EXPECT_EQ(family.GetFamilyName(name), Ok);
    EXPECT_EQ(std::wstring(name), kSans);
    const std::unique_ptr<FontFamily> clone(family.Clone());
    ASSERT_TRUE(clone);
    EXPECT_EQ(clone->GetFamilyName(name), Ok);
    EXPECT_EQ(std::wstring(name), kSans);
}

TEST(FontFamilyWithoutAName, IsNoFamily)
{
    const FontFamily family;
    WCHAR name[LF_FACESIZE] = L"";
    EXPECT_FALSE(family.IsAvailable());
    EXPECT_EQ(family.GetFamilyName(name), InvalidParameter);
    EXPECT_EQ(Font(&family, 12).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(FontFamily(static_cast<const WCHAR*>(nullptr)).GetLastStatus(), InvalidParameter);
}

TEST(GenericFamilies, AreFamilies)
{
    if (differsHere("faces of Windows"))
        return;
    for (const FontFamily* family :
         {FontFamily::GenericSansSerif(), FontFamily::GenericSerif(), FontFamily::GenericMonospace()}) {
        ASSERT_TRUE(family);
        EXPECT_TRUE(family->IsAvailable());
        EXPECT_GT(family->GetEmHeight(FontStyleRegular), 0);
        EXPECT_EQ(Font(family, 11, FontStyleRegular, UnitPixel).GetLastStatus(), Ok);
    }
    EXPECT_EQ(FontFamily::GenericSerif(), FontFamily::GenericSerif());
}

} // namespace
} // namespace vq::test
