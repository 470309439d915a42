// SPDX-License-Identifier: MIT
#include "vqview/window/MaterialPanel.h"

#include "vqview/text/Text.h"
#include "vqview/window/FilePrompt.h"
#include "vqview/window/MaterialFields.h"
#include "vqview/window/Rows.h"

#include <imgui.h>

#include <cfloat>

namespace vqview {

namespace {

constexpr int kPaletteRowsShown = 8;

std::string nameOf(int row)
{
    return utf8Of(std::wstring_view(CVQDrawProperty::GetDPMEnumNoToEnumString(row)));
}

CVQMaterial materialAt(int row)
{
    CVQMaterial material;
    CVQDrawProperty::GetDPMaterial(static_cast<eDrawPropertyMaterial>(row), material);
    return material;
}

void setMaterialAt(int row, CVQMaterial material)
{
    CVQDrawProperty::SetDPMaterial(static_cast<eDrawPropertyMaterial>(row), material);
}

int paletteSize()
{
    return static_cast<int>(CVQDrawProperty::GetMaterialSize());
}

bool disabledButton(const char* label, bool isPossible)
{
    ImGui::BeginDisabled(!isPossible);
    const bool isPressed = ImGui::Button(label);
    ImGui::EndDisabled();
    return isPressed;
}

void drawSwatch(const CVQMaterial& material)
{
    const auto swatch = [](const char* name, const float* colour) {
        const float side = ImGui::GetTextLineHeight();
        ImGui::ColorButton(name, {colour[0], colour[1], colour[2], 1}, ImGuiColorEditFlags_NoDragDrop, {side, side});
        ImGui::SameLine();
    };
    swatch("Ambient", material.m_fAmbient);
    swatch("Diffuse", material.m_fDiffuse);
    swatch("Specular", material.m_fSpecular);
}

} // namespace

bool MaterialPanel::draw(FilePrompt& prompt)
{
    bool isChanged = drawFields();
    ImGui::Separator();
    isChanged |= drawPalette(prompt);
    return isChanged;
}

bool MaterialPanel::drawFields()
{
    ImGui::SetNextItemWidth(-FLT_MIN);
    if (ImGui::BeginCombo("##material", nameOf(m_row).c_str(), ImGuiComboFlags_HeightLarge)) {
        for (int row = 0; row < DPM_END; ++row) {
            if (ImGui::Selectable(nameOf(row).c_str(), row == m_row))
                m_row = row;
        }
        ImGui::EndCombo();
    }
    CVQMaterial material = materialAt(m_row);
    bool isChanged = false;
    for (const MaterialField& field : materialFields()) {
        Value value = field.value(material);
        if (!drawValue(field.name, field.shape, value))
            continue;
        field.setValue(material, value);
        isChanged = true;
    }
    if (isChanged)
        setMaterialAt(m_row, material);
    return isChanged;
}

bool MaterialPanel::drawPalette(FilePrompt& prompt)
{
    if (m_paletteRow >= paletteSize())
        m_paletteRow = -1;
    ImGui::AlignTextToFramePadding();
    ImGui::TextDisabled("Palette");
    ImGui::SameLine();
    if (ImGui::Button("Load..."))
        prompt.ask(FileTask::LoadPalette);
    ImGui::SameLine();
    if (ImGui::Button("Save..."))
        prompt.ask(FileTask::SavePalette);
    drawPaletteRows();
    return drawPaletteButtons();
}

void MaterialPanel::drawPaletteRows()
{
    const float height = kPaletteRowsShown * ImGui::GetTextLineHeightWithSpacing();
    if (!ImGui::BeginListBox("##palette", {-FLT_MIN, height}))
        return;
    for (int row = 0; row < paletteSize(); ++row) {
        CVQMaterial material;
        CVQDrawProperty::GetMaterial(row, material);
        ImGui::PushID(row);
        drawSwatch(material);
        if (ImGui::Selectable(("Material " + std::to_string(row + 1)).c_str(), row == m_paletteRow))
            m_paletteRow = row;
        ImGui::PopID();
    }
    ImGui::EndListBox();
}

bool MaterialPanel::drawPaletteButtons()
{
    const bool isChosen = m_paletteRow >= 0;
    CVQMaterial material = materialAt(m_row);
    bool isChanged = false;
    if (ImGui::Button("Add")) {
        CVQDrawProperty::AddMaterial(material);
        m_paletteRow = paletteSize() - 1;
    }
    ImGui::SameLine();
    if (disabledButton("Apply", isChosen) && CVQDrawProperty::GetMaterial(m_paletteRow, material)) {
        setMaterialAt(m_row, material);
        isChanged = true;
    }
    ImGui::SameLine();
    if (disabledButton("Replace", isChosen))
        CVQDrawProperty::ModifyMaterial(m_paletteRow, material);
    ImGui::SameLine();
    if (disabledButton("Remove", isChosen))
        CVQDrawProperty::RemoveMaterial(m_paletteRow);
    return isChanged;
}

} // namespace vqview
