// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/GdiplusSession.h"
#include "parity/Pixels.h"

#include <array>
#include <cstring>

namespace vq::test {
namespace {

using namespace Gdiplus;
class PixelFormats : public GdiplusTest
{
};

TEST_F(PixelFormats, TwentyFourBitsAreDrawnOnInPlace)
{
    std::array<BYTE, 16> memory; // two rows of two pixels with two bytes of padding
    memory.fill(0x11);
    Bitmap bitmap(2, 2, 8, PixelFormat24bppRGB, memory.data());
    Graphics graphics(&bitmap);
    const SolidBrush brush{Color(0x80FF0000)};
    EXPECT_EQ(graphics.FillRectangle(&brush, 1, 1, 5, 5), Ok);

    EXPECT_THAT(memory, testing::ElementsAre(0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, 0x11, //
                                             0x11, 0x11, 0x11, 0x08, 0x08, 0x88, 0x11, 0x11));
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFF111111, 0xFF111111, 0xFF111111, 0xFF880808}));
}

TEST_F(PixelFormats, PremultipliedPixelsThatAreNotDrawnOnKeepEveryBit)
{
    std::array<std::uint32_t, 3> pixels{0x77997762, 0x01010101, 0x00FFFFFF}; // not one survives conversion
    const auto before = pixels;
    Bitmap bitmap(3, 1, 12, PixelFormat32bppPARGB, reinterpret_cast<BYTE*>(pixels.data()));
    Graphics graphics(&bitmap);
    const SolidBrush half{Color(0x80FF0000)};
    graphics.SetCompositingMode(CompositingModeSourceCopy);
    EXPECT_EQ(graphics.FillRectangle(&half, 1, 0, 1, 1), Ok);

    EXPECT_EQ(Argb{pixels[0]}, Argb{before[0]});
    EXPECT_EQ(Argb{pixels[1]}, Argb{0x80800000});
    EXPECT_EQ(Argb{pixels[2]}, Argb{before[2]});
}

TEST_F(PixelFormats, BitmapOfADrawingSurfaceIsPremultipliedWithItsResolution)
{
    TestPicture picture(2, 2);
    picture.bitmap.SetResolution(120, 60);
    Bitmap bitmap(3, 4, &picture.graphics);
    EXPECT_EQ(bitmap.GetLastStatus(), Ok);
    EXPECT_EQ(bitmap.GetPixelFormat(), PixelFormat32bppPARGB);
    EXPECT_EQ(bitmap.GetHorizontalResolution(), 120.0f);
    EXPECT_EQ(bitmap.GetVerticalResolution(), 60.0f);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), Row(12, Argb{0}));
    EXPECT_EQ(Bitmap(3, 4, static_cast<Graphics*>(nullptr)).GetLastStatus(), InvalidParameter);
}

TEST_F(PixelFormats, BitmapsWithoutAlphaStayOpaqueWhateverIsDoneToThem)
{
    for (const PixelFormat format : {PixelFormat24bppRGB, PixelFormat32bppRGB}) {
        Bitmap bitmap(2, 2, format);
        EXPECT_EQ(TestPicture::pixelsOf(bitmap), Row(4, Argb{0xFF000000}));

        Graphics graphics(&bitmap);
        graphics.SetCompositingMode(CompositingModeSourceCopy);
        TestPicture source(1, 1, 0x40102030);
        graphics.DrawImage(&source.bitmap, 0, 0);
        const SolidBrush brush{Color(0x80445566)};
        graphics.FillRectangle(&brush, 1, 0, 1, 1);
        bitmap.SetPixel(0, 1, Color(0x01778899));
        BitmapData data{};
        const Rect corner(1, 1, 1, 1);
        ASSERT_EQ(bitmap.LockBits(&corner, ImageLockModeWrite, PixelFormat32bppARGB, &data), Ok);
        const std::uint32_t pixel = 0x00AABBCC;
        std::memcpy(data.Scan0, &pixel, sizeof pixel);
        bitmap.UnlockBits(&data);

        EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFF102030, 0xFF445566, 0xFF778899, 0xFFAABBCC}));
    }
}

TEST_F(PixelFormats, MemoryNeedsNoAlignment)
{
    alignas(4) std::array<BYTE, 4 * 4 + 1> memory{};
    Bitmap bitmap(2, 2, 8, PixelFormat32bppARGB, memory.data() + 1);
    Graphics graphics(&bitmap);
    EXPECT_EQ(graphics.Clear(Color(0x80112233)), Ok);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), Row(4, Argb{0x80112233}));
    EXPECT_THAT(std::vector<BYTE>(memory.begin() + 13, memory.end()), testing::ElementsAre(0x33, 0x22, 0x11, 0x80));

    TestPicture target(2, 2);
    target.graphics.DrawImage(&bitmap, 0, 0);
    EXPECT_EQ(target.all(), Row(4, Argb{0x80112233}));
    EXPECT_EQ(bitmap.RotateFlip(Rotate90FlipNone), Ok);
}

