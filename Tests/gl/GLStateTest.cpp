// SPDX-License-Identifier: MIT
// OpenGL is after each drawing as it was before, whatever it was.
#include "gl/GLState.h"
#include "gl/Scene.h"

#include "VQDraw/VQDrawingAPI.h"
#include "unit/VQDraw/overlay/drag/ShapeAccess.h"

#include <gmock/gmock.h>

#include <functional>
#include <utility>

namespace vq::test {
namespace {

struct Drawing
{
    const char* name;
    std::function<void(SVQGLVariables&)> draw;
};

template <typename Shape>
void drawDragged(SVQGLVariables& view, Shape& shape)
{
    drag(shape, {30, 20}, {110, 90});
    static_cast<CVQDragObject&>(shape).Draw(view);
}

void drawPolygon(SVQGLVariables& view, int vertices, bool dots)
{
    CVQDragPolygon polygon;
    for (int i = 0; i < vertices; ++i) {
        CPoint point(20 + 30 * i, 20 + 50 * (i % 2));
        polygon.AddPoint(point);
    }
    polygon.SetDrawPoints(dots);
    polygon.Draw(view);
}

void drawBand(SVQGLVariables& view, CPoint to)
{
    CVQDragLine line;
    drag(line, {30, 20}, to);
    line.SetWidth(7);
    static_cast<CVQDragObject&>(line).Draw(view);
}

std::vector<Drawing> drawings()
{
    std::vector<Drawing> all{
        {"box",
         [](SVQGLVariables& view) {
             CVQDragBox box;
             drawDragged(view, box);
         }},
        {"circle",
         [](SVQGLVariables& view) {
             CVQDragCircle circle;
             drawDragged(view, circle);
         }},
        {"line",
         [](SVQGLVariables& view) {
             CVQDragLine line;
             drawDragged(view, line);
         }},
        {"band",
         [](SVQGLVariables& view) {
             drawBand(view, {110, 90});
         }},
        {"band of no length",
         [](SVQGLVariables& view) {
             drawBand(view, {30, 20});
         }},
        {"idle box", [](SVQGLVariables& view) { CVQDragBox().Draw(view); }},
        {"current shape", [](SVQGLVariables& view) { CVQDrawingAPI::DrawDrag(view); }},
        {"quadric", [](SVQGLVariables&) { CVQDrawingAPI::DrawQuadPre(); }},
        {"projected labels",
         [](SVQGLVariables& view) {
             CVQDIB image(40, 30);
             CVQText labels;
             labels.Add(VQ_TEXT_FREE, 1, 2, 3, L"label");
             labels.Draw(&image, 0, 0, view.m_dModelView, view.m_dProjection, view.m_iViewport);
         }},
    };
    for (int vertices = 1; vertices <= 3; ++vertices)
        for (const bool dots : {false, true})
            all.push_back({"polygon", [=](SVQGLVariables& view) { drawPolygon(view, vertices, dots); }});
    for (const bool flag : {false, true})
        for (const auto draw : {CVQDrawingAPI::DrawSphereLowRes, CVQDrawingAPI::DrawSphereMidRes,
                                CVQDrawingAPI::DrawSphereHighRes, CVQDrawingAPI::DrawDiskLowRes})
            all.push_back({"mesh", [=](SVQGLVariables&) {
                               CVQPoint centre(80, 60, 0);
                               draw(30, &centre, flag);
                               draw(-1, nullptr, flag);
                           }});
    return all;
}

class StateAfterDrawing : public Scene
{
public:
    StateAfterDrawing()
    {
        drag(*CVQDrawingAPI::DragBox(), {30, 20}, {110, 90});
        CVQDrawingAPI::SetDragObject(0x80, 1);
    }
    ~StateAfterDrawing() override
    {
        CVQDrawingAPI::DragBox()->Reset();
        CVQDrawingAPI::SetDragObject(0, 0);
        using Data = VQTestAccess::FacadeData; // the facade keeps its quadric to the end, deliberately
        if (Data::quadric())
            gluDeleteQuadric(std::exchange(Data::quadric(), nullptr));
    }

