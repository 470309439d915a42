// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "Platform/win32/Surface.h"
#include "parity/Pixels.h"
#include "unit/Platform/gdiplus/GdiplusSession.h"

#include <thread>
#include <vector>

namespace vq::test {
namespace {

using namespace Gdiplus;
using platform::ScopedAllocationFailure;
class LentContext : public GdiplusTest
{
};

TEST_F(LentContext, TakesNoMemoryUnlessItIsDrawnOn)
{
    TestPicture picture(4, 4);
    const ScopedAllocationFailure failure;
    const HDC context = picture.graphics.GetHDC();
    LOGFONTW description{};
    description.lfHeight = -16;
    EXPECT_EQ(Gdiplus::Font(context, &description).GetLastStatus(), Ok);
    EXPECT_TRUE(SelectObject(context, GetStockObject(DEFAULT_GUI_FONT)));
    EXPECT_EQ(GetDeviceCaps(context, LOGPIXELSX), 96);
    EXPECT_EQ(Graphics(context).GetDpiX(), 96);
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(picture.graphics.GetLastStatus(), Ok);
}

TEST_F(LentContext, TakesNoMemoryForWhatLiesOutside)
{
    TestPicture picture(4, 4);
    const ScopedAllocationFailure failure;
    const HDC context = picture.graphics.GetHDC();
    EXPECT_TRUE(PatBlt(context, 0, 4, 4, 1, WHITENESS));
    EXPECT_TRUE(PatBlt(context, 0, -2, 4, 2, WHITENESS));
    EXPECT_TRUE(PatBlt(context, 0, 2, 4, -2, WHITENESS));
    EXPECT_TRUE(BitBlt(context, 0, 4, 4, 4, context, 0, -4, SRCCOPY));
    EXPECT_EQ(SetPixel(context, 0, 4, RGB(1, 2, 3)), CLR_INVALID);
    EXPECT_EQ(GetPixel(context, -1, 0), CLR_INVALID);
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(picture.graphics.GetLastStatus(), Ok);
}

TEST_F(LentContext, KeepsItsMemoryForTheNextLending)
{
    TestPicture picture(2, 2, 0x40112233);
    HDC context = picture.graphics.GetHDC();
    SetPixel(context, 0, 0, RGB(1, 2, 3));
    picture.graphics.ReleaseHDC(context);

    const ScopedAllocationFailure failure;
    context = picture.graphics.GetHDC();
    EXPECT_EQ(GetPixel(context, 0, 0), RGB(13, 11, 12));
    EXPECT_TRUE(PatBlt(context, 1, 1, 1, 1, WHITENESS));
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(picture.graphics.GetLastStatus(), Ok);
    EXPECT_EQ(picture.all(), row({0xFF010203, 0x40112233, 0x40112233, 0xFFFFFFFF}));
}

TEST_F(LentContext, HasAHandleForEachLending)
{
    TestPicture picture(1, 1, 0x40112233);
    const HDC first = picture.graphics.GetHDC();
    picture.graphics.ReleaseHDC(first);
    EXPECT_EQ(GetObjectType(first), 0u);
    const HDC second = picture.graphics.GetHDC();
    EXPECT_NE(first, second);
    EXPECT_FALSE(PatBlt(first, 0, 0, 1, 1, WHITENESS));
    picture.graphics.ReleaseHDC(first);
    EXPECT_EQ(picture.graphics.GetLastStatus(), InvalidParameter);
    picture.graphics.ReleaseHDC(second);
    EXPECT_EQ(picture.at(0, 0), Argb{0x40112233});
}

TEST_F(LentContext, StartsWithStockObjectsEachTime)
{
    TestPicture picture(1, 1);
    const HBRUSH brush = CreateSolidBrush(RGB(1, 2, 3));
    const HDC first = picture.graphics.GetHDC();
    SelectObject(first, brush);
    SelectObject(first, GetStockObject(DEFAULT_GUI_FONT));
    picture.graphics.ReleaseHDC(first);
    const HDC second = picture.graphics.GetHDC();
    EXPECT_EQ(GetCurrentObject(second, OBJ_BRUSH), GetStockObject(WHITE_BRUSH));
    EXPECT_EQ(GetCurrentObject(second, OBJ_FONT), GetStockObject(SYSTEM_FONT));
    EXPECT_EQ(GetCurrentObject(second, OBJ_PEN), GetStockObject(BLACK_PEN));
    picture.graphics.ReleaseHDC(second);
    DeleteObject(brush);
}

TEST_F(LentContext, TakesNoBitmap)
{
    TestPicture picture(1, 1);
    const HDC context = picture.graphics.GetHDC();
    const HBITMAP bitmap = CreateBitmap(1, 1, 1, 32, nullptr);
    EXPECT_FALSE(SelectObject(context, bitmap));
    EXPECT_FALSE(GetCurrentObject(context, OBJ_BITMAP));
    EXPECT_TRUE(DeleteObject(bitmap));
    picture.graphics.ReleaseHDC(context);
}

TEST_F(LentContext, DeletedByTheBorrowerStillGivesBackWhatWasDrawn)
{
    TestPicture picture(2, 1, 0x40112233);
    HDC context = picture.graphics.GetHDC();
    SetPixel(context, 1, 0, RGB(1, 2, 3));
    DeleteDC(context);
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(picture.graphics.GetLastStatus(), Ok);
    context = picture.graphics.GetHDC();
    EXPECT_EQ(GetPixel(context, 1, 0), RGB(13, 11, 12));
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(picture.all(), row({0x40112233, 0xFF010203}));
}

TEST_F(LentContext, CanBeDrawnOnByAGraphicsOfItsOwn)
{
    TestPicture picture(3, 2, 0x40112233);
    const HDC context = picture.graphics.GetHDC();
    Graphics graphics(context);
    const SolidBrush half{Color(0x80FFFFFF)};
    EXPECT_EQ(graphics.FillRectangle(&half, 1, 1, 1, 1), Ok);
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(picture.row(0), Row(3, Argb{0x40112233}));
    // Half white over the prepared colour.
    EXPECT_THAT(picture.row(1), testing::ElementsAre(Argb{0x40112233}, Near(0xFF868585, 1), Argb{0x40112233}));
    EXPECT_EQ(graphics.Clear(Color(0xFFFFFFFF)), Ok) << "on nothing any more";
    EXPECT_EQ(picture.at(0, 0), Argb{0x40112233});
}

TEST_F(LentContext, ShowsAllItsRowsAsASurface)
{
    TestPicture picture(2, 3);
    const HDC context = picture.graphics.GetHDC();
    SetPixel(context, 0, 1, RGB(1, 2, 3));
    const auto surface = win32::surfaceOf(context);
    ASSERT_TRUE(surface);
    EXPECT_EQ(surface->width, 2);
    EXPECT_EQ(surface->height, 3);
    for (LONG y = 0; y < 3; ++y)
        EXPECT_EQ(reinterpret_cast<const DWORD*>(surface->row(y))[0], y == 1 ? 0x010203u : 0x0D0B0Cu) << y;
    picture.graphics.ReleaseHDC(context);
    EXPECT_FALSE(win32::surfaceOf(context));
}

TEST_F(LentContext, HasTheSizeThatThePictureWasTurnedTo)
{
    Bitmap bitmap(3, 1, PixelFormat32bppARGB);
    Graphics graphics(&bitmap);
    for (int lending = 0; lending < 2; ++lending) {
        const HDC context = graphics.GetHDC();
        PatBlt(context, 0, 0, 3, 3, WHITENESS);
        graphics.ReleaseHDC(context);
        EXPECT_EQ(TestPicture::pixelsOf(bitmap), Row(3, Argb{0xFFFFFFFF})) << lending;
        bitmap.RotateFlip(Rotate90FlipNone);
        graphics.Clear(Color());
    }
}

TEST_F(LentContext, LeavesEveryBitOfOtherPixels)
{
    // More colour than alpha allows does not survive a conversion.
    std::vector<std::uint32_t> pixels{0x10FFFFFF, 0x10FFFFFF, 0x10FFFFFF};
    for (const PixelFormat format : {PixelFormat32bppPARGB, PixelFormat32bppRGB}) {
        pixels[1] = 0x10FFFFFF;
        Bitmap bitmap(3, 1, 12, format, reinterpret_cast<BYTE*>(pixels.data()));
        Graphics graphics(&bitmap);
        const HDC context = graphics.GetHDC();
        SetPixel(context, 1, 0, RGB(1, 2, 3));
        graphics.ReleaseHDC(context);
        EXPECT_EQ(pixels, (std::vector<std::uint32_t>{0x10FFFFFF, 0xFF010203, 0x10FFFFFF}));
    }
}

TEST_F(LentContext, ReachesPicturesOf24Bits)
{
    Bitmap bitmap(4, 2, PixelFormat24bppRGB);
    Graphics graphics(&bitmap);
    const HDC context = graphics.GetHDC();
    PatBlt(context, 1, 1, 1, 1, WHITENESS);
    SetPixel(context, 3, 1, RGB(1, 2, 3));
    graphics.ReleaseHDC(context);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFF000000, 0xFF000000, 0xFF000000, 0xFF000000, //
                                                  0xFF000000, 0xFFFFFFFF, 0xFF000000, 0xFF010203}));
}

