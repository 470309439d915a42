// SPDX-License-Identifier: MIT
#pragma once

#include "Platform/Platform.h"
#include "VQDraw/Export.h"
#include "VQDraw/LumpArray.h"
#include "vqGeometry/VQPoint.h"

/// @file
/// Shapes that the user drags over a view to select: box, circle, line, polygon. A view hands mouse positions to the
/// current one (`Start` on button down, `Drag` on move, `End` on button up), asks it for its geometry, and lets it draw
/// itself over the scene or into an image.
///
/// Positions are window pixels, y downwards. A shape draws only while it is selecting: from `Start` or `Drag` on, until
/// `End`, which keeps the geometry, or `Reset`, which clears it. Moving a shape beyond 32 bits wraps round.
///
/// Colours are GDI colours, `0x00BBGGRR`. Alpha is 0 .. 255; it is stored as given, and its low 8 bits count in an
/// outline.
///
/// For the thread of the user interface only.

class CVQDIB;

/// What a 3-D view knows of its OpenGL state.
struct SVQGLVariables
{
    double m_dModelView[16];
    double m_dProjection[16];
    int m_iViewport[4]; ///< x, y, width, height in pixels
};

/// What the shapes have in common.
class VQDRAW_API CVQDragObject
{
public:
    CVQDragObject();
    CVQDragObject(const CVQDragObject& other);
    CVQDragObject& operator=(const CVQDragObject& other);
    virtual ~CVQDragObject();

    virtual void Start(CPoint& point) = 0;
    virtual void Drag(CPoint& point) = 0;
    virtual void End() = 0;
    virtual void Reset() = 0;
    /// Draws over the scene with the current OpenGL context, in which one unit is one pixel and the origin is at the
    /// lower left of the view; of the view only the viewport's height is read. Fill and outline are blended with the
    /// context's blend function. Every attribute is as before afterwards.
    virtual void Draw(SVQGLVariables& view) = 0;

    /// The view that the shape belongs to; 0 is none.
    void SetViewID(int id) { m_iViewID = id; }

protected:
    int m_iViewID = 0;

private:
    friend struct VQTestAccess;
};

namespace vq {

/// What every shape tells and takes. Null pointers are left alone.
template <typename Shape>
class DragAccessors
{
public:
    /// Whether a drag is in progress.
    bool CheckSelection() const { return shape().m_bSelecting; }

    /// The last position.
    CPoint GetEnd() const { return shape().m_ptEnd; }
    void GetEnd(CPoint* point) const
    {
        if (point)
            *point = GetEnd();
    }
    int GetEndX() const { return GetEnd().x; }
    int GetEndY() const { return GetEnd().y; }

    /// A rectangle around the shape, normalised.
    CRect GetRect() const
    {
        CRect rect = shape().Bounds();
        rect.NormalizeRect();
        return rect;
    }
    void GetRect(CRect* rect) const
    {
        if (rect)
            *rect = GetRect();
    }

    COLORREF GetColor() const { return shape().m_dwColor; }
    void SetColor(COLORREF colour) { shape().m_dwColor = colour; }
    /// The low 8 bits of each count.
    void SetColor(LONG r, LONG g, LONG b)
    {
        SetColor(RGB(static_cast<BYTE>(r), static_cast<BYTE>(g), static_cast<BYTE>(b)));
    }
    void SetColor(LONG r, LONG g, LONG b, LONG alpha)
    {
        SetColor(r, g, b);
        SetAlpha(alpha);
    }
    LONG GetAlpha() const { return shape().m_lAlpha; }
    void SetAlpha(LONG alpha) { shape().m_lAlpha = alpha; }

private:
    const Shape& shape() const { return static_cast<const Shape&>(*this); }
    Shape& shape() { return static_cast<Shape&>(*this); }
};

/// What shapes tell that have a start. A null pointer is left alone.
template <typename Shape>
class StartAccessors
{
public:
    CPoint GetStart() const { return static_cast<const Shape&>(*this).Anchor(); }
    void GetStart(CPoint* point) const
    {
        if (point)
            *point = GetStart();
    }
    int GetStartX() const { return GetStart().x; }
    int GetStartY() const { return GetStart().y; }
};

constexpr LONG kDragAlpha = 200;
constexpr COLORREF kDragColour = 0xFFFFFF;

} // namespace vq

