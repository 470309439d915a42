// SPDX-License-Identifier: MIT
// Shapes in images, beside the image's own drawing.
#include "ShapeAccess.h"
#include "unit/VQDraw/draw/DrawnImage.h"

#include <functional>
#include <limits>

namespace vq::test::dragImageTests {
namespace {

using Access = VQTestAccess;

template <typename Shape>
void drag(Shape& shape, CPoint from, CPoint to)
{
    shape.Start(from);
    shape.Drag(to);
}

void add(CVQDragPolygon& polygon, std::initializer_list<CPoint> points)
{
    for (CPoint point : points)
        polygon.AddPoint(point);
}

/// Two pictures, smooth ones, are the same: a shape's, and one drawn by other means.
void expectSame(const std::function<void(CVQDIB&)>& draw, const std::function<void(CVQDIB&)>& drawExpected)
{
    SmoothImage image(120, 90, 0xFF404040);
    draw(image);
    SmoothImage expected(120, 90, 0xFF404040);
    drawExpected(expected);
    EXPECT_TRUE(showsTheSame(image, expected));
    SmoothImage blank(120, 90, 0xFF404040);
    EXPECT_FALSE(showsTheSame(expected, blank)) << "the comparison says something";
}

TEST(DragImage, ShowsNothingOfAnIdleShape)
{
    const auto expectIdle = [](auto& shape) {
        HardImage image(60, 60);
        drag(shape, {10, 10}, {40, 40});
        shape.End();
        image.SetTextColor(0x123456, 77);
        shape.Draw(&image, 0, 0);
        EXPECT_EQ(findDrawn(image).count, 0);
        Gdiplus::Color text;
        Access::textBrush(image)->GetColor(&text);
        EXPECT_EQ(text.GetAlpha(), 77) << "the text colour is not touched";
    };
    CVQDragBox box;
    CVQDragCircle circle;
    CVQDragLine line;
    CVQDragPolygon polygon;
    expectIdle(box);
    expectIdle(circle);
    expectIdle(line);
    expectIdle(polygon);
}

TEST(DragImage, ShowsABoxAsASelectionWithGuides)
{
    CVQDragBox box;
    box.SetColor(kBlue);
    box.SetAlpha(64);
    Access::ShapeData<CVQDragBox>::textColour(box) = kRed;
    drag(box, {90, 20}, {25, 70});
    expectSame([&](CVQDIB& image) { box.Draw(&image, 7, -5); },
               [&](CVQDIB& image) {
                   CPoint start(97, 15);
                   CPoint end(32, 65);
                   image.SetTextColor(kRed, 255);
                   image.DrawSelection(start, end, kBlue, 64, true);
               });
}

TEST(DragImage, ShowsACircleAsASelection)
{
    CVQDragCircle circle;
    circle.SetColor(kBlue);
    circle.SetAlpha(64);
    drag(circle, {50, 40}, {70, 50});
    expectSame([&](CVQDIB& image) { circle.Draw(&image, 7, -5); },
               [&](CVQDIB& image) { CVQDIB::DrawCircleSelection(&image, 57, 35, 77, 45, kBlue, 64); });
}

/// With GDI+ itself.
void drawLine(CVQDIB& image, CPoint from, CPoint to, Gdiplus::Color colour)
{
    const Gdiplus::Pen pen(colour, 1);
    image.GetGraphics()->DrawLine(&pen, static_cast<INT>(from.x), static_cast<INT>(from.y), static_cast<INT>(to.x),
                                  static_cast<INT>(to.y));
}

void drawSquare(CVQDIB& image, CPoint centre, Gdiplus::Color colour)
{
    Gdiplus::Pen pen(colour, 1);
    pen.SetAlignment(Gdiplus::PenAlignmentInset);
    image.GetGraphics()->DrawRectangle(&pen, static_cast<INT>(centre.x - 2), static_cast<INT>(centre.y - 2), 4, 4);
}

TEST(DragImage, ShowsAPlainLineWithSquaresAtBothEnds)
{
    CVQDragLine line;
    line.SetColor(kInk);
    line.SetAlpha(100);
    drag(line, {20, 30}, {80, 60});
    line.SetWidth(10); // does not count here
    expectSame([&](CVQDIB& image) { line.Draw(&image, 7, -5); },
               [&](CVQDIB& image) {
                   const Gdiplus::Color ink(100, 0x10, 0x20, 0x30);
                   drawLine(image, {27, 25}, {87, 55}, ink);
                   drawSquare(image, {27, 25}, ink);
                   drawSquare(image, {87, 55}, ink);
               });
}

TEST(DragImage, ShowsASingleVertexAsAFilledSquare)
{
    CVQDragPolygon polygon;
    polygon.SetColor(kInk);
    polygon.SetAlpha(255);
    CPoint point(10, 12);
    polygon.Start(point);
    HardImage image(30, 30);
    polygon.Draw(&image, 3, 4);
    EXPECT_EQ(find(image, kInkPixel), (Found{11, 14, 14, 17, 16}));
    EXPECT_EQ(findDrawn(image).count, 16);
}

TEST(DragImage, ShowsTheOnlySegmentOfAPolygonTwice)
{
    CVQDragPolygon polygon;
    polygon.SetColor(kBlue);
    polygon.SetAlpha(128);
    add(polygon, {{10, 15}, {40, 15}});
    HardImage image(60, 30, 0xFF000000);
    polygon.Draw(&image, 0, 0);
    EXPECT_TRUE(isNear(at(image, 25, 15), 0xFF000080 + 0x40, 1)) << "half of the ink, and half of what was left";
    EXPECT_TRUE(isNear(at(image, 9, 13), 0xFF000080, 1)) << "a square, once";
}

TEST(DragImage, ShowsInnerVerticesOfAPolygonTwice)
{
    CVQDragPolygon polygon;
    polygon.SetColor(kBlue);
    polygon.SetAlpha(128);
    add(polygon, {{10, 10}, {40, 10}, {40, 40}});
    HardImage image(60, 60, 0xFF000000);
    polygon.Draw(&image, 0, 0);
    EXPECT_TRUE(isNear(at(image, 8, 8), 0xFF000080, 1)) << "the first vertex";
    EXPECT_TRUE(isNear(at(image, 42, 8), 0xFF0000C0, 1)) << "the inner one";
    EXPECT_TRUE(isNear(at(image, 42, 42), 0xFF000080, 1)) << "the last one";
    EXPECT_TRUE(isNear(at(image, 25, 10), 0xFF000080, 1)) << "a side";
    EXPECT_TRUE(isNear(at(image, 25, 25), 0xFF000080, 1)) << "the closing side";
}

TEST(DragImage, ShowsSidesAndSquaresOfAPolygon)
{
    CVQDragPolygon polygon;
    polygon.SetColor(kInk);
    polygon.SetAlpha(100);
    add(polygon, {{20, 30}, {80, 60}, {50, 15}, {95, 20}});
    CPoint end(5, 85); // does not count here
    polygon.SetEnd(end);
    expectSame([&](CVQDIB& image) { polygon.Draw(&image, 7, -5); },
               [&](CVQDIB& image) {
                   const Gdiplus::Color ink(100, 0x10, 0x20, 0x30);
                   const CPoint points[]{{27, 25}, {87, 55}, {57, 10}, {102, 15}};
                   for (int i = 0; i < 3; ++i) {
                       drawLine(image, points[i], points[i + 1], ink);
                       drawSquare(image, points[i], ink);
                       drawSquare(image, points[i + 1], ink);
                   }
                   drawLine(image, points[0], points[3], ink);
               });
}

TEST(DragImage, CountsTheLowBitsOfAlpha)
{
    CVQDragLine line;
    drag(line, {5, 5}, {15, 5});
    for (const LONG alpha : {LONG{0x180}, LONG{-128}}) {
        line.SetAlpha(alpha);
        HardImage image(20, 10);
        line.Draw(&image, 0, 0);
        EXPECT_EQ(at(image, 10, 5), 0x80FFFFFFu) << alpha;
    }
}

TEST(DragImage, GivesTheTextColourBackOpaque)
{
    const auto expectColour = [](auto& shape) {
        HardImage image(60, 60);
        drag(shape, {10, 10}, {40, 40});
        image.SetTextColor(0x123456, 77);
        shape.Draw(&image, 0, 0);
        EXPECT_EQ(image.GetTextColor(), 0x123456u);
        Gdiplus::Color text;
        Access::textBrush(image)->GetColor(&text);
        EXPECT_EQ(text.GetAlpha(), 254) << "the highest alpha that texts have";
    };
    CVQDragBox box;
    CVQDragCircle circle;
    CVQDragLine line;
    CVQDragPolygon polygon;
    expectColour(box);
    expectColour(circle);
    expectColour(line);
    expectColour(polygon);
}

TEST(DragImage, TakesBlackForATextColourThatIsMissing)
{
    HardImage image(60, 60);
    delete std::exchange(Access::textBrush(image), nullptr);
    CVQDragPolygon polygon;
    drag(polygon, {10, 10}, {40, 40});
    polygon.Draw(&image, 0, 0);
    EXPECT_EQ(image.GetTextColor(), 0u);
    EXPECT_NE(Access::textBrush(image), nullptr);
}

template <typename Shape>
class DragImageHarmless : public testing::Test
{
};
using Shapes = testing::Types<CVQDragBox, CVQDragCircle, CVQDragLine, CVQDragPolygon>;
TYPED_TEST_SUITE(DragImageHarmless, Shapes, );

TYPED_TEST(DragImageHarmless, WithoutAnImage)
{
    TypeParam shape;
    shape.Draw(nullptr, 1, 2);
    drag(shape, {10, 10}, {40, 40});
    shape.Draw(nullptr, 1, 2);
    EXPECT_TRUE(shape.CheckSelection());
}

TYPED_TEST(DragImageHarmless, WithAnImageWithoutGraphics)
{
    CVQDIB image(static_cast<CVQDIB*>(nullptr));
    ASSERT_EQ(image.GetGraphics(), nullptr);
    TypeParam shape;
    drag(shape, {10, 10}, {40, 40});
    shape.Draw(&image, 1, 2);
    EXPECT_EQ(image.GetImageBuffer(), nullptr);
}

TYPED_TEST(DragImageHarmless, FarOutsideTheImage)
{
    using Limits = std::numeric_limits<int>;
    TypeParam shape;
    drag(shape, {Limits::max(), Limits::max()}, {Limits::max() - 1, Limits::max() - 20});
    HardImage image(30, 30);
    shape.Draw(&image, Limits::max(), Limits::max());
    EXPECT_EQ(findDrawn(image).count, 0) << "an offset does not wrap round";
    drag(shape, {Limits::min(), Limits::min()}, {Limits::min() + 1, Limits::min() + 20});
    shape.Draw(&image, Limits::min(), Limits::min());
    EXPECT_EQ(findDrawn(image).count, 0);
}

TEST(DragImage, ShowsNoCircleOfARadiusThatIsNoNumber)
{
    HardImage image(30, 30);
    CVQDragCircle circle;
    drag(circle, {0, 0}, {46341, 0});
    circle.Draw(&image, 0, 0);
    EXPECT_EQ(findDrawn(image).count, 0);
}

TEST(DragImage, ShowsNothingOfAPolygonWithoutVertices)
{
    HardImage image(30, 30);
    CVQDragPolygon polygon;
    CPoint point(10, 10);
    polygon.Start(point);
    polygon.GetPoints()->RemoveAll();
    polygon.Draw(&image, 0, 0);
    EXPECT_EQ(findDrawn(image).count, 0);
    EXPECT_EQ(polygon.GetCount(), 0u);
}

} // namespace
} // namespace vq::test::dragImageTests
