// SPDX-License-Identifier: MIT
#include "vqview/view/SceneLook.h"

#include <algorithm>
#include <array>

namespace vqview {
namespace {

constexpr float kTowardsWhite = 1.0F / 3;

struct LightRows
{
    eDrawPropertyColor ambient, diffuse, specular, position;
};

constexpr std::array kLights{
    LightRows{DPC_LIGHT0AMBIENT, DPC_LIGHT0DIFFUSE, DPC_LIGHT0SPECULAR, DPC_LIGHT0POS},
    LightRows{DPC_LIGHT1AMBIENT, DPC_LIGHT1DIFFUSE, DPC_LIGHT1SPECULAR, DPC_LIGHT1POS},
    LightRows{DPC_LIGHT2AMBIENT, DPC_LIGHT2DIFFUSE, DPC_LIGHT2SPECULAR, DPC_LIGHT2POS},
    LightRows{DPC_LIGHT3AMBIENT, DPC_LIGHT3DIFFUSE, DPC_LIGHT3SPECULAR, DPC_LIGHT3POS},
};

void useLight(GLenum light, const LightRows& rows)
{
    glEnable(light);
    glLightfv(light, GL_AMBIENT, CVQDrawProperty::GetColor(rows.ambient));
    glLightfv(light, GL_DIFFUSE, CVQDrawProperty::GetColor(rows.diffuse));
    glLightfv(light, GL_SPECULAR, CVQDrawProperty::GetColor(rows.specular));
    glLightfv(light, GL_POSITION, CVQDrawProperty::GetColor(rows.position));
    glLightf(light, GL_SPOT_CUTOFF, 180); // shines to all sides
    glLightf(light, GL_CONSTANT_ATTENUATION, 1);
    glLightf(light, GL_LINEAR_ATTENUATION, 0);
    glLightf(light, GL_QUADRATIC_ATTENUATION, 0);
}

void useLightModel()
{
    constexpr float kNoLight[]{0, 0, 0, 1};
    glLightModelfv(GL_LIGHT_MODEL_AMBIENT, kNoLight);
    glLightModeli(GL_LIGHT_MODEL_LOCAL_VIEWER, GL_FALSE);
    glLightModeli(GL_LIGHT_MODEL_TWO_SIDE, GL_TRUE);
}

void useMaterial()
{
    constexpr float kNoLight[]{0, 0, 0, 1};
    CVQMaterial material;
    CVQDrawProperty::GetDPMaterial(DPM_BODY, material);
    glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, material.m_fAmbient);
    glMaterialfv(GL_FRONT, GL_DIFFUSE, material.m_fDiffuse);
    glMaterialfv(GL_BACK, GL_DIFFUSE, CVQDrawProperty::GetColor(DPC_BACKFACE_USERDEFINE));
    glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, material.m_fSpecular);
    glMaterialfv(GL_FRONT_AND_BACK, GL_EMISSION, kNoLight);
    glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, std::clamp(material.m_fShininess, 0.0F, 128.0F));
}

} // namespace

void drawBackground()
{
    const float* lower = CVQDrawProperty::GetColor(DPC_BACKGROUND);
    std::array<float, 3> upper;
    std::transform(lower, lower + 3, upper.begin(), [](float value) { return value + (1 - value) * kTowardsWhite; });
    glMatrixMode(GL_PROJECTION);
    glPushMatrix();
    glLoadIdentity();
    glMatrixMode(GL_MODELVIEW);
    glPushMatrix();
    glLoadIdentity();
    glDisable(GL_DEPTH_TEST);
    glBegin(GL_TRIANGLE_STRIP);
    glColor3fv(lower);
    glVertex2i(-1, -1);
    glVertex2i(1, -1);
    glColor3fv(upper.data());
    glVertex2i(-1, 1);
    glVertex2i(1, 1);
    glEnd();
    glEnable(GL_DEPTH_TEST);
    glPopMatrix();
    glMatrixMode(GL_PROJECTION);
    glPopMatrix();
    glMatrixMode(GL_MODELVIEW);
}

void useLights()
{
    glPushMatrix();
    glLoadIdentity(); // positions are the viewer's
    for (std::size_t light = 0; light < kLights.size(); ++light)
        useLight(GL_LIGHT0 + static_cast<GLenum>(light), kLights[light]);
    glPopMatrix();
    useLightModel();
    useMaterial();
    glEnable(GL_LIGHTING);
}

void useColour(eDrawPropertyColor colour)
{
    glDisable(GL_LIGHTING);
    glColor3fv(CVQDrawProperty::GetColor(colour));
}

float pixels(eDrawPropertySize size, float scale)
{
    return std::max(1.0F, CVQDrawProperty::GetSize(size) * scale); // in this order not a number becomes 1
}

void bringNearer(const SVQGLVariables& view, double pixels)
{
    double projection[16];
    std::copy(std::begin(view.m_dProjection), std::end(view.m_dProjection), projection);
    // A pixel's height: in the scene's units, or as a share of the depth where that makes things smaller.
    const double pixel = 2 / (projection[5] * view.m_iViewport[3]);
    const bool isOrthographic = projection[11] == 0;
    if (isOrthographic)
        projection[14] += projection[10] * pixel * pixels;
    else
        projection[14] *= 1 + pixel * pixels;
    glMatrixMode(GL_PROJECTION);
    glLoadMatrixd(projection);
    glMatrixMode(GL_MODELVIEW);
}

} // namespace vqview
