// SPDX-License-Identifier: MIT
#include "SceneCalls.h"
#include "ShapeAccess.h"
#include "VQDraw/VQDrawProperty.h"
#include "unit/VQDraw/draw/DrawnImage.h"

#include <cmath>

namespace vq::test::cvqDrawingAPITests {
namespace {

using Facade = CVQDrawingAPI;
using Data = VQTestAccess::FacadeData;

int viewOf(CVQDragBox* shape)
{
    return VQTestAccess::ShapeData<CVQDragBox>::viewId(*shape);
}

bool hasDots()
{
    return VQTestAccess::ShapeData<CVQDragPolygon>::drawPoints(*Facade::DragPolygon());
}

/// Every test starts with new shapes, of which none is current.
class CVQDrawingAPITest : public testing::Test
{
public:
    CVQDrawingAPITest()
    {
        Facade::Destroy();
        Facade::Initialize();
        Facade::SetDragObject(0, 0);
        takeGLCalls();
    }
};

TEST(CVQDrawingAPILoading, HasMadeShapesAndLabels)
{
    EXPECT_NE(Facade::DragBox(), nullptr);
    EXPECT_NE(Facade::DragCircle(), nullptr);
    EXPECT_NE(Facade::DragLine(), nullptr);
    EXPECT_NE(Facade::DragPolygon(), nullptr);
    ASSERT_NE(Facade::Text(), nullptr);
    EXPECT_EQ(Facade::Text()->GetCount(), 0);
}

TEST_F(CVQDrawingAPITest, TellsItsObjects)
{
    EXPECT_EQ(Facade::DragBox(), Data::box());
    EXPECT_EQ(Facade::DragCircle(), Data::circle());
    EXPECT_EQ(Facade::DragLine(), Data::line());
    EXPECT_EQ(Facade::DragPolygon(), Data::polygon());
    EXPECT_EQ(Facade::Text(), Data::text());
    EXPECT_EQ(Facade::DragObject(), nullptr);
    EXPECT_EQ(Facade::GetCurrentSelMode(), 0u);
    const Facade instance;
    Facade other(instance);
    other = instance;
    EXPECT_EQ(Facade::DragBox(), Data::box()) << "instances carry nothing";
}

TEST_F(CVQDrawingAPITest, ChoosesAShapeByEveryBitOfTheMode)
{
    for (unsigned bit = 0; bit < 32; ++bit) {
        const unsigned mode = 1u << bit;
        CVQDragObject* expected = nullptr;
        if (mode == 0x80 || mode == 0x10000)
            expected = Facade::DragBox();
        if (mode == 0x100)
            expected = Facade::DragLine();
        if (mode == 0x200 || mode == 0x1000 || mode == 0x20000 || mode == 0x40000)
            expected = Facade::DragCircle();
        if (mode == 0x400 || mode == 0x800)
            expected = Facade::DragPolygon();
        EXPECT_EQ(Facade::SetDragObject(mode, 1), expected) << std::hex << mode;
        EXPECT_EQ(Facade::DragObject(), expected) << std::hex << mode;
        EXPECT_EQ(Facade::GetCurrentSelMode(), mode);
    }
}

TEST_F(CVQDrawingAPITest, ChoosesTheFirstShapeOfSeveralBits)
{
    EXPECT_EQ(Facade::SetDragObject(0x10000, 3), Facade::DragBox());
    EXPECT_EQ(viewOf(Facade::DragBox()), 3);
    EXPECT_EQ(Facade::GetCurrentSelMode(), 0x10000u);
    EXPECT_EQ(Facade::SetDragObject(0x180, 1), Facade::DragBox());
    EXPECT_EQ(Facade::SetDragObject(0x300, 1), Facade::DragLine());
    EXPECT_EQ(Facade::SetDragObject(0x600, 1), Facade::DragCircle());
    EXPECT_EQ(Facade::SetDragObject(0xFFFFFFFF, 1), Facade::DragBox());
}

TEST_F(CVQDrawingAPITest, ShowsDotsByOneBit)
{
    EXPECT_EQ(Facade::SetDragObject(0xC00, 2), Facade::DragPolygon());
    EXPECT_TRUE(hasDots());
    Facade::SetDragObject(0x800, 2);
    EXPECT_FALSE(hasDots());
    Facade::SetDragObject(0x480, 2);
    EXPECT_FALSE(hasDots()) << "the box was chosen";
    Facade::SetDragObject(0x400, 2);
    EXPECT_TRUE(hasDots());
}

TEST_F(CVQDrawingAPITest, TakesTheShapeFromItsViewWhenNoneIsChosen)
{
    Facade::SetDragObject(0x80, 5);
    EXPECT_EQ(Facade::SetDragObject(0x1, 6), nullptr);
    EXPECT_EQ(viewOf(Facade::DragBox()), 0);
    EXPECT_EQ(Facade::DragObject(), nullptr);
    EXPECT_EQ(Facade::GetCurrentSelMode(), 1u);

    Facade::SetDragObject(0x80, 5);
    Facade::SetDragObject(0x100, 6);
    EXPECT_EQ(viewOf(Facade::DragBox()), 5) << "another shape leaves it alone";
}

TEST_F(CVQDrawingAPITest, LeavesStateAndGeometryOfAChosenShape)
{
    CPoint point(3, 4);
    Facade::DragBox()->Start(point);
    Facade::SetDragObject(0x80, 5);
    EXPECT_TRUE(Facade::DragBox()->CheckSelection());
    EXPECT_EQ(Facade::DragBox()->GetStart(), point);
}

TEST_F(CVQDrawingAPITest, ChoosesNoShapeThatDoesNotExist)
{
    Facade::SetDragObject(0x80, 5);
    Facade::Destroy();
    for (const unsigned mode : {0x80u, 0x100u, 0x200u, 0x400u, 0x800u, 0x1u})
        EXPECT_EQ(Facade::SetDragObject(mode, 1), nullptr) << mode;
}

TEST_F(CVQDrawingAPITest, ForgetsAllButTheCurrentShapeAndTheQuadric)
{
    CVQDragObject* const current = Facade::SetDragObject(0x80, 5);
    Facade::DrawQuadPre();
    GLUquadric* const quadric = Data::quadric();
    Facade::DrawSphereLowRes(1, nullptr, false);
    Facade::DrawDiskLowRes(1, nullptr, false);
    takeGLCalls();

    Facade::Destroy();

    EXPECT_EQ(takeGLCalls(), GLCalls()) << "no context is needed";
    EXPECT_EQ(Facade::DragBox(), nullptr);
    EXPECT_EQ(Facade::DragCircle(), nullptr);
    EXPECT_EQ(Facade::DragLine(), nullptr);
    EXPECT_EQ(Facade::DragPolygon(), nullptr);
    EXPECT_EQ(Facade::Text(), nullptr);
    EXPECT_EQ(Data::lowSphere(), nullptr);
    EXPECT_EQ(Data::disk(), nullptr);
    EXPECT_EQ(Facade::DragObject(), current);
    EXPECT_EQ(Facade::GetCurrentSelMode(), 0x80u);
    EXPECT_EQ(Data::quadric(), quadric);

    SVQGLVariables view{};
    Facade::DrawDrag(view); // does not follow the pointer
    EXPECT_EQ(takeGLCalls(), GLCalls());
    Facade::SetDragObject(0x1, 5);
    Facade::SetSelectionColor(1, 2, 3);
    Facade::UpdateSelectionColor();
    HardImage image(10, 10);
    double matrix[16]{};
    int viewport[4]{};
    Facade::Draw(&image, 0, 0, matrix, matrix, viewport);
    EXPECT_EQ(findDrawn(image).count, 0);
    Facade::Destroy();
}

TEST_F(CVQDrawingAPITest, ReplacesItsShapesAndKeepsItsMeshes)
{
    Facade::DragBox()->SetColor(5);
    Facade::DrawSphereLowRes(1, nullptr, false);
    CVQSphericalMesh* const mesh = Data::lowSphere();
    Facade::SetDragObject(0x800, 5);
    Facade::Initialize();
    EXPECT_EQ(Facade::DragBox()->GetColor(), 0xFFFFFFu);
    EXPECT_TRUE(hasDots());
    EXPECT_EQ(Data::lowSphere(), mesh);
    EXPECT_EQ(Facade::GetCurrentSelMode(), 0x800u);
}

COLORREF colourOfAll()
{
    const COLORREF colour = Facade::DragBox()->GetColor();
    EXPECT_EQ(Facade::DragCircle()->GetColor(), colour);
    EXPECT_EQ(Facade::DragLine()->GetColor(), colour);
    EXPECT_EQ(Facade::DragPolygon()->GetColor(), colour);
    return colour;
}

TEST_F(CVQDrawingAPITest, ColoursAllShapes)
{
    Facade::DragLine()->SetAlpha(7);
    Facade::SetSelectionColor(0x1FF, 0, 0);
    EXPECT_EQ(colourOfAll(), 0x0000FFu);
    Facade::SetSelectionColor(1, 2, -1);
    EXPECT_EQ(colourOfAll(), 0xFF0201u);
    Facade::SetSelectionColor(0xAB123456);
    EXPECT_EQ(colourOfAll(), 0xAB123456u);
    EXPECT_EQ(Facade::DragLine()->GetAlpha(), 7);
    EXPECT_EQ(VQTestAccess::ShapeData<CVQDragBox>::textColour(*Facade::DragBox()), 0xFFFFFFu);
}

/// The preference has this colour as long as it lives.
class SelectionTool
{
public:
    SelectionTool(float r, float g, float b)
    {
        std::copy_n(row(), 3, m_former);
        const float colour[]{r, g, b};
        std::copy_n(colour, 3, row());
    }
    ~SelectionTool() { std::copy_n(m_former, 3, row()); }
    SelectionTool(const SelectionTool&) = delete;
    SelectionTool& operator=(const SelectionTool&) = delete;

private:
    static float* row() { return CVQDrawProperty::GetColor(DPC_SELECTION_TOOL); }
    float m_former[3];
};

COLORREF coloursFrom(float r, float g, float b)
{
    const SelectionTool tool(r, g, b);
    Facade::UpdateSelectionColor();
    return colourOfAll();
}

TEST_F(CVQDrawingAPITest, ColoursAllShapesFromThePreferences)
{
    EXPECT_EQ(coloursFrom(238.0F / 255, 36.0F / 255, 56.0F / 255), 238u | 36u << 8 | 56u << 16);
    EXPECT_EQ(coloursFrom(0.5F, 0.999F, 1), 127u | 254u << 8 | 255u << 16);
    EXPECT_EQ(coloursFrom(257.0F / 255, -1.0F / 255, 0), 1u | 255u << 8) << "the low bits";
    EXPECT_EQ(coloursFrom(1e30F, -1e30F, std::nanf("")), 255u) << "as near as an integer comes; 0 for no number";
    EXPECT_EQ(coloursFrom(HUGE_VALF, -HUGE_VALF, 0), 255u);
}

TEST_F(CVQDrawingAPITest, DrawsTheCurrentShapeOverTheScene)
{
    SVQGLVariables view{};
    view.m_iViewport[3] = 100;
    CPoint point(3, 4);
    Facade::DragBox()->Start(point);
    Facade::DragLine()->Start(point);
    Facade::DrawDrag(view);
    EXPECT_EQ(takeGLCalls(), GLCalls()) << "none is current";
    Facade::SetDragObject(0x100, 1);
    const GLCalls line = drawnOver(*Facade::DragLine());
    Facade::DrawDrag(view);
    EXPECT_EQ(takeGLCalls(), line);
}

/// A view in which model coordinates are pixels of an image of 120 x 90.
struct PixelView
{
    double model[16] = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    double projection[16] = {2.0 / 120, 0, 0, 0, 0, 2.0 / 90, 0, 0, 0, 0, -1, 0, -1, -1, 0, 1};
    int viewport[4] = {0, 0, 120, 90};
};

void startAll()
{
    CPoint from(20, 20);
    CPoint to(60, 50);
    const auto drag = [&](auto* shape) {
        shape->Start(from);
        shape->Drag(to);
        from.Offset(9, 5);
        to.Offset(9, 5);
    };
    drag(Facade::DragBox());
    drag(Facade::DragCircle());
    drag(Facade::DragLine());
    drag(Facade::DragPolygon());
    Facade::SetSelectionColor(kBlue);
}

TEST_F(CVQDrawingAPITest, DrawsEverythingIntoAnImageInOrder)
{
    startAll();
    Facade::Text()->Add(VQ_TEXT_FREE, 40, 45, 0, L"label");
    PixelView view;
    SmoothImage image(120, 90, 0xFF404040);
    Facade::Draw(&image, 3, 4, view.model, view.projection, view.viewport);

    SmoothImage expected(120, 90, 0xFF404040);
    Facade::DragBox()->Draw(&expected, 3, 4);
    Facade::DragCircle()->Draw(&expected, 3, 4);
    Facade::Text()->Draw(&expected, 3, 4, view.model, view.projection, view.viewport);
    Facade::DragLine()->Draw(&expected, 3, 4);
    Facade::DragPolygon()->Draw(&expected, 3, 4);
    EXPECT_TRUE(showsTheSame(image, expected));
}

TEST_F(CVQDrawingAPITest, DrawsSelectingShapesOnly)
{
    startAll();
    Facade::DragBox()->End();
    Facade::DragCircle()->End();
    Facade::DragPolygon()->End();
    PixelView view;
    SmoothImage image(120, 90);
    Facade::Draw(&image, 0, 0, view.model, view.projection, view.viewport);
    SmoothImage expected(120, 90);
    Facade::DragLine()->Draw(&expected, 0, 0);
    EXPECT_TRUE(showsTheSame(image, expected));
    EXPECT_GT(findDrawn(image).count, 0);
}

TEST_F(CVQDrawingAPITest, DrawsIntoNoImage)
{
    startAll();
    Facade::Text()->Add(VQ_TEXT_FREE, 40, 45, 0, L"label");
    PixelView view;
    Facade::Draw(nullptr, 0, 0, view.model, view.projection, view.viewport);
    CVQDIB empty(static_cast<CVQDIB*>(nullptr));
    Facade::Draw(&empty, 0, 0, view.model, view.projection, view.viewport);
    EXPECT_EQ(empty.GetImageBuffer(), nullptr);
}

TEST_F(CVQDrawingAPITest, MakesTheQuadricOnce)
{
    Data::quadric() = nullptr; // of an earlier test; it is not a real one
    Facade::DrawQuadPre();
    EXPECT_EQ(takeGLCalls(), (GLCalls{call("gluNewQuadric"), call("gluQuadricDrawStyle", GLU_FILL),
                                      call("gluQuadricNormals", GLU_SMOOTH)}));
    GLUquadric* const quadric = Data::quadric();
    EXPECT_NE(quadric, nullptr);
    Facade::DrawQuadPre();
    EXPECT_EQ(takeGLCalls(), GLCalls());
    EXPECT_EQ(Data::quadric(), quadric);
}

TEST_F(CVQDrawingAPITest, SwitchesLightingOffAfterQuadrics)
{
    Facade::DrawQuadPost();
    EXPECT_EQ(takeGLCalls(), (GLCalls{call("glDisable", GL_COLOR_MATERIAL), call("glDisable", GL_LIGHT0),
                                      call("glDisable", GL_LIGHTING)}));
}

/// How many corners of triangles were drawn, one number a call.
std::vector<double> cornersDrawn()
{
    std::vector<double> corners;
    for (const GLCall& made : takeGLCalls())
        if (made.name == "glDrawElements")
            corners.push_back(made.arguments[1]);
    return corners;
}

/// Of a sphere of that many parts each way: a fan at either pole, two triangles a face between.
double cornersOfSphere(int parts)
{
    return 3.0 * 2 * parts * (parts - 1);
}

TEST_F(CVQDrawingAPITest, DrawsSpheresOfThreeFinenesses)
{
    CVQPoint centre(1, 2, 3);
    Facade::DrawSphereLowRes(1, &centre, false);
    EXPECT_EQ(cornersDrawn(), std::vector{cornersOfSphere(8)});
    Facade::DrawSphereMidRes(1, &centre, false);
    EXPECT_EQ(cornersDrawn(), std::vector{cornersOfSphere(18)});
    Facade::DrawSphereHighRes(1, &centre, false);
    EXPECT_EQ(cornersDrawn(), std::vector{cornersOfSphere(36)});
    Facade::DrawDiskLowRes(1, &centre, false);
    EXPECT_EQ(cornersDrawn(), std::vector{3.0 * 8});
}

TEST_F(CVQDrawingAPITest, HandsRadiusCentreAndFlagToTheMesh)
{
    CVQPoint centre(1, 2, 3);
    const auto expectHandedOn = [&](auto draw) {
        draw(4.0F, &centre, false);
        const GLCalls calls = takeGLCalls();
        EXPECT_NE(std::find(calls.begin(), calls.end(), call("glTranslated", 1, 2, 3)), calls.end());
        EXPECT_NE(std::find(calls.begin(), calls.end(), call("glScalef", 4, 4, 4)), calls.end());
        draw(4.0F, nullptr, true);
        EXPECT_EQ(cornersDrawn().size(), 2u) << "far and near side";
    };
    expectHandedOn(Facade::DrawSphereLowRes);
    expectHandedOn(Facade::DrawSphereMidRes);
    expectHandedOn(Facade::DrawSphereHighRes);
    expectHandedOn(Facade::DrawDiskLowRes);
}

TEST_F(CVQDrawingAPITest, MakesEveryMeshOnce)
{
    EXPECT_EQ(Data::midSphere(), nullptr);
    Facade::DrawSphereMidRes(1, nullptr, false);
    CVQSphericalMesh* const mesh = Data::midSphere();
    EXPECT_NE(mesh, nullptr);
    EXPECT_EQ(Data::lowSphere(), nullptr);
    EXPECT_EQ(Data::highSphere(), nullptr);
    EXPECT_EQ(Data::disk(), nullptr);
    Facade::DrawSphereMidRes(2, nullptr, true);
    EXPECT_EQ(Data::midSphere(), mesh);

    Facade::DrawDiskLowRes(1, nullptr, false);
    CVQDiskMesh* const disk = Data::disk();
    EXPECT_NE(disk, nullptr);
    Facade::DrawDiskLowRes(1, nullptr, false);
    EXPECT_EQ(Data::disk(), disk);
}

} // namespace
} // namespace vq::test::cvqDrawingAPITests
