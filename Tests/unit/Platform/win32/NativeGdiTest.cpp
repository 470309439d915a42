// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "Platform/win32/Bitmaps.h"
#include "Platform/win32/DeviceContexts.h"
#include "Platform/win32/Drawing.h"
#include "Platform/win32/Errors.h"
#include "Platform/win32/GdiObjects.h"
#include "Platform/win32/Strings.h"
#include "Platform/win32/Surface.h"

#include <array>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <thread>
#include <vector>

namespace vq::test::nativeGdiTests {
namespace {

using vq::win32::Surface;
using vq::win32::surfaceOf;

constexpr int kMost = std::numeric_limits<int>::max();
constexpr int kLeast = std::numeric_limits<int>::min();

HBITMAP createSection(LONG width, LONG height, void** bits)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, bits, nullptr, 0);
}

TEST(Surface, OfASectionBeginsAtItsTopmostRow)
{
    void* bits = nullptr;
    const HBITMAP topDown = createSection(3, -2, &bits);
    const Surface down = surfaceOf(topDown).value();
    EXPECT_EQ(down.top, bits);
    EXPECT_EQ(down.stride, 12);
    EXPECT_EQ(down.width, 3);
    EXPECT_EQ(down.height, 2);
    const HBITMAP bottomUp = createSection(3, 2, &bits);
    const Surface up = surfaceOf(bottomUp).value();
    EXPECT_EQ(up.row(1), bits);
    EXPECT_EQ(up.stride, -12);
    DeleteObject(topDown);
    DeleteObject(bottomUp);
}

TEST(Surface, OfAContextIsThatOfItsBitmap)
{
    const HDC context = CreateCompatibleDC(nullptr);
    EXPECT_FALSE(surfaceOf(context)); // the monochrome bitmap of a new context
    void* bits = nullptr;
    const HBITMAP bitmap = createSection(3, -2, &bits);
    const HGDIOBJ initial = SelectObject(context, bitmap);
    EXPECT_EQ(surfaceOf(context)->top, bits);
    SelectObject(context, initial);
    DeleteDC(context);
    DeleteObject(bitmap);
    EXPECT_FALSE(surfaceOf(context));
    EXPECT_FALSE(surfaceOf(bitmap));
    EXPECT_FALSE(surfaceOf(HDC{}));
    EXPECT_FALSE(surfaceOf(HBITMAP{}));
}

TEST(SurfaceContext, DrawsOnForeignMemory)
{
    std::array<DWORD, 6> pixels{1, 2, 3, 4, 5, 6};
    const Surface surface{reinterpret_cast<BYTE*>(pixels.data()), 12, 3, 2};
    const HDC context = vq::win32::createSurfaceContext(surface);
    EXPECT_EQ(GetObjectType(context), OBJ_MEMDC);
    EXPECT_EQ(surfaceOf(context)->top, surface.top);
    SetPixel(context, 2, 1, RGB(0, 0, 9));
    EXPECT_EQ(pixels[5], 9u);

    void* bits = nullptr;
    const HBITMAP bitmap = createSection(3, -2, &bits);
    EXPECT_EQ(SelectObject(context, bitmap), nullptr);
    EXPECT_TRUE(DeleteDC(context));
    SetPixel(context, 2, 1, RGB(0, 0, 7));
    EXPECT_EQ(pixels[5], 9u);
    DeleteObject(bitmap);
}

TEST(SurfaceContext, IsNotMadeOverNothing)
{
    DWORD pixel = 0;
    auto* memory = reinterpret_cast<BYTE*>(&pixel);
    EXPECT_EQ(vq::win32::createSurfaceContext({nullptr, 4, 1, 1}), nullptr);
    EXPECT_EQ(vq::win32::createSurfaceContext({memory, 4, 0, 1}), nullptr);
    EXPECT_EQ(vq::win32::createSurfaceContext({memory, 4, 1, -1}), nullptr);
}

// Two views of one memory with rows in opposite orders overlap in a way that no order of copying rows gets right.
TEST(BitBlt, MirrorsMemoryOntoItselfThroughTwoViews)
{
    std::array<DWORD, 6> pixels{1, 2, 3, 4, 5, 6};
    auto* memory = reinterpret_cast<BYTE*>(pixels.data());
    const HDC down = vq::win32::createSurfaceContext({memory, 8, 2, 3});
    const HDC up = vq::win32::createSurfaceContext({memory + 16, -8, 2, 3});
    EXPECT_TRUE(BitBlt(down, 0, 0, 2, 3, up, 0, 0, SRCCOPY));
    EXPECT_EQ(pixels, (std::array<DWORD, 6>{5, 6, 3, 4, 1, 2}));
    {
        const vq::platform::ScopedAllocationFailure noMemory;
        EXPECT_FALSE(BitBlt(down, 0, 0, 2, 3, up, 0, 0, SRCCOPY));
    }
    DeleteDC(down);
    DeleteDC(up);
}

