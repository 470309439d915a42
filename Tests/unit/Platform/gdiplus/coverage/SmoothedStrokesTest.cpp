// SPDX-License-Identifier: MIT
#include "unit/Platform/gdiplus/coverage/SmoothedDrawing.h"

#include <algorithm>
#include <numbers>

namespace vq::test::smoothedStrokesTests {
namespace {

using namespace Gdiplus;
using Points = std::vector<PointF>;

constexpr double kPi = std::numbers::pi;

INT countOf(const Points& points)
{
    return static_cast<INT>(points.size());
}

/// A point at an angle and a distance from another one.
PointF pointFrom(const PointF& place, double angle, double distance)
{
    return PointF(static_cast<REAL>(double{place.X} + distance * std::cos(angle)),
                  static_cast<REAL>(double{place.Y} + distance * std::sin(angle)));
}

double distance(Vertex a, Vertex b)
{
    return std::hypot(a.x - b.x, a.y - b.y);
}

class SmoothedStroke : public SmoothedDrawing
{
};

Outline drawLine(SmoothedPicture& picture, const Drawing& drawing, const PointF& from, const PointF& to, REAL width)
{
    const Pen pen(Color(drawing.colour), width);
    EXPECT_EQ(picture.graphics.DrawLine(&pen, from, to), Ok);
    return {{strokeOfLine(vertexOf(from), vertexOf(to), std::max(double{width}, 1.0))}, {}};
}

TEST_F(SmoothedStroke, OfOnePixelLinesIsExactInEveryDirection)
{
    expectAllCovered(400, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) {
        const PointF middle = random.point(20, 44);
        const double angle = double{random.between(0, 2 * kPi)};
        const double half = double{random.between(0.3, 28)};
        return drawLine(picture, drawing, pointFrom(middle, angle, -half), pointFrom(middle, angle, half), 1);
    });
}

TEST_F(SmoothedStroke, OfNearlyStraightLinesIsExact)
{
    expectAllCovered(200, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) {
        const PointF from = random.point(2, 62);
        const REAL tilt = random.between(-0.6, 0.6);
        const REAL length = random.between(-60, 60);
        const bool isFlat = random.count(0, 1) == 0;
        const PointF to = isFlat ? PointF(from.X + length, from.Y + tilt) : PointF(from.X + tilt, from.Y + length);
        return drawLine(picture, drawing, from, to, 1);
    });
}

TEST_F(SmoothedStroke, OfPensBelowOneIsOneWide)
{
    expectAllCovered(60, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) {
        return drawLine(picture, drawing, random.point(2, 62), random.point(2, 62), random.between(0, 1));
    });
}

TEST_F(SmoothedStroke, OfWideLinesIsExact)
{
    expectAllCovered(200, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) {
        return drawLine(picture, drawing, random.point(-5, 69), random.point(-5, 69), random.between(1, 20));
    });
}

TEST_F(SmoothedStroke, OfLinesFarBeyondThePictureIsExact)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) {
        const PointF middle = random.point(10, 54);
        const double angle = double{random.between(0, 2 * kPi)};
        const double reach = double{random.between(100, 20000)};
        return drawLine(picture, drawing, pointFrom(middle, angle, -reach), pointFrom(middle, angle, reach),
                        random.between(1, 9));
    });
}

/// A polyline that goes on within 50 degrees of a direction.
Points randomPolyline(Random& random, double segment)
{
    const double direction = double{random.between(0, 2 * kPi)};
    Points points{pointFrom(PointF(32, 32), direction, double{random.between(-40, -10)})};
    for (int i = random.count(2, 5); i > 0; --i)
        points.push_back(pointFrom(points.back(), direction + double{random.between(-kPi / 3.6, kPi / 3.6)},
                                   double{random.between(segment, 2 * segment + 5)}));
    return points;
}

TEST_F(SmoothedStroke, OfMitredPolylinesIsExact)
{
    expectAllCovered(200, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        const REAL width = random.between(1, 20);
        for (;;) {
            const Points points = randomPolyline(random, double{width});
            const std::optional<Contour> stroke = strokeOfPolyline(contourOf(points), double{width});
            if (!stroke)
                continue;
            const Pen pen(Color(drawing.colour), width);
            EXPECT_EQ(picture.graphics.DrawLines(&pen, points.data(), countOf(points)), Ok);
            return {{*stroke}, {}};
        }
    });
}

