// SPDX-License-Identifier: MIT
#include "Platform/PixelMemory.h"
#include "support/DeviceContexts.h"
#include "support/ImageAccess.h"
#include "support/Pictures.h"

#include <functional>
#include <limits>
#include <memory>

namespace vq::test {
namespace {

using Access = VQTestAccess;

/// The three ways to an image without pixels.
std::vector<std::unique_ptr<CVQDIB>> emptyImages()
{
    std::vector<std::unique_ptr<CVQDIB>> images;
    images.push_back(std::make_unique<CVQDIB>(static_cast<CVQDIB*>(nullptr)));
    images.push_back(std::make_unique<CVQDIB>(4, 3));
    Access::destroy(*images.back());
    const vq::platform::ScopedAllocationFailure memoryIsShort;
    images.push_back(std::make_unique<CVQDIB>(4, 3));
    return images;
}

void expectNoOperation(const std::function<void(CVQDIB&)>& operation)
{
    for (const auto& image : emptyImages()) {
        const auto flags = Access::flags(*image);

        operation(*image);

        EXPECT_EQ(image->GetImageBuffer(), nullptr);
        EXPECT_EQ(image->GetBitmap(), nullptr);
        EXPECT_EQ(image->GetGraphics(), nullptr);
        EXPECT_EQ(image->GetWidth(), 0);
        EXPECT_EQ(image->GetHeight(), 0);
        EXPECT_EQ(image->GetSize(), 0);
        EXPECT_EQ(Access::flags(*image), flags);
    }
}

TEST(CVQDIBEmpty, FillsDoNothing)
{
    expectNoOperation([](CVQDIB& image) { image.Clear(BYTE{1}, BYTE{2}, BYTE{3}, BYTE{4}); });
    expectNoOperation([](CVQDIB& image) { image.Clear(COLORREF{5}); });
    expectNoOperation([](CVQDIB& image) { image.Clear(COLORREF{5}, BYTE{6}); });
    expectNoOperation([](CVQDIB& image) { image.Clear(Gdiplus::Color(0xFF123456)); });
    for (const CRect& rect : {CRect(0, 0, 0, 0), CRect(-1, -1, -1, -1), CRect(-5, -5, 5, 5), CRect(0, 0, 9, 9)}) {
        expectNoOperation([&](CVQDIB& image) { image.Clear(rect, COLORREF{5}, 255); });
        expectNoOperation([&](CVQDIB& image) { image.ClearAlpha(rect, 255); });
    }
}

TEST(CVQDIBEmpty, AlphaOperationsDoNothing)
{
    expectNoOperation([](CVQDIB& image) { image.ClearAlpha(BYTE{9}); });
    expectNoOperation([](CVQDIB& image) { image.SaturateAlphaChannel(127); });
    for (const LONG row : {LONG{-1}, LONG{0}, LONG{1}, std::numeric_limits<LONG>::max()}) {
        expectNoOperation([&](CVQDIB& image) { image.ClearScanlineAlpha(row, BYTE{9}); });
        expectNoOperation([&](CVQDIB& image) { image.SaturateScanlineAlpha(row, 127); });
    }
}

TEST(CVQDIBEmpty, GeometryDoesNothing)
{
    expectNoOperation([](CVQDIB& image) { image.FlipVertical(); });
    expectNoOperation([](CVQDIB& image) { image.ExchangeRB(); });
    expectNoOperation([](CVQDIB& image) { image.Emboss(); });
    for (int type = 0; type < 8; ++type)
        expectNoOperation([&](CVQDIB& image) { image.Rotate(static_cast<Gdiplus::RotateFlipType>(type)); });
}

TEST(CVQDIBEmpty, TonesAndBlendsDoNothing)
{
    expectNoOperation([](CVQDIB& image) { image.Invert(); });
    expectNoOperation([](CVQDIB& image) { image.ConvertToGray(); });
    expectNoOperation([](CVQDIB& image) { image.ConvertToGray(CRect(-5, -5, 5, 5)); });
    expectNoOperation([](CVQDIB& image) { image.Quantize(3); });
    expectNoOperation([](CVQDIB& image) { image.Equalize(); });
    expectNoOperation([](CVQDIB& image) { image.Darken(40); });
    expectNoOperation([](CVQDIB& image) { image.Darken(-40); });
    expectNoOperation([](CVQDIB& image) { image.Add(); });
    expectNoOperation([](CVQDIB& image) { image.Multiply(); });
    expectNoOperation([](CVQDIB& image) { image.Blend(COLORREF{5}, 100); });
    expectNoOperation([](CVQDIB& image) { image.BuildFractalMap(1, 2, 3, 4); });
    expectNoOperation([](CVQDIB& image) { EXPECT_EQ(image.ExchangeColor(1, 2, 3), 0); });
}

TEST(CVQDIBEmpty, IsNotShownAnywhere)
{
    MemoryContext target(4, 3, 0x00123456);
    CDC context;
    context.Attach(target.handle());

    expectNoOperation([&](CVQDIB& image) {
        image.Update(&context);
        image.Update(static_cast<const CDC&>(context));
        image.Update(target.handle());
        image.Update(&context, 1, 1);
        image.Update(static_cast<const CDC&>(context), 1, 1);
        image.Update(target.handle(), 1, 1);
        image.Update(&context, 1, 1, 0, 0, 2, 2);
        image.Update(static_cast<const CDC&>(context), 1, 1, 0, 0, 2, 2);
        image.Update(target.handle(), 1, 1, 0, 0, 2, 2);
    });
    context.Detach();

    EXPECT_TRUE(samePixels(target.colours(), Pixels(12, 0x00123456), 4));
}

TEST(CVQDIBEmpty, GrabsAndDumpsNothing)
{
    MemoryContext source(4, 3, 0x00123456);
    expectNoOperation([&](CVQDIB& image) { image.Copy(source.handle(), 0, 0, 0, 0, 4, 3); });
    expectNoOperation([](CVQDIB& image) { image.DumpToDesktop(0, 0); });
    expectNoOperation([](CVQDIB& image) { image.DumpAlphaToDesktop(0, 0); });
}

TEST(CVQDIBEmpty, HasNoBitmapHandle)
{
    expectNoOperation([](CVQDIB& image) { EXPECT_EQ(image.GetBitmapHandle(), nullptr); });
}

TEST(CVQDIBEmpty, DescribesABitmapOfNoPixels)
{
    expectNoOperation([](CVQDIB& image) {
        const BITMAPINFO info = image.GetBitmapInfo();
        EXPECT_EQ(info.bmiHeader.biSize, 40u);
        EXPECT_EQ(info.bmiHeader.biWidth, 0);
        EXPECT_EQ(info.bmiHeader.biHeight, 0);
        EXPECT_EQ(info.bmiHeader.biSizeImage, 0u);
    });
}

TEST(CVQDIBEmpty, GraphicsSettingsAreSkipped)
{
    expectNoOperation([](CVQDIB& image) { Access::initializeGraphics(image); });
}

TEST(CVQDIBEmpty, AntialiasingIsRememberedForTheNextGraphics)
{
    for (const auto& image : emptyImages()) {
        image->EnableAntialias(false);
        EXPECT_FALSE(image->IsEnableAntialias());
        EXPECT_EQ(Access::flags(*image), 4u);
        EXPECT_EQ(image->GetGraphics(), nullptr);

        ASSERT_EQ(image->Resize(2, 2), 1);

        EXPECT_EQ(image->GetGraphics()->GetSmoothingMode(), Gdiplus::SmoothingModeNone);
        Access::destroy(*image);
        image->EnableAntialias(true);
        EXPECT_TRUE(image->IsEnableAntialias());
    }
}

TEST(CVQDIBEmpty, IsMadeByResizeAndByAssignment)
{
    CVQDIB source(2, 1);
    paint(source, {1, 2});
    for (const auto& image : emptyImages()) {
        EXPECT_EQ(image->Resize(3, 2), 1);
        EXPECT_EQ(image->GetWidth(), 3);
    }
    for (const auto& image : emptyImages()) {
        *image = source;
        EXPECT_TRUE(shows(*image, {1, 2}));
    }
}

} // namespace
} // namespace vq::test
