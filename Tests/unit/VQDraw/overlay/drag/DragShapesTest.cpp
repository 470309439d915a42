// SPDX-License-Identifier: MIT
// What all shapes have in common.
#include "ShapeAccess.h"

#include <gtest/gtest.h>

#include <type_traits>

namespace vq::test {
namespace {

template <typename Shape>
class DragShapes : public testing::Test
{
public:
    using Access = VQTestAccess::ShapeData<Shape>;

    /// As a mouse does it.
    static void drag(Shape& shape, CPoint from, CPoint to)
    {
        shape.Start(from);
        shape.Drag(to);
    }

    Shape made;
};

using Shapes = testing::Types<CVQDragBox, CVQDragCircle, CVQDragLine, CVQDragPolygon>;
TYPED_TEST_SUITE(DragShapes, Shapes, );

TYPED_TEST(DragShapes, StartOutWhiteAndIdle)
{
    using Data = typename TestFixture::Access;
    TypeParam& shape = this->made;
    EXPECT_FALSE(shape.CheckSelection());
    EXPECT_EQ(shape.GetColor(), 0xFFFFFFu);
    EXPECT_EQ(shape.GetAlpha(), 200);
    EXPECT_EQ(Data::textColour(shape), 0xFFFFFFu);
    EXPECT_EQ(Data::viewId(shape), 0);
    EXPECT_EQ(shape.GetEnd(), CPoint(0, 0));
}

TYPED_TEST(DragShapes, AreSelectingFromStartToEnd)
{
    TypeParam& shape = this->made;
    CPoint point(3, 4);
    shape.Start(point);
    EXPECT_TRUE(shape.CheckSelection());
    CPoint next(5, 6);
    shape.Drag(next);
    EXPECT_TRUE(shape.CheckSelection());
    shape.End();
    EXPECT_FALSE(shape.CheckSelection());
    EXPECT_EQ(shape.GetEnd(), next) << "the geometry stays";
    shape.Reset();
    EXPECT_FALSE(shape.CheckSelection());
    EXPECT_EQ(shape.GetEnd(), CPoint(0, 0));
}

TYPED_TEST(DragShapes, AreSelectingAfterADragWithoutAStart)
{
    CPoint point(7, 8);
    this->made.Drag(point);
    EXPECT_TRUE(this->made.CheckSelection());
    EXPECT_EQ(this->made.GetEnd(), point);
    this->made.Reset();
    EXPECT_FALSE(this->made.CheckSelection());
}

TYPED_TEST(DragShapes, TellTheirEndInEveryForm)
{
    TypeParam& shape = this->made;
    this->drag(shape, {1, 2}, {30, -40});
    CPoint end;
    shape.GetEnd(&end);
    EXPECT_EQ(end, CPoint(30, -40));
    EXPECT_EQ(shape.GetEndX(), 30);
    EXPECT_EQ(shape.GetEndY(), -40);
    shape.GetEnd(nullptr);
    shape.GetRect(nullptr);
    CRect rect;
    shape.GetRect(&rect);
    EXPECT_EQ(rect, shape.GetRect());
}

TYPED_TEST(DragShapes, TakeTheLowBitsOfChannelsAndAlphaAsItIs)
{
    TypeParam& shape = this->made;
    shape.SetColor(0x1FF, 0x202, -1);
    EXPECT_EQ(shape.GetColor(), 0xFF02FFu);
    EXPECT_EQ(shape.GetAlpha(), 200);
    shape.SetColor(1, 2, 3, 1000);
    EXPECT_EQ(shape.GetColor(), 0x030201u);
    EXPECT_EQ(shape.GetAlpha(), 1000);
    shape.SetColor(0xAB123456);
    EXPECT_EQ(shape.GetColor(), 0xAB123456u);
    shape.SetAlpha(-5);
    EXPECT_EQ(shape.GetAlpha(), -5);
}

TYPED_TEST(DragShapes, KeepLookAndViewWhenReset)
{
    using Data = typename TestFixture::Access;
    TypeParam& shape = this->made;
    shape.SetColor(1, 2, 3, 4);
    shape.SetViewID(9);
    Data::textColour(shape) = 5;
    shape.Reset();
    EXPECT_EQ(shape.GetColor(), 0x030201u);
    EXPECT_EQ(shape.GetAlpha(), 4);
    EXPECT_EQ(Data::textColour(shape), 5u);
    EXPECT_EQ(Data::viewId(shape), 9);
}

TYPED_TEST(DragShapes, AreCopiedWhole)
{
    using Data = typename TestFixture::Access;
    TypeParam& shape = this->made;
    this->drag(shape, {10, 20}, {40, 60});
    shape.SetColor(1, 2, 3, 4);
    shape.SetViewID(9);
    Data::textColour(shape) = 5;

    TypeParam copy(shape);
    TypeParam assigned;
    assigned = shape;
    shape.Reset();
    for (TypeParam* other : {&copy, &assigned}) {
        EXPECT_TRUE(other->CheckSelection());
        EXPECT_EQ(other->GetEnd(), CPoint(40, 60));
        EXPECT_FALSE(other->GetRect() == CRect(0, 0, 0, 0));
        EXPECT_EQ(other->GetColor(), 0x030201u);
        EXPECT_EQ(other->GetAlpha(), 4);
        EXPECT_EQ(Data::textColour(*other), 5u);
        EXPECT_EQ(Data::viewId(*other), 9);
    }
}

TYPED_TEST(DragShapes, MoveRoundTheEndOfTheCoordinates)
{
    TypeParam& shape = this->made;
    constexpr int kMost = std::numeric_limits<int>::max();
    this->drag(shape, {kMost, 0}, {kMost - 1, kMost});
    shape.Offset(2, 3);
    EXPECT_EQ(shape.GetEnd(), CPoint(std::numeric_limits<int>::min(), std::numeric_limits<int>::min() + 2));
    CPoint back(-2, -3);
    shape.Offset(back);
    EXPECT_EQ(shape.GetEnd(), CPoint(kMost - 1, kMost));
}

template <typename Shape>
class StartedShapes : public DragShapes<Shape>
{
};
using ShapesWithAStart = testing::Types<CVQDragBox, CVQDragLine, CVQDragPolygon>;
TYPED_TEST_SUITE(StartedShapes, ShapesWithAStart, );

TYPED_TEST(StartedShapes, TellTheirStartInEveryForm)
{
    TypeParam& shape = this->made;
    EXPECT_EQ(shape.GetStart(), CPoint(0, 0));
    EXPECT_EQ(shape.GetStartX(), 0);
    EXPECT_EQ(shape.GetStartY(), 0);
    this->drag(shape, {1, -2}, {30, 40});
    EXPECT_EQ(shape.GetStart(), CPoint(1, -2));
    CPoint start;
    shape.GetStart(&start);
    EXPECT_EQ(start, CPoint(1, -2));
    shape.GetStart(nullptr);
    EXPECT_EQ(shape.GetStartX(), 1);
    EXPECT_EQ(shape.GetStartY(), -2);
    shape.Offset(10, 20);
    EXPECT_EQ(shape.GetStart(), CPoint(11, 18));
    EXPECT_EQ(shape.GetEnd(), CPoint(40, 60));
}

TYPED_TEST(StartedShapes, TakeAReferenceToTheirOwnStart)
{
    TypeParam& shape = this->made;
    CPoint point(5, 6);
    shape.Start(point);
    point = {50, 60};
    EXPECT_EQ(shape.GetStart(), CPoint(5, 6));
    EXPECT_EQ(shape.GetEnd(), CPoint(5, 6));
}

TEST(CVQDragObject, IsAbstractAndDeletedThroughItsBase)
{
    EXPECT_TRUE(std::is_abstract_v<CVQDragObject>);
    EXPECT_TRUE(std::has_virtual_destructor_v<CVQDragObject>);
}

} // namespace
} // namespace vq::test
