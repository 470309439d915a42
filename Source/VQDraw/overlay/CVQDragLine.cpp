// SPDX-License-Identifier: MIT
// The line and the band: their state, and how they are drawn.
#include "VQDraw/VQDragObject.h"

#include "VQDraw/overlay/GLDrawing.h"
#include "VQDraw/overlay/ImageDrawing.h"

#include <cmath>

CVQDragLine::CVQDragLine()
{
    CVQDragLine::Reset();
}

CVQDragLine::CVQDragLine(const CVQDragLine& other) = default;
CVQDragLine& CVQDragLine::operator=(const CVQDragLine& other) = default;
CVQDragLine::~CVQDragLine() = default;

void CVQDragLine::Start(CPoint& point)
{
    m_ptStart = point;
    m_ptEnd = point;
    m_iWidth = 0;
    m_bSelecting = true;
}

void CVQDragLine::Drag(CPoint& point)
{
    m_ptEnd = point;
    CalcRectPoints();
    m_bSelecting = true;
}

void CVQDragLine::End()
{
    CalcRectPoints();
    m_bSelecting = false;
}

void CVQDragLine::Reset()
{
    m_ptStart = CPoint();
    m_ptEnd = CPoint();
    m_bSelecting = false;
    m_bFlag = false;
    m_iWidth = 0;
}

void CVQDragLine::Offset(CPoint& by)
{
    Offset(by.x, by.y);
}

void CVQDragLine::Offset(int dx, int dy)
{
    m_ptStart.Offset(dx, dy);
    m_ptEnd.Offset(dx, dy);
}

void CVQDragLine::SetWidth(int width)
{
    m_iWidth = width;
    CalcRectPoints();
}

void CVQDragLine::CalcRectPoints()
{
    if (m_iWidth <= 0)
        return;
    const double dx = static_cast<double>(m_ptEnd.x) - m_ptStart.x;
    const double dy = static_cast<double>(m_ptEnd.y) - m_ptStart.y;
    const double length = std::sqrt(static_cast<float>(dx * dx + dy * dy)); // in single precision, deliberately
    const double normalX = -dy / length * m_iWidth;
    const double normalY = dx / length * m_iWidth;

    const auto set = [](double(&corner)[2], double x, double y) {
        corner[0] = x;
        corner[1] = y;
    };
    set(m_dRectPoints[0], m_ptStart.x + normalX, m_ptStart.y + normalY);
    set(m_dRectPoints[1], m_ptEnd.x + normalX, m_ptEnd.y + normalY);
    set(m_dRectPoints[2], m_ptStart.x - normalX, m_ptStart.y - normalY);
    set(m_dRectPoints[3], m_ptEnd.x - normalX, m_ptEnd.y - normalY);
}

void CVQDragLine::Draw(SVQGLVariables& view)
{
    if (!m_bSelecting)
        return;
    const vq::KeptAttributes attributes;
    vq::drawOverScene();
    glEnable(GL_LINE_SMOOTH);
    glDisable(GL_CULL_FACE);
    if (m_iWidth > 0)
        DrawBand(view);
    else
        DrawPlain(view);
}

void CVQDragLine::DrawBand(const SVQGLVariables& view) const
{
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    vq::useFillColour(m_dwColor, m_lAlpha);
    EmitBand(GL_QUADS, view);

    vq::useColour(m_dwColor, m_lAlpha);
    vq::useOutlineWidth();
    vq::useStipple();
    EmitBand(GL_LINE_LOOP, view);
}

/// Its corners, once around.
void CVQDragLine::EmitBand(GLenum kind, const SVQGLVariables& view) const
{
    const vq::Primitive band(kind);
    for (const int i : {0, 1, 3, 2}) {
        const auto& [x, y] = m_dRectPoints[i];
        glVertex2f(static_cast<float>(x), static_cast<float>(vq::heightOf(view) - y));
    }
}

void CVQDragLine::DrawPlain(const SVQGLVariables& view) const
{
    using vq::afx::wrappedDifference;
    using vq::afx::wrappedSum;
    const GLint startY = vq::flipped(view, m_ptStart.y);

    vq::useOutlineWidth();
    glPolygonMode(GL_FRONT_AND_BACK, GL_LINE);
    vq::useColour(m_dwColor, m_lAlpha);
    glRecti(wrappedDifference(m_ptStart.x, 2), wrappedSum(startY, 2), wrappedSum(m_ptStart.x, 2),
            wrappedDifference(startY, 2));
    const vq::Primitive line(GL_LINES);
    glVertex2i(m_ptStart.x, startY);
    glVertex2i(m_ptEnd.x, vq::flipped(view, m_ptEnd.y));
}

void CVQDragLine::Draw(CVQDIB* image, int offsetX, int offsetY)
{
    if (!image || !m_bSelecting)
        return;
    const vq::TextColour textColour(*image, m_dwTextColor);
    const CPoint start = vq::moved(m_ptStart, offsetX, offsetY);
    const CPoint end = vq::moved(m_ptEnd, offsetX, offsetY);
    vq::drawLine(*image, start, end, m_dwColor, m_lAlpha);
    vq::drawSquare(*image, start, m_dwColor, m_lAlpha);
    vq::drawSquare(*image, end, m_dwColor, m_lAlpha);
}
