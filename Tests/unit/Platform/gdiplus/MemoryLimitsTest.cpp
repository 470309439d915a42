// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/GdiplusSession.h"
#include "parity/Encoders.h"
#include "parity/Pixels.h"

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
    EXPECT_FALSE(picture.graphics.GetHDC());
    EXPECT_EQ(picture.graphics.GetLastStatus(), OutOfMemory);
    EXPECT_EQ(picture.graphics.Clear(Color()), Ok) << "nothing is lent";
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
