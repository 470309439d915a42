// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"
#include "support/Pictures.h"

#include <cstdlib>
#include <memory>

namespace vq::test {
namespace {

/// Deletes a bitmap at the end.
class BitmapHandle
{
public:
    explicit BitmapHandle(HBITMAP handle) : m_handle(handle) {}
    ~BitmapHandle() { EXPECT_TRUE(DeleteObject(m_handle)); }
    BitmapHandle(const BitmapHandle&) = delete;
    BitmapHandle& operator=(const BitmapHandle&) = delete;

    HBITMAP get() const { return m_handle; }

private:
    HBITMAP m_handle;
};

/// All four bytes of every pixel, from the top.
Pixels pixelsOf(HBITMAP bitmap, LONG width, LONG height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = -height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    info.bmiHeader.biCompression = BI_RGB;
    Pixels result(static_cast<std::size_t>(width * height), 0xDDDDDDDD);
    HDC context = CreateCompatibleDC(nullptr);
    EXPECT_EQ(GetDIBits(context, bitmap, 0, static_cast<UINT>(height), result.data(), &info, DIB_RGB_COLORS), height);
    DeleteDC(context);
    return result;
}

/// Over black every colour byte is c * a / 255, give or take its rounding.
void expectPremultiplied(ULONG actual, ULONG straight)
{
    const auto alpha = static_cast<int>(straight >> 24);
    EXPECT_EQ(static_cast<int>(actual >> 24), alpha);
    for (int shift = 0; shift < 24; shift += 8) {
        const auto colour = static_cast<int>(straight >> shift & 0xFF);
        const auto found = static_cast<int>(actual >> shift & 0xFF);
        EXPECT_LE(std::abs(255 * found - colour * alpha), 255) << std::hex << straight << " gives " << actual;
    }
}

TEST(CVQDIBBitmapHandle, IsA32BitBitmapOfTheImagesSize)
{
    CVQDIB image(5, 3);

    const BitmapHandle handle(image.GetBitmapHandle());

    BITMAP description{};
    ASSERT_NE(GetObjectW(handle.get(), sizeof description, &description), 0);
    EXPECT_EQ(description.bmWidth, 5);
    EXPECT_EQ(description.bmHeight, 3);
    EXPECT_EQ(description.bmBitsPixel, 32);
}

TEST(CVQDIBBitmapHandle, HoldsOpaquePixelsUnchanged)
{
    CVQDIB image(3, 2);
    const Pixels content = {0xFF102030, 0xFFFFFFFF, 0xFF000000, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF};
    paint(image, content);

    const BitmapHandle handle(image.GetBitmapHandle());

    EXPECT_TRUE(samePixels(pixelsOf(handle.get(), 3, 2), content, 3));
}

TEST(CVQDIBBitmapHandle, PutsOpaqueBlackUnderTransparentPixels)
{
    CVQDIB image(2, 2);
    paint(image, {0x68686868, 0x00FFFFFF, 0x80FF00FF, 0x00000000});

    const BitmapHandle handle(image.GetBitmapHandle());

    const Pixels result = pixelsOf(handle.get(), 2, 2);
    EXPECT_EQ(result[0], 0x682A2A2Au);
    EXPECT_EQ(result[1], 0u);
    EXPECT_EQ(result[2], 0x80800080u);
    EXPECT_EQ(result[3], 0u);
}

TEST(CVQDIBBitmapHandle, PremultipliesEveryPixel)
{
    CVQDIB image(16, 16);
    fillRandom(image, 1);

    const BitmapHandle handle(image.GetBitmapHandle());

    const Pixels result = pixelsOf(handle.get(), 16, 16);
    for (std::size_t i = 0; i < result.size(); ++i)
        expectPremultiplied(result[i], image[static_cast<std::int64_t>(i)]);
}

TEST(CVQDIBBitmapHandle, IsANewCopyEachTime)
{
    CVQDIB image(2, 1);
    paint(image, {0xFF111111, 0xFF222222});

    const BitmapHandle first(image.GetBitmapHandle());
    const BitmapHandle second(image.GetBitmapHandle());
    paint(image, {0, 0});

    EXPECT_NE(first.get(), second.get());
    EXPECT_TRUE(samePixels(pixelsOf(first.get(), 2, 1), {0xFF111111, 0xFF222222}, 2));
}

TEST(CVQDIBBitmapHandle, LeavesTheImageAlone)
{
    CVQDIB image(8, 8);
    fillRandom(image, 2);
    const Pixels before = pixels(image);

    const BitmapHandle handle(image.GetBitmapHandle());

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBBitmapHandle, OutlivesTheImage)
{
    auto image = std::make_unique<CVQDIB>(2, 1);
    paint(*image, {0xFF111111, 0xFF222222});
    const BitmapHandle handle(image->GetBitmapHandle());

    image.reset();

    EXPECT_TRUE(samePixels(pixelsOf(handle.get(), 2, 1), {0xFF111111, 0xFF222222}, 2));
}

TEST(CVQDIBBitmapInfo, DescribesTheBuffer)
{
    CVQDIB image(3, 2);

    const BITMAPINFO info = image.GetBitmapInfo();

    EXPECT_EQ(info.bmiHeader.biSize, 40u);
    EXPECT_EQ(info.bmiHeader.biWidth, 3);
    EXPECT_EQ(info.bmiHeader.biHeight, -2);
    EXPECT_EQ(info.bmiHeader.biPlanes, 1);
    EXPECT_EQ(info.bmiHeader.biBitCount, 32);
    EXPECT_EQ(info.bmiHeader.biCompression, 0u);
    EXPECT_EQ(info.bmiHeader.biSizeImage, 24u);
    EXPECT_EQ(info.bmiHeader.biXPelsPerMeter, 0);
    EXPECT_EQ(info.bmiHeader.biYPelsPerMeter, 0);
    EXPECT_EQ(info.bmiHeader.biClrUsed, 0u);
    EXPECT_EQ(info.bmiHeader.biClrImportant, 0u);
    EXPECT_EQ(info.bmiColors[0].rgbBlue, 0);
    EXPECT_EQ(info.bmiColors[0].rgbGreen, 0);
    EXPECT_EQ(info.bmiColors[0].rgbRed, 0);
    EXPECT_EQ(info.bmiColors[0].rgbReserved, 0);
}

TEST(CVQDIBBitmapInfo, ServesToReadTheBufferAsADeviceIndependentBitmap)
{
    CVQDIB image(3, 2);
    const Pixels content = {0xFF102030, 0xFFFFFFFF, 0xFF000000, 0xFFFF0000, 0xFF00FF00, 0xFF0000FF};
    paint(image, content);
    BITMAPINFO info = image.GetBitmapInfo();

    Gdiplus::Bitmap bitmap(&info, image.GetImageBuffer());
    CVQDIB copy(&bitmap);

    EXPECT_TRUE(shows(copy, content));
}

} // namespace
} // namespace vq::test
