// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/GdiplusSession.h"
#include "parity/Pixels.h"

#include <cmath>
#include <limits>
#include <memory>

namespace vq::test {
namespace {

using namespace Gdiplus;
class Drawing : public GdiplusTest
{
};

TEST_F(Drawing, PictureOntoItselfIsTakenAsItWasBefore)
{
    TestPicture picture(4, 1, {0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004});
    EXPECT_EQ(picture.graphics.DrawImage(&picture.bitmap, 1, 0), Ok);
    EXPECT_EQ(picture.all(), row({0xFF000001, 0xFF000001, 0xFF000002, 0xFF000003}));
}

TEST_F(Drawing, TwoBitmapsOverTheSameMemoryAreTakenForOne)
{
    std::vector<std::uint32_t> pixels{0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004};
    auto* memory = reinterpret_cast<BYTE*>(pixels.data());
    Bitmap upper(1, 3, 4, PixelFormat32bppARGB, memory);
    Bitmap lower(1, 3, 4, PixelFormat32bppARGB, memory + 4);
    Graphics graphics(&lower);
    EXPECT_EQ(graphics.DrawImage(&upper, 0, 0), Ok);
    EXPECT_EQ(pixels, (std::vector<std::uint32_t>{0xFF000001, 0xFF000001, 0xFF000002, 0xFF000003}));
}

TEST_F(Drawing, GraphicsKeepsItsPictureAlive)
{
    auto bitmap = std::make_unique<Bitmap>(2, 2, PixelFormat32bppARGB);
    Graphics graphics(bitmap.get());
    bitmap.reset();
    EXPECT_EQ(graphics.Clear(Color(0xFFFFFFFF)), Ok);
}

TEST_F(Drawing, GraphicsFollowsAPictureThatIsTurned)
{
    Bitmap bitmap(3, 2, PixelFormat32bppARGB);
    Graphics graphics(&bitmap);
    bitmap.RotateFlip(Rotate90FlipNone);
    graphics.Clear(Color(0xFF112233));
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), Row(6, Argb{0xFF112233}));
}

TEST_F(Drawing, PictureTurnedWhileAContextIsOutTakesWhatFits)
{
    Bitmap bitmap(3, 1, PixelFormat32bppARGB);
    Graphics graphics(&bitmap);
    const HDC context = graphics.GetHDC();
    BitBlt(context, 0, 0, 3, 1, nullptr, 0, 0, WHITENESS);
    bitmap.RotateFlip(Rotate90FlipNone);
    graphics.ReleaseHDC(context);
    EXPECT_EQ(TestPicture::pixelsOf(bitmap), row({0xFFFFFFFF, 0, 0}));
}

TEST_F(Drawing, ReturningAnotherContextIsInvalidAndKeepsItOut)
{
    TestPicture picture(2, 2);
    picture.graphics.ReleaseHDC(nullptr);
    EXPECT_EQ(picture.graphics.GetLastStatus(), InvalidParameter);
    const HDC context = picture.graphics.GetHDC();
    const HDC other = CreateCompatibleDC(nullptr);
    picture.graphics.ReleaseHDC(other);
    DeleteDC(other);
    EXPECT_EQ(picture.graphics.GetLastStatus(), InvalidParameter);
    EXPECT_EQ(picture.graphics.Clear(Color()), ObjectBusy);
    picture.graphics.ReleaseHDC(context);
    EXPECT_EQ(picture.graphics.Clear(Color()), Ok);
}

TEST_F(Drawing, GraphicsDeletedWhileItsContextIsOutLeavesThePicture)
{
    TestPicture picture(1, 1, 0x40112233);
    {
        Graphics graphics(&picture.bitmap);
        const HDC context = graphics.GetHDC();
        BitBlt(context, 0, 0, 1, 1, nullptr, 0, 0, WHITENESS);
    }
    EXPECT_EQ(picture.at(0, 0), Argb{0x40112233});
}

/// A device context with pixels that can be looked at.
class Screen
{
public:
    explicit Screen(std::initializer_list<std::uint32_t> pixels) : m_context(CreateCompatibleDC(nullptr))
    {
        BITMAPINFO info{};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = static_cast<LONG>(pixels.size());
        info.bmiHeader.biHeight = -1;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        void* bits = nullptr;
        m_bitmap = CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0);
        m_size = pixels.size();
        m_pixels = static_cast<std::uint32_t*>(bits);
        std::copy(pixels.begin(), pixels.end(), m_pixels);
        m_old = SelectObject(m_context, m_bitmap);
    }
    ~Screen()
    {
        SelectObject(m_context, m_old);
        DeleteDC(m_context);
        DeleteObject(m_bitmap);
    }
    Screen(const Screen&) = delete;
    Screen& operator=(const Screen&) = delete;

    HDC handle() const { return m_context; }
    Row all() const
    {
        Row result;
        for (std::size_t i = 0; i < m_size; ++i)
            result.push_back({m_pixels[i]});
        return result;
    }

private:
    HDC m_context;
    HBITMAP m_bitmap;
    HGDIOBJ m_old;
    std::size_t m_size;
    std::uint32_t* m_pixels;
};

