// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "support/DeviceContexts.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <functional>
#include <memory>

namespace vq::test {
namespace {

using vq::platform::ScopedAllocationFailure;

constexpr int kLastFailure = 8;

/// Runs the operation on a 5 x 4 picture with memory that runs out after each number of allocations; expects the
/// picture to come out as it was or as the operation makes it, never something between.
void expectAllOrNothing(const std::function<void(CVQDIB&)>& operation)
{
    CVQDIB done(5, 4);
    fillRandom(done, 1);
    const Pixels before = pixels(done);
    operation(done);
    const Pixels after = pixels(done);

    for (int succeedFirst = 0; succeedFirst < kLastFailure; ++succeedFirst) {
        CVQDIB image(5, 4);
        paint(image, before);
        {
            const ScopedAllocationFailure memoryIsShort(succeedFirst);
            operation(image);
        }
        EXPECT_TRUE(shows(image, before) || shows(image, after)) << succeedFirst << " allocations succeed";
    }
}

TEST(CVQDIBShortMemory, PixelOperationsAreAllOrNothing)
{
    expectAllOrNothing([](CVQDIB& image) { image.FlipVertical(); });
    expectAllOrNothing([](CVQDIB& image) { image.ExchangeRB(); });
    expectAllOrNothing([](CVQDIB& image) { image.Clear(COLORREF{0x030201}); });
    expectAllOrNothing([](CVQDIB& image) { image.Clear(CRect(1, 1, 3, 2), COLORREF{0x030201}, 7); });
    expectAllOrNothing([](CVQDIB& image) { image.ClearAlpha(BYTE{3}); });
    expectAllOrNothing([](CVQDIB& image) { image.SaturateAlphaChannel(99); });
}

TEST(CVQDIBShortMemory, GrabbingFromAContextIsAllOrNothing)
{
    MemoryContext source(5, 4, 0x00AABBCC);

    expectAllOrNothing([&](CVQDIB& image) { image.Copy(source.handle(), 1, 1, 0, 0, 3, 2); });
}

TEST(CVQDIBShortMemory, ShowingLeavesTheImageAlone)
{
    MemoryContext target(5, 4);

    expectAllOrNothing([&](CVQDIB& image) { image.Update(target.handle()); });
    expectAllOrNothing([](CVQDIB& image) { image.DumpToDesktop(0, 0); });
    expectAllOrNothing([](CVQDIB& image) { image.DumpAlphaToDesktop(0, 0); });
}

TEST(CVQDIBShortMemory, ABitmapHandleIsWholeOrNull)
{
    expectAllOrNothing([](CVQDIB& image) {
        const HBITMAP handle = image.GetBitmapHandle();
        EXPECT_TRUE(handle == nullptr || DeleteObject(handle));
    });
}

TEST(CVQDIBShortMemory, TakingABitmapGivesAWholeImageOrAnEmptyOne)
{
    Gdiplus::Bitmap bitmap(2, 1);
    ASSERT_EQ(bitmap.SetPixel(0, 0, Gdiplus::Color(0xFF112233)), Gdiplus::Ok);
    ASSERT_EQ(bitmap.SetPixel(1, 0, Gdiplus::Color(0xFF445566)), Gdiplus::Ok);
    for (int succeedFirst = 0; succeedFirst < kLastFailure; ++succeedFirst) {
        std::unique_ptr<CVQDIB> image;
        {
            const ScopedAllocationFailure memoryIsShort(succeedFirst);
            image = std::make_unique<CVQDIB>(&bitmap);
        }
        const bool empty = image->GetImageBuffer() == nullptr && image->GetSize() == 0;
        const bool whole = image->GetSize() == 2 && shows(*image, {0xFF112233, 0xFF445566});
        EXPECT_TRUE(empty || whole) << succeedFirst << " allocations succeed";
        EXPECT_TRUE(succeedFirst > 0 || empty);
    }
}

} // namespace
} // namespace vq::test
