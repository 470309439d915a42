// SPDX-License-Identifier: MIT
#include "Platform/gdiplus/compositor/RotateFlip.h"

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace vq::gdiplus::rotateFlipTests {
namespace {

constexpr Pixel kGuard = 0xDEADBEEF;

/// Pixels with room beside and behind every row.
struct Guarded
{
    Guarded(int columns, int rows, int padding)
        : width(columns), height(rows), stride(columns + padding),
          pixels(static_cast<std::size_t>(stride) * static_cast<std::size_t>(rows) + 64, kGuard)
    {
    }
    PixelView view()
    {
        return {reinterpret_cast<std::uint8_t*>(pixels.data()), stride * static_cast<std::ptrdiff_t>(sizeof(Pixel)),
                width, height};
    }
    Pixel& at(int x, int y) { return pixels[static_cast<std::size_t>(y * stride + x)]; }

    int width;
    int height;
    int stride;
    std::vector<Pixel> pixels;
};

/// The column and row of the source that the result shows at (x, y).
std::pair<int, int> sourceOf(int x, int y, int type, int width, int height)
{
    switch (type) {
    case 1: // clockwise
        return {y, height - 1 - x};
    case 2:
        return {width - 1 - x, height - 1 - y};
    case 3:
        return {width - 1 - y, x};
    case 4: // left and right exchanged
        return {width - 1 - x, y};
    case 5:
        return {y, x};
    case 6:
        return {x, height - 1 - y};
    case 7:
        return {width - 1 - y, height - 1 - x};
    default:
        return {x, y};
    }
}

void expectTurned(int width, int height, int padding)
{
    std::mt19937 random(static_cast<unsigned>(width * 1000 + height));
    Guarded source(width, height, padding);
    for (int y = 0; y < height; ++y)
        for (int x = 0; x < width; ++x)
            source.at(x, y) = static_cast<Pixel>(random());
    for (int type = 0; type < 8; ++type) {
        const bool transposes = type % 2 == 1;
        Guarded result(transposes ? height : width, transposes ? width : height, padding);
        rotateFlip(source.view(), result.view(), kTurns[static_cast<std::size_t>(type)]);
        for (int y = 0; y < result.height; ++y)
            for (int x = 0; x < result.stride; ++x) {
                const auto [column, row] = sourceOf(x, y, type, width, height);
                const Pixel expected = x < result.width ? source.at(column, row) : kGuard;
                ASSERT_EQ(result.at(x, y), expected)
                    << width << " x " << height << ", type " << type << ", at " << x << ", " << y;
            }
        for (std::size_t i = result.pixels.size() - 64; i < result.pixels.size(); ++i)
            ASSERT_EQ(result.pixels[i], kGuard);
    }
}

TEST(RotateFlip, EverySizeAroundTheTilesIsTurnedPixelByPixel)
{
    for (const int width : {1, 2, 3, 4, 5, 15, 16, 17, 31, 63, 64, 65, 130})
        for (const int height : {1, 2, 3, 4, 7, 16, 20, 33, 64, 67})
            for (const int padding : {0, 1, 3})
                expectTurned(width, height, padding);
}

TEST(RotateFlip, LargePicturesAreStreamed)
{
    expectTurned(1040, 1028, 0);
    expectTurned(1037, 1031, 0);
}

} // namespace
} // namespace vq::gdiplus::rotateFlipTests
