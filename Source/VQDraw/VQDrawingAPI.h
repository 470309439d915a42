// SPDX-License-Identifier: MIT
#pragma once

#include "VQDraw/VQDragObject.h"
#include "VQDraw/VQText.h"

class CVQDiskMesh;
class CVQSphericalMesh;

/// Owns what is drawn over the application's views: one selection shape of each kind, the list of labels, and the
/// meshes for spheres and disks. Loading the library makes shapes and list, unloading it deletes all.
///
/// For the thread of the user interface only. What draws over a scene does so with the OpenGL context that is current.
class VQDRAW_API CVQDrawingAPI
{
public:
    /// Instances carry nothing.
    CVQDrawingAPI();
    CVQDrawingAPI(const CVQDrawingAPI& other);
    CVQDrawingAPI& operator=(const CVQDrawingAPI& other);
    ~CVQDrawingAPI();

    /// Makes an empty list of labels and new shapes, which replace those that there are. What memory is missing for
    /// stays null. Current shape and mode stay.
    static void Initialize();
    /// Deletes labels, shapes and meshes. The pointer to the current shape stays, deliberately, but nothing follows it
    /// any more. The quadric is never deleted, deliberately: its context may be gone.
    static void Destroy();

    /// @name The current shape
    /// @{
    /// Makes a shape current by the bits of the mode, the first that matches, and gives it to a view:
    ///
    /// | any of | shape |
    /// |---|---|
    /// | 0x80, 0x10000 | box |
    /// | 0x100 | line |
    /// | 0x200, 0x1000, 0x20000, 0x40000 | circle |
    /// | 0x400 | polygon that shows its vertices as dots |
    /// | 0x800 | polygon without dots |
    ///
    /// With other modes there is none, and the former one belongs to no view any more. The shape keeps its geometry and
    /// state. @return the shape; null when there is none.
    static CVQDragObject* SetDragObject(unsigned int mode, int viewId);
    /// The mode last set, whether or not it chose a shape; 0 before.
    static unsigned int GetCurrentSelMode() { return m_uiCurSelMode; }
    /// After `Destroy` and `Initialize` it may lead nowhere.
    static CVQDragObject* DragObject() { return m_pDragObject; }
    /// @}

    static CVQDragBox* DragBox() { return m_pDragBox; }
    static CVQDragCircle* DragCircle() { return m_pDragCircle; }
    static CVQDragLine* DragLine() { return m_pDragLine; }
    static CVQDragPolygon* DragPolygon() { return m_pDragPolygon; }
    static CVQText* Text() { return m_pText; }

    /// @name The colour of all shapes
    /// Alpha and the colours of text stay.
    /// @{
    /// The low 8 bits of each count.
    static void SetSelectionColor(LONG r, LONG g, LONG b);
    static void SetSelectionColor(COLORREF colour);
    /// Takes `DPC_SELECTION_TOOL` from the preferences. Floats are multiplied by 255 in single precision and cut to
    /// integers; of those outside 0 .. 255 the low 8 bits count.
    static void UpdateSelectionColor();
    /// @}

    /// @name Drawing
    /// @{
    /// Draws the current shape over the scene, if there is one.
    static void DrawDrag(SVQGLVariables& view);
    /// Draws into an image, moved by the offset: box, circle, labels, line, polygon. Every shape that is selecting is
    /// drawn, whichever is current. Labels stand where the matrices and the viewport put their anchors. A null image is
    /// harmless.
    static void Draw(CVQDIB* image, int offsetX, int offsetY, double* model, double* projection, int* viewport);

    /// Makes the quadric, filled with smooth normals, unless there is one.
    static void DrawQuadPre();
    /// Switches colour material, the first light and lighting off, which the caller switched on after `DrawQuadPre`.
    static void DrawQuadPost();

    /// A sphere of 8 x 8 faces; the mesh is made by the first call, and kept. The flag goes to
    /// `CVQSphericalMesh::Draw`.
    /// Without memory for the mesh these throw std::bad_alloc; the next call tries again.
    static void DrawSphereLowRes(float radius, CVQPoint* centre, bool flag);
    /// Of 18 x 18 faces.
    static void DrawSphereMidRes(float radius, CVQPoint* centre, bool flag);
    /// Of 36 x 36 faces.
    static void DrawSphereHighRes(float radius, CVQPoint* centre, bool flag);
    /// A disk of 8 corners. The flag goes to `CVQDiskMesh::Draw`.
    static void DrawDiskLowRes(float radius, CVQPoint* centre, bool flag);
    /// @}

private:
    friend struct VQTestAccess;

    static CVQDragObject* LiveDragObject();

    static CVQText* m_pText;
    static unsigned int m_uiCurSelMode;
    static CVQDragObject* m_pDragObject; // one of the following, unless they have been deleted since
    static CVQDragBox* m_pDragBox;
    static CVQDragCircle* m_pDragCircle;
    static CVQDragLine* m_pDragLine;
    static CVQDragPolygon* m_pDragPolygon;
    static GLUquadric* m_pQuad;
    static CVQSphericalMesh* m_pSphericalMeshLowRes;
    static CVQSphericalMesh* m_pSphericalMeshMidRes;
    static CVQSphericalMesh* m_pSphericalMeshHighRes;
    static CVQDiskMesh* m_pDiskMeshLowRes;
};
