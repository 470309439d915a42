// SPDX-License-Identifier: MIT
#include "Platform/Platform.h"
#include "parity/KnownDifferences.h"
#include "support/DeviceContexts.h"
#include "support/ImageAccess.h"

#include <cstdlib>
#include <functional>

namespace vq::test::cvqdibUpdateTests {
namespace {

constexpr LONG kWidth = 7;
constexpr LONG kHeight = 5;
constexpr ULONG kBackground = 0x00507090;

/// A framework context on a handle that stays its owner's.
class BorrowedContext
{
public:
    explicit BorrowedContext(HDC handle) { m_context.Attach(handle); }
    ~BorrowedContext() { m_context.Detach(); }
    BorrowedContext(const BorrowedContext&) = delete;
    BorrowedContext& operator=(const BorrowedContext&) = delete;

    CDC* pointer() { return &m_context; }
    const CDC& reference() const { return m_context; }

private:
    CDC m_context;
};

/// The part of `image` at (sx, sy) of size w x h, laid on the background at (x, y).
Pixels laidOn(ULONG background, CVQDIB& image, LONG x, LONG y, LONG sx, LONG sy, LONG w, LONG h)
{
    Pixels result(kWidth * kHeight, background);
    for (LONG row = 0; row < kHeight; ++row) {
        for (LONG column = 0; column < kWidth; ++column) {
            const LONG sourceX = column - x + sx;
            const LONG sourceY = row - y + sy;
            const bool inside = column >= x && column < x + w && row >= y && row < y + h;
            if (inside)
                result[static_cast<std::size_t>(row * kWidth + column)] = image(sourceX, sourceY) & 0x00FFFFFF;
        }
    }
    return result;
}

void paintOpaque(CVQDIB& image)
{
    Pixels content = randomPixels(static_cast<std::size_t>(image.GetSize()), 1);
    for (ULONG& pixel : content)
        pixel |= 0xFF000000;
    paint(image, content);
}

using Show = std::function<void(CVQDIB& image, HDC target)>;

/// Shows an opaque 4 x 3 picture and expects its part on the context.
void expectShown(const Show& show, LONG x, LONG y, LONG sx, LONG sy, LONG w, LONG h)
{
    MemoryContext target(kWidth, kHeight, kBackground);
    CVQDIB image(4, 3);
    paintOpaque(image);
    const Pixels before = pixels(image);

    show(image, target.handle());

    EXPECT_TRUE(samePixels(target.colours(), laidOn(kBackground, image, x, y, sx, sy, w, h), kWidth));
    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBUpdate, ShowsTheWholeImageAtTheOriginByEveryForm)
{
    expectShown([](CVQDIB& image, HDC target) { image.Update(BorrowedContext(target).pointer()); }, 0, 0, 0, 0, 4, 3);
    expectShown([](CVQDIB& image, HDC target) { image.Update(BorrowedContext(target).reference()); }, 0, 0, 0, 0, 4, 3);
    expectShown([](CVQDIB& image, HDC target) { image.Update(target); }, 0, 0, 0, 0, 4, 3);
}

TEST(CVQDIBUpdate, ShowsTheWholeImageAtAPositionByEveryForm)
{
    expectShown([](CVQDIB& image, HDC target) { image.Update(BorrowedContext(target).pointer(), 2, 1); }, 2, 1, 0, 0, 4,
                3);
    expectShown([](CVQDIB& image, HDC target) { image.Update(BorrowedContext(target).reference(), 2, 1); }, 2, 1, 0, 0,
                4, 3);
    expectShown([](CVQDIB& image, HDC target) { image.Update(target, 2, 1); }, 2, 1, 0, 0, 4, 3);
}

TEST(CVQDIBUpdate, ShowsAPartByEveryForm)
{
    expectShown([](CVQDIB& image, HDC target) { image.Update(BorrowedContext(target).pointer(), 3, 2, 1, 1, 2, 2); }, 3,
                2, 1, 1, 2, 2);
    expectShown([](CVQDIB& image, HDC target) { image.Update(BorrowedContext(target).reference(), 3, 2, 1, 1, 2, 2); },
                3, 2, 1, 1, 2, 2);
    expectShown([](CVQDIB& image, HDC target) { image.Update(target, 3, 2, 1, 1, 2, 2); }, 3, 2, 1, 1, 2, 2);
}

TEST(CVQDIBUpdate, IsCutAtTheEdgesOfTheContext)
{
    for (const auto& [x, y] : {std::pair{-2, -1}, {5, 3}, {-1, 4}, {6, -2}, {7, 0}, {0, 5}, {-4, 0}, {0, -3}}) {
        SCOPED_TRACE(testing::Message() << "at (" << x << ", " << y << ')');
        expectShown([x = x, y = y](CVQDIB& image, HDC target) { image.Update(target, x, y); }, x, y, 0, 0, 4, 3);
    }
}

TEST(CVQDIBUpdate, ShowsEveryPartUnscaled)
{
    for (LONG sy = 0; sy < 3; ++sy) {
        for (LONG sx = 0; sx < 4; ++sx) {
            const LONG w = 4 - sx;
            const LONG h = 3 - sy;
            SCOPED_TRACE(testing::Message() << w << " x " << h << " at (" << sx << ", " << sy << ')');
            expectShown([=](CVQDIB& image, HDC target) { image.Update(target, 1, 2, sx, sy, w, h); }, 1, 2, sx, sy, w,
                        h);
        }
    }
}

TEST(CVQDIBUpdate, ShowsNothingOfAPartWithoutArea)
{
    for (const auto& [w, h] : {std::pair{0, 2}, {2, 0}, {0, 0}}) {
        expectShown([w = w, h = h](CVQDIB& image, HDC target) { image.Update(target, 1, 1, 0, 0, w, h); }, 1, 1, 0, 0,
                    0, 0);
    }
}

TEST(CVQDIBUpdate, DoesNotScaleABitmapOfAnotherResolution)
{
    expectShown(
        [](CVQDIB& image, HDC target) {
            ASSERT_EQ(image.GetBitmap()->SetResolution(48, 48), Gdiplus::Ok);
            image.Update(target);
        },
        0, 0, 0, 0, 4, 3);
}

TEST(CVQDIBUpdate, WritesPartlyTransparentPixelsUnblended)
{
    // The same result on any background: nothing of what was there shines through.
    CVQDIB image(2, 1);
    paint(image, {0x80FF0000, 0x80FFFFFF});
    const bool darkened = differsHere("partly transparent pixels on a context");
    const Pixels expected = darkened ? Pixels{0x800000, 0x808080} : Pixels{0xFF0000, 0xFFFFFF};
    for (const ULONG background : {0x00000000, 0x00FFFFFF, 0x00507090}) {
        MemoryContext target(2, 1, background);

        image.Update(target.handle());

        EXPECT_TRUE(samePixels(target.colours(), expected, 2)) << "background " << std::hex << background;
    }
}

TEST(CVQDIBUpdate, WritesPartlyTransparentPixelsUnblendedByEveryForm)
{
    const std::function<void(CVQDIB&, HDC)> forms[] = {
        [](CVQDIB& image, HDC target) { image.Update(target); },
        [](CVQDIB& image, HDC target) { image.Update(target, 0, 0); },
        [](CVQDIB& image, HDC target) { image.Update(target, 0, 0, 0, 0, 3, 1); },
    };
    CVQDIB image(3, 1);
    paint(image, {0x40FFFFFF, 0x00000000, 0xC000FF00});
    for (const auto& show : forms) {
        MemoryContext onBlack(3, 1, 0x00000000);
        MemoryContext onWhite(3, 1, 0x00FFFFFF);

        show(image, onBlack.handle());
        show(image, onWhite.handle());

        EXPECT_TRUE(samePixels(onWhite.colours(), onBlack.colours(), 3));
    }
}

TEST(CVQDIBUpdate, WritesTransparentBlackOverWhatIsThere)
{
    MemoryContext target(2, 1, 0x00FFFFFF);
    CVQDIB image(2, 1);

    image.Update(target.handle());

    EXPECT_TRUE(samePixels(target.colours(), {0, 0}, 2));
}

TEST(CVQDIBUpdate, ANullContextShowsNothing)
{
    CVQDIB image(4, 3);
    paintOpaque(image);
    const Pixels before = pixels(image);
    const CDC withoutHandle;

    image.Update(static_cast<CDC*>(nullptr));
    image.Update(static_cast<HDC>(nullptr));
    image.Update(withoutHandle);
    image.Update(static_cast<CDC*>(nullptr), 1, 1);
    image.Update(static_cast<HDC>(nullptr), 1, 1);
    image.Update(withoutHandle, 1, 1);
    image.Update(static_cast<CDC*>(nullptr), 1, 1, 0, 0, 2, 2);
    image.Update(static_cast<HDC>(nullptr), 1, 1, 0, 0, 2, 2);
    image.Update(withoutHandle, 1, 1, 0, 0, 2, 2);

    EXPECT_TRUE(shows(image, before));
}

TEST(CVQDIBUpdate, ShowsALargerPictureExactly)
{
    MemoryContext target(300, 200, 0x00FFFFFF);
    CVQDIB image(300, 200);
    paintOpaque(image);
    Pixels expected = pixels(image);
    for (ULONG& pixel : expected)
        pixel &= 0x00FFFFFF;

    image.Update(target.handle());

    EXPECT_TRUE(samePixels(target.colours(), expected, 300));
}

} // namespace
} // namespace vq::test::cvqdibUpdateTests
