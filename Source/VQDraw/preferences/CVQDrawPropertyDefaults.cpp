// SPDX-License-Identifier: MIT
// What start-up and a new document put into the tables of display preferences.
#include "VQDraw/VQDrawProperty.h"

#include "VQDraw/image/StartUpSteps.h"
#include "VQDraw/preferences/ChartColours.h"
#include "VQDraw/preferences/ControlColours.h"
#include "VQDraw/preferences/Fonts.h"
#include "VQDraw/preferences/Materials.h"
#include "VQDraw/preferences/SceneColours.h"
#include "VQDraw/preferences/Sizes.h"

#include <algorithm>
#include <span>

namespace {

constexpr std::size_t kLightRows = DPC_LIGHT3POS + 1;

void setSceneColours(std::span<const vq::SceneColour> rows)
{
    for (const auto& [id, name, initial] : rows)
        std::copy_n(initial.values.begin(), initial.count, CVQDrawProperty::m_fColor[id]);
}

void setControlColours()
{
    for (const auto& [id, name, initial] : vq::kControlColours) {
        CVQColor& colour = CVQDrawProperty::m_UICtrlColor[id];
        if (const auto* const given = std::get_if<CVQColor>(&initial))
            colour = *given;
        else if (const auto* const scene = std::get_if<vq::OfScene>(&initial))
            colour.Set3fv(CVQDrawProperty::m_fColor[scene->id]);
    }
    for (const auto& [id, name, initial] : vq::kControlAlphas)
        CVQDrawProperty::m_ucUICtrlAlpha[id] = initial;
}

void setChartColours()
{
    for (const auto& [id, name, initial] : vq::kHistogramColours)
        CVQDrawProperty::m_HistogramColor[id] = initial;
    for (const auto& [id, name, initial] : vq::kReportColours)
        CVQDrawProperty::m_ReportColor[id] = initial;
}

void setMaterialColour(float (&colour)[4], const vq::Rgb& rgb, const std::optional<float>& alpha)
{
    std::ranges::transform(rgb, colour, [](int value) { return vq::channel(value); });
    colour[3] = alpha.value_or(colour[3]);
}

void setMaterials()
{
    for (const vq::SurfaceMaterial& row : vq::kSurfaceMaterials) {
        CVQMaterial& material = CVQDrawProperty::m_Material[row.id];
        setMaterialColour(material.m_fAmbient, row.ambient, row.alphaOfColours);
        setMaterialColour(material.m_fDiffuse, row.diffuse, row.alphaOfColours);
        setMaterialColour(material.m_fSpecular, row.specular, row.alphaOfColours);
        material.m_fShininess = row.shininess;
        material.m_fAlpha = row.alpha;
    }
}

void setSizes()
{
    for (const auto& [id, name, initial] : vq::kSizes)
        CVQDrawProperty::m_fSize[id] = initial;
}

CVQColor colourOf(COLORREF value)
{
    CVQColor colour;
    colour.Set(value, false);
    return colour;
}

} // namespace

void vq::startPreferences()
{
    CVQDrawProperty::Initialize();
}

void CVQDrawProperty::Initialize()
{
    InitLightProps();
    setSceneColours(std::span(vq::kSceneColours).subspan<kLightRows>());
    setControlColours(); // one of them is a scene colour
    SetUIColorRelatives();
    m_ucFloatDialogAlpha = vq::kFloatDialogAlpha;
    setChartColours();
    setMaterials();
    setSizes();
    vq::setPreferredFonts();
}

void CVQDrawProperty::InitializeByDoc()
{
    m_iMaterialCount = 0;
    m_fSize[DPS_3D_SKETCH_CURVE_BENDING_WINDOW] = 0;
}

void CVQDrawProperty::InitLightProps()
{
    setSceneColours(std::span(vq::kSceneColours).first<kLightRows>());
}

void CVQDrawProperty::SetUIColorRelatives()
{
    const CVQColor background = m_UICtrlColor[DPC_UI_CTRL_BG];
    for (const auto& [id, name, initial] : vq::kControlColours) {
        if (const auto* const darker = std::get_if<vq::Darker>(&initial))
            m_UICtrlColor[id] = background - colourOf(darker->step);
        else if (const auto* const lighter = std::get_if<vq::Lighter>(&initial))
            m_UICtrlColor[id] = background + colourOf(lighter->step);
    }
}
