// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

#include <array>
#include <cstring>
#include <memory>

namespace vq::test {
namespace {

using Gdiplus::BitmapData;
using Gdiplus::ImageLockModeRead;
using Gdiplus::ImageLockModeUserInputBuf;
using Gdiplus::ImageLockModeWrite;

std::uint32_t wordAt(const BitmapData& data, int x, int y)
{
    std::uint32_t word = 0;
    std::memcpy(&word, static_cast<const BYTE*>(data.Scan0) + y * data.Stride + x * 4, sizeof word);
    return word;
}

TEST(BitmapMemory, DrawingAndPixelsGoStraightToTheCallersMemory)
{
    TestPicture picture(2, 2);
    picture.bitmap.SetPixel(1, 0, Gdiplus::Color(0x80112233));
    picture.set(0, 1, 0x01FF00FF);
    EXPECT_EQ(picture.at(1, 0), Argb{0x80112233});
    Gdiplus::Color colour;
    EXPECT_EQ(picture.bitmap.GetPixel(0, 1, &colour), Gdiplus::Ok);
    EXPECT_EQ(colour.GetValue(), 0x01FF00FFu);
}

TEST(BitmapMemory, NegativeStrideWalksUpwards)
{
    std::array<std::uint32_t, 4> pixels{};
    Gdiplus::Bitmap bitmap(2, 2, -8, PixelFormat32bppARGB, reinterpret_cast<BYTE*>(&pixels[2]));
    EXPECT_EQ(bitmap.SetPixel(0, 0, Gdiplus::Color(0xFFFF0000)), Gdiplus::Ok);
    bitmap.SetPixel(1, 1, Gdiplus::Color(0xFF00FF00));
    EXPECT_EQ(pixels, (std::array<std::uint32_t, 4>{0, 0xFF00FF00, 0xFFFF0000, 0}));
}

TEST(BitmapMemory, StrideIsAMultipleOfFourAndSizesArePositive)
{
    std::array<std::uint32_t, 16> pixels{};
    auto* memory = reinterpret_cast<BYTE*>(pixels.data());
    EXPECT_EQ(Gdiplus::Bitmap(2, 2, 9, PixelFormat24bppRGB, memory).GetLastStatus(), Gdiplus::InvalidParameter);
    EXPECT_EQ(Gdiplus::Bitmap(0, 2, 8, PixelFormat24bppRGB, memory).GetLastStatus(), Gdiplus::InvalidParameter);
    EXPECT_EQ(Gdiplus::Bitmap(2, -1, 8, PixelFormat24bppRGB, memory).GetLastStatus(), Gdiplus::InvalidParameter);
    EXPECT_EQ(Gdiplus::Bitmap(2, 2, 8, PixelFormat24bppRGB, memory).GetLastStatus(), Gdiplus::Ok);
}

TEST(BitmapMemory, NewBitmapIsZeroAndHasTheScreensResolution)
{
    Gdiplus::Bitmap bitmap(2, 1);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0, 0}));
    EXPECT_EQ(bitmap.GetPixelFormat(), PixelFormat32bppARGB);
    EXPECT_EQ(bitmap.GetHorizontalResolution(), 96.0f);
    EXPECT_EQ(bitmap.GetVerticalResolution(), 96.0f);
    EXPECT_EQ(bitmap.GetType(), Gdiplus::ImageTypeBitmap);
    GUID format{};
    EXPECT_EQ(bitmap.GetRawFormat(&format), Gdiplus::Ok);
    EXPECT_TRUE(format == Gdiplus::ImageFormatMemoryBMP);
}

TEST(BitmapMemory, LockingInTheSameFormatGivesTheMemoryItself)
{
    TestPicture picture(3, 2, 0xFF102030);
    BitmapData data{};
    ASSERT_EQ(picture.bitmap.LockBits(nullptr, ImageLockModeRead | ImageLockModeWrite, PixelFormat32bppARGB, &data),
              Gdiplus::Ok);
    EXPECT_EQ(data.Width, 3u);
    EXPECT_EQ(data.Height, 2u);
    EXPECT_EQ(data.Stride, 12);
    std::memset(data.Scan0, 0xEE, 4);
    EXPECT_EQ(picture.at(0, 0), Argb{0xEEEEEEEE});
    EXPECT_EQ(picture.bitmap.UnlockBits(&data), Gdiplus::Ok);
}

