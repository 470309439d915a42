// SPDX-License-Identifier: MIT
#include "Platform/afx/GdiObjects.h"
#include "Platform/afx/DeviceContexts.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdint>

namespace {

LOGFONTW someFont()
{
    LOGFONTW font{};
    font.lfHeight = -20;
    font.lfWeight = FW_BOLD;
    font.lfItalic = 1;
    font.lfFaceName[0] = 'A';
    return font;
}

bool isAlive(HGDIOBJ object)
{
    return ::GetObjectType(object) != 0;
}

TEST(CFont, KeepsTheRecordItWasMadeFrom)
{
    const LOGFONTW expected = someFont();
    CFont font;
    ASSERT_TRUE(font.CreateFontIndirect(&expected));

    LOGFONTW record{};
    EXPECT_NE(font.GetLogFont(&record), 0);

    EXPECT_EQ(record.lfHeight, -20);
    EXPECT_EQ(record.lfWeight, FW_BOLD);
    EXPECT_EQ(record.lfItalic, 1);
    EXPECT_EQ(record.lfFaceName[0], 'A');
    EXPECT_EQ(font.GetObjectType(), UINT{OBJ_FONT});
}

TEST(CGdiObject, DeletesWhatItOwnsUnlessItGaveItAway)
{
    const LOGFONTW record = someFont();
    HGDIOBJ deleted = nullptr;
    HGDIOBJ kept = nullptr;
    {
        CFont first, second;
        first.CreateFontIndirect(&record);
        second.CreateFontIndirect(&record);
        deleted = static_cast<HFONT>(first);
        kept = second.Detach();
        EXPECT_EQ(second.GetSafeHandle(), nullptr);
    }
    EXPECT_FALSE(isAlive(deleted));
    EXPECT_TRUE(isAlive(kept));
    EXPECT_TRUE(::DeleteObject(kept));
}

TEST(CGdiObject, OwnsOneObjectAtATime)
{
    const LOGFONTW record = someFont();
    CFont font;
    EXPECT_FALSE(font.DeleteObject());
    EXPECT_FALSE(font.Attach(nullptr));
    EXPECT_FALSE(font.CreateFontIndirect(nullptr));
    ASSERT_TRUE(font.CreateFontIndirect(&record));
    EXPECT_FALSE(font.CreateFontIndirect(&record));
    EXPECT_FALSE(font.Attach(::GetStockObject(SYSTEM_FONT)));
    EXPECT_TRUE(font.DeleteObject());
    EXPECT_TRUE(font.CreateStockObject(SYSTEM_FONT));
}

TEST(CBitmap, KnowsItsMeasures)
{
    CDC context;
    ASSERT_TRUE(context.CreateCompatibleDC(nullptr));
    CBitmap bitmap;
    ASSERT_TRUE(bitmap.CreateBitmap(5, 3, 1, 32, nullptr));

    BITMAP measures{};
    EXPECT_NE(bitmap.GetBitmap(&measures), 0);

    EXPECT_EQ(measures.bmWidth, 5);
    EXPECT_EQ(measures.bmHeight, 3);
    EXPECT_EQ(measures.bmBitsPixel, 32);
    EXPECT_FALSE(bitmap.CreateCompatibleBitmap(&context, 1, 1)) << "it owns one already";
    EXPECT_FALSE(CBitmap().CreateCompatibleBitmap(nullptr, 1, 1));
}

TEST(CDC, DeletesItsContext)
{
    HDC handle = nullptr;
    {
        CDC context;
        EXPECT_FALSE(context.Attach(nullptr));
        EXPECT_FALSE(context.DeleteDC());
        ASSERT_TRUE(context.CreateCompatibleDC(nullptr));
        EXPECT_EQ(context.m_hAttribDC, context.m_hDC);
        EXPECT_FALSE(context.CreateCompatibleDC(nullptr));
        handle = context;
        EXPECT_TRUE(isAlive(handle));
    }
    EXPECT_FALSE(isAlive(handle));
}

TEST(CDC, LeavesADetachedContextAlone)
{
    CDC context;
    context.CreateCompatibleDC(nullptr);
    const HDC handle = context.Detach();
    EXPECT_EQ(context.GetSafeHdc(), nullptr);
    EXPECT_EQ(context.m_hAttribDC, nullptr);
    EXPECT_TRUE(::DeleteDC(handle));
}

TEST(CDC, SelectsObjectsAndGivesTheFormerOnesBack)
{
    const std::array<std::uint32_t, 2> pixels{0x00112233, 0x00445566};
    CBitmap first, second;
    ASSERT_TRUE(first.CreateBitmap(2, 1, 1, 32, pixels.data()));
    ASSERT_TRUE(second.CreateBitmap(2, 1, 1, 32, nullptr));
    CDC context;
    ASSERT_TRUE(context.CreateCompatibleDC(nullptr));

    CBitmap* initial = context.SelectObject(&first);
    ASSERT_NE(initial, nullptr);
    EXPECT_NE(initial->GetSafeHandle(), first.GetSafeHandle());
    CBitmap* former = context.SelectObject(&second);
    ASSERT_NE(former, nullptr);
    EXPECT_EQ(former->GetSafeHandle(), first.GetSafeHandle());
    context.SelectObject(former);
    EXPECT_EQ(::GetPixel(context, 1, 0), COLORREF{0x665544}) << "red in the low byte";
    EXPECT_EQ(context.SelectObject(initial)->GetSafeHandle(), first.GetSafeHandle());

    EXPECT_EQ(context.SelectObject(static_cast<CBitmap*>(nullptr)), nullptr);
    EXPECT_TRUE(isAlive(first)) << "what was handed out owns nothing";
}

TEST(CDC, SelectsFonts)
{
    const LOGFONTW record = someFont();
    CFont font;
    font.CreateFontIndirect(&record);
    CDC context;
    context.CreateCompatibleDC(nullptr);

    CFont* former = context.SelectObject(&font);
    ASSERT_NE(former, nullptr);
    EXPECT_EQ(::GetCurrentObject(context, OBJ_FONT), font.GetSafeHandle());
    EXPECT_EQ(context.SelectObject(former->GetSafeHandle()), font.GetSafeHandle());
}

TEST(CDC, CopiesPixels)
{
    const std::array<std::uint32_t, 2> pixels{0x00112233, 0x00445566};
    CBitmap source, target;
    source.CreateBitmap(2, 1, 1, 32, pixels.data());
    target.CreateBitmap(2, 1, 1, 32, nullptr);
    CDC from, to;
    from.CreateCompatibleDC(nullptr);
    to.CreateCompatibleDC(&from);
    const HGDIOBJ formerSource = from.SelectObject(source.GetSafeHandle());
    const HGDIOBJ formerTarget = to.SelectObject(target.GetSafeHandle());

    EXPECT_TRUE(to.BitBlt(0, 0, 1, 1, &from, 1, 0, SRCCOPY));

    EXPECT_EQ(::GetPixel(to, 0, 0), COLORREF{0x665544});
    EXPECT_EQ(::GetPixel(to, 1, 0), COLORREF{0});
    from.SelectObject(formerSource);
    to.SelectObject(formerTarget);
}

TEST(CWindowDC, OfNoWindowIsTheScreen)
{
    CWindowDC screen;
    ASSERT_NE(screen.GetSafeHdc(), nullptr);
    EXPECT_GT(screen.GetDeviceCaps(LOGPIXELSY), 0);
    EXPECT_GT(screen.GetDeviceCaps(HORZRES), 0);
    CBitmap bitmap;
    EXPECT_TRUE(bitmap.CreateCompatibleBitmap(&screen, 4, 4));
}

} // namespace