/// A rectangle between two opposite corners.
class VQDRAW_API CVQDragBox : public CVQDragObject,
                              public vq::DragAccessors<CVQDragBox>,
                              public vq::StartAccessors<CVQDragBox>
{
public:
    CVQDragBox();
    CVQDragBox(const CVQDragBox& other);
    CVQDragBox& operator=(const CVQDragBox& other);
    ~CVQDragBox() override;

    void Start(CPoint& point) override;
    /// Without a `Start` the start stays what it was.
    void Drag(CPoint& point) override;
    void End() override;
    void Reset() override;

    /// Adds to start and end.
    void Offset(CPoint& by);
    void Offset(int dx, int dy);

    /// Filled at a quarter of the alpha; each edge stippled by itself.
    void Draw(SVQGLVariables& view) override;
    /// As `CVQDIB::DrawSelection` with guides, moved by the offset. The image has the shape's text colour meanwhile;
    /// its own comes back opaque. A null image is harmless.
    void Draw(CVQDIB* image, int offsetX, int offsetY);

private:
    friend vq::DragAccessors<CVQDragBox>;
    friend vq::StartAccessors<CVQDragBox>;
    friend struct VQTestAccess;

    CPoint Anchor() const { return m_ptStart; }
    CRect Bounds() const { return {m_ptStart, m_ptEnd}; }

    bool m_bSelecting = false;
    CPoint m_ptStart;
    CPoint m_ptEnd;
    LONG m_lAlpha = vq::kDragAlpha;
    COLORREF m_dwColor = vq::kDragColour;
    COLORREF m_dwTextColor = vq::kDragColour; // of the labels in an image
};

/// A straight line, or a band of twice its width around one.
class VQDRAW_API CVQDragLine : public CVQDragObject,
                               public vq::DragAccessors<CVQDragLine>,
                               public vq::StartAccessors<CVQDragLine>
{
public:
    CVQDragLine();
    CVQDragLine(const CVQDragLine& other);
    CVQDragLine& operator=(const CVQDragLine& other);
    ~CVQDragLine() override;

    /// The width becomes 0, deliberately: it is set after the start.
    void Start(CPoint& point) override;
    void Drag(CPoint& point) override;
    void End() override;
    void Reset() override;

    /// Adds to start and end; the corners of the band stay until they are computed again. `GetRect` ignores the width.
    void Offset(CPoint& by);
    void Offset(int dx, int dy);

    /// Pixels to each side of the line; without them, 0 or less, it is plain.
    int GetWidth() const { return m_iWidth; }
    /// Computes the corners of the band as well.
    void SetWidth(int width);
    /// Computes the corners of the band from start, end and width, which is done with every change but `Offset`. A
    /// plain line leaves them as they are. A band of no length has corners that are no numbers, deliberately.
    void CalcRectPoints();

    /// A band is filled at a quarter of the alpha, with a stippled outline. A plain line has neither, and a square of 4
    /// pixels at its start.
    void Draw(SVQGLVariables& view) override;
    /// The plain line, whatever the width, moved by the offset, with squares of 4 pixels at both ends. The image's text
    /// colour comes back opaque. A null image is harmless.
    void Draw(CVQDIB* image, int offsetX, int offsetY);

private:
    friend vq::DragAccessors<CVQDragLine>;
    friend vq::StartAccessors<CVQDragLine>;
    friend struct VQTestAccess;

    CPoint Anchor() const { return m_ptStart; }
    CRect Bounds() const { return {m_ptStart, m_ptEnd}; }
    void DrawBand(const SVQGLVariables& view) const;
    void DrawPlain(const SVQGLVariables& view) const;
    void EmitBand(GLenum kind, const SVQGLVariables& view) const;

    bool m_bSelecting = false;
    CPoint m_ptStart;
    CPoint m_ptEnd;
    LONG m_lAlpha = vq::kDragAlpha;
    COLORREF m_dwColor = vq::kDragColour;
    COLORREF m_dwTextColor = vq::kDragColour;
    int m_iWidth = 0;
    double m_dRectPoints[4][2] = {}; // x, y of start + normal, end + normal, start - normal, end - normal
    bool m_bFlag = false;            // kept for callers: nothing here reads it
};

/// A circle around the point where the drag began.
class VQDRAW_API CVQDragCircle : public CVQDragObject, public vq::DragAccessors<CVQDragCircle>
{
public:
    CVQDragCircle();
    CVQDragCircle(const CVQDragCircle& other);
    CVQDragCircle& operator=(const CVQDragCircle& other);
    ~CVQDragCircle() override;

    void Start(CPoint& point) override;
    /// The sum of squares below the radius is computed in 32 bits and wraps round: what becomes negative gives a radius
    /// that is no number, with which `GetRect` is the centre alone, and nothing is drawn.
    void Drag(CPoint& point) override;
    /// As above when the radius lies in `least` .. `most`, both included. @return false, and nothing has changed,
    /// otherwise.
    bool Drag(CPoint& point, double least, double most);
    void End() override;
    void Reset() override;

    /// Adds to centre and end.
    void Offset(CPoint& by);
    void Offset(int dx, int dy);
    /// Brings the centre to a point, and the end along with it.
    void Move(CPoint& centre);
    void Move(int x, int y);

