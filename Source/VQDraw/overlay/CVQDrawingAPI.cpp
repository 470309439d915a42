// SPDX-License-Identifier: MIT
#include "VQDraw/VQDrawingAPI.h"

#include "VQDraw/VQDrawProperty.h"
#include "VQDraw/draw/Ink.h"
#include "VQDraw/image/StartUpOrder.h"
#include "VQDraw/image/StartUpSteps.h"
#include "VQDraw/preferences/Channel.h"
#include "VQDraw/preferences/SelectionColour.h"
#include "vqGeometry/VQDiskMesh.h"
#include "vqGeometry/VQSphericalMesh.h"

#include <algorithm>
#include <initializer_list>
#include <new>
#include <utility>

namespace {

VQ_START_ORDER(vq::kDrawingFacade) CVQDrawingAPI facade;

enum SelectionMode : unsigned int {
    kBoxModes = 0x10080,
    kLineMode = 0x100,
    kCircleModes = 0x61200,
    kPolygonWithDotsMode = 0x400,
    kPolygonModes = 0xC00,
};

template <typename Object>
void renew(Object*& object)
{
    delete std::exchange(object, nullptr);
    object = new (std::nothrow) Object;
}

template <typename Object>
void release(Object*& object)
{
    delete std::exchange(object, nullptr);
}

void drawSphere(CVQSphericalMesh*& mesh, int divisions, float radius, CVQPoint* centre, bool flag)
{
    if (!mesh)
        mesh = new CVQSphericalMesh(divisions, divisions);
    mesh->Draw(radius, centre, flag);
}

} // namespace

CVQText* CVQDrawingAPI::m_pText = nullptr;
unsigned int CVQDrawingAPI::m_uiCurSelMode = 0;
CVQDragObject* CVQDrawingAPI::m_pDragObject = nullptr;
CVQDragBox* CVQDrawingAPI::m_pDragBox = nullptr;
CVQDragCircle* CVQDrawingAPI::m_pDragCircle = nullptr;
CVQDragLine* CVQDrawingAPI::m_pDragLine = nullptr;
CVQDragPolygon* CVQDrawingAPI::m_pDragPolygon = nullptr;
GLUquadric* CVQDrawingAPI::m_pQuad = nullptr;
CVQSphericalMesh* CVQDrawingAPI::m_pSphericalMeshLowRes = nullptr;
CVQSphericalMesh* CVQDrawingAPI::m_pSphericalMeshMidRes = nullptr;
CVQSphericalMesh* CVQDrawingAPI::m_pSphericalMeshHighRes = nullptr;
CVQDiskMesh* CVQDrawingAPI::m_pDiskMeshLowRes = nullptr;

void vq::startOverlay()
{
    CVQDrawingAPI::Initialize();
    whenSelectionColourIsRead(CVQDrawingAPI::UpdateSelectionColor);
}

void vq::stopOverlay()
{
    whenSelectionColourIsRead(nullptr);
    CVQDrawingAPI::Destroy();
}

CVQDrawingAPI::CVQDrawingAPI() = default;
CVQDrawingAPI::CVQDrawingAPI(const CVQDrawingAPI& other) = default;
CVQDrawingAPI& CVQDrawingAPI::operator=(const CVQDrawingAPI& other) = default;
CVQDrawingAPI::~CVQDrawingAPI() = default;

void CVQDrawingAPI::Initialize()
{
    renew(m_pText);
    renew(m_pDragBox);
    renew(m_pDragCircle);
    renew(m_pDragLine);
    renew(m_pDragPolygon);
}

void CVQDrawingAPI::Destroy()
{
    release(m_pText);
    release(m_pDragBox);
    release(m_pDragCircle);
    release(m_pDragLine);
    release(m_pDragPolygon);
    release(m_pSphericalMeshLowRes);
    release(m_pSphericalMeshMidRes);
    release(m_pSphericalMeshHighRes);
    release(m_pDiskMeshLowRes);
}

