// SPDX-License-Identifier: MIT
// The tables of display preferences, and how they are read and changed row by row.
#include "VQDraw/VQDrawProperty.h"

#include "VQDraw/image/StartUpOrder.h"
#include "VQDraw/preferences/TableAccess.h"

#include <algorithm>

VQ_START_ORDER(vq::kMaterialPalette) CArray<CVQMaterial, const CVQMaterial&> CVQDrawProperty::m_arrPalletMaterial;
constinit float CVQDrawProperty::m_fColor[DPC_END][4]{};
constinit float CVQDrawProperty::m_fSize[DPS_END]{};
constinit unsigned char CVQDrawProperty::m_ucUICtrlAlpha[DPC_UI_ALPHA_END]{};
constinit unsigned char CVQDrawProperty::m_ucFloatDialogAlpha = 0;
constinit int CVQDrawProperty::m_iMaterialCount = 0;
constinit CVQColor CVQDrawProperty::m_UICtrlColor[DPC_UI_COLOR_END];
constinit CVQFont CVQDrawProperty::m_Font[DPF_END];
constinit CVQMaterial CVQDrawProperty::m_Material[DPM_END];
constinit CVQColor CVQDrawProperty::m_HistogramColor[DPC_HIST_COLOR_END];
constinit CVQColor CVQDrawProperty::m_ReportColor[DPC_REPORT_COLOR_END];

float* CVQDrawProperty::GetColor(eDrawPropertyColor index)
{
    auto* const row = vq::rowAt(m_fColor, index);
    return row ? *row : nullptr;
}

CVQColor CVQDrawProperty::GetDPCVQColor(eDrawPropertyColor index)
{
    CVQColor colour;
    colour.Set4fv(GetColor(index)); // null leaves it
    return colour;
}

void CVQDrawProperty::SetColorRGB(eDrawPropertyColor index, float* rgb)
{
    if (float* const row = GetColor(index); row && rgb)
        std::copy_n(rgb, 3, row);
}

void CVQDrawProperty::SetColorARGB(eDrawPropertyColor index, float* rgba)
{
    if (float* const row = GetColor(index); row && rgba)
        std::copy_n(rgba, 4, row);
}

void CVQDrawProperty::GLApplyColor(eDrawPropertyColor index, float alpha)
{
    const float* const row = GetColor(index);
    if (!row)
        return;
    if (alpha == -1.0f)
        glColor4fv(row);
    else
        glColor4f(row[0], row[1], row[2], alpha);
}

float CVQDrawProperty::GetSize(eDrawPropertySize index)
{
    return vq::valueAt(m_fSize, index);
}

void CVQDrawProperty::SetSize(eDrawPropertySize index, float size)
{
    vq::setAt(m_fSize, index, size);
}

CVQColor CVQDrawProperty::GetVQColor(eControlDrawPropertyColor index)
{
    return vq::valueAt(m_UICtrlColor, index);
}

void CVQDrawProperty::SetVQColor(eControlDrawPropertyColor index, CVQColor colour)
{
    vq::setAt(m_UICtrlColor, index, colour);
}

CVQColor CVQDrawProperty::GetReportColor(eDrawPropertyReportColor index)
{
    return vq::valueAt(m_ReportColor, index);
}

void CVQDrawProperty::SetReportColor(eDrawPropertyReportColor index, CVQColor colour)
{
    vq::setAt(m_ReportColor, index, colour);
}

CVQFont CVQDrawProperty::GetFont(eDrawPropertyFont index)
{
    return vq::valueAt(m_Font, index);
}

void CVQDrawProperty::SetFont(eDrawPropertyFont index, CVQFont font)
{
    vq::setAt(m_Font, index, font);
}

void CVQDrawProperty::GetDPMaterial(eDrawPropertyMaterial index, CVQMaterial& material)
{
    if (const CVQMaterial* const row = vq::rowAt(m_Material, index))
        material = *row;
}

void CVQDrawProperty::SetDPMaterial(eDrawPropertyMaterial index, CVQMaterial& material)
{
    vq::setAt(m_Material, index, material);
}
