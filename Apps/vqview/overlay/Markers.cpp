// SPDX-License-Identifier: MIT
#include "vqview/overlay/Markers.h"

#include "vqview/overlay/StateGuard.h"

#include <algorithm>
#include <cmath>

namespace vqview {

namespace {

constexpr float kMostShininess = 128; // OpenGL refuses more
constexpr float kHiddenAlpha = 0.3F;
constexpr double kDegrees = 180 / 3.14159265358979323846;

void switchOnLights()
{
    constexpr int kLights = 4;
    constexpr int kRowsPerLight = 4;
    const std::array<GLenum, kRowsPerLight> settings{GL_AMBIENT, GL_DIFFUSE, GL_SPECULAR, GL_POSITION};
    for (int light = 0; light < kLights; ++light) {
        const GLenum name = static_cast<GLenum>(GL_LIGHT0 + light);
        for (int row = 0; row < kRowsPerLight; ++row)
            glLightfv(name, settings[static_cast<std::size_t>(row)],
                      CVQDrawProperty::GetColor(
                          static_cast<eDrawPropertyColor>(DPC_LIGHT0AMBIENT + light * kRowsPerLight + row)));
        glEnable(name);
    }
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, 1);
}

/// What lighting, depth and blending are while markers are drawn.
void prepare(const SVQGLVariables& view)
{
    glViewport(view.m_iViewport[0], view.m_iViewport[1], view.m_iViewport[2], view.m_iViewport[3]);
    constexpr std::array<double, 16> kEye{1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};
    loadMatrices(kEye.data(), view.m_dProjection);
    switchOnLights(); // they stand still while the model turns
    glLoadMatrixd(view.m_dModelView);
    for (const GLenum off : {GL_TEXTURE_2D, GL_COLOR_MATERIAL, GL_CULL_FACE, GL_ALPHA_TEST, GL_FOG, GL_STENCIL_TEST})
        glDisable(off);
    for (const GLenum on : {GL_DEPTH_TEST, GL_NORMALIZE, GL_BLEND})
        glEnable(on);
    glDepthFunc(GL_LEQUAL);
    glDepthMask(GL_TRUE);
    glShadeModel(GL_SMOOTH);
    glPolygonMode(GL_FRONT_AND_BACK, GL_FILL);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
}

/// @return whether it can be seen through.
bool apply(eDrawPropertyMaterial index)
{
    CVQMaterial material;
    CVQDrawProperty::GetDPMaterial(index, material);
    material.m_fDiffuse[3] = material.m_fAlpha; // the one that becomes a pixel's
    glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, material.m_fAmbient);
    glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, material.m_fDiffuse);
    glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, material.m_fSpecular);
    glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, std::clamp(material.m_fShininess, 0.0F, kMostShininess));
    return material.m_fAlpha < 1;
}

/// Turns the z axis to a direction, about the axis that is upright to both.
void turnTo(const Point3& direction)
{
    const double across = std::hypot(double{direction.x}, double{direction.y});
    const double angle = std::atan2(across, double{direction.z}) * kDegrees;
    if (across > 0)
        glRotated(angle, -direction.y, direction.x, 0);
    else
        glRotated(angle, 1, 0, 0);
}

void drawSolid(const Marker& marker, const SVQGLVariables& view, float radius)
{
    const bool isTranslucent = apply(marker.material);
    CVQPoint centre(marker.at.x, marker.at.y, marker.at.z);
    if (marker.kind == MarkerKind::Sphere)
        return CVQDrawingAPI::DrawSphereHighRes(radius, &centre, isTranslucent);
    glTranslated(centre.x, centre.y, centre.z);
    turnTo(marker.direction);
    CVQDrawingAPI::DrawDiskLowRes(radius, nullptr, isTranslucent);
    glLoadMatrixd(view.m_dModelView);
}

void drawSolids(std::span<const Marker> markers, const SVQGLVariables& view, float radius)
{
    glEnable(GL_LIGHTING);
    glEnable(GL_POLYGON_OFFSET_FILL);
    glPolygonOffset(-1, -1); // a disk lies on the surface that it marks
    for (const Marker& marker : markers)
        if (marker.kind != MarkerKind::Line)
            drawSolid(marker, view, radius);
}

void emitLines(std::span<const Marker> markers)
{
    glBegin(GL_LINES);
    for (const Marker& marker : markers) {
        if (marker.kind != MarkerKind::Line)
            continue;
        glVertex3f(marker.at.x, marker.at.y, marker.at.z);
        glVertex3f(marker.to.x, marker.to.y, marker.to.z);
    }
    glEnd();
}

float lineWidth(eDrawPropertySize size, float scale)
{
    return std::max(CVQDrawProperty::GetSize(size) * scale, 1.0F);
}

void drawLines(std::span<const Marker> markers, float scale)
{
    glDisable(GL_LIGHTING);
    glLineWidth(lineWidth(DPS_PROBE_LINE, scale));
    CVQDrawProperty::GLApplyColor(DPC_MEASURE, -1);
    emitLines(markers);
    glDepthFunc(GL_GREATER);
    glDepthMask(GL_FALSE);
    CVQDrawProperty::GLApplyColor(DPC_MEASURE, kHiddenAlpha);
    emitLines(markers);
}

/// The corner whose x, y, z are the most where bits 0, 1, 2 of the number are set.
void emitCorner(const Bounds& box, unsigned corner)
{
    glVertex3f((corner & 1) != 0 ? box.most.x : box.least.x, (corner & 2) != 0 ? box.most.y : box.least.y,
               (corner & 4) != 0 ? box.most.z : box.least.z);
}

} // namespace

void addMeasureMarkers(std::span<const Point3> picked, std::vector<Marker>& markers)
{
    for (std::size_t i = 0; i < picked.size(); ++i) {
        markers.push_back({.kind = MarkerKind::Sphere, .at = picked[i]});
        if (i + 1 < picked.size())
            markers.push_back({.kind = MarkerKind::Line, .at = picked[i], .to = picked[i + 1]});
    }
}

void drawMarkers(std::span<const Marker> markers, const SVQGLVariables& view, float radius, float scale)
{
    if (markers.empty())
        return;
    const StateGuard guard;
    prepare(view);
    drawSolids(markers, view, radius);
    drawLines(markers, scale);
}

void drawBounds(const Bounds& bounds, const SVQGLVariables& view, float scale)
{
    if (bounds.isEmpty())
        return;
    const StateGuard guard;
    prepare(view);
    glDisable(GL_LIGHTING);
    glLineWidth(lineWidth(DPS_SHELLBOXLINE, scale));
    CVQDrawProperty::GLApplyColor(DPC_MEASURE, -1);
    glBegin(GL_LINES);
    for (unsigned corner = 0; corner < 8; ++corner)
        for (const unsigned axis : {1U, 2U, 4U})
            if ((corner & axis) == 0) {
                emitCorner(bounds, corner);
                emitCorner(bounds, corner | axis);
            }
    glEnd();
}

} // namespace vqview