CVQDragObject* CVQDrawingAPI::SetDragObject(unsigned int mode, int viewId)
{
    m_uiCurSelMode = mode;
    CVQDragObject* const former = LiveDragObject();
    if (mode & kBoxModes)
        m_pDragObject = m_pDragBox;
    else if (mode & kLineMode)
        m_pDragObject = m_pDragLine;
    else if (mode & kCircleModes)
        m_pDragObject = m_pDragCircle;
    else if (mode & kPolygonModes)
        m_pDragObject = m_pDragPolygon;
    else
        m_pDragObject = nullptr;

    if (mode & kPolygonModes && m_pDragObject == m_pDragPolygon && m_pDragPolygon)
        m_pDragPolygon->SetDrawPoints((mode & kPolygonWithDotsMode) != 0);
    if (m_pDragObject)
        m_pDragObject->SetViewID(viewId);
    else if (former)
        former->SetViewID(0);
    return m_pDragObject;
}

/// Null when the current shape has been deleted.
CVQDragObject* CVQDrawingAPI::LiveDragObject()
{
    const std::initializer_list<CVQDragObject*> live{m_pDragBox, m_pDragCircle, m_pDragLine, m_pDragPolygon};
    return std::find(live.begin(), live.end(), m_pDragObject) == live.end() ? nullptr : m_pDragObject;
}

void CVQDrawingAPI::SetSelectionColor(LONG r, LONG g, LONG b)
{
    SetSelectionColor(vq::colorRefOf(r, g, b));
}

void CVQDrawingAPI::SetSelectionColor(COLORREF colour)
{
    const auto set = [colour](auto* shape) {
        if (shape)
            shape->SetColor(colour);
    };
    set(m_pDragBox);
    set(m_pDragCircle);
    set(m_pDragPolygon);
    set(m_pDragLine);
}

void CVQDrawingAPI::UpdateSelectionColor()
{
    const float* const rgb = CVQDrawProperty::GetColor(DPC_SELECTION_TOOL);
    SetSelectionColor(vq::in255ths(rgb[0]), vq::in255ths(rgb[1]), vq::in255ths(rgb[2]));
}

void CVQDrawingAPI::DrawDrag(SVQGLVariables& view)
{
    if (CVQDragObject* const shape = LiveDragObject())
        shape->Draw(view);
}

void CVQDrawingAPI::Draw(CVQDIB* image, int offsetX, int offsetY, double* model, double* projection, int* viewport)
{
    const auto draw = [&](auto* shape) {
        if (shape)
            shape->Draw(image, offsetX, offsetY);
    };
    draw(m_pDragBox);
    draw(m_pDragCircle);
    if (m_pText)
        m_pText->Draw(image, offsetX, offsetY, model, projection, viewport);
    draw(m_pDragLine);
    draw(m_pDragPolygon);
}

void CVQDrawingAPI::DrawQuadPre()
{
    if (m_pQuad)
        return;
    m_pQuad = gluNewQuadric();
    if (!m_pQuad)
        return;
    gluQuadricDrawStyle(m_pQuad, GLU_FILL);
    gluQuadricNormals(m_pQuad, GLU_SMOOTH);
}

void CVQDrawingAPI::DrawQuadPost()
{
    glDisable(GL_COLOR_MATERIAL);
    glDisable(GL_LIGHT0);
    glDisable(GL_LIGHTING);
}

void CVQDrawingAPI::DrawSphereLowRes(float radius, CVQPoint* centre, bool flag)
{
    drawSphere(m_pSphericalMeshLowRes, 8, radius, centre, flag);
}

void CVQDrawingAPI::DrawSphereMidRes(float radius, CVQPoint* centre, bool flag)
{
    drawSphere(m_pSphericalMeshMidRes, 18, radius, centre, flag);
}

void CVQDrawingAPI::DrawSphereHighRes(float radius, CVQPoint* centre, bool flag)
{
    drawSphere(m_pSphericalMeshHighRes, 36, radius, centre, flag);
}

void CVQDrawingAPI::DrawDiskLowRes(float radius, CVQPoint* centre, bool flag)
{
    if (!m_pDiskMeshLowRes)
        m_pDiskMeshLowRes = new CVQDiskMesh(8);
    m_pDiskMeshLowRes->Draw(radius, centre, flag);
}
