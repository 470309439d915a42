// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"
#include "parity/KnownDifferences.h"
#include "support/DeviceContexts.h"

namespace vq::test::cvqdibDesktopDumpTests {
namespace {

constexpr COLORREF kBefore = RGB(0x20, 0x40, 0x60);
constexpr ULONG kBeforeColour = 0x00204060;
constexpr int kLeft = 30;
constexpr int kTop = 20;
constexpr int kWidth = 6;
constexpr int kHeight = 5;

/// The screen's context, with a block of one colour where pictures are dumped.
class Screen : public testing::Test
{
protected:
    Screen() : m_screen(GetDC(nullptr))
    {
        for (int y = 0; y < kHeight; ++y) {
            for (int x = 0; x < kWidth; ++x)
                SetPixel(m_screen, kLeft + x, kTop + y, kBefore);
        }
    }
    ~Screen() override { ReleaseDC(nullptr, m_screen); }

    void expectOnScreen(const Pixels& expected)
    {
        if (differsHere("screen without a display"))
            return;
        EXPECT_TRUE(samePixels(coloursOf(m_screen, kLeft, kTop, kWidth, kHeight), expected, kWidth));
    }

private:
    HDC m_screen;
};

using CVQDIBDesktopDump = Screen;

Pixels block(LONG x, LONG y, LONG width, LONG height, const Pixels& content)
{
    Pixels result(kWidth * kHeight, kBeforeColour);
    for (LONG row = 0; row < height; ++row) {
        for (LONG column = 0; column < width; ++column) {
            result[static_cast<std::size_t>((y + row) * kWidth + x + column)] =
                content[static_cast<std::size_t>(row * width + column)];
        }
    }
    return result;
}

TEST_F(CVQDIBDesktopDump, ShowsTheImageOnTheScreen)
{
    CVQDIB image(3, 2);
    const Pixels content = {0xFFFF0000, 0xFF00FF00, 0xFF0000FF, 0xFFFFFFFF, 0xFF000000, 0xFF123456};
    paint(image, content);

    image.DumpToDesktop(kLeft + 1, kTop + 2);

    expectOnScreen(block(1, 2, 3, 2, {0xFF0000, 0x00FF00, 0x0000FF, 0xFFFFFF, 0x000000, 0x123456}));
    EXPECT_TRUE(shows(image, content));
}

TEST_F(CVQDIBDesktopDump, ShowsAlphaAsGrey)
{
    CVQDIB image(2, 2);
    const Pixels content = {0x00FF0000, 0x40123456, 0x80FFFFFF, 0xFF000000};
    paint(image, content);

    image.DumpAlphaToDesktop(kLeft + 2, kTop + 1);

    expectOnScreen(block(2, 1, 2, 2, {0x000000, 0x404040, 0x808080, 0xFFFFFF}));
    EXPECT_TRUE(shows(image, content));
}

TEST_F(CVQDIBDesktopDump, ShowsATransparentImagesAlphaAsBlackAndAnOpaqueOnesAsWhite)
{
    CVQDIB transparent(3, 2);
    CVQDIB opaque(3, 2);
    transparent.Clear(BYTE{255}, BYTE{255}, BYTE{255}, BYTE{0});
    opaque.Clear(BYTE{0}, BYTE{0}, BYTE{0}, BYTE{255});

    transparent.DumpAlphaToDesktop(kLeft, kTop);
    expectOnScreen(block(0, 0, 3, 2, Pixels(6, 0x000000)));

    opaque.DumpAlphaToDesktop(kLeft, kTop);
    expectOnScreen(block(0, 0, 3, 2, Pixels(6, 0xFFFFFF)));
}

TEST_F(CVQDIBDesktopDump, OutsideTheScreenShowsNothing)
{
    CVQDIB image(3, 2);
    image.Clear(COLORREF{RGB(255, 255, 255)});

    image.DumpToDesktop(-100, -100);
    image.DumpToDesktop(1000000, 1000000);
    image.DumpAlphaToDesktop(-100, 1000000);

    expectOnScreen(Pixels(kWidth * kHeight, kBeforeColour));
}

} // namespace
} // namespace vq::test::cvqdibDesktopDumpTests