    void expectUnchanged()
    {
        for (const Drawing& drawing : drawings()) {
            const GLState before = currentState();
            drawing.draw(view);
            EXPECT_EQ(changes(before, currentState()), "") << drawing.name;
        }
    }
};

TEST_F(StateAfterDrawing, IsAsBeforeWhereAllIsAsOpenGLBegins)
{
    expectUnchanged();
}

TEST_F(StateAfterDrawing, IsAsBeforeWhereAllIsUnusual)
{
    const GLState begin = currentState();
    makeStateUnusual();
    const std::string made = changes(begin, currentState());
    EXPECT_GT(std::count(made.begin(), made.end(), '\n'), 90);
    expectUnchanged();
}

/// Without this, an attribute that is not read back could change unseen.
TEST_F(StateAfterDrawing, WouldShowEveryChangeThatDrawingMakes)
{
    const std::pair<const char*, void (*)()> changesMade[]{
        {"GL_LIGHTING", [] { glEnable(GL_LIGHTING); }},
        {"GL_DEPTH_TEST", [] { glEnable(GL_DEPTH_TEST); }},
        {"GL_BLEND", [] { glEnable(GL_BLEND); }},
        {"GL_CULL_FACE", [] { glEnable(GL_CULL_FACE); }},
        {"GL_CULL_FACE_MODE", [] { glCullFace(GL_FRONT); }},
        {"GL_LINE_SMOOTH", [] { glEnable(GL_LINE_SMOOTH); }},
        {"GL_LINE_STIPPLE", [] { glEnable(GL_LINE_STIPPLE); }},
        {"GL_LINE_STIPPLE_PATTERN", [] { glLineStipple(1, 0x0F0F); }},
        {"GL_LINE_WIDTH", [] { glLineWidth(2); }},
        {"GL_POINT_SIZE", [] { glPointSize(5); }},
        {"GL_POLYGON_MODE", [] { glPolygonMode(GL_FRONT_AND_BACK, GL_LINE); }},
        {"GL_CURRENT_COLOR", [] { glColor4ub(1, 2, 3, 4); }},
        {"GL_CURRENT_NORMAL", [] { glNormal3f(1, 0, 0); }},
        {"GL_NORMALIZE", [] { glEnable(GL_NORMALIZE); }},
        {"GL_MATRIX_MODE", [] { glMatrixMode(GL_PROJECTION); }},
        {"GL_PROJECTION_MATRIX", [] { glTranslated(1, 0, 0); }},
        {"GL_PROJECTION_STACK_DEPTH", [] { glPushMatrix(); }},
        {"GL_ATTRIB_STACK_DEPTH", [] { glPushAttrib(GL_LINE_BIT); }},
        {"GL_CLIENT_ATTRIB_STACK_DEPTH", [] { glPushClientAttrib(GL_CLIENT_VERTEX_ARRAY_BIT); }},
        {"GL_VERTEX_ARRAY", [] { glEnableClientState(GL_VERTEX_ARRAY); }},
        {"GL_NORMAL_ARRAY", [] { glEnableClientState(GL_NORMAL_ARRAY); }},
        {"GL_VERTEX_ARRAY_POINTER",
         [] {
             static const float kVertices[3]{};
             glVertexPointer(3, GL_FLOAT, 0, kVertices);
         }},
        {"glGetError", [] { glEnable(0xFFFF); }},
    };
    for (const auto& [name, make] : changesMade) {
        const GLState before = currentState();
        make();
        EXPECT_THAT(changes(before, currentState()), testing::HasSubstr(std::string(name) + ":"));
    }
}

TEST_F(StateAfterDrawing, IsUnlitAfterQuadrics)
{
    glEnable(GL_LIGHTING);
    glEnable(GL_LIGHT0);
    glEnable(GL_COLOR_MATERIAL);
    CVQDrawingAPI::DrawQuadPost();
    EXPECT_FALSE(glIsEnabled(GL_LIGHTING));
    EXPECT_FALSE(glIsEnabled(GL_LIGHT0));
    EXPECT_FALSE(glIsEnabled(GL_COLOR_MATERIAL));
}

} // namespace
} // namespace vq::test
