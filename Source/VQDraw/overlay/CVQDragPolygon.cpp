// SPDX-License-Identifier: MIT
// The polygon: its state, and how it is drawn.
#include "VQDraw/VQDragObject.h"

#include "VQDraw/overlay/GLDrawing.h"
#include "VQDraw/overlay/ImageDrawing.h"

#include <algorithm>
#include <cstdint>
#include <limits>

CVQDragPolygon::CVQDragPolygon()
{
    CVQDragPolygon::Reset();
}

CVQDragPolygon::CVQDragPolygon(const CVQDragPolygon& other) = default;
CVQDragPolygon& CVQDragPolygon::operator=(const CVQDragPolygon& other) = default;
CVQDragPolygon::~CVQDragPolygon() = default;

void CVQDragPolygon::Start(CPoint& point)
{
    CPoint first = point; // it may be one of the vertices
    m_aPoints.RemoveAll();
    AddPoint(first);
    m_bButtonPressed = true;
}

void CVQDragPolygon::Drag(CPoint& point)
{
    // Coordinate by coordinate, as the caller has just written them: a read of both at once would wait until they have
    // left for the cache, longer than all the rest takes.
    const volatile POINT& written = point;
    CPoint next(written.x, written.y);
    if (next != m_ptEnd)
        AddPoint(next);
}

void CVQDragPolygon::End()
{
    m_bSelecting = false;
    m_bButtonPressed = false;
}

void CVQDragPolygon::Reset()
{
    m_aPoints.RemoveAll();
    m_ptEnd = CPoint();
    m_bSelecting = false;
    m_bButtonPressed = false;
}

void CVQDragPolygon::Offset(CPoint& by)
{
    Offset(by.x, by.y);
}

void CVQDragPolygon::Offset(int dx, int dy)
{
    for (std::uint64_t i = 0; i < m_aPoints.GetSize(); ++i)
        m_aPoints.GetAt(i).Offset(dx, dy);
    m_ptEnd.Offset(dx, dy);
}

CPoint CVQDragPolygon::Anchor() const
{
    return m_aPoints.GetSize() == 0 ? CPoint() : m_aPoints.GetAt(0);
}

CRect CVQDragPolygon::Bounds() const
{
    constexpr LONG kMost = std::numeric_limits<LONG>::max();
    CRect bounds(kMost, kMost, -kMost, -kMost);
    for (std::uint64_t i = 0; i < m_aPoints.GetSize(); ++i) {
        const CPoint& point = m_aPoints.GetAt(i);
        bounds.left = std::min(bounds.left, point.x);
        bounds.top = std::min(bounds.top, point.y);
        bounds.right = std::max(bounds.right, point.x);
        if (point.x > bounds.bottom) // x, deliberately
            bounds.bottom = point.y;
    }
    return bounds;
}

void CVQDragPolygon::Draw(SVQGLVariables& view)
{
    if (!m_bSelecting)
        return;
    const vq::KeptAttributes attributes;
    vq::drawOverScene();
    glEnable(GL_LINE_SMOOTH);
    if (m_bDrawPoints) {
        glPointSize(CVQDisplayAPI::GetScaleFactor() * 5.0F);
        vq::useColour(m_dwColor, m_lAlpha);
        EmitPoints(GL_POINTS, view);
    }
    const std::uint64_t count = m_aPoints.GetSize();
    if (count < 2)
        return;
    vq::useOutlineWidth();
    vq::useStipple();
    vq::useColour(m_dwColor, m_lAlpha);
    EmitPoints(count == 2 ? GL_LINE_STRIP : GL_LINE_LOOP, view);
}

/// The vertices, and the end.
void CVQDragPolygon::EmitPoints(GLenum kind, const SVQGLVariables& view) const
{
    const auto emit = [&view](const CPoint& point) {
        glVertex2f(static_cast<float>(point.x), static_cast<float>(vq::flipped(view, point.y)));
    };
    const vq::Primitive primitive(kind);
    for (std::uint64_t i = 0; i < m_aPoints.GetSize(); ++i)
        emit(m_aPoints.GetAt(i));
    emit(m_ptEnd);
}

void CVQDragPolygon::Draw(CVQDIB* image, int offsetX, int offsetY)
{
    const std::uint64_t count = m_aPoints.GetSize();
    if (!image || !m_bSelecting || count == 0)
        return;
    const vq::TextColour textColour(*image, m_dwTextColor);
    const auto vertex = [&](std::uint64_t i) { return vq::moved(m_aPoints.GetAt(i), offsetX, offsetY); };
    const CPoint first = vertex(0);
    if (count == 1) {
        image->FillRect(vq::squareAround(first), m_dwColor, m_lAlpha);
        return;
    }
    CPoint from = first;
    for (std::uint64_t i = 1; i < count; ++i) {
        const CPoint to = vertex(i);
        vq::drawLine(*image, from, to, m_dwColor, m_lAlpha);
        vq::drawSquare(*image, from, m_dwColor, m_lAlpha);
        vq::drawSquare(*image, to, m_dwColor, m_lAlpha);
        from = to;
    }
    vq::drawLine(*image, first, from, m_dwColor, m_lAlpha);
}
