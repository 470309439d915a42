// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"

#include <algorithm>
#include <cstring>
#include <gmock/gmock.h>
#include <limits>
#include <vector>

namespace vq::test::bitmapsTests {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using Pixels = std::vector<DWORD>;

constexpr DWORD kUntouched = 0x77777777;

BITMAPINFO headerOf(LONG width, LONG height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    return info;
}

class Section
{
public:
    Section(LONG width, LONG height)
    {
        const BITMAPINFO info = headerOf(width, height);
        void* bits = nullptr;
        handle = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        memory = static_cast<DWORD*>(bits);
    }
    ~Section() { DeleteObject(handle); }
    Section(const Section&) = delete;
    Section& operator=(const Section&) = delete;

    HBITMAP handle = nullptr;
    DWORD* memory = nullptr;
};

class Screen
{
public:
    ~Screen() { ReleaseDC(nullptr, handle); }
    HDC handle = GetDC(nullptr);
};

TEST(Section, IsZeroedAndDescribedWithItsMemory)
{
    const Section section(5, 3);
    ASSERT_NE(section.handle, nullptr);
    EXPECT_THAT(Pixels(section.memory, section.memory + 15), Each(0u));

    BITMAP bitmap{};
    ASSERT_EQ(GetObjectW(section.handle, sizeof bitmap, &bitmap), 32);
    EXPECT_EQ(bitmap.bmType, 0);
    EXPECT_EQ(bitmap.bmWidth, 5);
    EXPECT_EQ(bitmap.bmHeight, 3);
    EXPECT_EQ(bitmap.bmWidthBytes, 20);
    EXPECT_EQ(bitmap.bmPlanes, 1);
    EXPECT_EQ(bitmap.bmBitsPixel, 32);
    EXPECT_EQ(bitmap.bmBits, section.memory);
}

TEST(Section, TellsNothingOfTheOrderOfItsRows)
{
    for (const LONG height : {3, -3}) {
        const Section section(5, height);
        DIBSECTION description;
        std::memset(&description, 0x55, sizeof description);
        ASSERT_EQ(GetObjectW(section.handle, sizeof description, &description), 104);
        EXPECT_EQ(description.dsBm.bmHeight, 3);
        EXPECT_EQ(description.dsBm.bmBits, section.memory);
        EXPECT_EQ(description.dsBmih.biSize, 40u);
        EXPECT_EQ(description.dsBmih.biWidth, 5);
        EXPECT_EQ(description.dsBmih.biHeight, 3);
        EXPECT_EQ(description.dsBmih.biBitCount, 32);
        EXPECT_EQ(description.dsBmih.biCompression, DWORD{BI_RGB});
        EXPECT_EQ(description.dsBmih.biSizeImage, 60u);
        EXPECT_EQ(description.dshSection, nullptr);
        EXPECT_EQ(description.dsOffset, 0u);
    }
}

TEST(Section, IsDescribedBySizeOfTheRoom)
{
    const Section section(5, 3);
    DIBSECTION room;
    EXPECT_EQ(GetObjectW(section.handle, 0, nullptr), 32);
    EXPECT_EQ(GetObjectW(section.handle, 31, &room), 0);
    EXPECT_EQ(GetObjectW(section.handle, 0, &room), 0);
    EXPECT_EQ(GetObjectW(section.handle, 103, &room), 32);
    EXPECT_EQ(GetObjectW(section.handle, 104, &room), 104);
}

TEST(Section, IsRefusedForHeadersThatMakeNoSense)
{
    const auto expectRefused = [](auto change) {
        BITMAPINFO info = headerOf(4, 4);
        change(info.bmiHeader);
        int number = 0;
        void* bits = &number;
        EXPECT_EQ(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0), nullptr);
        EXPECT_EQ(bits, nullptr);
    };
    expectRefused([](BITMAPINFOHEADER& header) { header.biSize = 0; });
    expectRefused([](BITMAPINFOHEADER& header) { header.biPlanes = 0; });
    expectRefused([](BITMAPINFOHEADER& header) { header.biPlanes = 2; });
    expectRefused([](BITMAPINFOHEADER& header) { header.biWidth = 0; });
    expectRefused([](BITMAPINFOHEADER& header) { header.biWidth = -4; });
    expectRefused([](BITMAPINFOHEADER& header) { header.biHeight = 0; });
    expectRefused([](BITMAPINFOHEADER& header) { header.biHeight = std::numeric_limits<LONG>::min(); });
    expectRefused([](BITMAPINFOHEADER& header) { header.biWidth = header.biHeight = 65536; });
    expectRefused([](BITMAPINFOHEADER& header) { header.biWidth = std::numeric_limits<LONG>::max(); });
    expectRefused([](BITMAPINFOHEADER& header) { header.biBitCount = 33; });
    expectRefused([](BITMAPINFOHEADER& header) { header.biCompression = BI_RLE8; });
    EXPECT_EQ(CreateDIBSection(nullptr, nullptr, DIB_RGB_COLORS, nullptr, nullptr, 0), nullptr);
}

