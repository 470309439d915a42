// SPDX-License-Identifier: MIT
// How shapes begin, change, end and are dropped.
#include "Geometry.h"
#include "Stage.h"
#include "parity/KnownDifferences.h"

namespace vqview::test {
namespace {

class Shapes : public SessionTest
{
public:
    Shapes()
    {
        session.show(bunny());
        session.setSelectsThrough(true);
    }
    std::vector<std::uint32_t> inside(const Area& area)
    {
        Found found = pointsIn(area, session.variables(), bunny()->positions);
        EXPECT_EQ(found.atBorder, 0u);
        return found.points;
    }
    void clickCorners(const std::vector<CPoint>& corners)
    {
        session.setTool(Tool::Polygon);
        for (const CPoint& corner : corners)
            click(corner);
    }
    bool isDrawing() const
    {
        return CVQDrawingAPI::DragBox()->CheckSelection() || CVQDrawingAPI::DragCircle()->CheckSelection() ||
               CVQDrawingAPI::DragLine()->CheckSelection() || CVQDrawingAPI::DragPolygon()->CheckSelection();
    }
    std::vector<LONG> texels()
    {
        CVQTexture& texture = session.texture();
        return {texture.GetTexelBuffer(), texture.GetTexelBuffer() + texture.GetSize()};
    }

