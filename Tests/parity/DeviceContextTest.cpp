// SPDX-License-Identifier: MIT
#include "parity/KnownDifferences.h"
#include "parity/Pixels.h"

#include <cstring>

namespace vq::test {
namespace {

BITMAPINFO header(int width, int height)
{
    BITMAPINFO info{};
    info.bmiHeader.biSize = sizeof info.bmiHeader;
    info.bmiHeader.biWidth = width;
    info.bmiHeader.biHeight = height;
    info.bmiHeader.biPlanes = 1;
    info.bmiHeader.biBitCount = 32;
    return info;
}

/// A memory context with a top-down bitmap of 32-bit pixels selected.
class MemoryContext
{
public:
    MemoryContext(int width, int height, std::uint32_t fill) : m_context(CreateCompatibleDC(nullptr))
    {
        const BITMAPINFO info = header(width, -height);
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_pixels = static_cast<std::uint32_t*>(bits);
        std::fill_n(m_pixels, width * height, fill);
        m_old = SelectObject(m_context, m_bitmap);
    }
    ~MemoryContext()
    {
        SelectObject(m_context, m_old);
        DeleteDC(m_context);
        DeleteObject(m_bitmap);
    }
    MemoryContext(const MemoryContext&) = delete;
    MemoryContext& operator=(const MemoryContext&) = delete;

    HDC handle() const { return m_context; }
    HBITMAP bitmap() const { return m_bitmap; }
    std::uint32_t& operator[](int index) { return m_pixels[index]; }

private:
    HDC m_context;
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
    std::uint32_t* m_pixels;
};

TEST(LentContext, WhatIsDrawnThereBecomesOpaqueAndTheRestStays)
{
    TestPicture picture(6, 3, 0x40102030);
    MemoryContext source(4, 2, 0x00AABBCC);
    source[1] = 0x00AABB00;

    const HDC context = picture.graphics.GetHDC();
    ASSERT_TRUE(context);
    EXPECT_TRUE(BitBlt(context, 1, 1, 4, 2, source.handle(), 0, 0, SRCCOPY));
    picture.graphics.ReleaseHDC(context);

    EXPECT_EQ(picture.row(0), Row(6, Argb{0x40102030}));
    EXPECT_EQ(picture.row(1), row({0x40102030, 0xFFAABBCC, 0xFFAABB00, 0xFFAABBCC, 0xFFAABBCC, 0x40102030}));
    EXPECT_EQ(picture.row(2), row({0x40102030, 0xFFAABBCC, 0xFFAABBCC, 0xFFAABBCC, 0xFFAABBCC, 0x40102030}));
}

TEST(LentContext, EveryCallIsBusyWhileItIsOut)
{
    TestPicture picture(4, 4);
    const HDC context = picture.graphics.GetHDC();
    ASSERT_TRUE(context);
    const Gdiplus::SolidBrush brush{Gdiplus::Color(0xFFFF0000)};
    EXPECT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, 1, 1), Gdiplus::ObjectBusy);
    EXPECT_EQ(picture.graphics.Clear(Gdiplus::Color(0xFFFF0000)), Gdiplus::ObjectBusy);
    EXPECT_EQ(picture.graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy), Gdiplus::ObjectBusy);
    EXPECT_EQ(picture.graphics.GetLastStatus(), Gdiplus::ObjectBusy);
    EXPECT_FALSE(picture.graphics.GetHDC());
    picture.graphics.ReleaseHDC(context);
    picture.graphics.GetLastStatus();
    EXPECT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, 1, 1), Gdiplus::Ok);
    EXPECT_EQ(picture.find(0).count, 15);
}

TEST(LentContext, PixelsOfThePreparedColourAreLost)
{
    if (differsHere("surface of a lent context"))
        return;
    TestPicture picture(2, 1, 0x40102030);
    MemoryContext source(2, 1, 0x000D0B0C);
    source[1] = 0x000C0B0D;
    const HDC context = picture.graphics.GetHDC();
    BitBlt(context, 0, 0, 2, 1, source.handle(), 0, 0, SRCCOPY);
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(picture.all(), row({0x40102030, 0xFF0C0B0D}));
}

