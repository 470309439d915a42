// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <gtest/gtest.h>

namespace {

class MemoryContext : public ::testing::Test
{
protected:
    ~MemoryContext() override
    {
        DeleteDC(context);
        DeleteDC(other);
        DeleteObject(bitmap);
        ReleaseDC(nullptr, screen);
    }

    HDC screen = GetDC(nullptr);
    HDC context = CreateCompatibleDC(nullptr);
    HDC other = CreateCompatibleDC(context);
    HBITMAP bitmap = CreateCompatibleBitmap(screen, 4, 3);
};

TEST_F(MemoryContext, StartsWithAMonochromeBitmapOfOnePixel)
{
    const HGDIOBJ initial = GetCurrentObject(context, OBJ_BITMAP);
    BITMAP description{};
    ASSERT_EQ(GetObjectW(initial, sizeof description, &description), 32);
    EXPECT_EQ(description.bmWidth, 1);
    EXPECT_EQ(description.bmHeight, 1);
    EXPECT_EQ(description.bmWidthBytes, 2);
    EXPECT_EQ(description.bmPlanes, 1);
    EXPECT_EQ(description.bmBitsPixel, 1);
    EXPECT_EQ(GetCurrentObject(other, OBJ_BITMAP), initial);
}

TEST_F(MemoryContext, StartsWithStockObjects)
{
    EXPECT_EQ(GetCurrentObject(context, OBJ_FONT), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(GetCurrentObject(context, OBJ_BRUSH), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(GetCurrentObject(context, OBJ_PEN), GetStockObject(BLACK_PEN));
}

TEST_F(MemoryContext, ReturnsWhatWasSelectedBefore)
{
    const HGDIOBJ initial = GetCurrentObject(context, OBJ_BITMAP);
    EXPECT_EQ(SelectObject(context, bitmap), initial);
    EXPECT_EQ(GetCurrentObject(context, OBJ_BITMAP), bitmap);
    EXPECT_EQ(SelectObject(context, bitmap), bitmap);
    EXPECT_EQ(SelectObject(context, initial), bitmap);

    const HGDIOBJ brush = GetStockObject(BLACK_BRUSH);
    EXPECT_EQ(SelectObject(context, brush), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(SelectObject(context, GetStockObject(DEFAULT_GUI_FONT)), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(SelectObject(context, GetStockObject(WHITE_PEN)), GetStockObject(BLACK_PEN));
    EXPECT_EQ(GetCurrentObject(context, OBJ_BRUSH), brush);
}

TEST_F(MemoryContext, DoesNotShareItsBitmap)
{
    const HGDIOBJ initial = SelectObject(context, bitmap);
    EXPECT_EQ(SelectObject(other, bitmap), nullptr);
    EXPECT_EQ(GetCurrentObject(other, OBJ_BITMAP), initial);

    SelectObject(context, initial);
    EXPECT_EQ(SelectObject(other, bitmap), initial);
}

TEST_F(MemoryContext, GivesItsBitmapFreeWhenDeleted)
{
    const HGDIOBJ initial = SelectObject(context, bitmap);
    EXPECT_TRUE(DeleteDC(context));
    EXPECT_EQ(GetObjectType(bitmap), DWORD{OBJ_BITMAP});
    EXPECT_EQ(SelectObject(other, bitmap), initial);
    SelectObject(other, initial);
}

TEST_F(MemoryContext, SelectsNothingForNull)
{
    EXPECT_EQ(SelectObject(context, nullptr), nullptr);
    EXPECT_EQ(SelectObject(nullptr, bitmap), nullptr);
    EXPECT_EQ(GetCurrentObject(nullptr, OBJ_BITMAP), nullptr);
    EXPECT_EQ(GetCurrentObject(context, 99), nullptr);
}

TEST_F(MemoryContext, IsOfItsOwnType)
{
    EXPECT_EQ(GetObjectType(context), DWORD{OBJ_MEMDC});
    EXPECT_EQ(GetObjectType(screen), DWORD{OBJ_DC});
    EXPECT_TRUE(DeleteDC(context));
    EXPECT_EQ(GetObjectType(context), 0u);
    EXPECT_FALSE(DeleteDC(context));
}

TEST_F(MemoryContext, MayBeDeletedAsAnObject)
{
    EXPECT_TRUE(DeleteObject(context));
    EXPECT_EQ(GetObjectType(context), 0u);
}

TEST_F(MemoryContext, IsNotMadeFromADeletedOne)
{
    DeleteDC(context);
    EXPECT_EQ(CreateCompatibleDC(context), nullptr);
}

TEST_F(MemoryContext, IsNoBitmapAndNoScreen)
{
    EXPECT_FALSE(DeleteDC(reinterpret_cast<HDC>(bitmap)));
    EXPECT_EQ(GetObjectType(bitmap), DWORD{OBJ_BITMAP});
    EXPECT_EQ(ReleaseDC(nullptr, context), 0);
    EXPECT_EQ(GetObjectType(context), DWORD{OBJ_MEMDC});
    EXPECT_EQ(SelectObject(screen, bitmap), nullptr);
}

TEST(ScreenContext, IsTakenAndGivenBack)
{
    const HDC screen = GetDC(nullptr);
    EXPECT_NE(screen, nullptr);
    EXPECT_EQ(ReleaseDC(nullptr, screen), 1);
    EXPECT_EQ(ReleaseDC(nullptr, screen), 0);

    const HDC desktop = GetWindowDC(GetDesktopWindow());
    EXPECT_NE(desktop, nullptr);
    EXPECT_EQ(ReleaseDC(GetDesktopWindow(), desktop), 1);

    const HDC display = CreateDCW(L"display", nullptr, nullptr, nullptr);
    EXPECT_NE(display, nullptr);
    EXPECT_TRUE(DeleteDC(display));
}

TEST(DeviceCapabilities, AreTheScreensForEveryContext)
{
    const HDC screen = GetDC(nullptr);
    const HDC memory = CreateCompatibleDC(nullptr);
    for (const HDC context : {screen, memory}) {
        EXPECT_EQ(GetDeviceCaps(context, LOGPIXELSX), 96);
        EXPECT_EQ(GetDeviceCaps(context, LOGPIXELSY), 96);
        EXPECT_EQ(GetDeviceCaps(context, BITSPIXEL), 32);
        EXPECT_EQ(GetDeviceCaps(context, PLANES), 1);
        EXPECT_EQ(GetDeviceCaps(context, TECHNOLOGY), DT_RASDISPLAY);
        EXPECT_TRUE(GetDeviceCaps(context, RASTERCAPS) & RC_BITBLT);
        EXPECT_GT(GetDeviceCaps(context, HORZRES), 0);
        EXPECT_GT(GetDeviceCaps(context, VERTRES), 0);
        EXPECT_EQ(GetDeviceCaps(context, ASPECTX), 36);
        EXPECT_EQ(GetDeviceCaps(context, 999), 0);
    }
    EXPECT_EQ(GetDeviceCaps(nullptr, HORZRES), 0);
    DeleteDC(memory);
    ReleaseDC(nullptr, screen);
}

} // namespace
