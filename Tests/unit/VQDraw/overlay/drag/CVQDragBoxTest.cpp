// SPDX-License-Identifier: MIT
#include "ShapeAccess.h"

#include <gtest/gtest.h>

namespace vq::test {
namespace {

TEST(CVQDragBox, IsEmptyAtFirst)
{
    const CVQDragBox box;
    EXPECT_EQ(box.GetRect(), CRect(0, 0, 0, 0));
    EXPECT_FALSE(box.CheckSelection());
}

TEST(CVQDragBox, HasANormalisedRectangle)
{
    CVQDragBox box;
    CPoint point(10, 20);
    box.Start(point);
    point = {5, 40};
    box.Drag(point);
    EXPECT_EQ(box.GetRect(), CRect(5, 20, 10, 40));
    EXPECT_EQ(box.GetStart(), CPoint(10, 20));
    EXPECT_EQ(box.GetEnd(), CPoint(5, 40));
    box.End();
    EXPECT_EQ(box.GetRect(), CRect(5, 20, 10, 40));
}

TEST(CVQDragBox, KeepsItsStartWhenDraggedWithoutOne)
{
    CVQDragBox box;
    CPoint point(10, 20);
    box.Start(point);
    box.End();
    point = {30, 5};
    box.Drag(point);
    EXPECT_EQ(box.GetRect(), CRect(10, 5, 30, 20));
}

TEST(CVQDragBox, MovesAsAWhole)
{
    CVQDragBox box;
    CPoint point(10, 20);
    box.Start(point);
    point = {5, 40};
    box.Drag(point);
    box.Offset(100, -100);
    EXPECT_EQ(box.GetStart(), CPoint(110, -80));
    EXPECT_EQ(box.GetEnd(), CPoint(105, -60));
    EXPECT_TRUE(box.CheckSelection());
}

} // namespace
} // namespace vq::test
