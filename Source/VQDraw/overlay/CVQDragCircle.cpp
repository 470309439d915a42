// SPDX-License-Identifier: MIT
// The circle: its state, and how it is drawn.
#include "VQDraw/VQDragObject.h"

#include "VQDraw/overlay/GLDrawing.h"
#include "VQDraw/overlay/ImageDrawing.h"
#include "vqCommonBase/VQMath.h"

#include <cmath>

namespace {

struct Rim
{
    double centreX;
    double centreY; // upwards
    double radius;
};

void emitRimPoint(const Rim& rim, double angle)
{
    const double x = CVQMath::FastSin(static_cast<float>(angle)) * rim.radius + rim.centreX;
    const double y = CVQMath::FastCos(static_cast<float>(angle)) * rim.radius + rim.centreY;
    glVertex2f(static_cast<float>(x), static_cast<float>(y));
}

/// From the top once round and back to it.
void emitRim(const Rim& rim)
{
    constexpr double kFullTurn = 6.283185307179586;
    constexpr double kStep = 0.0872664600610733; // 5 degrees in single precision, so that 72 steps stay below a turn
    for (double angle = 0; angle <= kFullTurn; angle += kStep)
        emitRimPoint(rim, angle);
    emitRimPoint(rim, 0);
}

} // namespace

CVQDragCircle::CVQDragCircle()
{
    CVQDragCircle::Reset();
}

CVQDragCircle::CVQDragCircle(const CVQDragCircle& other) = default;
CVQDragCircle& CVQDragCircle::operator=(const CVQDragCircle& other) = default;
CVQDragCircle::~CVQDragCircle() = default;

void CVQDragCircle::Start(CPoint& point)
{
    m_ptCenter = point;
    m_ptEnd = point;
    m_dRadius = 0;
    m_bSelecting = true;
}

void CVQDragCircle::Drag(CPoint& point)
{
    m_ptEnd = point;
    m_dRadius = RadiusTo(point);
    m_bSelecting = true;
}

bool CVQDragCircle::Drag(CPoint& point, double least, double most)
{
    const double radius = RadiusTo(point);
    const bool fits = radius >= least && radius <= most; // not with a radius that is no number
    if (fits)
        CVQDragCircle::Drag(point);
    return fits;
}

void CVQDragCircle::End()
{
    m_bSelecting = false;
}

void CVQDragCircle::Reset()
{
    m_ptCenter = CPoint();
    m_ptEnd = CPoint();
    m_dRadius = 0;
    m_bSelecting = false;
    m_aPoints.RemoveAll();
}

void CVQDragCircle::Offset(CPoint& by)
{
    Offset(by.x, by.y);
}

void CVQDragCircle::Offset(int dx, int dy)
{
    m_ptCenter.Offset(dx, dy);
    m_ptEnd.Offset(dx, dy);
}

void CVQDragCircle::Move(CPoint& centre)
{
    Offset(vq::afx::wrappedDifference(centre.x, m_ptCenter.x), vq::afx::wrappedDifference(centre.y, m_ptCenter.y));
}

void CVQDragCircle::Move(int x, int y)
{
    CPoint centre(x, y);
    Move(centre);
}

void CVQDragCircle::GetCenter(CPoint* point) const
{
    if (point)
        *point = m_ptCenter;
}

void CVQDragCircle::GetRadius(double* radius) const
{
    if (radius)
        *radius = m_dRadius;
}

double CVQDragCircle::RadiusTo(const CPoint& point) const
{
    const auto dx = static_cast<ULONG>(point.x) - static_cast<ULONG>(m_ptCenter.x);
    const auto dy = static_cast<ULONG>(point.y) - static_cast<ULONG>(m_ptCenter.y);
    return std::sqrt(static_cast<double>(static_cast<LONG>(dx * dx + dy * dy)));
}

CRect CVQDragCircle::Bounds() const
{
    const auto radius = std::isnan(m_dRadius) ? LONG{0} : static_cast<LONG>(m_dRadius); // below 2^16
    return {vq::moved(m_ptCenter, -radius, -radius), vq::moved(m_ptCenter, radius, radius)};
}

bool CVQDragCircle::IsDrawn() const
{
    return m_bSelecting && !std::isnan(m_dRadius);
}

void CVQDragCircle::Draw(SVQGLVariables& view)
{
    if (!IsDrawn())
        return;
    const auto centreY = static_cast<float>(vq::flipped(view, m_ptCenter.y));
    const Rim rim{static_cast<double>(m_ptCenter.x), centreY, m_dRadius};

    const vq::KeptAttributes attributes;
    vq::drawOverScene();
    vq::fillBothSides();
    vq::useFillColour(m_dwColor, m_lAlpha);
    {
        const vq::Primitive disc(GL_TRIANGLE_FAN);
        glVertex2f(static_cast<float>(m_ptCenter.x), centreY);
        emitRim(rim);
    }
    vq::useStipple();
    vq::useOutlineWidth();
    vq::useColour(m_dwColor, m_lAlpha);
    const vq::Primitive outline(GL_LINE_STRIP);
    emitRim(rim);
}

void CVQDragCircle::Draw(CVQDIB* image, int offsetX, int offsetY)
{
    if (!image || !IsDrawn())
        return;
    const vq::TextColour textColour(*image, m_dwTextColor);
    const CPoint centre = vq::moved(m_ptCenter, offsetX, offsetY);
    const CPoint end = vq::moved(m_ptEnd, offsetX, offsetY);
    CVQDIB::DrawCircleSelection(image, centre.x, centre.y, end.x, end.y, m_dwColor, m_lAlpha);
}
