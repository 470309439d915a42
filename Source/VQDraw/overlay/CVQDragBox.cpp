// SPDX-License-Identifier: MIT
// The box: its state, and how it is drawn.
#include "VQDraw/VQDragObject.h"

#include "VQDraw/overlay/GLDrawing.h"
#include "VQDraw/overlay/ImageDrawing.h"

CVQDragBox::CVQDragBox()
{
    CVQDragBox::Reset();
}

CVQDragBox::CVQDragBox(const CVQDragBox& other) = default;
CVQDragBox& CVQDragBox::operator=(const CVQDragBox& other) = default;
CVQDragBox::~CVQDragBox() = default;

void CVQDragBox::Start(CPoint& point)
{
    m_ptStart = point;
    m_ptEnd = point;
    m_bSelecting = true;
}

void CVQDragBox::Drag(CPoint& point)
{
    m_ptEnd = point;
    m_bSelecting = true;
}

void CVQDragBox::End()
{
    m_bSelecting = false;
}

void CVQDragBox::Reset()
{
    m_ptStart = CPoint();
    m_ptEnd = CPoint();
    m_bSelecting = false;
}

void CVQDragBox::Offset(CPoint& by)
{
    Offset(by.x, by.y);
}

void CVQDragBox::Offset(int dx, int dy)
{
    m_ptStart.Offset(dx, dy);
    m_ptEnd.Offset(dx, dy);
}

void CVQDragBox::Draw(SVQGLVariables& view)
{
    if (!m_bSelecting)
        return;
    const GLint x0 = m_ptStart.x;
    const GLint y0 = vq::flipped(view, m_ptStart.y);
    const GLint x1 = m_ptEnd.x;
    const GLint y1 = vq::flipped(view, m_ptEnd.y);

    const vq::KeptAttributes attributes;
    vq::drawOverScene();
    vq::fillBothSides();
    vq::useFillColour(m_dwColor, m_lAlpha);
    glRecti(x0, y0, x1, y1);

    vq::useOutlineWidth();
    vq::useStipple();
    vq::useColour(m_dwColor, m_lAlpha);
    const vq::Primitive edges(GL_LINES); // no loop: the pattern starts anew on every edge
    const auto edge = [](GLint fromX, GLint fromY, GLint toX, GLint toY) {
        glVertex2i(fromX, fromY);
        glVertex2i(toX, toY);
    };
    edge(x0, y0, x1, y0);
    edge(x0, y0, x0, y1);
    edge(x1, y0, x1, y1);
    edge(x1, y1, x0, y1);
}

void CVQDragBox::Draw(CVQDIB* image, int offsetX, int offsetY)
{
    if (!image || !m_bSelecting)
        return;
    const vq::TextColour textColour(*image, m_dwTextColor);
    CPoint start = vq::moved(m_ptStart, offsetX, offsetY);
    CPoint end = vq::moved(m_ptEnd, offsetX, offsetY);
    image->DrawSelection(start, end, m_dwColor, m_lAlpha, true);
}
