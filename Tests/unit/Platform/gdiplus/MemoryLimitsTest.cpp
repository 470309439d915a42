// SPDX-License-Identifier: MIT
#include "parity/Encoders.h"
#include "parity/Pixels.h"
#include "unit/Platform/gdiplus/GdiplusSession.h"

#include <limits>
#include <memory>

namespace vq::test {
namespace {

using namespace Gdiplus;
using platform::ScopedAllocationFailure;
class MemoryLimits : public GdiplusTest
{
};

TEST_F(MemoryLimits, SizesThatNoMemoryHoldsAreRefused)
{
    constexpr INT kHuge = std::numeric_limits<INT>::max();
    EXPECT_EQ(Bitmap(kHuge, kHuge, PixelFormat32bppARGB).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Bitmap(kHuge, 1, PixelFormat32bppARGB).GetLastStatus(), InvalidParameter);
    EXPECT_EQ(Bitmap(500000000, kHuge, PixelFormat32bppARGB).GetLastStatus(), OutOfMemory);
}

TEST_F(MemoryLimits, BitmapWithoutMemoryIsBroken)
{
    const ScopedAllocationFailure failure;
    Bitmap bitmap(2, 2, PixelFormat32bppARGB);
    EXPECT_EQ(bitmap.GetLastStatus(), OutOfMemory);
    EXPECT_EQ(bitmap.GetWidth(), 0u);
}

TEST_F(MemoryLimits, TurningWithoutMemoryChangesNothing)
{
    TestPicture picture(3, 2, {1, 2, 3, 4, 5, 6});
    const Row before = TestPicture::pixelsOf(picture.bitmap);
    {
        const ScopedAllocationFailure failure;
        EXPECT_EQ(picture.bitmap.RotateFlip(Rotate90FlipNone), OutOfMemory);
    }
    EXPECT_EQ(picture.bitmap.GetWidth(), 3u);
    EXPECT_EQ(TestPicture::pixelsOf(picture.bitmap), before);
}

TEST_F(MemoryLimits, CopiesWithoutMemoryAreNull)
{
    TestPicture picture(2, 2);
    const ScopedAllocationFailure failure;
    EXPECT_FALSE(picture.bitmap.Clone());
    EXPECT_EQ(picture.bitmap.GetLastStatus(), OutOfMemory);
    EXPECT_FALSE(picture.bitmap.Clone(0, 0, 1, 1, PixelFormat32bppARGB));
    BitmapData data{};
    EXPECT_EQ(picture.bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat24bppRGB, &data), OutOfMemory);
    EXPECT_EQ(picture.bitmap.LockBits(nullptr, ImageLockModeRead, PixelFormat32bppARGB, &data), Ok);
}

/// What a lent context fails with when there is no memory for its pixels.
void expectNothingCanBeDrawn(HDC context)
{
    SetLastError(0);
    EXPECT_FALSE(PatBlt(context, 0, 0, 1, 1, WHITENESS));
    EXPECT_EQ(GetLastError(), ERROR_NOT_ENOUGH_MEMORY);
    const RECT all{0, 0, 2, 2};
    EXPECT_FALSE(FillRect(context, &all, static_cast<HBRUSH>(GetStockObject(WHITE_BRUSH))));
    EXPECT_FALSE(BitBlt(context, 0, 0, 1, 1, context, 1, 1, SRCCOPY));
    EXPECT_EQ(SetPixel(context, 0, 0, RGB(1, 2, 3)), CLR_INVALID);
    EXPECT_EQ(GetPixel(context, 0, 0), CLR_INVALID);
    Graphics graphics(context);
    EXPECT_EQ(graphics.Clear(Color(0xFFFFFFFF)), OutOfMemory);
}

TEST_F(MemoryLimits, LentContextWithoutMemoryFailsWhenItIsDrawnOnAndWhenItIsGivenBack)
{
    TestPicture picture(2, 2, 0x40112233);
    {
        const ScopedAllocationFailure failure;
        const HDC context = picture.graphics.GetHDC();
        ASSERT_TRUE(context);
        expectNothingCanBeDrawn(context);
        picture.graphics.ReleaseHDC(context);
        EXPECT_EQ(picture.graphics.GetLastStatus(), OutOfMemory);
    }
    EXPECT_EQ(picture.all(), Row(4, Argb{0x40112233}));
    EXPECT_EQ(picture.graphics.Clear(Color(0xFF000000)), Ok) << "nothing is lent";
    picture.graphics.ReleaseHDC(picture.graphics.GetHDC());
    EXPECT_EQ(picture.graphics.GetLastStatus(), Ok) << "the failure belongs to one lending";
}

TEST_F(MemoryLimits, LentContextKeepsWhatCouldBeDrawn)
{
    TestPicture picture(2, 1, 0x40112233);
    const HDC context = picture.graphics.GetHDC();
    {
        const ScopedAllocationFailure failure;
        EXPECT_EQ(SetPixel(context, 0, 0, RGB(1, 2, 3)), CLR_INVALID);
    }
    EXPECT_EQ(SetPixel(context, 1, 0, RGB(1, 2, 3)), RGB(1, 2, 3));
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(picture.graphics.GetLastStatus(), OutOfMemory);
    EXPECT_EQ(picture.all(), row({0x40112233, 0xFF010203}));
}

TEST_F(MemoryLimits, DrawingOntoItselfWithoutMemoryDrawsNothing)
{
    TestPicture picture(2, 1, {0xFF112233, 0xFF445566});
    const ScopedAllocationFailure failure;
    EXPECT_EQ(picture.graphics.DrawImage(&picture.bitmap, 1, 0), OutOfMemory);
    EXPECT_EQ(picture.all(), row({0xFF112233, 0xFF445566}));
}

TEST_F(MemoryLimits, SavingWithoutMemoryWritesNoFile)
{
    TestPicture picture(2, 2);
    const TemporaryFile file(L"none.png");
    const CLSID png = encoderId(kPng);
    {
        const ScopedAllocationFailure failure;
        EXPECT_NE(picture.bitmap.Save(file.path(), &png, nullptr), Ok);
    }
    EXPECT_TRUE(file.read().empty());
}

} // namespace
} // namespace vq::test
