// SPDX-License-Identifier: MIT
// A view draws its selection with every frame: a shape that has not changed takes no memory for that.
#include "VQDraw/VQDrawingAPI.h"
#include "unit/Platform/gdiplus/frames/HeapUse.h"
#include "unit/VQDraw/draw/DrawnImage.h"
#include "unit/VQDraw/overlay/memory/SilentScene.h"

#include <type_traits>

namespace vq::test {
namespace {

/// A shape in the middle of a drag.
template <typename Shape>
class ShapesAtRest : public testing::Test
{
public:
    ShapesAtRest()
    {
        CPoint point(20, 30);
        made.Start(point);
        for (const CPoint& next : {CPoint(90, 35), CPoint(70, 80), CPoint(25, 60)}) {
            point = next;
            made.Drag(point);
        }
    }

    Shape made;
};

using Shapes = testing::Types<CVQDragBox, CVQDragCircle, CVQDragLine, CVQDragPolygon>;
TYPED_TEST_SUITE(ShapesAtRest, Shapes, );

TYPED_TEST(ShapesAtRest, TakeNoMemoryToBeDrawnOverAScene)
{
    SVQGLVariables view{};
    view.m_iViewport[3] = 100;
    CVQDragObject& shape = this->made;
    shape.Draw(view);
    ASSERT_GT(takeSceneVertices(), 0);
    const HeapUse use = heapUseOf([&] { shape.Draw(view); });
    EXPECT_EQ(use.taken, 0) << use;
    EXPECT_GT(takeSceneVertices(), 0);
}

TYPED_TEST(ShapesAtRest, KeepNoMemoryOfBeingDrawnIntoAnImage)
{
    constexpr long kPatterns = std::is_same_v<TypeParam, CVQDragCircle> ? 1 : 0; // a pen owns its dash pattern
    for (const bool smooth : {false, true}) {
        SmoothImage image(120, 90, 0xFF404040);
        image.EnableAntialias(smooth);
        this->made.Draw(&image, 3, 4);
        const HeapUse use = heapUseOf([&] { this->made.Draw(&image, 3, 4); });
        EXPECT_EQ(use.kept, 0) << "smooth: " << smooth << ", " << use;
        EXPECT_LE(use.taken, kPatterns) << "smooth: " << smooth << ", " << use;
    }
}

} // namespace
} // namespace vq::test
