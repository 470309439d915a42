// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <cstring>
#include <gtest/gtest.h>

namespace {

class FontObject : public ::testing::Test
{
protected:
    FontObject()
    {
        description.lfHeight = -20;
        description.lfWeight = 700;
        description.lfItalic = TRUE;
        description.lfCharSet = 129;
        description.lfPitchAndFamily = 34;
        description.lfFaceName[0] = L'A';
        font = CreateFontIndirectW(&description);
    }
    ~FontObject() override { DeleteObject(font); }

    LOGFONTW description{};
    HFONT font = nullptr;
};

TEST_F(FontObject, IsDescribedAsItWasMade)
{
    LOGFONTW copy;
    std::memset(&copy, 0x55, sizeof copy);
    EXPECT_EQ(GetObjectW(font, sizeof copy, &copy), 92);
    EXPECT_EQ(std::memcmp(&copy, &description, sizeof copy), 0);
    EXPECT_EQ(GetObjectType(font), DWORD{OBJ_FONT});
}

TEST_F(FontObject, TellsTheSizeItsDescriptionNeeds)
{
    EXPECT_EQ(GetObjectW(font, 0, nullptr), 92);
    EXPECT_EQ(GetObjectW(font, 92, nullptr), 92);
}

TEST_F(FontObject, IsDescribedAsFarAsThereIsRoom)
{
    BYTE room[200];
    std::memset(room, 0x55, sizeof room);
    EXPECT_EQ(GetObjectW(font, 3, room), 3);
    EXPECT_EQ(std::memcmp(room, &description, 3), 0);
    EXPECT_EQ(room[3], 0x55);
    EXPECT_EQ(GetObjectW(font, 0, room), 0);
    EXPECT_EQ(GetObjectW(font, 200, room), 92);
    EXPECT_EQ(room[92], 0x55);
}

TEST_F(FontObject, IsGoneOnceDeleted)
{
    const HFONT other = CreateFontIndirectW(&description);
    EXPECT_TRUE(DeleteObject(other));
    EXPECT_FALSE(DeleteObject(other));
    LOGFONTW copy;
    EXPECT_EQ(GetObjectW(other, sizeof copy, &copy), 0);
    EXPECT_EQ(GetObjectType(other), 0u);
}

TEST(CreateFontIndirect, RefusesNull)
{
    EXPECT_EQ(CreateFontIndirectW(nullptr), nullptr);
}

TEST(BrushObject, IsDescribedAsItWasMade)
{
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    LOGBRUSH description{};
    EXPECT_EQ(GetObjectW(brush, 0, nullptr), 16);
    EXPECT_EQ(GetObjectW(brush, sizeof description, &description), 16);
    EXPECT_EQ(description.lbStyle, UINT{BS_SOLID});
    EXPECT_EQ(description.lbColor, RGB(1, 2, 3));
    EXPECT_EQ(GetObjectType(brush), DWORD{OBJ_BRUSH});
    EXPECT_TRUE(DeleteObject(brush));
}

TEST(StockFont, OfTheUserInterfaceHasTheKnownRecord)
{
    LOGFONTW font{};
    ASSERT_EQ(GetObjectW(GetStockObject(DEFAULT_GUI_FONT), sizeof font, &font), 92);
    EXPECT_EQ(font.lfHeight, -11);
    EXPECT_EQ(font.lfWidth, 0);
    EXPECT_EQ(font.lfWeight, 400);
    EXPECT_EQ(font.lfItalic, 0);
    EXPECT_EQ(font.lfCharSet, 0);
    EXPECT_EQ(font.lfOutPrecision, 0);
    EXPECT_EQ(font.lfClipPrecision, 0);
    EXPECT_EQ(font.lfQuality, 0);
    EXPECT_EQ(font.lfPitchAndFamily, 34);
    constexpr char kFace[] = "MS Shell Dlg";
    for (int i = 0; i < 32; ++i)
        EXPECT_EQ(font.lfFaceName[i], i < 12 ? kFace[i] : 0) << i;
}

TEST(StockFont, OfEachIndexHasItsHeightAndWeight)
{
    struct Case
    {
        int index;
        LONG height;
        LONG weight;
        wchar_t firstLetter;
    };
    constexpr Case kCases[]{
        {OEM_FIXED_FONT, 12, 400, 0},       {ANSI_FIXED_FONT, 12, 400, L'C'},     {ANSI_VAR_FONT, 12, 400, L'M'},
        {SYSTEM_FONT, 16, 700, L'S'},       {DEVICE_DEFAULT_FONT, 16, 700, L'S'}, {SYSTEM_FIXED_FONT, 16, 400, L'C'},
        {DEFAULT_GUI_FONT, -11, 400, L'M'},
    };
    for (const Case& c : kCases) {
        LOGFONTW font{};
        ASSERT_EQ(GetObjectW(GetStockObject(c.index), sizeof font, &font), 92) << c.index;
        EXPECT_EQ(font.lfHeight, c.height) << c.index;
        EXPECT_EQ(font.lfWeight, c.weight) << c.index;
        EXPECT_EQ(font.lfFaceName[0], c.firstLetter) << c.index;
    }
}

TEST(StockObject, IsAlwaysTheSameAndNeverDeleted)
{
    for (const int index : {DEFAULT_GUI_FONT, WHITE_BRUSH, BLACK_PEN}) {
        const HGDIOBJ object = GetStockObject(index);
        EXPECT_TRUE(DeleteObject(object));
        EXPECT_NE(GetObjectType(object), 0u);
        EXPECT_EQ(GetStockObject(index), object);
    }
}

TEST(StockObject, IsNullForAnUnknownIndex)
{
    EXPECT_EQ(GetStockObject(-1), nullptr);
    EXPECT_EQ(GetStockObject(9), nullptr);
    EXPECT_EQ(GetStockObject(99), nullptr);
}

TEST(StockBrush, HasItsColour)
{
    LOGBRUSH brush{};
    ASSERT_EQ(GetObjectW(GetStockObject(LTGRAY_BRUSH), sizeof brush, &brush), 16);
    EXPECT_EQ(brush.lbStyle, UINT{BS_SOLID});
    EXPECT_EQ(brush.lbColor, RGB(192, 192, 192));
    ASSERT_EQ(GetObjectW(GetStockObject(NULL_BRUSH), sizeof brush, &brush), 16);
    EXPECT_EQ(brush.lbStyle, UINT{BS_NULL});
}

TEST(StockPen, HasItsStyleAndIsDescribedInFullOnly)
{
    LOGPEN pen{};
    const HGDIOBJ white = GetStockObject(WHITE_PEN);
    EXPECT_EQ(GetObjectW(white, 0, nullptr), 16);
    EXPECT_EQ(GetObjectW(white, 8, &pen), 0);
    ASSERT_EQ(GetObjectW(white, sizeof pen, &pen), 16);
    EXPECT_EQ(pen.lopnStyle, UINT{PS_SOLID});
    EXPECT_EQ(pen.lopnColor, RGB(255, 255, 255));
    ASSERT_EQ(GetObjectW(GetStockObject(NULL_PEN), sizeof pen, &pen), 16);
    EXPECT_EQ(pen.lopnStyle, UINT{PS_NULL});
}

TEST(GdiHandle, OfNullIsRefused)
{
    LOGFONTW font;
    EXPECT_EQ(GetObjectW(nullptr, sizeof font, &font), 0);
    EXPECT_EQ(GetObjectType(nullptr), 0u);
    EXPECT_FALSE(DeleteObject(nullptr));
}

} // namespace