TEST(Section, TakesTheUsualMasks)
{
    struct
    {
        BITMAPINFOHEADER header = headerOf(2, 2).bmiHeader;
        DWORD masks[3]{0xFF0000, 0xFF00, 0xFF};
    } info;
    info.header.biCompression = BI_BITFIELDS;
    const HBITMAP bitmap =
        CreateDIBSection(nullptr, reinterpret_cast<const BITMAPINFO*>(&info), DIB_RGB_COLORS, nullptr, nullptr, 0);
    DIBSECTION description{};
    ASSERT_EQ(GetObjectW(bitmap, sizeof description, &description), 104);
    EXPECT_EQ(description.dsBmih.biCompression, DWORD{BI_BITFIELDS});
    EXPECT_THAT(description.dsBitfields, ElementsAre(0xFF0000, 0xFF00, 0xFF));
    DeleteObject(bitmap);
}

TEST(CompatibleBitmap, HasTheDepthOfItsContext)
{
    const Screen screen;
    const HDC memory = CreateCompatibleDC(screen.handle);
    const HBITMAP colour = CreateCompatibleBitmap(screen.handle, 3, 5);
    const HBITMAP monochrome = CreateCompatibleBitmap(memory, 17, 5);
    BITMAP description{};

    ASSERT_EQ(GetObjectW(colour, sizeof description, &description), 32);
    EXPECT_EQ(description.bmBitsPixel, 32);
    EXPECT_EQ(description.bmWidthBytes, 12);
    EXPECT_EQ(description.bmBits, nullptr);
    ASSERT_EQ(GetObjectW(monochrome, sizeof description, &description), 32);
    EXPECT_EQ(description.bmBitsPixel, 1);
    EXPECT_EQ(description.bmWidthBytes, 4);

    const HGDIOBJ initial = SelectObject(memory, colour);
    const HBITMAP another = CreateCompatibleBitmap(memory, 3, 5);
    ASSERT_EQ(GetObjectW(another, sizeof description, &description), 32);
    EXPECT_EQ(description.bmBitsPixel, 32);
    SelectObject(memory, initial);
    for (const HBITMAP bitmap : {colour, monochrome, another})
        EXPECT_TRUE(DeleteObject(bitmap));
    DeleteDC(memory);
}

TEST(CompatibleBitmap, WithoutSizeIsTheOneOfNewContexts)
{
    const Screen screen;
    const HDC memory = CreateCompatibleDC(nullptr);
    EXPECT_EQ(CreateCompatibleBitmap(screen.handle, 0, 5), GetCurrentObject(memory, OBJ_BITMAP));
    EXPECT_EQ(CreateBitmap(5, 0, 1, 32, nullptr), GetCurrentObject(memory, OBJ_BITMAP));
    EXPECT_TRUE(DeleteObject(GetCurrentObject(memory, OBJ_BITMAP)));
    EXPECT_NE(GetObjectType(GetCurrentObject(memory, OBJ_BITMAP)), 0u);
    EXPECT_EQ(CreateCompatibleBitmap(nullptr, 3, 5), nullptr);
    DeleteDC(memory);
}

TEST(CreateBitmap, TakesItsPixelsFromTheTop)
{
    const Pixels content{1, 2, 3, 4, 5, 6};
    const HBITMAP bitmap = CreateBitmap(3, 2, 1, 32, content.data());
    const Screen screen;
    BITMAPINFO info = headerOf(3, -2);
    Pixels pixels(6, kUntouched);
    EXPECT_EQ(GetDIBits(screen.handle, bitmap, 0, 2, pixels.data(), &info, DIB_RGB_COLORS), 2);
    EXPECT_EQ(pixels, content);
    DeleteObject(bitmap);
}

TEST(CreateBitmap, RefusesPlanesAndSizesThatCannotBe)
{
    EXPECT_EQ(CreateBitmap(4, 4, 0, 32, nullptr), nullptr);
    EXPECT_EQ(CreateBitmap(65536, 65536, 1, 32, nullptr), nullptr);
}

