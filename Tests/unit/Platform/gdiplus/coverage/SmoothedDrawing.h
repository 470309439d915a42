// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// Smoothed shapes on a transparent picture, whose alpha is the coverage, against what they cover exactly.

#include "parity/Pixels.h"
#include "unit/Platform/gdiplus/GdiplusSession.h"
#include "unit/Platform/gdiplus/coverage/Outlines.h"

#include <cmath>
#include <functional>
#include <limits>
#include <random>

namespace vq::test {

constexpr int kSize = 64;     // pixels across and down
constexpr int kTolerance = 2; // levels of 255

/// Numbers that are exact as `REAL`, always the same for a seed.
class Random
{
public:
    explicit Random(unsigned seed) : m_generator(seed) {}

    Gdiplus::REAL between(double least, double most)
    {
        const double share = static_cast<double>(m_generator()) / 4294967296.0;
        return static_cast<Gdiplus::REAL>(least + share * (most - least));
    }
    int count(int least, int most) { return static_cast<int>(std::floor(double{between(least, most + 0.999)})); }
    Gdiplus::PointF point(double least, double most) { return {between(least, most), between(least, most)}; }

private:
    std::mt19937 m_generator;
};

inline Vertex vertexOf(const Gdiplus::PointF& point)
{
    return {double{point.X}, double{point.Y}};
}

inline Contour contourOf(const std::vector<Gdiplus::PointF>& points)
{
    Contour contour;
    for (const Gdiplus::PointF& point : points)
        contour.push_back(vertexOf(point));
    return contour;
}

/// How a shape is drawn and judged.
struct Drawing
{
    std::uint32_t colour = 0xFF000000;
    double origin = -0.5; ///< where pixel 0 begins

    /// How many levels the pixel around a place may be off.
    std::function<long(Vertex)> tolerance = [](Vertex) { return long{kTolerance}; };
};

/// The pixel whose difference from its exact coverage exceeds its tolerance most.
struct WorstPixel
{
    int x = 0;
    int y = 0;
    std::uint32_t value = 0;
    double exactAlpha = 0;
    long excess = std::numeric_limits<long>::min();

    friend void PrintTo(const WorstPixel& worst, std::ostream* out)
    {
        *out << '(' << worst.x << ", " << worst.y << "): alpha " << (worst.value >> 24) << " for " << worst.exactAlpha;
    }
};

inline WorstPixel worstOf(const TestPicture& picture, const CoverageMap& exact, const Drawing& drawing)
{
    const std::uint32_t alpha = drawing.colour >> 24;
    WorstPixel worst;
    for (int y = 0; y < exact.height(); ++y)
        for (int x = 0; x < exact.width(); ++x) {
            const std::uint32_t value = picture.at(x, y).value;
            const double exactAlpha = exact.at(x, y) * alpha;
            const long difference = std::labs(static_cast<long>(value >> 24) - std::lround(exactAlpha));
            const long excess = difference - drawing.tolerance({double{1} * x, double{1} * y});
            if (excess > worst.excess)
                worst = {x, y, value, exactAlpha, excess};
        }
    return worst;
}

/// Every pixel has the alpha of its coverage, and the drawing's colour when it has any.
inline void expectCovered(const TestPicture& picture, const Outline& outline, const Drawing& drawing)
{
    const CoverageMap exact = exactCoverage(outline, kSize, kSize, drawing.origin);
    const WorstPixel worst = worstOf(picture, exact, drawing);
    EXPECT_LE(worst.excess, 0) << testing::PrintToString(worst);
    for (const Argb pixel : picture.all())
        if (pixel.value != 0) {
            ASSERT_EQ(pixel.value & 0xFFFFFF, drawing.colour & 0xFFFFFF) << testing::PrintToString(pixel);
        }
}

/// A picture that is drawn on with smoothing.
struct SmoothedPicture : TestPicture
{
    SmoothedPicture() : TestPicture(kSize, kSize) { graphics.SetSmoothingMode(Gdiplus::SmoothingModeAntiAlias); }
};

class SmoothedDrawing : public GdiplusTest
{
protected:
    /// Draws random shapes and compares. `makeCase(random, picture, drawing)` draws one on the picture and returns its
    /// outline; black and white take turns.
    template <typename MakeCase>
    void expectAllCovered(unsigned seeds, MakeCase makeCase)
    {
        for (unsigned seed = 1; seed <= seeds; ++seed) {
            SCOPED_TRACE(testing::Message() << "seed " << seed);
            Random random(seed);
            SmoothedPicture picture;
            Drawing drawing;
            drawing.colour = seed % 2 == 0 ? 0xFF000000 : 0xFFFFFFFF;
            const Outline outline = makeCase(random, picture, drawing);
            expectCovered(picture, outline, drawing);
        }
    }
};

} // namespace vq::test