TEST_F(SmoothedStroke, OfSharpMitresIsExact)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        // Between the legs 16 to 60 degrees: mitres of 7.2 to 2 widths.
        const REAL width = random.between(1, 5);
        const double direction = double{random.between(0, 2 * kPi)};
        const double between = double{random.between(16, 60)} * kPi / 180;
        const PointF tip = random.point(22, 42);
        const Points points{pointFrom(tip, direction, 40), tip, pointFrom(tip, direction + between, 40)};
        const std::optional<Contour> stroke = strokeOfPolyline(contourOf(points), double{width});
        EXPECT_TRUE(stroke);
        const Pen pen(Color(drawing.colour), width);
        picture.graphics.DrawLines(&pen, points.data(), countOf(points));
        return {{stroke.value_or(Contour{})}, {}};
    });
}

TEST_F(SmoothedStroke, OfClosedPolygonsIsExact)
{
    expectAllCovered(200, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        const REAL width = random.between(1, 8);
        const bool isBackwards = random.count(0, 1) == 1;
        for (;;) {
            Points corners;
            const int count = random.count(3, 7);
            for (int i = 0; i < count; ++i)
                corners.push_back(pointFrom(PointF(32, 32), (i + double{random.between(-0.2, 0.2)}) * 2 * kPi / count,
                                            double{random.between(15, 30)}));
            if (isBackwards)
                std::ranges::reverse(corners);
            const std::optional<Outline> stroke = strokeOfPolygon(contourOf(corners), double{width});
            if (!stroke)
                continue;
            const Pen pen(Color(drawing.colour), width);
            EXPECT_EQ(picture.graphics.DrawPolygon(&pen, corners.data(), countOf(corners)), Ok);
            return *stroke;
        }
    });
}

TEST_F(SmoothedStroke, OfRectanglesIsExact)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        const REAL width = random.between(1, 6);
        const RectF box(random.between(-5, 30), random.between(-5, 30), random.between(8, 40), random.between(8, 40));
        const Pen pen(Color(drawing.colour), width);
        EXPECT_EQ(picture.graphics.DrawRectangle(&pen, box), Ok);
        const double half = double{width} / 2;
        const double left = double{box.X};
        const double top = double{box.Y};
        const double right = left + double{box.Width};
        const double bottom = top + double{box.Height};
        return {{rectangle(left - half, top - half, right + half, bottom + half)},
                {rectangle(left + half, top + half, right - half, bottom - half)}};
    });
}

Outline drawEllipse(SmoothedPicture& picture, const Drawing& drawing, const RectF& box, REAL width)
{
    const Pen pen(Color(drawing.colour), width);
    EXPECT_EQ(picture.graphics.DrawEllipse(&pen, box), Ok);
    const double radiusX = double{box.Width} / 2;
    const double radiusY = double{box.Height} / 2;
    const Vertex centre{double{box.X} + radiusX, double{box.Y} + radiusY};
    return strokeOfEllipse(ellipseCurves(centre, radiusX, radiusY), double{width});
}

TEST_F(SmoothedStroke, OfCirclesIsExact)
{
    expectAllCovered(200, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) {
        const REAL width = random.between(1, 20);
        const REAL radius = width / 2 + random.between(1, 30);
        const PointF centre = random.point(10, 54);
        return drawEllipse(picture, drawing, RectF(centre.X - radius, centre.Y - radius, 2 * radius, 2 * radius),
                           width);
    });
}

TEST_F(SmoothedStroke, OfThinCirclesIsExact)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) {
        const REAL radius = random.between(1.5, 40);
        const PointF centre = random.point(22, 42);
        return drawEllipse(picture, drawing, RectF(centre.X - radius, centre.Y - radius, 2 * radius, 2 * radius), 1);
    });
}

TEST_F(SmoothedStroke, OfEllipsesIsExact)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) {
        const REAL radiusX = random.between(10, 30);
        const REAL radiusY = radiusX * random.between(0.6, 1.6);
        // The smallest radius of curvature is at least 0.6 of the smaller radius.
        const REAL width = random.between(1, 0.5 * double{std::min(radiusX, radiusY)});
        return drawEllipse(picture, drawing, RectF(32 - radiusX, 31 - radiusY, 2 * radiusX, 2 * radiusY), width);
    });
}

