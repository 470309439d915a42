// SPDX-License-Identifier: MIT
#pragma once

#include "VQDraw/VQDragObject.h"
#include "VQDraw/VQDrawingAPI.h"
#include "support/ImageAccess.h"

/// What shapes do not show. Every function gives the field of the same name.
template <typename Shape>
struct VQTestAccess::ShapeData
{
    static int viewId(const Shape& shape) { return shape.m_iViewID; }
    static COLORREF& textColour(Shape& shape) { return shape.m_dwTextColor; }
    static auto& points(Shape& shape) { return shape.m_aPoints; }
    static auto& corners(Shape& shape) { return shape.m_dRectPoints; }
    static bool& flag(Shape& shape) { return shape.m_bFlag; }
    static bool drawPoints(const Shape& shape) { return shape.m_bDrawPoints; }
    static double& radius(Shape& shape) { return shape.m_dRadius; }
};

/// What the facade does not show.
struct VQTestAccess::FacadeData
{
    using Facade = CVQDrawingAPI;

    static CVQDragObject*& dragObject() { return Facade::m_pDragObject; }
    static GLUquadric*& quadric() { return Facade::m_pQuad; }
    static CVQSphericalMesh*& lowSphere() { return Facade::m_pSphericalMeshLowRes; }
    static CVQSphericalMesh*& midSphere() { return Facade::m_pSphericalMeshMidRes; }
    static CVQSphericalMesh*& highSphere() { return Facade::m_pSphericalMeshHighRes; }
    static CVQDiskMesh*& disk() { return Facade::m_pDiskMeshLowRes; }
    static CVQDragBox*& box() { return Facade::m_pDragBox; }
    static CVQDragCircle*& circle() { return Facade::m_pDragCircle; }
    static CVQDragLine*& line() { return Facade::m_pDragLine; }
    static CVQDragPolygon*& polygon() { return Facade::m_pDragPolygon; }
    static CVQText*& text() { return Facade::m_pText; }
};
