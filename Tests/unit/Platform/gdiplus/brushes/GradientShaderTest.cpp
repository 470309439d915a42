// SPDX-License-Identifier: MIT
#include "parity/Pixels.h"
#include "unit/Platform/gdiplus/GdiplusSession.h"
#include "unit/Platform/gdiplus/brushes/ExactGradient.h"

#include <random>

namespace vq::test {
namespace {

using namespace Gdiplus;

/// What a test's gradient is made of. Places are in quarters of a pixel.
struct Description
{
    int firstX, firstY, lastX, lastY;
    ExactGradient exact;
    bool hasPresets;
    bool hasHalfPixelOffset;
    WrapMode wrapMode;
};

class GradientShader : public GdiplusTest
{
protected:
    int number(int lowest, int highest) { return std::uniform_int_distribution(lowest, highest)(m_generator); }

    std::uint32_t colour(std::uint32_t alpha) { return alpha << 24 | static_cast<std::uint32_t>(number(0, 0xFFFFFF)); }

    Description description()
    {
        Description made{number(-200, 200),
                         number(-60, 60),
                         number(-200, 200),
                         number(-60, 60),
                         {},
                         number(0, 2) == 0,
                         number(0, 3) == 0,
                         static_cast<WrapMode>(number(0, 3))};
        made.lastX += made.firstX == made.lastX && made.firstY == made.lastY ? 1 : 0;
        made.exact.isMirrored = made.wrapMode == WrapModeTileFlipX || made.wrapMode == WrapModeTileFlipXY;
        made.exact.inLinearLight = number(0, 3) == 0;
        const bool hasOneAlpha = number(0, 1) == 0;
        const auto alpha = [&, shared = number(0, 255)] {
            return static_cast<std::uint32_t>(hasOneAlpha ? shared : number(0, 255));
        };
        const std::uint32_t first = colour(alpha());
        const std::uint32_t second = colour(alpha());
        std::vector<int> places{0, 16};
        for (int i = number(0, 4); i > 0; --i)
            places.push_back(number(0, 16));
        std::ranges::sort(places);
        for (const int place : places)
            if (const std::uint32_t preset = colour(alpha()); made.hasPresets)
                made.exact.stops.push_back({place, preset, preset, 0});
            else
                made.exact.stops.push_back({place, first, second, places.size() == 2 ? place / 2 : number(0, 8)});
        return made;
    }

    static void expectExact(const Description& made, int width, int height)
    {
        const auto quarters = [](int number) { return static_cast<REAL>(number) / 4; };
        const auto& stops = made.exact.stops;
        LinearGradientBrush brush(PointF(quarters(made.firstX), quarters(made.firstY)),
                                  PointF(quarters(made.lastX), quarters(made.lastY)), Color(stops.front().first),
                                  Color(stops.front().second));
        std::vector<REAL> positions, factors;
        std::vector<Color> colours;
        for (const ExactStop& stop : stops) {
            positions.push_back(static_cast<REAL>(stop.sixteenths) / 16);
            factors.push_back(static_cast<REAL>(stop.eighths) / 8);
            colours.emplace_back(stop.first);
        }
        const auto count = static_cast<INT>(stops.size());
        ASSERT_EQ(made.hasPresets ? brush.SetInterpolationColors(colours.data(), positions.data(), count)
                                  : brush.SetBlend(factors.data(), positions.data(), count),
                  Ok);
        brush.SetWrapMode(made.wrapMode);
        brush.SetGammaCorrection(made.exact.inLinearLight);

        TestPicture picture(width, height);
        picture.graphics.SetCompositingMode(CompositingModeSourceCopy);
        picture.graphics.SetPixelOffsetMode(made.hasHalfPixelOffset ? PixelOffsetModeHalf : PixelOffsetModeNone);
        ASSERT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, width, height), Ok);

        const std::int64_t across = made.lastX - made.firstX;
        const std::int64_t down = made.lastY - made.firstY;
        const int centre = made.hasHalfPixelOffset ? 2 : 0;
        for (int y = 0; y < height; ++y)
            for (int x = 0; x < width; ++x) {
                const std::int64_t distance =
                    (4 * x + centre - made.firstX) * across + (4 * y + centre - made.firstY) * down;
                ASSERT_EQ(picture.at(x, y), Argb{made.exact.at(distance, across * across + down * down)})
                    << "pixel " << x << ", " << y << " from " << made.firstX << ", " << made.firstY << " to "
                    << made.lastX << ", " << made.lastY << ", stops " << count << ", presets " << made.hasPresets
                    << ", wrap mode " << made.wrapMode << ", light " << made.exact.inLinearLight;
            }
    }

    std::mt19937 m_generator{20240611};
};

TEST_F(GradientShader, EqualsFractionsOfWholeNumbers)
{
    for (int round = 0; round < 1000 && !HasFatalFailure(); ++round)
        expectExact(description(), 50, 5);
}

TEST_F(GradientShader, EqualsThemInLongRows)
{
    for (int round = 0; round < 40 && !HasFatalFailure(); ++round)
        expectExact(description(), 777, 2);
}