    const std::vector<CPoint> m_corners{{223, 131}, {451, 173}, {389, 383}};
};

TEST_F(Shapes, BackspaceTakesBackThePolygonsLastCorner)
{
    clickCorners({{223, 131}, {451, 173}, {10, 470}});
    EXPECT_TRUE(session.key(Key::Backspace, {}));
    click({389, 383});
    session.key(Key::Enter, {});
    EXPECT_EQ(session.selected(), inside(polygonArea(m_corners)));
}

TEST_F(Shapes, BackspaceAtTheFirstCornerDropsThePolygon)
{
    clickCorners({{223, 131}});
    EXPECT_TRUE(isDrawing());
    session.key(Key::Backspace, {});
    EXPECT_FALSE(isDrawing());
}

TEST_F(Shapes, ARightClickClosesThePolygon)
{
    clickCorners(m_corners);
    drag(Button::Right, {{500, 400}});
    EXPECT_FALSE(isDrawing());
    EXPECT_EQ(session.selected(), inside(polygonArea(m_corners)));
}

TEST_F(Shapes, AClickAtTheFirstCornerClosesThePolygon)
{
    clickCorners(m_corners);
    click({226, 127}); // 5 pixels away
    EXPECT_FALSE(isDrawing());
    EXPECT_EQ(session.selected(), inside(polygonArea(m_corners)));
}

TEST_F(Shapes, AClickBesideTheFirstCornerIsAnotherCorner)
{
    clickCorners(m_corners);
    click({223, 142}); // 11 pixels away
    EXPECT_TRUE(isDrawing());
    session.key(Key::Enter, {});
    EXPECT_EQ(session.selected(), inside(areaOf({{223, 131}, {451, 173}, {389, 383}, {223, 142}})));
}

TEST_F(Shapes, APolygonOfTwoCornersIsDroppedAndTheSelectionStays)
{
    selectByBox({237, 151}, {403, 307});
    const std::vector<std::uint32_t> before = session.selected();
    clickCorners({{223, 131}, {451, 173}});
    session.key(Key::Enter, {});
    EXPECT_FALSE(isDrawing());
    EXPECT_EQ(session.selected(), before);
}

TEST_F(Shapes, TheMouseBetweenClicksMakesNoCorner)
{
    session.setTool(Tool::Polygon);
    for (const CPoint& corner : m_corners) {
        session.move({corner.x - 30, corner.y + 20}, {});
        click(corner);
    }
    session.move({600, 20}, {});
    session.key(Key::Enter, {});
    EXPECT_EQ(session.selected(), inside(polygonArea(m_corners)));
}

class EveryTool : public Shapes, public testing::WithParamInterface<Tool>
{
};
INSTANTIATE_TEST_SUITE_P(Tools, EveryTool,
                         testing::Values(Tool::Box, Tool::Circle, Tool::Band, Tool::Lasso, Tool::Polygon));

TEST_P(EveryTool, EscapeDropsTheShapeAndKeepsTheSelection)
{
    selectByBox({237, 151}, {403, 307});
    const std::vector<std::uint32_t> before = session.selected();
    const std::vector<LONG> painted = texels();
    CVQDrawProperty::m_fColor[DPC_SELECTEDENTITY][1] = 0.125F; // what would be painted now were seen
    session.setTool(GetParam());
    session.press(Button::Left, {200, 200}, {});
    session.move({260, 300}, {});
    session.move({330, 280}, {});
    ASSERT_TRUE(isDrawing());
    EXPECT_TRUE(session.key(Key::Escape, {}));
    EXPECT_FALSE(isDrawing());
    session.release(Button::Left, {340, 280}, {});
    EXPECT_FALSE(isDrawing());
    EXPECT_EQ(session.selected(), before);
    EXPECT_EQ(texels(), painted) << "nothing was selected that could leave an outline";
    EXPECT_EQ(session.tool(), GetParam());
}

TEST_P(EveryTool, AnotherToolDropsTheShape)
{
    session.setTool(GetParam());
    session.press(Button::Left, {200, 200}, {});
    session.move({260, 300}, {});
    session.setTool(Tool::Measure);
    EXPECT_FALSE(isDrawing());
    session.setTool(GetParam());
    EXPECT_FALSE(isDrawing());
    EXPECT_EQ(session.selectedCount(), 0u);
}

TEST_P(EveryTool, AnotherScanDropsShapeSelectionAndHistory)
{
    selectByBox({237, 151}, {403, 307});
    session.setTool(GetParam());
    session.press(Button::Left, {200, 200}, {});
    session.move({260, 300}, {});
    session.show(bunny());
    EXPECT_FALSE(isDrawing());
    EXPECT_EQ(session.selectedCount(), 0u);
    EXPECT_FALSE(session.canUndo());
}

TEST_P(EveryTool, TheRightButtonTurnsAndTheMiddleOneMovesTheView)
{
    session.setTool(GetParam());
    const SVQGLVariables before = session.variables();
    drag(Button::Right, {{300, 200}, {340, 200}});
    const SVQGLVariables turned = session.variables();
    EXPECT_NE(before.m_dModelView[0], turned.m_dModelView[0]);
    drag(Button::Middle, {{300, 200}, {340, 200}});
    EXPECT_EQ(session.variables().m_dModelView[0], turned.m_dModelView[0]);
    EXPECT_GT(session.variables().m_dModelView[12], turned.m_dModelView[12]);
    EXPECT_EQ(session.selectedCount(), 0u);
}

TEST_P(EveryTool, ThereIsNoShapeWithoutAScan)
{
    session.show(nullptr);
    session.setTool(GetParam());
    drag(Button::Left, {{200, 200}, {300, 300}, {200, 300}});
    EXPECT_EQ(session.selectedCount(), 0u);
    session.draw();
}

TEST_P(EveryTool, AShapeWithoutAreaSelectsNothing)
{
    session.setTool(GetParam());
    click({320, 240});
    session.key(Key::Enter, {});
    EXPECT_EQ(session.selectedCount(), 0u);
    EXPECT_FALSE(session.canUndo());
}

TEST_F(Shapes, TheWheelWidensABandByTwoPixelsAStep)
{
    const SVQGLVariables before = session.variables();
    session.setTool(Tool::Band);
    session.press(Button::Left, {203, 317}, {});
    session.move({300, 300}, {});
    session.wheel(3, {300, 300});
    session.release(Button::Left, {419, 187}, {});
    EXPECT_EQ(session.variables().m_dModelView[14], before.m_dModelView[14]) << "the view stays";
    EXPECT_EQ(session.selected(), inside(bandArea({203, 317}, {419, 187}, 12 + 3 * 2)));
}

TEST_F(Shapes, TheWheelNarrowsABandDownToOnePixel)
{
    session.setTool(Tool::Band);
    session.press(Button::Left, {203, 317}, {});
    session.move({300, 300}, {});
    session.wheel(-100, {300, 300});
    session.release(Button::Left, {419, 187}, {});
    EXPECT_EQ(session.selected(), inside(bandArea({203, 317}, {419, 187}, 1)));
}

TEST_F(Shapes, ABandIsAsWideAsTheScaleSays)
{
    session.setSize(kWidth, kHeight, 1.5F);
    session.setTool(Tool::Band);
    drag(Button::Left, {{203, 317}, {419, 187}});
    EXPECT_EQ(session.selected(), inside(bandArea({203, 317}, {419, 187}, 18)));
}

TEST_F(Shapes, ANewBandHasTheFirstWidthAgain)
{
    session.setTool(Tool::Band);
    session.press(Button::Left, {100, 100}, {});
    session.wheel(5, {100, 100});
    session.release(Button::Left, {150, 150}, {});
    drag(Button::Left, {{203, 317}, {419, 187}});
    EXPECT_EQ(session.selected(), inside(bandArea({203, 317}, {419, 187}, 12)));
}

TEST_F(Shapes, ASelectionPaintsItsOutlineIntoTheTexture)
{
    ASSERT_THAT(texels(), testing::Each(0));
    float red[4]{1, 0, 0, 1};
    CVQDrawProperty::SetColorARGB(DPC_SELECTEDENTITY, red);
    selectByBox({160, 120}, {480, 360});
    CVQTexture& texture = session.texture(); // the frame as a whole: the middle half in both directions
    const LONG middle = texture(texture.GetWidth() / 2, texture.GetHeight() / 2);
    if (!vq::test::differsHere("outlines under SourceCopy")) {
        EXPECT_EQ(middle & 0xFFFFFF, 0xFF0000);
    }
    EXPECT_EQ(texture(texture.GetWidth() / 8, texture.GetHeight() / 2), 0);
    EXPECT_EQ(texture(texture.GetWidth() / 2, texture.GetHeight() * 7 / 8), 0);
    EXPECT_NE(texture(texture.GetWidth() / 4, texture.GetHeight() / 2), middle) << "the outline has its own mask";
}

TEST_F(Shapes, AllNoneAndTurnedOverAreStepsThatCanBeUndone)
{
    const std::size_t all = bunny()->positions.size();
    session.selectAll();
    EXPECT_EQ(session.selectedCount(), all);
    session.selectNone();
    EXPECT_EQ(session.selectedCount(), 0u);
    selectByBox({237, 151}, {403, 307});
    const std::size_t some = session.selectedCount();
    session.invertSelection();
    EXPECT_EQ(session.selectedCount(), all - some);
    for (const std::size_t expected : {some, std::size_t{0}, all, std::size_t{0}}) {
        session.undo();
        EXPECT_EQ(session.selectedCount(), expected);
    }
    EXPECT_FALSE(session.canUndo());
}

} // namespace
} // namespace vqview::test
