// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"
#include "support/DeviceContexts.h"

#include <algorithm>

namespace vq::test::cvqdibCopyFromContextTests {
namespace {

constexpr ULONG kBefore = 0x40102030;

/// Colours that no surface handed out by GDI+ is prepared with.
Pixels brightColours(std::size_t count, std::uint32_t seed)
{
    Pixels colours = randomPixels(count, seed);
    for (ULONG& colour : colours)
        colour = (colour & 0x00FFFFFF) | 0x00404040;
    return colours;
}

/// A w x h block of a context of some width, opaque, on top of `before`; cut at both pictures' edges.
struct Block
{
    LONG dx, dy, sx, sy, w, h;
};

Pixels grabbed(Pixels before, CSize imageSize, const Pixels& source, CSize sourceSize, const Block& block)
{
    for (LONG row = 0; row < block.h; ++row) {
        for (LONG column = 0; column < block.w; ++column) {
            const LONG x = block.dx + column;
            const LONG y = block.dy + row;
            const LONG fromX = block.sx + column;
            const LONG fromY = block.sy + row;
            if (x < 0 || y < 0 || x >= imageSize.cx || y >= imageSize.cy)
                continue;
            if (fromX < 0 || fromY < 0 || fromX >= sourceSize.cx || fromY >= sourceSize.cy)
                continue;
            before[static_cast<std::size_t>(y * imageSize.cx + x)] =
                0xFF000000 | source[static_cast<std::size_t>(fromY * sourceSize.cx + fromX)];
        }
    }
    return before;
}

void expectGrabbed(const Block& block)
{
    SCOPED_TRACE(testing::Message() << block.w << " x " << block.h << " from (" << block.sx << ", " << block.sy
                                    << ") to (" << block.dx << ", " << block.dy << ')');
    const Pixels colours = brightColours(8 * 6, 3);
    MemoryContext source(8, 6);
    source.paint(colours);
    CVQDIB image(6, 5);
    const Pixels before(30, kBefore);
    paint(image, before);

    image.Copy(source.handle(), block.dx, block.dy, block.sx, block.sy, block.w, block.h);

    EXPECT_TRUE(shows(image, grabbed(before, CSize(6, 5), colours, CSize(8, 6), block)));
    EXPECT_TRUE(samePixels(source.colours(), colours, 8));
}

TEST(CVQDIBCopyFromContext, TakesABlockOpaqueAndLeavesTheRest)
{
    MemoryContext source(4, 2);
    source.paint(Pixels(8, 0x00AABBCC));
    CVQDIB image(6, 3);
    paint(image, Pixels(18, kBefore));

    image.Copy(source.handle(), 1, 1, 0, 0, 4, 2);

    constexpr ULONG o = kBefore;
    constexpr ULONG n = 0xFFAABBCC;
    EXPECT_TRUE(shows(image, {o, o, o, o, o, o, //
                              o, n, n, n, n, o, //
                              o, n, n, n, n, o}));
}

TEST(CVQDIBCopyFromContext, TakesTheBlockFromItsPlaceInTheSource)
{
    expectGrabbed({0, 0, 0, 0, 6, 5});
    expectGrabbed({0, 0, 2, 1, 3, 2});
    expectGrabbed({2, 3, 4, 4, 4, 2});
    expectGrabbed({5, 4, 7, 5, 1, 1});
}

TEST(CVQDIBCopyFromContext, CutsTheBlockAtTheImagesEdges)
{
    expectGrabbed({-2, -1, 0, 0, 5, 4});
    expectGrabbed({4, 3, 0, 0, 4, 4});
    expectGrabbed({-1, -1, 0, 0, 8, 6});
    expectGrabbed({6, 0, 0, 0, 2, 2});
    expectGrabbed({-2, 0, 0, 0, 2, 2});
}

TEST(CVQDIBCopyFromContext, TakesNothingOfABlockWithoutArea)
{
    expectGrabbed({1, 1, 1, 1, 0, 3});
    expectGrabbed({1, 1, 1, 1, 3, 0});
}

TEST(CVQDIBCopyFromContext, DoesNotTakeTheSourcesAlpha)
{
    MemoryContext source(2, 1);
    source.paint({0x00AABBCC, 0x80DDEEFF});
    CVQDIB image(2, 1);

    image.Copy(source.handle(), 0, 0, 0, 0, 2, 1);

    EXPECT_TRUE(shows(image, {0xFFAABBCC, 0xFFDDEEFF}));
}

TEST(CVQDIBCopyFromContext, ANullContextChangesNothing)
{
    CVQDIB image(4, 3);
    fillRandom(image, 1);
    const Pixels before = pixels(image);

    image.Copy(HDC{nullptr}, 0, 0, 0, 0, 4, 3);

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBCopyFromContext, GivesTheGraphicsBackForDrawing)
{
    MemoryContext source(2, 2, 0x00FFFFFF);
    CVQDIB image(3, 3);
    image.EnableAntialias(false);

    image.Copy(source.handle(), 0, 0, 0, 0, 2, 2);
    const Gdiplus::SolidBrush brush(Gdiplus::Color(0xFF0000FF));
    ASSERT_EQ(image.GetGraphics()->FillRectangle(&brush, 0, 0, 3, 3), Gdiplus::Ok);

    EXPECT_TRUE(shows(image, Pixels(9, 0xFF0000FF)));
}

TEST(CVQDIBCopyFromContext, TakesWhatAnotherImageShowed)
{
    MemoryContext context(16, 16);
    CVQDIB shown(16, 16);
    CVQDIB taken(16, 16);
    Pixels content = brightColours(256, 9);
    for (ULONG& pixel : content)
        pixel |= 0xFF000000;
    paint(shown, content);

    shown.Update(context.handle());
    taken.Copy(context.handle(), 0, 0, 0, 0, 16, 16);

    EXPECT_TRUE(shows(taken, content));
}

} // namespace
} // namespace vq::test::cvqdibCopyFromContextTests