    CPoint GetCenter() const { return m_ptCenter; }
    /// Null is left alone.
    void GetCenter(CPoint* point) const;
    int GetCenterX() const { return m_ptCenter.x; }
    int GetCenterY() const { return m_ptCenter.y; }
    double GetRadius() const { return m_dRadius; }
    /// Null is left alone.
    void GetRadius(double* radius) const;

    /// Filled at a quarter of the alpha, with a stippled outline, both from the top of the rim on in steps of 5
    /// degrees.
    void Draw(SVQGLVariables& view) override;
    /// As `CVQDIB::DrawCircleSelection`, moved by the offset. The image's text colour comes back opaque. A null image
    /// is harmless.
    void Draw(CVQDIB* image, int offsetX, int offsetY);

private:
    friend vq::DragAccessors<CVQDragCircle>;
    friend struct VQTestAccess;

    CRect Bounds() const;
    double RadiusTo(const CPoint& point) const;
    bool IsDrawn() const;

    CLumpArray<CVQPoint, const CVQPoint&> m_aPoints{2048}; // the callers'; `Reset` empties it
    bool m_bSelecting = false;
    CPoint m_ptCenter;
    CPoint m_ptEnd;
    double m_dRadius = 0;
    LONG m_lAlpha = vq::kDragAlpha;
    COLORREF m_dwColor = vq::kDragColour;
    COLORREF m_dwTextColor = vq::kDragColour;
};

/// A polygon: drawn in one go with the button down, or point by point with `AddPoint` and `SetEnd`. Its outline is
/// closed when it is drawn; nothing is ever filled. The start is the first vertex, (0, 0) when there is none.
///
/// The rectangle of `GetRect` is around the vertices, without the end, at three of its sides. Its bottom is the y of
/// the last vertex whose x lay beyond the bottom so far, deliberately. Without vertices every side is 2^31 - 1 from 0.
class VQDRAW_API CVQDragPolygon : public CVQDragObject,
                                  public vq::DragAccessors<CVQDragPolygon>,
                                  public vq::StartAccessors<CVQDragPolygon>
{
public:
    using Points = CLumpArray<CPoint, const CPoint&>;

    CVQDragPolygon();
    CVQDragPolygon(const CVQDragPolygon& other);
    CVQDragPolygon& operator=(const CVQDragPolygon& other);
    ~CVQDragPolygon() override;

    /// The polygon has this vertex only.
    void Start(CPoint& point) override;
    /// Adds a vertex, unless the point is the end.
    void Drag(CPoint& point) override;
    void End() override;
    void Reset() override;

    /// Adds a vertex, also where the last one lies.
    void AddPoint(CPoint& point)
    {
        m_aPoints.SetAtGrow(m_aPoints.GetSize(), point);
        m_ptEnd = point;
        m_bSelecting = true;
    }
    /// Moves the end alone: the outline follows the mouse without a new vertex.
    void SetEnd(CPoint& point) { m_ptEnd = point; }

    /// Adds to every vertex and to the end.
    void Offset(CPoint& by);
    void Offset(int dx, int dy);

    /// The polygon's own vertices, in the order in which they came.
    Points* GetPoints() { return &m_aPoints; }
    /// Number of vertices modulo 2^32.
    ULONG GetCount() const { return static_cast<ULONG>(m_aPoints.GetSize()); }

    /// True from `Start` to `End`: whether the polygon is drawn in one go.
    bool CheckButtonPressed() const { return m_bButtonPressed; }
    void SetButtonPressed(bool pressed) { m_bButtonPressed = pressed; }
    /// Whether vertices are drawn over the scene as dots.
    void SetDrawPoints(bool on) { m_bDrawPoints = on; }

    /// The outline through all vertices and the end, stippled; closed from three vertices on; none below two.
    void Draw(SVQGLVariables& view) override;
    /// The sides, the closing one too, and a square of 4 pixels at both ends of each but the closing one, moved by the
    /// offset: what two sides share is drawn twice, deliberately. A single vertex is a filled square. The end is not
    /// drawn. The image's text colour comes back opaque. A null image is harmless.
    void Draw(CVQDIB* image, int offsetX, int offsetY);

private:
    friend vq::DragAccessors<CVQDragPolygon>;
    friend vq::StartAccessors<CVQDragPolygon>;
    friend struct VQTestAccess;

    CPoint Anchor() const;
    CRect Bounds() const;
    void EmitPoints(GLenum kind, const SVQGLVariables& view) const;

    bool m_bSelecting = false;
    Points m_aPoints{2048};
    CPoint m_ptEnd;
    LONG m_lAlpha = vq::kDragAlpha;
    COLORREF m_dwColor = vq::kDragColour;
    COLORREF m_dwTextColor = vq::kDragColour;
    bool m_bButtonPressed = false;
    bool m_bDrawPoints = true;
};