TEST_F(Drawing, ContextsCountAsOpaqueAndAreOpaqueWhereTheyWereDrawnOn)
{
    Screen screen({0x00102030, 0x00102030, 0x00102030});
    Graphics graphics(screen.handle());
    const SolidBrush half{Color(0x80FFFFFF)};
    graphics.FillRectangle(&half, 1, 0, 1, 1);
    TestPicture picture(1, 1, 0x80FFFFFF);
    graphics.DrawImage(&picture.bitmap, Rect(2, 0, 1, 1));
    EXPECT_THAT(screen.all(), testing::ElementsAre(Argb{0x00102030}, Near(0xFF889098, 1), Near(0xFF889098, 1)));
}

TEST_F(Drawing, PicturesCopiedToAContextShowTheirStoredColours)
{
    Screen screen({0x00102030, 0x00102030, 0x00102030, 0x00102030});
    Graphics graphics(screen.handle());
    graphics.SetCompositingMode(CompositingModeSourceCopy);
    TestPicture picture(3, 1, {0x80FF8040, 0x00FFFFFF, 0xFF010203});
    graphics.DrawImage(&picture.bitmap, 0, 0);
    EXPECT_EQ(screen.all(), row({0x80FF8040, 0x00000000, 0xFF010203, 0x00102030}));
}

TEST_F(Drawing, GraphicsOnAContextLendsThatContext)
{
    Screen screen({0});
    Graphics graphics(screen.handle());
    const HDC lent = graphics.GetHDC();
    EXPECT_EQ(lent, screen.handle());
    EXPECT_EQ(graphics.Clear(Color()), ObjectBusy);
    graphics.ReleaseHDC(lent);
    EXPECT_EQ(graphics.Clear(Color(0x80112233)), Ok);
    EXPECT_EQ(screen.all(), row({0xFF112233}));
}

TEST_F(Drawing, ContextWithoutPixelsTakesEverythingAndShowsNothing)
{
    const HDC context = CreateCompatibleDC(nullptr); // a monochrome bitmap is selected
    Graphics graphics(context);
    EXPECT_EQ(graphics.GetLastStatus(), Ok);
    EXPECT_EQ(graphics.Clear(Color()), Ok);
    DeleteDC(context);
    EXPECT_EQ(graphics.Clear(Color()), Ok);
}

TEST_F(Drawing, AnyNumbersAreHarmless)
{
    TestPicture target(3, 3);
    TestPicture source(2, 2, 0xFFFF0000);
    const SolidBrush brush{Color(0xFF00FF00)};
    const REAL numbers[] = {0, -1, 1e-30f, 1e30f, -1e30f, std::numeric_limits<REAL>::max(),
                            std::numeric_limits<REAL>::infinity(), std::nanf("")};
    for (const SmoothingMode mode : {SmoothingModeNone, SmoothingModeAntiAlias}) {
        target.graphics.SetSmoothingMode(mode);
        for (const REAL x : numbers)
            for (const REAL width : numbers) {
                EXPECT_EQ(target.graphics.FillRectangle(&brush, x, x, width, width), Ok);
                EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, x, x, width, width), Ok);
                EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, x, width), Ok);
                EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, RectF(0, 0, 2, 2), x, x, width, width, UnitPixel),
                          Ok);
            }
    }
    constexpr INT kMost = std::numeric_limits<INT>::max();
    constexpr INT kLeast = std::numeric_limits<INT>::min();
    for (const INT x : {kMost, kLeast})
        for (const INT width : {kMost, kLeast}) {
            EXPECT_EQ(target.graphics.FillRectangle(&brush, x, x, width, width), Ok);
            EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, x, x, width, width), Ok);
            EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, 0, 0, x, x, width, width, UnitPixel), Ok);
        }
    Color colour;
    EXPECT_EQ(source.bitmap.GetPixel(kLeast, kMost, &colour), InvalidParameter);
    const Rect rect(kMost, kMost, kMost, kMost);
    BitmapData data{};
    EXPECT_EQ(source.bitmap.LockBits(&rect, ImageLockModeRead, PixelFormat32bppARGB, &data), InvalidParameter);
}

TEST_F(Drawing, NumbersThatAreNoUnitAreInvalid)
{
    TestPicture target(3, 3);
    TestPicture source(2, 2, 0xFFFF0000);
    EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, Rect(0, 0, 2, 2), 0, 0, 2, 2, static_cast<Unit>(7)),
              InvalidParameter);
    EXPECT_EQ(target.graphics.DrawImage(&source.bitmap, 0, 0, 0, 0, 2, 2, static_cast<Unit>(-1)), InvalidParameter);
}

TEST_F(Drawing, SourceUnitsCountAtThePicturesResolution)
{
    TestPicture source(4, 2, {0xFF000001, 0xFF000002, 0xFF000003, 0xFF000004, //
                              0xFF000005, 0xFF000006, 0xFF000007, 0xFF000008});
    source.bitmap.SetResolution(72, 72);
    TestPicture target(2, 1);
    target.graphics.DrawImage(&source.bitmap, Rect(0, 0, 2, 1), 1, 1, 2, 1, UnitPoint);
    EXPECT_EQ(target.all(), row({0xFF000006, 0xFF000007}));
}

} // namespace
} // namespace vq::test
