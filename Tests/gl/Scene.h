// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// A small scene that shapes and meshes are really drawn over, and what its pixels should be.

#include "VQDraw/VQDIB.h"
#include "VQDraw/VQDragObject.h"
#include "support/offscreen/OffScreenContext.h"

#include <gtest/gtest.h>

#include <cmath>
#include <memory>
#include <ostream>

namespace vq::test {

/// Channels of 0 .. 255.
struct Colour
{
    double r, g, b;

    friend void PrintTo(const Colour& colour, std::ostream* out)
    {
        *out << "(" << colour.r << ", " << colour.g << ", " << colour.b << ")";
    }
};

/// `ink` blended over what lies `below` by an alpha of 0 .. 255.
inline Colour over(const Colour& ink, double alpha, const Colour& below)
{
    const auto blend = [alpha](double above, double under) { return under + (above - under) * alpha / 255; };
    return {blend(ink.r, below.r), blend(ink.g, below.g), blend(ink.b, below.b)};
}

/// The largest difference of a channel.
inline double distance(const Colour& a, const Colour& b)
{
    return std::max({std::fabs(a.r - b.r), std::fabs(a.g - b.g), std::fabs(a.b - b.b)});
}

/// What every scene is cleared with, and what its shapes are drawn in.
constexpr Colour kBackground{40, 80, 120};
constexpr Colour kShapeInk{250, 130, 10};

/// Every test has a context of its own: a window of 160 x 120 pixels, in which one unit is one pixel, and what is drawn
/// is blended by its alpha.
class Scene : public testing::Test
{
public:
    static constexpr int kWidth = 160;
    static constexpr int kHeight = 120;

    Scene();
    ~Scene() override;

    /// Clears the scene and lets a shape draw over it. Coordinates below count pixels from the upper left, as the
    /// shape's do: point (x, y) is the upper left corner of pixel (x, y).
    void draw(CVQDragObject& shape);
    void clear();
    void readBack();

    Colour at(int x, int y);
    /// Whether a pixel is as cleared, exactly.
    bool isUntouched(int x, int y);
    /// Whether all pixels are that `where(x, y)` holds for.
    template <typename Where>
    testing::AssertionResult isUntouchedWhere(Where where)
    {
        for (int y = 0; y < kHeight; ++y)
            for (int x = 0; x < kWidth; ++x)
                if (where(x, y) && !isUntouched(x, y))
                    return testing::AssertionFailure() << "something is drawn at (" << x << ", " << y << ")";
        return testing::AssertionSuccess();
    }
    testing::AssertionResult isUntouched()
    {
        return isUntouchedWhere([](int, int) { return true; });
    }
    testing::AssertionResult shows(int x, int y, const Colour& expected, double tolerance = 1.5);
    /// How much of the ink a pixel has been given, 0 none .. 1 all of its alpha, over the colour that lies below.
    double share(int x, int y, double alpha, const Colour& below = kBackground);

    SVQGLVariables view{};

private:
    std::unique_ptr<OffScreenContext> m_context;
    CVQDIB m_picture{1, 1};
};

/// A shape in the ink of scenes.
template <typename Shape>
void useInk(Shape& shape, LONG alpha)
{
    shape.SetColor(static_cast<LONG>(kShapeInk.r), static_cast<LONG>(kShapeInk.g), static_cast<LONG>(kShapeInk.b),
                   alpha);
}

template <typename Shape>
void drag(Shape& shape, CPoint from, CPoint to)
{
    shape.Start(from);
    shape.Drag(to);
}

} // namespace vq::test