TEST(BitBlt, RefusesMonochromeContextsAndUnknownOperations)
{
    const HDC screen = GetDC(nullptr);
    const HDC context = CreateCompatibleDC(nullptr);
    EXPECT_FALSE(BitBlt(context, 0, 0, 1, 1, screen, 0, 0, SRCCOPY));
    EXPECT_FALSE(BitBlt(screen, 0, 0, 1, 1, context, 0, 0, SRCCOPY));
    EXPECT_FALSE(BitBlt(screen, 0, 0, 1, 1, screen, 0, 0, 0x00EE0086));
    EXPECT_EQ(GetLastError(), ERROR_NOT_SUPPORTED);
    DeleteDC(context);
    ReleaseDC(nullptr, screen);
}

TEST(FillRect, CoversTheWholeSurfaceForTheLargestRectangle)
{
    const HDC context = CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    const HBITMAP bitmap = createSection(3, -2, &bits);
    const HGDIOBJ initial = SelectObject(context, bitmap);
    const RECT all{kLeast, kLeast, kMost, kMost};
    const HBRUSH brush = CreateSolidBrush(RGB(0, 0, 7));
    EXPECT_TRUE(FillRect(context, &all, brush));
    for (int i = 0; i < 6; ++i)
        EXPECT_EQ(static_cast<DWORD*>(bits)[i], 7u);
    const RECT reversed{2, 2, 0, 0};
    EXPECT_TRUE(FillRect(context, &reversed, brush));
    EXPECT_FALSE(FillRect(context, nullptr, brush));
    EXPECT_FALSE(FillRect(context, &all, nullptr));
    SelectObject(context, initial);
    DeleteObject(brush);
    DeleteObject(bitmap);
    DeleteDC(context);
}

TEST(Screen, IsOnePictureForAllItsContexts)
{
    const HDC one = GetDC(nullptr);
    const HDC other = GetWindowDC(GetDesktopWindow());
    EXPECT_EQ(GetDeviceCaps(one, HORZRES), 1920);
    EXPECT_EQ(GetDeviceCaps(one, VERTRES), 1080);
    EXPECT_EQ(SetPixel(one, 1919, 1079, RGB(1, 2, 3)), RGB(1, 2, 3));
    EXPECT_EQ(GetPixel(other, 1919, 1079), RGB(1, 2, 3));
    EXPECT_EQ(GetPixel(other, 1920, 0), CLR_INVALID);
    EXPECT_EQ(surfaceOf(one)->top, surfaceOf(other)->top);
    ReleaseDC(nullptr, one);
    ReleaseDC(nullptr, other);
    EXPECT_EQ(GetDC(HWND{} + 1), nullptr);
}

TEST(DisplayScaleFactor, ChangesTheResolutionRounded)
{
    const HDC screen = GetDC(nullptr);
    vq::win32::setDisplayScaleFactor(1.255f);
    EXPECT_EQ(GetDeviceCaps(screen, LOGPIXELSX), 120); // 120.48
    EXPECT_EQ(GetDeviceCaps(screen, LOGPIXELSY), 120);
    for (const float refused :
         {0.0f, -1.0f, std::numeric_limits<float>::infinity(), std::numeric_limits<float>::quiet_NaN()})
        vq::win32::setDisplayScaleFactor(refused);
    EXPECT_EQ(vq::win32::displayScaleFactor(), 1.255f);
    vq::win32::setDisplayScaleFactor(1);
    EXPECT_EQ(GetDeviceCaps(screen, LOGPIXELSX), 96);
    ReleaseDC(nullptr, screen);
}

TEST(DeleteObject, KeepsABitmapThatIsSelected)
{
    const HDC context = CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    const HBITMAP bitmap = createSection(3, -2, &bits);
    const HGDIOBJ initial = SelectObject(context, bitmap);
    EXPECT_FALSE(DeleteObject(bitmap));
    EXPECT_EQ(GetObjectType(bitmap), OBJ_BITMAP);
    SelectObject(context, initial);
    EXPECT_TRUE(DeleteObject(bitmap));
    DeleteDC(context);
}

TEST(DeleteObject, LetsASelectedBrushLiveOnInTheContext)
{
    const HDC context = CreateCompatibleDC(nullptr);
    void* bits = nullptr;
    const HBITMAP bitmap = createSection(1, -1, &bits);
    const HGDIOBJ initial = SelectObject(context, bitmap);
    const HBRUSH brush = CreateSolidBrush(RGB(0, 0, 7));
    SelectObject(context, brush);
    EXPECT_TRUE(DeleteObject(brush));
    EXPECT_EQ(GetObjectType(brush), 0u);
    EXPECT_TRUE(PatBlt(context, 0, 0, 1, 1, PATCOPY));
    EXPECT_EQ(*static_cast<DWORD*>(bits), 7u);
    EXPECT_EQ(SelectObject(context, GetStockObject(WHITE_BRUSH)), brush);
    SelectObject(context, initial);
    DeleteObject(bitmap);
    DeleteDC(context);
}