// A bitmap of 4 x 3 pixels: 00 01 02 03 / 04 05 06 07 / 08 09 0A 0B.
class BitmapRows : public ::testing::Test
{
protected:
    BitmapRows()
    {
        for (DWORD i = 0; i < 12; ++i)
            section.memory[i] = i;
    }

    int get(LONG width, LONG height, UINT first, UINT rows)
    {
        BITMAPINFO info = headerOf(width, height);
        pixels.assign(static_cast<std::size_t>(width * std::abs(height)), kUntouched);
        return GetDIBits(screen.handle, section.handle, first, rows, pixels.data(), &info, DIB_RGB_COLORS);
    }

    int set(LONG width, LONG height, UINT first, UINT rows)
    {
        Pixels source;
        for (DWORD i = 0; i < static_cast<DWORD>(width * std::abs(height)); ++i)
            source.push_back(0xA0 + i);
        std::fill_n(section.memory, 12, 0u);
        const BITMAPINFO info = headerOf(width, height);
        const int result = SetDIBits(screen.handle, section.handle, first, rows, source.data(), &info, DIB_RGB_COLORS);
        pixels.assign(section.memory, section.memory + 12);
        return result;
    }

    Screen screen;
    Section section{4, -3};
    Pixels pixels;
};

TEST_F(BitmapRows, AreReadFromTheBottomUp)
{
    EXPECT_EQ(get(4, 3, 0, 3), 3);
    EXPECT_THAT(pixels, ElementsAre(8, 9, 10, 11, 4, 5, 6, 7, 0, 1, 2, 3));
}

TEST_F(BitmapRows, AreReadFromTheTopDown)
{
    EXPECT_EQ(get(4, -3, 0, 3), 3);
    EXPECT_THAT(pixels, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11));
}

TEST_F(BitmapRows, AreCountedFromTheBottomInBothOrders)
{
    EXPECT_EQ(get(4, 3, 1, 1), 1);
    EXPECT_THAT(pixels, ElementsAre(4, 5, 6, 7, kUntouched, kUntouched, kUntouched, kUntouched, kUntouched, kUntouched,
                                    kUntouched, kUntouched));
    EXPECT_EQ(get(4, 3, 2, 5), 1);
    EXPECT_THAT(Pixels(pixels.begin(), pixels.begin() + 4), ElementsAre(0, 1, 2, 3));
    EXPECT_EQ(get(4, -3, 0, 2), 2);
    EXPECT_THAT(Pixels(pixels.begin(), pixels.begin() + 8), ElementsAre(4, 5, 6, 7, 8, 9, 10, 11));
    EXPECT_EQ(get(4, -3, 1, 2), 2);
    EXPECT_THAT(Pixels(pixels.begin(), pixels.begin() + 8), ElementsAre(0, 1, 2, 3, 4, 5, 6, 7));
}

TEST_F(BitmapRows, AreAlignedAtTheTopLeftOfAnotherSize)
{
    EXPECT_EQ(get(4, 2, 0, 3), 2);
    EXPECT_THAT(pixels, ElementsAre(4, 5, 6, 7, 0, 1, 2, 3));
    EXPECT_EQ(get(2, -5, 0, 5), 3);
    EXPECT_THAT(pixels, ElementsAre(0, 1, 4, 5, 8, 9, 0, 0, 0, 0));
    EXPECT_EQ(get(2, 5, 0, 5), 3);
    EXPECT_THAT(pixels, ElementsAre(0, 0, 0, 0, 8, 9, 4, 5, 0, 1));
    EXPECT_EQ(get(6, -3, 0, 3), 3);
    EXPECT_THAT(pixels, ElementsAre(0, 1, 2, 3, 0, 0, 4, 5, 6, 7, 0, 0, 8, 9, 10, 11, 0, 0));
}

TEST_F(BitmapRows, FillInTheHeaderWhenNoneAreWanted)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    EXPECT_EQ(GetDIBits(screen.handle, section.handle, 0, 0, nullptr, &info, DIB_RGB_COLORS), 3);
    EXPECT_EQ(info.bmiHeader.biWidth, 4);
    EXPECT_EQ(info.bmiHeader.biHeight, 3);
    EXPECT_EQ(info.bmiHeader.biPlanes, 1);
    EXPECT_EQ(info.bmiHeader.biBitCount, 32);
    EXPECT_EQ(info.bmiHeader.biCompression, DWORD{BI_BITFIELDS});
    EXPECT_EQ(info.bmiHeader.biSizeImage, 48u);

    info = headerOf(4, 3);
    EXPECT_EQ(GetDIBits(screen.handle, section.handle, 0, 3, nullptr, &info, DIB_RGB_COLORS), 1);
    EXPECT_EQ(info.bmiHeader.biSizeImage, 48u);
    EXPECT_EQ(get(4, 3, 3, 5), 1); // beyond the header's picture
    EXPECT_THAT(pixels, Each(kUntouched));
}

