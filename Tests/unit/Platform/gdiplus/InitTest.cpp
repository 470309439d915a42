// SPDX-License-Identifier: MIT
// GDI+ before start-up and after shut-down. These tests start and stop it themselves: the program has no environment
// that does.
#include "unit/Platform/gdiplus/GdiplusSession.h"
#include "parity/Pixels.h"

#include <memory>

namespace vq::test {
namespace {

using namespace Gdiplus;

TEST(Init, EveryCallBeforeStartUpIsRefused)
{
    Bitmap bitmap(2, 2, PixelFormat32bppARGB);
    EXPECT_EQ(bitmap.GetLastStatus(), GdiplusNotInitialized);
    EXPECT_EQ(bitmap.GetWidth(), 0u);
    EXPECT_EQ(bitmap.GetLastStatus(), GdiplusNotInitialized);
    EXPECT_EQ(bitmap.RotateFlip(Rotate90FlipNone), GdiplusNotInitialized);

    Graphics graphics(&bitmap);
    EXPECT_EQ(graphics.GetLastStatus(), GdiplusNotInitialized);
    EXPECT_EQ(graphics.Clear(Color()), GdiplusNotInitialized);
    EXPECT_EQ(graphics.DrawImage(&bitmap, 0, 0), GdiplusNotInitialized);
    EXPECT_EQ(graphics.SetSmoothingMode(SmoothingModeNone), GdiplusNotInitialized);

    const SolidBrush brush{Color()};
    EXPECT_EQ(brush.GetLastStatus(), GdiplusNotInitialized);
    EXPECT_FALSE(brush.Clone());

    UINT count = 0;
    UINT size = 0;
    EXPECT_EQ(GetImageEncodersSize(&count, &size), GdiplusNotInitialized);
}

TEST(Init, ObjectsMadeBeforeStartUpStayBroken)
{
    Bitmap bitmap(2, 2, PixelFormat32bppARGB);
    const GdiplusSession session;
    EXPECT_EQ(bitmap.RotateFlip(Rotate90FlipNone), InvalidParameter);
    EXPECT_EQ(bitmap.GetWidth(), 0u);
}

TEST(Init, ObjectsOutliveShutDown)
{
    auto session = std::make_unique<GdiplusSession>();
    auto bitmap = std::make_unique<Bitmap>(2, 2, PixelFormat32bppARGB);
    auto graphics = std::make_unique<Graphics>(bitmap.get());
    session.reset();

    EXPECT_EQ(graphics->Clear(Color()), GdiplusNotInitialized);
    EXPECT_EQ(bitmap->GetWidth(), 0u);
    bitmap.reset();
    graphics.reset();
}

TEST(Init, StaysUntilAsManyShutDownsAsStartUps)
{
    ULONG_PTR first = 0;
    ULONG_PTR second = 0;
    const GdiplusStartupInput input;
    ASSERT_EQ(GdiplusStartup(&first, &input, nullptr), Ok);
    ASSERT_EQ(GdiplusStartup(&second, &input, nullptr), Ok);
    EXPECT_NE(first, second);

    GdiplusShutdown(first);
    GdiplusShutdown(first); // used up
    GdiplusShutdown(0);
    GdiplusShutdown(123456);
    EXPECT_EQ(Bitmap(1, 1, PixelFormat32bppARGB).GetLastStatus(), Ok);

    GdiplusShutdown(second);
    EXPECT_EQ(Bitmap(1, 1, PixelFormat32bppARGB).GetLastStatus(), GdiplusNotInitialized);
}

TEST(Init, SuppressedBackgroundThreadGivesHooks)
{
    ULONG_PTR token = 0;
    const GdiplusStartupInput input(nullptr, TRUE, FALSE);
    GdiplusStartupOutput output;
    ASSERT_EQ(GdiplusStartup(&token, &input, &output), Ok);
    ASSERT_TRUE(output.NotificationHook);
    ASSERT_TRUE(output.NotificationUnhook);
    ULONG_PTR hook = 0;
    EXPECT_EQ(output.NotificationHook(&hook), Ok);
    output.NotificationUnhook(hook);
    GdiplusShutdown(token);
}

TEST(Init, NewGivesNullAndNoExceptionWithoutMemory)
{
    EXPECT_FALSE(DllExports::GdipAlloc(static_cast<std::size_t>(-1) / 2));
}

} // namespace
} // namespace vq::test