TEST(CreateFontIndirect, TerminatesTheFaceName)
{
    LOGFONTW description{};
    for (char16_t& unit : description.lfFaceName)
        unit = u'x';
    const HFONT font = CreateFontIndirectW(&description);
    GetObjectW(font, sizeof description, &description);
    EXPECT_EQ(vq::win32::faceName(description), std::wstring(31, L'x'));
    DeleteObject(font);
}

TEST(CreateBitmap, RefusesNegativeSizesAndOtherDepths)
{
    EXPECT_EQ(CreateBitmap(-1, 1, 1, 32, nullptr), nullptr);
    EXPECT_EQ(CreateBitmap(1, kLeast, 1, 32, nullptr), nullptr);
    EXPECT_EQ(CreateBitmap(4, 4, 1, 24, nullptr), nullptr);
    EXPECT_EQ(GetLastError(), ERROR_NOT_SUPPORTED);
    const HDC screen = GetDC(nullptr);
    EXPECT_EQ(CreateCompatibleBitmap(screen, -3, 5), nullptr);
    EXPECT_EQ(CreateCompatibleBitmap(screen, kMost, kMost), nullptr);
    ReleaseDC(nullptr, screen);
}

TEST(Bitmaps, AreNullWhenMemoryRunsOut)
{
    const vq::platform::ScopedAllocationFailure noMemory;
    void* bits = &bits;
    EXPECT_EQ(createSection(100, 100, &bits), nullptr);
    EXPECT_EQ(bits, nullptr);
    EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
    EXPECT_EQ(CreateBitmap(10, 10, 1, 32, nullptr), nullptr);
}

TEST(MonochromeBitmap, HasNoRowsToRead)
{
    const HDC context = CreateCompatibleDC(nullptr);
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    const auto monochrome = static_cast<HBITMAP>(GetCurrentObject(context, OBJ_BITMAP));
    EXPECT_EQ(GetDIBits(context, monochrome, 0, 1, nullptr, &info, DIB_RGB_COLORS), 0);
    info.bmiHeader.biSize = 12; // the header of the first bitmaps
    EXPECT_EQ(GetDIBits(context, monochrome, 0, 1, nullptr, &info, DIB_RGB_COLORS), 0);
    DeleteDC(context);
}

// Handles that were never given out, or belong to something else, whatever bits they have.
TEST(GdiHandles, MayBeAnything)
{
    std::mt19937_64 random(7);
    const HDC context = CreateCompatibleDC(nullptr);
    LOGFONTW room;
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof(BITMAPINFOHEADER);
    for (int round = 0; round < 2000; ++round) {
        const std::uintptr_t bits = random() >> (round % 64);
        auto* const handle = reinterpret_cast<void*>(bits);
        if (handle == context || GetObjectType(handle) != 0)
            continue;
        EXPECT_FALSE(DeleteObject(handle));
        EXPECT_FALSE(DeleteDC(static_cast<HDC>(handle)));
        EXPECT_EQ(ReleaseDC(nullptr, static_cast<HDC>(handle)), 0);
        EXPECT_EQ(GetObjectW(handle, sizeof room, &room), 0);
        EXPECT_EQ(SelectObject(context, handle), nullptr);
        EXPECT_EQ(SelectObject(static_cast<HDC>(handle), GetStockObject(WHITE_BRUSH)), nullptr);
        EXPECT_EQ(GetDIBits(context, static_cast<HBITMAP>(handle), 0, 1, nullptr, &info, DIB_RGB_COLORS), 0);
        EXPECT_FALSE(surfaceOf(static_cast<HDC>(handle)));
        EXPECT_FALSE(surfaceOf(static_cast<HBITMAP>(handle)));
    }
    DeleteDC(context);
}

TEST(GdiObjects, AreMadeAndDeletedByManyThreads)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([] {
            for (int round = 0; round < 200; ++round) {
                const HDC context = CreateCompatibleDC(nullptr);
                void* bits = nullptr;
                const HBITMAP bitmap = createSection(8, -8, &bits);
                const HGDIOBJ initial = SelectObject(context, bitmap);
                EXPECT_TRUE(PatBlt(context, 0, 0, 8, 8, WHITENESS));
                EXPECT_TRUE(BitBlt(context, 0, 0, 4, 4, context, 2, 2, SRCCOPY));
                EXPECT_EQ(SelectObject(context, initial), bitmap);
                EXPECT_TRUE(DeleteObject(bitmap));
                EXPECT_TRUE(DeleteDC(context));
            }
        });
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace
} // namespace vq::test::nativeGdiTests