TEST(LentContext, ShowsThePreparedColourUntilItIsDrawnOn)
{
    if (differsHere("surface of a lent context"))
        return;
    TestPicture picture(3, 4, 0x40102030);
    MemoryContext copy(3, 4, 0);
    for (int lending = 0; lending < 2; ++lending) {
        const HDC context = picture.graphics.GetHDC();
        EXPECT_EQ(GetPixel(context, 2, 3), RGB(13, 11, 12)) << lending;
        EXPECT_EQ(SetPixel(context, 1, 1, RGB(1, 2, 3)), RGB(1, 2, 3));
        EXPECT_TRUE(BitBlt(copy.handle(), 0, 0, 3, 4, context, 0, 0, SRCCOPY));
        for (int i = 0; i < 12; ++i)
            EXPECT_EQ(Argb{copy[i] & 0xFFFFFF}, Argb{i == 4 ? 0x010203u : 0x0D0B0Cu}) << lending << ", pixel " << i;
        picture.graphics.ReleaseHDC(context);
    }
    EXPECT_EQ(picture.findOther(0x40102030), (TestPicture::Found{1, 1, 1, 1, 1}));
}

TEST(LentContext, TakesRowsInAnyOrder)
{
    TestPicture picture(2, 9, 0x40102030);
    const HDC context = picture.graphics.GetHDC();
    for (const int y : {5, 2, 7, 2})
        SetPixel(context, 1, y, RGB(y, y, y));
    picture.graphics.ReleaseHDC(context);
    for (int y = 0; y < 9; ++y) {
        const bool isDrawn = y == 5 || y == 2 || y == 7;
        const auto grey = 0xFF000000 | static_cast<std::uint32_t>(y) * 0x010101;
        EXPECT_EQ(picture.row(y), row({0x40102030, isDrawn ? grey : 0x40102030})) << y;
    }
}

TEST(LentContext, LeavesAloneWhatIsDrawnBetweenTwoLendings)
{
    TestPicture picture(2, 2, 0x40102030);
    for (int lending = 0; lending < 3; ++lending) {
        const HDC context = picture.graphics.GetHDC();
        if (lending != 1)
            PatBlt(context, lending / 2, 0, 1, 2, WHITENESS);
        picture.graphics.ReleaseHDC(context);
        EXPECT_EQ(picture.graphics.GetLastStatus(), Gdiplus::Ok);
        if (lending == 0)
            picture.fill(0xFF112233, 0, 0, 1, 1);
    }
    EXPECT_EQ(picture.all(), row({0xFF112233, 0xFFFFFFFF, 0xFFFFFFFF, 0xFFFFFFFF}));
}

TEST(LentContext, MakesFontsAndTellsTheScreensFigures)
{
    TestPicture picture(2, 2, 0x40102030);
    const HDC screen = GetDC(nullptr);
    const HDC context = picture.graphics.GetHDC();
    EXPECT_EQ(GetDeviceCaps(context, LOGPIXELSY), GetDeviceCaps(screen, LOGPIXELSY));
    EXPECT_EQ(GetObjectType(context), static_cast<DWORD>(OBJ_MEMDC));
    LOGFONTW description{};
    description.lfHeight = -16;
    const Gdiplus::Font font(context, &description);
    EXPECT_EQ(font.GetSize(), 16);
    picture.graphics.ReleaseHDC(context);
    ReleaseDC(nullptr, screen);
    EXPECT_EQ(picture.all(), Row(4, Argb{0x40102030}));
}

TEST(DeviceContextGraphics, FillsReachTheSelectedBitmap)
{
    MemoryContext context(3, 1, 0x00102030);
    {
        Gdiplus::Graphics graphics(context.handle());
        EXPECT_EQ(graphics.GetDpiX(), 96.0f);
        const Gdiplus::SolidBrush opaque{Gdiplus::Color(0xFFAABBCC)};
        EXPECT_EQ(graphics.FillRectangle(&opaque, 1, 0, 1, 1), Gdiplus::Ok);
        const Gdiplus::SolidBrush half{Gdiplus::Color(0x80FF0000)};
        EXPECT_EQ(graphics.FillRectangle(&half, 2, 0, 1, 1), Gdiplus::Ok);
    }
    EXPECT_EQ(Argb{context[0]}, Argb{0x00102030});
    EXPECT_EQ(Argb{context[1] & 0xFFFFFF}, Argb{0xAABBCC});
    EXPECT_TRUE(isNear(context[2] & 0xFFFFFF, 0x881018, 1));
}