TEST_F(SmoothedStroke, OfBeziersIsExact)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, Drawing& drawing) -> Outline {
        for (;;) { // a bow or a wave along x
            const PointF from(random.between(2, 10), random.between(20, 44));
            const PointF first(random.between(20, 28), random.between(10, 54));
            const PointF second(random.between(36, 44), random.between(10, 54));
            const PointF to(random.between(54, 62), random.between(20, 44));
            const REAL width = random.between(1, 6);
            const Contour stroke =
                strokeOfCurve(Bezier{vertexOf(from), vertexOf(first), vertexOf(second), vertexOf(to)}, double{width});
            if (!isSimple(stroke))
                continue; // bent more sharply than the width allows
            const Pen pen(Color(drawing.colour), width);
            EXPECT_EQ(picture.graphics.DrawBezier(&pen, from, first, second, to), Ok);
            // The ends stand square on the last chord, which is turned a little against the curve.
            drawing.tolerance = [=](Vertex place) {
                const double away = std::min(distance(place, vertexOf(from)), distance(place, vertexOf(to)));
                return long{away < double{width} / 2 + 1.5 ? 4 * kTolerance : kTolerance};
            };
            return {{stroke}, {}};
        }
    });
}

TEST_F(SmoothedStroke, OfDashesIsExact)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, const Drawing& drawing) -> Outline {
        const REAL width = random.between(1, 6);
        const PointF from = random.point(5, 25);
        const double angle = double{random.between(0, kPi / 2)};
        const PointF to = pointFrom(from, angle, double{random.between(20, 50)});
        const REAL dashes[] = {random.between(0.7, 4), random.between(0.7, 3)};
        Pen pen(Color(drawing.colour), width);
        pen.SetDashPattern(dashes, 2);
        picture.graphics.DrawLine(&pen, from, to);

        const Vertex start = vertexOf(from);
        const Vertex along = vertexOf(to) - start;
        const double length = std::hypot(along.x, along.y);
        const double on = double{dashes[0]} * double{width};
        const double period = on + double{dashes[1]} * double{width};
        Outline outline;
        for (double begin = 0; begin < length; begin += period) {
            const double end = std::min(begin + on, length);
            outline.areas.push_back(
                strokeOfLine(start + (begin / length) * along, start + (end / length) * along, double{width}));
        }
        return outline;
    });
}

TEST_F(SmoothedStroke, OfArrowsIsExactButWhereTheBodyEntersTheTriangle)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, Drawing& drawing) -> Outline {
        const REAL width = random.between(2, 8);
        const PointF from = random.point(5, 25);
        const PointF to = pointFrom(from, double{random.between(0, kPi / 2)}, double{random.between(25, 40)});
        Pen pen(Color(drawing.colour), width);
        pen.SetEndCap(LineCapArrowAnchor);
        picture.graphics.DrawLine(&pen, from, to);

        // The body ends inside the triangle, whose base is twice the width.
        const Vertex tip = vertexOf(to);
        const Vertex start = vertexOf(from);
        const Vertex along = (double{width} / distance(start, tip)) * (tip - start);
        const Vertex side{-along.y, along.x};
        const Vertex base = tip - std::sqrt(3.0) * along;
        // Pixels that both cover in part may add the two up: less than a half too much.
        drawing.tolerance = [=](Vertex place) {
            const Vertex beyondBase = place - base;
            const double reach = (beyondBase.x * along.x + beyondBase.y * along.y) / double{width};
            const bool areBothThere = reach > -1 && reach < (std::sqrt(3.0) - 1) * double{width} + 1;
            return long{areBothThere ? 127 : kTolerance};
        };
        return {{{start - 0.5 * side, base - 0.5 * side, base - side, tip, base + side, base + 0.5 * side,
                  start + 0.5 * side}},
                {}};
    });
}

TEST_F(SmoothedStroke, OfTranslucentPensIsTheirShareAlsoAtCorners)
{
    expectAllCovered(100, [](Random& random, SmoothedPicture& picture, Drawing& drawing) -> Outline {
        drawing.colour = 0x80FF8040;
        const REAL width = random.between(1, 12);
        for (;;) {
            const Points points = randomPolyline(random, double{width});
            const std::optional<Contour> stroke = strokeOfPolyline(contourOf(points), double{width});
            if (!stroke)
                continue;
            const Pen pen(Color(drawing.colour), width);
            picture.graphics.DrawLines(&pen, points.data(), countOf(points));
            return {{*stroke}, {}};
        }
    });
}

} // namespace
} // namespace vq::test::smoothedStrokesTests