TEST(BitmapMemory, LockingTwiceOrUnlockingUnlockedIsTheWrongState)
{
    Gdiplus::Bitmap bitmap(2, 2);
    BitmapData data{};
    BitmapData second{};
    ASSERT_EQ(bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data), Gdiplus::Ok);
    EXPECT_EQ(bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, &second), Gdiplus::WrongState);
    EXPECT_EQ(bitmap.UnlockBits(&data), Gdiplus::Ok);
    EXPECT_EQ(bitmap.UnlockBits(&data), Gdiplus::WrongState);
}

TEST(BitmapMemory, RectanglesThatReachOutsideCannotBeLocked)
{
    Gdiplus::Bitmap bitmap(3, 3);
    BitmapData data{};
    for (const Gdiplus::Rect& rect :
         {Gdiplus::Rect(0, 0, 4, 1), Gdiplus::Rect(-1, 0, 2, 1), Gdiplus::Rect(0, 2, 1, 2)})
        EXPECT_EQ(bitmap.LockBits(&rect, ImageLockModeRead, PixelFormat32bppARGB, &data), Gdiplus::InvalidParameter);
    EXPECT_EQ(bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, nullptr), Gdiplus::InvalidParameter);
}

TEST(BitmapMemory, ReadingPremultipliedMultipliesAndRounds)
{
    TestPicture picture(2, 1, {0x80332211, 0x00FFFFFF});
    BitmapData data{};
    ASSERT_EQ(picture.bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat32bppPARGB, &data), Gdiplus::Ok);
    EXPECT_EQ(Argb{wordAt(data, 0, 0)}, Argb{0x801A1109});
    EXPECT_EQ(Argb{wordAt(data, 1, 0)}, Argb{0x00000000});
    picture.bitmap.UnlockBits(&data);
}

TEST(BitmapMemory, ReadingPremultipliedPixelsAsStraightDividesAndClamps)
{
    std::uint32_t pixel = 0x77997762;
    Gdiplus::Bitmap bitmap(1, 1, 4, PixelFormat32bppPARGB, reinterpret_cast<BYTE*>(&pixel));
    BitmapData data{};
    ASSERT_EQ(bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data), Gdiplus::Ok);
    EXPECT_EQ(Argb{wordAt(data, 0, 0)}, Argb{0x77FFFED1});
    bitmap.UnlockBits(&data);
}

TEST(BitmapMemory, WritingAPartInAnotherFormatChangesThatPart)
{
    TestPicture picture(3, 2, 0x40123456);
    const Gdiplus::Rect rect(1, 0, 2, 2);
    BitmapData data{};
    ASSERT_EQ(picture.bitmap.LockBits(&rect, ImageLockModeWrite, PixelFormat24bppRGB, &data), Gdiplus::Ok);
    for (int y = 0; y < 2; ++y)
        for (int i = 0; i < 6; ++i)
            static_cast<BYTE*>(data.Scan0)[y * data.Stride + i] = static_cast<BYTE>(0x10 * (i % 3 + 1));
    EXPECT_EQ(picture.bitmap.UnlockBits(&data), Gdiplus::Ok);
    EXPECT_EQ(picture.all(),
              row({0x40123456, 0xFF302010, 0xFF302010, 0x40123456, 0xFF302010, 0xFF302010}));
}