TEST_F(BitmapRows, ComeWithTheirMasksOnRequest)
{
    struct
    {
        BITMAPINFOHEADER header = headerOf(4, -3).bmiHeader;
        DWORD masks[3]{};
    } info;
    info.header.biCompression = BI_BITFIELDS;
    pixels.assign(12, kUntouched);
    EXPECT_EQ(GetDIBits(screen.handle, section.handle, 0, 3, pixels.data(), reinterpret_cast<BITMAPINFO*>(&info),
                        DIB_RGB_COLORS),
              3);
    EXPECT_THAT(info.masks, ElementsAre(0xFF0000, 0xFF00, 0xFF));
    EXPECT_THAT(pixels, ElementsAre(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11));
}

TEST_F(BitmapRows, AreWrittenInBothOrders)
{
    EXPECT_EQ(set(4, 3, 0, 3), 3);
    EXPECT_THAT(pixels, ElementsAre(0xA8, 0xA9, 0xAA, 0xAB, 0xA4, 0xA5, 0xA6, 0xA7, 0xA0, 0xA1, 0xA2, 0xA3));
    EXPECT_EQ(set(4, -3, 0, 3), 3);
    EXPECT_THAT(pixels, ElementsAre(0xA0, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5, 0xA6, 0xA7, 0xA8, 0xA9, 0xAA, 0xAB));
}

TEST_F(BitmapRows, AreWrittenInPart)
{
    EXPECT_EQ(set(4, 3, 1, 1), 1);
    EXPECT_THAT(pixels, ElementsAre(0, 0, 0, 0, 0xA0, 0xA1, 0xA2, 0xA3, 0, 0, 0, 0));
    EXPECT_EQ(set(4, 3, 2, 3), 1);
    EXPECT_THAT(pixels, ElementsAre(0xA0, 0xA1, 0xA2, 0xA3, 0, 0, 0, 0, 0, 0, 0, 0));
    EXPECT_EQ(set(4, -3, 0, 2), 2);
    EXPECT_THAT(pixels, ElementsAre(0, 0, 0, 0, 0xA0, 0xA1, 0xA2, 0xA3, 0xA4, 0xA5, 0xA6, 0xA7));
    EXPECT_EQ(set(2, 3, 0, 3), 3);
    EXPECT_THAT(pixels, ElementsAre(0xA4, 0xA5, 0, 0, 0xA2, 0xA3, 0, 0, 0xA0, 0xA1, 0, 0));
}

TEST_F(BitmapRows, OfMoreThanTheBitmapAreLeftOut)
{
    EXPECT_EQ(set(4, 5, 0, 5), 5);
    EXPECT_THAT(pixels, ElementsAre(0xB0, 0xB1, 0xB2, 0xB3, 0xAC, 0xAD, 0xAE, 0xAF, 0xA8, 0xA9, 0xAA, 0xAB));
    EXPECT_EQ(set(5, -3, 0, 3), 3);
    EXPECT_THAT(pixels, ElementsAre(0xA0, 0xA1, 0xA2, 0xA3, 0xA5, 0xA6, 0xA7, 0xA8, 0xAA, 0xAB, 0xAC, 0xAD));
}

TEST_F(BitmapRows, AreRefusedWithoutContextBitmapOrHeader)
{
    BITMAPINFO info = headerOf(4, 3);
    DWORD room[12];
    EXPECT_EQ(GetDIBits(nullptr, section.handle, 0, 3, room, &info, DIB_RGB_COLORS), 0);
    EXPECT_EQ(GetDIBits(screen.handle, nullptr, 0, 3, room, &info, DIB_RGB_COLORS), 0);
    EXPECT_EQ(GetDIBits(screen.handle, section.handle, 0, 3, room, nullptr, DIB_RGB_COLORS), 0);
    info.bmiHeader.biHeight = 0;
    EXPECT_EQ(GetDIBits(screen.handle, section.handle, 0, 3, room, &info, DIB_RGB_COLORS), 0);
    EXPECT_EQ(SetDIBits(screen.handle, section.handle, 0, 3, room, &info, DIB_RGB_COLORS), 0);
    EXPECT_EQ(SetDIBits(screen.handle, nullptr, 0, 3, room, &info, DIB_RGB_COLORS), 0);
}

} // namespace
} // namespace vq::test::bitmapsTests
