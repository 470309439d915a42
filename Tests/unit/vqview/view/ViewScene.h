// SPDX-License-Identifier: MIT
#pragma once

/// @file
/// A scan that is really drawn, and what its pixels should be.

#include "support/offscreen/OffScreenContext.h"
#include "vqview/view/SceneDrawing.h"

#include <gtest/gtest.h>

#include <memory>
#include <ostream>

namespace vqview::test {

/// Channels of 0 .. 255.
struct Colour
{
    double red = 0, green = 0, blue = 0;

    friend void PrintTo(const Colour& colour, std::ostream* out)
    {
        *out << "(" << colour.red << ", " << colour.green << ", " << colour.blue << ")";
    }
};

Colour preferred(eDrawPropertyColor row);

/// Which parts are shown, and how large a unit of their sizes is.
struct Parts
{
    bool faces = false, edges = false, vertices = false;
    float scale = 1;
};

/// Each test begins with the default preferences and a context of its own, in whose view one unit is one pixel, from
/// the lower left corner on; z = 0 is 1000 deep, and what is nearer has a greater z.
class ViewScene : public testing::Test
{
public:
    static constexpr int kWidth = 160;
    static constexpr int kHeight = 120;

    ViewScene();
    ~ViewScene() override;

    void draw(const Parts& parts) { draw(pixelView, parts); }
    void draw(const SVQGLVariables& view, const Parts& parts);
    /// Takes over what is drawn.
    void readBack();

    /// Pixels count as the scene does, from the lower left corner.
    Colour at(int x, int y);
    testing::AssertionResult shows(int x, int y, const Colour& expected, double tolerance = 1);
    /// How many pixels of the rectangle have the colour.
    int count(const Colour& colour, int left, int lower, int right, int upper);
    int count(const Colour& colour) { return count(colour, 0, 0, kWidth, kHeight); }

    SVQGLVariables pixelView{};
    std::unique_ptr<SceneDrawing> scene;

private:
    std::unique_ptr<OffScreenContext> m_context;
    CVQDIB m_picture{1, 1};
};

/// What a model of these would be; without normals, each position gets the one towards the viewer.
std::shared_ptr<Model> makeModel(std::vector<Point3> positions, std::vector<std::array<std::uint32_t, 3>> triangles);

/// Points of a scan without a surface, and without normals.
std::shared_ptr<Model> makeCloud(std::vector<Point3> positions);

/// An upright rectangle whose front is towards the viewer, as two triangles; all sides are edges.
std::shared_ptr<Model> makeRectangle(Point3 lowerLeft, Point3 upperRight);

/// Makes a scene of both.
std::shared_ptr<Model> joined(const Model& first, const Model& second);

void setColour(eDrawPropertyColor row, float red, float green, float blue);
/// Only light 0 shines, diffuse in white and from the viewer, on a body that only reflects that.
void setSimpleLight(float red, float green, float blue);

} // namespace vqview::test
