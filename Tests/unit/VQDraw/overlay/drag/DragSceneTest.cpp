// SPDX-License-Identifier: MIT
// Shapes over a scene, call by call.
#include "SceneCalls.h"
#include "ShapeAccess.h"
#include "vqCommonBase/VQDisplayAPI.h"
#include "vqCommonBase/VQMath.h"

#include <cmath>
#include <limits>

namespace vq::test::dragSceneTests {
namespace {

/// The display has this scale as long as it lives.
class DisplayScale
{
public:
    explicit DisplayScale(float factor) : m_former(CVQDisplayAPI::GetScaleFactor())
    {
        CVQDisplayAPI::SetScaleFactor(factor);
    }
    ~DisplayScale() { CVQDisplayAPI::SetScaleFactor(m_former); }
    DisplayScale(const DisplayScale&) = delete;
    DisplayScale& operator=(const DisplayScale&) = delete;

private:
    float m_former;
};

class DragScene : public testing::Test
{
private:
    DisplayScale m_scale{1};
};

template <typename Shape>
void drag(Shape& shape, CPoint from, CPoint to)
{
    shape.Start(from);
    shape.Drag(to);
}

const GLCalls kUnlit{call("glDisable", GL_LIGHTING), call("glDisable", GL_DEPTH_TEST), call("glEnable", GL_BLEND)};
const GLCalls kFilledBothSides{call("glDisable", GL_CULL_FACE), call("glPolygonMode", GL_FRONT_AND_BACK, GL_FILL)};
const GLCalls kSmooth{call("glEnable", GL_LINE_SMOOTH)};
const GLCalls kStippled{call("glEnable", GL_LINE_STIPPLE), call("glLineStipple", 1, 0x0F0F)};

GLCalls colour(int r, int g, int b, int alpha)
{
    return {call("glColor4ub", r, g, b, alpha)};
}

GLCalls width(double pixels)
{
    return {call("glLineWidth", pixels)};
}

GLCalls boxCalls(int x0, int y0, int x1, int y1, const GLCalls& fill, const GLCalls& outline, double lineWidth = 2)
{
    return kept(
        kUnlit, kFilledBothSides, fill, GLCalls{call("glRecti", x0, y0, x1, y1)}, width(lineWidth), kStippled, outline,
        GLCalls{call("glBegin", GL_LINES), call("glVertex2i", x0, y0), call("glVertex2i", x1, y0),
                call("glVertex2i", x0, y0), call("glVertex2i", x0, y1), call("glVertex2i", x1, y0),
                call("glVertex2i", x1, y1), call("glVertex2i", x1, y1), call("glVertex2i", x0, y1), call("glEnd")});
}

TEST_F(DragScene, ShowsNothingOfAnIdleShape)
{
    CVQDragBox box;
    CVQDragCircle circle;
    CVQDragLine line;
    CVQDragPolygon polygon;
    for (CVQDragObject* shape : std::initializer_list<CVQDragObject*>{&box, &circle, &line, &polygon}) {
        EXPECT_EQ(drawnOver(*shape), GLCalls());
        CPoint point(3, 4);
        shape->Start(point);
        EXPECT_NE(drawnOver(*shape), GLCalls());
        shape->End();
        EXPECT_EQ(drawnOver(*shape), GLCalls());
        shape->Start(point);
        shape->Reset();
        EXPECT_EQ(drawnOver(*shape), GLCalls());
    }
}

TEST_F(DragScene, HasABoxWithItsEdges)
{
    CVQDragBox box;
    drag(box, {10, 10}, {20, 30});
    EXPECT_EQ(drawnOver(box), boxCalls(10, 90, 20, 70, colour(255, 255, 255, 50), colour(255, 255, 255, 200)));
}

TEST_F(DragScene, HasABoxInAnyDirection)
{
    CVQDragBox box;
    box.SetColor(0xAB302010);
    drag(box, {20, 130}, {-10, 10});
    EXPECT_EQ(drawnOver(box), boxCalls(20, -30, -10, 90, colour(0x10, 0x20, 0x30, 50), colour(0x10, 0x20, 0x30, 200)));
}

TEST_F(DragScene, FillsAtAQuarterOfTheAlphaCutTowardsZero)
{
    constexpr int kCases[][3]{{3, 0, 3},     {4, 1, 4},      {255, 63, 255}, {0, 0, 0},
                              {-3, 0, 0xFD}, {-4, 255, 252}, {1030, 1, 6}}; // 1030 / 4 = 257
    CVQDragBox box;
    drag(box, {10, 10}, {20, 30});
    for (const auto& [alpha, fill, outline] : kCases) {
        box.SetAlpha(alpha);
        EXPECT_EQ(drawnOver(box), boxCalls(10, 90, 20, 70, colour(255, 255, 255, fill), colour(255, 255, 255, outline)))
            << alpha;
    }
}

TEST_F(DragScene, HasLinesAndDotsOfTheDisplaysScale)
{
    const DisplayScale scale(1.5F);
    CVQDragBox box;
    drag(box, {10, 10}, {20, 30});
    EXPECT_EQ(drawnOver(box), boxCalls(10, 90, 20, 70, colour(255, 255, 255, 50), colour(255, 255, 255, 200), 3));

    CVQDragPolygon polygon;
    drag(polygon, {1, 2}, {3, 4});
    const GLCalls calls = drawnOver(polygon);
    EXPECT_NE(std::find(calls.begin(), calls.end(), call("glPointSize", 7.5)), calls.end());
    EXPECT_NE(std::find(calls.begin(), calls.end(), call("glLineWidth", 3)), calls.end());
}

TEST_F(DragScene, CountsFromTheTopRoundTheEndOfTheCoordinates)
{
    using Limits = std::numeric_limits<int>;
    CVQDragBox box;
    drag(box, {Limits::min(), Limits::min()}, {Limits::max(), Limits::max()});
    EXPECT_EQ(drawnOver(box, 0), boxCalls(Limits::min(), Limits::min(), Limits::max(), -Limits::max(),
                                          colour(255, 255, 255, 50), colour(255, 255, 255, 200)));
}

/// 73 points in steps of 5 degrees from the top, and the first one again.
GLCalls rim(double centreX, double centreY, double radius)
{
    const auto point = [&](double angle) {
        const auto a = static_cast<float>(angle);
        return call("glVertex2f", static_cast<float>(CVQMath::FastSin(a) * radius + centreX),
                    static_cast<float>(CVQMath::FastCos(a) * radius + centreY));
    };
    GLCalls calls;
    double angle = 0;
    for (int i = 0; i < 73; ++i, angle += 0.0872664600610733)
        calls.push_back(point(angle));
    calls.push_back(point(0));
    return calls;
}

GLCalls circleCalls(double centreX, double centreY, double radius, const GLCalls& fill, const GLCalls& outline)
{
    return kept(kUnlit, kFilledBothSides, fill,
                GLCalls{call("glBegin", GL_TRIANGLE_FAN), call("glVertex2f", centreX, centreY)},
                rim(centreX, centreY, radius), GLCalls{call("glEnd")}, kStippled, width(2), outline,
                GLCalls{call("glBegin", GL_LINE_STRIP)}, rim(centreX, centreY, radius), GLCalls{call("glEnd")});
}

TEST_F(DragScene, HasACircleWithItsRim)
{
    CVQDragCircle circle;
    circle.SetColor(1, 2, 3, 100);
    drag(circle, {50, 30}, {53, 34});
    EXPECT_EQ(drawnOver(circle), circleCalls(50, 70, 5, colour(1, 2, 3, 25), colour(1, 2, 3, 100)));
}

TEST_F(DragScene, HasACircleFromTheTopClockwise)
{
    CVQDragCircle circle;
    drag(circle, {50, 30}, {50, 40});
    GLCalls points = drawnOver(circle);
    std::erase_if(points, [](const GLCall& made) { return made.name != "glVertex2f"; });
    ASSERT_EQ(points.size(), 1u + 2 * 74);
    const std::pair<std::size_t, std::array<double, 2>> expected[]{
        {0, {50, 70}},      {1, {50, 80}},      {1 + 18, {60, 70}}, {1 + 36, {50, 60}},
        {1 + 54, {40, 70}}, {1 + 72, {50, 80}}, {1 + 73, {50, 80}}};
    for (const auto& [index, place] : expected) {
        EXPECT_NEAR(points[index].arguments[0], place[0], 1e-4) << index;
        EXPECT_NEAR(points[index].arguments[1], place[1], 1e-4) << index;
    }
}

TEST_F(DragScene, HasACircleWithoutRadiusAtItsCentre)
{
    CVQDragCircle circle;
    CPoint centre(50, 30);
    circle.Start(centre);
    const GLCalls calls = drawnOver(circle);
    EXPECT_EQ(calls, circleCalls(50, 70, 0, colour(255, 255, 255, 50), colour(255, 255, 255, 200)));
    for (const GLCall& made : calls)
        if (made.name == "glVertex2f") {
            EXPECT_EQ(made, call("glVertex2f", 50, 70));
        }
}

TEST_F(DragScene, HasNoCircleOfARadiusThatIsNoNumber)
{
    CVQDragCircle circle;
    drag(circle, {0, 0}, {46341, 0});
    ASSERT_TRUE(std::isnan(circle.GetRadius()));
    EXPECT_EQ(drawnOver(circle), GLCalls());
}

const GLCalls kLineState = inOrder(kUnlit, kSmooth, GLCalls{call("glDisable", GL_CULL_FACE)});

TEST_F(DragScene, HasAPlainLineWithASquareAtItsStart)
{
    CVQDragLine line;
    line.SetColor(1, 2, 3);
    drag(line, {10, 20}, {50, 70});
    const GLCalls expected =
        kept(kLineState, width(2), GLCalls{call("glPolygonMode", GL_FRONT_AND_BACK, GL_LINE)}, colour(1, 2, 3, 200),
             GLCalls{call("glRecti", 8, 82, 12, 78), call("glBegin", GL_LINES), call("glVertex2i", 10, 80),
                     call("glVertex2i", 50, 30), call("glEnd")});
    EXPECT_EQ(drawnOver(line), expected);
    line.SetWidth(-3);
    EXPECT_EQ(drawnOver(line), expected);
}

TEST_F(DragScene, HasABandWithItsOutline)
{
    CVQDragLine line;
    line.SetColor(1, 2, 3, 80);
    drag(line, {10, 20}, {40, 60}); // 50 long: its normal of 5 is (-4, 3)
    line.SetWidth(5);
    const GLCalls corners{call("glVertex2f", 6, 77), call("glVertex2f", 36, 37), call("glVertex2f", 44, 43),
                          call("glVertex2f", 14, 83)};
    EXPECT_EQ(drawnOver(line),
              kept(kLineState, GLCalls{call("glPolygonMode", GL_FRONT_AND_BACK, GL_FILL)}, colour(1, 2, 3, 20),
                   GLCalls{call("glBegin", GL_QUADS)}, corners, GLCalls{call("glEnd")}, colour(1, 2, 3, 80), width(2),
                   kStippled, GLCalls{call("glBegin", GL_LINE_LOOP)}, corners, GLCalls{call("glEnd")}));
}

TEST_F(DragScene, HasABandOfNoLengthWhoseCornersAreNoNumbers)
{
    CVQDragLine line;
    CPoint point(10, 20);
    line.Start(point);
    line.SetWidth(5);
    GLCalls calls = drawnOver(line);
    std::erase_if(calls, [](const GLCall& made) { return made.name != "glVertex2f"; });
    EXPECT_EQ(calls.size(), 8u);
    for (const GLCall& made : calls)
        EXPECT_FALSE(std::isfinite(made.arguments[0]) || std::isfinite(made.arguments[1]));
}

const GLCalls kPolygonState = inOrder(kUnlit, kSmooth);

GLCalls primitive(GLenum kind, const GLCalls& vertices)
{
    return inOrder(GLCalls{call("glBegin", kind)}, vertices, GLCalls{call("glEnd")});
}

GLCalls dots(const GLCalls& colour, const GLCalls& vertices)
{
    return inOrder(GLCalls{call("glPointSize", 5)}, colour, primitive(GL_POINTS, vertices));
}

GLCalls polygonOutline(GLenum kind, const GLCalls& colour, const GLCalls& vertices)
{
    return inOrder(width(2), kStippled, colour, primitive(kind, vertices));
}

TEST_F(DragScene, HasAPolygonThatOpensAndCloses)
{
    const GLCalls ink = colour(1, 2, 3, 90);
    CVQDragPolygon polygon;
    polygon.SetColor(1, 2, 3, 90);
    CPoint point(10, 20);
    polygon.AddPoint(point);
    CPoint end(70, 80);
    polygon.SetEnd(end);
    const GLCall last = call("glVertex2f", 70, 20);
    GLCalls vertices{call("glVertex2f", 10, 80), last};
    EXPECT_EQ(drawnOver(polygon), kept(kPolygonState, dots(ink, vertices))) << "one vertex has no outline";

    point = {30, -5};
    polygon.AddPoint(point);
    polygon.SetEnd(end);
    vertices = {call("glVertex2f", 10, 80), call("glVertex2f", 30, 105), last};
    EXPECT_EQ(drawnOver(polygon),
              kept(kPolygonState, dots(ink, vertices), polygonOutline(GL_LINE_STRIP, ink, vertices)));

    point = {40, 50};
    polygon.AddPoint(point);
    polygon.SetEnd(end);
    vertices.insert(vertices.end() - 1, call("glVertex2f", 40, 50));
    EXPECT_EQ(drawnOver(polygon),
              kept(kPolygonState, dots(ink, vertices), polygonOutline(GL_LINE_LOOP, ink, vertices)));

    polygon.SetDrawPoints(false);
    EXPECT_EQ(drawnOver(polygon), kept(kPolygonState, polygonOutline(GL_LINE_LOOP, ink, vertices)));
}

TEST_F(DragScene, HasAPolygonWithoutVerticesAsADot)
{
    CVQDragPolygon polygon;
    CPoint point(10, 20);
    polygon.Start(point);
    polygon.GetPoints()->RemoveAll();
    EXPECT_EQ(drawnOver(polygon), kept(kPolygonState, dots(colour(255, 255, 255, 200), {call("glVertex2f", 10, 80)})));
    polygon.SetDrawPoints(false);
    EXPECT_EQ(drawnOver(polygon), kept(kPolygonState));
}

} // namespace
} // namespace vq::test::dragSceneTests