TEST_F(GradientShader, EqualsThemAcrossAWholeScreen)
{
    const std::uint32_t first = 0xFF10F080;
    for (const std::uint32_t second : {0xFFF01881U, 0x30F01881U, 0x00F01881U}) {
        Description made{0, 0, 4 * 3840, 4 * 2160, {}, false, false, WrapModeTile};
        made.exact.stops = {{0, first, second, 0}, {16, first, second, 8}};
        expectExact(made, 3840, 3);
        made.firstX = 4 * 1999;
        made.lastX = 0;
        made.lastY = made.firstY;
        expectExact(made, 2000, 1);
    }
}

TEST_F(GradientShader, EqualsFractionsAcrossRectangles)
{
    for (int round = 0; round < 100 && !HasFatalFailure(); ++round) {
        const Rect rect(number(-20, 20), number(-9, 9), number(1, 40), number(1, 40));
        const std::uint32_t first = colour(255);
        const std::uint32_t second = colour(255);
        const LinearGradientBrush forward(rect, Color(first), Color(second), LinearGradientModeForwardDiagonal);
        const LinearGradientBrush backward(rect, Color(first), Color(second), 135.0f, TRUE);
        const LinearGradientBrush upward(rect, Color(first), Color(second), -90.0f, FALSE);
        ExactGradient exact;
        exact.stops = {{0, first, second, 0}, {16, first, second, 8}};
        TestPicture picture(30, 30);
        const auto expect = [&](const Brush& brush, std::int64_t length, auto distance) {
            picture.graphics.FillRectangle(&brush, 0, 0, 30, 30);
            for (int y = 0; y < 30; ++y)
                for (int x = 0; x < 30; ++x)
                    ASSERT_EQ(picture.at(x, y), Argb{exact.at(distance(x, y), length)}) << x << ", " << y;
        };
        const std::int64_t area = std::int64_t{rect.Width} * rect.Height;
        expect(forward, 2 * area, [&](int x, int y) { return (x - rect.X) * rect.Height + (y - rect.Y) * rect.Width; });
        expect(backward, 2 * area,
               [&](int x, int y) { return (rect.GetRight() - x) * rect.Height + (y - rect.Y) * rect.Width; });
        expect(upward, rect.Height, [&](int, int y) { return rect.GetBottom() - y; });
    }
}

TEST_F(GradientShader, LivesInWorldUnits)
{
    const LinearGradientBrush brush(PointF(1, 0), PointF(9, 4), Color(0xFFFF0000), Color(0xFF0000FF));
    const LinearGradientBrush doubled(PointF(2, 0), PointF(18, 8), Color(0xFFFF0000), Color(0xFF0000FF));
    TestPicture scaled(24, 16);
    TestPicture expected(24, 16);
    scaled.graphics.SetPageScale(2);
    scaled.graphics.FillRectangle(&brush, 0, 0, 12, 8);
    expected.graphics.FillRectangle(&doubled, 0, 0, 24, 16);
    EXPECT_EQ(scaled.all(), expected.all());
}

TEST_F(GradientShader, TransparentEndDoesNotTint)
{
    const LinearGradientBrush brush(PointF(0, 0), PointF(4, 0), Color(0xFFFF0000), Color(0x00000000));
    TestPicture picture(4, 1);
    picture.graphics.FillRectangle(&brush, 0, 0, 4, 1);
    EXPECT_EQ(picture.all(), row({0xFFFF0000, 0xBFFF0000, 0x80FF0000, 0x40FF0000}));
}

TEST_F(GradientShader, GradientFinerThanPixelsHasColoursOfItsOwnOnly)
{
    for (const REAL length : {0.3f, 1e-3f, 1e-20f, 1e-38f, 1e-45f})
        for (const WrapMode mode : {WrapModeTile, WrapModeTileFlipX})
            for (const Color& last : {Color(0xFFFFFFFF), Color(0x10FFFFFF)}) {
                LinearGradientBrush brush(PointF(0, 0), PointF(length, length), Color(0xFF000000), last);
                brush.SetWrapMode(mode);
                TestPicture picture(300, 2);
                EXPECT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, 300, 2), Ok);
                for (const Argb pixel : picture.all())
                    ASSERT_TRUE((pixel.value >> 16 & 0xFF) == (pixel.value & 0xFF) && pixel.value >> 24 >= 0x10)
                        << std::hex << pixel.value;
            }
}

TEST_F(GradientShader, GradientCoarserThanThePictureIsOneColour)
{
    const LinearGradientBrush brush(PointF(0, 0), PointF(1e30f, 1e38f), Color(0xFF123456), Color(0xFFFFFFFF));
    TestPicture picture(300, 2);
    EXPECT_EQ(picture.graphics.FillRectangle(&brush, 0, 0, 300, 2), Ok);
    EXPECT_EQ(picture.find(0xFF123456).count, 600);
}

} // namespace
} // namespace vq::test