TEST_F(LentContext, MayBeDrawnOnByManyThreads)
{
    constexpr int kRows = 64;
    TestPicture picture(8, kRows, 0x40112233);
    const HDC context = picture.graphics.GetHDC();
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([=] {
            for (int y = i; y < kRows; y += 4)
                EXPECT_TRUE(PatBlt(context, 0, (y * 37) % kRows, 4, 1, WHITENESS));
        });
    for (std::thread& thread : threads)
        thread.join();
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(picture.find(0xFFFFFFFF), (TestPicture::Found{0, 0, 3, kRows - 1, 4 * kRows}));
    EXPECT_EQ(picture.find(0x40112233).count, 4 * kRows);
}

TEST_F(LentContext, OfDifferentPicturesAreUsedByManyThreads)
{
    std::vector<std::thread> threads;
    for (int i = 0; i < 4; ++i)
        threads.emplace_back([i] {
            TestPicture picture(16, 16);
            for (int round = 0; round < 200; ++round) {
                const HDC context = picture.graphics.GetHDC();
                EXPECT_EQ(GetPixel(context, round % 16, i), RGB(13, 11, 12));
                EXPECT_TRUE(PatBlt(context, i, round % 16, round % 2, 1, WHITENESS));
                picture.graphics.ReleaseHDC(context);
            }
            EXPECT_EQ(picture.find(0xFFFFFFFF), (TestPicture::Found{i, 1, i, 15, 8}));
        });
    for (std::thread& thread : threads)
        thread.join();
}

} // namespace
} // namespace vq::test
