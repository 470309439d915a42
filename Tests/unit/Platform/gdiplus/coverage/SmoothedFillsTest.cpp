// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/coverage/SmoothedDrawing.h"

#include <algorithm>
#include <numbers>

namespace vq::test::smoothedFillsTests {
namespace {

using namespace Gdiplus;
using Points = std::vector<PointF>;

INT countOf(const Points& points)
{
    return static_cast<INT>(points.size());
}

class SmoothedFill : public SmoothedDrawing
{
};

/// Corners in the order of their angle around a centre, at any distance up to a radius.
Points randomStar(Random& random, const PointF& centre, double radius)
{
    for (;;) {
        std::vector<double> angles;
        for (int i = random.count(3, 12); i > 0; --i)
            angles.push_back(double{random.between(0, 2 * std::numbers::pi)});
        std::ranges::sort(angles);
        Points points;
        for (const double angle : angles) {
            const double distance = double{random.between(radius / 10, radius)};
            points.emplace_back(static_cast<REAL>(double{centre.X} + distance * std::cos(angle)),
                                static_cast<REAL>(double{centre.Y} + distance * std::sin(angle)));
        }
        if (isSimple(contourOf(points)))
            return points;
    }
}

TEST_F(SmoothedFill, OfTrianglesIsExact)
{
    expectAllCovered(200, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        const Points corners{random.point(-10, 74), random.point(-10, 74), random.point(-10, 74)};
        const SolidBrush brush(Color(drawing.colour));
        EXPECT_EQ(picture.graphics.FillPolygon(&brush, corners.data(), countOf(corners)), Ok);
        return {{contourOf(corners)}, {}};
    });
}

TEST_F(SmoothedFill, OfSliversIsExact)
{
    expectAllCovered(200, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        const PointF corner = random.point(0, 63);
        const PointF beside(corner.X + random.between(-0.5, 0.5), corner.Y + random.between(-0.5, 0.5));
        const Points corners{corner, beside, random.point(0, 63)};
        const SolidBrush brush(Color(drawing.colour));
        picture.graphics.FillPolygon(&brush, corners.data(), countOf(corners));
        return {{contourOf(corners)}, {}};
    });
}

TEST_F(SmoothedFill, OfConcavePolygonsIsExact)
{
    expectAllCovered(200, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        const Points corners = randomStar(random, random.point(20, 44), 35);
        const SolidBrush brush(Color(drawing.colour));
        picture.graphics.FillPolygon(&brush, corners.data(), countOf(corners), FillModeWinding);
        return {{contourOf(corners)}, {}};
    });
}

TEST_F(SmoothedFill, OfShapesWithHolesIsExact)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        const Points outer{random.point(0, 8), PointF(random.between(52, 60), random.between(1, 9)),
                           random.point(52, 60), PointF(random.between(1, 9), random.between(52, 60))};
        const Points inner = randomStar(random, random.point(28, 34), 15);
        GraphicsPath path(FillModeAlternate);
        path.AddPolygon(outer.data(), countOf(outer));
        path.AddPolygon(inner.data(), countOf(inner));
        const SolidBrush brush(Color(drawing.colour));
        EXPECT_EQ(picture.graphics.FillPath(&brush, &path), Ok);
        return {{contourOf(outer)}, {contourOf(inner)}};
    });
}

TEST_F(SmoothedFill, OfRectanglesIsExact)
{
    expectAllCovered(200, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        const RectF box(random.between(-10, 50), random.between(-10, 50), random.between(0.1, 40),
                        random.between(0.1, 40));
        const SolidBrush brush(Color(drawing.colour));
        picture.graphics.FillRectangle(&brush, box);
        const double left = double{box.X};
        const double top = double{box.Y};
        return {{rectangle(left, top, left + double{box.Width}, top + double{box.Height})}, {}};
    });
}

Outline fillEllipse(Random& random, SmoothedPicture& picture, const Drawing& drawing, double least, double most)
{
    const RectF box(random.between(-10, 50), random.between(-10, 50), 2 * random.between(least, most),
                    2 * random.between(least, most));
    const SolidBrush brush(Color(drawing.colour));
    EXPECT_EQ(picture.graphics.FillEllipse(&brush, box), Ok);
    const double radiusX = double{box.Width} / 2;
    const double radiusY = double{box.Height} / 2;
    const Vertex centre{double{box.X} + radiusX, double{box.Y} + radiusY};
    return {{pointsOn(ellipseCurves(centre, radiusX, radiusY))}, {}};
}

TEST_F(SmoothedFill, OfEllipsesIsExact)
{
    expectAllCovered(200, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) {
        return fillEllipse(random, picture, drawing, 0.2, 15);
    });
}

TEST_F(SmoothedFill, OfLargeEllipsesIsExact)
{
    expectAllCovered(60, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) {
        return fillEllipse(random, picture, drawing, 15, 400);
    });
}

TEST_F(SmoothedFill, OfCurvedPathsIsExact)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        // An arch over a straight base: its controls lie above the ends, so that it does not cross itself.
        const PointF left = PointF(random.between(2, 20), random.between(45, 60));
        const PointF right = PointF(random.between(40, 62), random.between(45, 60));
        const PointF leftControl = PointF(random.between(2, 30), random.between(-20, 30));
        const PointF rightControl = PointF(random.between(32, 62), random.between(-20, 30));
        GraphicsPath path;
        path.AddBezier(left, leftControl, rightControl, right);
        const SolidBrush brush(Color(drawing.colour));
        picture.graphics.FillPath(&brush, &path);
        return {{pointsOn(Bezier{vertexOf(left), vertexOf(leftControl), vertexOf(rightControl), vertexOf(right)})}, {}};
    });
}

TEST_F(SmoothedFill, OfShapesFarBeyondThePictureIsExact)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        const Points corners{random.point(-20000, 20000), random.point(-20000, 20000), random.point(10, 50)};
        const SolidBrush brush(Color(drawing.colour));
        picture.graphics.FillPolygon(&brush, corners.data(), countOf(corners));
        return {{contourOf(corners)}, {}};
    });
}

TEST_F(SmoothedFill, OfTranslucentColoursIsTheirShare)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, Drawing& drawing) -> Outline {
        drawing.colour = 0x60204080;
        const Points corners = randomStar(random, random.point(20, 44), 35);
        const SolidBrush brush(Color(drawing.colour));
        picture.graphics.FillPolygon(&brush, corners.data(), countOf(corners));
        return {{contourOf(corners)}, {}};
    });
}

TEST_F(SmoothedFill, MovesByHalfAPixelWithThePixelOffset)
{
    expectAllCovered(60, [](Random& random, SmoothedPicture& picture, Drawing& drawing) -> Outline {
        drawing.origin = 0;
        picture.graphics.SetPixelOffsetMode(PixelOffsetModeHalf);
        const Points corners = randomStar(random, random.point(20, 44), 35);
        const SolidBrush brush(Color(drawing.colour));
        picture.graphics.FillPolygon(&brush, corners.data(), countOf(corners));
        return {{contourOf(corners)}, {}};
    });
}

} // namespace
} // namespace vq::test::smoothedFillsTests