TEST_F(PixelFormats, RowsMayNotOverlap)
{
    std::array<BYTE, 64> memory{};
    EXPECT_EQ(Bitmap(4, 2, 12, PixelFormat32bppARGB, memory.data()).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Bitmap(4, 2, 0, PixelFormat32bppARGB, memory.data()).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Bitmap(4, 1, 0, PixelFormat32bppARGB, memory.data()).GetLastStatus(), Ok);
}

TEST_F(PixelFormats, FormatsThatAreNotStoredAreRefused)
{
    EXPECT_EQ(Bitmap(2, 2, PixelFormat8bppIndexed).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Bitmap(2, 2, PixelFormat64bppARGB).GetLastStatus(), InvalidParameter);
    Bitmap bitmap(2, 2, PixelFormat32bppARGB);
    BitmapData data{};
    EXPECT_EQ(bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat16bppRGB565, &data), InvalidParameter);
    EXPECT_EQ(bitmap.LockBits(nullptr, 8, PixelFormat32bppARGB, &data), InvalidParameter);
    EXPECT_EQ(bitmap.LockBits(nullptr, ImageLockModeUserInputBuf, PixelFormat32bppARGB, &data), InvalidParameter);
    EXPECT_FALSE(bitmap.Clone(0, 0, 1, 1, PixelFormat4bppIndexed));
}

TEST_F(PixelFormats, EveryPairOfFormatsConvertsThroughALock)
{
    const std::pair<PixelFormat, std::uint32_t> expected[] = {
        {PixelFormat32bppARGB, 0x80FF0000}, {PixelFormat32bppRGB, 0xFFFF0000}, {PixelFormat32bppPARGB, 0x80800000}};
    TestPicture picture(1, 1, 0x80FF0000);
    for (const auto& [format, word] : expected) {
        BitmapData data{};
        ASSERT_EQ(picture.bitmap.LockBits(nullptr, ImageLockModeRead | ImageLockModeWrite, format, &data), Ok);
        std::uint32_t read = 0;
        std::memcpy(&read, data.Scan0, sizeof read);
        EXPECT_EQ(Argb{read}, Argb{word}) << format;
        picture.bitmap.UnlockBits(&data);
        picture.set(0, 0, 0x80FF0000); // formats without alpha wrote it back opaque
    }
}

TEST_F(PixelFormats, DeviceIndependentBitmapsAreWrittenInPlace)
{
    std::array<std::uint32_t, 2> pixels{0x00112233, 0x80445566};
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = 1;
    info.bmiHeader.biHeight = 2;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    Bitmap bitmap(&info, pixels.data());
    bitmap.SetPixel(0, 0, Color(0xFFABCDEF));
    EXPECT_EQ(pixels[1] & 0xFFFFFF, 0xABCDEFu);
    EXPECT_EQ(pixels[0], 0x00112233u);
}

TEST_F(PixelFormats, DeviceIndependentBitmapsWithAPaletteAreCopied)
{
    struct
    {
        BITMAPINFOHEADER header;
        RGBQUAD colours[2];
    } info{};
    info.header.biSize = sizeof info.header;
    info.header.biWidth = 3;
    info.header.biHeight = -1;
    info.header.biPlanes = 1;
    info.header.biBitCount = 1;
    info.colours[0] = {0x10, 0x20, 0x30, 0};
    info.colours[1] = {0xFF, 0xFF, 0xFF, 0};
    BYTE bits[4] = {0xA0, 0, 0, 0}; // 1 0 1
    Bitmap bitmap(reinterpret_cast<const BITMAPINFO*>(&info), bits);
    EXPECT_EQ(bitmap.GetLastStatus(), Ok);
    EXPECT_EQ(bitmap.GetPixelFormat(), PixelFormat1bppIndexed);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFFFFFFFF, 0xFF302010, 0xFFFFFFFF}));
    EXPECT_EQ(bitmap.SetPixel(0, 0, Color()), InvalidParameter);
    EXPECT_EQ(Graphics(&bitmap).GetLastStatus(), OutOfMemory);
}

TEST_F(PixelFormats, ImpossibleDeviceIndependentBitmapsAreRefused)
{
    std::array<std::uint32_t, 4> pixels{};
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biWidth = 1;
    info.bmiHeader.biHeight = 1;
    const auto statusOf = [&] { return Bitmap(&info, pixels.data()).GetLastStatus(); };
    EXPECT_EQ(statusOf(), Ok);
    EXPECT_EQ(Bitmap(&info, nullptr).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Bitmap(static_cast<const BITMAPINFO*>(nullptr), pixels.data()).GetLastStatus(), InvalidParameter);
    for (const LONG height : {0, std::numeric_limits<LONG>::min()}) {
        info.bmiHeader.biHeight = height;
        EXPECT_NE(statusOf(), Ok) << height;
    }
    info.bmiHeader.biHeight = 1;
    for (const LONG width : {0, -1, std::numeric_limits<LONG>::max()}) {
        info.bmiHeader.biWidth = width;
        EXPECT_EQ(statusOf(), InvalidParameter) << width;
    }
    info.bmiHeader.biWidth = 1;
    info.bmiHeader.biBitCount = 7;
    EXPECT_EQ(statusOf(), InvalidParameter);
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biSize = 12;
    EXPECT_EQ(statusOf(), InvalidParameter);
}

} // namespace
} // namespace vq::test
