// SPDX-License-Identifier: MIT
#include "preferences/Sheets.h"
#include "support/offscreen/OffScreenContext.h"

namespace {

constexpr int kColumns = 5;
constexpr int kRows = DPM_END / kColumns;
constexpr int kCell = 190; ///< in pixels, both ways
constexpr LONG kLabelAbove = 20;
constexpr UINT kCentred = 1; ///< a format of texts in rectangles

static_assert(kColumns * kRows == DPM_END, "every material has a place");

/// From the upper left; model coordinates count cells from the middle of the first.
void setUpCamera()
{
    glMatrixMode(GL_PROJECTION);
    glLoadIdentity();
    glOrtho(-0.5, kColumns - 0.5, 0.5 - kRows, 0.5, -2, 2);
    glMatrixMode(GL_MODELVIEW);
    glLoadIdentity();
}

/// The store's first light and what materials reflect where there is none.
void setUpLight()
{
    glLightfv(GL_LIGHT0, GL_AMBIENT, CVQDrawProperty::GetColor(DPC_LIGHT0AMBIENT));
    glLightfv(GL_LIGHT0, GL_DIFFUSE, CVQDrawProperty::GetColor(DPC_LIGHT0DIFFUSE));
    glLightfv(GL_LIGHT0, GL_SPECULAR, CVQDrawProperty::GetColor(DPC_LIGHT0SPECULAR));
    glLightfv(GL_LIGHT0, GL_POSITION, CVQDrawProperty::GetColor(DPC_LIGHT0POS));
    glEnable(GL_LIGHTING);
    glEnable(GL_LIGHT0);
    glEnable(GL_DEPTH_TEST);
    glEnable(GL_BLEND);
    glBlendFunc(GL_SRC_ALPHA, GL_ONE_MINUS_SRC_ALPHA);
}

void drawSphere(eDrawPropertyMaterial index)
{
    CVQMaterial material;
    CVQDrawProperty::GetDPMaterial(index, material);
    glMaterialfv(GL_FRONT_AND_BACK, GL_AMBIENT, material.m_fAmbient);
    glMaterialfv(GL_FRONT_AND_BACK, GL_DIFFUSE, material.m_fDiffuse);
    glMaterialfv(GL_FRONT_AND_BACK, GL_SPECULAR, material.m_fSpecular);
    glMaterialf(GL_FRONT_AND_BACK, GL_SHININESS, material.m_fShininess);
    CVQPoint centre(index % kColumns, -(index / kColumns), 0);
    CVQDrawingAPI::DrawSphereHighRes(0.38F, &centre, true);
}

void nameSpheres(CVQDIB& sheet)
{
    sheet.SetTextColor(RGB(230, 230, 230), 255);
    sheet.SetFontSize(-11);
    for (int i = 0; i < DPM_END; ++i) {
        RECT cell{};
        cell.left = i % kColumns * kCell;
        cell.right = cell.left + kCell;
        cell.bottom = (i / kColumns + 1) * kCell;
        cell.top = cell.bottom - kLabelAbove;
        sheet.DrawTextW(CVQDrawProperty::GetDPMEnumNoToEnumString(i), &cell, kCentred);
    }
}

} // namespace

bool addMaterials(Gallery& gallery, std::string& reason)
{
    const auto scene = OffScreenContext::make(kColumns * kCell, kRows * kCell, reason);
    if (!scene)
        return true;
    glClearColor(0.14F, 0.16F, 0.2F, 1);
    glClear(GL_COLOR_BUFFER_BIT | GL_DEPTH_BUFFER_BIT);
    setUpCamera();
    setUpLight();
    for (int i = 0; i < DPM_END; ++i)
        drawSphere(static_cast<eDrawPropertyMaterial>(i));
    CVQDIB sheet(1, 1);
    scene->copyTo(sheet);
    nameSpheres(sheet);
    return gallery.add(sheet, "4-materials", "<code>GetDPMaterial</code>: every material, in the store's first light");
}