TEST(DeviceContextGraphics, OpaquePicturesAreCopiedExactly)
{
    MemoryContext context(2, 2, 0x00102030);
    TestPicture source(2, 2, {0xFF010203, 0xFF040506, 0xFFFFFFFF, 0xFF000000});
    {
        Gdiplus::Graphics graphics(context.handle());
        graphics.SetCompositingMode(Gdiplus::CompositingModeSourceCopy);
        EXPECT_EQ(graphics.DrawImage(&source.bitmap, 0, 0), Gdiplus::Ok);
    }
    for (int i = 0; i < 4; ++i)
        EXPECT_EQ(Argb{context[i] & 0xFFFFFF}, Argb{source.at(i % 2, i / 2).value & 0xFFFFFF}) << i;
}

TEST(DeviceContextGraphics, NoContextIsNoGraphics)
{
    Gdiplus::Graphics graphics(static_cast<HDC>(nullptr));
    EXPECT_EQ(graphics.GetLastStatus(), Gdiplus::OutOfMemory);
    EXPECT_EQ(graphics.Clear(Gdiplus::Color(0xFF000000)), Gdiplus::InvalidParameter);
}

/// The pixels of a bitmap handle, from the top.
std::vector<std::uint32_t> pixelsOf(HBITMAP bitmap, int width, int height)
{
    std::vector<std::uint32_t> pixels(static_cast<std::size_t>(width * height));
    BITMAPINFO info = header(width, -height);
    const HDC screen = GetDC(nullptr);
    GetDIBits(screen, bitmap, 0, static_cast<UINT>(height), pixels.data(), &info, DIB_RGB_COLORS);
    ReleaseDC(nullptr, screen);
    return pixels;
}

TEST(BitmapHandle, PixelsArePremultipliedOverTheBackground)
{
    TestPicture picture(2, 1, {0x68686868, 0x00FFFFFF});
    HBITMAP overBlack = nullptr;
    HBITMAP overMagenta = nullptr;
    ASSERT_EQ(picture.bitmap.GetHBITMAP(Gdiplus::Color(0xFF000000), &overBlack), Gdiplus::Ok);
    ASSERT_EQ(picture.bitmap.GetHBITMAP(Gdiplus::Color(0xFFFF00FF), &overMagenta), Gdiplus::Ok);

    EXPECT_EQ(pixelsOf(overBlack, 2, 1), (std::vector<std::uint32_t>{0x682A2A2A, 0x00000000}));
    EXPECT_EQ(pixelsOf(overMagenta, 2, 1), (std::vector<std::uint32_t>{0x68C12AC1, 0x00FF00FF}));
    DIBSECTION section{};
    EXPECT_EQ(GetObjectW(overBlack, sizeof section, &section), static_cast<int>(sizeof section));
    EXPECT_EQ(section.dsBm.bmBitsPixel, 32);
    EXPECT_EQ(section.dsBmih.biHeight, 1);
    DeleteObject(overBlack);
    DeleteObject(overMagenta);
    EXPECT_EQ(picture.bitmap.GetHBITMAP(Gdiplus::Color(), nullptr), Gdiplus::InvalidParameter);
}

TEST(BitmapHandle, BitmapFromAHandleIsAnOpaqueCopy)
{
    MemoryContext context(2, 1, 0x40112233);
    context[1] = 0x00445566;
    Gdiplus::Bitmap bitmap(context.bitmap(), static_cast<HPALETTE>(nullptr));
    EXPECT_EQ(bitmap.GetPixelFormat(), PixelFormat32bppRGB);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFF112233, 0xFF445566}));
    bitmap.SetPixel(0, 0, Gdiplus::Color(0xFFFFFFFF));
    EXPECT_EQ(context[0] & 0xFFFFFF, 0x112233u);
    EXPECT_EQ(Gdiplus::Bitmap(static_cast<HBITMAP>(nullptr), nullptr).GetLastStatus(), Gdiplus::InvalidParameter);
}

} // namespace
} // namespace vq::test
