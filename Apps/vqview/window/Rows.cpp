// SPDX-License-Identifier: MIT
#include "vqview/window/Rows.h"

#include "vqview/window/Search.h"

#include <imgui.h>

#include <cfloat>

namespace vqview {

namespace {

constexpr ImGuiColorEditFlags kSwatch = ImGuiColorEditFlags_NoInputs | ImGuiColorEditFlags_AlphaPreviewHalf |
                                        ImGuiColorEditFlags_AlphaBar | ImGuiColorEditFlags_PickerHueWheel;
constexpr float kNumberWidth = 4.5f; // in heights of the text
constexpr float kStepsAcross = 400;  // of a drag over the whole range
constexpr float kUnboundedStep = 0.05f;
constexpr float kDirectionStep = 20; // directions are as long as 10000

constexpr std::array<const char*, 3> kFormats{"%.0f", "%.1f", "%.2f"}; // by decimals

bool drawNumber(const char* name, Shape shape, Value& value)
{
    const bool isBounded = shape.most > 0;
    const char* format = kFormats[static_cast<std::size_t>(shape.decimals)];
    const float step = isBounded ? shape.most / kStepsAcross : kUnboundedStep;
    ImGui::SetNextItemWidth(kNumberWidth * ImGui::GetFontSize());
    const bool isChanged = ImGui::DragFloat(name, value.data(), step, 0, isBounded ? shape.most : FLT_MAX, format,
                                            ImGuiSliderFlags_AlwaysClamp);
    if (ImGui::IsItemHovered() && !ImGui::IsItemActive())
        ImGui::SetTooltip("%s", name); // the panel may be too narrow for it
    return isChanged;
}

/// Its name is as long as the others, and four numbers need the line.
bool drawDirection(const char* name, Value& value)
{
    ImGui::PushID(name);
    ImGui::TextUnformatted(name);
    ImGui::SetNextItemWidth(-FLT_MIN);
    const bool isChanged = ImGui::DragFloat4("##direction", value.data(), kDirectionStep, 0, 0, "%.0f");
    ImGui::PopID();
    return isChanged;
}

} // namespace

bool drawValue(const char* name, Shape shape, Value& value)
{
    switch (shape.kind) {
    case Kind::Colour:
        return ImGui::ColorEdit3(name, value.data(), kSwatch);
    case Kind::ColourAndAlpha:
        return ImGui::ColorEdit4(name, value.data(), kSwatch);
    case Kind::Direction:
        return drawDirection(name, value);
    case Kind::Number:
        return drawNumber(name, shape, value);
    }
    return false;
}

bool drawTable(const Table& table, std::string_view words)
{
    bool isChanged = false, isFirst = true;
    ImGui::PushID(table.title);
    for (int row = 0; row < table.count; ++row) {
        const std::string name = table.name(row);
        if (!matches(name, words))
            continue;
        if (std::exchange(isFirst, false))
            ImGui::TextDisabled("%s", table.title);
        Value value = table.value(row);
        if (!drawValue(name.c_str(), table.shape(row), value))
            continue;
        table.setValue(row, value);
        isChanged = true;
    }
    ImGui::PopID();
    return isChanged;
}

} // namespace vqview
