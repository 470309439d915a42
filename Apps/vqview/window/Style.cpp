// SPDX-License-Identifier: MIT
#include "vqview/window/Style.h"

#include "vqview/window/Colours.h"

#include <backends/imgui_impl_opengl2.h>
#include <imgui.h>

#include <array>
#include <filesystem>
#include <system_error>
#include <utility>

namespace vqview {

namespace {

constexpr float kTextHeight = 15; // in 1/96 inch

/// The first of them that there is; without any, Dear ImGui's own face of Latin letters.
constexpr std::array<const char*, 4> kFaces{
    "/usr/share/fonts/truetype/dejavu/DejaVuSans.ttf", "/usr/share/fonts/TTF/DejaVuSans.ttf",
    "/usr/share/fonts/truetype/noto/NotoSans-Regular.ttf", "C:/Windows/Fonts/segoeui.ttf"};

/// Latin, Greek and Cyrillic letters, punctuation, currencies, arrows: names of files are shown.
constexpr std::array<ImWchar, 11> kCharacters{0x0020, 0x024F, 0x0370, 0x052F, 0x2000, 0x206F,
                                              0x20A0, 0x20CF, 0x2190, 0x21FF, 0};

ImVec4 colourOf(eControlDrawPropertyColor row)
{
    const Value value = valueOf(CVQDrawProperty::GetVQColor(row));
    return {value[0], value[1], value[2], 1};
}

/// `part` of the second colour, 0 .. 1.
ImVec4 mixed(const ImVec4& first, const ImVec4& second, float part)
{
    const auto mix = [part](float a, float b) { return a + (b - a) * part; };
    return {mix(first.x, second.x), mix(first.y, second.y), mix(first.z, second.z), 1};
}

void addFace(ImFontAtlas& fonts, float pixels)
{
    fonts.Clear();
    for (const char* face : kFaces) {
        std::error_code ignored; // what cannot be asked is not there
        if (std::filesystem::is_regular_file(face, ignored) &&
            fonts.AddFontFromFileTTF(face, pixels, nullptr, kCharacters.data()))
            return;
    }
    ImFontConfig config;
    config.SizePixels = pixels;
    fonts.AddFontDefault(&config);
}

void scaleText(float scale, float unit)
{
    ImGuiIO& io = ImGui::GetIO();
    addFace(*io.Fonts, std::round(kTextHeight * scale));
    io.FontGlobalScale = unit / scale; // text is made in pixels, and laid out in units
    ImGui_ImplOpenGL2_DestroyFontsTexture();
    ImGui_ImplOpenGL2_CreateFontsTexture();
}

void scaleForms(float unit)
{
    ImGuiStyle& style = ImGui::GetStyle();
    style = ImGuiStyle();
    style.WindowRounding = 0;
    style.FrameRounding = 3;
    style.PopupRounding = 4;
    style.GrabRounding = 3;
    style.WindowBorderSize = 0;
    style.WindowPadding = {8, 6};
    style.ItemSpacing = {6, 5};
    style.ScaleAllSizes(unit);
}

/// What the tables have no row for is mixed from its neighbours.
void takeColours()
{
    const ImVec4 background = colourOf(DPC_UI_CTRL_BG), edit = colourOf(DPC_UI_EDIT_BG);
    const ImVec4 button = colourOf(DPC_UI_BUTTON_BG), select = colourOf(DPC_UI_CTRL_SELECT);
    const ImVec4 thumb = colourOf(DPC_UI_SCROLL_TH_BG), text = colourOf(DPC_UI_CTRL_TEXT);
    const std::array<std::pair<ImGuiCol, ImVec4>, 28> colours{{
        {ImGuiCol_Text, text},
        {ImGuiCol_TextDisabled, mixed(background, colourOf(DPC_UI_CTRL_DISABLE), 0.7f)},
        {ImGuiCol_WindowBg, background},
        {ImGuiCol_PopupBg, edit},
        {ImGuiCol_Border, thumb},
        {ImGuiCol_Separator, thumb},
        {ImGuiCol_FrameBg, edit},
        {ImGuiCol_FrameBgHovered, mixed(edit, text, 0.1f)},
        {ImGuiCol_FrameBgActive, mixed(edit, text, 0.2f)},
        {ImGuiCol_Button, button},
        {ImGuiCol_ButtonHovered, mixed(button, text, 0.15f)},
        {ImGuiCol_ButtonActive, mixed(button, select, 0.6f)},
        {ImGuiCol_Header, mixed(background, select, 0.4f)},
        {ImGuiCol_HeaderHovered, mixed(background, select, 0.3f)},
        {ImGuiCol_HeaderActive, mixed(background, select, 0.6f)},
        {ImGuiCol_ScrollbarBg, edit},
        {ImGuiCol_ScrollbarGrab, thumb},
        {ImGuiCol_ScrollbarGrabHovered, mixed(thumb, text, 0.15f)},
        {ImGuiCol_ScrollbarGrabActive, select},
        {ImGuiCol_SliderGrab, thumb},
        {ImGuiCol_SliderGrabActive, select},
        {ImGuiCol_CheckMark, select},
        {ImGuiCol_PlotHistogram, select},
        {ImGuiCol_Tab, edit},
        {ImGuiCol_TabHovered, mixed(background, select, 0.5f)},
        {ImGuiCol_TabActive, mixed(background, select, 0.35f)},
        {ImGuiCol_TextSelectedBg, mixed(edit, select, 0.4f)},
        {ImGuiCol_TitleBgActive, background},
    }};
    for (const auto& [index, colour] : colours)
        ImGui::GetStyle().Colors[index] = colour;
}

} // namespace

void Style::follow(const Layout& layout)
{
    const float unit = layout.scale / layout.pixelsPerUnitY;
    if (unit != m_unit || layout.scale != m_scale) {
        m_unit = unit;
        m_scale = layout.scale;
        scaleForms(unit);
        scaleText(layout.scale, unit);
    }
    takeColours();
}

ImVec4 Style::chosen()
{
    return colourOf(DPC_UI_CTRL_SELECT);
}

ImVec4 Style::onChosen()
{
    const ImVec4 colour = chosen();
    const float luma = 0.299f * colour.x + 0.587f * colour.y + 0.114f * colour.z; // of BT.601
    return luma > 0.5f ? ImVec4(0, 0, 0, 1) : ImVec4(1, 1, 1, 1);
}

} // namespace vqview
