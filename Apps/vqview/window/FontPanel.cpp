// SPDX-License-Identifier: MIT
#include "vqview/window/FontPanel.h"

#include "vqview/text/Text.h"
#include "vqview/window/FontRecord.h"
#include "vqview/window/Rows.h"

#include <imgui.h>
#include <imgui_stdlib.h>

#include <array>
#include <cfloat>

namespace vqview {

namespace {

constexpr float kFieldWidth = 12; // in heights of the text
constexpr int kLargestHeight = 96;

struct Weight
{
    LONG weight;
    const char* name;
};

constexpr std::array<Weight, 7> kWeights{{
    {FW_THIN, "Thin"},
    {FW_LIGHT, "Light"},
    {FW_NORMAL, "Normal"},
    {FW_MEDIUM, "Medium"},
    {FW_SEMIBOLD, "Semibold"},
    {FW_BOLD, "Bold"},
    {FW_HEAVY, "Heavy"},
}};

std::string nameOf(int row)
{
    return utf8Of(std::wstring_view(CVQDrawProperty::GetDPFEnumNoToEnumString(row)));
}

std::string weightName(LONG weight)
{
    const auto* known = std::ranges::find(kWeights, weight, &Weight::weight);
    return known == kWeights.end() ? std::to_string(weight) : known->name;
}

/// Taken over when it is finished: half a name would be another face.
bool drawFace(CVQFont& font)
{
    std::string face = faceOf(font);
    ImGui::InputText("Face", &face);
    if (!ImGui::IsItemDeactivatedAfterEdit())
        return false;
    setFace(font, face);
    return true;
}

bool drawHeight(CVQFont& font)
{
    int height = heightOf(font);
    if (!ImGui::SliderInt("Height", &height, 1, kLargestHeight, "%d", ImGuiSliderFlags_AlwaysClamp))
        return false;
    setHeight(font, height);
    return true;
}

bool drawWeight(CVQFont& font)
{
    LONG& weight = font.m_LogFont.lfWeight;
    if (!ImGui::BeginCombo("Weight", weightName(weight).c_str(), ImGuiComboFlags_HeightLarge))
        return false;
    bool isChanged = false;
    for (const Weight& known : kWeights) {
        if (ImGui::Selectable(known.name, known.weight == weight)) {
            weight = known.weight;
            isChanged = true;
        }
    }
    ImGui::EndCombo();
    return isChanged;
}

bool drawItalic(CVQFont& font)
{
    bool isItalic = font.m_LogFont.lfItalic != 0;
    if (!ImGui::Checkbox("Italic", &isItalic))
        return false;
    font.m_LogFont.lfItalic = isItalic ? TRUE : FALSE;
    return true;
}

bool drawColour(CVQFont& font)
{
    Value colour = fontColourOf(font);
    if (!drawValue("Colour", {Kind::Colour}, colour))
        return false;
    setFontColour(font, colour);
    return true;
}

} // namespace

bool FontPanel::draw()
{
    ImGui::SetNextItemWidth(-FLT_MIN);
    if (ImGui::BeginCombo("##font", nameOf(m_row).c_str(), ImGuiComboFlags_HeightLarge)) {
        for (int row = 0; row < DPF_END; ++row) {
            if (ImGui::Selectable(nameOf(row).c_str(), row == m_row))
                m_row = row;
        }
        ImGui::EndCombo();
    }
    CVQFont font = CVQDrawProperty::GetFont(static_cast<eDrawPropertyFont>(m_row));
    ImGui::PushID(m_row);
    ImGui::PushItemWidth(kFieldWidth * ImGui::GetFontSize());
    bool isChanged = drawFace(font);
    isChanged |= drawHeight(font);
    isChanged |= drawWeight(font);
    isChanged |= drawItalic(font);
    isChanged |= drawColour(font);
    isChanged |= ImGui::Checkbox("Shadow", &font.m_bShadow);
    ImGui::PopItemWidth();
    ImGui::PopID();
    if (isChanged)
        CVQDrawProperty::SetFont(static_cast<eDrawPropertyFont>(m_row), font);
    return isChanged;
}

} // namespace vqview