TEST(BitmapMemory, CallersBufferReceivesThePixels)
{
    TestPicture picture(2, 1, {0xFF010203, 0x80040506});
    std::array<std::uint32_t, 2> buffer{};
    BitmapData data{};
    data.Scan0 = buffer.data();
    data.Stride = 8;
    const Gdiplus::Rect all(0, 0, 2, 1);
    data.Width = 2;
    data.Height = 1;
    data.PixelFormat = PixelFormat32bppARGB;
    ASSERT_EQ(picture.bitmap.LockBits(&all, ImageLockModeRead | ImageLockModeUserInputBuf, PixelFormat32bppARGB, &data),
              Gdiplus::Ok);
    EXPECT_EQ(data.Scan0, buffer.data());
    EXPECT_EQ(buffer, (std::array<std::uint32_t, 2>{0xFF010203, 0x80040506}));
    picture.bitmap.UnlockBits(&data);
}

TEST(BitmapMemory, GetPixelOutsideIsInvalidAndLeavesTheColour)
{
    Gdiplus::Bitmap bitmap(2, 2);
    Gdiplus::Color colour(0x12345678);
    EXPECT_EQ(bitmap.GetPixel(2, 0, &colour), Gdiplus::InvalidParameter);
    EXPECT_EQ(bitmap.GetPixel(0, -1, &colour), Gdiplus::InvalidParameter);
    EXPECT_EQ(bitmap.SetPixel(0, 2, colour), Gdiplus::InvalidParameter);
    EXPECT_EQ(colour.GetValue(), 0x12345678u);
}

TEST(BitmapMemory, PixelsWithoutAlphaAreOpaque)
{
    std::array<std::uint32_t, 2> pixels{0x00112233, 0x80445566};
    Gdiplus::Bitmap bitmap(2, 1, 8, PixelFormat32bppRGB, reinterpret_cast<BYTE*>(pixels.data()));
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFF112233, 0xFF445566}));

    TestPicture target(2, 1);
    target.graphics.DrawImage(&bitmap, 0, 0);
    EXPECT_EQ(target.all(), row({0xFF112233, 0xFF445566}));
}

TEST(BitmapMemory, DeviceIndependentBitmapStandsUpsideDown)
{
    std::array<std::uint32_t, 2> pixels{0x00112233, 0x80445566}; // the lower row comes first
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = 1;
    info.bmiHeader.biHeight = 2;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    Gdiplus::Bitmap bitmap(&info, pixels.data());
    EXPECT_EQ(bitmap.GetPixelFormat(), PixelFormat32bppRGB);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFF445566, 0xFF112233}));
}

TEST(BitmapMemory, CloneOfAPartHasMemoryOfItsOwn)
{
    TestPicture picture(3, 2, {0xFF000000, 0xFF000001, 0xFF000002, 0xFF000003, 0x80000004, 0xFF000005});
    const std::unique_ptr<Gdiplus::Bitmap> part(picture.bitmap.Clone(1, 0, 2, 2, PixelFormat32bppARGB));
    ASSERT_TRUE(part);
    picture.set(1, 0, 0);
    EXPECT_EQ(TestPicture::pixelsOf(*part), row({0xFF000001, 0xFF000002, 0x80000004, 0xFF000005}));
    EXPECT_FALSE(picture.bitmap.Clone(1, 0, 3, 2, PixelFormat32bppARGB));
    if (!differsHere("area outside in Clone")) {
        EXPECT_EQ(picture.bitmap.GetLastStatus(), Gdiplus::OutOfMemory);
    }
    EXPECT_FALSE(picture.bitmap.Clone(0, 0, 0, 2, PixelFormat32bppARGB));
}

TEST(BitmapMemory, NumbersWithoutMeaningBreakTheBitmap)
{
    Gdiplus::Bitmap bitmap(-3, 4, PixelFormat32bppARGB);
    EXPECT_EQ(bitmap.GetLastStatus(), Gdiplus::InvalidParameter);
    EXPECT_EQ(bitmap.GetWidth(), 0u);
    EXPECT_EQ(bitmap.GetLastStatus(), Gdiplus::InvalidParameter);
    EXPECT_EQ(Gdiplus::Graphics(&bitmap).GetLastStatus(), Gdiplus::InvalidParameter);
}

} // namespace
} // namespace vq::test
